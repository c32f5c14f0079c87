#include "table.h"

#include <algorithm>
#include <cstdio>

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>
#include <QThread>

#include "harness.h"

namespace {

const char* verdict(double value, double target)
{
    if (target <= 0) {
        return "";
    }
    return value <= target ? "met" : "MISSED";
}

QJsonObject toJson(const Measurement& measurement)
{
    return {{QStringLiteral("name"), measurement.name},
            {QStringLiteral("size"), measurement.size},
            {QStringLiteral("against"), measurement.floor},
            {QStringLiteral("target"), measurement.target},
            {QStringLiteral("trouble"), measurement.trouble},
            {QStringLiteral("pairs"), measurement.pairs},
            {QStringLiteral("library"), measurement.libraryMs},
            {QStringLiteral("floor"), measurement.floorMs},
            {QStringLiteral("ratio"), measurement.ratio},
            {QStringLiteral("lowerQuartile"), measurement.lowerQuartile},
            {QStringLiteral("upperQuartile"), measurement.upperQuartile}};
}

QJsonObject toJson(const Growth& growth)
{
    return {{QStringLiteral("name"), growth.name},
            {QStringLiteral("smallest"), growth.smallest},
            {QStringLiteral("largest"), growth.largest},
            {QStringLiteral("library"), growth.libraryExponent},
            {QStringLiteral("floor"), growth.floorExponent},
            {QStringLiteral("targetOverhead"), growth.targetOverhead},
            {QStringLiteral("target"), growth.targetExponent}};
}

template <class Entry> QJsonArray toJson(const std::vector<Entry>& entries)
{
    QJsonArray array;
    for (const Entry& entry : entries) {
        array.append(toJson(entry));
    }
    return array;
}

/// The first line of a file of the system that begins with @p start, without what is before the colon; a line of its
/// own when @p start is empty.
QString lineOf(const QString& fileName, const QByteArray& start)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return QString();
    }
    const QList<QByteArray> lines = file.readAll().split('\n');
    const auto line = std::find_if(lines.begin(), lines.end(),
                                   [&start](const QByteArray& candidate) { return candidate.startsWith(start); });
    return line == lines.end() ? QString() : QString::fromUtf8(line->mid(line->indexOf(':') + 1).trimmed());
}

/// Where and when it was measured. The load tells whether the machine was idle.
QJsonObject conditions()
{
    return {{QStringLiteral("date"), QDateTime::currentDateTimeUtc().toString(Qt::ISODate)},
            {QStringLiteral("system"), QSysInfo::prettyProductName()},
            {QStringLiteral("processor"), lineOf(QStringLiteral("/proc/cpuinfo"), "model name")},
            {QStringLiteral("cores"), QThread::idealThreadCount()},
            {QStringLiteral("load"), lineOf(QStringLiteral("/proc/loadavg"), QByteArray())},
            {QStringLiteral("compiler"), QStringLiteral(XMLHELPER_COMPILER)},
            {QStringLiteral("qt"), QString::fromLatin1(qVersion())}};
}

QByteArray sized(const Measurement& measurement)
{
    return (measurement.name + QLatin1Char('/') + QString::number(measurement.size)).toUtf8();
}

} // namespace

void printHead()
{
    std::printf("%-40s %11s %11s %7s %15s %6s  %-8s %s\n", "case", "library", "floor", "ratio", "quartiles", "target",
                "", "against");
}

void printMeasurement(const Measurement& measurement)
{
    if (!measurement.trouble.isEmpty()) {
        std::printf("%-40s %s\n", sized(measurement).constData(), qPrintable(measurement.trouble));
    } else {
        std::printf("%-40s %11.4f %11.4f %7.3f %7.3f-%-7.3f %6.2f  %-8s %s\n", sized(measurement).constData(),
                    measurement.libraryMs, measurement.floorMs, measurement.ratio, measurement.lowerQuartile,
                    measurement.upperQuartile, measurement.target, verdict(measurement.ratio, measurement.target),
                    qPrintable(measurement.floor));
    }
    std::fflush(stdout);
}

void printGrowths(const std::vector<Growth>& growths)
{
    if (growths.empty()) {
        return;
    }
    std::printf("\n%-40s %16s %11s %11s %9s %7s\n", "growth", "sizes", "library", "floor", "overhead", "target");
    for (const Growth& growth : growths) {
        const double overhead = growth.libraryExponent - growth.floorExponent;
        const bool isAbsolute = growth.targetExponent > 0;
        const double target = isAbsolute ? growth.targetExponent : growth.targetOverhead;
        std::printf("%-40s %8d-%-7d %11.3f %11.3f %+9.3f %7.2f  %s\n", qPrintable(growth.name), growth.smallest,
                    growth.largest, growth.libraryExponent, growth.floorExponent, overhead, target,
                    verdict(isAbsolute ? growth.libraryExponent : overhead, target));
    }
}

bool writeJson(const QString& fileName, const std::vector<Measurement>& measurements,
               const std::vector<Growth>& growths)
{
    QFile file(fileName);
    const QJsonObject all {{QStringLiteral("conditions"), conditions()},
                           {QStringLiteral("measurements"), toJson(measurements)},
                           {QStringLiteral("growths"), toJson(growths)}};
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(all).toJson()) > 0;
}
