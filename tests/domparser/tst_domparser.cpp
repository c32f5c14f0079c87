#include <QtTest>

#include <algorithm>
#include <functional>
#include <memory>
#include <set>
#include <utility>
#include <vector>

#include <QElapsedTimer>
#include <QRandomGenerator>

#include <xmlhelper/domparser.h>
#include <xmlhelper/xmlhelper.h>

#include "domtext.h"
#include "scriptedobserver.h"
#include "tracecollector.h"

QT_WARNING_DISABLE_DEPRECATED

Q_DECLARE_METATYPE(QDomDocument)

class TestDomParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesAMissingDocument();
    void walksNothingWithoutARoot_data();
    void walksNothingWithoutARoot();
    void announcesARootWithoutChildren();
    void announcesTheAttributes();
    void announcesNodesOfOtherKindsAtTheTopLevel();
    void keepsWhatIsFilledAndPrunesWhatMayBeMissing_data();
    void keepsWhatIsFilledAndPrunesWhatMayBeMissing();
    void carriesTextsOver_data();
    void carriesTextsOver();
    void laysOutDefaultTexts_data();
    void laysOutDefaultTexts();
    void continuesWhereTheNoticeSays_data();
    void continuesWhereTheNoticeSays();
    void keepsRemovedNodesAliveUntilTheWalkHasEnded();
    void noticesARenamedOwner_data();
    void noticesARenamedOwner();
    void noticesThatTheFirstOwnerIsRenamed();
    void takesNoticesGivenInsideErrors_data();
    void takesNoticesGivenInsideErrors();
    void refusesANoticeWithoutElement();
    void reportsARemovalThatFails();
    void reportsNothingOfAContainerThatIsGone();
    void announcesTheChildrenOfARootThatWasRemoved();
    void followsNoSiblingsOfAnElementWhoseParentIsGone();
    void hasNoCurrentElementBeforeTheFirstAnnouncement();
    void givesOneCurrentElementForTheWholeWalk();
    void givesANullElementForOtherNodes();
    void standsBehindARemovedContainerDuringTheCheck();
    void searches_data();
    void searches();
    void givesEverySearchAListOfItsOwn();
    void findsNothingWithoutADocument();
    void searchAndMembershipAgree();
    void searchAndMembershipAgreeWhileTheDocumentChanges();
    void searchAndDeclarationsAgreeWhileTheDocumentChanges();
    void prunesManyContainersInARow();
    void keepsCopiesOfTheMaps();
    void tracesAMissingObserver();
    void tracesNothingWithoutItsBitInTheMask();
};

namespace {

/// An occurrence map written as "name code owner, name code owner".
OccursMap occursOf(const QString& text)
{
    OccursMap occurs;
    const QStringList entries = text.split(QStringLiteral(", "));
    for (const QString& entry : entries) {
        const QStringList parts = entry.split(QLatin1Char(' '));
        if (parts.size() == 3) {
            occurs[parts[0]][parts[1].toInt()].push_back(parts[2]);
        }
    }
    return occurs;
}

/// A choice map with the names written as "name, name".
ChoiceMap choicesOf(const QString& text)
{
    ChoiceMap choices;
    const QStringList names = text.split(QStringLiteral(", "));
    for (int i = 0; i < names.size(); ++i) {
        choices[i] = names[i];
    }
    return choices;
}

/// A parser with its document, and an observer that answers.
struct Walker
{
    explicit Walker(const QString& xml, const QString& occurs = QString(), const QString& choices = QString())
        : document(documentOf(xml))
        , parser(&observer, occursOf(occurs), choices.isEmpty() ? ChoiceMap() : choicesOf(choices))
    {
        parser.SetDocument(&document);
    }

    /// The first element called @p name; a null one when there is none.
    QDomElement Find(const QString& name) const { return document.elementsByTagName(name).item(0).toElement(); }

    /// Deals with the current element without changing it.
    void Fill() { parser.ContinueAt(parser.GetCurrentElement(), false); }

    /// Deals with every element that has one of the names, written as "name, name".
    void FillAll(const QString& names)
    {
        const QStringList list = names.split(QStringLiteral(", "));
        for (const QString& name : list) {
            observer.OnElement(name, [this](ElemBeginEvent&) { Fill(); });
        }
    }

    /// What was announced, as "name, error 16, name".
    QString Log() const { return observer.Log().join(QStringLiteral(", ")); }

    /// The events, a line each, without indentation: the walk tells of no ends.
    QStringList Lines() const
    {
        QStringList lines = observer.Recorder().Lines();
        for (QString& line : lines) {
            line = line.trimmed();
        }
        return lines;
    }

    QDomDocument document;
    ScriptedObserver observer;
    DomParser parser;
};

/// An observer that hands every event to a function.
class FunctionObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent* event) override { answer(*event); }

    std::function<void(XmlEvent&)> answer;
};

QString domTextOf(const QString& xml)
{
    return domText(documentOf(xml));
}

std::vector<QDomNode> nodesBelow(const QDomNode& top)
{
    std::vector<QDomNode> nodes {top};
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        for (QDomNode child = nodes[i].firstChild(); !child.isNull(); child = child.nextSibling()) {
            nodes.push_back(child);
        }
    }
    return nodes;
}

/// One of the names that the random documents and the searches in them use.
QString anyName(QRandomGenerator& random)
{
    return QString(QLatin1Char("abcde"[random.bounded(5)]));
}

/// A document of 60 elements, some of them with a type, some with a text below, at random places.
QDomDocument anyDocument(QRandomGenerator& random)
{
    QDomDocument document = documentOf(QStringLiteral("<?xml version='1.0'?><%1/>").arg(anyName(random)));
    std::vector<QDomElement> elements {document.documentElement()};
    while (elements.size() < 60) {
        const auto owner = static_cast<std::size_t>(random.bounded(static_cast<int>(elements.size())));
        QDomElement element = document.createElement(anyName(random));
        if (random.bounded(2) == 0) {
            element.setAttribute(QStringLiteral("type"), QStringLiteral("string"));
        }
        if (random.bounded(8) == 0) {
            element.appendChild(document.createTextNode(QStringLiteral("text")));
        }
        elements[owner].appendChild(element);
        elements.push_back(element);
    }
    return document;
}

bool isListed(DomParser& parser, const QString& name, const QString& ownerName, const QDomNode& node)
{
    const std::unique_ptr<std::list<QDomNode>> list(parser.SearchElements(name, ownerName));
    return std::find(list->begin(), list->end(), node) != list->end();
}

} // namespace

void TestDomParser::refusesAMissingDocument()
{
    Walker walker(QStringLiteral("<r/>"));
    QVERIFY(!walker.parser.SetDocument(nullptr));
    QVERIFY(walker.parser.Walk());
    QCOMPARE(walker.Log(), QStringLiteral("r"));

    ScriptedObserver observer;
    DomParser parser(&observer, {}, {});
    QVERIFY(!parser.SetDocument(nullptr));
    QVERIFY(!parser.Walk());
    QVERIFY(observer.Recorder().Lines().isEmpty());
}

