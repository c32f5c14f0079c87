#include <QtTest>

#include <algorithm>
#include <list>
#include <vector>

#include <QDomDocument>

#include <xmlhelper/elementsearch_p.h>

#include "domtext.h"
#include "randomtree.h"

class TestElementSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void appendsToTheResultsThatAreThere();
    void findsNothingBelowANullElement();
    void searchesNotBeyondTheStart();
    void searchesNothingWithinOtherNodes();
    void namesTheTopNodeItWasGiven();
    void matchesFollowARecursion();
    void firstMatchFollowsARecursion();
    void startsAreComparedWithoutTheirPrefix();

    void isMatchKnowsReportedNodes_data();
    void isMatchKnowsReportedNodes();
    void isMatchKnowsNothingOfOtherDocuments();
    void isMatchAgreesWithTheSearch_data();
    void isMatchAgreesWithTheSearch();
};

namespace {

std::list<QDomNode> matches(const QString& name, const QDomElement& start, const QDomNode& top)
{
    std::list<QDomNode> results;
    ElementSearch(top).AppendMatches(name, start, results);
    return results;
}

/// The rules of the search, told as a recursion.
void appendRecursively(const QString& name, const QDomElement& start, const QDomNode& top, std::list<QDomNode>& results)
{
    if (start.tagName() == name) {
        results.push_back(top);
    }
    for (QDomNode child = start.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.nodeName() == name) {
            results.push_back(child);
        } else if (child.isElement()) {
            appendRecursively(name, child.toElement(), top, results);
        }
    }
}

/// The rules of the search for a start element, told as a recursion. Every result that is no element means that there
/// is none.
QDomNode firstRecursively(const QString& name, const QDomElement& start, const QDomNode& top)
{
    if (start.tagName() == name) {
        return top;
    }
    for (QDomNode child = start.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.nodeName() == name) {
            return child;
        }
        if (child.isElement()) {
            const QDomNode found = firstRecursively(name, child.toElement(), top);
            if (found.isElement()) {
                return found;
            }
        }
    }
    return QDomNode();
}

/// Names to search for: those of the elements, those of other nodes, and one of none.
const std::vector<QString>& soughtNames()
{
    static const std::vector<QString> names = [] {
        std::vector<QString> all = RandomTree::Names();
        all.push_back(QStringLiteral("#text"));
        all.push_back(QStringLiteral("#comment"));
        all.push_back(QStringLiteral("none"));
        return all;
    }();
    return names;
}

std::vector<QDomElement> elementsOf(const QDomDocument& document)
{
    std::vector<QDomElement> elements;
    for (const QDomNode& node : nodesOf(document)) {
        if (node.isElement()) {
            elements.push_back(node.toElement());
        }
    }
    return elements;
}

QDomElement elementWithId(const QDomNode& top, const QString& id)
{
    for (const QDomNode& node : nodesOf(top)) {
        if (node.toElement().attribute(QStringLiteral("id")) == id && node.isElement()) {
            return node.toElement();
        }
    }
    return QDomElement();
}

} // namespace

void TestElementSearch::appendsToTheResultsThatAreThere()
{
    const QDomDocument document = documentOf(QStringLiteral("<r><a/></r>"));
    std::list<QDomNode> results {document};
    ElementSearch(document.lastChild()).AppendMatches(QStringLiteral("a"), document.documentElement(), results);
    const std::list<QDomNode> expected {document, document.documentElement().firstChild()};
    QVERIFY(results == expected);
}

void TestElementSearch::findsNothingBelowANullElement()
{
    const QDomDocument document = documentOf(QStringLiteral("<r/>"));
    const ElementSearch search(document.lastChild());
    const QString name = QStringLiteral("r");
    QVERIFY(matches(name, QDomElement(), document.lastChild()).empty());
    QVERIFY(search.FirstMatch(name, QDomElement()).isNull());
    QVERIFY(!search.IsMatch(name, QDomElement(), document.documentElement()));
}

