#include "folderintake_p.h"

#include <algorithm>
#include <utility>

#include <QFileInfo>

FolderIntake::FolderIntake(std::function<int(QStringList& files)> take,
                           std::function<void(const QString& folder, int added)> end)
    : m_take(std::move(take))
    , m_end(std::move(end))
    , m_missing([this] { m_readTimer.start(0); })
{
    m_readTimer.setSingleShot(true);
    m_pauseTimer.setSingleShot(true);
    m_pauseTimer.setInterval(Pause);
    m_unreadTimer.setSingleShot(true);
    QObject::connect(&m_readTimer, &QTimer::timeout, &m_readTimer, [this] { readSome(); });
    QObject::connect(&m_pauseTimer, &QTimer::timeout, &m_readTimer, [this] { m_readTimer.start(0); });
    QObject::connect(&m_unreadTimer, &QTimer::timeout, &m_readTimer, [this] { readUnread(); });
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_readTimer, [this](const QString& folder) {
        m_folders[folder].isChanged = true;
        if (!m_pauseTimer.isActive()) {
            m_pauseTimer.start();
        }
    });
}

void FolderIntake::Add(const QString& folder)
{
    m_folders[folder].isChanged = true;
    m_readTimer.start(0);
}

void FolderIntake::Restart()
{
    m_names.reset();
    m_folder.clear();
    m_found.clear();
    for (auto& [name, folder] : m_folders) {
        folder = Folder();
    }
    m_readTimer.start(0);
}

/// Begins with a folder that has changed and is there.
void FolderIntake::begin()
{
    for (auto& [name, folder] : m_folders) {
        if (folder.isChanged && QFileInfo(name).isDir()) {
            folder.isChanged = false;
            folder.hasUnread = false;
            m_watcher.addPath(name); // First, so that nothing is missed in between.
            m_folder = name;
            m_names = std::make_unique<QDirIterator>(name, QStringList(QStringLiteral("*.xml")), QDir::Files);
            m_added = 0;
            m_readTimer.start(0);
            return;
        }
        if (folder.isChanged) {
            m_missing.Await(name);
        }
    }
}

void FolderIntake::readSome()
{
    if (m_isTaking) {
        m_readTimer.start(Pause);
        return;
    }
    if (m_folder.isEmpty()) {
        begin();
        return;
    }
    QSet<QString>& known = m_folders[m_folder].known;
    const bool isToRead = m_found.isEmpty();
    for (int i = 0; isToRead && m_names && i < NamesInOneGo; ++i) {
        if (!m_names->hasNext()) {
            m_names.reset();
            ++m_readings;
            break;
        }
        const QString path = m_names->next();
        const QString name = m_names->fileName();
        if (!known.contains(name)) {
            known.insert(name);
            m_found.append(path);
        }
    }
    handOver();
}

void FolderIntake::handOver()
{
    QStringList files = m_found.mid(0, FilesInOneGo);
    const auto count = files.size();
    m_isTaking = true;
    const int added = files.isEmpty() ? 0 : m_take(files);
    m_isTaking = false;
    if (m_folder.isEmpty()) {
        return; // All begins anew.
    }
    if (added < 0) {
        m_readTimer.start(Pause);
        return;
    }
    for (const QString& unread : std::as_const(files)) {
        m_folders[m_folder].known.remove(QFileInfo(unread).fileName());
        m_folders[m_folder].hasUnread = true;
    }
    m_found = m_found.mid(count);
    m_added += added;
    m_readTimer.start(0);
    if (!m_names && m_found.isEmpty()) {
        const QString folder = std::exchange(m_folder, QString());
        awaitUnread();
        m_end(folder, m_added);
    }
}

/// Has the names of folders read again where some could not be taken: they are new then.
void FolderIntake::awaitUnread()
{
    const auto hasUnread = [](const auto& folder) { return folder.second.hasUnread; };
    if (std::none_of(m_folders.begin(), m_folders.end(), hasUnread)) {
        m_unreadPace.Restart();
    } else if (!m_unreadTimer.isActive()) {
        m_unreadTimer.start(m_unreadPace.Next());
    }
}

void FolderIntake::readUnread()
{
    for (auto& [name, folder] : m_folders) {
        folder.isChanged = folder.isChanged || folder.hasUnread;
    }
    m_readTimer.start(0);
}
