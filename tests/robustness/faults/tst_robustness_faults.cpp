#include <QtTest>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <dlfcn.h>
#include <execinfo.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include "domtext.h"
#include "faultinjection.h"
#include "flows.h"
#include "strictreading.h"

Q_DECLARE_METATYPE(Fault)

/// Every flow with each of its writes, opens and allocations failing in turn. The process lives; for an allocation it
/// may end, by std::bad_alloc or where Qt itself follows the null pointer that it got. What was written can be read and
/// is complete, or the caller has been told; the next run succeeds.
///
/// The flows run in a process of their own, so that an end of that is seen and gone on behind.
class TestRobustnessFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void survivesEveryFault_data();
    void survivesEveryFault();

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
    char violation[1000];
};

constexpr int EndedInsideQt = 78;
constexpr int EndedByViolation = 79;
constexpr unsigned RunTimeout = 200;

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

/// The file of the program or library that has called into the C library, or has done without, when a signal came.
QByteArray interruptedFile()
{
    constexpr int ownFrames = 3; // of this function, the handler and the return from it
    std::array<void*, 64> frames {};
    const int count = backtrace(frames.data(), int(frames.size()));
    for (int frame = ownFrames; frame < count; ++frame) {
        Dl_info place {};
        if (dladdr(frames[std::size_t(frame)], &place) != 0 && !strstr(place.dli_fname, "/libc.so")) {
            return place.dli_fname;
        }
    }
    return {};
}

/// Whether the flow makes widgets; for the handler below.
bool hasWidgets = false;

/// Qt does not look at every pointer that malloc() gives it, and its layouts of text read beside what they could not
/// allocate. That is nothing that this library could help, unlike any other access to memory that is not there.
void endByBadAccess(int signal, siginfo_t* info, void*)
{
    const bool isNull = reinterpret_cast<quintptr>(info->si_addr) < NullPageEnd;
    if ((isNull || hasWidgets) && interruptedFile().contains("/libQt")) {
        _exit(EndedInsideQt);
    }
    std::signal(signal, SIG_DFL);
}

/// Runs one flow again and again, each time with the next call failing.
class FaultyRuns
{
public:
    FaultyRuns(const Flow& flow, Fault fault, const QString& folder, Report& report)
        : m_flow(flow)
        , m_fault(fault)
        , m_folder(folder)
        , m_report(report)
    {
    }

    /// Ends the process.
    [[noreturn]] void Run()
    {
        m_expectedResult = m_flow.run(m_folder);
        m_expectedFile = writtenText();
        do {
            ++m_report.number;
            runWithFault();
            if (!m_hasStruck) {
                _exit(0);
            }
            checkWhatIsWritten();
            ++m_report.faults;
            runWithoutFault();
        } while (true);
    }

private:
    QString fileName() const { return m_folder + QLatin1Char('/') + m_flow.writtenFile; }

    bool isReadable() const { return strictErrorOf(fileName()).isEmpty(); }

    QString writtenText() const
    {
        return m_flow.writtenFile.isEmpty() ? QString() : domText(documentInFile(fileName()));
    }

    void runWithFault()
    {
        QFile::remove(fileName());
        m_result = QStringLiteral("(left by an exception)");
        try {
            const FaultInjection injection(m_fault, m_report.number, !m_flow.hasWidgets);
            m_result = m_flow.run(m_folder);
        } catch (const std::bad_alloc&) {
            ++m_report.exceptions;
        }
        m_hasStruck = FaultInjection::HasStruck();
    }

    /// A file that can be read is complete, or the flow has failed before the eyes of its caller.
    void checkWhatIsWritten() const
    {
        if (!m_flow.writtenFile.isEmpty() && isReadable() && m_result.startsWith(QLatin1String("succeeded"))
            && writtenText() != m_expectedFile) {
            endWith(QStringLiteral("leaves a file that looks like a whole one:\n") + writtenText());
        }
    }

    void runWithoutFault()
    {
        QFile::remove(fileName());
        const QString result = m_flow.run(m_folder);
        if (result != m_expectedResult) {
            endWith(QStringLiteral("makes the next run differ:\n") + result);
        }
        if (writtenText() != m_expectedFile) {
            endWith(QStringLiteral("makes the next file differ:\n") + writtenText());
        }
    }

    [[noreturn]] void endWith(const QString& violation) const
    {
        qstrncpy(m_report.violation, violation.toUtf8().constData(), sizeof m_report.violation);
        _exit(EndedByViolation);
    }

    const Flow& m_flow;
    Fault m_fault;
    QString m_folder;
    Report& m_report;
    QString m_expectedResult;
    QString m_expectedFile;
    QString m_result;
    bool m_hasStruck = false;
};

/// Runs the flow in a child process and gives how that has ended.
int statusOfRuns(const Flow& flow, Fault fault, const QString& folder, Report& report)
{
    const pid_t child = fork();
    if (child == 0) {
        for (const int signal : {SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGTERM, SIGINT}) {
            std::signal(signal, SIG_DFL);
        }
        hasWidgets = flow.hasWidgets;
        struct sigaction action
        {
        };
        action.sa_sigaction = endByBadAccess;
        action.sa_flags = SA_SIGINFO | SA_NODEFER;
        sigaction(SIGSEGV, &action, nullptr);
        alarm(RunTimeout);
        std::set_terminate(endByUncaughtException);
        FaultyRuns(flow, fault, folder, report).Run();
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
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
    void* const shared = mmap(nullptr, sizeof(Report), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    QVERIFY(shared != MAP_FAILED);
    Report& report = *new (shared) Report {};

    int status = statusOfRuns(flows()[std::size_t(flow)], fault, m_folder.path(), report);
    while (fault == Fault::Allocation && WIFEXITED(status)
           && (WEXITSTATUS(status) == EndedByBadAlloc || WEXITSTATUS(status) == EndedInsideQt)) {
        ++report.faults;
        ++(WEXITSTATUS(status) == EndedByBadAlloc ? report.terminations : report.endsInsideQt);
        status = statusOfRuns(flows()[std::size_t(flow)], fault, m_folder.path(), report);
    }
    const Report found = report;
    munmap(shared, sizeof(Report));

    qInfo("%d faults, %d left by std::bad_alloc, %d ended by it, %d ended inside Qt", found.faults, found.exceptions,
          found.terminations, found.endsInsideQt);
    QString end;
    if (WIFSIGNALED(status)) {
        end = QStringLiteral("Call %1 ends the process by signal %2").arg(found.number).arg(WTERMSIG(status));
    } else if (WEXITSTATUS(status) != 0) {
        end = QStringLiteral("Call %1 %2").arg(found.number).arg(QString::fromUtf8(found.violation));
    }
    QCOMPARE(end, QString());
}

QTEST_MAIN(TestRobustnessFaults)
#include "tst_robustness_faults.moc"
