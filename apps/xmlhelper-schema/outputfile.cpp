#include "outputfile.h"

#include <algorithm>

#include <QFileInfo>
#include <QSaveFile>

namespace schemadoctor {

namespace {

QString faultOf(const QFileDevice& file)
{
    return QStringLiteral("%1: %2").arg(file.fileName(), file.errorString());
}

} // namespace

QString writeOutput(const QString& name, const QByteArray& bytes)
{
    const QFileInfo there(name);
    if (there.exists() && !there.isFile()) {
        QFile file(name);
        const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
        return isWritten ? QString() : faultOf(file);
    }
    QSaveFile file(name);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return isWritten ? QString() : faultOf(file);
}

bool isFileAmong(const QString& name, const QStringList& files)
{
    const QString path = QFileInfo(name).canonicalFilePath();
    return !path.isEmpty() && std::any_of(files.begin(), files.end(), [&path](const QString& file) {
        return path == QFileInfo(file).canonicalFilePath();
    });
}

} // namespace schemadoctor
