#ifndef XMLHELPERREPORTS_REPORTFILE_P_H
#define XMLHELPERREPORTS_REPORTFILE_P_H

#include <QString>

class QIODevice;
struct SavedFile;

/// Whether a report of that name would take the place of its schema.
bool isSameFile(const QString& schema, const QString& report);

/// Why a schema gives no report, in a sentence without its stop.
QString reasonAgainst(const QString& schema);

/// Why a device, opened for reading, holds no well-formed XML, behind the number of the line; empty when it does.
QString faultOfXml(QIODevice& device);

/// Copies a file to where a report goes, as the library saves. Gives whether all of it is there.
bool putFile(const QString& file, const QString& report, SavedFile& saved);

#endif
