#include <atomic>
#include <thread>

#include <QDialog>
#include <QSignalSpy>
#include <QtTest>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <xmlhelper/reportnews.h>

#include "fakeclock.h"
#include "station.h"

using State = ReportSupervisor::State;

namespace {

/// Bytes that the process has allocated and not given back; 0 where that is not known.
qint64 allocatedBytes()
{
#ifdef __GLIBC__
    return qint64(mallinfo2().uordblks);
#else
    return 0;
#endif
}

#ifdef __GLIBC__
constexpr int ManyReports = 10000;
#else
constexpr int ManyReports = 2500; // There is nothing to wait for.
#endif

} // namespace

/// What is told of each report, and when.
class TestReportSupervisor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judges_data();
    void judges();
    void tellsOfEachChange();
    void knowsAReportThatBeganBefore();
    void takesSchemaFaultsDown();
    void checksFilesLater();
    void takesAVerdictBack();
    void checksNoDevice();
    void hasNotCheckedWhatItCannotRead();
    void forgetsTheOldestThatAreFinished();
    void ordersByNumberWhenTheClockIsSetBack();
    void hearsAllThreads();
    void comesAndGoesWhileOthersTell();
    void canBeDeletedByAReceiver();
    void staysFlatOverTenThousandReports();
};

/// Each step is a word: ask, fill ("<report/>"), break ("<report>"), leave (another's file under its name), remove,
/// lose, exceed (the limits), hide (the dialog, as Cancel does), close (which deletes it).
void TestReportSupervisor::judges_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* steps, State state, const char* reason = "") {
        QTest::newRow(name) << QString::fromLatin1(steps) << int(state) << QString::fromLatin1(reason);
    };
    row("being-made", "", State::Making);
    row("waiting-for-a-comment", "ask", State::Waiting);
    row("written", "fill", State::Written);
    row("written-after-its-comment", "ask fill", State::Written);
    row("written-before-its-dialog-goes", "ask fill close", State::Written);
    row("not-well-formed", "break", State::NotWellFormed, "line 1: ");
    row("not-valid", "fill refuse", State::Invalid, "Frequency is missing; Level is missing");
    row("not-well-formed-is-not-validated", "break refuse", State::NotWellFormed, "line 1: ");
    row("gone-before-it-was-checked", "fill remove", State::Gone, "there is no such file any more");
    row("another-file-in-its-place", "fill leave", State::Gone, "another file has taken its place");
    row("failed-and-kept", "lose", State::Pending, "no space left on device");
    row("failed-beyond-the-limits", "exceed", State::Failed, "no space left on device");
    row("closed-by-the-operator", "ask close", State::Closed, "not saved, closed by the operator");
    row("cancelled-by-the-operator", "ask hide", State::Closed, "not saved, closed by the operator");
    row("hidden-behind-its-answer", "ask fill hide", State::Written);
    row("kept-when-its-dialog-hides", "ask lose hide", State::Pending, "no space left on device");
    row("answered-when-shown-again", "ask hide show fill hide", State::Written);
    row("answered-again-after-success", "ask fill hide show lose hide", State::Pending, "no space left on device");
    row("kept-when-its-dialog-goes", "ask lose close", State::Pending, "no space left on device");
    row("answered-again-with-success", "ask lose fill close", State::Written);
    row("answered-again-beyond-the-limits", "ask lose exceed", State::Pending, "no space left on device");
    row("answered-again-in-vain", "ask lose lose", State::Pending, "no space left on device");
}

void TestReportSupervisor::judges()
{
    QFETCH(QString, steps);
    QFETCH(int, state);
    QFETCH(QString, reason);

    Station station;
    const QString path = station.PathOf(QStringLiteral("report.xml"));
    auto dialog = std::make_unique<QDialog>();
    const quint64 report = station.Begin(path);
    const QStringList words = steps.split(QLatin1Char(' '));
    for (const QString& word : words) {
        if (word == QLatin1String("ask")) {
            dialog->show();
            Q_EMIT ReportNews::Instance().CommentAsked(report, dialog.get());
        } else if (word == QLatin1String("hide") || word == QLatin1String("show")) {
            dialog->setVisible(word == QLatin1String("show"));
        } else if (word == QLatin1String("fill")) {
            station.Write(report, path);
        } else if (word == QLatin1String("break")) {
            station.Write(report, path, "<report>");
        } else if (word == QLatin1String("leave")) {
            writeFile(path, "<another/>");
        } else if (word == QLatin1String("remove")) {
            QVERIFY(QFile::remove(path));
        } else if (word == QLatin1String("lose")) {
            station.Fail(report);
        } else if (word == QLatin1String("exceed")) {
            station.Fail(report, QByteArray());
        } else if (word == QLatin1String("close")) {
            dialog.reset();
        } else if (word == QLatin1String("refuse")) {
            station.Supervisor().SetValidator([](const QString&, const QString&) {
                return QStringList {QStringLiteral("Frequency is missing"), QStringLiteral("Level is missing")};
            });
        }
    }
    QTRY_COMPARE(int(station.StateOf(report)), state);
    const ReportSupervisor::Verdict verdict = station.Supervisor().GetReport(report);
    QCOMPARE(verdict.reason.left(reason.size()), reason);
    QCOMPARE(verdict.reason.isEmpty(), reason.isEmpty());
    QCOMPARE(verdict.reportPath, path);
    QCOMPARE(verdict.schemaPath, QStringLiteral("survey.xsd"));
    const bool isKept = State(state) == State::Pending;
    const bool isWritten = !isKept && (steps.contains(QLatin1String("fill")) || steps.contains(QLatin1String("break")));
    QCOMPARE(verdict.fileName, isWritten ? path : QString());
    QTRY_COMPARE(station.Supervisor().GetReport(report).isChecked, isWritten);
    QCOMPARE(int(station.StateOf(report)), state);
    QCOMPARE(verdict.isSafe, isKept);
    QCOMPARE(station.Copies().size(), isKept ? 2 : 0);
}

