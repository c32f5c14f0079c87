#include <QtTest>

#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QRegularExpression>

#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/xmlcontenthandler.h>
#include <xmlhelper/xmlreader.h>

#include "contentsource.h"
#include "domtext.h"
#include "eventrecorder.h"
#include "expectedfile.h"
#include "scriptedobserver.h"
#include "tracecollector.h"

class TestXmlReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAPolymorphicClassThatCanBeCopied();
    void tracesAMissingObserver();
    void tracesNothingWithoutItsBitInTheMask();
    void isUnusableWithoutObserver_data();
    void isUnusableWithoutObserver();

    void hasNothingToParseBeforeContentIsSet();
    void deliversTheEventsOfTheContent_data();
    void deliversTheEventsOfTheContent();
    void readsAFileInItsDeclaredEncoding();
    void readsAFileWithAByteOrderMark_data();
    void readsAFileWithAByteOrderMark();
    void announcesTheElementsOfTheDocument_data();
    void announcesTheElementsOfTheDocument();
    void announcesTheElementsOfANodeThatIsADocument();
    void parsesOnlyAFragmentWithOneTopElement();
    void parsesAnElementBelowTheRoot();
    void canBeDestroyedWithContentThatWasNotParsed_data();
    void canBeDestroyedWithContentThatWasNotParsed();

    void givesTheSameEventsAndNodesAgain_data();
    void givesTheSameEventsAndNodesAgain();
    void seesChangesSinceTheLastParse_data();
    void seesChangesSinceTheLastParse();
    void readsAFileAnewForEveryParse();
    void failsOnAFileThatHasGoneSince();

    void serialisesContentForTheParser_data();
    void serialisesContentForTheParser();

    void parsesTheContentSetLast_data();
    void parsesTheContentSetLast();
    void staysBoundToTheFirstDocument_data();
    void staysBoundToTheFirstDocument();
    void staysBoundThroughManyReplacements();
    void staysBoundToAFirstFileThatWasMissing();
    void keepsNodesOfReplacedContentUsable_data();
    void keepsNodesOfReplacedContentUsable();
    void takesADocumentPointerOnce();
    void takesNoDocumentForNoContent();

    void failsOnAMissingFile_data();
    void failsOnAMissingFile();
    void failsOnMalformedContent_data();
    void failsOnMalformedContent();
    void failsOnContentThatIsNoElement_data();
    void failsOnContentThatIsNoElement();
    void parsesGoodContentAfterAFailure_data();
    void parsesGoodContentAfterAFailure();

    void limitsTheNestingOfElements_data();
    void limitsTheNestingOfElements();
    void deliversNothingOfContentBeyondTheLimit_data();
    void deliversNothingOfContentBeyondTheLimit();
    void looksAtAFileAgainThatHasChanged_data();
    void looksAtAFileAgainThatHasChanged();
    void sendsWhatIsWithinTheLimitOfAFileThatItDoesNotLookAtAgain();
    void refusesAFileOfAnyDepth();
    void countsNestedElementsOnly_data();
    void countsNestedElementsOnly();

    void separatesFoldersByBackSlashesOnEveryPlatform();
    void prefersAFileThatExistsAsNamed();

    void refusesAParseFromWithinAnEvent();

    void usesAGivenHandlerAndLeavesItAlone();
    void bindsNoDocumentToAGivenHandler();

    void sharesContentWithItsCopy_data();
    void sharesContentWithItsCopy();
    void sharesContentByAssignment();
    void copiesAReaderWithoutContent();
};

