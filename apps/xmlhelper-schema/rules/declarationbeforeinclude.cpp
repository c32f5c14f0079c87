#include <QSet>

#include "rule.h"

namespace schemadoctor {

namespace {

QSet<QString> namesReferredTo(const Schema& schema)
{
    QSet<QString> names;
    for (const TextNode* const tag : schema.Tags({"element", "attribute", "extension"})) {
        for (const char* const attribute : {"type", "ref", "base"}) {
            names.insert(tag->Value(attribute));
        }
    }
    return names;
}

} // namespace

/// The end of an included file marks everything read so far as used, as if somebody referred to it.
void declarationBeforeInclude(const Schema& schema, Findings& findings)
{
    const QSet<QString> used = namesReferredTo(schema);
    for (const auto& [declaration, include] : schema.GetRecord().GetHiddenRoots()) {
        if (!declaration->Is("element") || used.contains(declaration->FirstValue())) {
            continue;
        }
        const bool isInSameFile = declaration->file == include->file;
        Finding& finding = findings.Add(
            isInSameFile ? Severity::Error : Severity::Warning, *declaration,
            isInSameFile ? Texts::tr("%1 is declared in front of an xs:include, in line %2.")
                               .arg(described(*declaration))
                               .arg(include->line)
                         : Texts::tr("%1 is declared in an included file.").arg(described(*declaration)),
            Texts::tr("The end of the included file marks it as used: it never becomes the root of a report."),
            isInSameFile ? Texts::tr("Write every xs:include in front of all declarations.")
                         : Texts::tr("Declare the root in the file that includes the others, or refer to this "
                                     "element there."));
        addTrees(schema, *declaration, finding);
    }
}

} // namespace schemadoctor
