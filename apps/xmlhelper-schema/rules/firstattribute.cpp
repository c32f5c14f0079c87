#include "rule.h"

namespace schemadoctor {

namespace {

/// The attribute that the library takes for granted in front of all others; null where it does not matter.
const char* expectedFirst(const TextNode& tag)
{
    if (tag.Is("include")) {
        return "schemaLocation";
    }
    if (tag.parent && tag.parent->Is("restriction")
        && !tag.IsAnyOf({"simpleType", "annotation", "sequence", "choice", "all", "group", "attribute",
                         "attributeGroup", "anyAttribute", "assert"})) {
        return "value";
    }
    if (tag.IsAnyOf({"restriction", "extension"})) {
        return "base";
    }
    const bool isGlobalDeclaration = tag.IsGlobal() && tag.IsAnyOf({"element", "attribute"});
    return isGlobalDeclaration || tag.IsAnyOf({"complexType", "simpleType"}) ? "name" : nullptr;
}

QString effectOf(const TextNode& tag)
{
    const QString value = tag.FirstValue();
    if (tag.Is("include")) {
        return Texts::tr("A file called '%1' is looked for.").arg(value);
    }
    if (tag.IsAnyOf({"restriction", "extension"})) {
        return Texts::tr("The base is not read: what is derived here has no type.");
    }
    if (tag.IsAnyOf({"complexType", "simpleType"}) && !tag.Has("name")) {
        return Texts::tr("It counts as a named type called '%1': what is inside belongs to that type and not to the "
                         "element around it.")
            .arg(value);
    }
    if (tag.IsAnyOf({"complexType", "simpleType", "element", "attribute"})) {
        return Texts::tr("It is called '%1': whoever refers to '%2' does not find it.").arg(value, tag.Value("name"));
    }
    return Texts::tr("The value of the facet is taken to be '%1'.").arg(value);
}

} // namespace

/// Only the attribute that comes first in a tag is looked at.
void firstAttribute(const Schema& schema, Findings& findings)
{
    for (const TextFile* const file : schema.GetFiles()) {
        for (const TextNode* const tag : file->tags) {
            const char* const expected = expectedFirst(*tag);
            if (!expected || tag->attributes.isEmpty() || tag->FirstName() == QLatin1String(expected)
                || !tag->qName.startsWith(QLatin1String("xs:"))) {
                continue;
            }
            findings.Add(Severity::Error, *tag,
                         Texts::tr("The first attribute of <%1> is '%2', not '%3'.")
                             .arg(tag->qName, tag->FirstName(), QLatin1String(expected)),
                         effectOf(*tag),
                         tag->Has(expected)
                             ? Texts::tr("Write %1 in front of all other attributes.").arg(QLatin1String(expected))
                             : Texts::tr("Leave the attribute out, or give the type a name, written first."));
        }
    }
}

} // namespace schemadoctor
