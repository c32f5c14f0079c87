#include <xmlhelper/constants_p.h>
#include <xmlhelper/skeletonwords_p.h>
#include <xmlhelper/valuerules_p.h>

#include "rule.h"

namespace schemadoctor {

namespace {

bool isAnnotation(const QString& name)
{
    return name == TypeAttribute() || name == DefaultAttribute() || isFacetOfType(name);
}

} // namespace

void annotationName(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"attribute", "element"})) {
        const QString name = tag->Value("name");
        if (tag->Is("attribute") && isAnnotation(name)) {
            findings.Add(Severity::Error, *tag, Texts::tr("An attribute is called '%1'.").arg(name),
                         Texts::tr("That is the name of an annotation: the attribute takes its place, is taken for it, "
                                   "and is removed with it."),
                         Texts::tr("Give the attribute another name; not type, not default, and nothing that contains "
                                   "'enumeration' or 'clusive'."));
        } else if (tag->Is("element") && name == CarrierName) {
            findings.Add(Severity::Error, *tag, Texts::tr("An element is called '%1'.").arg(name),
                         Texts::tr("That is how simple types are kept: as first element of a type it is not laid out, "
                                   "and what is of the type gets its annotations and no child."),
                         Texts::tr("Give the element another name."));
        }
    }
}

} // namespace schemadoctor
