#include "rule.h"

namespace schemadoctor {

void identityConstraint(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"key", "keyref", "unique"})) {
        findings.Add(Severity::Note, *tag, Texts::tr("%1 is written here.").arg(described(*tag)),
                     Texts::tr("It is passed over: nothing is compared while a report is filled."),
                     Texts::tr("Keep it for the validation of finished reports, or leave it out."));
    }
}

} // namespace schemadoctor
