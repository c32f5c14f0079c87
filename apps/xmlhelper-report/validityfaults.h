#ifndef REPORTCHECK_VALIDITYFAULTS_H
#define REPORTCHECK_VALIDITYFAULTS_H

#include <QStringList>

namespace reportcheck {

/// What speaks against a report by its schema, a sentence without its stop each: why it cannot be read or is not valid,
/// why the schema is none to validate by, or that the validation took too long. Empty when the report is valid. In the
/// order of the arguments in which a ReportFiller asks.
QStringList validityFaults(const QString& schema, const QString& report);

} // namespace reportcheck

#endif
