#include <atomic>

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

#include <xmlhelper/reportnews.h>
#include <xmlhelperreports/journalsender_p.h>
#include <xmlhelperreports/reportjournal.h>

#include "station.h"

using Entries = std::vector<ReportJournal::Entry>;

namespace {

const QByteArray Survey("<Survey><Station>Tower</Station><Emission><Frequency Unit=\"Hz\">98.5e6</Frequency></Emission>"
                        "<Emission><Frequency Unit=\"kHz\">120</Frequency></Emission>"
                        "<Comment>After the storm, &lt;mast&gt; leans</Comment></Survey>");

/// The ids in the order of a search.
QStringList idsOf(const Entries& entries)
{
    QStringList ids;
    for (const ReportJournal::Entry& entry : entries) {
        ids.append(entry.id);
    }
    return ids;
}

} // namespace

/// What the journal remembers of a process's reports, and how that is found again.
class TestReportJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void remembersAWrittenReport();
    void followsAReportInOneEntry();
    void remembersAReportThatIsNotWritten();
    void goesOnWithTheEntryOfAnEarlierProcess();
    void goesOnWithTheEntriesOfAnotherJournalObject_data();
    void goesOnWithTheEntriesOfAnotherJournalObject();
    void keepsEarlierReportsOfTwoSupervisorsApart();
    void remembersWhatWasMadeBeforeItWatched();
    void writesAtTheEndWhatIsLeft();
    void keepsWhatItCannotWrite();
    void tellsOnceThatItCannotWrite();
    void takesValuesByTheirNames_data();
    void takesValuesByTheirNames();
    void givesValuesToTheNextReport();
    void findsByQuery_data();
    void findsByQuery();
    void givesPages();
    void keepsItsOrderWhenTheClockGoesBack();
    void keepsLabels();
    void looksForWhatOthersWriteToSendIt();
    void refusesWhatIsNoJournal_data();
    void refusesWhatIsNoJournal();

private:
    QString file() const { return m_station->PathOf(QStringLiteral("journal.sqlite")); }
    /// A journal that watches the station.
    std::unique_ptr<ReportJournal> watching();
    QString record(ReportJournal& journal, const QString& path, const QString& verdict = QStringLiteral("Written"));

    std::unique_ptr<Station> m_station;
};

void TestReportJournal::init()
{
    m_station = std::make_unique<Station>();
}

std::unique_ptr<ReportJournal> TestReportJournal::watching()
{
    auto journal = std::make_unique<ReportJournal>();
    QString message;
    if (!journal->Open(file(), &message)) {
        qFatal("%s", qPrintable(message));
    }
    journal->Watch(m_station->Supervisor());
    return journal;
}

QString TestReportJournal::record(ReportJournal& journal, const QString& path, const QString& verdict)
{
    ReportJournal::Entry entry;
    entry.path = path;
    entry.verdict = verdict;
    return journal.Record(entry);
}

void TestReportJournal::remembersAWrittenReport()
{
    const QString path = m_station->PathOf(QStringLiteral("survey.xml"));
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
    {
        const auto journal = watching();
        m_station->Write(m_station->Begin(path), path, Survey);
        QTRY_VERIFY(!journal->Search({}).empty() && !journal->Search({}).front().hash.isEmpty());
    }
    ReportJournal later;
    QVERIFY(later.Open(file()));
    const Entries entries = later.Search({});
    QCOMPARE(int(entries.size()), 1);
    QCOMPARE(entries[0].number, qint64(1));
    QVERIFY(!QUuid::fromString(entries[0].id).isNull());
    QCOMPARE(entries[0].path, path);
    QCOMPARE(entries[0].schemaPath, QStringLiteral("survey.xsd"));
    QCOMPARE(entries[0].verdict, QStringLiteral("Written"));
    QCOMPARE(entries[0].comment, QStringLiteral("After the storm, <mast> leans"));
    QCOMPARE(entries[0].station, QSysInfo::machineHostName());
    QCOMPARE(entries[0].size, qint64(Survey.size()));
    QCOMPARE(entries[0].hash, QCryptographicHash::hash(Survey, QCryptographicHash::Sha256).toHex());
    QVERIFY(entries[0].begun >= before && entries[0].begun <= QDateTime::currentDateTimeUtc().addSecs(1));
    QCOMPARE(later.Find(entries[0].id).path, path);
    QCOMPARE(later.Find(QStringLiteral("nowhere")).id, QString());
}

