#ifndef SCHEMADOCTOR_OUTPUTFILE_H
#define SCHEMADOCTOR_OUTPUTFILE_H

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace schemadoctor {

/// Writes a file whole or not at all. What is no file, such as a device or a pipe, is written in place.
/// @return why it could not be written, with its name in front; empty when it was
QString writeOutput(const QString& name, const QByteArray& bytes);

/// Whether a name leads to one of the files, by whatever links.
bool isFileAmong(const QString& name, const QStringList& files);

} // namespace schemadoctor

#endif
