#include "journalrows_p.h"

#include <algorithm>

#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlQuery>
#include <QStringList>
#include <QVariant>

#include <arbase/vornos.h>

namespace {

QString nonNull(const QString& text)
{
    return text.isNull() ? QString(QLatin1String("")) : text;
}

QString valuesToText(const QMap<QString, QString>& values)
{
    QJsonObject object;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        object.insert(value.key(), value.value());
    }
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QMap<QString, QString> valuesFromText(const QString& text)
{
    QMap<QString, QString> values;
    const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
    for (auto value = object.begin(); value != object.end(); ++value) {
        values.insert(value.key(), value.value().toString());
    }
    return values;
}

/// Where a text is searched for, in a form that does not depend on upper and lower case in any alphabet.
QString wordsOf(const ReportJournal::Entry& entry)
{
    QStringList words {entry.path, entry.schemaPath, entry.reason, entry.comment, entry.label};
    words += entry.values.values();
    return words.join(QLatin1Char('\n')).toCaseFolded();
}

/// A text as a pattern of LIKE, with the sign ! before what has a meaning there.
QString patternFor(const QString& text)
{
    QString pattern = text.toCaseFolded();
    for (const QLatin1Char sign : {QLatin1Char('!'), QLatin1Char('%'), QLatin1Char('_')}) {
        pattern.replace(sign, QString(QLatin1Char('!')) + sign);
    }
    return QLatin1Char('%') + pattern + QLatin1Char('%');
}

QVariant timeToNumber(const QDateTime& time)
{
    return time.isValid() ? QVariant(time.toMSecsSinceEpoch()) : QVariant();
}

} // namespace

void StoredEntry::Renew()
{
    version = std::max(version + 1, VornOS::Create()->GetCurrentTime());
}

StoredEntry entryOf(const QSqlQuery& row)
{
    StoredEntry entry;
    int column = 0;
    const auto next = [&row, &column] { return row.value(column++); };
    entry.number = next().toLongLong();
    entry.id = next().toString();
    entry.station = next().toString();
    const QVariant begun = next();
    entry.begun = begun.isNull() ? QDateTime() : QDateTime::fromMSecsSinceEpoch(begun.toLongLong(), Qt::UTC);
    entry.path = next().toString();
    entry.schemaPath = next().toString();
    entry.verdict = next().toString();
    entry.reason = next().toString();
    entry.comment = next().toString();
    entry.label = next().toString();
    entry.values = valuesFromText(next().toString());
    entry.size = next().toLongLong();
    entry.hash = next().toString().toLatin1();
    entry.version = next().toLongLong();
    return entry;
}

QVariantList columnsOf(const StoredEntry& entry)
{
    return {entry.id,
            nonNull(entry.station),
            timeToNumber(entry.begun),
            nonNull(entry.path),
            nonNull(entry.schemaPath),
            nonNull(entry.verdict),
            nonNull(entry.reason),
            nonNull(entry.comment),
            nonNull(entry.label),
            valuesToText(entry.values),
            entry.size,
            nonNull(QString::fromLatin1(entry.hash)),
            entry.version,
            wordsOf(entry)};
}

QString statementToPut()
{
    const QStringList columns = QString::fromLatin1(JournalColumns).split(QLatin1String(", ")).mid(1)
        << QStringLiteral("words");
    QStringList marks;
    QStringList updates;
    for (const QString& column : columns) {
        marks.append(QStringLiteral("?"));
        updates.append(QStringLiteral("%1 = excluded.%1").arg(column));
    }
    return QStringLiteral("INSERT INTO reports (%1) VALUES (%2) ON CONFLICT (id) DO UPDATE SET %3 "
                          "WHERE reports.version < excluded.version")
        .arg(columns.join(QLatin1String(", ")), marks.join(QLatin1String(", ")), updates.join(QLatin1String(", ")));
}

QString conditionsOf(const ReportJournal::Query& query, QVariantList& values)
{
    QStringList conditions {QStringLiteral("1 = 1")};
    const auto add = [&conditions, &values](bool isAsked, const char* condition, const QVariant& value) {
        if (isAsked) {
            conditions.append(QLatin1String(condition));
            values.append(value);
        }
    };
    add(!query.text.isEmpty(), "words LIKE ? ESCAPE '!'", patternFor(query.text));
    add(!query.verdict.isEmpty(), "verdict = ?", query.verdict);
    add(!query.label.isEmpty(), "label = ?", query.label);
    add(query.from.isValid(), "begun >= ?", timeToNumber(query.from));
    add(query.to.isValid(), "begun < ?", timeToNumber(query.to));
    add(query.before > 0, "number < ?", query.before);
    return conditions.join(QLatin1String(" AND "));
}
