#include <QtTest>

#include <limits>
#include <memory>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuenumeric.h>
#include <valueframework/valueselection.h>
#include <valueframework/valuetext.h>

#include "reportingscene.h"
#include "tracecollector.h"

// What clients are warned of goes on doing what it did.
QT_WARNING_DISABLE_DEPRECATED

namespace {

using AddItem = void (*)(VCReporting&);

QString stringElements(const QStringList& names)
{
    QString declarations;
    for (const QString& name : names) {
        declarations += declaredElement(name, QStringLiteral("string"));
    }
    return declarations;
}

QString addedItem(const char* arguments)
{
    return QStringLiteral("VCReporting::AddReportData(%1)").arg(QLatin1String(arguments));
}

} // namespace

Q_DECLARE_METATYPE(AddItem)

class TestVCReportingItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tracesWhatIsAdded_data();
    void tracesWhatIsAdded();
    void tracesOnlyWithItsBitInTheMask_data();
    void tracesOnlyWithItsBitInTheMask();

    void keepsEveryItemThatIsAdded_data();
    void keepsEveryItemThatIsAdded();

    void addsEveryValueBelowANode();
    void addsNothingForANullNode();
    void addsValuesOfTheTreeAliveInReports();
    void addsValuesOfAFreeNodeWithoutTheirText();
    void addsItemsOfANodeForOneOccurrence();

    void deletesTheFirstItemOfThatName();
    void deletesOnlyTheExactName_data();
    void deletesOnlyTheExactName();
    void deletesQualifiedItemsByTheirFullName();
    void keepsTheOrderOfTheRest();
    void clearsEverything();
};

void TestVCReportingItems::tracesWhatIsAdded_data()
{
    QTest::addColumn<AddItem>("add");
    QTest::addColumn<QString>("expected");

    QTest::newRow("looked-up-or-fixed") << AddItem([](VCReporting& reporting) {
        reporting.AddReportData(QStringLiteral("Frequency"), QStringLiteral("Receiver/Frequency"),
                                QStringLiteral("98.5"), 3, QStringLiteral("%.2f"), 6, QStringLiteral("MHz"));
    }) << QStringLiteral("VCReporting::AddReportData(Frequency, Receiver/Frequency, 98.5, %.2f, 6, MHz)");
    QTest::newRow("looked-up-or-fixed-with-empty-arguments") << AddItem([](VCReporting& reporting) {
        reporting.AddReportData(QString(), QString(), QString(), 1, QString(), 0, QString());
    }) << QStringLiteral("VCReporting::AddReportData(, , , , 0, )");
    QTest::newRow("explicit-text") << AddItem([](VCReporting& reporting) {
        reporting.AddExplicitReportData(QStringLiteral("Site"), QStringLiteral("M\u00FCnchen"), 1, QStringLiteral("f"),
                                        -2, QStringLiteral("dB\u00B5V"));
    }) << QStringLiteral("VCReporting::AddExplicitReportData(Site, M\u00FCnchen, f, -2, dB\u00B5V)");
    // The conversion %f4.2 writes six decimals and then "4.2".
    QTest::newRow("explicit-double-shows-4.2-behind-its-six-decimals") << AddItem([](VCReporting& reporting) {
        reporting.AddExplicitReportData(QStringLiteral("Level"), 17.5, 1, QStringLiteral("f"), 1,
                                        QStringLiteral("dBm"));
    }) << QStringLiteral("VCReporting::AddExplicitReportData(Level, 17.5000004.2, f, 1, dBm)");
    QTest::newRow("explicit-bool-true") << AddItem([](VCReporting& reporting) {
        reporting.AddExplicitReportData(QStringLiteral("Locked"), true, 1, QStringLiteral("f"), 0, QStringLiteral("u"));
    }) << QStringLiteral("VCReporting::AddExplicitReportData(Locked, true, f, 0, u)");
    QTest::newRow("explicit-bool-false") << AddItem([](VCReporting& reporting) {
        reporting.AddExplicitReportData(QStringLiteral("Locked"), false, 1, QStringLiteral("f"), 0,
                                        QStringLiteral("u"));
    }) << QStringLiteral("VCReporting::AddExplicitReportData(Locked, false, f, 0, u)");
    QTest::newRow("explicit-long") << AddItem([](VCReporting& reporting) {
        reporting.AddExplicitReportData(QStringLiteral("Channel"), -42L, 1, QStringLiteral("f"), 3,
                                        QStringLiteral("u"));
    }) << QStringLiteral("VCReporting::AddExplicitReportData(Channel, -42, f, 3, u)");
    // As the report shows it. Where long has 32 bits its limits are these limits themselves.
    QTest::newRow("greatest-long-shows-the-upper-limit") << AddItem([](VCReporting& reporting) {
        reporting.AddExplicitReportData(QStringLiteral("Channel"), std::numeric_limits<long>::max(), 1,
                                        QStringLiteral("f"), 3, QStringLiteral("u"));
    }) << QStringLiteral("VCReporting::AddExplicitReportData(Channel, 2147483647, f, 3, u)");
    QTest::newRow("least-long-shows-the-lower-limit") << AddItem([](VCReporting& reporting) {
        reporting.AddExplicitReportData(QStringLiteral("Channel"), std::numeric_limits<long>::min(), 1,
                                        QStringLiteral("f"), 3, QStringLiteral("u"));
    }) << QStringLiteral("VCReporting::AddExplicitReportData(Channel, -2147483648, f, 3, u)");
}