namespace {

constexpr int NestingLimit = 512;

const QString& nestingTrace()
{
    static const QString text = QStringLiteral("XMLReader: The content is nested deeper than 512 elements!");
    return text;
}

const QString& busyTrace()
{
    static const QString text = QStringLiteral("XMLReader: Content cannot be parsed while it is being parsed!");
    return text;
}

const QString& readerSource()
{
    static const QString text = QStringLiteral("tools/xmlhelper/xmlreader");
    return text;
}

QString dataFile(const QString& name)
{
    return QFINDTESTDATA("data/") + name;
}

QString rowName(const QString& rule, ContentForm form)
{
    return rule + QLatin1Char('/') + nameOf(form);
}

void addRowForEachForm()
{
    QTest::addColumn<ContentForm>("form");
    for (const ContentForm form : contentForms()) {
        QTest::newRow(qPrintable(nameOf(form))) << form;
    }
}

void addRowForEachFormInMemory()
{
    QTest::addColumn<ContentForm>("form");
    for (const ContentForm form : contentForms()) {
        if (form != ContentForm::File) {
            QTest::newRow(qPrintable(nameOf(form))) << form;
        }
    }
}

void addRowForEachPairOfForms()
{
    QTest::addColumn<ContentForm>("first");
    QTest::addColumn<ContentForm>("second");
    for (const ContentForm first : contentForms()) {
        for (const ContentForm second : contentForms()) {
            const QString name = QStringLiteral("%1-then-%2").arg(nameOf(first), nameOf(second));
            QTest::newRow(qPrintable(name)) << first << second;
        }
    }
}

/// What the recorder writes for events without nodes.
QString withNullNodes(const QString& events)
{
    QString text = events;
    return text.replace(QRegularExpression(QStringLiteral(" -> .*")), QStringLiteral(" -> null"));
}

QStringList nodeNames(const EventRecorder& recorder)
{
    QStringList names;
    for (const QDomNode& node : recorder.Nodes()) {
        names.append(node.isNull() ? QStringLiteral("null") : node.nodeName());
    }
    return names;
}

/// The names in the begin events.
QStringList begunNames(const EventRecorder& recorder)
{
    QStringList names;
    const QStringList lines = recorder.Lines();
    for (const QString& line : lines) {
        if (line.trimmed().startsWith(QLatin1String("begin "))) {
            names.append(line.trimmed().section(QLatin1Char(' '), 1, 1));
        }
    }
    return names;
}

QStringList names(const char* blankSeparated)
{
    return QString::fromLatin1(blankSeparated).split(QLatin1Char(' '));
}

/// @p levels elements, each but the first inside the one before it, around @p core.
QString nested(int levels, const QString& core = QString())
{
    return QStringLiteral("<e>").repeated(levels) + core + QStringLiteral("</e>").repeated(levels);
}

/// Keeps a reader within reach to the end of the program: all but one of several shallow copies are never destroyed.
XMLReader* neverDestroyed(XMLReader* reader)
{
    static auto* const readers = new std::vector<XMLReader*>;
    readers->push_back(reader);
    return reader;
}

} // namespace

void TestXmlReader::isAPolymorphicClassThatCanBeCopied()
{
    QVERIFY(std::has_virtual_destructor_v<XMLReader>);
    QVERIFY(std::is_copy_constructible_v<XMLReader>);
    QVERIFY(std::is_copy_assignable_v<XMLReader>);
}

void TestXmlReader::tracesAMissingObserver()
{
    TraceCollector traces;
    const XMLReader reader(nullptr, nullptr);
    QVERIFY(traces.IsOnly(QStringLiteral("XMLReader: pCallback is NULL!"), readerSource(), 41));
}

void TestXmlReader::tracesNothingWithoutItsBitInTheMask()
{
    TraceCollector traces(~32u);
    const XMLReader reader(nullptr, nullptr);
    QVERIFY(traces.Traces().empty());
}

void TestXmlReader::isUnusableWithoutObserver_data()
{
    addRowForEachForm();
}

void TestXmlReader::isUnusableWithoutObserver()
{
    QFETCH(ContentForm, form);
    ContentSource source;
    XMLReader reader(nullptr, nullptr);
    QVERIFY(!reader.ParseXml());
    source.GiveTo(reader, form, QStringLiteral("<r/>"));
    QVERIFY(!reader.ParseXml());
}

void TestXmlReader::hasNothingToParseBeforeContentIsSet()
{
    TraceCollector traces;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(!reader.ParseXml());
    QCOMPARE(recorder.Text(), QString());
    QVERIFY(traces.Traces().empty());
}

void TestXmlReader::deliversTheEventsOfTheContent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<ContentForm>("form");
    const QStringList files = QDir(QFINDTESTDATA("data")).entryList({QStringLiteral("*.xml")});
    QVERIFY(!files.isEmpty());
    for (const QString& file : files) {
        const QString name = file.chopped(4);
        for (const ContentForm form : contentForms()) {
            QTest::newRow(qPrintable(rowName(name, form))) << name << form;
        }
    }
}

void TestXmlReader::deliversTheEventsOfTheContent()
{
    QFETCH(QString, name);
    QFETCH(ContentForm, form);
    const QString eventsFile = dataFile(name + QStringLiteral(".events"));
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);

    QVERIFY(source.GiveTo(reader, form, expectedText(dataFile(name + QStringLiteral(".xml")))));
    QVERIFY(reader.ParseXml());
    if (isWithNodes(form)) {
        COMPARE_WITH_FILE(recorder.Text(), eventsFile);
    } else {
        QCOMPARE(recorder.Text(), withNullNodes(expectedText(eventsFile)));
    }
}

