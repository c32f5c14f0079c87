#include <QDialog>
#include <QtTest>

#include <xmlhelper/reportnews.h>
#include <xmlhelperreports/retrypace_p.h>

#include "fakeclock.h"
#include "filesizelimit.h"
#include "station.h"

using State = ReportSupervisor::State;

namespace {

constexpr int Hour = 3600 * 1000;

void setFileTime(const QString& fileName, const QDateTime& time)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

} // namespace

/// What becomes of reports that could not be written.
class TestReportSupervisorKeeping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pausesGrow_data();
    void pausesGrow();
    void copiesBeforeTheTellerGoesOn();
    void copiesTheAnswerThatWasGivenLast();
    void keepsTheCopyOfAnAnswerUntilTheNextOneIsSafe();
    void tellsWhatStandsInTheWayNow();
    void writesWhenTheFolderComesBack_data();
    void writesWhenTheFolderComesBack();
    void writesWhenThereIsRoom();
    void writesManyAfterAnHour();
    void goesOnInOtherFolders();
    void replacesNothingNewer_data();
    void replacesNothingNewer();
    void replacesNothingNewerWhenTheClockIsSetBack();
    void writesTheNewestOfOnePath();
    void savesElsewhere();
    void savesWhereItWasToldToFromAnyFolder();
    void discards();
    void tellsWhatWouldBeLost_data();
    void tellsWhatWouldBeLost();
    void tellsWhenTheCopyIsGone();
    void copiesAgainWhenTheEmergencyFolderIsBack();
};

void TestReportSupervisorKeeping::pausesGrow_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("longest");
    QTest::addColumn<QVector<int>>("pauses");
    QTest::newRow("by-default") << 1000 << 60000 << QVector<int> {1000, 2000, 4000, 8000, 16000, 32000, 60000, 60000};
    QTest::newRow("without-an-end") << 1 << std::numeric_limits<int>::max() << QVector<int> {1, 2, 4, 8};
    QTest::newRow("longest-below-the-first") << 50 << 10 << QVector<int> {50, 50, 50};
    QTest::newRow("negative") << -1 << -1 << QVector<int> {0, 0, 0};
}

void TestReportSupervisorKeeping::pausesGrow()
{
    QFETCH(int, first);
    QFETCH(int, longest);
    QFETCH(QVector<int>, pauses);
    RetryPace pace;
    pace.SetPauses(first, longest);
    for (int round = 0; round < 2; ++round) {
        for (const int pause : std::as_const(pauses)) {
            QCOMPARE(pace.Next(), pause);
        }
        pace.Restart();
    }
}

/// No event is processed here: the program may end at once.
void TestReportSupervisorKeeping::copiesBeforeTheTellerGoesOn()
{
    Station station;
    station.Lose(station.PathOf(QStringLiteral("nowhere/report.xml")), "<report comment='windy'/>");
    const QStringList copies = station.Copies();
    QCOMPARE(copies.size(), 2);
    QCOMPARE(bytesOf(copies[1]), QByteArray("<report comment='windy'/>"));
    const QJsonObject known = QJsonDocument::fromJson(bytesOf(copies[0])).object();
    QCOMPARE(known[QStringLiteral("reportPath")].toString(), station.PathOf(QStringLiteral("nowhere/report.xml")));
    QCOMPARE(known[QStringLiteral("schemaPath")].toString(), QStringLiteral("survey.xsd"));
    QCOMPARE(known[QStringLiteral("reason")].toString(), QStringLiteral("no space left on device"));
}

void TestReportSupervisorKeeping::copiesTheAnswerThatWasGivenLast()
{
    Station station;
    QDialog dialog;
    const quint64 report = station.Begin(station.PathOf(QStringLiteral("nowhere/report.xml")));
    Q_EMIT ReportNews::Instance().CommentAsked(report, &dialog);
    station.Fail(report, "<report comment='windy'/>");
    station.Fail(report, "<report comment='very windy'/>");
    QCOMPARE(station.StateOf(report), State::Pending);
    QCOMPARE(station.Copies().size(), 2);
    QCOMPARE(bytesOf(station.Copies()[1]), QByteArray("<report comment='very windy'/>"));
    QCOMPARE(station.Supervisor().GetReport(report).reportPath, station.PathOf(QStringLiteral("nowhere/report.xml")));
}

