#ifndef MEASUREMENTPANEL_FINDINGS_H
#define MEASUREMENTPANEL_FINDINGS_H

#include <QString>

/// The first thing that is wrong with a schema, as the schema doctor puts it, which speaks English only; empty when it
/// finds nothing. The doctor is the program xmlhelper-schema, beside this one or where programs are; empty as well when
/// it is not there.
QString firstFindingInSchema(const QString& schema);

/// The first error of a report by its schema, as the report checker puts it, which speaks English only; empty when it
/// finds none, or when this program was built without it.
QString firstFindingInReport(const QString& report, const QString& schema);

/// Whether this program was built with the report checker.
bool areReportsChecked();

#endif