void TestXmlReader::readsAFileInItsDeclaredEncoding()
{
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(
        source.WriteFile(QByteArray("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><r k=\"\xE4\"/>"))));
    QVERIFY(reader.ParseXml());
    QCOMPARE(recorder.Lines().at(1).trimmed(), QStringLiteral("begin r [k=\"%1\"] \"\" -> r").arg(QChar(0xE4)));
    QCOMPARE(recorder.Nodes().front().toElement().attribute(QStringLiteral("k")), QString(QChar(0xE4)));
}

void TestXmlReader::readsAFileWithAByteOrderMark_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("utf-8") << QByteArray("\xEF\xBB\xBF<r/>");
    QTest::newRow("utf-16-little-endian") << QByteArray("\xFF\xFE<\0r\0/\0>\0", 10);
    QTest::newRow("utf-16-big-endian") << QByteArray("\xFE\xFF\0<\0r\0/\0>", 10);
}

void TestXmlReader::readsAFileWithAByteOrderMark()
{
    QFETCH(QByteArray, bytes);
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(source.WriteFile(bytes)));
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("r"));
    QCOMPARE(nodeNames(recorder), names("r"));
}

void TestXmlReader::announcesTheElementsOfTheDocument_data()
{
    QTest::addColumn<ContentForm>("form");
    QTest::newRow("document-by-value-shares-its-nodes") << ContentForm::DocumentByValue;
    QTest::newRow("document-by-pointer-shares-its-nodes") << ContentForm::DocumentByPointer;
}

void TestXmlReader::announcesTheElementsOfTheDocument()
{
    QFETCH(ContentForm, form);
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, form, QStringLiteral("<r><a>x</a><b/></r>")));
    QVERIFY(reader.ParseXml());
    const QDomElement root = source.GetDocument().documentElement();
    const std::vector<QDomNode> expected {root, root.firstChildElement(QStringLiteral("a")),
                                          root.firstChildElement(QStringLiteral("b"))};
    QVERIFY(recorder.Nodes() == expected);
}

void TestXmlReader::announcesTheElementsOfANodeThatIsADocument()
{
    const QDomDocument document = documentOf(QStringLiteral("<r><a/></r>"));
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(static_cast<const QDomNode&>(document)));
    QVERIFY(reader.ParseXml());
    const std::vector<QDomNode> expected {document.documentElement(), document.documentElement().firstChild()};
    QVERIFY(recorder.Nodes() == expected);
}

void TestXmlReader::parsesOnlyAFragmentWithOneTopElement()
{
    QDomDocument document = documentOf(QStringLiteral("<r><a/><b/></r>"));
    QDomDocumentFragment fragment = document.createDocumentFragment();
    fragment.appendChild(document.documentElement().firstChild());
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(fragment));
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("a"));

    fragment.appendChild(document.documentElement().firstChild());
    recorder.Clear();
    QVERIFY(!reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("a"));
}

void TestXmlReader::parsesAnElementBelowTheRoot()
{
    const QDomDocument document = documentOf(QStringLiteral("<r><a><b/></a><c/></r>"));
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(document.documentElement().firstChild()));
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("a b"));
}

void TestXmlReader::canBeDestroyedWithContentThatWasNotParsed_data()
{
    addRowForEachForm();
}

void TestXmlReader::canBeDestroyedWithContentThatWasNotParsed()
{
    QFETCH(ContentForm, form);
    ContentSource source;
    EventRecorder recorder;
    auto reader = std::make_unique<XMLReader>(&recorder, nullptr);
    QVERIFY(source.GiveTo(*reader, form, QStringLiteral("<r/>")));
    reader.reset();
    QCOMPARE(recorder.Text(), QString());
}

void TestXmlReader::givesTheSameEventsAndNodesAgain_data()
{
    addRowForEachForm();
}

void TestXmlReader::givesTheSameEventsAndNodesAgain()
{
    QFETCH(ContentForm, form);
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    // The walk ends climbed, away from the root.
    QVERIFY(source.GiveTo(reader, form, QStringLiteral("<r><a><b><c/></b></a><d>x</d><e/></r>")));
    QVERIFY(reader.ParseXml());
    const QString firstText = recorder.Text();
    const std::vector<QDomNode> firstNodes = recorder.Nodes();
    QCOMPARE(firstNodes.size(), std::size_t(6));
    for (int again = 0; again < 3; ++again) {
        recorder.Clear();
        QVERIFY(reader.ParseXml());
        QCOMPARE(recorder.Text(), firstText);
        QVERIFY(recorder.Nodes() == firstNodes);
    }
}

void TestXmlReader::seesChangesSinceTheLastParse_data()
{
    addRowForEachFormInMemory();
}

