#include <cstdarg>

#include <QDateTime>
#include <QTextStream>

#include <arbase/errorhandler.h>
#include <arbase/trace.h>
#include <arbase/vorndatetime.h>
#include <arbase/vornos.h>

ErrorHandler& ErrorHandler::Instance()
{
    static ErrorHandler instance;
    return instance;
}

quint32 ErrorHandler::GetTraceMask() const
{
    return ~0u;
}

void _Q_Trace(const QString& message, const QString&, unsigned short)
{
    QTextStream(stdout) << "host trace: " << message << '\n';
}

void _Q_TraceOld(QString format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    _Q_Trace(QString::vasprintf(format.toUtf8().constData(), arguments), QString(), 0);
    va_end(arguments);
}

VornOS* VornOS::Create()
{
    static VornOS instance;
    return &instance;
}

qint64 VornOS::GetCurrentTime() const
{
    return QDateTime::currentMSecsSinceEpoch();
}

Vorn::DateTime::DateTime(qint64 time)
    : m_iTime(time)
{
}

QString Vorn::DateTime::toString(const QString& format) const
{
    return QDateTime::fromMSecsSinceEpoch(m_iTime).toString(format);
}
