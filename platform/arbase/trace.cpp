#include <arbase/trace.h>
#include <cstdarg>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(traceCategory, "arbase.trace")

void write(const QString& message, const char* file, int line)
{
    QMessageLogger(file, line, nullptr).debug(traceCategory()).nospace().noquote() << message;
}

} // namespace

void _Q_Trace(const QString& message, const QString& file, unsigned short line)
{
    const QByteArray fileName = file.toUtf8(); // The message context only points at the name.
    write(message, fileName.constData(), line);
}

void _Q_TraceOld(QString format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const QString message = QString::vasprintf(format.toUtf8().constData(), arguments);
    va_end(arguments);

    write(message, nullptr, 0);
}