void TestDomParser::walksNothingWithoutARoot_data()
{
    QTest::addColumn<QDomDocument>("document");

    QDomDocument declaration;
    declaration.setContent(QStringLiteral("<?xml version='1.0' encoding='UTF-8'?>"));
    QVERIFY(declaration.hasChildNodes());
    QTest::newRow("document-without-nodes") << QDomDocument();
    QTest::newRow("document-with-a-declaration-only") << declaration;
}

void TestDomParser::walksNothingWithoutARoot()
{
    QFETCH(QDomDocument, document);
    ScriptedObserver observer;
    DomParser parser(&observer, {}, {});
    QVERIFY(parser.SetDocument(&document));
    QVERIFY(!parser.Walk());
    QVERIFY(observer.Recorder().Lines().isEmpty());
    QVERIFY(!parser.GetCurrentElement());
}

void TestDomParser::announcesARootWithoutChildren()
{
    Walker walker(QStringLiteral("<r type='string' unit='Hz'/>"));
    QVERIFY(walker.parser.Walk());
    QCOMPARE(walker.Lines(),
             QStringList({QStringLiteral("document begins"),
                          QStringLiteral("begin r [type=\"string\" unit=\"Hz\"] \"\" -> r"),
                          QStringLiteral("document ends")}));
    QVERIFY(walker.observer.Recorder().Nodes()[0] == walker.document.documentElement());
}

void TestDomParser::announcesTheAttributes()
{
    Walker walker(QStringLiteral("<r><a one='1' two='2'/></r>"));
    QXmlAttributes attributes;
    walker.observer.OnElement(QStringLiteral("a"),
                              [&attributes](ElemBeginEvent& event) { attributes = event.GetElementAttributes(); });
    QVERIFY(walker.parser.Walk());

    QCOMPARE(attributes.count(), 2);
    QCOMPARE(attributes.value(QStringLiteral("one")), QStringLiteral("1"));
    QCOMPARE(attributes.value(QStringLiteral("two")), QStringLiteral("2"));
    const QDomNamedNodeMap map = walker.Find(QStringLiteral("a")).attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        QCOMPARE(attributes.qName(i), map.item(i).nodeName()); // in the order of the element's own map
        QCOMPARE(attributes.uri(i), QString());
        QCOMPARE(attributes.localName(i), QString());
    }
}

void TestDomParser::announcesNodesOfOtherKindsAtTheTopLevel()
{
    Walker walker(QStringLiteral("<r>x<!-- note --><a/></r>"));
    QVERIFY(walker.parser.Walk());
    QCOMPARE(
        walker.Lines(),
        QStringList({QStringLiteral("document begins"), QStringLiteral("begin r [] \"\" -> r"),
                     QStringLiteral("begin #text [] \"\" -> #text"), QStringLiteral("error 15"),
                     QStringLiteral("error 16"), QStringLiteral("begin #comment [] \"\" -> #comment"),
                     QStringLiteral("error 15"), QStringLiteral("error 16"), QStringLiteral("begin a [] \"\" -> a"),
                     QStringLiteral("error 15"), QStringLiteral("error 16"), QStringLiteral("document ends")}));
}