void TestVCReportingItems::tracesWhatIsAdded()
{
    QFETCH(AddItem, add);
    QFETCH(QString, expected);
    ReportingScene scene(QString {});
    TraceCollector traces;
    add(scene.Reporting());
    QVERIFY2(traces.IsOnly(expected, QString(), 0), qPrintable(traces.Messages()));
}

void TestVCReportingItems::tracesOnlyWithItsBitInTheMask_data()
{
    QTest::addColumn<quint32>("mask");
    QTest::addColumn<std::size_t>("count");
    QTest::newRow("its-bit-alone") << 32u << std::size_t(5);
    QTest::newRow("its-bit-among-others") << ~0u << std::size_t(5);
    QTest::newRow("every-other-bit") << ~32u << std::size_t(0);
    QTest::newRow("no-bit") << 0u << std::size_t(0);
}

void TestVCReportingItems::tracesOnlyWithItsBitInTheMask()
{
    QFETCH(quint32, mask);
    QFETCH(std::size_t, count);
    ReportingScene scene(QString {});
    VCReporting& reporting = scene.Reporting();
    const QString name = QStringLiteral("Item");
    TraceCollector traces(mask);
    reporting.AddReportData(name, QString(), QString(), 1, QString(), 0, QString());
    reporting.AddExplicitReportData(name, QString(), 1, QString(), 0, QString());
    reporting.AddExplicitReportData(name, 1.0, 1, QString(), 0, QString());
    reporting.AddExplicitReportData(name, true, 1, QString(), 0, QString());
    reporting.AddExplicitReportData(name, 1L, 1, QString(), 0, QString());
    QCOMPARE(traces.Traces().size(), count);
}

void TestVCReportingItems::keepsEveryItemThatIsAdded_data()
{
    QTest::addColumn<AddItem>("add");

    // Each of them would be dropped if only items with a source were kept; kept, it gives its element an empty text.
    QTest::newRow("without-path-and-text") << AddItem([](VCReporting& reporting) {
        reporting.AddReportData(QStringLiteral("Site"), QString(), QString(), 1, QString(), 0, QString());
    });
    QTest::newRow("with-a-path-that-the-tree-does-not-know") << AddItem([](VCReporting& reporting) {
        reporting.AddReportData(QStringLiteral("Site"), QStringLiteral("Receiver/Site"), QStringLiteral("unused"), 1,
                                QString(), 0, QString());
    });
    QTest::newRow("with-an-explicit-text") << AddItem([](VCReporting& reporting) {
        reporting.AddExplicitReportData(QStringLiteral("Site"), QStringLiteral("unused"), 1, QString(), 0, QString());
    });
    QTest::newRow("with-an-explicit-double") << AddItem([](VCReporting& reporting) {
        reporting.AddExplicitReportData(QStringLiteral("Site"), 17.5, 1, QString(), 0, QString());
    });
}

void TestVCReportingItems::keepsEveryItemThatIsAdded()
{
    QFETCH(AddItem, add);
    const Tree tree;
    ReportingScene scene(stringElements({QStringLiteral("Site")}));
    add(scene.Reporting());
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Site/>")));
}

void TestVCReportingItems::addsEveryValueBelowANode()
{
    const Tree tree;
    auto* const receiver = new Node(QStringLiteral("Receiver"), tree.GetRoot());
    new ValueItem(new ValueNumeric(QStringLiteral("Frequency"), 98.5), receiver);
    auto* const demodulator = new Node(QStringLiteral("Demodulator"), receiver);
    new ValueItem(new ValueText(QStringLiteral("Mode"), QStringLiteral("FM")), demodulator);
    auto* const filter = new Node(QStringLiteral("Filter"), demodulator);
    new ValueItem(new ValueSelection(QStringLiteral("Bandwidth")), filter);
    new ValueItem(nullptr, receiver);
    new TreeItem(QStringLiteral("NeitherNodeNorValue"), receiver);
    new Node(QStringLiteral("Empty"), receiver);
    new ValueItem(new ValueNumeric(QStringLiteral("Level"), 17.0), receiver);

    ReportingScene scene(QString {});
    const TraceCollector traces;
    scene.Reporting().AddReportData(receiver);
    QCOMPARE(traces.Messages(),
             QStringList({addedItem("Frequency, Receiver/Frequency, , , 0, "),
                          addedItem("Mode, Receiver/Demodulator/Mode, , , 0, "),
                          addedItem("Bandwidth, Receiver/Demodulator/Filter/Bandwidth, , , 0, "),
                          addedItem("Level, Receiver/Level, , , 0, ")})
                 .join(QLatin1Char('\n')));
}

