#include "reportfile_p.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QXmlStreamReader>
#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

bool writeAll(QFile& from, QFileDevice& to)
{
    const qint64 piece = 1024 * 1024;
    while (!from.atEnd()) {
        const QByteArray bytes = from.read(piece);
        if (bytes.isEmpty() || to.write(bytes) != bytes.size()) {
            return false;
        }
    }
    return to.flush();
}

/// Whether opening it for writing would wait until somebody reads it, which may be never.
bool isPipeThatNobodyReads(const QString& fileName)
{
#ifdef Q_OS_UNIX
    const QByteArray path = QFile::encodeName(fileName);
    struct stat status = {};
    if (::stat(path.constData(), &status) != 0 || !S_ISFIFO(status.st_mode)) {
        return false;
    }
    const int descriptor = ::open(path.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        return true;
    }
    ::close(descriptor);
#else
    Q_UNUSED(fileName)
#endif
    return false;
}

} // namespace

QString openedName(const QString& fileName)
{
    QString name = fileName;
    return QFileInfo::exists(name) ? name : name.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

bool isSameFile(const QString& schema, const QString& report)
{
    const QString canonical = QFileInfo(openedName(report)).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(openedName(schema)).canonicalFilePath();
}

QString reasonAgainst(const QString& schema)
{
    QFile file(openedName(schema));
    if (!QFileInfo::exists(file.fileName())) {
        return QStringLiteral("there is no such file");
    }
    if (!QFileInfo(file.fileName()).isFile() || !file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("it cannot be opened");
    }
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return reader.hasError() ? QStringLiteral("it is not well-formed XML, line %1: %2")
                                   .arg(QString::number(reader.lineNumber()), reader.errorString())
                             : QStringLiteral("a definition or a file that it uses is missing or at fault, or it is "
                                              "beyond the limits");
}

bool putFile(const QString& file, const QString& report)
{
    QFile from(file);
    const QString name = openedName(report);
    const QFileInfo target(name);
    if (!from.open(QIODevice::ReadOnly) || isPipeThatNobodyReads(name)) {
        return false;
    }
    if (target.exists() && !target.isFile()) {
        QFile device(name);
        return device.open(QIODevice::WriteOnly) && writeAll(from, device);
    }
    QSaveFile to(name);
    to.setDirectWriteFallback(true);
    return to.open(QIODevice::WriteOnly) && writeAll(from, to) && to.commit();
}