void TestDomParser::keepsWhatIsFilledAndPrunesWhatMayBeMissing_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("occurs");
    QTest::addColumn<QString>("choices");
    QTest::addColumn<QString>("filled");
    QTest::addColumn<QString>("log");
    QTest::addColumn<QString>("left");
    const auto addRow = [](const char* rule, const char* xml, const char* occurs, const char* choices,
                           const char* filled, const char* log, const char* left) {
        QTest::newRow(rule) << QString::fromUtf8(xml) << QString::fromUtf8(occurs) << QString::fromUtf8(choices)
                            << QString::fromUtf8(filled) << QString::fromUtf8(log) << QString::fromUtf8(left);
    };

    // Value elements.
    addRow("required-value-stays-with-an-error", "<r><a type='t'/></r>", "a 1 r", "", "", //
           "r, a, error 16", "<r><a type='t'/></r>");
    addRow("filled-value-stays-without-error", "<r><a type='t'/></r>", "a 1 r", "", "a", //
           "r, a", "<r><a type='t'/></r>");
    addRow("value-without-occurrence-entry-is-reported-twice", "<r><a type='t'/></r>", "", "", "",
           "r, a, error 15, error 16", "<r><a type='t'/></r>");
    addRow("optional-value-is-removed", "<r><a type='t'/></r>", "a 0 r", "", "", "r, a", "<r/>");
    addRow("filled-optional-value-stays", "<r><a type='t'/></r>", "a 0 r", "", "a", "r, a", "<r><a type='t'/></r>");
    addRow("removal-goes-on-at-the-next-sibling", "<r><a type='t'/><b type='t'/><c type='t'/></r>",
           "a 0 r, b 1 r, c 0 r", "", "", "r, a, b, error 16, c", "<r><b type='t'/></r>");
    addRow("children-of-a-filled-element-are-not-walked", "<r><m><a type='t'/></m></r>", "m 1 r, a 0 m", "", "m",
           "r, m", "<r><m><a type='t'/></m></r>");
    addRow("children-of-an-unfilled-required-container-are-walked", "<r><m><a type='t'/></m></r>", "m 1 r, a 0 m", "",
           "", "r, m, error 16, a", "<r><m/></r>");
    addRow("element-with-an-empty-type-counts-as-container", "<r><a type=''/></r>", "a 0 r", "", "", //
           "r, a, a", "<r><a type=''/></r>");
    addRow("first-text-below-the-top-level-ends-the-level", "<r><m><a type='t'/>text<b type='t'/></m><c type='t'/></r>",
           "m 1 r, a 1 m, b 1 m, c 1 r", "", "", "r, m, error 16, a, error 16, c, error 16",
           "<r><m><a type='t'/>text<b type='t'/></m><c type='t'/></r>");

    // Who counts as optional.
    addRow("code-of-a-limited-optional-element", "<r><a type='t'/></r>", "a 300 r", "", "", "r, a", "<r/>");
    addRow("code-of-an-unlimited-optional-element", "<r><a type='t'/></r>", "a -100 r", "", "", "r, a", "<r/>");
    addRow("code-of-an-unlimited-required-element", "<r><a type='t'/></r>", "a -1 r", "", "", //
           "r, a, error 16", "<r><a type='t'/></r>");
    addRow("required-element-with-a-maximum-of-100-counts-as-optional", "<r><a type='t'/></r>", "a 100 r", "", "",
           "r, a", "<r/>");
    addRow("one-optional-code-of-several-is-enough", "<r><a type='t'/></r>", "a -1 r, a 0 r, a 3 r", "", "", //
           "r, a", "<r/>");
    addRow("one-owner-of-several-is-enough", "<r><a type='t'/></r>", "a 0 x, a 0 r, a 0 y", "", "", "r, a", "<r/>");
    addRow("one-required-owner-behind-many-optional-ones", "<r><a type='t'/></r>",
           "a 0 x1, a 0 x2, a 0 x3, a 0 x4, a 0 x5, a 0 x6, a 0 x7, a 0 x8, a 0 x9, a 1 r", "", "", "r, a, error 16",
           "<r><a type='t'/></r>");
    addRow("owner-with-two-codes-among-many", "<r><a type='t'/></r>",
           "a 0 x1, a 0 x2, a 0 x3, a 0 x4, a 0 x5, a 0 x6, a 0 x7, a 0 x8, a 0 x9, a 1 r, a 0 r", "", "", "r, a",
           "<r/>");
    addRow("optional-code-behind-a-required-one-among-many", "<r><a type='t'/></r>",
           "a 0 x1, a 0 x2, a 0 x3, a 0 x4, a 0 x5, a 0 x6, a 0 x7, a 0 x8, a 0 x9, a -1 r, a 0 r", "", "", "r, a",
           "<r/>");
    addRow("owner-that-is-not-among-many", "<r><a type='t'/></r>",
           "a 0 x1, a 0 x2, a 0 x3, a 0 x4, a 0 x5, a 0 x6, a 0 x7, a 0 x8, a 0 x9, b 0 r", "", "", "r, a, error 16",
           "<r><a type='t'/></r>");
    addRow("optional-below-an-owner-that-is-not-there", "<r><a type='t'/></r>", "a 0 x, a 1 r", "", "", //
           "r, a, error 16", "<r><a type='t'/></r>");
    addRow("optional-below-a-nameless-owner", "<r><a type='t'/></r>", "a 0 ", "", "", //
           "r, a, error 16", "<r><a type='t'/></r>");
    addRow("optional-at-any-depth-below-the-owner", "<r><m><a type='t'/></m></r>", "m 1 r, a 0 r", "", "", //
           "r, m, error 16, a", "<r><m/></r>");
    addRow("elements-of-equal-name-in-different-places-count-as-the-same",
           "<r><m><a type='t'/></m><n><a type='t'/></n></r>", "m 1 r, n 1 r, a 1 m, a 0 r", "", "", //
           "r, m, error 16, a, n, error 16, a", "<r><m/><n/></r>");
    addRow("only-what-is-below-the-first-owner-counts-as-optional", "<r><m><a type='t'/></m><m><a type='t'/></m></r>",
           "m 5 r, a 0 m", "", "", "r, m, error 16, a, m, error 16, a, error 16", "<r><m/><m><a type='t'/></m></r>");
    addRow("element-inside-one-of-its-own-name-does-not-count-as-optional", "<r><a><n type='t'/><a type='t'/></a></r>",
           "a 0 r, n 1 a", "", "n", //
           "r, a, a, n, a, error 16", "<r><a><n type='t'/><a type='t'/></a></r>");

    // Alternatives of a choice.
    addRow("choice-alternative-is-removed", "<r><a type='t'/><b type='t'/></r>", "a 1 r, b 1 r", "a", "", //
           "r, a, b, error 16", "<r><b type='t'/></r>");
    addRow("choice-alternative-below-the-root-element-is-removed", "<r><m><a type='t'/><b type='t'/></m></r>",
           "m 1 r, a 1 m, b 1 m", "a, b", "", "r, m, error 16, a, b", "<r><m/></r>");
    addRow("choice-alternative-without-occurrence-entry-is-reported-and-removed", "<r><a type='t'/></r>", "", "x, a",
           "", "r, a, error 15", "<r/>");
    addRow("container-of-a-choice-is-removed-like-an-optional-one", "<r><c><v type='t'/></c></r>", "c 1 r, v 1 c", "c",
           "", "r, c, c, v", "<r/>");

    // Optional containers.
    addRow("optional-container-at-the-top-level-is-announced-twice-and-removed-with-its-first-unfilled-value",
           "<r><c><v type='t'/></c></r>", "c 0 r, v 1 c", "", "", "r, c, c, v", "<r/>");
    addRow("optional-container-below-is-announced-once", "<r><m><c><v type='t'/></c></m></r>", "m 1 r, c 0 m, v 1 c",
           "", "", "r, m, error 16, c, v", "<r><m/></r>");
    addRow("optional-container-is-kept-when-its-first-value-is-filled", "<r><c><v type='t'/></c></r>", "c 0 r, v 1 c",
           "", "v", "r, c, c, v", "<r><c><v type='t'/></c></r>");
    addRow("later-values-of-a-kept-container-are-checked-for-themselves",
           "<r><c><v type='t'/><w type='t'/><x type='t'/></c></r>", "c 0 r, v 1 c, w 1 c, x 0 c", "", "v",
           "r, c, c, v, w, error 16, x", "<r><c><v type='t'/><w type='t'/></c></r>");
    addRow("container-is-removed-although-a-later-value-would-be-filled", "<r><c><v type='t'/><w type='t'/></c></r>",
           "c 0 r, v 1 c, w 1 c", "", "w", "r, c, c, v", "<r/>");
    addRow("filled-container-is-kept-whole", "<r><c><v type='t'/></c></r>", "c 0 r, v 1 c", "", "c", //
           "r, c", "<r><c><v type='t'/></c></r>");
    addRow("required-container-on-probation-of-another-is-not-reported", "<r><c><d><v type='t'/></d></c></r>",
           "c 0 r, d 1 c, v 1 d", "", "", "r, c, c, d, v", "<r/>");
    addRow("container-behind-a-removed-one-is-walked-a-level-deeper-and-announced-once",
           "<r><c><v type='t'/></c><d><w type='t'/></d><e type='t'/></r>", "c 0 r, v 1 c, d 0 r, w 1 d, e 0 r", "", "",
           "r, c, c, v, d, w, e", "<r/>");
    addRow("text-behind-a-removed-container-ends-the-walk-of-its-siblings",
           "<r><c><v type='t'/></c>text<e type='t'/></r>", "c 0 r, v 1 c, e 0 r", "", "", //
           "r, c, c, v", "<r>text<e type='t'/></r>");
    addRow("empty-optional-container-at-the-end-stays", "<r><c/></r>", "c 0 r", "", "", "r, c, c", "<r><c/></r>");
    addRow("unfilled-value-behind-a-container-removes-it-and-is-announced-again", "<r><c/><e type='t'/></r>",
           "c 0 r, e 0 r", "", "", "r, c, c, e, e", "<r/>");
    addRow("unfilled-value-behind-a-container-below-removes-it-and-is-announced-again",
           "<r><m><c/><e type='t'/></m></r>", "m 1 r, c 0 m, e 0 m", "", "", "r, m, error 16, c, e, e", "<r><m/></r>");
    addRow("required-value-behind-a-container-removes-it-and-is-reported-when-it-comes-again",
           "<r><c/><e type='t'/></r>", "c 0 r, e 1 r", "", "", "r, c, c, e, e, error 16", "<r><e type='t'/></r>");
    addRow("notice-at-the-top-level-keeps-the-probation", "<r><c/><e type='t'/><f type='t'/></r>",
           "c 0 r, e 0 r, f 0 r", "", "e", "r, c, c, e, f, e, f", "<r><e type='t'/></r>");
    addRow("notice-below-the-top-level-drops-the-probation", "<r><m><c/><e type='t'/><f type='t'/></m></r>",
           "m 1 r, c 0 m, e 0 m, f 0 m", "", "e", "r, m, error 16, c, e, f", "<r><m><c/><e type='t'/></m></r>");

    // Removal from two levels below and more.
    addRow("removal-two-levels-below-announces-what-is-left-of-the-removed-part",
           "<r><c><d><v type='t'/></d><e type='t'/></c><f type='t'/></r>", "c 0 r, d 1 c, v 1 d, e 0 c, f 0 r", "", "",
           "r, c, c, d, v, f, e, error 16", "<r/>");
    addRow("filled-value-in-the-removed-part-is-removed-all-the-same",
           "<r><c><d><v type='t'/></d><e type='t'/><g type='t'/></c><f type='t'/></r>",
           "c 0 r, d 1 c, v 1 d, e 1 c, g 1 c, f 1 r", "", "e, f", "r, c, c, d, v, f, e, g, error 16",
           "<r><f type='t'/></r>");
    addRow("removed-part-is-pruned-of-choice-alternatives-too",
           "<r><c><d><v type='t'/></d><e><w type='t'/></e><g type='t'/></c></r>", "c 0 r, d 1 c, v 1 d, e 1 c, g 1 c",
           "e, g", "", "r, c, c, d, v, e, w, g", "<r/>");
    addRow("removal-three-levels-below-goes-on-inside-at-both-levels-between",
           "<r><c><d><x><v type='t'/></x><y type='t'/></d><e type='t'/></c><f type='t'/></r>",
           "c 0 r, d 1 c, x 1 d, v 1 x, y 1 d, e 1 c, f 1 r", "", "",
           "r, c, c, d, x, v, f, error 16, y, error 16, e, error 16", "<r><f type='t'/></r>");
}

