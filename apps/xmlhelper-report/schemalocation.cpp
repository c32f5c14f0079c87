#include "schemalocation.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace reportcheck {

namespace {

bool isReadableFile(const QString& file)
{
    const QFileInfo info(file);
    return info.isFile() && info.isReadable();
}

} // namespace

QString findSchema(const QString& written, const QString& report)
{
    if (written.isEmpty()) {
        return QString();
    }
    const QUrl url(written);
    const QString path = url.isLocalFile() ? url.toLocalFile() : written;
    if (QFileInfo(path).isRelative()) {
        const QString besideReport = QDir::cleanPath(QFileInfo(report).path() + QLatin1Char('/') + path);
        if (isReadableFile(besideReport)) {
            return besideReport;
        }
    }
    return isReadableFile(path) ? path : QString();
}

} // namespace reportcheck
