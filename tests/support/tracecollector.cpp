#include "tracecollector.h"

#include <cstring>

#include <QStringList>

#include <arbase/errorhandler.h>

namespace {

TraceCollector* collector = nullptr;
QtMessageHandler next = nullptr;

} // namespace

TraceCollector::TraceCollector(quint32 mask)
    : m_previousMask(ErrorHandler::Instance().GetTraceMask())
    , m_previousHandler(qInstallMessageHandler(collect))
{
    Q_ASSERT(!collector);
    collector = this;
    next = m_previousHandler;
    ErrorHandler::Instance().SetTraceMask(mask);
}

TraceCollector::~TraceCollector()
{
    ErrorHandler::Instance().SetTraceMask(m_previousMask);
    qInstallMessageHandler(m_previousHandler);
    collector = nullptr;
}

QString TraceCollector::Messages() const
{
    QStringList messages;
    for (const Trace& trace : m_traces) {
        messages.append(trace.message);
    }
    return messages.join(QLatin1Char('\n'));
}

bool TraceCollector::IsOnly(const QString& message, const QString& source, int line) const
{
    return m_traces.size() == 1 && m_traces[0].message == message && m_traces[0].source == source
        && m_traces[0].line == line;
}

void TraceCollector::collect(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (context.category && std::strcmp(context.category, "arbase.trace") == 0) {
        collector->m_traces.push_back({message, QString::fromUtf8(context.file), context.line});
    } else if (next) {
        next(type, context, message);
    }
}