void TestDomParser::keepsWhatIsFilledAndPrunesWhatMayBeMissing()
{
    QFETCH(QString, xml);
    QFETCH(QString, occurs);
    QFETCH(QString, choices);
    QFETCH(QString, filled);
    QFETCH(QString, log);
    QFETCH(QString, left);
    Walker walker(xml, occurs, choices);
    walker.FillAll(filled);

    QVERIFY(walker.parser.Walk());
    QCOMPARE(walker.Log(), log);
    QCOMPARE(domText(walker.document), domTextOf(left));
    QCOMPARE(walker.Lines().first(), QStringLiteral("document begins"));
    QCOMPARE(walker.Lines().last(), QStringLiteral("document ends"));
}

void TestDomParser::carriesTextsOver_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QStringList>("lines");

    QTest::newRow("element-without-text-has-that-of-the-last-sibling-with-one")
        << QStringLiteral("<r><a>1</a><b/><c>2</c><d/></r>")
        << QStringList {QStringLiteral("begin r [] \"\" -> r"), QStringLiteral("begin a [] \"1\" -> a"),
                        QStringLiteral("begin b [] \"1\" -> b"), QStringLiteral("begin c [] \"2\" -> c"),
                        QStringLiteral("begin d [] \"2\" -> d")};
    QTest::newRow("element-without-text-below-has-that-of-the-last-sibling-with-one")
        << QStringLiteral("<r><m><a/><b>1</b><c/></m></r>")
        << QStringList {QStringLiteral("begin r [] \"\" -> r"), QStringLiteral("begin m [] \"\" -> m"),
                        QStringLiteral("begin a [] \"\" -> a"), QStringLiteral("begin b [] \"1\" -> b"),
                        QStringLiteral("begin c [] \"1\" -> c")};
    QTest::newRow("level-begins-without-text-and-its-own-level-goes-on-with-the-old-one")
        << QStringLiteral("<r><a>1</a><m><b/><c>2</c></m><d/></r>")
        << QStringList {QStringLiteral("begin r [] \"\" -> r"),  QStringLiteral("begin a [] \"1\" -> a"),
                        QStringLiteral("begin m [] \"1\" -> m"), QStringLiteral("begin b [] \"\" -> b"),
                        QStringLiteral("begin c [] \"2\" -> c"), QStringLiteral("begin d [] \"1\" -> d")};
    QTest::newRow("text-behind-the-first-child-is-not-the-text")
        << QStringLiteral("<r><a><b/>1</a></r>")
        << QStringList {QStringLiteral("begin r [] \"\" -> r"), QStringLiteral("begin a [] \"\" -> a"),
                        QStringLiteral("begin b [] \"\" -> b")};
    QTest::newRow("root-is-announced-without-its-text")
        << QStringLiteral("<r>1</r>")
        << QStringList {QStringLiteral("begin r [] \"\" -> r"), QStringLiteral("begin #text [] \"\" -> #text")};
}

void TestDomParser::carriesTextsOver()
{
    QFETCH(QString, xml);
    QFETCH(QStringList, lines);
    Walker walker(xml);
    QVERIFY(walker.parser.Walk());
    QCOMPARE(walker.Lines().filter(QStringLiteral("begin ")), lines);
}

void TestDomParser::laysOutDefaultTexts_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("occurs");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("left");

    QTest::newRow("default-below-becomes-the-text-but-not-the-announced-one")
        << QStringLiteral("<r><m><a type='t' default='5'/></m></r>") << QStringLiteral("m 1 r, a 1 m")
        << QStringList {QStringLiteral("begin m [] \"\" -> m"), QStringLiteral("error 16"),
                        QStringLiteral("begin a [type=\"t\"] \"\" -> a"), QStringLiteral("error 16")}
        << QStringLiteral("<r><m><a type='t'>5</a></m></r>");
    QTest::newRow("default-at-the-top-level-stays-an-attribute")
        << QStringLiteral("<r><a type='t' default='5'/></r>") << QStringLiteral("a 1 r")
        << QStringList {QStringLiteral("begin a [default=\"5\" type=\"t\"] \"\" -> a"), QStringLiteral("error 16")}
        << QStringLiteral("<r><a type='t' default='5'/></r>");
    QTest::newRow("optional-element-with-a-default-is-removed-all-the-same")
        << QStringLiteral("<r><m><a type='t' default='5'/></m></r>") << QStringLiteral("m 1 r, a 0 m")
        << QStringList {QStringLiteral("begin m [] \"\" -> m"), QStringLiteral("error 16"),
                        QStringLiteral("begin a [type=\"t\"] \"\" -> a")}
        << QStringLiteral("<r><m/></r>");
    QTest::newRow("default-of-an-element-with-text-stays-an-attribute")
        << QStringLiteral("<r><m><a type='t' default='5'>7</a></m></r>") << QStringLiteral("m 1 r, a 1 m")
        << QStringList {QStringLiteral("begin m [] \"\" -> m"), QStringLiteral("error 16"),
                        QStringLiteral("begin a [default=\"5\" type=\"t\"] \"7\" -> a"), QStringLiteral("error 16")}
        << QStringLiteral("<r><m><a type='t' default='5'>7</a></m></r>");
    QTest::newRow("empty-default-stays-an-attribute")
        << QStringLiteral("<r><m><a type='t' default=''/></m></r>") << QStringLiteral("m 1 r, a 1 m")
        << QStringList {QStringLiteral("begin m [] \"\" -> m"), QStringLiteral("error 16"),
                        QStringLiteral("begin a [default=\"\" type=\"t\"] \"\" -> a"), QStringLiteral("error 16")}
        << QStringLiteral("<r><m><a type='t' default=''/></m></r>");
    QTest::newRow("default-goes-behind-the-children")
        << QStringLiteral("<r><m><a default='5'><b type='t'/></a></m></r>") << QStringLiteral("m 1 r, a 1 m, b 1 a")
        << QStringList {QStringLiteral("begin m [] \"\" -> m"),           QStringLiteral("error 16"),
                        QStringLiteral("begin a [] \"\" -> a"),           QStringLiteral("error 16"),
                        QStringLiteral("begin b [type=\"t\"] \"\" -> b"), QStringLiteral("error 16")}
        << QStringLiteral("<r><m><a><b type='t'/>5</a></m></r>");
    QTest::newRow("element-announced-again-has-its-default-as-announced-text")
        << QStringLiteral("<r><m><c/><a type='t' default='5'/></m></r>") << QStringLiteral("m 1 r, c 0 m, a 1 m")
        << QStringList {QStringLiteral("begin m [] \"\" -> m"),
                        QStringLiteral("error 16"),
                        QStringLiteral("begin c [] \"\" -> c"),
                        QStringLiteral("begin a [type=\"t\"] \"\" -> a"),
                        QStringLiteral("begin a [type=\"t\"] \"5\" -> a"),
                        QStringLiteral("error 16")}
        << QStringLiteral("<r><m><a type='t'>5</a></m></r>");
}

