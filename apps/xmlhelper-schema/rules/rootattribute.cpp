#include "rule.h"

namespace schemadoctor {

void rootAttribute(const Schema& schema, Findings& findings)
{
    for (const RootCandidate& candidate : schema.GetRecord().GetRootCandidates()) {
        if (candidate.isAttribute) {
            findings.Add(
                candidate.isChosen ? Severity::Error : Severity::Warning, candidate.place, candidate.name,
                QStringLiteral("Nothing refers to the global attribute '%1'.").arg(candidate.name),
                candidate.isChosen
                    ? QStringLiteral("It competes for the root of the report, and wins: the report is one element of "
                                     "that name.")
                    : QStringLiteral("It competes for the root of the report; a name greater than those of the "
                                     "elements would win."),
                QStringLiteral("Refer to it with <xs:attribute ref=\"%1\"/>, or leave it out.").arg(candidate.name));
        }
    }
}

} // namespace schemadoctor
