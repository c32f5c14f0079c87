#include <QtTest>

#include <list>
#include <memory>

#include <QDomDocument>

#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/xmlcontenthandler.h>
#include <xmlhelper/xmlreader.h>

#include "contentsource.h"
#include "domtext.h"
#include "eventrecorder.h"
#include "scriptedobserver.h"

class TestXmlReaderSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsNothingWithoutContent();
    void findsNothingInAMissingFile();

    void searchesDocuments_data();
    void searchesDocuments();
    void searchesDocumentsReadWithNamespaceProcessing_data();
    void searchesDocumentsReadWithNamespaceProcessing();
    void searchesFragments_data();
    void searchesFragments();
    void searchesNodes_data();
    void searchesNodes();
    void searchesNodesThatAreDocuments_data();
    void searchesNodesThatAreDocuments();
    void searchesWithoutAParse_data();
    void searchesWithoutAParse();
    void searchesTheContentSetLast_data();
    void searchesTheContentSetLast();
    void findsTheNodesOfTheDocumentItself();
    void findsChangesOfTheDocument();
    void searchesDocumentsThatAreTooDeepToParse();

    void hasNoCurrentElementBeforeAParse();
    void standsOnThePlaceholderWhenTheDocumentBegins();
    void searchesBelowTheElementThatBegins();
    void searchesEverythingFromWithinAnEvent();
    void namesTheTopNodeForACurrentElementOfThatName();
    void hasNoCurrentElementInContentWithoutNodes_data();
    void hasNoCurrentElementInContentWithoutNodes();
    void keepsTheCurrentElementAfterTheParse_data();
    void keepsTheCurrentElementAfterTheParse();
    void searchesBelowTheElementOfTheFirstDocument();
    void namesTheTopNodeOfTheContentSetLast();
    void namesNoTopNodeWithoutContent();
    void searchesBelowTheElementOfAGivenHandler();

    void replacesTheResultsOfTheSearchBefore();
    void keepsResultsUntilTheNextSearch();
    void leavesNodesToWhoeverKeepsThem_data();
    void leavesNodesToWhoeverKeepsThem();
};

namespace {

/// A node as a word: an element by its attribute "id", or by its name when it has none.
QString described(const QDomNode& node)
{
    if (node.isNull()) {
        return QStringLiteral("null");
    }
    if (node.isElement()) {
        return node.toElement().attribute(QStringLiteral("id"), node.nodeName());
    }
    return node.nodeName() + QLatin1Char('=') + node.nodeValue();
}

QStringList described(const std::list<QDomNode>* nodes)
{
    QStringList words;
    for (const QDomNode& node : *nodes) {
        words.append(described(node));
    }
    return words;
}

QStringList words(const char* blankSeparated)
{
    return QString::fromLatin1(blankSeparated).split(QLatin1Char(' '));
}

void addSearchColumns()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QStringList>("found");
}

QTestData& newSearch(const char* row, const char* xml, const char* name, const char* start, const QStringList& found)
{
    return QTest::newRow(row) << QString::fromLatin1(xml) << QString::fromLatin1(name) << QString::fromLatin1(start)
                              << found;
}

const char* const everything = "";

/// Runs a search in an event each time an element of a name begins, and keeps what it finds.
class SearchingObserver : public ScriptedObserver
{
public:
    void SearchBelowCurrentAt(XMLReader& reader, const QString& element, const QString& name)
    {
        OnElement(element, [this, &reader, name](ElemBeginEvent&) {
            m_found.append(described(reader.SearchBelowCurrentElement(name)));
        });
    }

    QList<QStringList> m_found;
};

/// Searches below the current element while the document begins.
class BeginObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() == XmlEvent::EVENT_DOC_BEGIN) {
            m_ofPlaceholder = described(m_pReader->SearchBelowCurrentElement(QStringLiteral("dummy")));
            m_ofElement = described(m_pReader->SearchBelowCurrentElement(QStringLiteral("a")));
        }
    }

    XMLReader* m_pReader = nullptr;
    QStringList m_ofPlaceholder;
    QStringList m_ofElement;
};

} // namespace

