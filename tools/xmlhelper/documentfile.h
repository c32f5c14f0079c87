#ifndef XMLHELPER_DOCUMENTFILE_H
#define XMLHELPER_DOCUMENTFILE_H

#include <QDomDocument>
#include <QString>

/// The name by which the library opens the file called @p fileName, for reading and for writing.
///
/// Paths travel through the suite with back slashes. Where the platform does not separate folders by them, a name that
/// does not exist as given is opened with slashes instead. Nothing of it shows in stored paths.
QString openableFileName(const QString& fileName);

/// Writes @p document to the file called @p fileName, replacing what was there: UTF-8, four spaces of indentation.
/// Gives whether everything was written. A file that cannot be opened, and a pipe that nobody reads, are left alone;
/// what could be written only in part is traced and taken back, so that no file holds half a document.
///
/// Needs a time in proportion to the length of the texts. That of an attribute's value grows with the square of the
/// number of its characters that need escaping; 100,000 take a tenth of a second.
bool saveDocument(const QDomDocument& document, const QString& fileName);

#endif
