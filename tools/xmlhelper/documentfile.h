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
/// Gives whether everything was written; a file that cannot be opened is left alone.
bool saveDocument(const QDomDocument& document, const QString& fileName);

#endif
