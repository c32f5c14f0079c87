#ifndef XMLHELPERREPORTS_GIVENVALUES_P_H
#define XMLHELPERREPORTS_GIVENVALUES_P_H

#include <vector>

#include <QByteArray>
#include <QString>
#include <QVariant>

/// Stands before the name of an attribute.
const QLatin1Char AttributeMark('@');

/// A value as it was given.
struct GivenValue
{
    QString name;
    QString text;
    int record = 0; ///< the number of its record, from 1; 0 without one
    int sameAs = -1; ///< the index of the same value in an earlier record, when it stands for that one
};

/// A value as the text that stands for it in a report, as far as that does not depend on the type of its element.
QString textOf(const QVariant& value);

// Each appends what a text gives to values, or says what is wrong with it, behind the number of the line or row, and
// appends nothing.

bool readJson(const QByteArray& json, std::vector<GivenValue>& values, QString& fault);
bool readCsv(const QByteArray& csv, std::vector<GivenValue>& values, QString& fault);
bool readLines(const QByteArray& text, std::vector<GivenValue>& values, QString& fault);

#endif