void TestReportJournal::followsAReportInOneEntry()
{
    const QString path = m_station->PathOf(QStringLiteral("survey.xml"));
    const auto journal = watching();
    const QSignalSpy spy(journal.get(), &ReportJournal::Changed);
    const quint64 report = m_station->Begin(path);
    QTRY_COMPARE(int(journal->Search({}).size()), 1);
    QCOMPARE(journal->Search({})[0].verdict, QStringLiteral("Making"));
    m_station->Write(report, path, "<halved>");
    QTRY_COMPARE(journal->Search({})[0].verdict, QStringLiteral("NotWellFormed"));
    QVERIFY(!journal->Search({})[0].reason.isEmpty());
    QVERIFY(QFile::remove(path));
    m_station->Supervisor().Recheck(report);
    QTRY_COMPARE(journal->Search({})[0].verdict, QStringLiteral("Gone"));
    QCOMPARE(int(journal->Search({}).size()), 1);
    QCOMPARE(spy.last().at(0).toString(), journal->Search({})[0].id);
}

void TestReportJournal::remembersAReportThatIsNotWritten()
{
    const QString path = m_station->PathOf(QStringLiteral("nowhere/survey.xml"));
    const auto journal = watching();
    const quint64 report = m_station->Lose(path);
    QTRY_COMPARE(int(journal->Search({}).size()), 1);
    QTRY_COMPARE(journal->Search({})[0].verdict, QStringLiteral("Pending"));
    QCOMPARE(journal->Search({})[0].path, path);
    QCOMPARE(journal->Search({})[0].reason, QStringLiteral("no space left on device"));
    QCOMPARE(journal->Search({})[0].hash, QByteArray());
    const QString elsewhere = m_station->PathOf(QStringLiteral("elsewhere.xml"));
    QVERIFY(m_station->Supervisor().SaveElsewhere(report, elsewhere));
    QTRY_VERIFY(!journal->Search({})[0].hash.isEmpty());
    QCOMPARE(journal->Search({})[0].path, elsewhere);
    QCOMPARE(int(journal->Search({}).size()), 1);
}

/// Two reports of one path that an earlier process could not write keep their two entries.
void TestReportJournal::goesOnWithTheEntryOfAnEarlierProcess()
{
    const QString path = m_station->PathOf(QStringLiteral("nowhere/survey.xml"));
    QStringList ids;
    {
        const auto journal = watching();
        m_station->Lose(path, "<first/>");
        m_station->Lose(path, "<second/>");
        QTRY_COMPARE(int(journal->Search({}).size()), 2);
        ids = idsOf(journal->Search({}));
    }
    m_station->Restart();
    const auto journal = watching();
    QCOMPARE(m_station->Supervisor().TakeOverEarlier(), QStringList());
    QTRY_COMPARE(journal->Find(ids[0]).verdict, QStringLiteral("Offered"));
    QTRY_COMPARE(journal->Find(ids[1]).verdict, QStringLiteral("Offered"));
    const QString elsewhere = m_station->PathOf(QStringLiteral("elsewhere.xml"));
    QVERIFY(m_station->Supervisor().SaveElsewhere(ReportSupervisor::FirstEarlier, elsewhere));
    QTRY_COMPARE(journal->Find(ids[1]).verdict, QStringLiteral("Written"));
    QCOMPARE(journal->Find(ids[0]).verdict, QStringLiteral("Offered"));
    QCOMPARE(int(journal->Search({}).size()), 2);
}

void TestReportJournal::goesOnWithTheEntriesOfAnotherJournalObject_data()
{
    QTest::addColumn<bool>("isFound");
    QTest::newRow("told-of") << false;
    QTest::newRow("found-first-by-another-process") << true;
}

void TestReportJournal::goesOnWithTheEntriesOfAnotherJournalObject()
{
    QFETCH(bool, isFound);
    const QString path = m_station->PathOf(QStringLiteral("survey.xml"));
    const quint64 report = m_station->Begin(path);
    m_station->Write(report, path);
    QTRY_VERIFY(m_station->Supervisor().GetReport(report).isChecked);
    if (isFound) {
        ReportJournal::Entry found;
        found.path = path;
        found.verdict = QStringLiteral("Found");
        found.hash = QCryptographicHash::hash("<report/>", QCryptographicHash::Sha256).toHex();
        ReportJournal other;
        QVERIFY(other.Open(file()) && !other.Record(found).isEmpty());
    }
    for (int i = 0; i < 2; ++i) {
        const auto journal = watching();
        const QSignalSpy spy(journal.get(), &ReportJournal::Changed);
        QTRY_COMPARE(int(spy.size()), 1);
        QCOMPARE(int(journal->Search({}).size()), 1);
        QCOMPARE(journal->Search({})[0].verdict, QStringLiteral("Written"));
    }
}

