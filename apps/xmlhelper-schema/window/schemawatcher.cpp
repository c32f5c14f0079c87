#include "schemawatcher.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace schemadoctor {

namespace {

constexpr int momentMilliseconds = 100;

/// The folder of a file, or the nearest around it that is there.
QString folderAround(const QString& file)
{
    QString folder = QFileInfo(file).absolutePath();
    while (!QFileInfo::exists(folder) && !QDir(folder).isRoot()) {
        folder = QFileInfo(folder).absolutePath();
    }
    return folder;
}

} // namespace

SchemaWatcher::SchemaWatcher(QObject* parent)
    : QObject(parent)
{
    m_moment.setSingleShot(true);
    m_moment.setInterval(momentMilliseconds);
    connect(&m_moment, &QTimer::timeout, this, &SchemaWatcher::compare);
    // Whatever happens in the folders all the time must not put it off.
    const auto wait = [this] {
        if (!m_moment.isActive()) {
            m_moment.start();
        }
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, wait);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, wait);
}

void SchemaWatcher::Watch(const QStringList& files, const QDateTime& since)
{
    m_looks.clear();
    for (const QString& file : files) {
        m_looks[file];
    }
    watchPaths(); // first: what is written meanwhile is told
    const QDateTime now = QDateTime::currentDateTime();
    for (auto& [file, look] : m_looks) {
        look = lookAt(file);
        if (look.first >= since && look.first <= now) {
            look = Look(); // It may have been read before it was written.
            m_moment.start();
        }
    }
}

SchemaWatcher::Look SchemaWatcher::lookAt(const QString& file)
{
    const QFileInfo info(file);
    return info.exists() ? Look(info.lastModified(), info.size()) : Look(QDateTime(), -1);
}

/// What is gone is not watched any more, and what has come is not yet. That a folder is renamed is told by the one
/// around it.
void SchemaWatcher::watchPaths()
{
    QSet<QString> wanted;
    for (const auto& entry : m_looks) {
        const QString& file = entry.first;
        const QString folder = folderAround(file);
        wanted.insert(folder);
        wanted.insert(folderAround(folder));
        if (QFileInfo::exists(file)) {
            wanted.insert(QFileInfo(file).absoluteFilePath());
        }
    }
    const QStringList before = m_watcher.files() + m_watcher.directories();
    const QSet<QString> watched(before.begin(), before.end());
    const QSet<QString> gone = watched - wanted;
    const QSet<QString> come = wanted - watched;
    if (!gone.isEmpty()) {
        m_watcher.removePaths(gone.values());
    }
    if (!come.isEmpty()) {
        m_watcher.addPaths(come.values());
    }
}

void SchemaWatcher::compare()
{
    watchPaths();
    bool isChanged = false;
    for (auto& [file, look] : m_looks) {
        const Look now = lookAt(file);
        isChanged = isChanged || now != look;
        look = now;
    }
    if (isChanged) {
        Q_EMIT Changed();
    }
}

} // namespace schemadoctor