void TestDomParser::laysOutDefaultTexts()
{
    QFETCH(QString, xml);
    QFETCH(QString, occurs);
    QFETCH(QStringList, lines);
    QFETCH(QString, left);
    Walker walker(xml, occurs);
    QVERIFY(walker.parser.Walk());
    QCOMPARE(walker.Lines(),
             QStringList({QStringLiteral("document begins"), QStringLiteral("begin r [] \"\" -> r")}) + lines
                 + QStringList(QStringLiteral("document ends")));
    QCOMPARE(domText(walker.document), domTextOf(left));
}

void TestDomParser::continuesWhereTheNoticeSays_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("at");
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("revisit");
    QTest::addColumn<QString>("log");

    const QString flat = QStringLiteral("<r><a type='t'/><b type='t'/><c type='t'/></r>");
    QTest::newRow("behind-the-given-element") << flat << "a"
                                              << "b" << false << "r, a, c, error 16";
    QTest::newRow("revisit-announces-the-given-element-next") << flat << "a"
                                                              << "c" << true << "r, a, c, error 16";
    QTest::newRow("revisit-of-the-announced-element") << flat << "a"
                                                      << "a" << true << "r, a, a, error 16, b, error 16, c, error 16";
    QTest::newRow("revisit-of-an-earlier-element")
        << flat << "c"
        << "b" << true << "r, a, error 16, b, error 16, c, b, error 16, c, error 16";
    QTest::newRow("null-element-ends-the-level") << flat << "a"
                                                 << "" << false << "r, a";
    QTest::newRow("null-element-to-revisit-ends-the-level") << flat << "a"
                                                            << "" << true << "r, a";
    QTest::newRow("notice-for-the-root-is-taken-at-its-first-child") << flat << "r"
                                                                     << "r" << false << "r, a";
    QTest::newRow("notice-at-the-root-is-taken-at-its-first-child")
        << flat << "r"
        << "a" << true << "r, a, a, error 16, b, error 16, c, error 16";

    const QString nested = QStringLiteral("<r><m><a type='t'/><b type='t'/><c type='t'/></m><z type='t'/></r>");
    QTest::newRow("below-behind-the-given-element") << nested << "a"
                                                    << "b" << false << "r, m, error 16, a, c, error 16, z, error 16";
    QTest::newRow("below-revisit-announces-the-given-element-next")
        << nested << "a"
        << "c" << true << "r, m, error 16, a, c, error 16, z, error 16";
    QTest::newRow("below-null-element-ends-the-level") << nested << "a"
                                                       << "" << false << "r, m, error 16, a, z, error 16";
    QTest::newRow("element-of-another-level-is-walked-here-and-there")
        << nested << "a"
        << "z" << true << "r, m, error 16, a, z, error 16, z, error 16";
}

void TestDomParser::continuesWhereTheNoticeSays()
{
    QFETCH(QString, xml);
    QFETCH(QString, at);
    QFETCH(QString, target);
    QFETCH(bool, revisit);
    QFETCH(QString, log);
    Walker walker(xml, QStringLiteral("m 1 r, a 1 r, b 1 r, c 1 r, z 1 r"));
    bool isFirst = true;
    walker.observer.OnElement(at, [&](ElemBeginEvent&) {
        QDomElement element = walker.Find(target);
        if (isFirst) {
            isFirst = false;
            QVERIFY(walker.parser.ContinueAt(&element, revisit));
        }
    });

    QVERIFY(walker.parser.Walk());
    QCOMPARE(walker.Log(), log);
    QCOMPARE(domText(walker.document), domTextOf(xml));
}

void TestDomParser::keepsRemovedNodesAliveUntilTheWalkHasEnded()
{
    // A recorder would keep the nodes itself.
    struct Observer : IXMLHelper
    {
        void XmlUpdate(XmlEvent* event) override
        {
            if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
                auto* const begin = static_cast<ElemBeginEvent*>(event);
                value = begin->GetElementName() == QLatin1String("v") ? begin->GetElementNode() : value;
            } else if (event->GetType() == XmlEvent::EVENT_DOC_END) {
                ownerName = value.parentNode().nodeName();
            }
        }
        QDomNode value;
        QString ownerName;
    } observer;
    QDomDocument document = documentOf(QStringLiteral("<r><c><v type='t'/></c><y type='t'/></r>"));
    DomParser parser(&observer, occursOf(QStringLiteral("c 0 r, v 1 r, y 1 r")), ChoiceMap());
    QVERIFY(parser.SetDocument(&document));
    QVERIFY(parser.Walk());
    QCOMPARE(domText(document), domTextOf(QStringLiteral("<r><y type='t'/></r>")));
    QCOMPARE(observer.ownerName, QStringLiteral("c")); // which has gone with its value
}

void TestDomParser::noticesARenamedOwner_data()
{
    QTest::addColumn<QString>("at");
    QTest::addColumn<bool>("isInError");
    QTest::newRow("inside-an-error") << "m" << true;
    QTest::newRow("parent-inside-the-begin-of-its-child") << "a" << false;
}

/// What the element may miss is decided by the names at that moment, whoever has given them.
void TestDomParser::noticesARenamedOwner()
{
    QFETCH(QString, at);
    QFETCH(bool, isInError);
    Walker walker(QStringLiteral("<r><m><a type='t'/></m></r>"), QStringLiteral("m 1 r, a 0 n"));
    const auto rename = [&] { walker.Find(QStringLiteral("m")).setTagName(QStringLiteral("n")); };
    if (isInError) {
        walker.observer.OnError([&](int) { rename(); });
    } else {
        walker.observer.OnElement(at, [&](ElemBeginEvent&) { rename(); });
    }
    QVERIFY(walker.parser.Walk());
    QCOMPARE(walker.Log(), QStringLiteral("r, m, error 16, a"));
    QCOMPARE(domText(walker.document), domTextOf(QStringLiteral("<r><n/></r>")));
}

