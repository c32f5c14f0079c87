#ifndef XMLHELPER_TRACING_P_H
#define XMLHELPER_TRACING_P_H

#include <QString>

/// The library's traces: they are written only while the trace mask of the platform's error handler has this bit.
constexpr quint32 TraceMaskXmlHelper = 32;

/// Whether the library's traces are switched on.
bool isTracing();

/// Traces @p message with the source "tools/xmlhelper/" and @p component. The line is the number by which the message
/// is known in the suite's logs; it does not follow the code.
void trace(const QString& message, const char* component, int line);

/// Whether @p observer is there; traces "CLASS: pCallback is NULL!" when it is not.
bool checkObserver(const void* observer, const char* className, const char* component, int line);

#endif
