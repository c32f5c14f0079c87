#ifndef XMLHELPER_BENCHMARKS_HARNESS_H
#define XMLHELPER_BENCHMARKS_HARNESS_H

#include <functional>
#include <vector>

#include <QRegularExpression>
#include <QString>
#include <QStringList>

/// One side of a comparison: the work that is measured, between what has to be made for it and taken away again.
struct Contestant
{
    std::function<void()> prepare = {}; ///< before each run, not measured
    std::function<void()> run = {};
    std::function<void()> release = {}; ///< after each run, not measured

    /// The milliseconds of the run, for one that has to measure its steps by itself; empty: the whole run counts.
    std::function<double()> ownMs = {};
};

/// The library and the floor below it, at work on the same input.
struct Contest
{
    Contestant library = {};
    Contestant floor = {};

    /// Says what is wrong with the results of the two runs before it, and nothing when they are right.
    std::function<QString()> check = {};
};

/// One line of the table: a comparison for several sizes of its input.
struct Row
{
    QString name; ///< its parts separated by slashes
    QString floor; ///< what the library is compared with
    double target; ///< what the ratio of times should stay below; 0: the row is judged by its growth alone
    std::vector<int> sizes; ///< ascending
    std::function<Contest(int size)> contest;

    double targetOverhead = 0; ///< how much the exponent of growth may exceed the floor's; 0: not judged
    double targetExponent = 0; ///< what the exponent of growth may be; 0: not judged
};

/// What was measured of a row for one size. Times are CPU milliseconds of one run.
struct Measurement
{
    QString name; ///< of the row
    QString floor;
    int size = 0;
    double target = 0;
    QString trouble; ///< why there are no numbers; empty when there are
    int pairs = 0;
    double libraryMs = 0; ///< median
    double floorMs = 0; ///< median
    double ratio = 0; ///< median of the ratios of the pairs
    double lowerQuartile = 0;
    double upperQuartile = 0;
    double secondsOfRun = 0; ///< CPU time of a run of both sides, with what is made for it and taken away again
};

/// How the time of a row grows with the size of its input: t is about size to the power of the exponent.
struct Growth
{
    QString name;
    int smallest = 0;
    int largest = 0;
    double libraryExponent = 0;
    double floorExponent = 0;
    double targetOverhead = 0;
    double targetExponent = 0;
};

struct HarnessOptions
{
    QRegularExpression filter; ///< of what is run, matched against "name/size"
    double secondsPerCase = 3; ///< how long pairs are measured
    double longestRun = 20; ///< seconds; sizes that would presumably take longer are left out
    int fewestPairs = 5;
    int mostPairs = 51;
};

/// Runs library and floor alternately in this process, so that both meet the same machine, and judges by the ratios of
/// neighbouring runs.
class Harness
{
public:
    explicit Harness(const HarnessOptions& options);

    /// The names of the cases that the filter lets through.
    QStringList Names(const std::vector<Row>& rows) const;

    /// Measures every size of @p row that the filter lets through, and announces each result as soon as it is there.
    void Run(const Row& row);

    /// Runs each side once with the instruction counter of callgrind switched on, and has callgrind write one profile
    /// for each, named after the case and the side. Gives false when a result is wrong, or when the program was built
    /// without callgrind's header.
    bool CountInstructions(const Row& row) const;

    const std::vector<Measurement>& Measurements() const { return m_measurements; }
    const std::vector<Growth>& Growths() const { return m_growths; }

    /// Adds a measurement that was made elsewhere, such as one of memory.
    void Add(const Measurement& measurement) { m_measurements.push_back(measurement); }

    bool IsWanted(const QString& row, int size) const;

private:
    Measurement measure(const Row& row, int size) const;
    double expectedSeconds(const std::vector<Measurement>& smaller, int size) const;
    void judgeGrowth(const Row& row, const std::vector<Measurement>& measured);

    HarnessOptions m_options;
    std::vector<Measurement> m_measurements;
    std::vector<Growth> m_growths;
};

/// Switches callgrind's counter on or off; without callgrind it does nothing. For a run that measures its own steps.
void toggleInstructionCounter();

/// CPU time of this process in nanoseconds.
qint64 cpuTime();

/// The @p share quantile of @p numbers, 0.5 for the median.
double quantile(std::vector<double> numbers, double share);

#endif
