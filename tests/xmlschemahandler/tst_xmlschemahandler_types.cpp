#include <QtTest>

#include "expectedfile.h"
#include "schemafixture.h"
#include "tracecollector.h"

/// What the types, restrictions, extensions and attributes of a schema lay into the skeleton. Each file of data/types
/// shows one rule; its skeleton is beside it.
class TestXmlSchemaHandlerTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laysOut_data();
    void laysOut();
};

void TestXmlSchemaHandlerTypes::laysOut_data()
{
    addRowsForDataFiles(QFINDTESTDATA("data/types"));
}

void TestXmlSchemaHandlerTypes::laysOut()
{
    QFETCH(QString, path);
    TraceCollector traces;
    SchemaFixture schema(path + QStringLiteral(".xsd"));

    QVERIFY(schema.ReadFile(path + QStringLiteral(".xsd")));
    COMPARE_WITH_FILE(schema.Skeleton(), path + QStringLiteral(".skeleton"));
    QCOMPARE(schema.Events(), QStringList());

    // The handler itself does without namespaces, which makes no difference.
    SchemaFixture schemaByHandler(path + QStringLiteral(".xsd"));
    QVERIFY(schemaByHandler.ReadFileByHandler(path + QStringLiteral(".xsd")));
    QCOMPARE(schemaByHandler.Skeleton(), expectedText(path + QStringLiteral(".skeleton")));
    QCOMPARE(schemaByHandler.Events(), QStringList());
    QCOMPARE(traces.Messages(), QString());
}

QTEST_GUILESS_MAIN(TestXmlSchemaHandlerTypes)
#include "tst_xmlschemahandler_types.moc"
