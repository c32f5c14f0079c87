#include <QProcess>
#include <QtTest>

#include <xmlhelperreports/reportjournal.h>

namespace {

/// As many processes as a small machine bears at once.
constexpr int ProcessesAtOnce = 4;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int ProcessCount = 8;
constexpr int ReportCount = 25;
#else
constexpr int ProcessCount = 50;
constexpr int ReportCount = 200;
#endif

} // namespace

/// Several processes write to one journal at once.
class TestReportJournalProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void missNoReportOfAnother();
    void leaveAWholeJournalWhenKilled();

private:
    static std::unique_ptr<QProcess> start(const QTemporaryDir& folder, const QString& name, int count);
};

std::unique_ptr<QProcess> TestReportJournalProcesses::start(const QTemporaryDir& folder, const QString& name, int count)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QStringLiteral(XMLHELPER_JOURNALING),
                   {folder.filePath(QStringLiteral("journal.sqlite")), folder.path(), name, QString::number(count)});
    return process;
}

void TestReportJournalProcesses::missNoReportOfAnother()
{
    const QTemporaryDir folder;
    std::list<std::unique_ptr<QProcess>> processes;
    for (int i = 0; i < ProcessCount || !processes.empty(); ++i) {
        if (i < ProcessCount) {
            processes.push_back(start(folder, QStringLiteral("p%1").arg(i), ReportCount));
        }
        if (int(processes.size()) == ProcessesAtOnce || i >= ProcessCount) {
            QVERIFY(processes.front()->waitForFinished(120000));
            QCOMPARE(processes.front()->exitCode(), 0);
            processes.pop_front();
        }
    }
    ReportJournal journal;
    QVERIFY(journal.Open(folder.filePath(QStringLiteral("journal.sqlite"))));
    ReportJournal::Query all;
    all.limit = -1;
    QSet<QString> ids;
    QSet<QString> paths;
    const std::vector<ReportJournal::Entry> entries = journal.Search(all);
    for (const ReportJournal::Entry& entry : entries) {
        QCOMPARE(entry.verdict, QStringLiteral("Written"));
        QVERIFY(entry.path.endsWith(QStringLiteral("-%1.xml").arg(entry.values.value(QStringLiteral("Number")))));
        ids.insert(entry.id);
        paths.insert(entry.path);
    }
    QCOMPARE(int(entries.size()), ProcessCount * ReportCount);
    QCOMPARE(int(ids.size()), ProcessCount * ReportCount);
    QCOMPARE(int(paths.size()), ProcessCount * ReportCount);
}

/// What a killed process had told of is there, and the next one goes on.
void TestReportJournalProcesses::leaveAWholeJournalWhenKilled()
{
    const QTemporaryDir folder;
    const auto victim = start(folder, QStringLiteral("victim"), 1000000);
    const auto other = start(folder, QStringLiteral("other"), 20);
    int told = 0;
    while (told < 20) {
        QVERIFY(victim->canReadLine() || victim->waitForReadyRead(60000));
        while (victim->canReadLine()) {
            told = victim->readLine().trimmed().toInt();
        }
    }
    victim->kill();
    QVERIFY(victim->waitForFinished());
    QVERIFY(other->waitForFinished(60000));

    ReportJournal journal;
    QString message;
    QVERIFY(journal.Open(folder.filePath(QStringLiteral("journal.sqlite")), &message));
    QCOMPARE(message, QString());
    ReportJournal::Query query;
    query.limit = -1;
    query.text = QStringLiteral("/victim-");
    QVERIFY(int(journal.Search(query).size()) >= told);
    query.text = QStringLiteral("/other-");
    QCOMPARE(int(journal.Search(query).size()), 20);
    QVERIFY(!journal.Record({}).isEmpty());
}

QTEST_GUILESS_MAIN(TestReportJournalProcesses)
#include "tst_reportjournal_processes.moc"
