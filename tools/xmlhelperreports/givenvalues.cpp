#include "givenvalues_p.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

namespace {

const QLatin1String TextKey("#text");

QString textOfNumber(double number)
{
    const double exactIntegers = 1e15;
    return std::trunc(number) == number && std::abs(number) < exactIntegers
        ? QString::number(static_cast<qint64>(number))
        : QString::number(number, 'g', std::numeric_limits<double>::max_digits10);
}

/// What the object or value at @p path gives.
void readJsonValue(const QJsonValue& value, const QString& path, int record, std::vector<GivenValue>& values)
{
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (int i = 0; i < int(array.size()); ++i) {
            readJsonValue(array.at(i), QStringLiteral("%1[%2]").arg(path).arg(i + 1), record, values);
        }
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto one = object.begin(); one != object.end(); ++one) {
            const QString& key = one.key();
            const bool isOfObject = key == TextKey || key.startsWith(AttributeMark);
            const QString below
                = isOfObject ? path + (key == TextKey ? QString() : key) : path + QLatin1Char('/') + key;
            readJsonValue(one.value(), below, record, values);
        }
    } else if (!value.isNull() && !value.isUndefined()) {
        values.push_back({path, textOf(value.toVariant()), record, -1});
    }
}

/// The cells of a text. A quoted one may hold separators, line ends and, doubled, quotes.
bool readCells(const QString& text, QChar separator, std::vector<QStringList>& rows)
{
    const QChar quote = QLatin1Char('"');
    QStringList row;
    QString cell;
    bool isQuoted = false;
    for (int i = 0; i < int(text.size()); ++i) {
        const QChar one = text.at(i);
        if (one == quote) {
            const bool isDoubled = isQuoted && i + 1 < int(text.size()) && text.at(i + 1) == quote;
            if (isDoubled) {
                cell.append(quote);
                ++i;
            } else {
                isQuoted = !isQuoted;
            }
        } else if (!isQuoted && (one == separator || one == QLatin1Char('\n'))) {
            row.append(std::exchange(cell, QString()));
            if (one != separator) {
                rows.push_back(std::exchange(row, QStringList()));
            }
        } else {
            cell.append(one);
        }
    }
    row.append(cell);
    rows.push_back(row);
    return !isQuoted;
}

/// Whichever separator the first row has.
QChar separatorIn(const QString& text)
{
    const QString head = text.section(QLatin1Char('\n'), 0, 0);
    const QString separators = QStringLiteral(",;\t");
    const auto* const separator
        = std::find_if(separators.begin(), separators.end(), [&head](QChar one) { return head.contains(one); });
    return separator == separators.end() ? separators.front() : *separator;
}

QString textIn(QByteArray bytes)
{
    const QByteArray byteOrderMark("\xEF\xBB\xBF");
    if (bytes.startsWith(byteOrderMark)) {
        bytes.remove(0, byteOrderMark.size());
    }
    QString text = QString::fromUtf8(bytes);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return text;
}

bool isEmpty(const QStringList& row)
{
    return std::all_of(row.begin(), row.end(), [](const QString& cell) { return cell.trimmed().isEmpty(); });
}

} // namespace

QString textOf(const QVariant& value)
{
    switch (static_cast<int>(value.userType())) {
    case QMetaType::Double:
    case QMetaType::Float:
        return textOfNumber(value.toDouble());
    case QMetaType::QDateTime:
        return value.toDateTime().toString(Qt::ISODate);
    case QMetaType::QTime:
        return value.toTime().toString(Qt::ISODate);
    default:
        return value.toString();
    }
}

bool readJson(const QByteArray& json, std::vector<GivenValue>& values, QString& fault)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (document.isNull()) {
        const int line = int(json.left(error.offset).count('\n')) + 1;
        fault = QStringLiteral("%1: %2").arg(line).arg(error.errorString());
        return false;
    }
    const QString belowRoot = QStringLiteral(".");
    if (document.isObject()) {
        readJsonValue(document.object(), belowRoot, 0, values);
        return true;
    }
    const QJsonArray records = document.array();
    for (int i = 0; i < int(records.size()); ++i) {
        readJsonValue(records.at(i), belowRoot, i + 1, values);
    }
    return true;
}

bool readCsv(const QByteArray& csv, std::vector<GivenValue>& values, QString& fault)
{
    const QString text = textIn(csv);
    std::vector<QStringList> rows;
    if (!readCells(text, separatorIn(text), rows)) {
        fault = QStringLiteral("%1: A quote is not closed").arg(rows.size());
        return false;
    }
    const QStringList names = rows.front();
    std::vector<GivenValue> given;
    int record = 0;
    for (std::size_t number = 1; number < rows.size(); ++number) {
        const QStringList& row = rows[number];
        if (isEmpty(row)) {
            continue;
        }
        if (row.size() > names.size()) {
            fault = QStringLiteral("%1: The row has more cells than the first").arg(number + 1);
            return false;
        }
        ++record;
        for (int column = 0; column < int(row.size()); ++column) {
            if (!row.at(column).trimmed().isEmpty()) {
                given.push_back({names.at(column).trimmed(), row.at(column).trimmed(), record, -1});
            }
        }
    }
    values.insert(values.end(), given.begin(), given.end());
    return true;
}

bool readLines(const QByteArray& text, std::vector<GivenValue>& values, QString& fault)
{
    const QStringList lines = textIn(text).split(QLatin1Char('\n'));
    std::vector<GivenValue> given;
    for (int number = 0; number < int(lines.size()); ++number) {
        const QString line = lines.at(number).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        const int separator = int(line.indexOf(QLatin1Char('=')));
        if (separator < 1) {
            fault = QStringLiteral("%1: The line is not of the form name=value").arg(number + 1);
            return false;
        }
        given.push_back({line.left(separator).trimmed(), line.mid(separator + 1).trimmed(), 0, -1});
    }
    values.insert(values.end(), given.begin(), given.end());
    return true;
}
