#ifndef MEASUREMENTPANEL_REPORTITEMS_H
#define MEASUREMENTPANEL_REPORTITEMS_H

class SimulatedReceiver;
class VCReporting;

/// Tells the report widget which values fill which elements of measurementreport.xsd, in place of all items that it
/// has. To be called right before each report: the widget uses up its items, and some are different every time.
void registerReportItems(VCReporting& reporting, const SimulatedReceiver& receiver, long reportNumber);

#endif
