// Compiles, and warns of each of the calls whose values do not reach the report.

#include <xmlhelper/vcreporting.h>

void registerValues(VCReporting& reporting, const QString& name)
{
#ifdef WRITES_EMPTY_TEXTS
    reporting.AddExplicitReportData(name, QString(), 1, QString(), 0, QString());
    reporting.AddExplicitReportData(name, 17.5, 1, QString(), 0, QString());
    reporting.AddExplicitReportData(name, 17.5F, 1, QString(), 0, QString());
#else
    reporting.AddReportData(name, QString(), QString(), 1, QString(), 0, QString());
    reporting.AddExplicitReportData(name, true, 1, QString(), 0, QString());
    reporting.AddExplicitReportData(name, 17L, 1, QString(), 0, QString());
#endif
}