void TestReportSupervisorKeeping::keepsTheCopyOfAnAnswerUntilTheNextOneIsSafe()
{
    Station station;
    QDialog dialog;
    const quint64 report = station.Begin(station.PathOf(QStringLiteral("nowhere/report.xml")));
    Q_EMIT ReportNews::Instance().CommentAsked(report, &dialog);
    const QByteArray first("<report comment='windy'/>");
    const QByteArray second("<report comment='very windy'/>");
    station.Fail(report, first);
    station.Supervisor().SetEmergencyFolder(QString()); // as on a full disk
    station.Fail(report, second);
    QVERIFY(!station.Supervisor().GetReport(report).isSafe);
    QCOMPARE(station.Copies().size(), 2);
    QCOMPARE(bytesOf(station.Copies()[1]), first); // rather than nothing

    station.Supervisor().SetEmergencyFolder(station.EmergencyFolder());
    QCOMPARE(station.Supervisor().MayQuit(), QStringList());
    QVERIFY(station.Supervisor().GetReport(report).isSafe);
    QCOMPARE(station.Copies().size(), 2);
    QCOMPARE(bytesOf(station.Copies()[1]), second);

    station.Supervisor().SetEmergencyFolder(QString());
    station.Fail(report, first);
    QVERIFY(QDir().mkpath(station.PathOf(QStringLiteral("nowhere"))));
    QVERIFY(station.Supervisor().TryAgain(report));
    QCOMPARE(bytesOf(station.PathOf(QStringLiteral("nowhere/report.xml"))), first);
    QCOMPARE(station.Copies(), QStringList());
}

void TestReportSupervisorKeeping::tellsWhatStandsInTheWayNow()
{
    Station station;
    station.Supervisor().SetPauses(Hour, Hour);
    const QString path = station.PathOf(QStringLiteral("nowhere/report.xml"));
    const quint64 report = station.Lose(path);
    QCOMPARE(station.Supervisor().GetReport(report).reason, QStringLiteral("no space left on device"));
    QSignalSpy changes(&station.Supervisor(), &ReportSupervisor::Changed);
    QVERIFY(!station.Supervisor().TryAgain(report));
    const QString reason = station.Supervisor().GetReport(report).reason; // in the words of the system
    QVERIFY(!reason.isEmpty() && reason != QStringLiteral("no space left on device"));
    QVERIFY(!changes.isEmpty());
    QCOMPARE(station.StateOf(report), State::Pending);

    QVERIFY(QDir().mkpath(path)); // a folder in place of the file
    QVERIFY(!station.Supervisor().TryAgain(report));
    QVERIFY(station.Supervisor().GetReport(report).reason != reason);
}

void TestReportSupervisorKeeping::writesWhenTheFolderComesBack_data()
{
    QTest::addColumn<int>("pause");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isFileInTheWay");
    QTest::newRow("by-time") << 1 << QStringLiteral("there/report.xml") << false;
    QTest::newRow("by-time-file-in-the-way") << 1 << QStringLiteral("there/report.xml") << true;
    QTest::newRow("by-watching") << Hour << QStringLiteral("there/report.xml") << false;
    QTest::newRow("by-watching-file-in-the-way") << Hour << QStringLiteral("there/report.xml") << true;
    QTest::newRow("by-watching-step-by-step") << Hour << QStringLiteral("there/and/back/report.xml") << false;
}

void TestReportSupervisorKeeping::writesWhenTheFolderComesBack()
{
    QFETCH(int, pause);
    QFETCH(QString, path);
    QFETCH(bool, isFileInTheWay);

    Station station;
    station.Supervisor().SetPauses(pause, pause);
    const QString file = station.PathOf(path);
    const QString there = station.PathOf(QStringLiteral("there"));
    if (isFileInTheWay) {
        writeFile(there, "no folder");
    }
    const quint64 report = station.Lose(file);
    QCoreApplication::processEvents();
    QCOMPARE(station.StateOf(report), State::Pending);
    QVERIFY(station.Supervisor().MsToNextTry() >= 0);
    if (isFileInTheWay) {
        QCOMPARE(bytesOf(there), QByteArray("no folder"));
        QVERIFY(QFile::remove(there));
    }
    QString folder = station.PathOf(QString());
    const QStringList steps = path.split(QLatin1Char('/')).mid(0, path.count(QLatin1Char('/')));
    for (const QString& step : steps) {
        QVERIFY(QDir(folder).mkdir(step));
        folder += QLatin1Char('/') + step;
        QTest::qWait(0);
    }
    QTRY_COMPARE(station.StateOf(report), State::Written);
    QCOMPARE(bytesOf(file), QByteArray("<report/>"));
    const ReportSupervisor::Verdict verdict = station.Supervisor().GetReport(report);
    QCOMPARE(verdict.fileName, file);
    QCOMPARE(verdict.size, qint64(9));
    QCOMPARE(station.Copies(), QStringList());
    QCOMPARE(station.Supervisor().MsToNextTry(), -1);
}