void TestXmlReader::seesChangesSinceTheLastParse()
{
    QFETCH(ContentForm, form);
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, form, QStringLiteral("<r/>")));
    QVERIFY(reader.ParseXml());
    recorder.Clear();

    QDomDocument document = source.GetDocument();
    QDomNode root
        = form == ContentForm::Fragment ? source.GetFragment().firstChild() : QDomNode(document.documentElement());
    root.appendChild(document.createElement(QStringLiteral("added")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("r added"));
}

void TestXmlReader::readsAFileAnewForEveryParse()
{
    ContentSource source;
    const QString fileName = source.WriteFile(QStringLiteral("<r/>"));
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(fileName));

    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<other><a/></other>");
    file.close();
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("other a"));
    // The document was made when the content was set.
    QCOMPARE(nodeNames(recorder), names("r r"));
}

void TestXmlReader::failsOnAFileThatHasGoneSince()
{
    ContentSource source;
    const QString fileName = source.WriteFile(QStringLiteral("<r/>"));
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(fileName));
    QVERIFY(QFile::remove(fileName));
    QVERIFY(!reader.ParseXml());
    QCOMPARE(begunNames(recorder), QStringList());
}

void TestXmlReader::serialisesContentForTheParser_data()
{
    QTest::addColumn<ContentForm>("form");
    QTest::addColumn<QString>("whiteSpace");

    // A handler without document announces an element by the first character data behind its start tag.
    QTest::newRow("document-by-value-is-indented-by-one") << ContentForm::DocumentByValue << QStringLiteral("\n ");
    QTest::newRow("document-by-pointer-is-indented-by-one") << ContentForm::DocumentByPointer << QStringLiteral("\n ");
    QTest::newRow("fragment-is-broken-into-lines-without-indent") << ContentForm::Fragment << QStringLiteral("\n");
    QTest::newRow("node-is-broken-into-lines-without-indent") << ContentForm::Node << QStringLiteral("\n");
}

void TestXmlReader::serialisesContentForTheParser()
{
    QFETCH(ContentForm, form);
    QFETCH(QString, whiteSpace);
    ContentSource source;
    EventRecorder recorder;
    XmlContentHandler handler(&recorder, nullptr);
    XMLReader reader(&recorder, &handler);
    QVERIFY(source.GiveTo(reader, form, QStringLiteral("<r><a>x</a></r>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(recorder.Lines().at(1).trimmed(), QStringLiteral("begin r [] \"%1\" -> null").arg(whiteSpace));
    QCOMPARE(recorder.Lines().at(2).trimmed(), QStringLiteral("begin a [] \"x\" -> null"));
}

void TestXmlReader::parsesTheContentSetLast_data()
{
    addRowForEachPairOfForms();
}

void TestXmlReader::parsesTheContentSetLast()
{
    QFETCH(ContentForm, first);
    QFETCH(ContentForm, second);
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, first, QStringLiteral("<unparsed/>")));
    QVERIFY(source.GiveTo(reader, second, QStringLiteral("<r><a/></r>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("r a"));

    recorder.Clear();
    QVERIFY(source.GiveTo(reader, first, QStringLiteral("<s><b/><c/></s>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("s b c"));
}

void TestXmlReader::staysBoundToTheFirstDocument_data()
{
    addRowForEachPairOfForms();
}

void TestXmlReader::staysBoundToTheFirstDocument()
{
    QFETCH(ContentForm, first);
    QFETCH(ContentForm, second);
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, first, QStringLiteral("<r><a/><b/></r>")));
    QVERIFY(source.GiveTo(reader, second, QStringLiteral("<s><c/><d/></s>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("s c d"));
    QCOMPARE(nodeNames(recorder), isWithNodes(first) ? names("r a b") : names("null null null"));
}

void TestXmlReader::staysBoundThroughManyReplacements()
{
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, ContentForm::DocumentByPointer, QStringLiteral("<first/>")));
    for (int round = 0; round < 3; ++round) {
        for (const ContentForm form : contentForms()) {
            recorder.Clear();
            QVERIFY(source.GiveTo(reader, form, QStringLiteral("<later/>")));
            QVERIFY(reader.ParseXml());
            QCOMPARE(begunNames(recorder), names("later"));
            QCOMPARE(nodeNames(recorder), names("first"));
        }
    }
}

void TestXmlReader::staysBoundToAFirstFileThatWasMissing()
{
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(source.GetFileName(QStringLiteral("missing.xml"))));
    QVERIFY(source.GiveTo(reader, ContentForm::DocumentByValue, QStringLiteral("<r/>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("r"));
    QCOMPARE(nodeNames(recorder), names("null"));
}

void TestXmlReader::keepsNodesOfReplacedContentUsable_data()
{
    QTest::addColumn<ContentForm>("form");
    QTest::newRow("file") << ContentForm::File;
    QTest::newRow("document-by-value") << ContentForm::DocumentByValue;
    QTest::newRow("document-by-pointer") << ContentForm::DocumentByPointer;
}

void TestXmlReader::keepsNodesOfReplacedContentUsable()
{
    QFETCH(ContentForm, form);
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, form, QStringLiteral("<r><a/><b/></r>")));
    QVERIFY(reader.ParseXml());
    const QDomNode a = recorder.Nodes()[1];
    QVERIFY(source.GiveTo(reader, form, QStringLiteral("<s/>")));
    QCOMPARE(a.nextSibling().nodeName(), QStringLiteral("b"));
    QCOMPARE(a.ownerDocument().documentElement().nodeName(), QStringLiteral("r"));
}

void TestXmlReader::takesADocumentPointerOnce()
{
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    auto* const document = new QDomDocument(documentOf(QStringLiteral("<r/>")));
    QVERIFY(reader.SetXmlContent(document));
    QVERIFY(reader.SetXmlContent(document));
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("r"));
    QCOMPARE(nodeNames(recorder), names("r"));
}

void TestXmlReader::takesNoDocumentForNoContent()
{
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, ContentForm::File, QStringLiteral("<r/>")));
    QVERIFY(reader.SetXmlContent(static_cast<QDomDocument*>(nullptr)));
    QVERIFY(!reader.ParseXml());
    QCOMPARE(recorder.Text(), QString());

    // A first one binds nothing either: the events after it have the nodes of the document that comes.
    EventRecorder other;
    XMLReader unbound(&other, nullptr);
    QVERIFY(unbound.SetXmlContent(static_cast<QDomDocument*>(nullptr)));
    QVERIFY(!unbound.ParseXml());
    QCOMPARE(other.Text(), QString());
    const QDomDocument document = documentOf(QStringLiteral("<r/>"));
    QVERIFY(unbound.SetXmlContent(document));
    QVERIFY(unbound.ParseXml());
    QCOMPARE(begunNames(other), names("r"));
    QVERIFY(other.Nodes() == std::vector<QDomNode> {document.documentElement()});
}

void TestXmlReader::failsOnAMissingFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("name-of-no-file") << QStringLiteral("missing.xml");
    QTest::newRow("name-in-no-folder") << QStringLiteral("missing/content.xml");
    QTest::newRow("name-of-a-folder") << QStringLiteral(".");
    QTest::newRow("empty-name") << QString();
}

