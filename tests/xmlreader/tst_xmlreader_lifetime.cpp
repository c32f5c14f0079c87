#include <QtTest>

#include <atomic>
#include <cstdlib>
#include <memory>
#include <new>
#include <stdexcept>
#include <vector>

#include <QDomDocument>
#include <QFile>

#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/xmlreader.h>

#include "contentsource.h"
#include "domtext.h"
#include "eventrecorder.h"
#include "scriptedobserver.h"
#include "tracecollector.h"

namespace {

std::atomic<long> liveBlocks {0};

} // namespace

#ifndef __SANITIZE_ADDRESS__ // which has functions of its own, and keeps what is given back
// The blocks that the program and, where programs and libraries share these functions, Qt have not given back.
// Inlined, compilers would take them for a mismatch of what they call.
Q_NEVER_INLINE void* operator new(std::size_t size)
{
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (!block) {
        throw std::bad_alloc();
    }
    ++liveBlocks;
    return block;
}

Q_NEVER_INLINE void operator delete(void* block) noexcept
{
    liveBlocks -= block ? 1 : 0;
    std::free(block);
}

Q_NEVER_INLINE void operator delete(void* block, std::size_t) noexcept
{
    operator delete(block);
}
#endif

/// How long content and its nodes live, beyond their reader, its copies and its events.
class TestXmlReaderLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsNodesBeyondTheReader_data();
    void keepsNodesBeyondTheReader();
    void keepsNodesOfEveryReplacedContentBeyondTheReader();
    void keepsAFragmentThatOnlyTheReaderHolds();

    void isLikeNewWithoutItsContent_data();
    void isLikeNewWithoutItsContent();
    void givesEveryDocumentBack_data();
    void givesEveryDocumentBack();
    void takesADocumentAgainThatItKeeps();
    void releasesContentWhenTheParseHasReturned_data();
    void releasesContentWhenTheParseHasReturned();

    void takesContentFromWithinAnEvent_data();
    void takesContentFromWithinAnEvent();
    void takesTheLastContentOfManyFromWithinAParse();
    void takesNoDocumentFromWithinAnEventForNoContent();
    void readsAFileSetFromWithinAnEventWhenTheParseHasReturned();
    void takesContentFromWithinAParseThatFails();
    void takesContentFromWithinAParseThatThrows_data();
    void takesContentFromWithinAParseThatThrows();

    void oneOfAReaderAndItsCopyIsDestroyed_data();
    void oneOfAReaderAndItsCopyIsDestroyed();
    void aCopyMadeInsideAnEventIsAReaderOfItsOwn();
    void aReaderMayBeAssignedInsideItsEvent_data();
    void aReaderMayBeAssignedInsideItsEvent();
};

