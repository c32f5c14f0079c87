#ifndef XMLHELPER_BENCHMARKS_TABLE_H
#define XMLHELPER_BENCHMARKS_TABLE_H

#include <vector>

#include <QString>

struct Growth;
struct Measurement;

/// Prints the head of the table of measurements.
void printHead();

/// Prints one line of it.
void printMeasurement(const Measurement& measurement);

/// Prints the table of growths; nothing when it is empty.
void printGrowths(const std::vector<Growth>& growths);

/// Writes all numbers as JSON. Gives false when the file cannot be written.
bool writeJson(const QString& fileName, const std::vector<Measurement>& measurements,
               const std::vector<Growth>& growths);

#endif
