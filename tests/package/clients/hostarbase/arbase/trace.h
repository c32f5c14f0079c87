#ifndef HOSTARBASE_ARBASE_TRACE_H
#define HOSTARBASE_ARBASE_TRACE_H

#include <arbase/hostarbaseexport.h>
#include <QString>

// NOLINTBEGIN(bugprone-reserved-identifier): the names are those of the suite's library.

/// Both print one line that starts with "host trace: ".
HOSTARBASE_EXPORT void _Q_Trace(const QString& message, const QString& file, unsigned short line);
HOSTARBASE_EXPORT void _Q_TraceOld(QString format, ...);

// NOLINTEND(bugprone-reserved-identifier)

#endif
