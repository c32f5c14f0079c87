#include "rule.h"

namespace schemadoctor {

void unionType(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"union"})) {
        findings.Add(Severity::Error, *tag, Texts::tr("%1 is written here.").arg(described(*tag)),
                     Texts::tr("It is passed over: what is of this type has none, or that of the last restriction "
                               "inside, and cannot be filled as the author means it."),
                     Texts::tr("Use xs:restriction of one type, such as xs:string."));
    }
}

} // namespace schemadoctor
