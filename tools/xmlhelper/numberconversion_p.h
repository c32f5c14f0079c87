#ifndef XMLHELPER_NUMBERCONVERSION_P_H
#define XMLHELPER_NUMBERCONVERSION_P_H

#include <QString>

/// The value truncated toward zero; outside of 32 bits the nearest limit, 0 for NaN.
int toInt32(double value);

/// The value, or outside of 32 bits the nearest limit.
int toInt32(long value);

/// The value in general format with 12 significant digits, as reports show it.
QString toReportText(double value);

#endif