/// Both give them the same numbers.
void TestReportJournal::keepsEarlierReportsOfTwoSupervisorsApart()
{
    for (int i = 1; i <= 2; ++i) {
        m_station->Lose(m_station->PathOf(QStringLiteral("nowhere/%1.xml").arg(i)));
        m_station->Restart();
        QCOMPARE(m_station->Supervisor().TakeOverEarlier(), QStringList());
        const auto journal = watching();
        QTRY_COMPARE(int(journal->Search({}).size()), i);
        QVERIFY(m_station->Supervisor().Discard(ReportSupervisor::FirstEarlier));
        QTRY_COMPARE(journal->Search({})[0].verdict, QStringLiteral("Discarded"));
    }
}

void TestReportJournal::remembersWhatWasMadeBeforeItWatched()
{
    const QString path = m_station->PathOf(QStringLiteral("survey.xml"));
    const quint64 report = m_station->Begin(path);
    m_station->Write(report, path);
    QTRY_VERIFY(m_station->Supervisor().GetReport(report).isChecked);
    const auto journal = watching();
    QTRY_COMPARE(int(journal->Search({}).size()), 1);
    QVERIFY(!journal->Search({})[0].hash.isEmpty());
}

/// A report at the moment before a program ends, of which the supervisor has not told yet.
void TestReportJournal::writesAtTheEndWhatIsLeft()
{
    const QString path = m_station->PathOf(QStringLiteral("survey.xml"));
    {
        const auto journal = watching();
        m_station->Write(m_station->Begin(path), path);
    }
    ReportJournal later;
    QVERIFY(later.Open(file()));
    QCOMPARE(int(later.Search({}).size()), 1);
    QVERIFY(!later.Search({})[0].hash.isEmpty());
}

/// More reports than the supervisor remembers, while the journal's place is taken.
void TestReportJournal::keepsWhatItCannotWrite()
{
#ifndef Q_OS_UNIX
    QSKIP("This system does not rename files in use.");
#endif
    const int count = ReportSupervisor::MaxFinished + 100;
    const auto journal = watching();
    const QSignalSpy spy(journal.get(), &ReportJournal::Troubled);
    QVERIFY(QFile::rename(file(), m_station->PathOf(QStringLiteral("away"))));
    QVERIFY(QDir().mkdir(file()));
    quint64 last = 0;
    for (int i = 0; i < count; ++i) {
        const QString path = m_station->PathOf(QStringLiteral("%1.xml").arg(i));
        last = m_station->Begin(path);
        m_station->Write(last, path);
        QCoreApplication::processEvents();
    }
    QTRY_VERIFY(m_station->Supervisor().GetReport(last).isChecked);
    QCOMPARE(int(spy.size()), 1); // It is said once.
    QVERIFY(QDir().rmdir(file()));
    ReportJournal::Query all;
    all.limit = -1;
    QTRY_COMPARE_WITH_TIMEOUT(int(journal->Search(all).size()), count, 20000);
    QVERIFY(!journal->Search(all).back().hash.isEmpty());
}

/// That it can still be read is no news.
void TestReportJournal::tellsOnceThatItCannotWrite()
{
    ReportJournal journal;
    QVERIFY(journal.Open(file()));
    QVERIFY(!record(journal, QStringLiteral("a.xml")).isEmpty());
    const QSignalSpy spy(&journal, &ReportJournal::Troubled);
    {
        QSqlDatabase other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("other"));
        other.setDatabaseName(file());
        QVERIFY(other.open());
        QSqlQuery lock(other);
        QVERIFY(lock.exec(QStringLiteral("BEGIN IMMEDIATE")));
        for (int i = 0; i < 2; ++i) {
            QVERIFY(record(journal, QStringLiteral("b.xml")).isEmpty());
            QCOMPARE(journal.Search({}).size(), std::size_t(1));
        }
    }
    QSqlDatabase::removeDatabase(QStringLiteral("other"));
    QCOMPARE(spy.size(), 1);
    QVERIFY(!record(journal, QStringLiteral("c.xml")).isEmpty());
}

void TestReportJournal::takesValuesByTheirNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::newRow("by-name") << "Station"
                             << "Tower";
    QTest::newRow("by-end-of-path") << "Emission[2]/Frequency"
                                    << "120";
    QTest::newRow("from-the-root") << "/Survey/Station"
                                   << "Tower";
    QTest::newRow("below-the-root") << "./Station"
                                    << "Tower";
    QTest::newRow("attribute") << "Emission[1]/Frequency@Unit"
                               << "Hz";
    QTest::newRow("several") << "Frequency"
                             << "98.5e6; 120";
    QTest::newRow("not-below-the-root") << "./Frequency" << QString();
    QTest::newRow("not-there") << "Level" << QString();
    QTest::newRow("no-path") << "Emission[x]/Frequency" << QString();
    QTest::newRow("container") << "Emission" << QString();
}

