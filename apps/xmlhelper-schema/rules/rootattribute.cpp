#include "rule.h"

namespace schemadoctor {

void rootAttribute(const Schema& schema, Findings& findings)
{
    for (const RootCandidate& candidate : schema.GetRecord().GetRootCandidates()) {
        if (candidate.isAttribute) {
            findings.Add(
                candidate.isChosen ? Severity::Error : Severity::Warning, candidate.place, candidate.name,
                Texts::tr("Nothing refers to the global attribute '%1'.").arg(candidate.name),
                candidate.isChosen
                    ? Texts::tr("It competes for the root of the report, and wins: the report is one element of "
                                "that name.")
                    : Texts::tr("It competes for the root of the report; a name greater than those of the "
                                "elements would win."),
                Texts::tr("Refer to it with <xs:attribute ref=\"%1\"/>, or leave it out.").arg(candidate.name));
        }
    }
}

} // namespace schemadoctor
