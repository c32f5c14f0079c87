#include <QProcess>
#include <QtTest>

#include "station.h"

using State = ReportSupervisor::State;

namespace {

/// A process that keeps reports while it lives.
class Keeper
{
public:
    explicit Keeper(const QStringList& arguments)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(XMLHELPER_KEEPING), arguments);
    }
    ~Keeper() { Kill(); }

    /// How many reports it keeps; -1 when it does not say.
    int Kept()
    {
        while (!m_process.canReadLine() && m_process.waitForReadyRead(60000)) { }
        return m_process.canReadLine() ? m_process.readLine().trimmed().toInt() : -1;
    }

    /// In the middle of everything, and waits until it is gone.
    void Kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /// Lets it end by itself, and waits until it has.
    void End()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

} // namespace

/// What processes leave to each other in the emergency folder.
class TestReportSupervisorProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offersWhatAnotherProcessLeft_data();
    void offersWhatAnotherProcessLeft();
    void offersWhatItsForerunnerLeft();
    void offersWhatALockOfItsOwnNumberHolds();
    void leavesAloneWhatARunningProcessKeeps();
    void isTakenOverByOneOfMany();
    void leavesNoEmptyFolders();
    void passesOverDamagedCopies_data();
    void passesOverDamagedCopies();
    void replacesNothingNewerThanAnEarlierReport();

private:
    static QStringList lose(const Station& station, const QStringList& names);
};

QStringList TestReportSupervisorProcesses::lose(const Station& station, const QStringList& names)
{
    QStringList arguments {QStringLiteral("lose"), station.EmergencyFolder()};
    for (const QString& name : names) {
        arguments.append(station.PathOf(name));
    }
    return arguments;
}

void TestReportSupervisorProcesses::offersWhatAnotherProcessLeft_data()
{
    QTest::addColumn<bool>("isKilled");
    QTest::newRow("killed") << true;
    QTest::newRow("ended") << false;
}

void TestReportSupervisorProcesses::offersWhatAnotherProcessLeft()
{
    QFETCH(bool, isKilled);
    Station station;
    Keeper keeper(lose(station, {QStringLiteral("b.xml"), QStringLiteral("a.xml")}));
    QCOMPARE(keeper.Kept(), 2);
    isKilled ? keeper.Kill() : keeper.End();

    const quint64 own = station.Lose(station.PathOf(QStringLiteral("nowhere/own.xml")));
    QCOMPARE(station.Supervisor().TakeOverEarlier(), QStringList());
    const std::vector<ReportSupervisor::Verdict> kept = station.Supervisor().GetKept();
    QCOMPARE(int(kept.size()), 3);
    QCOMPARE(kept[0].report, ReportSupervisor::FirstEarlier);
    QCOMPARE(kept[0].state, State::Offered);
    QCOMPARE(kept[0].reportPath, station.PathOf(QStringLiteral("b.xml")));
    QCOMPARE(kept[0].schemaPath, QStringLiteral("survey.xsd"));
    QCOMPARE(kept[0].reason, QStringLiteral("the folder is gone"));
    QCOMPARE(kept[1].reportPath, station.PathOf(QStringLiteral("a.xml")));
    QCOMPARE(kept[2].report, own);
    QVERIFY(!QFile::exists(station.PathOf(QStringLiteral("b.xml")))); // Nobody has said so yet.

    QVERIFY(station.Supervisor().TryAgain(kept[0].report));
    QCOMPARE(bytesOf(kept[0].reportPath), "<report>" + kept[0].reportPath.toUtf8() + "</report>");
    QVERIFY(station.Supervisor().SaveElsewhere(kept[1].report, station.PathOf(QStringLiteral("c.xml"))));
    QCOMPARE(bytesOf(station.PathOf(QStringLiteral("c.xml"))), "<report>" + kept[1].reportPath.toUtf8() + "</report>");
    QCOMPARE(station.Copies().size(), 2);
    QCOMPARE(station.Supervisor().TakeOverEarlier(), QStringList());
    QCOMPARE(int(station.Supervisor().GetKept().size()), 1);
}