void TestElementSearch::searchesNotBeyondTheStart()
{
    const QDomDocument document = documentOf(QStringLiteral("<r><s/><a/><s><b/></s><a/></r>"));
    const QDomElement emptyStart = document.documentElement().firstChildElement(QStringLiteral("s"));
    const QDomElement start = emptyStart.nextSiblingElement(QStringLiteral("s"));
    const QString name = QStringLiteral("a");
    QVERIFY(matches(name, emptyStart, document.lastChild()).empty());
    QVERIFY(matches(name, start, document.lastChild()).empty());
    QVERIFY(ElementSearch(document.lastChild()).FirstMatch(name, emptyStart).isNull());
    QVERIFY(ElementSearch(document.lastChild()).FirstMatch(name, start).isNull());
}

void TestElementSearch::searchesNothingWithinOtherNodes()
{
    QDomDocument document = documentOf(QStringLiteral("<r><a/></r>"));
    QDomElement root = document.documentElement();
    const QDomNode own = root.firstChild();
    const QDomNode inner = root.insertBefore(documentOf(QStringLiteral("<a/>")), own);
    QVERIFY(inner.isDocument() && inner.hasChildNodes());
    const QString name = QStringLiteral("a");
    QVERIFY(matches(name, root, root) == std::list<QDomNode> {own});
    QVERIFY(ElementSearch(root).FirstMatch(name, root) == own);
}

void TestElementSearch::namesTheTopNodeItWasGiven()
{
    const QDomDocument document = documentOf(QStringLiteral("<r><a/></r>"));
    const QDomElement start = document.documentElement().firstChildElement();
    const QString name = QStringLiteral("a");
    QVERIFY(matches(name, start, document) == std::list<QDomNode> {document});
    QCOMPARE(ElementSearch(document.lastChild()).FirstMatch(name, start), document.lastChild());
    QVERIFY(matches(name, start, QDomNode()) == std::list<QDomNode> {QDomNode()});
}

void TestElementSearch::matchesFollowARecursion()
{
    RandomTree trees(30);
    for (int i = 0; i < 60; ++i) {
        const QDomDocument document = trees.MakeDocument(40);
        const QByteArray text = domText(document).toUtf8();
        const QDomNode top = document.lastChild();
        for (const QDomElement& start : elementsOf(document)) {
            for (const QString& name : soughtNames()) {
                std::list<QDomNode> expected;
                appendRecursively(name, start, top, expected);
                QVERIFY2(matches(name, start, top) == expected, text.constData());
            }
        }
    }
}

void TestElementSearch::firstMatchFollowsARecursion()
{
    RandomTree trees(31);
    for (int i = 0; i < 60; ++i) {
        const QDomDocument document = trees.MakeDocument(40);
        const QByteArray text = domText(document).toUtf8();
        const QDomNode top = document.lastChild();
        for (const QDomElement& start : elementsOf(document)) {
            for (const QString& name : soughtNames()) {
                const QDomElement expected = firstRecursively(name, start, top).toElement();
                QVERIFY2(ElementSearch(top).FirstMatch(name, start).toElement() == expected, text.constData());
            }
        }
    }
}

void TestElementSearch::startsAreComparedWithoutTheirPrefix()
{
    // Below an element that has the name but for its prefix, the search starts with a match: the top node.
    QDomDocument document = documentOf(QStringLiteral("<r><b><a id='second'/></b></r>"));
    QDomElement root = document.documentElement();
    QDomElement prefixed = document.createElementNS(QStringLiteral("urn:any"), QStringLiteral("p:a"));
    root.insertBefore(prefixed, root.firstChild());
    QDomElement first = document.createElement(QStringLiteral("a"));
    prefixed.appendChild(first);
    const QDomElement second = elementWithId(document, QStringLiteral("second"));
    const QDomNode comment = document.createComment(QStringLiteral("top"));

    const std::list<QDomNode> expected {comment, first, second};
    QVERIFY(matches(QStringLiteral("a"), root, comment) == expected);
    // A top node that is an element is the result; one that is not ends the search below, and it goes on behind.
    QVERIFY(ElementSearch(root).FirstMatch(QStringLiteral("a"), root) == root);
    QVERIFY(ElementSearch(comment).FirstMatch(QStringLiteral("a"), root) == second);
    for (const QDomNode& top : {QDomNode(root), comment}) {
        QVERIFY(firstRecursively(QStringLiteral("a"), root, top)
                == ElementSearch(top).FirstMatch(QStringLiteral("a"), root));
    }
}

