#ifndef MEASUREMENTPANEL_REPORTITEMS_H
#define MEASUREMENTPANEL_REPORTITEMS_H

#include <QString>

class MeasurementTree;
class SimulatedReceiver;
class VCReporting;

/// Tells the report widget which values fill which elements of measurementreport.xsd, in place of all items that it
/// has. To be called right before each report: the widget uses up its items, and some are different every time.
void registerReportItems(VCReporting& reporting, const MeasurementTree& tree, const SimulatedReceiver& receiver,
                         long reportNumber);

/// A value as the report writes it.
struct ReportedValue
{
    double number = 0.0;
    QString text; ///< the number, to the digit
    QString unit;
};

/// What a press would report now, read as the report reads it; the living tree must be that of the panel.
ReportedValue reportedFrequency();
ReportedValue reportedLevel();

#endif