void TestReportSupervisorProcesses::offersWhatItsForerunnerLeft()
{
    Station station;
    station.Lose(station.PathOf(QStringLiteral("nowhere/report.xml")));
    station.Restart();
    QCOMPARE(station.Supervisor().TakeOverEarlier(), QStringList());
    QCOMPARE(int(station.Supervisor().GetKept().size()), 1);
    station.Restart();
    QCOMPARE(station.Supervisor().TakeOverEarlier(), QStringList());
    QVERIFY(station.Supervisor().Discard(ReportSupervisor::FirstEarlier));
    station.Restart();
    QCOMPARE(station.Supervisor().TakeOverEarlier(), QStringList());
    QCOMPARE(int(station.Supervisor().GetKept().size()), 0);
}

/// In a container, the next process may have the number of the one that was killed.
void TestReportSupervisorProcesses::offersWhatALockOfItsOwnNumberHolds()
{
    Station station;
    station.Lose(station.PathOf(QStringLiteral("nowhere/report.xml")));
    const QString lock = QFileInfo(station.Copies().constFirst()).absolutePath() + QStringLiteral("/owner.lock");
    const QByteArray written = bytesOf(lock);
    QVERIFY(written.startsWith(QByteArray::number(QCoreApplication::applicationPid())));
    ReportSupervisor other; // which must not take it from the living
    other.SetEmergencyFolder(station.EmergencyFolder());
    other.TakeOverEarlier();
    QCOMPARE(int(other.GetKept().size()), 0);

    station.Restart();
    QVERIFY(!QFile::exists(lock));
    writeFile(lock, written);
    QCOMPARE(station.Supervisor().TakeOverEarlier(), QStringList());
    QCOMPARE(int(station.Supervisor().GetKept().size()), 1);
}

void TestReportSupervisorProcesses::leavesAloneWhatARunningProcessKeeps()
{
    Station station;
    Keeper keeper(lose(station, {QStringLiteral("a.xml")}));
    QCOMPARE(keeper.Kept(), 1);
    station.Lose(station.PathOf(QStringLiteral("nowhere/own.xml")));
    ReportSupervisor other; // of the same process
    other.SetEmergencyFolder(station.EmergencyFolder());
    QCOMPARE(other.TakeOverEarlier(), QStringList());
    QCOMPARE(int(other.GetKept().size()), 0);
    QCOMPARE(station.Copies().size(), 4);
    keeper.Kill();
    QCOMPARE(other.TakeOverEarlier(), QStringList());
    QCOMPARE(int(other.GetKept().size()), 1);
    QCOMPARE(station.Supervisor().TakeOverEarlier(), QStringList());
    QCOMPARE(int(station.Supervisor().GetKept().size()), 1);
}

void TestReportSupervisorProcesses::isTakenOverByOneOfMany()
{
    constexpr int Takers = 8;
    Station station;
    {
        Keeper keeper(lose(station, {QStringLiteral("a.xml"), QStringLiteral("b.xml")}));
        QCOMPARE(keeper.Kept(), 2);
    }
    std::vector<std::unique_ptr<Keeper>> takers;
    for (int i = 0; i < Takers; ++i) {
        takers.push_back(std::make_unique<Keeper>(QStringList {QStringLiteral("take"), station.EmergencyFolder()}));
    }
    int all = 0;
    for (const std::unique_ptr<Keeper>& taker : takers) {
        const int kept = taker->Kept();
        QVERIFY2(kept == 0 || kept == 2, qPrintable(QString::number(kept)));
        all += kept;
    }
    QCOMPARE(all, 2);
    takers.clear();
    QCOMPARE(station.Supervisor().TakeOverEarlier(), QStringList());
    QCOMPARE(int(station.Supervisor().GetKept().size()), 2);
}

