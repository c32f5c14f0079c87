#include "harness.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>

#include <QElapsedTimer>

#include "table.h"

#ifdef XMLHELPER_HAS_CALLGRIND
#include <valgrind/callgrind.h>
#endif

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

/// Shorter runs are repeated until they take so long together, for the clock's sake.
constexpr double ShortestSampleMs = 2;
constexpr int MostRunsOfSample = 2000;

void callIfThere(const std::function<void()>& step)
{
    if (step) {
        step();
    }
}

/// CPU milliseconds of one run, the mean of @p runs.
double timed(const Contestant& contestant, int runs)
{
    double spent = 0;
    for (int i = 0; i < runs; ++i) {
        callIfThere(contestant.prepare);
        const qint64 start = cpuTime();
        contestant.run();
        const auto whole = static_cast<double>(cpuTime() - start) / 1e6;
        spent += contestant.ownMs ? contestant.ownMs() : whole;
        callIfThere(contestant.release);
    }
    return spent / runs;
}

int runsOfSample(double ms)
{
    const double runs = std::ceil(ShortestSampleMs / std::max(ms, 1e-6));
    return std::clamp(static_cast<int>(runs), 1, MostRunsOfSample);
}

/// Runs both sides once, untimed, and gives what the check says.
QString checked(const Contest& contest)
{
    callIfThere(contest.library.prepare);
    contest.library.run();
    callIfThere(contest.floor.prepare);
    contest.floor.run();
    const QString trouble = contest.check();
    callIfThere(contest.library.release);
    callIfThere(contest.floor.release);
    return trouble;
}

QString caseName(const QString& row, int size)
{
    return row + QLatin1Char('/') + QString::number(size);
}

/// The slope of log(time) over log(size), by least squares.
double exponentOf(const std::vector<Measurement>& measured, double Measurement::*time)
{
    double sumX = 0;
    double sumY = 0;
    double sumXX = 0;
    double sumXY = 0;
    for (const Measurement& measurement : measured) {
        const double x = std::log(measurement.size);
        const double y = std::log(measurement.*time);
        sumX += x;
        sumY += y;
        sumXX += x * x;
        sumXY += x * y;
    }
    const auto count = static_cast<double>(measured.size());
    return (count * sumXY - sumX * sumY) / (count * sumXX - sumX * sumX);
}

#ifdef XMLHELPER_HAS_CALLGRIND
/// The first great allocation tidies up what has been freed before, which would be counted for whoever makes it.
void settleHeap()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

void profile(const Contestant& contestant, const QString& name)
{
    callIfThere(contestant.prepare);
    settleHeap();
    CALLGRIND_ZERO_STATS;
    const bool isCountingItself = static_cast<bool>(contestant.ownMs);
    if (!isCountingItself) {
        toggleInstructionCounter();
    }
    contestant.run();
    if (!isCountingItself) {
        toggleInstructionCounter();
    }
    CALLGRIND_DUMP_STATS_AT(name.toUtf8().constData());
    callIfThere(contestant.release);
}
#endif

} // namespace

void toggleInstructionCounter()
{
#ifdef XMLHELPER_HAS_CALLGRIND
    CALLGRIND_TOGGLE_COLLECT;
#endif
}

qint64 cpuTime()
{
#ifdef CLOCK_PROCESS_CPUTIME_ID
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
#else
    return qint64(std::clock()) * 1000000000 / CLOCKS_PER_SEC;
#endif
}

double quantile(std::vector<double> numbers, double share)
{
    std::sort(numbers.begin(), numbers.end());
    const double position = share * static_cast<double>(numbers.size() - 1);
    const auto below = static_cast<size_t>(position);
    const size_t above = std::min(below + 1, numbers.size() - 1);
    return numbers[below] + (position - std::floor(position)) * (numbers[above] - numbers[below]);
}

Harness::Harness(const HarnessOptions& options)
    : m_options(options)
{
}

QStringList Harness::Names(const std::vector<Row>& rows) const
{
    QStringList names;
    for (const Row& row : rows) {
        for (const int size : row.sizes) {
            if (IsWanted(row.name, size)) {
                names.append(caseName(row.name, size));
            }
        }
    }
    return names;
}

bool Harness::IsWanted(const QString& row, int size) const
{
    return m_options.filter.match(caseName(row, size)).hasMatch();
}