void TestElementSearch::isMatchKnowsReportedNodes_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("node");
    QTest::addColumn<bool>("isMatch");

    // In <r id='top'><a id='1'><a id='2'/></a><b id='3'><a id='4'/></b></r>, sought is a.
    QTest::newRow("child-of-the-name-is-a-match") << QStringLiteral("top") << QStringLiteral("1") << true;
    QTest::newRow("match-inside-a-match-is-none") << QStringLiteral("top") << QStringLiteral("2") << false;
    QTest::newRow("match-further-below-is-one") << QStringLiteral("top") << QStringLiteral("4") << true;
    QTest::newRow("element-of-another-name-is-no-match") << QStringLiteral("top") << QStringLiteral("3") << false;
    QTest::newRow("start-itself-is-no-match") << QStringLiteral("1") << QStringLiteral("1") << false;
    QTest::newRow("top-node-is-a-match-in-place-of-the-start") << QStringLiteral("1") << QStringLiteral("top") << true;
    QTest::newRow("match-inside-a-matching-start-is-one") << QStringLiteral("1") << QStringLiteral("2") << true;
    QTest::newRow("element-beside-the-start-is-no-match") << QStringLiteral("3") << QStringLiteral("1") << false;
    QTest::newRow("top-node-is-no-match-for-a-start-of-another-name")
        << QStringLiteral("3") << QStringLiteral("top") << false;
}

void TestElementSearch::isMatchKnowsReportedNodes()
{
    QFETCH(QString, start);
    QFETCH(QString, node);
    QFETCH(bool, isMatch);
    const QDomDocument document
        = documentOf(QStringLiteral("<r id='top'><a id='1'><a id='2'/></a><b id='3'><a id='4'/></b></r>"));
    const ElementSearch search(document.lastChild());
    QCOMPARE(search.IsMatch(QStringLiteral("a"), elementWithId(document, start), elementWithId(document, node)),
             isMatch);
}

void TestElementSearch::isMatchKnowsNothingOfOtherDocuments()
{
    const QDomDocument document = documentOf(QStringLiteral("<r><a/></r>"));
    const QDomDocument other = documentOf(QStringLiteral("<r><a/></r>"));
    const ElementSearch search(document.lastChild());
    const QString name = QStringLiteral("a");
    QVERIFY(!search.IsMatch(name, document.documentElement(), other.documentElement().firstChild()));
    QVERIFY(!search.IsMatch(name, document.documentElement(), QDomNode()));
    QVERIFY(!search.IsMatch(name, document.documentElement(), QDomDocument().createElement(name)));
}

void TestElementSearch::isMatchAgreesWithTheSearch_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 40; ++seed) {
        QTest::newRow(qPrintable(QStringLiteral("trees-of-seed-%1").arg(seed))) << seed;
    }
}

void TestElementSearch::isMatchAgreesWithTheSearch()
{
    QFETCH(unsigned, seed);
    const QDomDocument document = RandomTree(seed).MakeDocument(40);
    const QByteArray text = domText(document).toUtf8();
    const std::vector<QDomNode> nodes = nodesOf(document);
    const ElementSearch search(document.lastChild());
    for (const QDomElement& start : elementsOf(document)) {
        for (const QString& name : soughtNames()) {
            const std::list<QDomNode> reported = matches(name, start, document.lastChild());
            for (const QDomNode& node : nodes) {
                const bool isReported = std::find(reported.begin(), reported.end(), node) != reported.end();
                QVERIFY2(search.IsMatch(name, start, node) == isReported, text.constData());
            }
        }
    }
}

QTEST_GUILESS_MAIN(TestElementSearch)
#include "tst_internals_elementsearch.moc"
