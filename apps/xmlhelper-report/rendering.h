#ifndef REPORTCHECK_RENDERING_H
#define REPORTCHECK_RENDERING_H

#include <vector>

#include <QByteArray>
#include <QString>

#include "reportcheck.h"

/// What the program prints about the reports that it has checked.
namespace reportcheck {

/// For people: a line for each finding in the manner of compilers, with advice indented below it, and a line for each
/// report that sums up.
QString textOf(const Result& result);

/// For programs: all reports as one object, see the man page.
QByteArray jsonOf(const std::vector<Result>& results);

/// Of the worst report.
ExitStatus exitStatusOf(const std::vector<Result>& results);

} // namespace reportcheck

#endif
