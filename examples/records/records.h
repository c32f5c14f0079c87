#ifndef EXAMPLES_RECORDS_H
#define EXAMPLES_RECORDS_H

#include <vector>

#include <QString>

/// What a survey has found: one container of the report.
struct Record
{
    double frequency;
    double level;
    QString remark;
};

inline std::vector<Record> records()
{
    return {{98.5e6, -42.5, QStringLiteral("broadcast")},
            {121.5e6, -97, QStringLiteral("distress")},
            {433.9e6, -61.25, QStringLiteral("telemetry")}};
}

#endif
