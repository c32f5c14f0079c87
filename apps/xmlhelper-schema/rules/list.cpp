#include "rule.h"

namespace schemadoctor {

void listType(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"list"})) {
        findings.Add(Severity::Error, *tag, Texts::tr("%1 is written here.").arg(described(*tag)),
                     Texts::tr("It is passed over: what is of this type has no type and cannot be filled."),
                     Texts::tr("Use xs:string and write the list as a text, or repeat the element."));
    }
}

} // namespace schemadoctor