void TestReportSupervisor::tellsOfEachChange()
{
    Station station;
    QStringList told;
    QObject::connect(&station.Supervisor(), &ReportSupervisor::Changed, &station.Supervisor(),
                     [&](quint64 number) { told.append(QVariant::fromValue(station.StateOf(number)).toString()); });
    const QString path = station.PathOf(QStringLiteral("report.xml"));
    QDialog dialog;
    const quint64 report = station.Begin(path);
    QVERIFY(told.isEmpty());
    QCoreApplication::processEvents();
    Q_EMIT ReportNews::Instance().CommentAsked(report, &dialog);
    QCoreApplication::processEvents();
    station.Fail(report);
    QCoreApplication::processEvents();
    station.Write(report, path, "<report>");
    QTRY_COMPARE(told.size(), 5);
    QCOMPARE(told.join(QLatin1Char(' ')), QStringLiteral("Making Waiting Pending Written NotWellFormed"));
}

void TestReportSupervisor::knowsAReportThatBeganBefore()
{
    Station station;
    const quint64 written = station.Begin(station.PathOf(QStringLiteral("a.xml")));
    const quint64 lost = station.Begin(station.PathOf(QStringLiteral("b.xml")));
    station.Restart();
    QCOMPARE(station.StateOf(written), State::Unknown);
    station.Write(written, station.PathOf(QStringLiteral("a.xml")));
    station.Fail(lost);
    QCOMPARE(station.StateOf(written), State::Written);
    QCOMPARE(station.StateOf(lost), State::Blocked);
    QVERIFY(!station.Supervisor().TryAgain(lost));
    QVERIFY(station.Supervisor().SaveElsewhere(lost, station.PathOf(QStringLiteral("c.xml"))));
    QCOMPARE(bytesOf(station.PathOf(QStringLiteral("c.xml"))), QByteArray("<report/>"));
}

void TestReportSupervisor::takesSchemaFaultsDown()
{
    Station station;
    const quint64 report = station.Begin(station.PathOf(QStringLiteral("report.xml")));
    Q_EMIT ReportNews::Instance().SchemaRead(report, false, QStringLiteral("a type is missing"));
    station.Write(report, station.PathOf(QStringLiteral("report.xml")));
    const ReportSupervisor::Verdict verdict = station.Supervisor().GetReport(report);
    QCOMPARE(verdict.state, State::Written);
    QCOMPARE(verdict.schemaFault, QStringLiteral("a type is missing"));
    QCOMPARE(verdict.size, qint64(9));
}

void TestReportSupervisor::checksFilesLater()
{
    Station station;
    QStringList validated;
    station.Supervisor().SetValidator([&validated](const QString& schema, const QString& report) {
        validated.append(schema + QLatin1Char(' ') + report);
        return QStringList();
    });
    const QString path = station.PathOf(QStringLiteral("report.xml"));
    const quint64 report = station.Begin(path);
    station.Write(report, path);
    QCOMPARE(station.StateOf(report), State::Written);
    QVERIFY(!station.Supervisor().GetReport(report).isChecked);
    QCOMPARE(validated, QStringList());
    QTRY_VERIFY(station.Supervisor().GetReport(report).isChecked);
    QCOMPARE(validated, QStringList(QStringLiteral("survey.xsd ") + path));
}

