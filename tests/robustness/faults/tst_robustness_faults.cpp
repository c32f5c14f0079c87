#include <QtTest>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <new>

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <dlfcn.h>
#include <execinfo.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <xmlhelper/filesaving_p.h>
#include <xmlhelper/reportnews.h>
#include <xmlhelper/reportteller_p.h>

#include "domtext.h"
#include "faultinjection.h"
#include "faultyflows.h"
#include "flows.h"
#include "strictreading.h"

Q_DECLARE_METATYPE(Fault)

/// Every flow with each of its writes, opens and allocations failing in turn. The process lives; for an allocation it
/// may end, by std::bad_alloc or inside Qt, which is not made for that. What was written can be read and
/// is complete, or the caller has been told; nothing else is left; the next run succeeds.
///
/// The flows run in a process of their own, so that an end of that is seen and gone on behind.
class TestRobustnessFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void survivesEveryFault_data();
    void survivesEveryFault();
    void noticesAFault_data();
    void noticesAFault();
    void tellsOfAReportThatMemoryIsTooShortFor();

private:
    QTemporaryDir m_folder;
};

namespace {

/// What the process that runs a flow tells the one that watches it; stands in memory that both share.
struct Report
{
    int number; ///< of the call that fails, or has failed last
    int faults; ///< that were injected
    int exceptions; ///< runs that std::bad_alloc has left
    int terminations; ///< processes that std::bad_alloc has ended
    int endsInsideQt; ///< processes that have ended by a bad access of Qt
    const void* taker; ///< the code to which an allocation has given null last
    char violation[1000];
};

/// A report in memory that the processes forked from now on share; null without memory.
std::unique_ptr<Report, void (*)(Report*)> sharedReport()
{
    void* const shared = mmap(nullptr, sizeof(Report), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return {shared == MAP_FAILED ? nullptr : new (shared) Report {},
            [](Report* report) { munmap(report, sizeof(Report)); }};
}

constexpr int EndedInsideQt = 78;
constexpr int EndedByViolation = 79;
constexpr unsigned RunTimeout = 200;

/// More than it takes to save a document of some thousand nodes.
constexpr int AllocationsAtMost = 1000;

[[noreturn]] void endByUncaughtException()
{
    try {
        if (const std::exception_ptr exception = std::current_exception()) {
            std::rethrow_exception(exception);
        }
    } catch (const std::bad_alloc&) {
        _exit(EndedByBadAlloc);
    } catch (...) {
    }
    std::abort();
}

/// What a null pointer and an index into it may point to.
constexpr quintptr NullPageEnd = 64 * 1024;

QByteArray fileOf(const void* address)
{
    Dl_info place {};
    return dladdr(address, &place) != 0 ? place.dli_fname : "";
}

/// The file of the program or library that was running when the signal came that is being handled, or that had called
/// the C library then.
QByteArray interruptedFile()
{
    std::array<void*, 64> frames {};
    const auto end = frames.begin() + backtrace(frames.data(), int(frames.size()));
    const QByteArray handler = fileOf(frames.front());
    auto frame = std::find_if(frames.begin(), end, [&handler](void* address) { return fileOf(address) != handler; });
    frame = std::find_if(frame, end, [](void* address) { return !fileOf(address).contains("/libc.so"); });
    return frame == end ? QByteArray() : fileOf(*frame);
}

/// Whether the flow makes widgets; for the handler below.
bool hasWidgets = false;

/// Qt does not look at every pointer that malloc() gives it, and its layouts of text read beside what they could not
/// allocate. That is nothing that this library could help, unlike any other access to memory that is not there.
void endByBadAccess(int signal, siginfo_t* info, void*)
{
    // An address that no memory can have is told as 0, too, but by the kernel.
    const bool isNull = reinterpret_cast<quintptr>(info->si_addr) < NullPageEnd && info->si_code != SI_KERNEL;
    if ((isNull || hasWidgets) && interruptedFile().contains("/libQt")) {
        _exit(EndedInsideQt);
    }
    std::signal(signal, SIG_DFL);
}

QString fileOf(const Flow& flow, const QString& folder)
{
    return folder + QLatin1Char('/') + flow.writtenFile;
}

/// What is being saved in the folder or those in it, or was when a process ended.
QStringList temporaryFiles(const QString& folder)
{
    QStringList files;
    QDirIterator entries(folder, {QStringLiteral(".xmlhelper-*.part")}, QDir::Files | QDir::Hidden,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        files += entries.next();
    }
    return files;
}

/// What comes of a flow: its result, and the file that it writes.
struct Outcome
{
    QString result;
    QString file;
};

/// What the flow's file holds, when it can be read.
QString writtenText(const Flow& flow, const QString& folder)
{
    const bool isReadable = !flow.writtenFile.isEmpty() && strictErrorOf(fileOf(flow, folder)).isEmpty();
    return isReadable ? domText(documentInFile(fileOf(flow, folder))) : QString();
}

Outcome outcomeOf(const Flow& flow, const QString& folder)
{
    QFile::remove(fileOf(flow, folder));
    const QString result = flow.run(folder);
    return {result, writtenText(flow, folder)};
}

/// Runs one flow again and again, each time with the next call failing.
class FaultyRuns
{
public:
    FaultyRuns(const Flow& flow, Fault fault, const QString& folder, const Outcome& expected, Report& report)
        : m_flow(flow)
        , m_fault(fault)
        , m_folder(folder)
        , m_expected(expected)
        , m_report(report)
    {
    }

    /// Ends the process.
    [[noreturn]] void Run()
    {
        while (true) {
            ++m_report.number;
            const Outcome faulty = faultyOutcome();
            if (!FaultInjection::HasStruck()) {
                _exit(0);
            }
            ++m_report.faults;
            // A file that can be read is complete, or the flow has failed before the eyes of its caller.
            if (!faulty.file.isEmpty() && faulty.file != m_expected.file
                && faulty.result.startsWith(QLatin1String("succeeded"))) {
                endWith(QStringLiteral("leaves a file that looks like a whole one:\n") + faulty.file);
            }
            if (!temporaryFiles(m_folder).isEmpty()) {
                endWith(QStringLiteral("leaves a temporary file"));
            }
            const Outcome next = outcomeOf(m_flow, m_folder);
            if (next.result != m_expected.result) {
                endWith(QStringLiteral("makes the next run differ:\n") + next.result);
            }
            if (next.file != m_expected.file) {
                endWith(QStringLiteral("makes the next file differ:\n") + next.file);
            }
        }
    }

private:
    Outcome faultyOutcome()
    {
        QFile::remove(fileOf(m_flow, m_folder));
        QString result = QStringLiteral("(left by an exception)");
        try {
            const FaultInjection injection(m_fault, m_report.number, !m_flow.hasWidgets, &m_report.taker);
            result = m_flow.run(m_folder);
        } catch (const std::bad_alloc&) {
            ++m_report.exceptions;
        }
        return {result, writtenText(m_flow, m_folder)};
    }

    [[noreturn]] void endWith(const QString& violation)
    {
        qstrncpy(m_report.violation, violation.toUtf8().constData(), sizeof m_report.violation);
        _exit(EndedByViolation);
    }

    const Flow& m_flow;
    Fault m_fault;
    QString m_folder;
    Outcome m_expected;
    Report& m_report;
};

/// Makes the signals of the child process end it, and what may end it recognisable.
void prepareToEnd(const Flow& flow)
{
    for (const int signal : {SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGTERM, SIGINT}) {
        std::signal(signal, SIG_DFL);
    }
    hasWidgets = flow.hasWidgets;
    struct sigaction action = {};
    action.sa_sigaction = endByBadAccess;
    action.sa_flags = SA_SIGINFO | SA_NODEFER;
    sigaction(SIGSEGV, &action, nullptr);
    std::set_terminate(endByUncaughtException);
    alarm(RunTimeout);
}

/// Runs the flow in a child process and gives how that has ended.
int statusOfRuns(const Flow& flow, Fault fault, const QString& folder, const Outcome& expected, Report& report)
{
    for (const QString& file : temporaryFiles(folder)) {
        QFile::remove(file); // The process before has ended over it.
    }
    const pid_t child = fork();
    if (child == 0) {
        prepareToEnd(flow);
        FaultyRuns(flow, fault, folder, expected, report).Run();
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

/// Whether a process has ended by a signal because Qt was given null, or what Qt shapes texts with. Its layouts of text
/// then work on with whatever stood on the stack: where that leads, and whether it leaves our handler a stack, differs
/// from run to run. Null that was given to this library is forgiven nothing, and neither is std::bad_alloc: that ends
/// these processes otherwise.
bool isEndOfQt(const Flow& flow, int status, const Report& report)
{
    const QByteArray taker = fileOf(report.taker);
    return flow.hasWidgets && WIFSIGNALED(status) && WTERMSIG(status) != SIGALRM
        && (taker.contains("/libQt") || taker.contains("/libharfbuzz"));
}

/// Whether a process has ended as it may when an allocation fails.
bool isEndWithoutMemory(const Flow& flow, int status, const Report& report)
{
    return isEndOfQt(flow, status, report)
        || (WIFEXITED(status) && (WEXITSTATUS(status) == EndedByBadAlloc || WEXITSTATUS(status) == EndedInsideQt));
}

QString described(int status, const Report& report)
{
    if (WIFSIGNALED(status)) {
        return QStringLiteral("Call %1 ends the process by signal %2").arg(report.number).arg(WTERMSIG(status));
    }
    return WEXITSTATUS(status) == 0
        ? QString()
        : QStringLiteral("Call %1 %2").arg(report.number).arg(QString::fromUtf8(report.violation));
}

/// Lets each call of a kind fail in the flow. Gives the first thing that comes of it and must not; nothing is the rule.
QString violationOf(const Flow& flow, Fault fault, const QString& folder, const Outcome& expected, Report& report)
{
    int status = statusOfRuns(flow, fault, folder, expected, report);
    while (fault == Fault::Allocation && isEndWithoutMemory(flow, status, report)) {
        ++report.faults;
        ++(WIFEXITED(status) && WEXITSTATUS(status) == EndedByBadAlloc ? report.terminations : report.endsInsideQt);
        const QString left = writtenText(flow, folder);
        if (!left.isEmpty() && left != expected.file) {
            return QStringLiteral("Call %1 leaves a file that looks like a whole one:\n").arg(report.number) + left;
        }
        status = statusOfRuns(flow, fault, folder, expected, report);
    }
    return described(status, report);
}

} // namespace

void TestRobustnessFaults::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QVERIFY(writeInputs(m_folder.path()));
    interruptedFile(); // It loads what it needs at its first call.
    // What is made once and kept, such as fonts, is no part of a flow.
    for (const Flow& flow : flows()) {
        flow.run(m_folder.path());
    }
}

void TestRobustnessFaults::survivesEveryFault_data()
{
    QTest::addColumn<int>("flow");
    QTest::addColumn<Fault>("fault");
    for (int flow = 0; flow < int(flows().size()); ++flow) {
        const char* const name = flows()[std::size_t(flow)].name;
        QTest::addRow("%s-with-a-failing-write", name) << flow << Fault::Write;
        QTest::addRow("%s-with-a-shortened-write", name) << flow << Fault::ShortWrite;
        QTest::addRow("%s-with-a-failing-open", name) << flow << Fault::Open;
        QTest::addRow("%s-with-a-failing-allocation", name) << flow << Fault::Allocation;
    }
}

void TestRobustnessFaults::survivesEveryFault()
{
    QFETCH(int, flow);
    QFETCH(Fault, fault);
    const Flow& run = flows()[std::size_t(flow)];
    const Outcome expected = outcomeOf(run, m_folder.path());
    const auto report = sharedReport();
    QVERIFY(report);
    const QString violation = violationOf(run, fault, m_folder.path(), expected, *report);
    qInfo("%d faults, %d left by std::bad_alloc, %d ended by it, %d ended inside Qt", report->faults,
          report->exceptions, report->terminations, report->endsInsideQt);
    QCOMPARE(violation, QString());

    const Outcome next = outcomeOf(run, m_folder.path());
    QCOMPARE(next.result, expected.result);
    QCOMPARE(next.file, expected.file);
}

void TestRobustnessFaults::noticesAFault_data()
{
    QTest::addColumn<int>("flow");
    QTest::addColumn<QString>("violation");
    const QStringList violations {
        QStringLiteral("ends the process by signal 11"), QStringLiteral("ends the process by signal 11"),
        QStringLiteral("ends the process by signal 6"),  QStringLiteral("ends the process by signal 6"),
        QStringLiteral("makes the next run differ"),     QStringLiteral("leaves a file that looks like a whole one"),
    };
    QCOMPARE(int(faultyFlows().size()), int(violations.size()));
    for (int flow = 0; flow < int(violations.size()); ++flow) {
        QTest::newRow(faultyFlows()[std::size_t(flow)].name) << flow << violations[flow];
    }
}

/// What is forgiven Qt is not forgiven the library.
void TestRobustnessFaults::noticesAFault()
{
    QFETCH(int, flow);
    QFETCH(QString, violation);
    const Flow& run = faultyFlows()[std::size_t(flow)];
    const Outcome expected = outcomeOf(run, m_folder.path());
    const auto report = sharedReport();
    QVERIFY(report);
    const QString found = violationOf(run, Fault::Allocation, m_folder.path(), expected, *report);
    QVERIFY2(found.contains(violation), qPrintable(found));
}

/// Who hears of reports learns that one is not written, if not what it would have been.
void TestRobustnessFaults::tellsOfAReportThatMemoryIsTooShortFor()
{
    const QDomDocument document = documentOf(QStringLiteral("<r>") + QStringLiteral("<a b='c'>text</a>").repeated(1000)
                                             + QStringLiteral("</r>"));
    const ReportTeller teller(QStringLiteral("report.xml"), QStringLiteral("schema.xsd"));
    int told = 0;
    int withoutContent = 0;
    connect(&ReportNews::Instance(), &ReportNews::NotWritten, this,
            [&](quint64, const QString&, const QByteArray& content) {
                ++told;
                withoutContent += content.isEmpty() ? 1 : 0;
            });
    const SavedFile file;
    const void* taker = nullptr;
    int number = AllocationsAtMost;
    do { // The last one is that of the bytes; Qt does not look at each of those before.
        const FaultInjection injection(Fault::Allocation, --number, true, &taker);
        teller.TellFile(false, file, document);
    } while (number > 1 && !FaultInjection::HasStruck());
    QVERIFY(FaultInjection::HasStruck());
    QCOMPARE(told, AllocationsAtMost - number);
    QCOMPARE(withoutContent, 1);
}

QTEST_MAIN(TestRobustnessFaults)
#include "tst_robustness_faults.moc"
