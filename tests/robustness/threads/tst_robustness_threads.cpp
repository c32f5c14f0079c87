#include <QtTest>

#include <array>
#include <atomic>
#include <functional>
#include <thread>

#include <QTemporaryDir>

#include <arbase/errorhandler.h>
#include <xmlhelper/limits_p.h>

#include "flows.h"

using Work = std::function<QStringList(const QString& folder)>;
Q_DECLARE_METATYPE(Work)

/// Readers, writers and builders in two threads at once, each with objects of its own, give what they give alone. What
/// they share without anybody's knowing, a thread sanitizer sees: scripts/test tsan.
class TestRobustnessThreads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void givesInTwoThreadsWhatItGivesInOne_data();
    void givesInTwoThreadsWhatItGivesInOne();
    void keepsTheLimitsOfOtherThreads();

private:
    QtMessageHandler m_previousHandler = nullptr;
    quint32 m_previousMask = 0;
};

namespace {

constexpr int Rounds = 20;

/// The library's traces; counted, so that tracing is part of what the threads do.
std::atomic<int> traces {0};

void countTraces(QtMsgType, const QMessageLogContext& context, const QString& message)
{
    if (qstrcmp(context.category, "arbase.trace") == 0) {
        ++traces;
    } else {
        fprintf(stderr, "%s\n", qPrintable(message));
    }
}

/// Runs @p work in two threads at once, each in a folder of its own, and gives what came of it there.
std::array<QStringList, 2> resultsOf(const Work& work)
{
    std::array<QStringList, 2> results;
    std::array<QTemporaryDir, 2> folders;
    std::atomic<int> waiting {2};
    const auto run = [&](std::size_t number) {
        const QString folder = folders[number].path();
        const bool isPrepared = folders[number].isValid() && writeInputs(folder);
        --waiting;
        while (waiting > 0) { // Both begin together.
            std::this_thread::yield();
        }
        for (int round = 0; isPrepared && round < Rounds; ++round) {
            results[number] += work(folder);
        }
    };
    std::thread other(run, 1);
    run(0);
    other.join();
    return results;
}

/// What came of @p work in one thread.
QStringList resultOf(const Work& work)
{
    const QTemporaryDir folder;
    return folder.isValid() && writeInputs(folder.path()) ? work(folder.path()) : QStringList();
}

Work workOf(const Flow& flow)
{
    return [&flow](const QString& folder) { return QStringList {flow.run(folder).replace(folder, QString())}; };
}

/// Whether content of two levels is read.
bool isReadable(const QString& folder)
{
    return flows().front().run(folder).startsWith(QLatin1String("succeeded"));
}

} // namespace

void TestRobustnessThreads::initTestCase()
{
    m_previousHandler = qInstallMessageHandler(countTraces);
    m_previousMask = ErrorHandler::Instance().GetTraceMask();
    ErrorHandler::Instance().SetTraceMask(32);
}

void TestRobustnessThreads::cleanupTestCase()
{
    ErrorHandler::Instance().SetTraceMask(m_previousMask);
    qInstallMessageHandler(m_previousHandler);
}

void TestRobustnessThreads::givesInTwoThreadsWhatItGivesInOne_data()
{
    QTest::addColumn<Work>("work");
    std::vector<Work> all;
    for (const Flow& flow : flows()) {
        if (!flow.hasWidgets) {
            all.push_back(workOf(flow));
            QTest::newRow(flow.name) << all.back();
        }
    }
    QTest::newRow("one-after-the-other") << Work([all](const QString& folder) {
        QStringList results;
        for (const Work& work : all) {
            results += work(folder);
        }
        return results;
    });
}

void TestRobustnessThreads::givesInTwoThreadsWhatItGivesInOne()
{
    QFETCH(Work, work);
    // First together, so that what is made at the first use is made there.
    const std::array<QStringList, 2> results = resultsOf(work);
    QStringList expected;
    const QStringList alone = resultOf(work);
    QVERIFY(!alone.isEmpty());
    for (int round = 0; round < Rounds; ++round) {
        expected += alone;
    }
    QCOMPARE(results[0], expected);
    QCOMPARE(results[1], expected);
}

void TestRobustnessThreads::keepsTheLimitsOfOtherThreads()
{
    const std::thread::id main = std::this_thread::get_id();
    const std::array<QStringList, 2> results = resultsOf([main](const QString& folder) {
        if (std::this_thread::get_id() == main) {
            return QStringList {isReadable(folder) ? QStringLiteral("read") : QStringLiteral("refused")};
        }
        Limits small;
        small.elementNesting = 1;
        const LimitsInForce inForce(small);
        return QStringList {isReadable(folder) ? QStringLiteral("read") : QStringLiteral("refused")};
    });
    QCOMPARE(results[0].count(QStringLiteral("read")), Rounds);
    QCOMPARE(results[1].count(QStringLiteral("refused")), Rounds);
    QVERIFY(traces >= Rounds);
}

QTEST_GUILESS_MAIN(TestRobustnessThreads)
#include "tst_robustness_threads.moc"
