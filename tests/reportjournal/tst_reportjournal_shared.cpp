#include <list>
#include <memory>

#include <QProcess>
#include <QtTest>

#include <xmlhelperreports/reportjournal.h>

#include "databaseserver.h"

namespace {

/// As many processes as a small machine bears at once.
constexpr int StationsAtOnce = 3;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int Stations = 8;
constexpr int ReportCount = 25;
#else
constexpr int Stations = 50;
constexpr int ReportCount = 200;
#endif

ReportJournal::Query all()
{
    ReportJournal::Query query;
    query.limit = -1;
    return query;
}

} // namespace

/// Stations of a network share a journal, in a database that comes and goes.
class TestReportJournalShared : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void sendsWhatIsThereAndWhatComes();
    void sendsChanges();
    void isReadOnlyThere();
    void sendsEachOnceFromTwoPrograms();
    void sendsWhenTheDatabaseComes();
    void pressDoesNotWaitForTheDatabase();
    void missesNothingWhenTheDatabaseIsStoppedAndKilled();

private:
    QString file(int station = 0) const;
    int waitForStation(QProcess& process) const;
    std::unique_ptr<QProcess> startStation(int station, int count) const;
    /// How many entries the stations have, each of which is in the shared journal as it is here.
    int countSame(const ReportJournal& shared) const;

    QTemporaryDir m_serverFolder;
    std::unique_ptr<DatabaseServer> m_server; ///< does not run when a test begins
    std::unique_ptr<QTemporaryDir> m_folder; ///< of the stations
};

void TestReportJournalShared::initTestCase()
{
    const QString missing = DatabaseServer::Missing();
    if (!missing.isEmpty()) {
        QSKIP(qPrintable(missing));
    }
    // The server has a folder for itself, to which its user may pass.
    const QString path = m_serverFolder.path();
    QVERIFY(QDir(path).mkdir(QStringLiteral("server")));
    QVERIFY(QFile::setPermissions(path, QFile::permissions(path) | QFile::ExeGroup | QFile::ExeOther));
    m_server = std::make_unique<DatabaseServer>(m_serverFolder.filePath(QStringLiteral("server")));
    QVERIFY(m_server->Make());
}

void TestReportJournalShared::init()
{
    QVERIFY(m_server->Empty());
    m_folder = std::make_unique<QTemporaryDir>();
}

QString TestReportJournalShared::file(int station) const
{
    return m_folder->filePath(QStringLiteral("station%1.sqlite").arg(station));
}

std::unique_ptr<QProcess> TestReportJournalShared::startStation(int station, int count) const
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(
        QStringLiteral(XMLHELPER_JOURNALING),
        {file(station), m_folder->path(), QStringLiteral("s%1").arg(station), QString::number(count), m_server->Url()});
    return process;
}

/// How many of its entries are left; -1 when it does not say.
int TestReportJournalShared::waitForStation(QProcess& process) const
{
    const bool isWell = process.waitForFinished(120000) && process.exitCode() == 0;
    const QByteArray output = process.readAllStandardOutput();
    const int left = int(output.indexOf("left "));
    return isWell && left >= 0 ? output.mid(left + 5).trimmed().toInt() : -1;
}

int TestReportJournalShared::countSame(const ReportJournal& shared) const
{
    QHash<QString, ReportJournal::Entry> there;
    const std::vector<ReportJournal::Entry> entries = shared.Search(all());
    for (const ReportJournal::Entry& entry : entries) {
        there.insert(entry.id, entry);
    }
    int same = 0;
    for (int i = 0; i < Stations; ++i) {
        ReportJournal journal;
        const bool isOpen = QFile::exists(file(i)) && journal.Open(file(i));
        const std::vector<ReportJournal::Entry> here
            = isOpen ? journal.Search(all()) : std::vector<ReportJournal::Entry>();
        for (const ReportJournal::Entry& entry : here) {
            const ReportJournal::Entry sent = there.value(entry.id);
            same += sent.path == entry.path && sent.verdict == entry.verdict && sent.hash == entry.hash
                    && sent.values == entry.values && sent.label == entry.label && sent.begun == entry.begun
                ? 1
                : 0;
        }
    }
    return same;
}

void TestReportJournalShared::sendsWhatIsThereAndWhatComes()
{
    QVERIFY(m_server->Start());
    ReportJournal journal;
    QVERIFY(journal.Open(file()));
    QVERIFY(!journal.Record({}).isEmpty());
    QCOMPARE(journal.Unsent(), 1);
    QVERIFY(journal.Share(QUrl(m_server->Url())));
    QTRY_COMPARE(journal.Unsent(), 0);
    QVERIFY(!journal.Record({}).isEmpty());
    QTRY_COMPARE(journal.Unsent(), 0);
    ReportJournal shared;
    QVERIFY(shared.Open(m_server->Url()));
    QCOMPARE(int(shared.Search({}).size()), 2);
    QCOMPARE(countSame(shared), 2);
}

void TestReportJournalShared::sendsChanges()
{
    QVERIFY(m_server->Start());
    ReportJournal journal;
    QVERIFY(journal.Open(file()));
    QVERIFY(journal.Share(QUrl(m_server->Url())));
    ReportJournal::Entry entry;
    entry.comment = QStringLiteral("It's 5% \"off\"; \\ ÄΩ");
    entry.values.insert(QStringLiteral("F"), QStringLiteral("1"));
    const QString id = journal.Record(entry);
    QTRY_COMPARE(journal.Unsent(), 0);
    QVERIFY(journal.SetLabel(id, QStringLiteral("good")));
    QTRY_COMPARE(journal.Unsent(), 0);
    ReportJournal shared;
    QVERIFY(shared.Open(m_server->Url()));
    QCOMPARE(int(shared.Search({}).size()), 1);
    QCOMPARE(shared.Search({})[0].comment, entry.comment);
    QCOMPARE(countSame(shared), 1);
    ReportJournal::Query query;
    query.text = QStringLiteral("5% \"OFF\"; \\ äω");
    QCOMPARE(int(shared.Search(query).size()), 1);
    query.text = QStringLiteral("5_");
    QCOMPARE(int(shared.Search(query).size()), 0);
}