void TestDomParser::noticesThatTheFirstOwnerIsRenamed()
{
    Walker walker(QStringLiteral("<r><n><b type='t'/></n><n><a type='t'/></n></r>"),
                  QStringLiteral("n 1 r, b 1 n, a 0 n"));
    walker.observer.OnElement(QStringLiteral("a"), [&](ElemBeginEvent&) {
        walker.document.documentElement().firstChild().toElement().setTagName(QStringLiteral("m"));
    });
    QVERIFY(walker.parser.Walk());
    QCOMPARE(walker.Log(), QStringLiteral("r, n, error 16, b, error 16, n, error 16, a"));
    QCOMPARE(domText(walker.document), domTextOf(QStringLiteral("<r><m><b type='t'/></m><n/></r>")));
}

void TestDomParser::takesNoticesGivenInsideErrors_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("occurs");
    QTest::addColumn<QString>("choices");
    QTest::addColumn<QString>("at");
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("revisit");
    QTest::addColumn<QString>("log");
    QTest::addColumn<QString>("left");

    const QString flat = QStringLiteral("<r><a type='t'/><b type='t'/><c type='t'/></r>");
    const QString flatOccurs = QStringLiteral("a 1 r, b 1 r, c 1 r");
    QTest::newRow("notice-is-taken-at-the-next-announcement")
        << flat << flatOccurs << ""
        << "a"
        << "a" << false << "r, a, error 16, b, b, error 16, c, error 16" << flat;
    QTest::newRow("element-of-the-notice-counts-at-the-top-level")
        << flat << flatOccurs << ""
        << "a"
        << "c" << true << "r, a, error 16, b, c, error 16" << flat;

    const QString nested = QStringLiteral("<r><m><a type='t'/><b type='t'/><c type='t'/></m></r>");
    const QString nestedOccurs = QStringLiteral("m 1 r, a 1 m, b 1 m, c 1 m");
    QTest::newRow("below-notice-is-taken-at-the-next-announcement")
        << nested << nestedOccurs << ""
        << "a"
        << "a" << false << "r, m, error 16, a, error 16, b, b, error 16, c, error 16" << nested;
    QTest::newRow("below-the-element-of-the-error-takes-the-place-of-that-of-the-notice")
        << nested << nestedOccurs << ""
        << "a"
        << "c" << true << "r, m, error 16, a, error 16, b, a, error 16, b, error 16, c, error 16" << nested;
    QTest::newRow("first-child-of-a-container-is-still-announced") << nested << nestedOccurs << ""
                                                                   << "m"
                                                                   << "m" << false << "r, m, error 16, a" << nested;
    QTest::newRow("removed-alternative-hands-the-notice-to-its-next-sibling")
        << nested << "m 1 r, b 1 m, c 1 m"
        << "a"
        << "a"
        << "a" << false << "r, m, error 16, a, error 15, b, c, error 16"
        << "<r><m><b type='t'/><c type='t'/></m></r>";
}

void TestDomParser::takesNoticesGivenInsideErrors()
{
    QFETCH(QString, xml);
    QFETCH(QString, occurs);
    QFETCH(QString, choices);
    QFETCH(QString, at);
    QFETCH(QString, target);
    QFETCH(bool, revisit);
    QFETCH(QString, log);
    QFETCH(QString, left);
    Walker walker(xml, occurs, choices);
    bool isFirst = true;
    walker.observer.OnError([&](int) {
        if (isFirst && walker.parser.GetCurrentElement()->tagName() == at) {
            isFirst = false;
            QDomElement element = walker.Find(target);
            QVERIFY(walker.parser.ContinueAt(&element, revisit));
        }
    });

    QVERIFY(walker.parser.Walk());
    QCOMPARE(walker.Log(), log);
    QCOMPARE(domText(walker.document), domTextOf(left));
}

void TestDomParser::refusesANoticeWithoutElement()
{
    Walker walker(QStringLiteral("<r><a type='t'/><b type='t'/></r>"), QStringLiteral("a 0 r, b 1 r"));
    walker.observer.OnElement(QStringLiteral("a"),
                              [&](ElemBeginEvent&) { QVERIFY(!walker.parser.ContinueAt(nullptr, true)); });
    QVERIFY(walker.parser.Walk());
    QCOMPARE(walker.Log(), QStringLiteral("r, a, b, error 16")); // a counts as unfilled
}

void TestDomParser::reportsARemovalThatFails()
{
    Walker walker(QStringLiteral("<r><a type='t'/><b type='t'/></r>"), QStringLiteral("a 1 r, b 1 r"),
                  QStringLiteral("a"));
    walker.observer.OnElement(QStringLiteral("a"), [](ElemBeginEvent& event) {
        const QDomNode node = event.GetElementNode();
        node.parentNode().removeChild(node);
    });
    QVERIFY(walker.parser.Walk());
    QCOMPARE(walker.Log(), QStringLiteral("r, a, error -1")); // nothing follows a node without siblings
    QCOMPARE(domText(walker.document), domTextOf(QStringLiteral("<r><b type='t'/></r>")));
}

void TestDomParser::reportsNothingOfAContainerThatIsGone()
{
    Walker walker(QStringLiteral("<r><c><v type='t'/></c><e type='t'/></r>"), QStringLiteral("c 0 r, v 1 c, e 1 r"));
    walker.observer.OnElement(QStringLiteral("v"), [&walker](ElemBeginEvent&) {
        const QDomElement container = walker.Find(QStringLiteral("c"));
        container.parentNode().removeChild(container);
    });
    QVERIFY(walker.parser.Walk());
    // Only a value that cannot be removed is an error; nothing follows a container without siblings.
    QCOMPARE(walker.Log(), QStringLiteral("r, c, c, v"));
    QCOMPARE(domText(walker.document), domTextOf(QStringLiteral("<r><e type='t'/></r>")));
}

void TestDomParser::announcesTheChildrenOfARootThatWasRemoved()
{
    Walker walker(QStringLiteral("<r><a type='t'/><b type='t'/></r>"), QStringLiteral("a 1 r, b 1 r"));
    walker.observer.OnElement(QStringLiteral("r"),
                              [&](ElemBeginEvent& event) { walker.document.removeChild(event.GetElementNode()); });
    QVERIFY(walker.parser.Walk());
    QCOMPARE(walker.Log(), QStringLiteral("r, a, error 16, b, error 16"));
}

/// Qt leaves the element its siblings when it frees the parent.
void TestDomParser::followsNoSiblingsOfAnElementWhoseParentIsGone()
{
    Walker walker(QStringLiteral("<r><a type='t'/><b type='t'/></r>"), QStringLiteral("a 1 r, b 1 r"),
                  QStringLiteral("a"));
    walker.observer.OnElement(QStringLiteral("a"), [&](ElemBeginEvent& event) {
        QDomDocumentFragment fragment = walker.document.createDocumentFragment();
        fragment.appendChild(event.GetElementNode());
        fragment.appendChild(walker.document.createElement(QStringLiteral("x")));
    });
    QVERIFY(walker.parser.Walk());
    QCOMPARE(walker.Log(), QStringLiteral("r, a, error -1"));
}

