#include "folderwatch_p.h"

#include <algorithm>
#include <functional>
#include <utility>

#include <QFileInfo>

namespace {

/// The nearest folder above @p folder that is there; empty when none is.
QString nearestAbove(const QString& folder)
{
    QString above = QFileInfo(QFileInfo(folder).absoluteFilePath()).path();
    while (!QFileInfo(above).isDir()) {
        const QString next = QFileInfo(above).path();
        if (next == above) {
            return QString();
        }
        above = next;
    }
    return above;
}

} // namespace

FolderWatch::FolderWatch(std::function<void()> cameBack)
    : m_cameBack(std::move(cameBack))
{
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_watcher, [this] { look(); });
}

void FolderWatch::Await(const QString& folder)
{
    if (m_missing.size() >= MaxFolders || m_missing.contains(folder) || QFileInfo(folder).isDir()) {
        return;
    }
    m_missing.append(folder);
    look();
}

void FolderWatch::Clear()
{
    if (!m_missing.isEmpty()) {
        m_missing.clear();
        look();
    }
}

void FolderWatch::look()
{
    QStringList wanted;
    for (const QString& folder : std::as_const(m_missing)) {
        const QString above = nearestAbove(folder);
        if (!above.isEmpty() && !wanted.contains(above)) {
            wanted.append(above);
        }
    }
    const QStringList watched = m_watcher.directories();
    for (const QString& folder : watched) {
        if (!wanted.removeOne(folder)) {
            m_watcher.removePath(folder);
        }
    }
    if (!wanted.isEmpty()) {
        m_watcher.addPaths(wanted);
    }
    const auto isThere = [](const QString& folder) { return QFileInfo(folder).isDir(); };
    const auto firstFound = std::stable_partition(m_missing.begin(), m_missing.end(), std::not_fn(isThere));
    if (firstFound != m_missing.end()) {
        m_missing.erase(firstFound, m_missing.end());
        m_cameBack();
    }
}