void TestXmlReader::failsOnAMissingFile()
{
    QFETCH(QString, name);
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(name.isEmpty() ? name : source.GetFileName(name)));
    for (int round = 0; round < 2; ++round) {
        recorder.Clear();
        QVERIFY(!reader.ParseXml());
        QCOMPARE(recorder.Lines(), QStringList(QStringLiteral("document begins")));
    }
}

void TestXmlReader::failsOnMalformedContent_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("events");

    // The nodes are those of what Qt has made of the content: they are left out.
    const QString nothing = QStringLiteral("document begins\n");
    const QString beginOfRoot = nothing + QStringLiteral("  begin r [] \"\" -> null\n");
    const QString root = beginOfRoot + QStringLiteral("  end r\n");
    const QString beginOfRootAndChild
        = beginOfRoot + QStringLiteral("    begin a [] \"\" -> null\n") + QStringLiteral("    end a\n");
    QTest::newRow("empty") << QString() << nothing;
    QTest::newRow("no-markup") << QStringLiteral("text") << nothing;
    QTest::newRow("declaration-only") << QStringLiteral("<?xml version='1.0'?>") << nothing;
    QTest::newRow("end-tag-of-another-name") << QStringLiteral("<r><a/></s>") << beginOfRootAndChild;
    QTest::newRow("element-without-end") << QStringLiteral("<r><a/>") << beginOfRootAndChild;
    QTest::newRow("cut-off-in-a-tag") << QStringLiteral("<r><a/><b") << beginOfRootAndChild;
    QTest::newRow("two-roots") << QStringLiteral("<r/><s/>") << root;
    QTest::newRow("text-behind-the-root") << QStringLiteral("<r/>text") << root;
    QTest::newRow("attribute-without-quotes") << QStringLiteral("<r><a k=1/></r>") << beginOfRoot;
}

void TestXmlReader::failsOnMalformedContent()
{
    QFETCH(QString, xml);
    QFETCH(QString, events);
    TraceCollector traces;
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, ContentForm::File, xml));
    QVERIFY(!reader.ParseXml());
    // What came before the failure stands, and nothing else tells of it.
    QCOMPARE(withNullNodes(recorder.Text()), events);
    QVERIFY(traces.Traces().empty());
}