void TestReportJournalShared::isReadOnlyThere()
{
    QVERIFY(m_server->Start());
    ReportJournal shared;
    QVERIFY(shared.Open(m_server->Url()));
    QCOMPARE(shared.Record({}), QString());
    QVERIFY(!shared.SetLabel(QStringLiteral("id"), QStringLiteral("good")));
    QVERIFY(!shared.Share(QUrl(m_server->Url())));
    QVERIFY(shared.Search({}).empty());
}

/// Two programs with one journal send what is in it at the same time.
void TestReportJournalShared::sendsEachOnceFromTwoPrograms()
{
    QVERIFY(m_server->Start());
    ReportJournal one;
    ReportJournal other;
    QVERIFY(one.Open(file()) && other.Open(file()));
    for (int i = 0; i < 300; ++i) {
        QVERIFY(!one.Record({}).isEmpty());
    }
    QVERIFY(one.Share(QUrl(m_server->Url())) && other.Share(QUrl(m_server->Url())));
    QTRY_COMPARE_WITH_TIMEOUT(one.Unsent(), 0, 60000);
    ReportJournal shared;
    QVERIFY(shared.Open(m_server->Url()));
    QCOMPARE(int(shared.Search(all()).size()), 300);
    QCOMPARE(countSame(shared), 300);
}

void TestReportJournalShared::sendsWhenTheDatabaseComes()
{
    ReportJournal journal;
    QVERIFY(journal.Open(file()));
    const QSignalSpy spy(&journal, &ReportJournal::Sent);
    QVERIFY(journal.Share(QUrl(m_server->Url())));
    QVERIFY(!journal.Record({}).isEmpty());
    QTRY_VERIFY(!spy.isEmpty() && spy.last()[0].toInt() == 1 && !spy.last()[1].toString().isEmpty());
    QVERIFY(m_server->Start());
    QTRY_COMPARE_WITH_TIMEOUT(spy.last()[0].toInt(), 0, 60000);
    QCOMPARE(spy.last()[1].toString(), QString());
    QCOMPARE(journal.Unsent(), 0);
}

/// One that takes connections and does not answer.
void TestReportJournalShared::pressDoesNotWaitForTheDatabase()
{
    QVERIFY(m_server->Start());
    m_server->Halt();
    ReportJournal journal;
    QVERIFY(journal.Open(file()));
    QVERIFY(!journal.Record({}).isEmpty());
    QVERIFY(journal.Share(QUrl(m_server->Url())));
    for (int i = 0; i < 20; ++i) {
        QVERIFY(!journal.Record({}).isEmpty());
        QCoreApplication::processEvents();
    }
    QCOMPARE(journal.Unsent(), 21); // Nobody has waited for them to be sent.
    m_server->GoOn();
    QTRY_COMPARE_WITH_TIMEOUT(journal.Unsent(), 0, 60000);
}

/// Each station has a journal of its own. The server is stopped after a quarter of them and killed after a half; what
/// is left at a station is sent by its next process.
void TestReportJournalShared::missesNothingWhenTheDatabaseIsStoppedAndKilled()
{
    QVERIFY(m_server->Start());
    std::list<std::pair<int, std::unique_ptr<QProcess>>> running;
    QList<int> late;
    for (int i = 0; i < Stations || !running.empty(); ++i) {
        if (i < Stations) {
            running.emplace_back(i, startStation(i, ReportCount));
        }
        if (i == Stations / 4) {
            m_server->Stop();
        } else if (i == Stations / 2) {
            m_server->Kill();
        } else if (i == Stations * 3 / 8 || i == Stations * 5 / 8) {
            QVERIFY(m_server->Start());
        }
        if (int(running.size()) == StationsAtOnce || i >= Stations) {
            const int left = waitForStation(*running.front().second);
            QVERIFY(left >= 0);
            if (left > 0) {
                late.append(running.front().first);
            }
            running.pop_front();
        }
    }
    QVERIFY(!late.isEmpty());
    for (const int station : std::as_const(late)) {
        QCOMPARE(waitForStation(*startStation(station, 0)), 0);
    }
    for (int i = 0; i < Stations; ++i) {
        ReportJournal journal;
        QVERIFY(journal.Open(file(i)));
        QCOMPARE(journal.Unsent(), 0);
    }
    ReportJournal shared;
    QVERIFY(shared.Open(m_server->Url()));
    const std::vector<ReportJournal::Entry> entries = shared.Search(all());
    QSet<QString> paths;
    for (const ReportJournal::Entry& entry : entries) {
        QCOMPARE(entry.verdict, QStringLiteral("Written"));
        paths.insert(entry.path);
    }
    qInfo("%d stations of %d reports each, %d at once; %d stations had entries left", Stations, ReportCount,
          StationsAtOnce, int(late.size()));
    QCOMPARE(int(entries.size()), Stations * ReportCount);
    QCOMPARE(int(paths.size()), Stations * ReportCount);
    QCOMPARE(countSame(shared), Stations * ReportCount);
}

QTEST_GUILESS_MAIN(TestReportJournalShared)
#include "tst_reportjournal_shared.moc"
