#include <QBuffer>
#include <QtTest>

#include <xmlhelperreports/journalstore_p.h>
#include <xmlhelperreports/reportjournal.h>

#include "station.h"

/// Tables of reports, and whether their files are as they were.
class TestReportJournalExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writesARowForEachReport();
    void quotesAsTheRuleIs_data();
    void quotesAsTheRuleIs();
    void standsInWithWhatItRemembers();
    void looksAtFilesOfThisStationOnly();
    void saysThatADeviceIsFull();
    void tellsWhatBecameOfFiles_data();
    void tellsWhatBecameOfFiles();

private:
    /// Takes in what lies in the folder.
    void takeIn(ReportJournal& journal, int count);
    QString path(const char* name) const { return m_station->PathOf(QLatin1String(name)); }

    std::unique_ptr<Station> m_station;
};

void TestReportJournalExport::init()
{
    m_station = std::make_unique<Station>();
    QVERIFY(QDir().mkpath(path("reports")));
}

void TestReportJournalExport::takeIn(ReportJournal& journal, int count)
{
    QVERIFY(journal.Open(path("journal.sqlite")));
    const QSignalSpy spy(&journal, &ReportJournal::TakenIn);
    journal.TakeIn(path("reports"));
    QTRY_COMPARE(int(spy.size()), 1);
    QCOMPARE(spy[0][1].toInt(), count);
}

void TestReportJournalExport::writesARowForEachReport()
{
    writeFile(path("reports/a.xml"), "<R><F Unit='Hz'>1</F><F>2</F><Comment>fine</Comment></R>");
    ReportJournal journal;
    takeIn(journal, 1);
    const ReportJournal::Entry entry = journal.Search({})[0];
    QVERIFY(journal.SetLabel(entry.id, QStringLiteral("good")));
    QBuffer table;
    QVERIFY(table.open(QIODevice::WriteOnly));
    const QStringList elements {QStringLiteral("F[2]"), QStringLiteral("F@Unit"), QStringLiteral("G")};
    QCOMPARE(journal.Export(table, {}, elements), QStringList());
    const QStringList row {entry.begun.toString(Qt::ISODateWithMs), QSysInfo::machineHostName(), path("reports/a.xml"),
                           QString(), QStringLiteral("Found,fine,good,2,Hz,")};
    QCOMPARE(table.data(),
             "Time,Station,Report,Schema,Verdict,Comment,Label,F[2],F@Unit,G\r\n" + row.join(QLatin1Char(',')).toUtf8()
                 + "\r\n");
}

void TestReportJournalExport::quotesAsTheRuleIs_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("cell");
    QTest::newRow("plain") << "98.5 MHz"
                           << "98.5 MHz";
    QTest::newRow("separator") << "98,5"
                               << "\"98,5\"";
    QTest::newRow("quotation-mark") << "19\" rack"
                                    << "\"19\"\" rack\"";
    QTest::newRow("line-end") << "one\ntwo"
                              << "\"one\ntwo\"";
    QTest::newRow("letters-of-all-kinds") << QStringLiteral("µV—Ω") << QStringLiteral("µV—Ω");
}

void TestReportJournalExport::quotesAsTheRuleIs()
{
    QFETCH(QString, value);
    QFETCH(QString, cell);
    writeFile(path("reports/a.xml"), "<R><V>" + value.toUtf8() + "</V></R>");
    ReportJournal journal;
    takeIn(journal, 1);
    QBuffer table;
    QVERIFY(table.open(QIODevice::WriteOnly));
    QCOMPARE(journal.Export(table, {}, {QStringLiteral("V")}), QStringList());
    QVERIFY2(table.data().endsWith("," + cell.toUtf8() + "\r\n"), table.data().constData());
}

void TestReportJournalExport::standsInWithWhatItRemembers()
{
    writeFile(path("reports/a.xml"), "<R><F>98.5</F></R>");
    ReportJournal journal;
    journal.SetValueNames({QStringLiteral("F")});
    takeIn(journal, 1);
    QVERIFY(QFile::remove(path("reports/a.xml")));
    QBuffer table;
    QVERIFY(table.open(QIODevice::WriteOnly));
    const QStringList faults = journal.Export(table, {}, {QStringLiteral("F")});
    QCOMPARE(faults, QStringList(path("reports/a.xml") + QStringLiteral(" cannot be read")));
    QVERIFY(table.data().endsWith(",98.5\r\n"));
}

/// Another station may have had a file of that name, with another content.
void TestReportJournalExport::looksAtFilesOfThisStationOnly()
{
    writeFile(path("reports/a.xml"), "<R><F>98.5</F></R>");
    ReportJournal journal;
    takeIn(journal, 1);
    JournalStore store;
    QCOMPARE(store.OpenFile(path("journal.sqlite")), JournalStore::Outcome::Opened);
    StoredEntry entry;
    entry.id = QStringLiteral("of-another");
    entry.station = QStringLiteral("another than ") + QSysInfo::machineHostName();
    entry.path = path("reports/a.xml");
    entry.hash = "0123";
    entry.values.insert(QStringLiteral("F"), QStringLiteral("120"));
    QVERIFY(store.Put(entry));
    QCOMPARE(int(journal.Verify({}).size()), 0);
    QBuffer table;
    QVERIFY(table.open(QIODevice::WriteOnly));
    QCOMPARE(journal.Export(table, {}, {QStringLiteral("F")}), QStringList());
    QVERIFY2(table.data().contains(",120\r\n") && table.data().contains(",98.5\r\n"), table.data().constData());
}

void TestReportJournalExport::saysThatADeviceIsFull()
{
    ReportJournal journal;
    QVERIFY(journal.Open(path("journal.sqlite")));
    QBuffer closed;
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::write (QBuffer): device not open");
    const QStringList faults = journal.Export(closed, {}, {});
    QCOMPARE(int(faults.size()), 1);
    QVERIFY(faults[0].contains(QStringLiteral("not all could be written")));
}

void TestReportJournalExport::tellsWhatBecameOfFiles_data()
{
    QTest::addColumn<QByteArray>("content"); // null for a file that is removed
    QTest::addColumn<QString>("fault");
    QTest::newRow("as-it-was") << QByteArray("<R>98.5</R>") << QString();
    QTest::newRow("gone") << QByteArray() << "there is no such file any more";
    QTest::newRow("longer") << QByteArray("<R>98.55</R>") << "the file has changed, it has 12 bytes instead of 11";
    QTest::newRow("another-of-its-size") << QByteArray("<R>98.6</R>") << "the file has changed";
}

void TestReportJournalExport::tellsWhatBecameOfFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, fault);
    writeFile(path("reports/a.xml"), "<R>98.5</R>");
    writeFile(path("reports/b.xml"), "<R>98.5</R>");
    ReportJournal journal;
    takeIn(journal, 2);
    QVERIFY(!journal.Record({}).isEmpty()); // Never written.
    QVERIFY(QFile::remove(path("reports/a.xml")));
    if (!content.isNull()) {
        writeFile(path("reports/a.xml"), content);
    }
    const std::vector<ReportJournal::Finding> findings = journal.Verify({});
    QCOMPARE(int(findings.size()), fault.isEmpty() ? 0 : 1);
    if (!fault.isEmpty()) {
        QCOMPARE(findings[0].fault, fault);
        QCOMPARE(findings[0].entry.path, path("reports/a.xml"));
    }
}

QTEST_GUILESS_MAIN(TestReportJournalExport)
#include "tst_reportjournal_export.moc"
