#include "storageprobe.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

namespace {

constexpr int ProbeSize = 64 * 1024;

} // namespace

StorageFault probeStorage(const QString& directory)
{
    const QFileInfo info(directory);
    if (!info.exists()) {
        return StorageFault::Gone;
    }
    if (!info.isDir()) {
        return StorageFault::NotADirectory;
    }
    QTemporaryFile probe(QDir(directory).filePath(QStringLiteral(".probe-XXXXXX")));
    if (!probe.open()) {
        // A full disk may have no room left for the entry of a file either.
        return probe.error() == QFileDevice::ResourceError ? StorageFault::Full : StorageFault::NotWritable;
    }
    const QByteArray content(ProbeSize, ' ');
    return probe.write(content) == content.size() && probe.flush() ? StorageFault::None : StorageFault::Full;
}