void TestReportJournal::takesValuesByTheirNames()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    const QString path = m_station->PathOf(QStringLiteral("survey.xml"));
    const auto journal = watching();
    journal->SetValueNames({name});
    m_station->Write(m_station->Begin(path), path, Survey);
    QTRY_VERIFY(!journal->Search({}).empty() && !journal->Search({}).front().hash.isEmpty());
    QCOMPARE(journal->Search({})[0].values.value(name), value);
    QCOMPARE(journal->Search({})[0].values.contains(name), !value.isNull());
}

/// Also when several reports are made before the event loop goes on.
void TestReportJournal::givesValuesToTheNextReport()
{
    const auto journal = watching();
    for (const char* const frequency : {"98.5 MHz", "", "120 kHz"}) {
        if (*frequency) {
            journal->AddValue(QStringLiteral("Frequency"), QLatin1String(frequency));
        }
        const QString path = m_station->PathOf(QStringLiteral("survey.xml"));
        m_station->Write(m_station->Begin(path), path);
    }
    QTRY_COMPARE(int(journal->Search({}).size()), 3);
    const Entries entries = journal->Search({});
    QCOMPARE(entries[2].values.value(QStringLiteral("Frequency")), QStringLiteral("98.5 MHz"));
    QVERIFY(entries[1].values.isEmpty());
    QCOMPARE(entries[0].values.value(QStringLiteral("Frequency")), QStringLiteral("120 kHz"));
}

void TestReportJournal::findsByQuery_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("verdict");
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("fromHour");
    QTest::addColumn<int>("toHour");
    QTest::addColumn<QString>("found");

    QTest::newRow("all") << ""
                         << ""
                         << "" << 0 << 0 << "cba";
    QTest::newRow("text-in-path") << "A.xml"
                                  << ""
                                  << "" << 0 << 0 << "a";
    QTest::newRow("text-in-comment-whatever-the-case") << "über"
                                                       << ""
                                                       << "" << 0 << 0 << "b";
    QTest::newRow("text-in-value") << "98.5E6"
                                   << ""
                                   << "" << 0 << 0 << "c";
    QTest::newRow("text-in-label") << "good"
                                   << ""
                                   << "" << 0 << 0 << "a";
    QTest::newRow("percent-is-a-sign") << "5%"
                                       << ""
                                       << "" << 0 << 0 << "b";
    QTest::newRow("underline-is-a-sign") << "a_xml"
                                         << ""
                                         << "" << 0 << 0 << "";
    QTest::newRow("quote-is-a-sign") << "o'clock"
                                     << ""
                                     << "" << 0 << 0 << "b";
    QTest::newRow("verdict") << ""
                             << "Failed"
                             << "" << 0 << 0 << "c";
    QTest::newRow("label") << ""
                           << ""
                           << "good" << 0 << 0 << "a";
    QTest::newRow("part-of-label") << ""
                                   << ""
                                   << "goo" << 0 << 0 << "";
    QTest::newRow("from") << ""
                          << ""
                          << "" << 2 << 0 << "cb";
    QTest::newRow("to") << ""
                        << ""
                        << "" << 0 << 2 << "a";
    QTest::newRow("all-of-it") << "xml"
                               << "Written"
                               << "" << 2 << 3 << "b";
}

void TestReportJournal::findsByQuery()
{
    QFETCH(QString, text);
    QFETCH(QString, verdict);
    QFETCH(QString, label);
    QFETCH(int, fromHour);
    QFETCH(int, toHour);
    QFETCH(QString, found);
    const auto hour = [](int number) { return QDateTime(QDate(2026, 3, 1), QTime(number, 0), Qt::UTC); };
    ReportJournal journal;
    QVERIFY(journal.Open(file()));
    ReportJournal::Entry entry;
    for (const char* const name : {"a", "b", "c"}) {
        entry.path = QStringLiteral("/reports/%1.xml").arg(QLatin1String(name));
        entry.begun = hour(name[0] - 'a' + 1);
        entry.verdict = name[0] == 'c' ? QStringLiteral("Failed") : QStringLiteral("Written");
        entry.comment = name[0] == 'b' ? QStringLiteral("ÜBER 5% at nine o'clock") : QString();
        if (name[0] == 'c') {
            entry.values.insert(QStringLiteral("Frequency"), QStringLiteral("98.5e6"));
        }
        const QString id = journal.Record(entry);
        QVERIFY(name[0] != 'a' || journal.SetLabel(id, QStringLiteral("good")));
    }
    ReportJournal::Query query;
    query.text = text;
    query.verdict = verdict;
    query.label = label;
    query.from = fromHour > 0 ? hour(fromHour) : QDateTime();
    query.to = toHour > 0 ? hour(toHour) : QDateTime();
    QString names;
    for (const ReportJournal::Entry& one : journal.Search(query)) {
        names += QFileInfo(one.path).baseName();
    }
    QCOMPARE(names, found);
}

