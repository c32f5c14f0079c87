#include <QtTest>

#include <algorithm>

#include <QDomDocument>

#include <xmlhelper/domextent_p.h>

#include "domtext.h"
#include "randomtree.h"

class TestDomExtent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void measuresDocuments_data();
    void measuresDocuments();
    void measuresOnlyWhatIsBelowTheNode();
    void measuresFragments();
    void findsNothingInOtherNodes();
    void measuresDeepDocuments();
    void agreesWithARecursion();

    void countsTheLevelsAboveANode();
    void countsNoLevelForWhatIsNoElement();
    void deepestLevelIsTheExtentOfTheDocument();
};

namespace {

DomExtent recursiveExtentOf(const QDomNode& node)
{
    DomExtent below {0, 0, 0};
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const DomExtent extent = recursiveExtentOf(child);
        below.elements += extent.elements;
        below.levels = std::max(below.levels, extent.levels);
        below.attributes += extent.attributes;
    }
    const int own = node.isElement() ? 1 : 0;
    return {below.elements + own, below.levels + own, below.attributes + node.toElement().attributes().count()};
}

} // namespace

void TestDomExtent::measuresDocuments_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("elements");
    QTest::addColumn<int>("levels");
    QTest::addColumn<int>("attributes");

    QTest::newRow("root-alone-is-one-level") << QStringLiteral("<r/>") << 1 << 1 << 0;
    QTest::newRow("siblings-share-their-level") << QStringLiteral("<r><a/><b/><c/></r>") << 4 << 2 << 0;
    QTest::newRow("deepest-branch-counts") << QStringLiteral("<r><a/><b><c><d/></c></b><e><f/></e></r>") << 7 << 4 << 0;
    QTest::newRow("attributes-of-all-elements-count")
        << QStringLiteral("<r k='1'><a/><b k='1' l='2'><c m='3'/></b></r>") << 4 << 3 << 4;
    QTest::newRow("texts-comments-and-instructions-do-not-count")
        << QStringLiteral("<!--c--><r>x<a>y<!--c--><?t d?><![CDATA[z]]></a></r><!--c-->") << 2 << 2 << 0;
    QTest::newRow("declaration-and-document-type-do-not-count")
        << QStringLiteral("<?xml version='1.0'?><!DOCTYPE r [<!ENTITY e 'x'>]><r><a/></r>") << 2 << 2 << 0;
}

void TestDomExtent::measuresDocuments()
{
    QFETCH(QString, xml);
    QFETCH(int, elements);
    QFETCH(int, levels);
    QFETCH(int, attributes);
    const DomExtent extent = extentOf(documentOf(xml));
    QCOMPARE(extent.elements, elements);
    QCOMPARE(extent.levels, levels);
    QCOMPARE(extent.attributes, attributes);
}

void TestDomExtent::measuresOnlyWhatIsBelowTheNode()
{
    const QDomDocument document = documentOf(QStringLiteral("<r><a><x><y/></x></a><b><c/></b><d><e><f/></e></d></r>"));
    const DomExtent extent = extentOf(document.documentElement().firstChildElement(QStringLiteral("b")));
    QCOMPARE(extent.elements, 2);
    QCOMPARE(extent.levels, 2);
}

void TestDomExtent::measuresFragments()
{
    QDomDocument document = documentOf(QStringLiteral("<r><a><b/></a><c/></r>"));
    QDomDocumentFragment fragment = document.createDocumentFragment();
    QCOMPARE(extentOf(fragment).elements, 0);
    QCOMPARE(extentOf(fragment).levels, 0);
    while (document.documentElement().hasChildNodes()) {
        fragment.appendChild(document.documentElement().firstChild());
    }
    QCOMPARE(extentOf(fragment).elements, 3);
    QCOMPARE(extentOf(fragment).levels, 2);
}

void TestDomExtent::findsNothingInOtherNodes()
{
    const QDomDocument document = documentOf(QStringLiteral("<r>x<!--c--></r>"));
    QCOMPARE(extentOf(QDomNode()).elements, 0);
    QCOMPARE(extentOf(QDomNode()).levels, 0);
    QCOMPARE(extentOf(QDomDocument()).elements, 0);
    QCOMPARE(extentOf(document.documentElement().firstChild()).elements, 0);
    QCOMPARE(extentOf(document.documentElement().lastChild()).levels, 0);
}

void TestDomExtent::measuresDeepDocuments()
{
    const int levels = 600;
    const QDomDocument document
        = documentOf(QStringLiteral("<e>").repeated(levels) + QStringLiteral("</e>").repeated(levels));
    QCOMPARE(extentOf(document).elements, levels);
    QCOMPARE(extentOf(document).levels, levels);
}

void TestDomExtent::agreesWithARecursion()
{
    RandomTree trees(20);
    for (int i = 0; i < 100; ++i) {
        const QDomDocument document = trees.MakeDocument(60);
        const QByteArray text = domText(document).toUtf8();
        for (const QDomNode& node : nodesOf(document)) {
            const DomExtent expected = recursiveExtentOf(node);
            const DomExtent extent = extentOf(node);
            QVERIFY2(extent.elements == expected.elements && extent.levels == expected.levels
                         && extent.attributes == expected.attributes,
                     text.constData());
        }
    }
}

void TestDomExtent::countsTheLevelsAboveANode()
{
    QDomDocument document = documentOf(QStringLiteral("<r><a><b/></a></r>"));
    const QDomElement root = document.documentElement();
    QCOMPARE(levelOf(root), 1);
    QCOMPARE(levelOf(root.firstChild()), 2);
    QCOMPARE(levelOf(root.firstChild().firstChild()), 3);
    QCOMPARE(levelOf(document.createElement(QStringLiteral("free"))), 1);

    QDomDocumentFragment fragment = document.createDocumentFragment();
    const QDomNode moved = fragment.appendChild(root.firstChild());
    QCOMPARE(levelOf(moved), 1);
    QCOMPARE(levelOf(moved.firstChild()), 2);
}

void TestDomExtent::countsNoLevelForWhatIsNoElement()
{
    const QDomDocument document = documentOf(QStringLiteral("<r>x</r>"));
    QCOMPARE(levelOf(QDomNode()), 0);
    QCOMPARE(levelOf(document), 0);
    QCOMPARE(levelOf(document.documentElement().firstChild()), 1);
}

void TestDomExtent::deepestLevelIsTheExtentOfTheDocument()
{
    RandomTree trees(21);
    for (int i = 0; i < 100; ++i) {
        const QDomDocument document = trees.MakeDocument(60);
        int deepest = 0;
        for (const QDomNode& node : nodesOf(document)) {
            deepest = std::max(deepest, levelOf(node));
        }
        QCOMPARE(deepest, extentOf(document).levels);
    }
}

QTEST_GUILESS_MAIN(TestDomExtent)
#include "tst_internals_domextent.moc"
