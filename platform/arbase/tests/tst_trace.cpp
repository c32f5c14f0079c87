#include <arbase/errorhandler.h>
#include <arbase/trace.h>
#include <QLoggingCategory>
#include <QtTest>
#include <vector>

namespace {

struct Message
{
    QtMsgType type;
    QString category;
    QString file;
    int line;
    QString text;
};

std::vector<Message> caught; // a message handler is a bare function and can reach nothing else

void catchMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    caught.push_back({type, QString::fromUtf8(context.category), QString::fromUtf8(context.file), context.line, text});
}

/// Catches what is traced while it lives, with the traces switched on.
class TraceCatcher
{
public:
    TraceCatcher()
    {
        caught.clear();
        QLoggingCategory::setFilterRules(QStringLiteral("arbase.trace.debug=true"));
        m_previous = qInstallMessageHandler(catchMessage);
    }
    ~TraceCatcher() { qInstallMessageHandler(m_previous); }

private:
    Q_DISABLE_COPY(TraceCatcher)

    QtMessageHandler m_previous;
};

} // namespace

class TestTrace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTraceIsADebugMessageOfItsPlace();
    void theMessageIsTakenAsItIs_data();
    void theMessageIsTakenAsItIs();
    void anOldTraceIsADebugMessageOfNoPlace();
    void anOldTraceConvertsAsPrintfDoes();
    void aLoggingRuleSwitchesTracesOff();
    void theTraceMaskIsTheCallersPart();
};

void TestTrace::aTraceIsADebugMessageOfItsPlace()
{
    {
        const TraceCatcher catcher;
        _Q_Trace(QStringLiteral("XMLReader: pCallback is NULL!"), QStringLiteral("tools/xmlhelper/xmlreader"), 65535);
    }
    QCOMPARE(caught.size(), std::size_t(1));
    QCOMPARE(caught.front().type, QtDebugMsg);
    QCOMPARE(caught.front().category, QStringLiteral("arbase.trace"));
    QCOMPARE(caught.front().file, QStringLiteral("tools/xmlhelper/xmlreader"));
    QCOMPARE(caught.front().line, 65535);
    QCOMPARE(caught.front().text, QStringLiteral("XMLReader: pCallback is NULL!"));
}

void TestTrace::theMessageIsTakenAsItIs_data()
{
    QTest::addColumn<QString>("message");

    QTest::newRow("percent-signs-convert-nothing") << QStringLiteral("100 % of %s and %n");
    QTest::newRow("quotes-and-back-slashes-are-not-escaped") << QStringLiteral("C:\\reports \"new\"");
    QTest::newRow("outer-blanks-are-kept") << QStringLiteral(" a  b ");
    QTest::newRow("characters-beyond-ascii-are-kept") << QString::fromUtf8("Gerät 30 °");
    QTest::newRow("empty") << QString();
}

void TestTrace::theMessageIsTakenAsItIs()
{
    QFETCH(QString, message);
    {
        const TraceCatcher catcher;
        _Q_Trace(message, QStringLiteral("file"), 1);
    }
    QCOMPARE(caught.size(), std::size_t(1));
    QCOMPARE(caught.front().text, message);
}

void TestTrace::anOldTraceIsADebugMessageOfNoPlace()
{
    {
        const TraceCatcher catcher;
        _Q_TraceOld(QStringLiteral("started"));
    }
    QCOMPARE(caught.size(), std::size_t(1));
    QCOMPARE(caught.front().type, QtDebugMsg);
    QCOMPARE(caught.front().category, QStringLiteral("arbase.trace"));
    QCOMPARE(caught.front().file, QString());
    QCOMPARE(caught.front().line, 0);
    QCOMPARE(caught.front().text, QStringLiteral("started"));
}

void TestTrace::anOldTraceConvertsAsPrintfDoes()
{
    {
        const TraceCatcher catcher;
        _Q_TraceOld(QString::fromUtf8("Gerät(%s, %ld, %d, %f4.2, 100%%, %s)"), "30 °", -2L, 7, 12.5, "");
    }
    QCOMPARE(caught.size(), std::size_t(1));
    QCOMPARE(caught.front().text, QString::fromUtf8("Gerät(30 °, -2, 7, 12.5000004.2, 100%, )"));
}

void TestTrace::aLoggingRuleSwitchesTracesOff()
{
    {
        const TraceCatcher catcher;
        QLoggingCategory::setFilterRules(QStringLiteral("arbase.trace.debug=false"));
        _Q_Trace(QStringLiteral("silent"), QStringLiteral("file"), 1);
        _Q_TraceOld(QStringLiteral("silent"));
        QLoggingCategory::setFilterRules(QStringLiteral("arbase.trace.debug=true"));
        _Q_Trace(QStringLiteral("heard"), QStringLiteral("file"), 1);
    }
    QCOMPARE(caught.size(), std::size_t(1));
    QCOMPARE(caught.front().text, QStringLiteral("heard"));
}

void TestTrace::theTraceMaskIsTheCallersPart()
{
    QCOMPARE(ErrorHandler::Instance().GetTraceMask(), 0U);
    {
        const TraceCatcher catcher;
        _Q_Trace(QStringLiteral("with an empty mask"), QStringLiteral("file"), 1);
        _Q_TraceOld(QStringLiteral("with an empty mask"));
    }
    QCOMPARE(caught.size(), std::size_t(2));
}

QTEST_GUILESS_MAIN(TestTrace)

#include "tst_trace.moc"