void TestReportJournal::givesPages()
{
    ReportJournal journal;
    QVERIFY(journal.Open(file()));
    QStringList ids;
    for (int i = 0; i < 7; ++i) {
        ids.prepend(record(journal, QStringLiteral("/reports/%1.xml").arg(i)));
    }
    QStringList found;
    ReportJournal::Query page;
    page.limit = 3;
    for (Entries entries = journal.Search(page); !entries.empty(); entries = journal.Search(page)) {
        QVERIFY(entries.size() <= 3);
        found += idsOf(entries);
        page.before = entries.back().number;
    }
    QCOMPARE(found, ids);
    page = {};
    page.limit = -1;
    QCOMPARE(idsOf(journal.Search(page)), ids);
}

void TestReportJournal::keepsItsOrderWhenTheClockGoesBack()
{
    ReportJournal journal;
    QVERIFY(journal.Open(file()));
    ReportJournal::Entry entry;
    QStringList ids;
    for (const int year : {2026, 1999, 2031}) {
        entry.begun = QDateTime(QDate(year, 1, 1), QTime(0, 0), Qt::UTC);
        ids.prepend(journal.Record(entry));
    }
    QCOMPARE(idsOf(journal.Search({})), ids);
}

/// A label stays, whatever becomes of the report afterwards.
void TestReportJournal::keepsLabels()
{
    const QString path = m_station->PathOf(QStringLiteral("survey.xml"));
    const auto journal = watching();
    const quint64 report = m_station->Begin(path);
    QTRY_COMPARE(int(journal->Search({}).size()), 1);
    const QString id = journal->Search({})[0].id;
    ReportJournal other;
    QVERIFY(other.Open(file()));
    QVERIFY(other.SetLabel(id, QStringLiteral("good")));
    m_station->Write(report, path);
    QTRY_COMPARE(journal->Find(id).verdict, QStringLiteral("Written"));
    QCOMPARE(journal->Find(id).label, QStringLiteral("good"));
    QVERIFY(!journal->SetLabel(QStringLiteral("nowhere"), QStringLiteral("good")));
}

/// A process that shares the journal and writes nothing itself. The database cannot be reached.
void TestReportJournal::looksForWhatOthersWriteToSendIt()
{
    ReportJournal other;
    QVERIFY(other.Open(file()));
    std::atomic<int> tellsOfNone {0};
    std::atomic<int> unsent {-1};
    const QUrl nowhere(QStringLiteral("postgresql:///nowhere?host=/nowhere"));
    const auto tell = [&tellsOfNone, &unsent](int count, const QString&) {
        tellsOfNone += count == 0 ? 1 : 0;
        unsent = count;
    };
    const JournalSender sender(file(), nowhere, tell, 10);
    QTRY_COMPARE(unsent.load(), 0);
    QVERIFY(!other.Record({}).isEmpty());
    QTRY_COMPARE(unsent.load(), 1);
    QCOMPARE(tellsOfNone.load(), 1); // However often it looked.
}

void TestReportJournal::refusesWhatIsNoJournal_data()
{
    QTest::addColumn<QString>("place");
    QTest::newRow("folder-that-is-not-there") << "nowhere/journal.sqlite";
    QTest::newRow("folder") << ".";
}

void TestReportJournal::refusesWhatIsNoJournal()
{
    QFETCH(QString, place);
    ReportJournal journal;
    QString message;
    QVERIFY(!journal.Open(m_station->PathOf(place), &message));
    QVERIFY2(message.contains(QStringLiteral("cannot be opened")), qPrintable(message));
    QCOMPARE(record(journal, QStringLiteral("/reports/a.xml")), QString());
    QVERIFY(journal.Search({}).empty());
    QVERIFY(!journal.Share(QUrl(QStringLiteral("postgresql://host/name"))));
}

QTEST_GUILESS_MAIN(TestReportJournal)
#include "tst_reportjournal.moc"
