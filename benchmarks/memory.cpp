#include "memory.h"

#include <cstdio>
#include <cstring>
#include <functional>
#include <vector>

#include <QCoreApplication>
#include <QDomDocument>
#include <QFile>
#include <QProcess>

#include <xmlhelper/xmlhelper.h>

#include "harness.h"
#include "inputs.h"
#include "observers.h"
#include "table.h"
#include "workspace.h"

namespace {

constexpr char TaskPrefix[] = "memory-task:";

bool stayIdle(const QString&)
{
    return true;
}

bool readByLibrary(const QString& path)
{
    CountingObserver observer;
    XMLReader reader(&observer, nullptr);
    return reader.SetXmlContent(path) && reader.ParseXml();
}

bool readByQt(const QString& path)
{
    QFile file(path);
    QDomDocument document;
    return file.open(QIODevice::ReadOnly) && document.setContent(&file);
}

bool reportByLibrary(const QString& path)
{
    return ReportFiller().Write(path, path + QStringLiteral(".report.xml"));
}

/// Nothing but the skeleton that the schema of the job stands for.
bool buildSkeleton(const QString& path)
{
    const int size = path.section(QLatin1Char('-'), -1).section(QLatin1Char('.'), 0, 0).toInt();
    QDomDocument document;
    document.setContent(QStringLiteral("<?xml version='1.0' encoding='UTF-8'?><Survey/>"));
    QDomElement root = document.documentElement();
    QDomElement container = root;
    for (const ReportElement& element : reportElements(Shape::RequiredGroups, size)) {
        QDomElement created = document.createElement(element.name);
        if (element.text.isEmpty()) {
            root.appendChild(created);
            container = created;
        } else {
            created.setAttribute(QStringLiteral("type"), kindOf(element.name).type);
            container.appendChild(created);
        }
    }
    return root.childNodes().count() > 0;
}

struct Task
{
    const char* name;
    bool (*run)(const QString& path);
};

const std::vector<Task>& tasks()
{
    static const std::vector<Task> all = {{"idle", stayIdle},
                                          {"read", readByLibrary},
                                          {"setContent", readByQt},
                                          {"report", reportByLibrary},
                                          {"skeleton", buildSkeleton}};
    return all;
}

/// The greatest memory that this process ever had, in kB; 0 where the system does not say.
qint64 peakOfThisProcess()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmHWM:")) {
            return line.mid(6).trimmed().split(' ').front().toLongLong();
        }
    }
    return 0;
}

/// The peak of a child in MB; 0 when it failed. One is enough: peaks hardly differ from run to run.
double peakOfChild(const QString& task, const QString& path)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QLatin1String(TaskPrefix) + task, path});
    child.waitForFinished(-1);
    const bool isDone = child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0;
    return isDone ? child.readAllStandardOutput().trimmed().toDouble() / 1024 : 0;
}

struct MemoryRow
{
    QString name;
    QString floor;
    double target;
    int size;
    QString file;
    std::function<QByteArray(int size)> content;
    QString libraryTask;
    QString floorTask;
};

std::vector<MemoryRow> memoryRows()
{
    return {{QStringLiteral("memory/read"), QStringLiteral("setContent alone"), 1.10, 20000000,
             QStringLiteral("memory.xml"), reportText, QStringLiteral("read"), QStringLiteral("setContent")},
            {QStringLiteral("memory/job"), QStringLiteral("the skeleton alone"), 1.2, 50000,
             QStringLiteral("memory-50000.xsd"), [](int size) { return schemaText(Shape::RequiredGroups, size); },
             QStringLiteral("report"), QStringLiteral("skeleton")}};
}

Measurement measured(const MemoryRow& row, const Workspace& workspace)
{
    Measurement measurement;
    measurement.name = row.name;
    measurement.floor = row.floor;
    measurement.size = row.size;
    measurement.target = row.target;
    if (peakOfThisProcess() == 0) {
        measurement.trouble = QStringLiteral("not measured: this system does not tell a process its peak");
        return measurement;
    }
    const QString path = workspace.Write(row.file, row.content(row.size));
    const double idle = peakOfChild(QStringLiteral("idle"), path);
    const double library = peakOfChild(row.libraryTask, path);
    const double floor = peakOfChild(row.floorTask, path);
    if (library <= idle || floor <= idle) {
        measurement.trouble = QStringLiteral("WRONG RESULT: a child failed");
        return measurement;
    }
    measurement.pairs = 1;
    measurement.libraryMs = library - idle;
    measurement.floorMs = floor - idle;
    measurement.ratio = measurement.libraryMs / measurement.floorMs;
    measurement.lowerQuartile = measurement.ratio;
    measurement.upperQuartile = measurement.ratio;
    return measurement;
}

} // namespace

bool isMemoryTask(const char* argument)
{
    return std::strncmp(argument, TaskPrefix, sizeof(TaskPrefix) - 1) == 0;
}

int runMemoryTask(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const char* const name = argv[1] + sizeof(TaskPrefix) - 1;
    for (const Task& task : tasks()) {
        if (std::strcmp(task.name, name) == 0 && argc > 2) {
            const bool isDone = task.run(QFile::decodeName(argv[2]));
            std::printf("%lld\n", static_cast<long long>(peakOfThisProcess()));
            return isDone ? 0 : 1;
        }
    }
    return 2;
}

QStringList memoryNames(const Harness& harness)
{
    QStringList names;
    for (const MemoryRow& row : memoryRows()) {
        if (harness.IsWanted(row.name, row.size)) {
            names.append(row.name + QLatin1Char('/') + QString::number(row.size));
        }
    }
    return names;
}

void measureMemory(Harness& harness, const Workspace& workspace)
{
    for (const MemoryRow& row : memoryRows()) {
        if (harness.IsWanted(row.name, row.size)) {
            harness.Add(measured(row, workspace));
            printMeasurement(harness.Measurements().back());
        }
    }
}
