#include <ctime>

#include <QtTest>

#include <xmlhelperreports/folderintake_p.h>
#include <xmlhelperreports/reportjournal.h>

#include "station.h"

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int ManyReports = 4000;
#else
constexpr int ManyReports = 20000;
#endif

constexpr int Presses = 200;

int takeAll(QStringList& files)
{
    const int count = int(files.size());
    files.clear();
    return count;
}

} // namespace

/// Reports that lie in a folder, and those that come there.
class TestReportJournalFolders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void takesInWhatLiesThere();
    void readsAFileOnce();
    void takesInWhatComes();
    void takesInAFolderThatComes();
    void makesOneEntryOfAReportThatIsFoundFirst();
    void handsOverAFewAtOnce();
    void handsOverAgainWhatCouldNotBeRead();
    void takesInAFileThatCouldNotBeRead();
    void beginsAnewWithinAPortion();
    void readsNamesOnceForManyChanges();
    void pressIsAsFastWhateverLiesThere();

private:
    QString path(const QString& name) const { return m_station->PathOf(name); }
    QString folder() const { return path(QStringLiteral("reports")); }
    /// Writes empty files into the folder.
    void write(int count) const;

    std::unique_ptr<Station> m_station;
};

void TestReportJournalFolders::init()
{
    m_station = std::make_unique<Station>();
    QVERIFY(QDir().mkpath(folder()));
}

void TestReportJournalFolders::write(int count) const
{
    for (int i = 0; i < count; ++i) {
        writeFile(folder() + QStringLiteral("/%1.xml").arg(i), "<r/>");
    }
}

void TestReportJournalFolders::takesInWhatLiesThere()
{
    write(450);
    writeFile(folder() + QStringLiteral("/notes.txt"), "no report");
    ReportJournal journal;
    QVERIFY(journal.Open(path(QStringLiteral("journal.sqlite"))));
    const QSignalSpy spy(&journal, &ReportJournal::TakenIn);
    journal.TakeIn(folder());
    QTRY_COMPARE(int(spy.size()), 1);
    QCOMPARE(spy[0][0].toString(), folder());
    QCOMPARE(spy[0][1].toInt(), 450);
    ReportJournal::Query all;
    all.limit = -1;
    const std::vector<ReportJournal::Entry> entries = journal.Search(all);
    QCOMPARE(int(entries.size()), 450);
    QCOMPARE(entries[0].verdict, QStringLiteral("Found"));
    QCOMPARE(entries[0].begun, QFileInfo(entries[0].path).lastModified().toUTC());
}

/// What a journal knows is not read again by the next process.
void TestReportJournalFolders::readsAFileOnce()
{
    write(30);
    for (const int added : {30, 0}) {
        ReportJournal journal;
        QVERIFY(journal.Open(path(QStringLiteral("journal.sqlite"))));
        const QSignalSpy spy(&journal, &ReportJournal::TakenIn);
        const QSignalSpy changes(&journal, &ReportJournal::Changed);
        journal.TakeIn(folder());
        QTRY_COMPARE(int(spy.size()), 1);
        QCOMPARE(spy[0][1].toInt(), added);
        QCOMPARE(int(changes.size()), added);
    }
}

void TestReportJournalFolders::takesInWhatComes()
{
    ReportJournal journal;
    QVERIFY(journal.Open(path(QStringLiteral("journal.sqlite"))));
    const QSignalSpy spy(&journal, &ReportJournal::TakenIn);
    journal.TakeIn(folder());
    QTRY_COMPARE(int(spy.size()), 1);
    write(2);
    QTRY_COMPARE_WITH_TIMEOUT(int(journal.Search({}).size()), 2, 20000);
}

void TestReportJournalFolders::takesInAFolderThatComes()
{
    QVERIFY(QDir().rmdir(folder()));
    ReportJournal journal;
    QVERIFY(journal.Open(path(QStringLiteral("journal.sqlite"))));
    journal.TakeIn(folder());
    QCoreApplication::processEvents();
    QVERIFY(QDir().mkpath(folder()));
    write(2);
    QTRY_COMPARE_WITH_TIMEOUT(int(journal.Search({}).size()), 2, 20000);
}

/// Another process may find a report before its own has told of it.
void TestReportJournalFolders::makesOneEntryOfAReportThatIsFoundFirst()
{
    const QString report = folder() + QStringLiteral("/a.xml");
    ReportJournal journal;
    QVERIFY(journal.Open(path(QStringLiteral("journal.sqlite"))));
    journal.Watch(m_station->Supervisor());
    const quint64 number = m_station->Begin(report);
    m_station->Write(number, report);
    ReportJournal other;
    QVERIFY(other.Open(path(QStringLiteral("journal.sqlite"))));
    ReportJournal::Entry found;
    found.path = report;
    found.verdict = QStringLiteral("Found");
    found.hash = QCryptographicHash::hash("<report/>", QCryptographicHash::Sha256).toHex();
    QVERIFY(!other.Record(found).isEmpty());
    QTRY_VERIFY(m_station->Supervisor().GetReport(number).isChecked);
    QTRY_COMPARE(journal.Search({}).front().schemaPath, QStringLiteral("survey.xsd"));
    QCOMPARE(int(journal.Search({}).size()), 1);
}