void TestXmlReader::failsOnContentThatIsNoElement_data()
{
    addRowForEachForm();
}

void TestXmlReader::failsOnContentThatIsNoElement()
{
    QFETCH(ContentForm, form);
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    switch (form) {
    case ContentForm::File:
        QVERIFY(reader.SetXmlContent(QString()));
        break;
    case ContentForm::DocumentByValue:
        QVERIFY(reader.SetXmlContent(QDomDocument()));
        break;
    case ContentForm::DocumentByPointer:
        QVERIFY(reader.SetXmlContent(new QDomDocument));
        break;
    case ContentForm::Fragment:
        QVERIFY(reader.SetXmlContent(QDomDocumentFragment()));
        break;
    case ContentForm::Node:
        QVERIFY(reader.SetXmlContent(QDomNode()));
        break;
    }
    QVERIFY(!reader.ParseXml());
    QCOMPARE(begunNames(recorder), QStringList());
}

void TestXmlReader::parsesGoodContentAfterAFailure_data()
{
    addRowForEachForm();
}

void TestXmlReader::parsesGoodContentAfterAFailure()
{
    QFETCH(ContentForm, form);
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, ContentForm::File, QStringLiteral("<r><a><b/></a><")));
    QVERIFY(!reader.ParseXml());
    recorder.Clear();
    QVERIFY(source.GiveTo(reader, form, QStringLiteral("<s><c/></s>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("s c"));
    QCOMPARE(recorder.Lines().last(), QStringLiteral("document ends"));
}

void TestXmlReader::limitsTheNestingOfElements_data()
{
    QTest::addColumn<ContentForm>("form");
    QTest::addColumn<int>("levels");
    QTest::addColumn<bool>("isParsed");
    for (const ContentForm form : contentForms()) {
        QTest::newRow(qPrintable(rowName(QStringLiteral("nesting-below-the-limit-is-parsed"), form)))
            << form << NestingLimit - 1 << true;
        QTest::newRow(qPrintable(rowName(QStringLiteral("nesting-up-to-the-limit-is-parsed"), form)))
            << form << NestingLimit << true;
        QTest::newRow(qPrintable(rowName(QStringLiteral("nesting-beyond-the-limit-is-refused"), form)))
            << form << NestingLimit + 1 << false;
    }
}

void TestXmlReader::limitsTheNestingOfElements()
{
    QFETCH(ContentForm, form);
    QFETCH(int, levels);
    QFETCH(bool, isParsed);
    TraceCollector traces;
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, form, nested(levels)));
    QVERIFY(traces.Traces().empty());
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(reader.ParseXml(), isParsed);
    }
    if (isParsed) {
        QCOMPARE(recorder.Nodes().size(), std::size_t(2 * levels));
        QVERIFY(traces.Traces().empty());
        reader.ReleaseContent();
        return;
    }
    QVERIFY(recorder.Errors().empty());
    QVERIFY(!recorder.Lines().contains(QStringLiteral("document ends")));
    QCOMPARE(traces.Messages(), nestingTrace() + QLatin1Char('\n') + nestingTrace());
    QCOMPARE(traces.Traces().front().source, readerSource());
    reader.ReleaseContent();
}

void TestXmlReader::deliversNothingOfContentBeyondTheLimit_data()
{
    QTest::addColumn<ContentForm>("form");
    QTest::addColumn<QString>("xml");
    for (const ContentForm form : contentForms()) {
        const auto row = [form](const char* name, const QString& xml) {
            QTest::newRow(qPrintable(rowName(QString::fromLatin1(name), form))) << form << xml;
        };
        row("plain", nested(NestingLimit + 1));
        row("with-a-comment", nested(NestingLimit + 1, QStringLiteral("<!--c-->")));
        row("behind-a-child", QStringLiteral("<e><!--c--><s/>%1</e>").arg(nested(NestingLimit)));
    }
    QTest::newRow("without-ends/file") << ContentForm::File << QStringLiteral("<e>").repeated(NestingLimit + 1);
    QTest::newRow("by-entities/file")
        << ContentForm::File << QStringLiteral("<!DOCTYPE e [<!ENTITY n '%1'>]><e>&n;</e>").arg(nested(NestingLimit));
}

void TestXmlReader::deliversNothingOfContentBeyondTheLimit()
{
    QFETCH(ContentForm, form);
    QFETCH(QString, xml);
    TraceCollector traces;
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, form, xml));
    QVERIFY(!reader.ParseXml());
    QCOMPARE(recorder.Text(), QString());
    QCOMPARE(traces.Messages(), nestingTrace());
    if (form == ContentForm::File) { // it was not read into a document
        QVERIFY(reader.GetElement(QStringLiteral("e"), QString())->empty());
    }
    reader.ReleaseContent();
}

