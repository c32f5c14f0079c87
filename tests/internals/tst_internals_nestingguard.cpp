#include <QtTest>

#include <QStringList>
#include <QXmlAttributes>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <xmlhelper/limits_p.h>
#include <xmlhelper/nestingguard_p.h>

QT_WARNING_DISABLE_DEPRECATED

class TestNestingGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handsOverEverythingWithinTheLimit();
    void handsOverNothingBeyondTheLimit();
    void passesTheAnswersOfTheHandlerOn_data();
    void passesTheAnswersOfTheHandlerOn();
    void limitsNesting_data();
    void limitsNesting();
    void startsAnewWithEachDocument();
    void isNotExceededByMalformedContent();
};

namespace {

/// Writes down what it is told, and can refuse one kind of it.
class LoggingHandler : public QXmlDefaultHandler
{
public:
    bool startDocument() override { return log(QStringLiteral("document")); }
    bool endDocument() override { return log(QStringLiteral("document ends")); }
    bool startElement(const QString& namespaceURI, const QString& localName, const QString& qName,
                      const QXmlAttributes& attributes) override
    {
        return log(QStringLiteral("start"), {namespaceURI, localName, qName, attributes.value(QStringLiteral("k"))});
    }
    bool endElement(const QString& namespaceURI, const QString& localName, const QString& qName) override
    {
        return log(QStringLiteral("end"), {namespaceURI, localName, qName});
    }
    bool characters(const QString& ch) override { return log(QStringLiteral("text"), {ch}); }

    QStringList m_log;
    QString m_sRefused; ///< the word of what is answered with false

private:
    bool log(const QString& word, const QStringList& details = {})
    {
        m_log.append((QStringList(word) + details).join(QLatin1Char('|')));
        return word != m_sRefused;
    }
};

bool parse(NestingGuard& guard, const QString& xml)
{
    QXmlInputSource source;
    source.setData(xml);
    QXmlSimpleReader reader;
    reader.setContentHandler(&guard);
    return reader.parse(source);
}

QString nested(int levels, const QString& core = QString())
{
    return QStringLiteral("<e>").repeated(levels) + core + QStringLiteral("</e>").repeated(levels);
}

} // namespace

void TestNestingGuard::handsOverEverythingWithinTheLimit()
{
    LoggingHandler handler;
    NestingGuard guard(&handler);
    QVERIFY(parse(guard, QStringLiteral("<p:r xmlns:p='urn:p' k='v'>x<a/></p:r>")));
    QVERIFY(!guard.IsExceeded());
    const QStringList expected {QStringLiteral("document"),     QStringLiteral("start|urn:p|r|p:r|v"),
                                QStringLiteral("text|x"),       QStringLiteral("start||a|a|"),
                                QStringLiteral("end||a|a"),     QStringLiteral("end|urn:p|r|p:r"),
                                QStringLiteral("document ends")};
    QCOMPARE(handler.m_log, expected);
}

void TestNestingGuard::handsOverNothingBeyondTheLimit()
{
    LoggingHandler handler;
    NestingGuard guard(&handler);
    QVERIFY(!parse(guard, nested(limits().elementNesting + 5)));
    QVERIFY(guard.IsExceeded());
    QCOMPARE(handler.m_log.count(QStringLiteral("start||e|e|")), limits().elementNesting);
    QCOMPARE(handler.m_log.size(), 1 + limits().elementNesting);
}

void TestNestingGuard::passesTheAnswersOfTheHandlerOn_data()
{
    QTest::addColumn<QString>("refused");
    QTest::newRow("start-of-document") << QStringLiteral("document");
    QTest::newRow("end-of-document") << QStringLiteral("document ends");
    QTest::newRow("start-of-element") << QStringLiteral("start");
    QTest::newRow("end-of-element") << QStringLiteral("end");
    QTest::newRow("text") << QStringLiteral("text");
}

void TestNestingGuard::passesTheAnswersOfTheHandlerOn()
{
    QFETCH(QString, refused);
    LoggingHandler handler;
    handler.m_sRefused = refused;
    NestingGuard guard(&handler);
    QVERIFY(!parse(guard, QStringLiteral("<r>x</r>")));
    QVERIFY(!guard.IsExceeded());
    QCOMPARE(handler.m_log.last().section(QLatin1Char('|'), 0, 0), refused);
}

void TestNestingGuard::limitsNesting_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<bool>("isWithin");

    // The number is part of what the library promises.
    QTest::newRow("511-levels-are-within") << nested(511) << true;
    QTest::newRow("512-levels-are-within") << nested(512) << true;
    QTest::newRow("513-levels-are-beyond") << nested(513) << false;
    QTest::newRow("100000-levels-are-beyond") << nested(100000) << false;
    QTest::newRow("siblings-are-no-levels")
        << nested(511, QStringLiteral("<s/><s>x</s><!--c-->").repeated(1000)) << true;
    QTest::newRow("levels-are-given-back-by-end-tags")
        << QStringLiteral("<r>%1%1%2</r>").arg(nested(511), nested(512)) << false;
    QTest::newRow("branches-of-the-full-depth-are-within") << QStringLiteral("<r>%1%1</r>").arg(nested(511)) << true;
}

void TestNestingGuard::limitsNesting()
{
    QFETCH(QString, xml);
    QFETCH(bool, isWithin);
    QXmlDefaultHandler nobody;
    NestingGuard guard(&nobody);
    QCOMPARE(parse(guard, xml), isWithin);
    QCOMPARE(guard.IsExceeded(), !isWithin);
}

void TestNestingGuard::startsAnewWithEachDocument()
{
    QXmlDefaultHandler nobody;
    NestingGuard guard(&nobody);
    QVERIFY(!guard.IsExceeded());
    QVERIFY(!parse(guard, nested(limits().elementNesting + 1)));
    QVERIFY(guard.IsExceeded());
    QVERIFY(parse(guard, nested(limits().elementNesting)));
    QVERIFY(!guard.IsExceeded());
    // A parse that broke off leaves its levels open.
    QVERIFY(!parse(guard, QStringLiteral("<a><b><c>")));
    QVERIFY(parse(guard, nested(limits().elementNesting)));
}

void TestNestingGuard::isNotExceededByMalformedContent()
{
    QXmlDefaultHandler nobody;
    NestingGuard guard(&nobody);
    QVERIFY(!parse(guard, QStringLiteral("<a></b>")));
    QVERIFY(!guard.IsExceeded());
}

QTEST_GUILESS_MAIN(TestNestingGuard)
#include "tst_internals_nestingguard.moc"
