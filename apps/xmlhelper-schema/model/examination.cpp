#include "examination.h"

#include <algorithm>

namespace schemadoctor {

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