void TestXmlReader::looksAtAFileAgainThatHasChanged_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("isParsed");
    const QString deep = nested(NestingLimit + 1);
    const QString commentedDeep = nested(NestingLimit + 1, QStringLiteral("<!--c-->"));
    const QString sound = QStringLiteral("<e/>");
    const QString commentedSound = QStringLiteral("<e><!--c--></e>");
    QTest::newRow("plain-file-that-has-become-too-deep") << sound << deep << false;
    QTest::newRow("plain-file-that-has-become-too-deep-around-a-comment") << sound << commentedDeep << false;
    QTest::newRow("missing-file-that-is-there-now") << QString() << deep << false;
    QTest::newRow("file-that-is-no-longer-too-deep") << deep << sound << true;
    QTest::newRow("file-with-a-comment-that-is-no-longer-too-deep") << commentedDeep << commentedSound << true;
}

void TestXmlReader::looksAtAFileAgainThatHasChanged()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(bool, isParsed);
    ContentSource source;
    const QString fileName = source.WriteFile(before);
    if (before.isEmpty()) {
        QVERIFY(QFile::remove(fileName));
    }
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(fileName));
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(after.toUtf8()) > 0);
    file.close();
    QCOMPARE(reader.ParseXml(), isParsed);
    QCOMPARE(begunNames(recorder), isParsed ? names("e") : QStringList());
    QCOMPARE(recorder.Text().isEmpty(), !isParsed);
}

/// Looking at it again would take as long as the parse, for every file with a comment in it.
void TestXmlReader::sendsWhatIsWithinTheLimitOfAFileThatItDoesNotLookAtAgain()
{
    TraceCollector traces;
    ContentSource source;
    const QString fileName = source.WriteFile(QStringLiteral("<e><!--c--></e>"));
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(fileName));
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(nested(NestingLimit + 1, QStringLiteral("<!--c-->")).toUtf8()) > 0);
    file.close();
    QVERIFY(!reader.ParseXml());
    QCOMPARE(int(begunNames(recorder).size()), NestingLimit);
    QCOMPARE(traces.Messages(), nestingTrace());
}

void TestXmlReader::refusesAFileOfAnyDepth()
{
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, ContentForm::File, nested(200000)));
    QVERIFY(!reader.ParseXml());
    QVERIFY(source.GiveTo(reader, ContentForm::File, QStringLiteral("<e>").repeated(200000)));
    QVERIFY(!reader.ParseXml());
}

void TestXmlReader::countsNestedElementsOnly_data()
{
    QTest::addColumn<ContentForm>("form");
    QTest::addColumn<QString>("core");
    for (const ContentForm form : contentForms()) {
        QTest::newRow(qPrintable(rowName(QStringLiteral("siblings-do-not-nest"), form)))
            << form << QStringLiteral("<s/>").repeated(2000);
        QTest::newRow(qPrintable(rowName(QStringLiteral("texts-and-comments-are-no-level"), form)))
            << form << QStringLiteral("<s>text<!-- comment --><![CDATA[section]]></s>");
    }
}

void TestXmlReader::countsNestedElementsOnly()
{
    QFETCH(ContentForm, form);
    QFETCH(QString, core);
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, form, nested(NestingLimit - 1, core)));
    QVERIFY(reader.ParseXml());
    reader.ReleaseContent();
}

void TestXmlReader::separatesFoldersByBackSlashesOnEveryPlatform()
{
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("inner")));
    QFile file(folder.filePath(QStringLiteral("inner/content.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<r/>");
    file.close();

    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(file.fileName().replace(QLatin1Char('/'), QLatin1Char('\\'))));
    QVERIFY(reader.ParseXml());
    QCOMPARE(nodeNames(recorder), names("r"));
}

void TestXmlReader::prefersAFileThatExistsAsNamed()
{
#ifdef Q_OS_WIN
    QSKIP("A back slash cannot be part of a name here.");
#else
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("inner")));
    QFile inFolder(folder.filePath(QStringLiteral("inner/content.xml")));
    QVERIFY(inFolder.open(QIODevice::WriteOnly));
    inFolder.write("<in-folder/>");
    inFolder.close();
    QFile asNamed(folder.filePath(QStringLiteral("inner\\content.xml")));
    QVERIFY(asNamed.open(QIODevice::WriteOnly));
    asNamed.write("<as-named/>");
    asNamed.close();

    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(asNamed.fileName()));
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("as-named"));
#endif
}

