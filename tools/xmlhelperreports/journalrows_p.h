#ifndef XMLHELPERREPORTS_JOURNALROWS_P_H
#define XMLHELPERREPORTS_JOURNALROWS_P_H

#include <QString>
#include <QVariantList>

#include "reportjournal.h"

class QSqlQuery;

// How entries stand in the rows of a journal's table, the same in SQLite and in PostgreSQL.

/// An entry with its version. The newest counts in every journal that the entry comes to.
struct StoredEntry : ReportJournal::Entry
{
    qint64 version = 0;

    /// Makes it newer than it was, and than what a journal that is lost may have sent: a version is no count, but the
    /// time in milliseconds, or more.
    void Renew();
};

/// The columns that entryOf() reads, in their order.
constexpr const char* JournalColumns
    = "number, id, station, begun, path, schema_path, verdict, reason, comment, label, "
      "named_values, size, hash, version";

StoredEntry entryOf(const QSqlQuery& row);

/// Adds an entry, or takes it in place of an older version; its values are those of columnsOf().
QString statementToPut();
QVariantList columnsOf(const StoredEntry& entry);

/// What follows WHERE for a query. Its values are added to @p values.
QString conditionsOf(const ReportJournal::Query& query, QVariantList& values);

#endif
