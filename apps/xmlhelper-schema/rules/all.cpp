#include "rule.h"

namespace schemadoctor {

void allGroup(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"all"})) {
        findings.Add(Severity::Note, *tag, Texts::tr("%1 is written here.").arg(described(*tag)),
                     Texts::tr("It is read like xs:sequence: the elements are always laid out in the order in "
                               "which they are written."),
                     Texts::tr("Write xs:sequence, which says the same."));
    }
}

} // namespace schemadoctor