void TestXmlReader::refusesAParseFromWithinAnEvent()
{
    TraceCollector traces;
    ContentSource source;
    ScriptedObserver observer;
    XMLReader reader(&observer, nullptr);
    bool isParsed = true;
    observer.OnElement(QStringLiteral("a"), [&](ElemBeginEvent&) { isParsed = reader.ParseXml(); });
    QVERIFY(source.GiveTo(reader, ContentForm::DocumentByValue, QStringLiteral("<r><a/><b/></r>")));
    QVERIFY(reader.ParseXml());
    QVERIFY(!isParsed);
    QCOMPARE(traces.Messages(), busyTrace());
    QCOMPARE(observer.Log(), names("r a b"));
}

void TestXmlReader::usesAGivenHandlerAndLeavesItAlone()
{
    QDomDocument walked = documentOf(QStringLiteral("<w><x/></w>"));
    EventRecorder ofHandler;
    EventRecorder ofReader;
    XmlContentHandler handler(&ofHandler, &walked);
    {
        ContentSource source;
        XMLReader reader(&ofReader, &handler);
        QVERIFY(source.GiveTo(reader, ContentForm::DocumentByValue, QStringLiteral("<r><a/></r>")));
        QVERIFY(reader.ParseXml());
    }
    QCOMPARE(ofReader.Text(), QString());
    QCOMPARE(begunNames(ofHandler), names("r a"));
    QCOMPARE(nodeNames(ofHandler), names("w x"));
    // The handler is still there.
    QVERIFY(handler.startDocument());
    QCOMPARE(ofHandler.Lines().last(), QStringLiteral("document begins"));
}

void TestXmlReader::bindsNoDocumentToAGivenHandler()
{
    ContentSource source;
    EventRecorder recorder;
    XmlContentHandler handler(&recorder, nullptr);
    XMLReader reader(&recorder, &handler);
    QVERIFY(source.GiveTo(reader, ContentForm::File, QStringLiteral("<r><a>x</a></r>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("a"));
    QCOMPARE(nodeNames(recorder), names("null"));
}

void TestXmlReader::sharesContentWithItsCopy_data()
{
    QTest::addColumn<ContentForm>("form");
    QTest::addColumn<bool>("isSourceDestroyed");
    for (const ContentForm form : contentForms()) {
        QTest::newRow(qPrintable(rowName(QStringLiteral("source-is-destroyed"), form))) << form << true;
        QTest::newRow(qPrintable(rowName(QStringLiteral("copy-is-destroyed"), form))) << form << false;
    }
}

void TestXmlReader::sharesContentWithItsCopy()
{
    QFETCH(ContentForm, form);
    QFETCH(bool, isSourceDestroyed);
    ContentSource source;
    EventRecorder recorder;
    auto* const made = new XMLReader(&recorder, nullptr);
    QVERIFY(source.GiveTo(*made, form, QStringLiteral("<r><a/></r>")));
    auto* const copy = new XMLReader(*made);

    QVERIFY(copy->ParseXml());
    const QString text = recorder.Text();
    const std::vector<QDomNode> nodes = recorder.Nodes();
    QCOMPARE(begunNames(recorder), names("r a"));
    recorder.Clear();
    QVERIFY(made->ParseXml());
    QCOMPARE(recorder.Text(), text);
    QVERIFY(recorder.Nodes() == nodes);

    delete (isSourceDestroyed ? made : copy);
    neverDestroyed(isSourceDestroyed ? copy : made);
}

void TestXmlReader::sharesContentByAssignment()
{
    ContentSource source;
    EventRecorder recorder;
    XMLReader made(&recorder, nullptr);
    QVERIFY(source.GiveTo(made, ContentForm::File, QStringLiteral("<r><a/></r>")));
    XMLReader* const assigned = neverDestroyed(new XMLReader(nullptr, nullptr));
    QCOMPARE(&(*assigned = made), assigned);
    QVERIFY(assigned->ParseXml());
    QCOMPARE(begunNames(recorder), names("r a"));
    QCOMPARE(nodeNames(recorder), names("r a"));
}

void TestXmlReader::copiesAReaderWithoutContent()
{
    ContentSource source;
    EventRecorder recorder;
    const XMLReader* const empty = neverDestroyed(new XMLReader(&recorder, nullptr));
    XMLReader copy(*empty);
    QVERIFY(!copy.ParseXml());
    QVERIFY(source.GiveTo(copy, ContentForm::File, QStringLiteral("<r/>")));
    QVERIFY(copy.ParseXml());
    QCOMPARE(begunNames(recorder), names("r"));
}

QTEST_GUILESS_MAIN(TestXmlReader)
#include "tst_xmlreader.moc"