void TestXmlReaderSearch::findsNothingWithoutContent()
{
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    for (const QString& name : {QStringLiteral("a"), QStringLiteral(""), QString()}) {
        const std::list<QDomNode>* results = reader.GetElement(name, QString());
        QVERIFY(results);
        QVERIFY(results->empty());
        results = reader.GetElement(name, QStringLiteral("a"));
        QVERIFY(results);
        QVERIFY(results->empty());
        results = reader.SearchBelowCurrentElement(name);
        QVERIFY(results);
        QVERIFY(results->empty());
    }
}

void TestXmlReaderSearch::findsNothingInAMissingFile()
{
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(source.GetFileName(QStringLiteral("missing.xml"))));
    const std::list<QDomNode>* const results = reader.GetElement(QStringLiteral("a"), QString());
    QVERIFY(results);
    QVERIFY(results->empty());
}

void TestXmlReaderSearch::searchesDocuments_data()
{
    addSearchColumns();

    newSearch("matches-inside-a-match-are-not-reported", "<r><a id='1'><a id='2'/></a><b><a id='3'/></b></r>", "a",
              everything, words("1 3"));
    newSearch("matches-come-in-document-order", "<r><b><a id='1'/></b><a id='2'/><c><d><a id='3'/></d></c></r>", "a",
              everything, words("1 2 3"));
    newSearch("unknown-name-finds-nothing", "<r><a/></r>", "b", everything, {});
    newSearch("matching-root-names-the-last-child-of-the-document", "<r id='1'/>", "r", everything, words("1"));
    newSearch("matching-root-names-a-comment-behind-it-in-its-place", "<r id='1'/><!--c-->", "r", everything,
              words("#comment=c"));
    newSearch("matches-below-a-matching-root-follow-it", "<r id='1'><r id='2'><r id='3'/></r></r>", "r", everything,
              words("1 2"));
    newSearch("case-matters", "<r><a id='1'/><A id='2'/></r>", "A", everything, words("2"));
    newSearch("names-are-compared-whole", "<r><ab id='1'/><a id='2'/><ba id='3'/></r>", "a", everything, words("2"));
    newSearch("prefixed-name-needs-its-prefix", "<r xmlns:p='urn:p'><p:a id='1'/><a id='2'/></r>", "a", everything,
              words("2"));
    newSearch("prefix-belongs-to-the-name", "<r xmlns:p='urn:p'><p:a id='1'/><a id='2'/></r>", "p:a", everything,
              words("1"));
    newSearch("attributes-are-no-matches", "<r><a k='1'/></r>", "k", everything, {});

    newSearch("name-of-texts-finds-texts", "<r>x<b>y<c>z</c></b><d/>u</r>", "#text", everything,
              words("#text=x #text=y #text=z #text=u"));
    newSearch("name-of-comments-finds-comments", "<r><!--x--><b><!--y--></b></r>", "#comment", everything,
              words("#comment=x #comment=y"));
    newSearch("name-of-sections-finds-sections", "<r><![CDATA[x]]><b>y</b></r>", "#cdata-section", everything,
              words("#cdata-section=x"));
    newSearch("instructions-are-found-by-their-target", "<r><?a data?><b><a id='1'/></b></r>", "a", everything,
              words("a=data 1"));

    newSearch("start-element-bounds-the-search", "<r><a id='1'/><s><a id='2'/></s><a id='3'/></r>", "a", "s",
              words("2"));
    newSearch("first-start-element-wins", "<r><s><a id='1'/></s><s><a id='2'/></s></r>", "a", "s", words("1"));
    newSearch("first-start-element-wins-when-it-holds-no-match", "<r><s/><s><a id='2'/></s></r>", "a", "s", {});
    newSearch("start-element-is-sought-in-depth-first", "<r><x><s><a id='1'/></s></x><s><a id='2'/></s></r>", "a", "s",
              words("1"));
    newSearch("unknown-start-element-finds-nothing", "<r><a id='1'/></r>", "a", "s", {});
    newSearch("start-element-is-compared-by-case", "<r><s><a id='1'/></s></r>", "a", "S", {});
    newSearch("root-can-be-the-start-element", "<r><a id='1'/><b><a id='2'/></b></r>", "a", "r", words("1 2"));
    newSearch("root-as-start-element-is-lost-when-a-comment-follows-it", "<r><a id='1'/></r><!--c-->", "a", "r", {});
    newSearch("start-element-of-the-sought-name-names-the-top-node", "<r id='top'><s id='1'><s id='2'/></s></r>", "s",
              "s", words("top 2"));
    newSearch("text-cannot-be-the-start-element", "<r>x<a id='1'/></r>", "a", "#text", {});
    newSearch("instruction-hides-a-start-element-behind-it", "<r><?s data?><s><a id='1'/></s></r>", "a", "s", {});
    newSearch("instruction-behind-a-start-element-does-not-hide-it", "<r><s><a id='1'/></s><?s data?></r>", "a", "s",
              words("1"));
    newSearch("instruction-hides-start-elements-within-its-parent-only",
              "<r><x><?s data?><s><a id='1'/></s></x><s><a id='2'/></s></r>", "a", "s", words("2"));
    QTest::newRow("null-start-counts-as-empty")
        << QStringLiteral("<r><a id='1'/></r>") << QStringLiteral("a") << QString() << words("1");
}

