#ifndef XMLHELPERREPORTS_REPORTFILE_P_H
#define XMLHELPERREPORTS_REPORTFILE_P_H

#include <QString>

/// The name by which the library opens a file: back slashes separate folders everywhere.
QString openedName(const QString& fileName);

/// Whether a report of that name would take the place of its schema.
bool isSameFile(const QString& schema, const QString& report);

/// Why a schema gives no report, in a sentence without its stop.
QString reasonAgainst(const QString& schema);

/// Copies a file to where a report goes; gives whether all of it is there. A file is replaced when the new one is
/// whole, a link is followed. Into a device or a pipe the bytes are written; a pipe that nobody reads is left alone.
bool putFile(const QString& file, const QString& report);

#endif
