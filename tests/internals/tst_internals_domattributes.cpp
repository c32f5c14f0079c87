#include <QDomDocument>
#include <QSet>
#include <QtTest>

#include <xmlhelper/domattributes_p.h>

#include "cputime.h"
#include "domtext.h"

class TestDomAttributes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsInTheOrderOfTheMap_data();
    void listsInTheOrderOfTheMap();
    void listsManyThatReadBackAsOthers_data();
    void listsManyThatReadBackAsOthers();
    void listsThoseOfAnElementWithMuchBelowIt();
    void takesATimeThatGrowsWithTheirNumber();
    void takesNoTimeForWhatIsBelow();
};

namespace {

void setAttributes(QDomElement element, int count)
{
    for (int i = 0; i < count; ++i) {
        element.setAttribute(QStringLiteral("name%1").arg(i), i);
    }
}

double secondsToList(const QDomElement& element, int times)
{
    const double begin = cpuSeconds();
    for (int i = 0; i < times; ++i) {
        const int count = int(attributesOf(element).size());
        Q_ASSERT(count == element.attributes().count());
        Q_UNUSED(count)
    }
    return cpuSeconds() - begin;
}

} // namespace

void TestDomAttributes::listsInTheOrderOfTheMap_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("oddName");
    QTest::newRow("no-attribute") << 0 << QString();
    QTest::newRow("one-attribute") << 1 << QString();
    QTest::newRow("few-attributes") << 500 << QString();
    QTest::newRow("many-attributes") << 501 << QString();
    QTest::newRow("thousands-of-attributes") << 5000 << QString();
    QTest::newRow("many-with-a-prefix-among-them") << 600 << QStringLiteral("x:y");
    QTest::newRow("many-with-a-namespace-declaration-among-them") << 600 << QStringLiteral("xmlns");
    QTest::newRow("many-with-a-name-that-cannot-be-read-back") << 600 << QStringLiteral("not a name");
    QTest::newRow("many-with-a-name-that-reads-back-as-others") << 600 << QStringLiteral("a=\"b\" c");
}

void TestDomAttributes::listsInTheOrderOfTheMap()
{
    QFETCH(int, count);
    QFETCH(QString, oddName);
    QDomDocument document = documentOf(QStringLiteral("<r><child inner='1'/></r>"));
    QDomElement element = document.documentElement();
    for (int i = 0; i < count; ++i) {
        element.setAttribute(QStringLiteral("name%1").arg(i), QStringLiteral("<\"value\"> & %1").arg(i));
    }
    if (!oddName.isEmpty()) {
        element.setAttribute(oddName, QStringLiteral("odd"));
    }
    const DomAttributes attributes = attributesOf(element);
    const QDomNamedNodeMap map = element.attributes();
    QCOMPARE(int(attributes.size()), map.count());
    for (int i = 0; i < map.count(); ++i) {
        QVERIFY(attributes[i] == map.item(i));
    }
}

void TestDomAttributes::listsManyThatReadBackAsOthers_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("last-value-seems-a-name") << QStringLiteral(" b");
    QTest::newRow("last-value-seems-an-attribute-that-does-not-end") << QStringLiteral(" b=");
}

void TestDomAttributes::listsManyThatReadBackAsOthers()
{
    QFETCH(QString, value);
    QDomDocument document = documentOf(QStringLiteral("<r/>"));
    QDomElement element = document.documentElement();
    for (int i = 0; i < 501; ++i) {
        element.setAttribute(QStringLiteral("name%1=\"").arg(i), value);
    }
    const DomAttributes attributes = attributesOf(element);
    QCOMPARE(int(attributes.size()), 501);
    for (int i = 0; i < 501; ++i) {
        QVERIFY(attributes[i] == element.attributes().item(i));
    }
}

void TestDomAttributes::listsThoseOfAnElementWithMuchBelowIt()
{
    QDomDocument document
        = documentOf(QStringLiteral("<r><a><b/></a>%1</r>").arg(QStringLiteral("<c/>").repeated(2000)));
    QDomElement element = document.documentElement();
    QSet<QString> names;
    for (int i = 0; i < 1000; ++i) {
        names.insert(QStringLiteral("name%1").arg(i));
        element.setAttribute(QStringLiteral("name%1").arg(i), i);
    }
    for (const QDomAttr& attribute : attributesOf(element)) {
        QVERIFY(names.remove(attribute.name()));
        QVERIFY(attribute.ownerElement() == element);
        QVERIFY(element.attributeNode(attribute.name()) == attribute);
    }
    QVERIFY(names.isEmpty());
}

void TestDomAttributes::takesATimeThatGrowsWithTheirNumber()
{
    // Counting each from the start needs half a minute.
    QDomDocument document = documentOf(QStringLiteral("<r>text</r>"));
    setAttributes(document.documentElement(), 40000);
    const double seconds = secondsToList(document.documentElement(), 1);
    QVERIFY2(seconds < 5, qPrintable(QString::number(seconds)));
}

void TestDomAttributes::takesNoTimeForWhatIsBelow()
{
    // Saving that needs a hundred times as much.
    QDomDocument document = documentOf(QStringLiteral("<r><a/>%1</r>").arg(QStringLiteral("<b/>").repeated(100000)));
    const QDomElement root = document.documentElement();
    setAttributes(root, 501);
    setAttributes(root.firstChildElement(), 501);
    const double ofALeaf = secondsToList(root.firstChildElement(), 20);
    const double ofTheRoot = secondsToList(root, 20);
    QVERIFY2(ofTheRoot < 10 * (ofALeaf + CpuTimeStep),
             qPrintable(QStringLiteral("%1 and %2").arg(ofALeaf).arg(ofTheRoot)));
}

QTEST_GUILESS_MAIN(TestDomAttributes)
#include "tst_internals_domattributes.moc"
