#include <QDomDocument>
#include <QtTest>

#include <xmlhelper/domattributes.h>

#include "domtext.h"

class TestDomAttributes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsInTheOrderOfTheMap_data();
    void listsInTheOrderOfTheMap();
};

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
    QTest::newRow("many-with-a-name-that-reads-back-as-others") << 600 << QStringLiteral("a='b' c");
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

QTEST_GUILESS_MAIN(TestDomAttributes)
#include "tst_internals_domattributes.moc"
