#include "rule.h"

namespace schemadoctor {

void group(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"group"})) {
        if (tag->Has("ref")) {
            Finding& finding = findings.Add(
                Severity::Error, *tag, Texts::tr("%1 asks for the elements of a group.").arg(described(*tag)),
                Texts::tr("It is passed over: none of them is laid out here."),
                Texts::tr("Write the elements of the group here, or put them into an element of a named type."));
            if (const TextNode* const element = tag->Around("element")) {
                addTrees(schema, *element, finding);
            } else if (const TextNode* const type = namedTypeAround(*tag)) {
                addTrees(schema, *type, finding);
            }
        } else {
            findings.Add(Severity::Error, *tag, Texts::tr("%1 defines a group.").arg(described(*tag)),
                         Texts::tr("It is passed over, and each element in it counts as a global declaration, which "
                                   "competes for the root of the report."),
                         Texts::tr("Remove it; write its elements where they are used."));
        }
    }
}

} // namespace schemadoctor
