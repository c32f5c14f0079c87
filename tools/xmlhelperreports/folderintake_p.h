#ifndef XMLHELPERREPORTS_FOLDERINTAKE_P_H
#define XMLHELPERREPORTS_FOLDERINTAKE_P_H

#include <functional>
#include <map>
#include <memory>

#include <QDirIterator>
#include <QFileSystemWatcher>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>

#include "folderwatch_p.h"
#include "retrypace_p.h"

/// Finds the reports of folders by their names, each once, a few names in one go of the event loop.
///
/// A change in a folder says not what has changed, so its names are read again: at most once in a pause, however many
/// changes there are, so that they cost a process that writes there next to nothing.
class FolderIntake
{
public:
    /// Names in one go.
    static constexpr int NamesInOneGo = 200;
    /// Reports that are handed over in one go.
    static constexpr int FilesInOneGo = 20;
    /// Milliseconds from a change to the next reading.
    static constexpr int Pause = 2000;

    /// @param take  gets paths that it has not got before, and leaves those that it cannot read yet: it gets them again
    ///              after a while. Gives how many were new to it, or less than 0 when it shall be asked again later
    /// @param end   hears that all of a folder has been read and taken
    FolderIntake(std::function<int(QStringList& files)> take,
                 std::function<void(const QString& folder, int added)> end);

    /// Reads a folder, which need not be there yet.
    void Add(const QString& folder);

    /// Reads all folders from the beginning.
    void Restart();

    /// How often names of folders have been read, from the first to the last.
    int Readings() const { return m_readings; }

private:
    Q_DISABLE_COPY(FolderIntake)

    struct Folder
    {
        QSet<QString> known; ///< names
        bool isChanged = true;
        bool hasUnread = false;
    };

    void readSome();
    void begin();
    void handOver();
    void awaitUnread();
    void readUnread();

    std::function<int(QStringList&)> m_take;
    std::function<void(const QString&, int)> m_end;
    std::map<QString, Folder> m_folders;
    QString m_folder; ///< the one that is read
    std::unique_ptr<QDirIterator> m_names; ///< of it; null behind the last
    QStringList m_found; ///< not taken yet
    int m_added = 0;
    bool m_isTaking = false; ///< and who is told of it may run an event loop
    int m_readings = 0;
    QTimer m_readTimer;
    QTimer m_pauseTimer;
    QTimer m_unreadTimer;
    RetryPace m_unreadPace;
    QFileSystemWatcher m_watcher;
    FolderWatch m_missing;
};

#endif
