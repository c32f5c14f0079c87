#include <QtTest>

#include <QDir>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <xmlhelper/xmlcontenthandler.h>

#include "domtext.h"
#include "eventrecorder.h"
#include "expectedfile.h"
#include "tracecollector.h"

QT_WARNING_DISABLE_DEPRECATED

class TestXmlContentHandler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pairsTagsWithElements_data();
    void pairsTagsWithElements();
    void announcesElementsWithTheirTextWithoutDocument_data();
    void announcesElementsWithTheirTextWithoutDocument();
    void standsOnAPlaceholderBeforeTheFirstTag();
    void hasNoCurrentElementWithoutDocument();
    void leavesTheDocumentAsItIs();
    void givesTheSameEventsAndNodesAgain_data();
    void givesTheSameEventsAndNodesAgain();
    void restartsAfterAnAbandonedParse();
    void announcesNullNodesForAnEmptyDocument();
    void neverStopsAParse();
    void sendsNothingForMalformedContent();
    void tracesAMissingObserver();
    void tracesNothingWithoutItsBitInTheMask();
};

namespace {

bool parse(XmlContentHandler& handler, const QString& xml)
{
    QXmlInputSource source;
    source.setData(xml);
    QXmlSimpleReader reader;
    reader.setContentHandler(&handler);
    reader.setErrorHandler(&handler);
    return reader.parse(source);
}

QString dataFile(const QString& name)
{
    return QFINDTESTDATA("data/") + name;
}

void addRowsForDataFiles()
{
    QTest::addColumn<QString>("name");
    const QStringList files = QDir(QFINDTESTDATA("data")).entryList({QStringLiteral("*.xml")});
    QVERIFY(!files.isEmpty());
    for (const QString& file : files) {
        const QString name = file.chopped(4);
        QTest::newRow(qPrintable(name)) << name;
    }
}

} // namespace

void TestXmlContentHandler::pairsTagsWithElements_data()
{
    addRowsForDataFiles();
}

void TestXmlContentHandler::pairsTagsWithElements()
{
    QFETCH(QString, name);
    const QString xml = expectedText(dataFile(name + QStringLiteral(".xml")));
    QDomDocument document = documentOf(xml);
    EventRecorder recorder;
    XmlContentHandler handler(&recorder, &document);

    QVERIFY(parse(handler, xml));
    COMPARE_WITH_FILE(recorder.Text(), dataFile(name + QStringLiteral(".events")));
}

void TestXmlContentHandler::announcesElementsWithTheirTextWithoutDocument_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QStringList>("lines");

    QTest::newRow("text-announces-its-element-with-a-null-node")
        << QStringLiteral("<a k='1'>x</a>")
        << QStringList {QStringLiteral("begin a [k=\"1\"] \"x\" -> null"), QStringLiteral("end a")};
    QTest::newRow("element-without-text-has-no-begin-event")
        << QStringLiteral("<a><b>x</b></a>")
        << QStringList {QStringLiteral("begin b [] \"x\" -> null"), QStringLiteral("end b"), QStringLiteral("end a")};
    QTest::newRow("only-the-first-run-of-text-is-announced")
        << QStringLiteral("<a>x<b>z</b>y</a>")
        << QStringList {QStringLiteral("begin a [] \"x\" -> null"), QStringLiteral("begin b [] \"z\" -> null"),
                        QStringLiteral("end b"), QStringLiteral("end a")};
    QTest::newRow("text-behind-an-empty-child-announces-the-child")
        << QStringLiteral("<a>x<b/>y</a>")
        << QStringList {QStringLiteral("begin a [] \"x\" -> null"), QStringLiteral("end b"),
                        QStringLiteral("begin b [] \"y\" -> null"), QStringLiteral("end a")};
    QTest::newRow("later-run-behind-a-comment-is-dropped")
        << QStringLiteral("<a>x<!-- c -->y</a>")
        << QStringList {QStringLiteral("begin a [] \"x\" -> null"), QStringLiteral("end a")};
    QTest::newRow("section-is-a-run-of-its-own-before-text")
        << QStringLiteral("<a><![CDATA[x]]>y</a>")
        << QStringList {QStringLiteral("begin a [] \"x\" -> null"), QStringLiteral("end a")};
    QTest::newRow("reference-belongs-to-the-run-and-a-section-behind-it-does-not")
        << QStringLiteral("<a>x&amp;y<![CDATA[z]]></a>")
        << QStringList {QStringLiteral("begin a [] \"x&y\" -> null"), QStringLiteral("end a")};
    QTest::newRow("white-space-announces-its-element")
        << QStringLiteral("<a> <b/></a>")
        << QStringList {QStringLiteral("begin a [] \" \" -> null"), QStringLiteral("end b"), QStringLiteral("end a")};
    QTest::newRow("empty-element-only-ends") << QStringLiteral("<a/>") << QStringList {QStringLiteral("end a")};
}

void TestXmlContentHandler::announcesElementsWithTheirTextWithoutDocument()
{
    QFETCH(QString, xml);
    QFETCH(QStringList, lines);
    EventRecorder recorder;
    XmlContentHandler handler(&recorder, nullptr);

    QVERIFY(parse(handler, xml));
    QStringList trimmed;
    const QStringList recorded = recorder.Lines();
    for (const QString& line : recorded) {
        trimmed.append(line.trimmed());
    }
    QCOMPARE(trimmed,
             QStringList(QStringLiteral("document begins")) + lines + QStringList(QStringLiteral("document ends")));
}

