#ifndef XMLHELPER_TESTS_TRACECOLLECTOR_H
#define XMLHELPER_TESTS_TRACECOLLECTOR_H

#include <vector>

#include <QString>

/// Switches the library's traces on and collects them while it lives; puts everything back at its end. One at a time.
class TraceCollector
{
public:
    struct Trace
    {
        QString message;
        QString source; ///< empty for a formatted trace
        int line; ///< 0 for a formatted trace
    };

    /// @param mask  the trace mask; the traces of the library are in the class 32
    explicit TraceCollector(quint32 mask = 32);
    ~TraceCollector();

    const std::vector<Trace>& Traces() const { return m_traces; }
    /// The messages of the traces, a line each; for comparisons that report well.
    QString Messages() const;
    /// Whether exactly one trace has come, with this message, source and line.
    bool IsOnly(const QString& message, const QString& source, int line) const;

private:
    Q_DISABLE_COPY(TraceCollector)
    static void collect(QtMsgType type, const QMessageLogContext& context, const QString& message);

    std::vector<Trace> m_traces;
    quint32 m_previousMask;
    QtMessageHandler m_previousHandler;
};

#endif