void TestReportSupervisorProcesses::leavesNoEmptyFolders()
{
    Station station;
    {
        Keeper keeper(lose(station, {QStringLiteral("a.xml")}));
        QCOMPARE(keeper.Kept(), 1);
    }
    QCOMPARE(station.Supervisor().TakeOverEarlier(), QStringList());
    QVERIFY(station.Supervisor().TryAgain(ReportSupervisor::FirstEarlier));
    QVERIFY(QDir(station.EmergencyFolder()).mkdir(QStringLiteral("left-before-its-lock")));
    station.Restart();
    QCOMPARE(station.Supervisor().TakeOverEarlier(), QStringList());
    QCOMPARE(QDir(station.EmergencyFolder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

void TestReportSupervisorProcesses::passesOverDamagedCopies_data()
{
    QTest::addColumn<QString>("ending");
    QTest::addColumn<QByteArray>("content"); // null: the file is removed
    QTest::newRow("content-cut-off") << ".xml" << QByteArray("<rep");
    QTest::newRow("content-of-the-same-size") << ".xml" << QByteArray("x"); // as many as there were
    QTest::newRow("content-empty") << ".xml" << QByteArray("");
    QTest::newRow("content-gone") << ".xml" << QByteArray();
    QTest::newRow("knowledge-cut-off") << ".json" << QByteArray("{\"reportPath\": \"a");
    QTest::newRow("knowledge-empty") << ".json" << QByteArray("");
    QTest::newRow("knowledge-of-other-kinds") << ".json" << QByteArray("{\"size\": [], \"sha256\": 5}");
    QTest::newRow("knowledge-no-object") << ".json" << QByteArray("[1, 2]");
    QTest::newRow("knowledge-gone") << ".json" << QByteArray();
}

void TestReportSupervisorProcesses::passesOverDamagedCopies()
{
    QFETCH(QString, ending);
    QFETCH(QByteArray, content);
    Station station;
    {
        Keeper keeper(lose(station, {QStringLiteral("a.xml")}));
        QCOMPARE(keeper.Kept(), 1);
    }
    const QString damaged = station.Copies().filter(ending).value(0);
    if (content.isNull()) {
        QVERIFY(QFile::remove(damaged));
    } else {
        writeFile(damaged, content == "x" ? QByteArray(bytesOf(damaged).size(), 'x') : content);
    }
    {
        Keeper keeper(lose(station, {QStringLiteral("b.xml")}));
        QCOMPARE(keeper.Kept(), 1);
    }
    QMap<QString, QByteArray> before;
    for (const QString& copy : station.Copies()) {
        before.insert(copy, bytesOf(copy));
    }
    for (int start = 0; start < 2; ++start) {
        const QStringList faults = station.Supervisor().TakeOverEarlier();
        QCOMPARE(faults.size(), 1);
        const QString copy = damaged.left(damaged.size() - ending.size()) + QStringLiteral(".xml");
        QCOMPARE(faults[0], QStringLiteral("the unsaved report %1 is damaged").arg(copy));
        const std::vector<ReportSupervisor::Verdict> kept = station.Supervisor().GetKept();
        QCOMPARE(int(kept.size()), 1);
        QCOMPARE(kept[0].reportPath, station.PathOf(QStringLiteral("b.xml")));
        station.Restart();
    }
    QMap<QString, QByteArray> after;
    for (const QString& copy : station.Copies()) {
        after.insert(copy, bytesOf(copy));
    }
    QCOMPARE(after, before);
}

void TestReportSupervisorProcesses::replacesNothingNewerThanAnEarlierReport()
{
    Station station;
    {
        Keeper keeper(lose(station, {QStringLiteral("a.xml")}));
        QCOMPARE(keeper.Kept(), 1);
    }
    const QString path = station.PathOf(QStringLiteral("a.xml"));
    writeFile(path, "<newer/>");
    QCOMPARE(station.Supervisor().TakeOverEarlier(), QStringList());
    QVERIFY(!station.Supervisor().TryAgain(ReportSupervisor::FirstEarlier));
    QCOMPARE(station.StateOf(ReportSupervisor::FirstEarlier), State::Blocked);
    QCOMPARE(bytesOf(path), QByteArray("<newer/>"));
}

QTEST_MAIN(TestReportSupervisorProcesses)
#include "tst_reportsupervisor_processes.moc"