void TestDomParser::hasNoCurrentElementBeforeTheFirstAnnouncement()
{
    FunctionObserver observer;
    DomParser parser(&observer, {}, {});
    QDomDocument document = documentOf(QStringLiteral("<r/>"));
    QVERIFY(parser.SetDocument(&document));
    QVERIFY(!parser.GetCurrentElement());

    std::vector<bool> hasElement;
    observer.answer = [&](XmlEvent&) { hasElement.push_back(parser.GetCurrentElement() != nullptr); };
    QVERIFY(parser.Walk());
    QVERIFY(hasElement == std::vector<bool>({false, true, true})); // the document begins, r begins, the document ends
}

void TestDomParser::givesOneCurrentElementForTheWholeWalk()
{
    Walker walker(QStringLiteral("<r><a type='t'/><m><b type='t'/></m></r>"), QStringLiteral("a 0 r, m 1 r, b 1 m"));
    std::set<QDomElement*> objects;
    walker.observer.OnEveryElement([&](ElemBeginEvent& event) {
        objects.insert(walker.parser.GetCurrentElement());
        QVERIFY(*walker.parser.GetCurrentElement() == event.GetElementNode());
    });
    QVERIFY(walker.parser.Walk());
    QCOMPARE(objects.size(), std::size_t(1));
    QCOMPARE(*walker.parser.GetCurrentElement(), walker.Find(QStringLiteral("b")));
}

void TestDomParser::givesANullElementForOtherNodes()
{
    Walker walker(QStringLiteral("<r>text</r>"));
    walker.observer.OnElement(QStringLiteral("#text"), [&](ElemBeginEvent&) {
        QVERIFY(walker.parser.GetCurrentElement());
        QVERIFY(walker.parser.GetCurrentElement()->isNull());
    });
    QVERIFY(walker.parser.Walk());
    QVERIFY(walker.Log().contains(QStringLiteral("#text")));
}

void TestDomParser::standsBehindARemovedContainerDuringTheCheck()
{
    Walker walker(QStringLiteral("<r><c><v type='t'/></c></r>"), QStringLiteral("c 0 r"));
    QVERIFY(walker.parser.Walk());
    QCOMPARE(walker.Log(), QStringLiteral("r, c, c, v"));
    QVERIFY(walker.parser.GetCurrentElement()->isNull()); // nothing follows the container

    Walker value(QStringLiteral("<r><v type='t'/></r>"), QStringLiteral("v 0 r"));
    QVERIFY(value.parser.Walk());
    QCOMPARE(value.parser.GetCurrentElement()->tagName(), QStringLiteral("v")); // removed, but announced last
}

void TestDomParser::searches_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("ownerName");
    QTest::addColumn<QString>("found"); // the attribute "id" of each, the node name of others

    const QString nested = QStringLiteral("<r id='r'><a id='1'><a id='2'/></a><b id='3'><a id='4'/></b></r>");
    QTest::newRow("matches-inside-a-match-are-left-out") << nested << "a"
                                                         << ""
                                                         << "1 4";
    QTest::newRow("below-the-first-owner-in-document-order") << nested << "a"
                                                             << "b"
                                                             << "4";
    QTest::newRow("owner-that-matches-is-listed-as-the-top-node") << nested << "a"
                                                                  << "a"
                                                                  << "r 2";
    QTest::newRow("root-that-matches-is-listed") << nested << "r"
                                                 << ""
                                                 << "r";
    QTest::newRow("root-as-owner") << nested << "a"
                                   << "r"
                                   << "1 4";
    QTest::newRow("name-that-does-not-occur") << nested << "x"
                                              << ""
                                              << "";
    QTest::newRow("owner-that-does-not-occur") << nested << "a"
                                               << "x"
                                               << "";
    QTest::newRow("nameless") << nested << ""
                              << ""
                              << "";
    QTest::newRow("names-are-case-sensitive") << nested << "A"
                                              << ""
                                              << "";
    QTest::newRow("only-the-first-owner-counts") << QStringLiteral("<r><b><a id='1'/></b><b><a id='2'/></b></r>") << "a"
                                                 << "b"
                                                 << "1";
    QTest::newRow("owner-inside-an-owner-of-another-name-is-found-first")
        << QStringLiteral("<r><c><b><a id='1'/></b></c><b><a id='2'/></b></r>") << "a"
        << "b"
        << "1";
    QTest::newRow("texts-by-their-node-name") << QStringLiteral("<r>x<a>y</a></r>") << "#text"
                                              << ""
                                              << "#text #text";
    QTest::newRow("top-node-is-the-last-of-the-document") << QStringLiteral("<r><a id='1'/></r><!-- end -->") << "r"
                                                          << ""
                                                          << "#comment";
    QTest::newRow("owner-whose-top-node-is-no-element-has-nothing-below")
        << QStringLiteral("<r><a id='1'/></r><!-- end -->") << "a"
        << "r"
        << "";
}

void TestDomParser::searches()
{
    QFETCH(QString, xml);
    QFETCH(QString, name);
    QFETCH(QString, ownerName);
    QFETCH(QString, found);
    Walker walker(xml);
    const std::unique_ptr<std::list<QDomNode>> list(walker.parser.SearchElements(name, ownerName));
    QVERIFY(list);
    QStringList texts;
    for (const QDomNode& node : *list) {
        texts.append(node.isElement() ? node.toElement().attribute(QStringLiteral("id")) : node.nodeName());
    }
    QCOMPARE(texts.join(QLatin1Char(' ')), found);
}

void TestDomParser::givesEverySearchAListOfItsOwn()
{
    Walker walker(QStringLiteral("<r><a/></r>"));
    const std::unique_ptr<std::list<QDomNode>> first(walker.parser.SearchElements(QStringLiteral("a"), QString()));
    const std::unique_ptr<std::list<QDomNode>> second(walker.parser.SearchElements(QStringLiteral("a"), QString()));
    QVERIFY(first != second);
    QCOMPARE(first->size(), std::size_t(1));
    QVERIFY(*first == *second);
}

void TestDomParser::findsNothingWithoutADocument()
{
    ScriptedObserver observer;
    DomParser parser(&observer, {}, {});
    const std::unique_ptr<std::list<QDomNode>> list(parser.SearchElements(QStringLiteral("a"), QString()));
    QVERIFY(list);
    QVERIFY(list->empty());
    QVERIFY(!parser.IsBelowOwner(QStringLiteral("a"), QStringLiteral("r"), QDomNode()));
}

void TestDomParser::searchAndMembershipAgree()
{
    ScriptedObserver observer;
    QRandomGenerator random(20260101);
    for (int round = 0; round < 20; ++round) {
        QDomDocument document = anyDocument(random);
        if (round % 4 == 3) {
            document.appendChild(document.createComment(QStringLiteral("end")));
        }
        DomParser parser(&observer, {}, {});
        QVERIFY(parser.SetDocument(&document));
        const std::vector<QDomNode> nodes = nodesBelow(document);
        int members = 0;
        for (const char name : {'a', 'b', 'c', 'd', 'e', 'x'}) {
            for (const char ownerName : {'a', 'b', 'c', 'd', 'e', 'x'}) {
                const QString owner = QString(QLatin1Char(ownerName));
                for (const QDomNode& node : nodes) {
                    const bool isBelow = parser.IsBelowOwner(QString(QLatin1Char(name)), owner, node);
                    QCOMPARE(isBelow, isListed(parser, QString(QLatin1Char(name)), owner, node));
                    members += isBelow ? 1 : 0;
                }
            }
        }
        QVERIFY(members > 0);
    }
}

