#ifndef XMLHELPER_DOCUMENTFILE_P_H
#define XMLHELPER_DOCUMENTFILE_P_H

#include <QByteArray>
#include <QDomDocument>
#include <QString>

struct SavedFile;

/// Writes @p document to the file called @p fileName, as saveFile() does, in the encoding that it declares or else in
/// UTF-8, with four spaces of indentation. Gives whether everything was written.
///
/// A document that would take more than limits().savedBytes is not written, which is traced.
bool saveDocument(const QDomDocument& document, const QString& fileName, SavedFile* saved = nullptr);

/// The bytes that saveDocument() writes.
QByteArray savedBytesOf(const QDomDocument& document);

/// The same where that are at most so many; else none. A longer document costs little more than these.
QByteArray savedBytesOf(const QDomDocument& document, qint64 atMost);

#endif
