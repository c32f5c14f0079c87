// Measures the library against floors: the least work that anybody would have to do for the same result, done by hand
// in the same process. README.md beside this file tells how to read what it prints.

#include <cstdio>

#include <QApplication>
#include <QCommandLineParser>

#include "harness.h"
#include "memory.h"
#include "rows.h"
#include "table.h"
#include "workspace.h"

namespace {

std::vector<Row> allRows(const Workspace& workspace)
{
    std::vector<Row> rows;
    for (const auto& makeRows : {readRows, searchRows, schemaRows, walkRows, fillRows, occursRows, saveRows, jobRows,
                                 buttonRows, writerRows}) {
        for (Row& row : makeRows(workspace)) {
            rows.push_back(std::move(row));
        }
    }
    return rows;
}

struct CommandLine
{
    QCommandLineParser parser;
    QCommandLineOption filter {QStringLiteral("filter"), QStringLiteral("Runs the cases whose names match."),
                               QStringLiteral("regular expression"), QStringLiteral(".")};
    QCommandLineOption list {QStringLiteral("list"), QStringLiteral("Prints the names of the cases and ends.")};
    QCommandLineOption json {QStringLiteral("json"), QStringLiteral("Writes all numbers to a file."),
                             QStringLiteral("file")};
    QCommandLineOption seconds {QStringLiteral("seconds"), QStringLiteral("How long a case is measured."),
                                QStringLiteral("seconds"), QStringLiteral("3")};
    QCommandLineOption limit {QStringLiteral("limit"),
                              QStringLiteral("Leaves out what would presumably take longer for one run."),
                              QStringLiteral("seconds"), QStringLiteral("20")};
    QCommandLineOption repetitions {QStringLiteral("repetitions"), QStringLiteral("Measures at most so many pairs."),
                                    QStringLiteral("pairs"), QStringLiteral("51")};
    QCommandLineOption instructions {
        QStringLiteral("instructions"),
        QStringLiteral("Runs each case once for callgrind; start it with --collect-atstart=no.")};

    CommandLine()
    {
        parser.addHelpOption();
        parser.addOptions({filter, list, json, seconds, limit, repetitions, instructions});
    }

    HarnessOptions Options() const
    {
        HarnessOptions options;
        options.filter.setPattern(parser.value(filter));
        options.secondsPerCase = parser.value(seconds).toDouble();
        options.longestRun = parser.value(limit).toDouble();
        options.mostPairs = qMax(1, parser.value(repetitions).toInt());
        options.fewestPairs = qMin(options.fewestPairs, options.mostPairs);
        return options;
    }
};

int countInstructions(const Harness& harness, const std::vector<Row>& rows)
{
    for (const Row& row : rows) {
        if (!harness.CountInstructions(row)) {
            return 1;
        }
    }
    return 0;
}

/// Whether a result was wrong; what was left out or was slow is none of that.
bool isAnyWrong(const std::vector<Measurement>& measurements)
{
    for (const Measurement& measurement : measurements) {
        if (measurement.trouble.startsWith(QLatin1String("WRONG"))) {
            return true;
        }
    }
    return false;
}

int measure(Harness& harness, const std::vector<Row>& rows, const Workspace& workspace, const QString& jsonFile)
{
    std::printf("Times in CPU milliseconds, memory in MB; ratios are medians over pairs of neighbouring runs.\n\n");
    printHead();
    for (const Row& row : rows) {
        harness.Run(row);
    }
    measureMemory(harness, workspace);
    printGrowths(harness.Growths());
    if (!jsonFile.isEmpty() && !writeJson(jsonFile, harness.Measurements(), harness.Growths())) {
        std::fprintf(stderr, "%s cannot be written\n", qPrintable(jsonFile));
        return 1;
    }
    return isAnyWrong(harness.Measurements()) ? 1 : 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && isMemoryTask(argv[1])) {
        return runMemoryTask(argc, argv);
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    CommandLine commandLine;
    commandLine.parser.process(application);

    const Workspace workspace;
    const std::vector<Row> rows = allRows(workspace);
    Harness harness(commandLine.Options());
    if (commandLine.parser.isSet(commandLine.list)) {
        const QStringList names = harness.Names(rows) + memoryNames(harness);
        for (const QString& name : names) {
            std::printf("%s\n", qPrintable(name));
        }
        return 0;
    }
    if (commandLine.parser.isSet(commandLine.instructions)) {
        return countInstructions(harness, rows);
    }
    return measure(harness, rows, workspace, commandLine.parser.value(commandLine.json));
}
