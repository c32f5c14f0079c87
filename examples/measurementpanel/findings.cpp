#include "findings.h"

#include <algorithm>

#ifdef MEASUREMENTPANEL_HAS_REPORTCHECK
#include <reportcheck.h>
#endif

#ifdef MEASUREMENTPANEL_HAS_REPORTCHECK

namespace {

using Findings = std::vector<reportcheck::Finding>;

/// The first that makes the report wrong: notes and warnings are for the author of the schema.
QString firstErrorIn(const Findings& findings)
{
    const auto error = std::find_if(findings.begin(), findings.end(), [](const reportcheck::Finding& finding) {
        return finding.severity == reportcheck::Severity::Error;
    });
    return error == findings.end() ? QString() : error->text;
}

} // namespace

bool areReportsChecked()
{
    return true;
}

QString firstFindingInReport(const QString& report, const QString& schema)
{
    const reportcheck::Result result = reportcheck::checkReport(report, schema);
    if (!result.IsReadable()) {
        return result.unreadableReason;
    }
    const QString finding = firstErrorIn(result.findings);
    return finding.isEmpty() ? firstErrorIn(result.validation) : finding;
}

#else

bool areReportsChecked()
{
    return false;
}

QString firstFindingInReport(const QString& /*report*/, const QString& /*schema*/)
{
    return {};
}

#endif

QString firstFindingInSchema(const QString& /*schema*/)
{
    return {};
}