void TestReportSupervisorKeeping::writesWhenThereIsRoom()
{
    if (!FileSizeLimit::IsSupported()) {
        QSKIP("The size of files cannot be limited here.");
    }
    Station station;
    station.Supervisor().SetPauses(Hour, Hour);
    const QString path = station.PathOf(QStringLiteral("report.xml"));
    const QByteArray content = "<report>" + QByteArray(5000, ' ') + "</report>";
    quint64 report = 0;
    {
        const FileSizeLimit full(1000);
        report = station.Lose(path, content);
        QCOMPARE(station.StateOf(report), State::Pending);
        QVERIFY(!station.Supervisor().GetReport(report).isSafe);
        QVERIFY(!station.Supervisor().TryAgain(report));
        QVERIFY(!QFile::exists(path));
        QCOMPARE(station.Supervisor().MayQuit(),
                 QStringList(path + QStringLiteral(" could not be written, and no copy of it either")));
        QCOMPARE(station.Copies(), QStringList());
    }
    QCOMPARE(station.Supervisor().MayQuit(), QStringList());
    QVERIFY(station.Supervisor().GetReport(report).isSafe);
    QCOMPARE(station.Copies().size(), 2);
    QVERIFY(station.Supervisor().TryAgain(report));
    QCOMPARE(bytesOf(path), content);
    QCOMPARE(station.Copies(), QStringList());
}

/// A report each second, while the folder was gone.
void TestReportSupervisorKeeping::writesManyAfterAnHour()
{
    constexpr int Reports = 50;
    Station station;
    station.Supervisor().SetPauses(1, Hour);
    const quint64 first = station.Lose(station.PathOf(QStringLiteral("there/0.xml")));
    for (int i = 1; i < Reports; ++i) {
        station.Lose(station.PathOf(QStringLiteral("there/%1.xml").arg(i)), QByteArray::number(i));
    }
    QCOMPARE(int(station.Supervisor().GetKept().size()), Reports);
    QVERIFY(QDir(station.PathOf(QString())).mkdir(QStringLiteral("there")));
    QTRY_COMPARE(int(station.Supervisor().GetKept().size()), 0);
    QCOMPARE(station.Copies(), QStringList());
    QCOMPARE(bytesOf(station.PathOf(QStringLiteral("there/49.xml"))), QByteArray("49"));
    QTRY_COMPARE(station.StateOf(first), State::Written);
}

/// Where many wait for one folder, one that waits for another is not behind all of them.
void TestReportSupervisorKeeping::goesOnInOtherFolders()
{
    Station station;
    station.Supervisor().SetPauses(Hour, Hour);
    for (int i = 0; i < 50; ++i) {
        station.Lose(station.PathOf(QStringLiteral("nowhere/%1.xml").arg(i)));
    }
    const quint64 report = station.Lose(station.PathOf(QStringLiteral("report.xml")));
    station.Supervisor().SetPauses(0, Hour);
    QTRY_COMPARE(station.StateOf(report), State::Written);
    QCOMPARE(int(station.Supervisor().GetKept().size()), 50);
}

/// What is at the path when the report fails, and what comes then.
void TestReportSupervisorKeeping::replacesNothingNewer_data()
{
    QTest::addColumn<QString>("found");
    QTest::addColumn<QString>("later");
    QTest::addColumn<int>("state");
    QTest::newRow("nothing-was-there") << ""
                                       << "" << int(State::Written);
    QTest::newRow("older-file-as-it-was") << "old"
                                          << "" << int(State::Written);
    QTest::newRow("by-another-report") << ""
                                       << "report" << int(State::Blocked);
    QTest::newRow("by-another-report-over-an-older-file") << "old"
                                                          << "report" << int(State::Blocked);
    QTest::newRow("by-another-program") << ""
                                        << "new" << int(State::Blocked);
    QTest::newRow("by-another-program-over-an-older-file") << "old"
                                                           << "new" << int(State::Blocked);
    QTest::newRow("by-another-program-with-an-older-time") << ""
                                                           << "old" << int(State::Blocked);
    QTest::newRow("folder-comes-back-with-an-older-file") << "no folder"
                                                          << "old" << int(State::Written);
    QTest::newRow("folder-comes-back-with-a-newer-file") << "no folder"
                                                         << "new" << int(State::Blocked);
}