void Harness::Run(const Row& row)
{
    std::vector<Measurement> measured;
    for (const int size : row.sizes) {
        if (!IsWanted(row.name, size)) {
            continue;
        }
        Measurement measurement;
        const double expected = expectedSeconds(measured, size);
        if (expected > m_options.longestRun) {
            measurement.trouble = QStringLiteral("left out, would take about %1 s").arg(expected, 0, 'f', 0);
        } else {
            measurement = measure(row, size);
        }
        measurement.name = row.name;
        measurement.floor = row.floor;
        measurement.size = size;
        measurement.target = row.target;
        printMeasurement(measurement);
        m_measurements.push_back(measurement);
        if (measurement.trouble.isEmpty()) {
            measured.push_back(measurement);
        }
    }
    judgeGrowth(row, measured);
}

bool Harness::CountInstructions(const Row& row) const
{
#ifdef XMLHELPER_HAS_CALLGRIND
    for (const int size : row.sizes) {
        if (!IsWanted(row.name, size)) {
            continue;
        }
        const Contest contest = row.contest(size);
        const QString trouble = checked(contest);
        if (!trouble.isEmpty()) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(caseName(row.name, size)), qPrintable(trouble));
            return false;
        }
        profile(contest.library, caseName(row.name, size) + QStringLiteral(" library"));
        profile(contest.floor, caseName(row.name, size) + QStringLiteral(" floor"));
    }
    return true;
#else
    std::fprintf(stderr, "%s: built without the header of callgrind\n", qPrintable(row.name));
    return false;
#endif
}

Measurement Harness::measure(const Row& row, int size) const
{
    Measurement measurement;
    const Contest contest = row.contest(size);
    measurement.trouble = checked(contest);
    if (!measurement.trouble.isEmpty()) {
        measurement.trouble.prepend(QStringLiteral("WRONG RESULT: "));
        return measurement;
    }
    const int libraryRuns = runsOfSample(timed(contest.library, 1));
    const int floorRuns = runsOfSample(timed(contest.floor, 1));

    std::vector<double> library;
    std::vector<double> floor;
    std::vector<double> ratios;
    const qint64 start = cpuTime();
    QElapsedTimer elapsed;
    elapsed.start();
    for (int pair = 0; pair < m_options.mostPairs; ++pair) {
        if (pair >= m_options.fewestPairs && static_cast<double>(elapsed.elapsed()) > m_options.secondsPerCase * 1e3) {
            break;
        }
        // Whoever runs second may find the caches warmer: they take turns.
        const bool isLibraryFirst = pair % 2 == 0;
        const double first = isLibraryFirst ? timed(contest.library, libraryRuns) : timed(contest.floor, floorRuns);
        const double second = isLibraryFirst ? timed(contest.floor, floorRuns) : timed(contest.library, libraryRuns);
        library.push_back(isLibraryFirst ? first : second);
        floor.push_back(isLibraryFirst ? second : first);
        ratios.push_back(library.back() / floor.back());
    }
    measurement.pairs = static_cast<int>(ratios.size());
    measurement.secondsOfRun
        = static_cast<double>(cpuTime() - start) / 1e9 / (measurement.pairs * std::max(libraryRuns, floorRuns));
    measurement.libraryMs = quantile(library, 0.5);
    measurement.floorMs = quantile(floor, 0.5);
    measurement.ratio = quantile(ratios, 0.5);
    measurement.lowerQuartile = quantile(ratios, 0.25);
    measurement.upperQuartile = quantile(ratios, 0.75);
    return measurement;
}

/// How long one run of both sides would presumably take for @p size, by the growth so far; 0 for the smallest.
double Harness::expectedSeconds(const std::vector<Measurement>& smaller, int size) const
{
    if (smaller.empty()) {
        return 0;
    }
    const Measurement& last = smaller.back();
    const double exponent = smaller.size() < 2 ? 1 : std::max(1.0, exponentOf(smaller, &Measurement::secondsOfRun));
    return last.secondsOfRun * std::pow(static_cast<double>(size) / last.size, exponent);
}

void Harness::judgeGrowth(const Row& row, const std::vector<Measurement>& measured)
{
    if (measured.size() < 2) {
        return;
    }
    m_growths.push_back({row.name, measured.front().size, measured.back().size,
                         exponentOf(measured, &Measurement::libraryMs), exponentOf(measured, &Measurement::floorMs),
                         row.targetOverhead, row.targetExponent});
}