void TestXmlReaderSearch::searchesDocuments()
{
    QFETCH(QString, xml);
    QFETCH(QString, name);
    QFETCH(QString, start);
    QFETCH(QStringList, found);
    for (const ContentForm form : contentForms()) {
        if (isWithNodes(form)) {
            ContentSource source;
            EventRecorder recorder;
            XMLReader reader(&recorder, nullptr);
            QVERIFY(source.GiveTo(reader, form, xml));
            QCOMPARE(described(reader.GetElement(name, start)), found);
        }
    }
}

void TestXmlReaderSearch::searchesDocumentsReadWithNamespaceProcessing_data()
{
    addSearchColumns();

    // Children are compared by their node name, elements that are searched by their tag name, which lacks the prefix.
    const char* const xml = "<r id='top' xmlns:p='urn:p'><p:a id='1'><p:a id='2'/><b id='3'/></p:a></r>";
    newSearch("prefixed-name-finds-the-element", xml, "p:a", everything, words("1"));
    newSearch("bare-name-names-the-top-node-for-each-element", xml, "a", everything, words("top top"));
    newSearch("prefixed-start-element-bounds-the-search", xml, "b", "p:a", words("3"));
    newSearch("bare-start-element-leads-to-the-top-node", xml, "p:a", "a", words("1"));
    newSearch("bare-start-element-is-lost-when-a-comment-follows-the-root",
              "<r xmlns:p='urn:p'><p:a><b id='1'/></p:a></r><!--c-->", "b", "a", {});
}

void TestXmlReaderSearch::searchesDocumentsReadWithNamespaceProcessing()
{
    QFETCH(QString, xml);
    QFETCH(QString, name);
    QFETCH(QString, start);
    QFETCH(QStringList, found);
    QDomDocument document;
    QVERIFY(document.setContent(xml, true));
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(document));
    QCOMPARE(described(reader.GetElement(name, start)), found);
}