namespace {

enum class Change { None, Parse, Search, Set, Release };

const QString& content()
{
    static const QString text = QStringLiteral("<r k='v'><a x='1'>text<i/></a><b/><a><!--c--></a></r>");
    return text;
}

const QString& otherContent()
{
    static const QString text = QStringLiteral("<other><z/></other>");
    return text;
}

QStringList names(const char* blankSeparated)
{
    return QString::fromLatin1(blankSeparated).split(QLatin1Char(' '));
}

QStringList begunNames(const EventRecorder& recorder)
{
    QStringList begun;
    const QStringList lines = recorder.Lines();
    for (const QString& line : lines) {
        if (line.trimmed().startsWith(QLatin1String("begin "))) {
            begun.append(line.trimmed().section(QLatin1Char(' '), 1, 1));
        }
    }
    return begun;
}

QStringList nodeNames(const std::vector<QDomNode>& nodes)
{
    QStringList nodeNames;
    for (const QDomNode& node : nodes) {
        nodeNames.append(node.nodeName());
    }
    return nodeNames;
}

void addRowForEachForm()
{
    QTest::addColumn<ContentForm>("form");
    for (const ContentForm form : contentForms()) {
        QTest::newRow(qPrintable(nameOf(form))) << form;
    }
}

/// Gives @p reader content that nobody but the reader holds.
void setUnheldContent(XMLReader& reader, ContentForm form, const QString& fileName)
{
    switch (form) {
    case ContentForm::File:
        reader.SetXmlContent(fileName);
        break;
    case ContentForm::DocumentByValue:
        reader.SetXmlContent(documentOf(content()));
        break;
    case ContentForm::DocumentByPointer:
        reader.SetXmlContent(new QDomDocument(documentOf(content())));
        break;
    default:
        reader.SetXmlContent(QDomNode(documentOf(content())));
    }
}

/// Goes from @p node to everything that can be reached, and changes it.
QString walkedText(QDomNode node)
{
    QDomDocument document = node.ownerDocument();
    for (QDomNode sibling = node; !sibling.isNull(); sibling = sibling.nextSibling()) {
        sibling.toElement().setAttribute(QStringLiteral("next"), sibling.attributes().count());
    }
    for (QDomNode sibling = node; !sibling.isNull(); sibling = sibling.previousSibling()) {
        sibling.toElement().setAttribute(QStringLiteral("previous"), sibling.childNodes().count());
    }
    node.appendChild(document.createElement(QStringLiteral("new"))).appendChild(document.createTextNode(QString()));
    QDomNode top = node;
    while (!top.parentNode().isNull()) {
        top = top.parentNode();
    }
    return domText(top);
}

/// The nodes that a reader hands out for the content in @p form, in its events or, if there are none, by searches. The
/// reader is gone.
std::vector<QDomNode> handedOut(ContentForm form, const QString& fileName)
{
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    setUnheldContent(reader, form, fileName);
    reader.ParseXml();
    std::vector<QDomNode> nodes = recorder.Nodes();
    for (const char* const name : {"r", "a", "i", "#text", "#comment"}) {
        const auto* const found = reader.GetElement(QString::fromLatin1(name), QString());
        nodes.insert(nodes.end(), found->begin(), found->end());
    }
    return nodes;
}

/// An observer that leaves its first event by an exception. In later ones Qt would lose the string that it has in hand.
class ThrowingObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() == XmlEvent::EVENT_DOC_BEGIN && m_bThrowing) {
            m_setContent();
            throw std::runtime_error("observer");
        }
        m_recorder.XmlUpdate(event);
    }

    bool m_bThrowing = true;
    std::function<void()> m_setContent;
    EventRecorder m_recorder;
};

void apply(Change change, XMLReader& reader, ContentSource& source, ContentForm form)
{
    switch (change) {
    case Change::None:
        break;
    case Change::Parse:
        QVERIFY(reader.ParseXml());
        break;
    case Change::Search:
        QCOMPARE(reader.GetElement(QStringLiteral("i"), QString())->size(), std::size_t(1));
        reader.SearchBelowCurrentElement(QStringLiteral("a"));
        break;
    case Change::Set:
        QVERIFY(source.GiveTo(reader, form, otherContent()));
        break;
    case Change::Release:
        reader.ReleaseContent();
        break;
    }
}

QString nameOf(Change change)
{
    return QStringList {QStringLiteral("untouched"), QStringLiteral("parsed"), QStringLiteral("searched"),
                        QStringLiteral("given-content"), QStringLiteral("released")}
        .at(int(change));
}

} // namespace

Q_DECLARE_METATYPE(Change)

void TestXmlReaderLifetime::keepsNodesBeyondTheReader_data()
{
    QTest::addColumn<ContentForm>("form");
    QTest::newRow("file") << ContentForm::File;
    QTest::newRow("document-by-value") << ContentForm::DocumentByValue;
    QTest::newRow("document-by-pointer") << ContentForm::DocumentByPointer;
    QTest::newRow("node-that-is-a-document") << ContentForm::Node;
}

void TestXmlReaderLifetime::keepsNodesBeyondTheReader()
{
    QFETCH(ContentForm, form);
    ContentSource source;
    const std::vector<QDomNode> nodes = handedOut(form, source.WriteFile(content()));
    QVERIFY(nodes.size() >= 9);
    for (const QDomNode& node : nodes) {
        QCOMPARE(node.ownerDocument().documentElement().nodeName(), QStringLiteral("r"));
        const QString text = walkedText(node);
        QVERIFY(text.contains(QStringLiteral("next")) && text.contains(QStringLiteral("new")));
    }
}

void TestXmlReaderLifetime::keepsNodesOfEveryReplacedContentBeyondTheReader()
{
    ContentSource source;
    const QString fileName = source.WriteFile(content());
    EventRecorder recorder;
    std::vector<QDomNode> nodes;
    {
        XMLReader reader(&recorder, nullptr);
        for (const ContentForm form : contentForms()) {
            if (form != ContentForm::Fragment) {
                setUnheldContent(reader, form, fileName);
                const auto* const found = reader.GetElement(QStringLiteral("b"), QString());
                nodes.insert(nodes.end(), found->begin(), found->end());
            }
        }
    }
    QCOMPARE(nodes.size(), std::size_t(4));
    for (const QDomNode& node : nodes) {
        QCOMPARE(node.previousSibling().firstChild().nodeValue(), QStringLiteral("text"));
        QCOMPARE(node.ownerDocument().documentElement(), node.parentNode().toElement());
        QVERIFY(walkedText(node).contains(QStringLiteral("next")));
    }
}

