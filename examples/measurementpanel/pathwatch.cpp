#include "pathwatch.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace {

constexpr int SettlingMs = 100;

/// The path itself and the folders on the way to it, as far as they are there.
QSet<QString> presentOnTheWayTo(const QString& path)
{
    QSet<QString> present;
    QString way = QFileInfo(path).absoluteFilePath();
    for (bool isAtTheTop = false; !isAtTheTop;) {
        if (QFileInfo::exists(way)) {
            present.insert(way);
        }
        const QString above = QFileInfo(way).absolutePath();
        isAtTheTop = above == way;
        way = above;
    }
    return present;
}

} // namespace

PathWatch::PathWatch(QObject* parent)
    : QObject(parent)
{
    m_settling.setSingleShot(true);
    m_settling.setInterval(SettlingMs);
    const auto startSettling = [this] {
        if (!m_settling.isActive()) {
            m_settling.start();
        }
    };
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, startSettling);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, startSettling);
    connect(&m_settling, &QTimer::timeout, this, &PathWatch::settle);
}

PathWatch::~PathWatch() = default;

void PathWatch::SetPaths(const QStringList& paths)
{
    m_paths = paths;
    watch();
}

void PathWatch::settle()
{
    watch();
    Q_EMIT Changed();
}

void PathWatch::watch()
{
    QSet<QString> wanted;
    for (const QString& path : std::as_const(m_paths)) {
        wanted += presentOnTheWayTo(path);
    }
    const QStringList watchedNow = m_watcher.directories() + m_watcher.files();
    const QSet<QString> watched(watchedNow.begin(), watchedNow.end());
    const QSet<QString> surplus = watched - wanted;
    const QSet<QString> missing = wanted - watched;
    for (const QString& path : surplus) {
        m_watcher.removePath(path);
    }
    for (const QString& path : missing) {
        m_watcher.addPath(path);
    }
}