void TestXmlContentHandler::standsOnAPlaceholderBeforeTheFirstTag()
{
    QDomDocument document = documentOf(QStringLiteral("<r/>"));
    EventRecorder recorder;
    XmlContentHandler handler(&recorder, &document);
    QVERIFY(handler.GetCurrentElement().isNull());

    QVERIFY(handler.startDocument());
    QCOMPARE(handler.GetCurrentElement().tagName(), QStringLiteral("dummy"));
    QVERIFY(handler.GetCurrentElement().parentNode().isNull());
    QVERIFY(handler.startElement(QString(), QString(), QStringLiteral("r"), QXmlAttributes()));
    QCOMPARE(handler.GetCurrentElement(), document.documentElement());
}

void TestXmlContentHandler::hasNoCurrentElementWithoutDocument()
{
    EventRecorder recorder;
    XmlContentHandler handler(&recorder, nullptr);
    QVERIFY(parse(handler, QStringLiteral("<a>x</a>")));
    QVERIFY(handler.GetCurrentElement().isNull());
}

void TestXmlContentHandler::leavesTheDocumentAsItIs()
{
    const QString xml = QStringLiteral("<r><a>x<b/></a><c/></r>");
    QDomDocument document = documentOf(xml);
    const QString before = domText(document);
    EventRecorder recorder;
    XmlContentHandler handler(&recorder, &document);
    QVERIFY(parse(handler, xml));
    QCOMPARE(domText(document), before);
}

void TestXmlContentHandler::givesTheSameEventsAndNodesAgain_data()
{
    addRowsForDataFiles();
}

void TestXmlContentHandler::givesTheSameEventsAndNodesAgain()
{
    QFETCH(QString, name);
    const QString xml = expectedText(dataFile(name + QStringLiteral(".xml")));
    QDomDocument document = documentOf(xml);
    EventRecorder recorder;
    XmlContentHandler handler(&recorder, &document);

    QVERIFY(parse(handler, xml));
    const QString firstText = recorder.Text();
    const std::vector<QDomNode> firstNodes = recorder.Nodes();
    recorder.Clear();
    QVERIFY(parse(handler, xml));
    QCOMPARE(recorder.Text(), firstText);
    QVERIFY(recorder.Nodes() == firstNodes);
}

void TestXmlContentHandler::restartsAfterAnAbandonedParse()
{
    QDomDocument document = documentOf(QStringLiteral("<r><a/><b/></r>"));
    EventRecorder recorder;
    XmlContentHandler handler(&recorder, &document);
    // The end tag of a has climbed when the parse breaks off.
    QVERIFY(!parse(handler, QStringLiteral("<r><a><x/></a><")));
    recorder.Clear();
    QVERIFY(parse(handler, QStringLiteral("<r><a/><b/></r>")));
    QCOMPARE(recorder.Nodes().size(), std::size_t(3));
    QCOMPARE(recorder.Nodes()[1].nodeName(), QStringLiteral("a"));
    QCOMPARE(recorder.Nodes()[2].nodeName(), QStringLiteral("b"));
}

void TestXmlContentHandler::announcesNullNodesForAnEmptyDocument()
{
    QDomDocument document;
    EventRecorder recorder;
    XmlContentHandler handler(&recorder, &document);
    QVERIFY(parse(handler, QStringLiteral("<r><a/></r>")));
    QCOMPARE(recorder.Nodes().size(), std::size_t(2));
    QVERIFY(recorder.Nodes()[0].isNull());
    QVERIFY(recorder.Nodes()[1].isNull());
}

void TestXmlContentHandler::neverStopsAParse()
{
    QDomDocument document = documentOf(QStringLiteral("<r/>"));
    EventRecorder recorder;
    XmlContentHandler handler(&recorder, &document);
    const QString name = QStringLiteral("r");
    QVERIFY(handler.startDocument());
    QVERIFY(handler.startElement(QString(), QString(), name, QXmlAttributes()));
    QVERIFY(handler.characters(QStringLiteral("x")));
    QVERIFY(handler.endElement(QString(), QString(), name));
    // More ends than begins lead out of the document.
    QVERIFY(handler.endElement(QString(), QString(), QStringLiteral("other")));
    QVERIFY(handler.endElement(QString(), QString(), QStringLiteral("other")));
    QVERIFY(handler.startElement(QString(), QString(), name, QXmlAttributes()));
    QVERIFY(handler.endDocument());
}

void TestXmlContentHandler::sendsNothingForMalformedContent()
{
    QDomDocument document = documentOf(QStringLiteral("<r><a/></r>"));
    EventRecorder recorder;
    XmlContentHandler handler(&recorder, &document);
    QVERIFY(!parse(handler, QStringLiteral("<r><a></r>")));
    QVERIFY(recorder.Errors().empty());
    QCOMPARE(recorder.Lines().first(), QStringLiteral("document begins"));
    QVERIFY(!recorder.Lines().contains(QStringLiteral("document ends")));
}

void TestXmlContentHandler::tracesAMissingObserver()
{
    TraceCollector traces;
    const XmlContentHandler handler(nullptr, nullptr);
    QVERIFY(traces.IsOnly(QStringLiteral("XmlContentHandler: pCallback is NULL!"),
                          QStringLiteral("tools/xmlhelper/xmlcontenthandler"), 19));
}

void TestXmlContentHandler::tracesNothingWithoutItsBitInTheMask()
{
    TraceCollector traces(~32u);
    const XmlContentHandler handler(nullptr, nullptr);
    QVERIFY(traces.Traces().empty());
}

QTEST_GUILESS_MAIN(TestXmlContentHandler)
#include "tst_xmlcontenthandler.moc"
