#include "rule.h"

namespace schemadoctor {

void attributeGroup(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"attributeGroup"})) {
        if (tag->Has("ref")) {
            findings.Add(Severity::Warning, *tag, Texts::tr("%1 asks for attributes.").arg(described(*tag)),
                         Texts::tr("It is passed over: the element has none of them."),
                         Texts::tr("Write the attributes here, each with xs:attribute."));
        } else {
            findings.Add(Severity::Warning, *tag, Texts::tr("%1 defines attributes.").arg(described(*tag)),
                         Texts::tr("It is passed over, and each attribute in it counts as a global declaration, which "
                                   "competes for the root of the report."),
                         Texts::tr("Remove it; declare the attributes where they are used."));
        }
    }
}

} // namespace schemadoctor