void TestXmlReaderLifetime::keepsAFragmentThatOnlyTheReaderHolds()
{
    QDomDocument document = documentOf(content());
    EventRecorder recorder;
    std::vector<QDomNode> nodes;
    {
        XMLReader reader(&recorder, nullptr);
        QDomDocumentFragment fragment = document.createDocumentFragment();
        fragment.appendChild(document.documentElement());
        reader.SetXmlContent(fragment);
        fragment.clear();
        nodes.push_back(reader.GetElement(QStringLiteral("b"), QString())->front());
    }
    QCOMPARE(nodes.front().previousSibling().nodeName(), QStringLiteral("a"));
    QCOMPARE(nodes.front().nextSibling().firstChild().nodeValue(), QStringLiteral("c"));
    QCOMPARE(nodes.front().parentNode().nodeName(), QStringLiteral("r"));
    QVERIFY(nodes.front().parentNode().parentNode().isDocumentFragment());
    QVERIFY(walkedText(nodes.front()).contains(QStringLiteral("next")));
}

void TestXmlReaderLifetime::isLikeNewWithoutItsContent_data()
{
    addRowForEachForm();
}

void TestXmlReaderLifetime::isLikeNewWithoutItsContent()
{
    QFETCH(ContentForm, form);
    TraceCollector traces;
    ContentSource source;
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    reader.ReleaseContent();
    for (int round = 0; round < 2; ++round) {
        QVERIFY(source.GiveTo(reader, form, content()));
        QVERIFY(reader.ParseXml());
        reader.GetElement(QStringLiteral("a"), QString());
        recorder.Clear();
        reader.ReleaseContent();
        QVERIFY(!reader.ParseXml());
        QCOMPARE(recorder.Text(), QString());
        QVERIFY(reader.GetElement(QStringLiteral("r"), QString())->empty());
        QVERIFY(reader.GetElement(QString(), QString())->empty());
        QVERIFY(reader.SearchBelowCurrentElement(QStringLiteral("a"))->empty());
        QVERIFY(reader.SearchBelowCurrentElement(QString())->empty());
    }
    // Unlike other content, what comes now is what the events are bound to.
    QVERIFY(source.GiveTo(reader, form, otherContent()));
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(recorder), names("other z"));
    QCOMPARE(nodeNames(recorder.Nodes()), isWithNodes(form) ? names("other z") : QStringList({QString(), QString()}));
    QCOMPARE(traces.Messages(), QString());
}

void TestXmlReaderLifetime::givesEveryDocumentBack_data()
{
    QTest::addColumn<bool>("isReleased");
    QTest::newRow("released-content-is-given-back") << true;
    QTest::newRow("other-content-stays") << false;
}

void TestXmlReaderLifetime::givesEveryDocumentBack()
{
    QFETCH(bool, isReleased);
    ContentSource source;
    const QString fileName = source.WriteFile(content());
    EventRecorder recorder;
    const auto readAll = [&] {
        XMLReader reader(&recorder, nullptr);
        for (const ContentForm form : contentForms()) {
            setUnheldContent(reader, form, fileName);
            reader.ParseXml();
            reader.GetElement(QStringLiteral("a"), QString());
        }
        recorder.Clear();
        if (isReleased) {
            reader.ReleaseContent();
        }
    };
    readAll();
    const long before = liveBlocks;
    const QDomDocument counted = documentOf(content());
    if (liveBlocks - before < 5) {
        QSKIP("The library's blocks are not counted here.");
    }
    const long once = liveBlocks;
    readAll();
    readAll();
    QCOMPARE(liveBlocks == once, isReleased);
}

void TestXmlReaderLifetime::takesADocumentAgainThatItKeeps()
{
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    auto* const first = new QDomDocument(documentOf(content()));
    auto* const second = new QDomDocument(documentOf(otherContent()));
    for (QDomDocument* const document : {first, second, first, second, second}) {
        QVERIFY(reader.SetXmlContent(document));
        QVERIFY(reader.ParseXml());
    }
    reader.ReleaseContent();
    QVERIFY(!reader.ParseXml());
}