void TestVCReportingItems::addsNothingForANullNode()
{
    ReportingScene scene(QString {});
    const TraceCollector traces;
    scene.Reporting().AddReportData(nullptr);
    QCOMPARE(traces.Messages(), QString());
}

void TestVCReportingItems::addsValuesOfTheTreeAliveInReports()
{
    const Tree tree;
    auto* const receiver = new Node(QStringLiteral("Receiver"), tree.GetRoot());
    auto* const mode = new ValueText(QStringLiteral("Mode"), QStringLiteral("FM"));
    new ValueItem(mode, receiver);
    ReportingScene scene(stringElements({QStringLiteral("Mode")}));
    scene.Reporting().AddReportData(receiver);
    mode->SetText(QStringLiteral("AM"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Mode>AM</Mode>")));
}

void TestVCReportingItems::addsValuesOfAFreeNodeWithoutTheirText()
{
    Node free(QStringLiteral("Free"), nullptr);
    new ValueItem(new ValueText(QStringLiteral("Mode"), QStringLiteral("FM")), &free);
    ReportingScene scene(stringElements({QStringLiteral("Mode")}));
    scene.Reporting().AddReportData(&free);
    // The path leads nowhere, and the item is kept all the same.
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Mode/>")));
}

void TestVCReportingItems::addsItemsOfANodeForOneOccurrence()
{
    const Tree tree;
    new ValueItem(new ValueText(QStringLiteral("Mode"), QStringLiteral("FM")), tree.GetRoot());
    ReportingScene scene(QStringLiteral("<xs:element name='Mode' type='xs:string' maxOccurs='3'/>"));
    scene.Reporting().AddReportData(tree.GetRoot());
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Mode>FM</Mode>")));
}

void TestVCReportingItems::deletesTheFirstItemOfThatName()
{
    const QString site = QStringLiteral("Site");
    ReportingScene scene(stringElements({site}));
    scene.AddText(site, QStringLiteral("first"));
    scene.AddText(site, QStringLiteral("second"));

    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Site>first</Site>")));
    scene.Reporting().DeleteReportData(site);
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Site>second</Site>")));
    scene.Reporting().DeleteReportData(site);
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Site type='string'/>")));
    scene.Reporting().DeleteReportData(site);
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Site type='string'/>")));
}

void TestVCReportingItems::deletesOnlyTheExactName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("name-is-case-sensitive") << QStringLiteral("site");
    QTest::newRow("part-of-a-name-is-no-name") << QStringLiteral("Sit");
    QTest::newRow("longer-name-is-another-name") << QStringLiteral("Sites");
    QTest::newRow("empty-name") << QString();
}

void TestVCReportingItems::deletesOnlyTheExactName()
{
    QFETCH(QString, name);
    ReportingScene scene(stringElements({QStringLiteral("Site")}));
    scene.AddText(QStringLiteral("Site"), QStringLiteral("kept"));
    scene.Reporting().DeleteReportData(name);
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Site>kept</Site>")));
}

void TestVCReportingItems::deletesQualifiedItemsByTheirFullName()
{
    ReportingScene scene(stringElements({QStringLiteral("Site")}));
    scene.AddText(QStringLiteral("Report/Site"), QStringLiteral("qualified"));
    scene.Reporting().DeleteReportData(QStringLiteral("Site"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Site>qualified</Site>")));
    scene.Reporting().DeleteReportData(QStringLiteral("Report/Site"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Site type='string'/>")));
}

void TestVCReportingItems::keepsTheOrderOfTheRest()
{
    const QString site = QStringLiteral("Site");
    ReportingScene scene(stringElements({site}));
    scene.AddText(QStringLiteral("Other"), QStringLiteral("other"));
    for (const char* const text : {"first", "second", "third"}) {
        scene.AddText(site, QLatin1String(text));
    }
    scene.Reporting().DeleteReportData(QStringLiteral("Other"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Site>first</Site>")));
    scene.Reporting().DeleteReportData(site);
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Site>second</Site>")));
    scene.Reporting().DeleteReportData(site);
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Site>third</Site>")));
}

void TestVCReportingItems::clearsEverything()
{
    ReportingScene scene(stringElements({QStringLiteral("Site"), QStringLiteral("Mode")}));
    scene.AddText(QStringLiteral("Site"), QStringLiteral("Berlin"));
    scene.AddText(QStringLiteral("Mode"), QStringLiteral("FM"));
    scene.Reporting().ClearReportData();
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Site type='string'/><Mode type='string'/>")));
    scene.Reporting().ClearReportData();

    scene.AddText(QStringLiteral("Mode"), QStringLiteral("AM"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Site type='string'/><Mode>AM</Mode>")));
}

QTEST_MAIN(TestVCReportingItems)
#include "tst_vcreporting_items.moc"
