#include "examination.h"

#include <algorithm>

#include "texts.h"

namespace schemadoctor {

QString wordsFor(const Proof& proof)
{
    if (proof.reports == 0) {
        return proof.leftOut;
    }
    const QString tried
        = Texts::tr("Reports filled on trial: %1, of which valid: %2.").arg(proof.reports).arg(proof.validReports);
    return proof.leftOut.isEmpty() ? tried : tried + QLatin1Char(' ') + proof.leftOut;
}

ExitStatus exitStatusOf(const Examination& examination)
{
    if (!examination.IsReadable()) {
        return Unreadable;
    }
    const auto has = [&examination](Severity severity) {
        return std::any_of(examination.findings.begin(), examination.findings.end(),
                           [severity](const Finding& finding) { return finding.severity == severity; });
    };
    return has(Severity::Error) ? HasErrors : has(Severity::Warning) ? HasWarnings : NothingToSay;
}

} // namespace schemadoctor