void TestReportSupervisorKeeping::replacesNothingNewer()
{
    QFETCH(QString, found);
    QFETCH(QString, later);
    QFETCH(int, state);

    Station station;
    station.Supervisor().SetPauses(Hour, Hour);
    const QString path = station.PathOf(QStringLiteral("there/report.xml"));
    const auto put = [&](const QString& what) {
        if (what == QLatin1String("report")) {
            station.Write(station.Begin(path), path, "<another/>");
        } else if (what == QLatin1String("new") || what == QLatin1String("old")) {
            writeFile(path, "<" + what.toLatin1() + "/>");
            setFileTime(path, QDateTime::currentDateTime().addDays(what == QLatin1String("new") ? 1 : -1));
        }
    };
    QDir folder(station.PathOf(QString()));
    QVERIFY(found == QLatin1String("no folder") || folder.mkdir(QStringLiteral("there")));
    put(found);
    const quint64 report = station.Lose(path);
    QVERIFY(folder.mkpath(QStringLiteral("there")));
    put(later);
    const QByteArray before = bytesOf(path);

    QCOMPARE(station.Supervisor().TryAgain(report), State(state) == State::Written);
    QCOMPARE(int(station.StateOf(report)), state);
    QCOMPARE(bytesOf(path), State(state) == State::Written ? QByteArray("<report/>") : before);
    if (State(state) == State::Blocked) {
        QVERIFY(station.Supervisor().GetReport(report).reason.startsWith(QStringLiteral("no space left on device; ")));
        QCOMPARE(station.Copies().size(), 2);
        QCOMPARE(station.Supervisor().MsToNextTry(), -1);
        QVERIFY(QFile::remove(path));
        QVERIFY(station.Supervisor().TryAgain(report));
        QCOMPARE(bytesOf(path), QByteArray("<report/>"));
    }
}

/// The folder was missing, so times are all there is; but this process knows by itself what it has written since.
void TestReportSupervisorKeeping::replacesNothingNewerWhenTheClockIsSetBack()
{
    FakeClock clock(QDateTime::currentDateTime().addYears(1));
    Station station;
    station.Supervisor().SetPauses(0, 0);
    const QString path = station.PathOf(QStringLiteral("there/report.xml"));
    const quint64 report = station.Lose(path);
    QCOMPARE(station.StateOf(report), State::Pending);
    QVERIFY(QDir(station.PathOf(QString())).mkdir(QStringLiteral("there")));
    station.Write(station.Begin(path), path, "<another/>");
    QTRY_COMPARE(station.StateOf(report), State::Blocked);
    QCoreApplication::processEvents();
    QCOMPARE(bytesOf(path), QByteArray("<another/>"));
}

void TestReportSupervisorKeeping::writesTheNewestOfOnePath()
{
    Station station;
    station.Supervisor().SetPauses(1, 1);
    const QString path = station.PathOf(QStringLiteral("there/report.xml"));
    const quint64 first = station.Lose(path, "<first/>");
    const quint64 second = station.Lose(path, "<second/>");
    QVERIFY(QDir(station.PathOf(QString())).mkdir(QStringLiteral("there")));
    QTRY_COMPARE(station.StateOf(second), State::Written);
    QTRY_COMPARE(station.StateOf(first), State::Blocked);
    QCOMPARE(bytesOf(path), QByteArray("<second/>"));
    QVERIFY(station.Supervisor().SaveElsewhere(first, station.PathOf(QStringLiteral("first.xml"))));
    QCOMPARE(bytesOf(station.PathOf(QStringLiteral("first.xml"))), QByteArray("<first/>"));
}

void TestReportSupervisorKeeping::savesElsewhere()
{
    Station station;
    const quint64 report = station.Lose(station.PathOf(QStringLiteral("nowhere/report.xml")));
    QVERIFY(!station.Supervisor().SaveElsewhere(report, station.PathOf(QStringLiteral("nowhere/else.xml"))));
    QCOMPARE(station.StateOf(report), State::Pending);
    QCOMPARE(station.Copies().size(), 2);
    const QString elsewhere = station.PathOf(QStringLiteral("else.xml"));
    writeFile(elsewhere, "<earlier/>");
    QVERIFY(station.Supervisor().SaveElsewhere(report, elsewhere));
    QCOMPARE(bytesOf(elsewhere), QByteArray("<report/>"));
    QCOMPARE(station.StateOf(report), State::Written);
    QCOMPARE(station.Supervisor().GetReport(report).fileName, elsewhere);
    QCOMPARE(station.Copies(), QStringList());
    QVERIFY(!station.Supervisor().SaveElsewhere(report, elsewhere));
    QVERIFY(!station.Supervisor().SaveElsewhere(report + 1, elsewhere));
}