void TestXmlReaderLifetime::releasesContentWhenTheParseHasReturned_data()
{
    QTest::addColumn<ContentForm>("form");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QStringList>("parsedNext");
    for (const ContentForm form : contentForms()) {
        const auto row = [form](const char* steps, const QStringList& parsedNext) {
            QTest::newRow(qPrintable(QLatin1String(steps) + QLatin1Char('/') + nameOf(form)))
                << form << QString::fromLatin1(steps) << parsedNext;
        };
        row("release", {});
        row("set-release", {});
        row("release-set", names("other z"));
        row("set-release-set", names("other z"));
    }
}

void TestXmlReaderLifetime::releasesContentWhenTheParseHasReturned()
{
    QFETCH(ContentForm, form);
    QFETCH(QString, steps);
    QFETCH(QStringList, parsedNext);
    ContentSource source;
    ScriptedObserver observer;
    XMLReader reader(&observer, nullptr);
    bool isFound = false;
    observer.OnElement(QStringLiteral("i"), [&](ElemBeginEvent&) {
        const QStringList all = steps.split(QLatin1Char('-'));
        for (const QString& step : all) {
            apply(step == QLatin1String("set") ? Change::Set : Change::Release, reader, source, form);
        }
        isFound = reader.GetElement(QStringLiteral("i"), QString())->size() == 1;
    });
    QVERIFY(source.GiveTo(reader, form, content()));
    QVERIFY(reader.ParseXml());
    QVERIFY(isFound);
    QCOMPARE(observer.Log(), names("r a i b a"));
    QCOMPARE(reader.ParseXml(), !parsedNext.isEmpty());
    QCOMPARE(observer.Log(), names("r a i b a") + parsedNext);
    if (!parsedNext.isEmpty() && isWithNodes(form)) {
        QCOMPARE(observer.Recorder().Nodes().back().nodeName(), QStringLiteral("z"));
    }
}

void TestXmlReaderLifetime::takesContentFromWithinAnEvent_data()
{
    QTest::addColumn<ContentForm>("first");
    QTest::addColumn<ContentForm>("second");
    for (const ContentForm first : contentForms()) {
        for (const ContentForm second : contentForms()) {
            QTest::newRow(qPrintable(QStringLiteral("%1-then-%2").arg(nameOf(first), nameOf(second))))
                << first << second;
        }
    }
}

void TestXmlReaderLifetime::takesContentFromWithinAnEvent()
{
    QFETCH(ContentForm, first);
    QFETCH(ContentForm, second);
    TraceCollector traces;
    ContentSource source;
    ScriptedObserver observer;
    XMLReader reader(&observer, nullptr);
    bool isTaken = false;
    QStringList sizesMeanwhile;
    observer.OnEveryElement([&](ElemBeginEvent& event) {
        if (event.GetElementName() == QLatin1String("a")) {
            isTaken = source.GiveTo(reader, second, otherContent());
        }
        sizesMeanwhile.append(QString::number(reader.GetElement(QStringLiteral("i"), QString())->size()));
    });
    QVERIFY(source.GiveTo(reader, first, content()));
    QVERIFY(reader.ParseXml());
    QVERIFY(isTaken);
    // The parse and the searches go on with what they had.
    QCOMPARE(observer.Log(), names("r a i b a"));
    QCOMPARE(sizesMeanwhile, names("1 1 1 1 1"));
    QVERIFY(reader.GetElement(QStringLiteral("i"), QString())->empty());
    QCOMPARE(reader.GetElement(QStringLiteral("z"), QString())->size(), std::size_t(1));
    QVERIFY(reader.ParseXml());
    QCOMPARE(observer.Log(), names("r a i b a other z"));
    QCOMPARE(traces.Messages(), QString());
}

void TestXmlReaderLifetime::takesTheLastContentOfManyFromWithinAParse()
{
    ContentSource source;
    ScriptedObserver observer;
    XMLReader reader(&observer, nullptr);
    auto* const pointed = new QDomDocument(documentOf(QStringLiteral("<pointed><p/></pointed>")));
    const QDomNode node = pointed->documentElement().firstChild();
    observer.OnElement(QStringLiteral("a"), [&](ElemBeginEvent&) {
        QVERIFY(reader.SetXmlContent(pointed));
        QVERIFY(reader.SetXmlContent(pointed));
        for (const ContentForm form : contentForms()) {
            QVERIFY(source.GiveTo(reader, form, QStringLiteral("<replaced/>")));
        }
    });
    observer.OnElement(QStringLiteral("b"), [&](ElemBeginEvent&) {
        QVERIFY(source.GiveTo(reader, ContentForm::DocumentByPointer, otherContent()));
    });
    QVERIFY(source.GiveTo(reader, ContentForm::File, QStringLiteral("<r><a/><b/></r>")));
    QVERIFY(reader.ParseXml());
    QVERIFY(reader.ParseXml());
    QCOMPARE(observer.Log(), names("r a b other z"));
    // What was handed over stays, though it was never parsed.
    QCOMPARE(node.ownerDocument().documentElement().nodeName(), QStringLiteral("pointed"));
}