void TestReportSupervisor::takesAVerdictBack()
{
    Station station;
    const QString path = station.PathOf(QStringLiteral("report.xml"));
    const quint64 report = station.Begin(path);
    station.Write(report, path);
    QTRY_VERIFY(station.Supervisor().GetReport(report).isChecked);
    QVERIFY(QFile::rename(path, station.PathOf(QStringLiteral("moved.xml"))));
    QSignalSpy changes(&station.Supervisor(), &ReportSupervisor::Changed);
    station.Supervisor().Recheck(report);
    QTRY_COMPARE(station.StateOf(report), State::Gone);
    QCOMPARE(changes.size(), 1);

    QVERIFY(QFile::rename(station.PathOf(QStringLiteral("moved.xml")), path));
    station.Supervisor().Recheck(report);
    QTRY_COMPARE(station.StateOf(report), State::Written);
    QCOMPARE(changes.size(), 2);
}

/// A file that even the superuser may only write.
void TestReportSupervisor::hasNotCheckedWhatItCannotRead()
{
    const QString path = QStringLiteral("/proc/sys/vm/compact_memory");
    if (!QFileInfo(path).isFile() || QFileInfo(path).isReadable()) {
        QSKIP("There is no such file here.");
    }
    Station station;
    const quint64 report = station.Begin(path);
    Q_EMIT ReportNews::Instance().Written(report, path, 0);
    QTRY_COMPARE(station.Supervisor().GetReport(report).reason, QStringLiteral("it cannot be opened to check it"));
    QVERIFY(!station.Supervisor().GetReport(report).isChecked);
    QCOMPARE(station.StateOf(report), State::Written);
    QSignalSpy changes(&station.Supervisor(), &ReportSupervisor::Changed);
    station.Supervisor().Recheck(report);
    station.Supervisor().Recheck(station.Begin(station.PathOf(QStringLiteral("next.xml"))));
    QTRY_VERIFY(!changes.isEmpty());
    QCOMPARE(changes.count(), 1); // of the next one: nothing is new of the first
}

/// Reading what went to a device would wait for somebody else.
void TestReportSupervisor::checksNoDevice()
{
#ifdef Q_OS_UNIX
    Station station;
    const quint64 report = station.Begin(QStringLiteral("/dev/null"));
    Q_EMIT ReportNews::Instance().Written(report, QStringLiteral("/dev/null"), 9);
    const quint64 next = station.Begin(station.PathOf(QStringLiteral("report.xml")));
    station.Write(next, station.PathOf(QStringLiteral("report.xml")));
    QTRY_VERIFY(station.Supervisor().GetReport(next).isChecked);
    QVERIFY(!station.Supervisor().GetReport(report).isChecked);
    QCOMPARE(station.StateOf(report), State::Written);
#else
    QSKIP("There are no such files here.");
#endif
}

void TestReportSupervisor::forgetsTheOldestThatAreFinished()
{
    Station station;
    const QString path = station.PathOf(QStringLiteral("report.xml"));
    QDialog answeredTwice;
    const quint64 answered = station.Begin(path);
    Q_EMIT ReportNews::Instance().CommentAsked(answered, &answeredTwice);
    station.Write(answered, path);
    const quint64 making = station.Begin(path);
    const quint64 lost = station.Lose(station.PathOf(QStringLiteral("nowhere/report.xml")));
    QDialog dialog;
    const quint64 waiting = station.Begin(path);
    Q_EMIT ReportNews::Instance().CommentAsked(waiting, &dialog);
    quint64 last = 0;
    for (int i = 0; i < ReportSupervisor::MaxFinished + 5; ++i) {
        last = station.Begin(path);
        station.Write(last, path);
    }
    QTRY_VERIFY_WITH_TIMEOUT(station.Supervisor().GetReport(last).isChecked, 60000); // after a thousand others
    const std::vector<ReportSupervisor::Verdict> reports = station.Supervisor().GetReports();
    QCOMPARE(int(reports.size()), ReportSupervisor::MaxFinished + 3);
    QCOMPARE(reports[0].report, making);
    QCOMPARE(reports[1].report, lost);
    QCOMPARE(reports[2].report, waiting);
    QCOMPARE(reports[3].report, waiting + 6);
    QCOMPARE(station.StateOf(waiting + 5), State::Unknown);

    QCOMPARE(station.StateOf(answered), State::Unknown);
    station.Fail(answered); // Its dialog was shown again.
    QCOMPARE(station.StateOf(answered), State::Pending);
    QCOMPARE(station.Supervisor().GetReport(answered).reportPath, path);
    QVERIFY(station.Supervisor().TryAgain(answered));
}

void TestReportSupervisor::ordersByNumberWhenTheClockIsSetBack()
{
    FakeClock clock(QDateTime(QDate(2026, 3, 1), QTime(12, 0)));
    Station station;
    const quint64 first = station.Lose(station.PathOf(QStringLiteral("nowhere/a.xml")));
    clock.Set(QDateTime(QDate(2020, 3, 1), QTime(12, 0)));
    const quint64 second = station.Lose(station.PathOf(QStringLiteral("nowhere/b.xml")));
    const std::vector<ReportSupervisor::Verdict> kept = station.Supervisor().GetKept();
    QCOMPARE(int(kept.size()), 2);
    QCOMPARE(kept[0].report, first);
    QCOMPARE(kept[1].report, second);
    QVERIFY(kept[1].begun < kept[0].begun);
}