/// A path may be relative, and the folder that it begins in may become another one.
void TestReportSupervisorKeeping::savesWhereItWasToldToFromAnyFolder()
{
    Station station;
    station.Supervisor().SetPauses(Hour, Hour);
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(station.PathOf(QString())));
    const quint64 report = station.Lose(QStringLiteral("report.xml"));
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(station.Supervisor().TryAgain(report));
    QCOMPARE(bytesOf(station.PathOf(QStringLiteral("report.xml"))), QByteArray("<report/>"));
}

void TestReportSupervisorKeeping::discards()
{
    Station station;
    const quint64 report = station.Lose(station.PathOf(QStringLiteral("nowhere/report.xml")));
    QVERIFY(station.Supervisor().Discard(report));
    QCOMPARE(station.StateOf(report), State::Discarded);
    QCOMPARE(station.Copies(), QStringList());
    QCOMPARE(station.Supervisor().MsToNextTry(), -1);
    QVERIFY(!station.Supervisor().Discard(report));
    QVERIFY(!station.Supervisor().TryAgain(report));
    QVERIFY(!station.Supervisor().Discard(report + 1));
}

void TestReportSupervisorKeeping::tellsWhatWouldBeLost_data()
{
    QTest::addColumn<QString>("emergencyFolder");
    QTest::newRow("no-emergency-folder") << QString();
    QTest::newRow("emergency-folder-is-a-file") << QStringLiteral("file");
}

void TestReportSupervisorKeeping::tellsWhatWouldBeLost()
{
    QFETCH(QString, emergencyFolder);
    Station station;
    QCOMPARE(station.Supervisor().MayQuit(), QStringList());
    const quint64 report = station.Begin(QStringLiteral("reports\\a.xml"));
    const QString path = QDir::toNativeSeparators(QStringLiteral("reports/a.xml"));
    QCOMPARE(station.Supervisor().MayQuit(), QStringList(path + QStringLiteral(" is being made")));
    QDialog dialog;
    Q_EMIT ReportNews::Instance().CommentAsked(report, &dialog);
    QCOMPARE(station.Supervisor().MayQuit(), QStringList(path + QStringLiteral(" waits for a comment")));
    station.Fail(report);
    QCOMPARE(station.Supervisor().MayQuit(), QStringList());
    station.Supervisor().SetEmergencyFolder(emergencyFolder.isEmpty() ? QString() : station.PathOf(emergencyFolder));
    writeFile(station.PathOf(QStringLiteral("file")), "no folder");
    const quint64 unsafe = station.Lose(station.PathOf(QStringLiteral("nowhere/b.xml")));
    const QStringList lost = station.Supervisor().MayQuit();
    QCOMPARE(lost.size(), 1);
    QVERIFY(lost[0].contains(QStringLiteral("b.xml could not be written, and no copy of it either")));
    QCOMPARE(station.Supervisor().TakeOverEarlier(), QStringList());
    QVERIFY(station.Supervisor().Discard(unsafe));
    QCOMPARE(station.Supervisor().MayQuit(), QStringList());
}

void TestReportSupervisorKeeping::tellsWhenTheCopyIsGone()
{
    Station station;
    station.Supervisor().SetPauses(Hour, Hour);
    const quint64 report = station.Lose(station.PathOf(QStringLiteral("report.xml")));
    writeFile(station.Copies()[1], "<rep");
    QVERIFY(!station.Supervisor().TryAgain(report));
    QCOMPARE(station.StateOf(report), State::Blocked);
    QVERIFY(!station.Supervisor().GetReport(report).isSafe);
    QVERIFY(!QFile::exists(station.PathOf(QStringLiteral("report.xml"))));
    QVERIFY(!station.Supervisor().SaveElsewhere(report, station.PathOf(QStringLiteral("else.xml"))));
    QCOMPARE(station.Supervisor().MayQuit().size(), 1);
}

void TestReportSupervisorKeeping::copiesAgainWhenTheEmergencyFolderIsBack()
{
#ifdef Q_OS_WIN
    QSKIP("A folder with a locked file cannot be removed here.");
#endif
    Station station;
    station.Lose(station.PathOf(QStringLiteral("nowhere/a.xml")));
    QVERIFY(QDir(station.EmergencyFolder()).removeRecursively());
    station.Lose(station.PathOf(QStringLiteral("nowhere/b.xml")));
    QCOMPARE(station.Copies().size(), 2);
    const QStringList lost = station.Supervisor().MayQuit();
    QCOMPARE(lost.size(), 1); // The copy of the first one went with the folder.
    QVERIFY2(lost.first().contains(QLatin1String("a.xml")), qPrintable(lost.first()));
}

QTEST_MAIN(TestReportSupervisorKeeping)
#include "tst_reportsupervisor_keeping.moc"