void TestDomParser::searchAndMembershipAgreeWhileTheDocumentChanges()
{
    QRandomGenerator random(20260102);
    int removed = 0;
    for (int round = 0; round < 40; ++round) {
        QDomDocument document = anyDocument(random);
        OccursMap occurs;
        for (int entry = 0; entry < 12; ++entry) {
            occurs[anyName(random)][random.bounded(2)].push_back(anyName(random));
        }
        FunctionObserver observer;
        DomParser parser(&observer, occurs, {{0, anyName(random)}});
        QVERIFY(parser.SetDocument(&document));
        const std::vector<QDomNode> nodes = nodesBelow(document);
        int answers = 0;
        observer.answer = [&](XmlEvent& event) {
            if (event.GetType() != XmlEvent::EVENT_ELEM_BEGIN || ++answers > 200) {
                return;
            }
            QDomElement* const element = parser.GetCurrentElement();
            for (const char ownerName : {'a', 'b', 'c', 'd', 'e'}) {
                const QString owner = QString(QLatin1Char(ownerName));
                QCOMPARE(parser.IsBelowOwner(element->tagName(), owner, *element),
                         isListed(parser, element->tagName(), owner, *element));
            }
            const int answer = random.bounded(10);
            if (answer == 0 && element->parentNode().isElement()) {
                element->parentNode().insertAfter(element->cloneNode(true), *element);
                parser.ContinueAt(element, true);
            } else if (answer < 4) {
                parser.ContinueAt(element, false);
            }
        };
        QVERIFY(parser.Walk());
        QVERIFY(answers > 1);
        removed += static_cast<int>(std::count_if(nodes.begin(), nodes.end(), [](const QDomNode& node) {
            return node.isElement() && node.parentNode().isNull();
        }));
    }
    QVERIFY(removed > 20); // the owners that the parser remembers have been among them
}

void TestDomParser::searchAndDeclarationsAgreeWhileTheDocumentChanges()
{
    QRandomGenerator random(20260103);
    const auto isWanted = [](int code) { return code == 1; };
    int declared = 0;
    int undeclared = 0;
    for (int round = 0; round < 200; ++round) {
        QDomDocument document = anyDocument(random);
        OccursMap occurs;
        for (int entry = 0; entry < 12; ++entry) {
            occurs[anyName(random)][random.bounded(2)].push_back(anyName(random));
        }
        FunctionObserver observer;
        DomParser parser(&observer, occurs, {});
        QVERIFY(parser.SetDocument(&document));
        int answers = 0;
        observer.answer = [&](XmlEvent& event) {
            if (event.GetType() != XmlEvent::EVENT_ELEM_BEGIN || ++answers > 60) {
                return;
            }
            QDomElement* const element = parser.GetCurrentElement();
            const QString tagName = element->tagName();
            const QString name = anyName(random);
            const std::list<QString>& owners = occurs[name][1];
            const bool isListedBelowAny = std::any_of(owners.begin(), owners.end(), [&](const QString& owner) {
                return isListed(parser, tagName, owner, *element);
            });
            QCOMPARE(parser.IsDeclaredAbove(name, tagName, *element, isWanted), isListedBelowAny);
            ++(isListedBelowAny ? declared : undeclared);

            switch (random.bounded(16)) {
            case 0: // A root has no place for copies.
                if (element->parentNode().isElement()) {
                    parser.InsertCopies(*element, 2);
                }
                break;
            case 1: // Removes the element itself, or what may hold it.
                parser.Remove(random.bounded(2) == 0 ? *element : element->parentNode());
                break;
            case 2: // An observer may edit the tree through the node that it was given, too.
                element->parentNode().insertAfter(element->cloneNode(true), *element);
                break;
            case 3:
                element->removeChild(element->lastChild());
                break;
            case 4:
                element->setTagName(anyName(random));
                break;
            case 5:
                if (round % 10 == 0) {
                    document.appendChild(document.createComment(QStringLiteral("end")));
                }
                break;
            default:
                break;
            }
            if (random.bounded(2) == 0) {
                parser.ContinueAt(element, random.bounded(4) == 0);
            }
        };
        QVERIFY(parser.Walk());
    }
    QVERIFY(declared > 100);
    QVERIFY(undeclared > 100);
}

void TestDomParser::prunesManyContainersInARow()
{
    // Each removed container leads the walk a level deeper; recursion would end on the stack.
    constexpr int containers = 20000;
    QDomDocument document = documentOf(QStringLiteral("<r/>"));
    for (int i = 0; i < containers; ++i) {
        QDomElement container = document.createElement(QStringLiteral("c"));
        QDomElement value = document.createElement(QStringLiteral("v"));
        value.setAttribute(QStringLiteral("type"), QStringLiteral("string"));
        container.appendChild(value);
        document.documentElement().appendChild(container);
    }
    FunctionObserver observer;
    int announcements = 0;
    int errors = 0;
    observer.answer = [&](XmlEvent& event) {
        announcements += event.GetType() == XmlEvent::EVENT_ELEM_BEGIN ? 1 : 0;
        errors += event.GetType() == XmlEvent::EVENT_ERROR ? 1 : 0;
    };
    DomParser parser(&observer, occursOf(QStringLiteral("c 0 r, v 0 c")), {});
    QVERIFY(parser.SetDocument(&document));

    QElapsedTimer timer;
    timer.start();
    QVERIFY(parser.Walk());
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    // The root, the first container once more than the others, and everything else once.
    QCOMPARE(announcements, 2 + 2 * containers);
    QCOMPARE(errors, 0);
    QVERIFY(!document.documentElement().hasChildNodes());
}

void TestDomParser::keepsCopiesOfTheMaps()
{
    QDomDocument document = documentOf(QStringLiteral("<r><a type='t'/><b type='t'/></r>"));
    ScriptedObserver observer;
    OccursMap occurs = occursOf(QStringLiteral("a 0 r, b 1 r"));
    ChoiceMap choices = choicesOf(QStringLiteral("b"));
    DomParser parser(&observer, occurs, choices);
    occurs.clear();
    choices.clear();
    QVERIFY(parser.SetDocument(&document));
    QVERIFY(parser.Walk());
    QVERIFY(observer.Errors().empty());
    QVERIFY(!document.documentElement().hasChildNodes());
}

void TestDomParser::tracesAMissingObserver()
{
    TraceCollector traces;
    QDomDocument document = documentOf(QStringLiteral("<r/>"));
    DomParser parser(nullptr, occursOf(QStringLiteral("a 0 r")), {});
    QVERIFY(traces.IsOnly(QStringLiteral("DomParser: pCallback is NULL!"), QStringLiteral("tools/xmlhelper/domparser"),
                          37));
    QVERIFY(!parser.IsLimited(QStringLiteral("a")));
    QVERIFY(parser.SetDocument(&document));
    QVERIFY(!parser.Walk());
}

void TestDomParser::tracesNothingWithoutItsBitInTheMask()
{
    TraceCollector traces(~32u);
    const DomParser parser(nullptr, {}, {});
    QVERIFY(traces.Traces().empty());
}

QTEST_GUILESS_MAIN(TestDomParser)
#include "tst_domparser.moc"
