#ifndef ARBASE_TRACE_H
#define ARBASE_TRACE_H

#include <arbase/arbaseexport.h>
#include <QString>

// NOLINTBEGIN(bugprone-reserved-identifier): the names are those of the suite's library.

// Both calls write one message of Qt's debug level in the logging category "arbase.trace". So a trace goes where the
// application's other messages go, is caught with qInstallMessageHandler and switched off with a logging rule such as
// "arbase.trace.debug=false". Neither looks at the trace mask of ErrorHandler: that is the caller's part.

/// Traces a message, taken as it is, for a place in the source: file and line reach the message context.
ARBASE_EXPORT void _Q_Trace(const QString& message, const QString& file, unsigned short line);

/// Traces a message made of a format and its arguments, with the conversions of printf; %s takes UTF-8. The message
/// context names no file and no line.
ARBASE_EXPORT void _Q_TraceOld(QString format, ...);

// NOLINTEND(bugprone-reserved-identifier)

#endif