void TestReportSupervisor::hearsAllThreads()
{
    constexpr int Threads = 4;
    constexpr int Reports = 15;
    Station station;
    QDir(station.PathOf(QString())).mkdir(QStringLiteral("there"));
    const quint64 before = station.Begin(station.PathOf(QStringLiteral("first.xml")));
    std::atomic<int> unsafe {0};
    std::vector<std::thread> threads;
    for (int thread = 0; thread < Threads; ++thread) {
        threads.emplace_back([&, thread] {
            for (int i = 0; i < Reports; ++i) {
                const quint64 report = before + quint64(1 + thread * Reports + i);
                const QString path = station.PathOf(QStringLiteral("nowhere/%1.xml").arg(report));
                Q_EMIT ReportNews::Instance().Begun(report, path, QString());
                Q_EMIT ReportNews::Instance().NotWritten(report, QStringLiteral("gone"), QByteArray::number(report));
                unsafe += station.Copies().filter(QStringLiteral(".xml")).isEmpty() ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    QCOMPARE(int(unsafe), 0);
    QCOMPARE(station.Copies().size(), 2 * Threads * Reports);
    QCOMPARE(int(station.Supervisor().GetKept().size()), Threads * Reports);
    for (const ReportSupervisor::Verdict& verdict : station.Supervisor().GetKept()) {
        const QString path = station.PathOf(QStringLiteral("there/%1.xml").arg(verdict.report));
        QCOMPARE(verdict.reason, QStringLiteral("gone"));
        QVERIFY(station.Supervisor().SaveElsewhere(verdict.report, path));
        QCOMPARE(bytesOf(path), QByteArray::number(verdict.report));
    }
    QCOMPARE(station.Copies(), QStringList());
}

void TestReportSupervisor::comesAndGoesWhileOthersTell()
{
    constexpr quint64 FirstOfThread = 1000000;
    Station station;
    std::atomic<bool> isEnough {false};
    std::thread teller([&] {
        for (quint64 report = FirstOfThread; !isEnough; ++report) {
            Q_EMIT ReportNews::Instance().Begun(report, QStringLiteral("report.xml"), QString());
            Q_EMIT ReportNews::Instance().Written(report, QStringLiteral("report.xml"), 9);
        }
    });
    for (int i = 0; i < 200; ++i) {
        station.Restart();
        QCoreApplication::processEvents();
    }
    isEnough = true;
    teller.join();
    QCOMPARE(station.StateOf(FirstOfThread - 1), State::Unknown);
}

void TestReportSupervisor::canBeDeletedByAReceiver()
{
    Station station;
    auto supervisor = std::make_unique<ReportSupervisor>();
    int told = 0;
    QObject::connect(supervisor.get(), &ReportSupervisor::Changed, supervisor.get(), [&] {
        ++told;
        supervisor.reset();
    });
    station.Begin(station.PathOf(QStringLiteral("a.xml")));
    station.Begin(station.PathOf(QStringLiteral("b.xml")));
    QTRY_VERIFY(!supervisor);
    QCOMPARE(told, 1);
}

void TestReportSupervisor::staysFlatOverTenThousandReports()
{
    Station station;
    int validations = 0;
    station.Supervisor().SetValidator([&validations](const QString&, const QString&) {
        ++validations;
        return QStringList();
    });
    int changes = 0;
    QObject::connect(&station.Supervisor(), &ReportSupervisor::Changed, &station.Supervisor(), [&] { ++changes; });
    const QString path = station.PathOf(QStringLiteral("report.xml"));
    writeFile(path, "<report/>");
    qint64 bytesAtTwoThousand = 0;
    for (int i = 1; i <= ManyReports; ++i) {
        const quint64 report = station.Begin(path);
        Q_EMIT ReportNews::Instance().Written(report, path, 9);
        for (int events = 0; validations < i && events < 10; ++events) {
            QCoreApplication::processEvents();
        }
        QCOMPARE(validations, i);
        QCOMPARE(changes, 2 * i); // written, and found to be good
        if (i == 2000) {
            bytesAtTwoThousand = allocatedBytes();
        }
    }
    QCOMPARE(int(station.Supervisor().GetReports().size()), ReportSupervisor::MaxFinished);
    const qint64 grown = allocatedBytes() - bytesAtTwoThousand;
    QVERIFY2(grown < 200000, qPrintable(QString::number(grown)));
}

QTEST_MAIN(TestReportSupervisor)
#include "tst_reportsupervisor.moc"