void TestReportJournalFolders::handsOverAFewAtOnce()
{
    write(3 * FolderIntake::FilesInOneGo + 1);
    QList<int> portions;
    bool isEnd = false;
    FolderIntake intake(
        [&portions](QStringList& files) {
            portions.append(int(files.size()));
            return takeAll(files);
        },
        [&isEnd](const QString&, int) { isEnd = true; });
    intake.Add(folder());
    QTRY_VERIFY(isEnd);
    const int few = FolderIntake::FilesInOneGo;
    QCOMPARE(portions, (QList<int> {few, few, few, 1}));
}

/// Nothing in the folder has changed meanwhile. The others are not handed over again.
void TestReportJournalFolders::handsOverAgainWhatCouldNotBeRead()
{
    write(3);
    const QString locked = folder() + QStringLiteral("/1.xml");
    QStringList portions;
    int ends = 0;
    FolderIntake intake(
        [&portions, &locked](QStringList& files) {
            files.sort();
            portions.append(files);
            const bool isFirst = files.size() > 1;
            files = isFirst ? QStringList(locked) : QStringList();
            return isFirst ? 2 : 1;
        },
        [&ends](const QString&, int) { ++ends; });
    intake.Add(folder());
    QTRY_COMPARE(ends, 2);
    QCOMPARE(portions,
             QStringList({folder() + QStringLiteral("/0.xml"), locked, folder() + QStringLiteral("/2.xml"), locked}));
}

/// A link to what can be opened and not read, whoever tries.
void TestReportJournalFolders::takesInAFileThatCouldNotBeRead()
{
    const QString report = folder() + QStringLiteral("/a.xml");
    if (!QFile::link(QStringLiteral("/proc/self/mem"), report) || !QFileInfo(report).isFile()) {
        QSKIP("This system has no such file.");
    }
    ReportJournal journal;
    QVERIFY(journal.Open(path(QStringLiteral("journal.sqlite"))));
    const QSignalSpy spy(&journal, &ReportJournal::TakenIn);
    journal.TakeIn(folder());
    QTRY_COMPARE(int(spy.size()), 1);
    QCOMPARE(spy[0][1].toInt(), 0);
    QVERIFY(QFile::remove(report));
    writeFile(report, "<r/>");
    QTRY_COMPARE_WITH_TIMEOUT(int(journal.Search({}).size()), 1, 20000);
}

/// A journal that is made anew while it takes in has all folders read from the beginning.
void TestReportJournalFolders::beginsAnewWithinAPortion()
{
    write(3);
    FolderIntake* restarted = nullptr;
    QStringList ends;
    FolderIntake intake(
        [&restarted](QStringList& files) {
            if (FolderIntake* const self = std::exchange(restarted, nullptr)) {
                self->Restart();
            }
            return takeAll(files);
        },
        [&ends](const QString& end, int added) { ends.append(QStringLiteral("%1 %2").arg(end).arg(added)); });
    restarted = &intake;
    intake.Add(folder());
    QTRY_VERIFY(ends.contains(folder() + QStringLiteral(" 3")));
    QCOMPARE(int(ends.size()), 1);
}

/// A hundred reports of this process in a folder cost one more reading of its names.
void TestReportJournalFolders::readsNamesOnceForManyChanges()
{
    write(1000);
    int files = 0;
    FolderIntake intake(
        [&files](QStringList& some) {
            files += int(some.size());
            return takeAll(some);
        },
        [](const QString&, int) {});
    intake.Add(folder());
    QTRY_COMPARE(files, 1000);
    QTRY_COMPARE(intake.Readings(), 1);
    for (int i = 0; i < 100; ++i) {
        writeFile(folder() + QStringLiteral("/new%1.xml").arg(i), "<r/>");
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE_WITH_TIMEOUT(files, 1100, 20000);
    QVERIFY2(intake.Readings() <= 3, qPrintable(QString::number(intake.Readings())));
}

/// The processor's time for reports in a folder of many others and in an empty one.
void TestReportJournalFolders::pressIsAsFastWhateverLiesThere()
{
    const auto timeOfPresses = [this](const QString& name) {
        ReportJournal journal;
        const bool isOpen = journal.Open(path(name + QStringLiteral(".sqlite")));
        journal.Watch(m_station->Supervisor());
        const QSignalSpy spy(&journal, &ReportJournal::TakenIn);
        journal.TakeIn(path(name));
        while (isOpen && spy.isEmpty()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        const std::clock_t before = std::clock();
        for (int i = 0; i < Presses; ++i) {
            const QString report = path(name) + QStringLiteral("/press%1.xml").arg(i);
            const quint64 number = m_station->Begin(report);
            m_station->Write(number, report);
            while (!m_station->Supervisor().GetReport(number).isChecked) {
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            }
        }
        return double(std::clock() - before);
    };
    QVERIFY(QDir().mkpath(path(QStringLiteral("empty"))));
    write(ManyReports);
    const double withNone = timeOfPresses(QStringLiteral("empty"));
    const double withMany = timeOfPresses(QStringLiteral("reports"));
    const std::clock_t before = std::clock();
    QVERIFY(QDir(folder()).entryList().size() > ManyReports);
    const double ofOneReading = double(std::clock() - before);
    qInfo("%d presses: %.0f ms beside none, %.0f ms beside %d, whose names are read in %.0f ms", Presses,
          withNone * 1000 / CLOCKS_PER_SEC, withMany * 1000 / CLOCKS_PER_SEC, ManyReports,
          ofOneReading * 1000 / CLOCKS_PER_SEC);
    // Names are read once in a pause, which a busy machine fills with fewer presses.
    QVERIFY(withMany < 2 * withNone + Presses / 4 * ofOneReading);
}

QTEST_GUILESS_MAIN(TestReportJournalFolders)
#include "tst_reportjournal_folders.moc"
