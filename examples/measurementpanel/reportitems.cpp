#include "reportitems.h"

#include <xmlhelper/vcreporting.h>

#include "simulatedreceiver.h"

namespace {

constexpr int Once = 1, Kilo = 3, Mega = 6;

/// A value of the tree, by its path.
void addValue(VCReporting& reporting, const char* element, const char* path, const char* unit = "", int exponent = 0)
{
    reporting.AddReportData(QLatin1String(element), QLatin1String(path), QString(), Once, QString(), exponent,
                            QString::fromUtf8(unit));
}

void addText(VCReporting& reporting, const char* element, const QString& text, int occurs = Once, const char* unit = "")
{
    reporting.AddReportData(QLatin1String(element), QString(), text, occurs, QString(), 0, QString::fromUtf8(unit));
}

} // namespace

void registerReportItems(VCReporting& reporting, const SimulatedReceiver& receiver, long reportNumber)
{
    reporting.ClearReportData();
    reporting.AddExplicitReportData(QStringLiteral("Number"), reportNumber, Once, QString(), 0, QString());
    reporting.AddExplicitReportData(QStringLiteral("Simulated"), true, Once, QString(), 0, QString());
    addText(reporting, "Classification", QStringLiteral("internal"));
    // There is a Name below Antenna too: the parent tells them apart.
    addValue(reporting, "Receiver/Name", "Receiver/Name");
    addValue(reporting, "StartedAt", "Receiver/StartedAt");
    addValue(reporting, "Detector", "Receiver/Detector");
    reporting.AddReportData(receiver.GetStation()); // every value below the node, under its own name
    addValue(reporting, "Frequency", "Receiver/Frequency", "MHz", Mega);
    addValue(reporting, "Bandwidth", "Receiver/Bandwidth", "kHz", Kilo);
    addValue(reporting, "Level", "Receiver/Level", "dBµV");
    addValue(reporting, "Modulation", "Receiver/Modulation");
    // An element that repeats takes one item for each occurrence; each item says how many there are.
    const int samples = static_cast<int>(receiver.GetLevels().size());
    for (const double sample : receiver.GetLevels()) {
        addText(reporting, "LevelSample", QString::number(sample), samples, "dBµV");
    }
    // The items decide between the alternatives of a choice: the one that nothing fills is left out.
    if (receiver.HasBearing()) {
        addValue(reporting, "Azimuth", "DirectionFinder/Azimuth", "deg");
        addValue(reporting, "Quality", "DirectionFinder/Quality");
    } else {
        addText(reporting, "NoBearing", QStringLiteral("The signal is too weak."));
    }
    // Attributes come last: an attribute that is set before the item of its element counts as the element's value.
    addValue(reporting, "Serial", "Receiver/Serial");
}