void TestXmlReaderLifetime::takesNoDocumentFromWithinAnEventForNoContent()
{
    ContentSource source;
    ScriptedObserver observer;
    XMLReader reader(&observer, nullptr);
    observer.OnElement(QStringLiteral("r"),
                       [&](ElemBeginEvent&) { QVERIFY(reader.SetXmlContent(static_cast<QDomDocument*>(nullptr))); });
    QVERIFY(source.GiveTo(reader, ContentForm::File, QStringLiteral("<r><a/></r>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(observer.Log(), names("r a"));
    QVERIFY(!reader.ParseXml());
}

void TestXmlReaderLifetime::readsAFileSetFromWithinAnEventWhenTheParseHasReturned()
{
    ContentSource source;
    ScriptedObserver observer;
    XMLReader reader(&observer, nullptr);
    const QString fileName = source.WriteFile(QStringLiteral("<early/>"));
    observer.OnElement(QStringLiteral("a"), [&](ElemBeginEvent&) { QVERIFY(reader.SetXmlContent(fileName)); });
    observer.OnElement(QStringLiteral("b"), [&](ElemBeginEvent&) {
        QFile file(fileName);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write("<late/>") > 0);
    });
    QVERIFY(source.GiveTo(reader, ContentForm::DocumentByValue, QStringLiteral("<r><a/><b/></r>")));
    QVERIFY(reader.ParseXml());
    QCOMPARE(reader.GetElement(QStringLiteral("late"), QString())->size(), std::size_t(1));
}

void TestXmlReaderLifetime::takesContentFromWithinAParseThatFails()
{
    ContentSource source;
    ScriptedObserver observer;
    XMLReader reader(&observer, nullptr);
    observer.OnElement(QStringLiteral("a"), [&](ElemBeginEvent&) {
        QVERIFY(source.GiveTo(reader, ContentForm::DocumentByValue, otherContent()));
    });
    QVERIFY(source.GiveTo(reader, ContentForm::File, QStringLiteral("<r><a></r>")));
    QVERIFY(!reader.ParseXml());
    QVERIFY(reader.ParseXml());
    QCOMPARE(observer.Log(), names("r a other z"));
}

void TestXmlReaderLifetime::takesContentFromWithinAParseThatThrows_data()
{
    addRowForEachForm();
}

void TestXmlReaderLifetime::takesContentFromWithinAParseThatThrows()
{
    QFETCH(ContentForm, form);
    ContentSource source;
    ThrowingObserver observer;
    XMLReader reader(&observer, nullptr);
    observer.m_setContent = [&] { QVERIFY(source.GiveTo(reader, form, otherContent())); };
    QVERIFY(source.GiveTo(reader, form, content()));
    QVERIFY_EXCEPTION_THROWN(reader.ParseXml(), std::runtime_error);
    observer.m_bThrowing = false;
    observer.m_recorder.Clear();
    QVERIFY(reader.ParseXml());
    QCOMPARE(begunNames(observer.m_recorder), names("other z"));
}

void TestXmlReaderLifetime::oneOfAReaderAndItsCopyIsDestroyed_data()
{
    QTest::addColumn<ContentForm>("form");
    QTest::addColumn<Change>("ofSource");
    QTest::addColumn<Change>("ofCopy");
    QTest::addColumn<bool>("isSourceDestroyed");
    const auto changes = {Change::None, Change::Parse, Change::Search, Change::Set, Change::Release};
    for (const ContentForm form : contentForms()) {
        for (const Change ofSource : changes) {
            for (const Change ofCopy : changes) {
                for (const bool isSourceDestroyed : {true, false}) {
                    const QString name = QStringLiteral("%1/source-is-%2/copy-is-%3/%4-is-destroyed")
                                             .arg(nameOf(form), nameOf(ofSource), nameOf(ofCopy),
                                                  QLatin1String(isSourceDestroyed ? "source" : "copy"));
                    QTest::newRow(qPrintable(name)) << form << ofSource << ofCopy << isSourceDestroyed;
                }
            }
        }
    }
}

void TestXmlReaderLifetime::oneOfAReaderAndItsCopyIsDestroyed()
{
    QFETCH(ContentForm, form);
    QFETCH(Change, ofSource);
    QFETCH(Change, ofCopy);
    QFETCH(bool, isSourceDestroyed);
    for (const bool isAssigned : {false, true}) {
        ContentSource source;
        EventRecorder recorder;
        auto made = std::make_unique<XMLReader>(&recorder, nullptr);
        QVERIFY(source.GiveTo(*made, form, content()));
        QVERIFY(made->ParseXml());
        made->GetElement(QStringLiteral("a"), QString());
        auto copy = isAssigned ? std::make_unique<XMLReader>(&recorder, nullptr) : std::make_unique<XMLReader>(*made);
        if (isAssigned) {
            QVERIFY(source.GiveTo(*copy, form, otherContent()));
            QVERIFY(copy->ParseXml());
            *copy = *made;
        }
        apply(ofSource, *made, source, form);
        apply(ofCopy, *copy, source, form);

        (isSourceDestroyed ? made : copy).reset();
        XMLReader& left = isSourceDestroyed ? *copy : *made;
        const Change ofLeft = isSourceDestroyed ? ofCopy : ofSource;
        recorder.Clear();
        QCOMPARE(left.ParseXml(), ofLeft != Change::Release);
        const QStringList expected = ofLeft == Change::Set ? names("other z") : names("r a i b a");
        QCOMPARE(begunNames(recorder), ofLeft == Change::Release ? QStringList() : expected);
        left.GetElement(QStringLiteral("a"), QString());
        left.SearchBelowCurrentElement(QStringLiteral("a"));
        left.ReleaseContent();
        recorder.Clear();
        QVERIFY(source.GiveTo(left, form, otherContent()));
        QVERIFY(left.ParseXml());
        QCOMPARE(begunNames(recorder), names("other z"));
    }
}

void TestXmlReaderLifetime::aCopyMadeInsideAnEventIsAReaderOfItsOwn()
{
    TraceCollector traces;
    ContentSource source;
    ScriptedObserver observer;
    XMLReader reader(&observer, nullptr);
    std::unique_ptr<XMLReader> copy;
    bool isParsed = true;
    observer.OnElement(QStringLiteral("i"), [&](ElemBeginEvent&) {
        QVERIFY(source.GiveTo(reader, ContentForm::File, QStringLiteral("<later/>")));
        copy = std::make_unique<XMLReader>(reader);
        QVERIFY(source.GiveTo(*copy, ContentForm::File, otherContent()));
        QCOMPARE(copy->GetElement(QStringLiteral("z"), QString())->size(), std::size_t(1));
        isParsed = copy->ParseXml(); // by the handler that is at work
        const XMLReader another(*copy);
    });
    QVERIFY(source.GiveTo(reader, ContentForm::File, content()));
    QVERIFY(reader.ParseXml());
    QVERIFY(!isParsed);
    QCOMPARE(traces.Messages(), QStringLiteral("XMLReader: Content cannot be parsed while it is being parsed!"));
    QCOMPARE(observer.Log(), names("r a i b a"));
    QVERIFY(copy->ParseXml());
    QVERIFY(reader.ParseXml());
    QCOMPARE(observer.Log(), names("r a i b a other z later"));
}

void TestXmlReaderLifetime::aReaderMayBeAssignedInsideItsEvent_data()
{
    addRowForEachForm();
}

void TestXmlReaderLifetime::aReaderMayBeAssignedInsideItsEvent()
{
    QFETCH(ContentForm, form);
    ContentSource source;
    ScriptedObserver observer;
    XMLReader reader(&observer, nullptr);
    observer.OnElement(QStringLiteral("a"), [&](ElemBeginEvent&) {
        XMLReader other(&observer, nullptr);
        QVERIFY(source.GiveTo(other, form, otherContent()));
        reader = other;
    });
    QVERIFY(source.GiveTo(reader, form, content()));
    QVERIFY(reader.ParseXml());
    QCOMPARE(observer.Log(), names("r a i b a"));
    QVERIFY(reader.ParseXml());
    QCOMPARE(observer.Log(), names("r a i b a other z"));
}

QTEST_GUILESS_MAIN(TestXmlReaderLifetime)
#include "tst_xmlreader_lifetime.moc"