void TestXmlReaderSearch::searchesFragments_data()
{
    addSearchColumns();

    newSearch("first-child-alone-is-searched", "<w><f><a id='1'/></f><g><a id='2'/></g></w>", "a", everything,
              words("1"));
    newSearch("matching-first-child-names-itself", "<w><f id='1'><f id='2'/></f><g/></w>", "f", everything,
              words("1 2"));
    newSearch("second-child-is-no-match", "<w><f/><g id='1'/></w>", "g", everything, {});
    newSearch("fragment-that-begins-with-a-text-holds-nothing", "<w>x<f><a id='1'/></f></w>", "a", everything, {});
    newSearch("empty-fragment-holds-nothing", "<w/>", "a", everything, {});
    newSearch("start-element-is-sought-in-the-first-child", "<w><f><s><a id='1'/></s></f><s><a id='2'/></s></w>", "a",
              "s", words("1"));
    newSearch("start-element-in-the-second-child-is-not-found", "<w><f/><s><a id='2'/></s></w>", "a", "s", {});
    newSearch("first-child-can-be-the-start-element", "<w><f><a id='1'/></f></w>", "a", "f", words("1"));
}

void TestXmlReaderSearch::searchesFragments()
{
    QFETCH(QString, xml);
    QFETCH(QString, name);
    QFETCH(QString, start);
    QFETCH(QStringList, found);
    QDomDocument document = documentOf(xml);
    QDomDocumentFragment fragment = document.createDocumentFragment();
    while (document.documentElement().hasChildNodes()) {
        fragment.appendChild(document.documentElement().firstChild());
    }
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(fragment));
    QCOMPARE(described(reader.GetElement(name, start)), found);
}

void TestXmlReaderSearch::searchesNodes_data()
{
    addSearchColumns();

    newSearch("first-child-alone-is-searched", "<n><f><a id='1'/></f><g><a id='2'/></g></n>", "a", everything,
              words("1"));
    newSearch("matching-first-child-names-the-node", "<n id='node'><f id='1'><f id='2'/></f></n>", "f", everything,
              words("node 2"));
    newSearch("node-is-not-found-by-its-own-name", "<n id='node'><f/></n>", "n", everything, {});
    newSearch("node-that-begins-with-a-text-holds-nothing", "<n>x<f><a id='1'/></f></n>", "a", everything, {});
    newSearch("empty-node-holds-nothing", "<n/>", "a", everything, {});
    newSearch("start-element-is-sought-in-the-first-child", "<n><f><s><a id='1'/></s></f><s><a id='2'/></s></n>", "a",
              "s", words("1"));
    newSearch("first-child-as-start-element-leads-to-the-whole-node", "<n><f><a id='1'/></f><g><a id='2'/></g></n>",
              "a", "f", words("1 2"));
}

void TestXmlReaderSearch::searchesNodes()
{
    QFETCH(QString, xml);
    QFETCH(QString, name);
    QFETCH(QString, start);
    QFETCH(QStringList, found);
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, ContentForm::Node, xml));
    QCOMPARE(described(reader.GetElement(name, start)), found);
}

void TestXmlReaderSearch::searchesNodesThatAreDocuments_data()
{
    addSearchColumns();

    newSearch("root-is-searched", "<r><a id='1'/></r>", "a", everything, words("1"));
    newSearch("matching-root-names-the-document", "<r id='1'><r id='2'/></r>", "r", everything,
              {QStringLiteral("#document="), QStringLiteral("2")});
    newSearch("root-cannot-be-the-start-element", "<r><a id='1'/></r>", "a", "r", {});
    newSearch("declaration-hides-the-root", "<?xml version='1.0'?><r><a id='1'/></r>", "a", everything, {});
}

void TestXmlReaderSearch::searchesNodesThatAreDocuments()
{
    QFETCH(QString, xml);
    QFETCH(QString, name);
    QFETCH(QString, start);
    QFETCH(QStringList, found);
    const QDomDocument document = documentOf(xml);
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(static_cast<const QDomNode&>(document)));
    QCOMPARE(described(reader.GetElement(name, start)), found);
}

void TestXmlReaderSearch::searchesWithoutAParse_data()
{
    QTest::addColumn<bool>("isParsed");
    QTest::newRow("before-a-parse") << false;
    QTest::newRow("after-a-parse") << true;
}

