#include "reportitems.h"

#include <xmlhelper/vcreporting.h>

#include "measurementtree.h"
#include "simulatedreceiver.h"

namespace {

constexpr int Once = 1;
constexpr int Kilo = 3;
constexpr int Mega = 6;

/// The report's general format.
constexpr int SignificantDigits = 12;

/// A value with its unit, which is in the report and on the screen.
struct Quantity
{
    QString element;
    QString path;
    QString unit;
    int decimalExponent;
};

Quantity frequency()
{
    return {QStringLiteral("Frequency"), QStringLiteral("Receiver/Frequency"), QStringLiteral("MHz"), Mega};
}

Quantity level()
{
    return {QStringLiteral("Level"), QStringLiteral("Receiver/Level"), QStringLiteral("dBµV"), 0};
}

ReportedValue reported(const Quantity& quantity)
{
    const ReportData item(quantity.element, quantity.path, QString(), Once, QString(), quantity.decimalExponent,
                          quantity.unit, false);
    double number = 0.0;
    item.GetDataValue(number);
    return {number, QString::number(number, 'g', SignificantDigits), quantity.unit};
}

/// A value of the tree, by its path.
void addValue(VCReporting& reporting, const QString& element, const QString& path, const QString& unit = QString(),
              int decimalExponent = 0)
{
    reporting.AddReportData(element, path, QString(), Once, QString(), decimalExponent, unit);
}

void addQuantity(VCReporting& reporting, const Quantity& quantity)
{
    addValue(reporting, quantity.element, quantity.path, quantity.unit, quantity.decimalExponent);
}

void addText(VCReporting& reporting, const QString& element, const QString& text)
{
    reporting.AddReportData(element, QString(), text, Once, QString(), 0, QString());
}

void addHeader(VCReporting& reporting, long reportNumber)
{
    reporting.AddExplicitReportData(QStringLiteral("Number"), reportNumber, Once, QString(), 0, QString());
    reporting.AddExplicitReportData(QStringLiteral("Simulated"), true, Once, QString(), 0, QString());
    addText(reporting, QStringLiteral("Classification"), QStringLiteral("internal"));
}

void addReceiver(VCReporting& reporting)
{
    // There is a Name below Antenna too: the parent tells them apart.
    addValue(reporting, QStringLiteral("Receiver/Name"), QStringLiteral("Receiver/Name"));
    addValue(reporting, QStringLiteral("StartedAt"), QStringLiteral("Receiver/StartedAt"));
    addValue(reporting, QStringLiteral("Detector"), QStringLiteral("Receiver/Detector"));
}

void addSignal(VCReporting& reporting)
{
    addQuantity(reporting, frequency());
    addValue(reporting, QStringLiteral("Bandwidth"), QStringLiteral("Receiver/Bandwidth"), QStringLiteral("kHz"), Kilo);
    addQuantity(reporting, level());
    addValue(reporting, QStringLiteral("Modulation"), QStringLiteral("Receiver/Modulation"));
}

/// An element that repeats takes one item for each occurrence; each item says how many there are.
void addLevelSamples(VCReporting& reporting, const std::deque<double>& levels)
{
    for (const double sample : levels) {
        reporting.AddReportData(QStringLiteral("LevelSample"), QString(), QString::number(sample),
                                static_cast<int>(levels.size()), QString(), 0, QStringLiteral("dBµV"));
    }
}

/// The items decide between the alternatives of a choice: the one that nothing fills is left out.
void addBearing(VCReporting& reporting, bool hasBearing)
{
    if (hasBearing) {
        addValue(reporting, QStringLiteral("Azimuth"), QStringLiteral("DirectionFinder/Azimuth"),
                 QStringLiteral("deg"));
        addValue(reporting, QStringLiteral("Quality"), QStringLiteral("DirectionFinder/Quality"));
    } else {
        addText(reporting, QStringLiteral("NoBearing"), QStringLiteral("The signal is too weak."));
    }
}

} // namespace

void registerReportItems(VCReporting& reporting, const MeasurementTree& tree, const SimulatedReceiver& receiver,
                         long reportNumber)
{
    reporting.ClearReportData();
    addHeader(reporting, reportNumber);
    addReceiver(reporting);
    reporting.AddReportData(tree.GetStation()); // every value below the node, under its own name
    addSignal(reporting);
    addLevelSamples(reporting, receiver.GetLevels());
    addBearing(reporting, receiver.HasBearing());

    // Attributes come last: an attribute that is set before the item of its element counts as the element's value.
    addValue(reporting, QStringLiteral("Serial"), QStringLiteral("Receiver/Serial"));
}

ReportedValue reportedFrequency()
{
    return reported(frequency());
}

ReportedValue reportedLevel()
{
    return reported(level());
}