void TestXmlReaderSearch::searchesWithoutAParse()
{
    QFETCH(bool, isParsed);
    for (const ContentForm form : contentForms()) {
        ContentSource source;
        EventRecorder recorder;
        XMLReader reader(&recorder, nullptr);
        QVERIFY(source.GiveTo(reader, form, QStringLiteral("<r><s><a id='1'/></s></r>")));
        QVERIFY(!isParsed || reader.ParseXml());
        QCOMPARE(described(reader.GetElement(QStringLiteral("a"), QString())), words("1"));
    }
}

void TestXmlReaderSearch::searchesTheContentSetLast_data()
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

void TestXmlReaderSearch::searchesTheContentSetLast()
{
    QFETCH(ContentForm, first);
    QFETCH(ContentForm, second);
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, first, QStringLiteral("<r><s><a id='1'/></s></r>")));
    QCOMPARE(described(reader.GetElement(QStringLiteral("a"), QString())), words("1"));
    QVERIFY(source.GiveTo(reader, second, QStringLiteral("<r><s><a id='2'/></s></r>")));
    QCOMPARE(described(reader.GetElement(QStringLiteral("a"), QString())), words("2"));
    QCOMPARE(described(reader.GetElement(QStringLiteral("a"), QStringLiteral("s"))), words("2"));
}

void TestXmlReaderSearch::findsTheNodesOfTheDocumentItself()
{
    const QDomDocument document = documentOf(QStringLiteral("<r><a/></r>"));
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(document));
    const std::list<QDomNode>* const results = reader.GetElement(QStringLiteral("a"), QString());
    QCOMPARE(results->size(), std::size_t(1));
    QCOMPARE(results->front(), document.documentElement().firstChild());
}

void TestXmlReaderSearch::findsChangesOfTheDocument()
{
    QDomDocument document = documentOf(QStringLiteral("<r/>"));
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(document));
    document.documentElement().appendChild(document.createElement(QStringLiteral("a")));
    QCOMPARE(described(reader.GetElement(QStringLiteral("a"), QString())), words("a"));
}

void TestXmlReaderSearch::searchesDocumentsThatAreTooDeepToParse()
{
    const int levels = 600;
    const QDomDocument document = documentOf(QStringLiteral("<e>").repeated(levels) + QStringLiteral("<a id='1'/>")
                                             + QStringLiteral("</e>").repeated(levels));
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(reader.SetXmlContent(document));
    QVERIFY(!reader.ParseXml());
    QCOMPARE(described(reader.GetElement(QStringLiteral("a"), QString())), words("1"));
}

void TestXmlReaderSearch::hasNoCurrentElementBeforeAParse()
{
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, ContentForm::DocumentByValue, QStringLiteral("<r><a/></r>")));
    const std::list<QDomNode>* const results = reader.SearchBelowCurrentElement(QStringLiteral("a"));
    QVERIFY(results);
    QVERIFY(results->empty());
}

void TestXmlReaderSearch::standsOnThePlaceholderWhenTheDocumentBegins()
{
    ContentSource source;
    BeginObserver observer;
    XMLReader reader(&observer, nullptr);
    observer.m_pReader = &reader;
    QVERIFY(source.GiveTo(reader, ContentForm::DocumentByValue, QStringLiteral("<r id='top'><a/></r>")));
    // The second parse starts on the placeholder again.
    for (int round = 0; round < 2; ++round) {
        QVERIFY(reader.ParseXml());
        QCOMPARE(observer.m_ofPlaceholder, words("top"));
        QCOMPARE(observer.m_ofElement, QStringList());
    }
}

void TestXmlReaderSearch::searchesBelowTheElementThatBegins()
{
    const QString xml = QStringLiteral("<r><a><x id='1'/></a><b><c><x id='2'><x id='3'/></x></c></b></r>");
    for (const ContentForm form : contentForms()) {
        if (isWithNodes(form)) {
            ContentSource source;
            SearchingObserver observer;
            XMLReader reader(&observer, nullptr);
            observer.SearchBelowCurrentAt(reader, QStringLiteral("r"), QStringLiteral("x"));
            observer.SearchBelowCurrentAt(reader, QStringLiteral("a"), QStringLiteral("x"));
            observer.SearchBelowCurrentAt(reader, QStringLiteral("b"), QStringLiteral("x"));
            QVERIFY(source.GiveTo(reader, form, xml));
            QVERIFY(reader.ParseXml());
            const QList<QStringList> expected {words("1 2"), words("1"), words("2")};
            QCOMPARE(observer.m_found, expected);
        }
    }
}

void TestXmlReaderSearch::searchesEverythingFromWithinAnEvent()
{
    ContentSource source;
    ScriptedObserver observer;
    XMLReader reader(&observer, nullptr);
    QStringList found;
    observer.OnElement(QStringLiteral("b"),
                       [&](ElemBeginEvent&) { found = described(reader.GetElement(QStringLiteral("x"), QString())); });
    QVERIFY(
        source.GiveTo(reader, ContentForm::File, QStringLiteral("<r><a><x id='1'/></a><b><x id='2'/></b><c/></r>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(found, words("1 2"));
    QCOMPARE(observer.Log(), words("r a x b x c"));
}

void TestXmlReaderSearch::namesTheTopNodeForACurrentElementOfThatName()
{
    ContentSource source;
    SearchingObserver observer;
    XMLReader reader(&observer, nullptr);
    observer.SearchBelowCurrentAt(reader, QStringLiteral("a"), QStringLiteral("a"));
    QVERIFY(source.GiveTo(reader, ContentForm::DocumentByValue,
                          QStringLiteral("<r id='top'><a id='1'><b><c/></b></a></r>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(observer.m_found, QList<QStringList> {words("top")});
}

void TestXmlReaderSearch::hasNoCurrentElementInContentWithoutNodes_data()
{
    QTest::addColumn<ContentForm>("form");
    QTest::newRow("fragment") << ContentForm::Fragment;
    QTest::newRow("node") << ContentForm::Node;
}

void TestXmlReaderSearch::hasNoCurrentElementInContentWithoutNodes()
{
    QFETCH(ContentForm, form);
    ContentSource source;
    SearchingObserver observer;
    XMLReader reader(&observer, nullptr);
    observer.SearchBelowCurrentAt(reader, QStringLiteral("r"), QStringLiteral("a"));
    QVERIFY(source.GiveTo(reader, form, QStringLiteral("<r><a/></r>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(observer.m_found, QList<QStringList> {QStringList()});
}

void TestXmlReaderSearch::keepsTheCurrentElementAfterTheParse_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QStringList>("found");

    QTest::newRow("end-of-the-element-that-began-last-does-not-climb")
        << QStringLiteral("<r id='top'/>") << words("top");
    QTest::newRow("ends-of-other-elements-climb") << QStringLiteral("<a><b><r id='1'/></b></a>") << words("1");
}

void TestXmlReaderSearch::keepsTheCurrentElementAfterTheParse()
{
    QFETCH(QString, xml);
    QFETCH(QStringList, found);
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, ContentForm::DocumentByValue, xml));
    QVERIFY(reader.ParseXml());
    QCOMPARE(described(reader.SearchBelowCurrentElement(QStringLiteral("r"))), found);
}

void TestXmlReaderSearch::searchesBelowTheElementOfTheFirstDocument()
{
    ContentSource source;
    SearchingObserver observer;
    XMLReader reader(&observer, nullptr);
    observer.SearchBelowCurrentAt(reader, QStringLiteral("s"), QStringLiteral("x"));
    QVERIFY(source.GiveTo(reader, ContentForm::DocumentByPointer, QStringLiteral("<r><x id='of-first'/></r>")));
    QVERIFY(source.GiveTo(reader, ContentForm::DocumentByPointer, QStringLiteral("<s><x id='of-second'/></s>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(observer.m_found, QList<QStringList> {words("of-first")});
}

void TestXmlReaderSearch::namesTheTopNodeOfTheContentSetLast()
{
    ContentSource source;
    SearchingObserver observer;
    XMLReader reader(&observer, nullptr);
    observer.SearchBelowCurrentAt(reader, QStringLiteral("s"), QStringLiteral("r"));
    QVERIFY(source.GiveTo(reader, ContentForm::File, QStringLiteral("<r id='first-top'/>")));
    QVERIFY(source.GiveTo(reader, ContentForm::File, QStringLiteral("<s id='second-top'/>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(observer.m_found, QList<QStringList> {words("second-top")});
}

void TestXmlReaderSearch::namesNoTopNodeWithoutContent()
{
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, ContentForm::DocumentByValue, QStringLiteral("<r/>")));
    QVERIFY(reader.ParseXml());
    QVERIFY(reader.SetXmlContent(static_cast<QDomDocument*>(nullptr)));
    // The current element is still there, but there is no content whose top node could stand for it.
    QCOMPARE(described(reader.SearchBelowCurrentElement(QStringLiteral("r"))), words("null"));
}

void TestXmlReaderSearch::searchesBelowTheElementOfAGivenHandler()
{
    QDomDocument walked = documentOf(QStringLiteral("<w><x id='walked'/></w>"));
    ContentSource source;
    SearchingObserver observer;
    XmlContentHandler handler(&observer, &walked);
    XMLReader reader(&observer, &handler);
    observer.SearchBelowCurrentAt(reader, QStringLiteral("r"), QStringLiteral("x"));
    QVERIFY(reader.SearchBelowCurrentElement(QStringLiteral("x"))->empty());
    QVERIFY(source.GiveTo(reader, ContentForm::DocumentByValue, QStringLiteral("<r><x id='content'/></r>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(observer.m_found, QList<QStringList> {words("walked")});
}

void TestXmlReaderSearch::replacesTheResultsOfTheSearchBefore()
{
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, ContentForm::DocumentByValue, QStringLiteral("<r><a id='1'/><b id='2'/></r>")));
    QCOMPARE(described(reader.GetElement(QStringLiteral("a"), QString())), words("1"));
    QCOMPARE(described(reader.GetElement(QStringLiteral("b"), QString())), words("2"));
    QVERIFY(reader.GetElement(QStringLiteral("b"), QStringLiteral("unknown"))->empty());
    QVERIFY(reader.ParseXml());
    QCOMPARE(described(reader.GetElement(QStringLiteral("a"), QString())), words("1"));
    QCOMPARE(described(reader.SearchBelowCurrentElement(QStringLiteral("b"))), words("2"));
}

void TestXmlReaderSearch::keepsResultsUntilTheNextSearch()
{
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    QVERIFY(source.GiveTo(reader, ContentForm::File, QStringLiteral("<r><a id='1'/></r>")));
    const std::list<QDomNode>* const results = reader.GetElement(QStringLiteral("a"), QString());
    QVERIFY(reader.ParseXml());
    QVERIFY(source.GiveTo(reader, ContentForm::File, QStringLiteral("<s/>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(described(results), words("1"));
}

void TestXmlReaderSearch::leavesNodesToWhoeverKeepsThem_data()
{
    QTest::addColumn<ContentForm>("form");
    for (const ContentForm form : contentForms()) {
        QTest::newRow(qPrintable(nameOf(form))) << form;
    }
}

void TestXmlReaderSearch::leavesNodesToWhoeverKeepsThem()
{
    QFETCH(ContentForm, form);
    ContentSource source;
    EventRecorder recorder;
    auto reader = std::make_unique<XMLReader>(&recorder, nullptr);
    QVERIFY(source.GiveTo(*reader, form, QStringLiteral("<r><s><a id='1'><b/></a></s></r>")));
    const std::list<QDomNode> kept = *reader->GetElement(QStringLiteral("a"), QString());
    reader.reset();
    QCOMPARE(kept.size(), std::size_t(1));
    QCOMPARE(domText(kept.front()), QStringLiteral("<a id=\"1\">\n  <b/>\n</a>\n"));
}

QTEST_GUILESS_MAIN(TestXmlReaderSearch)
#include "tst_xmlreader_search.moc"
