#ifndef XMLHELPERREPORTS_FOLDERWATCH_P_H
#define XMLHELPERREPORTS_FOLDERWATCH_P_H

#include <functional>

#include <QFileSystemWatcher>
#include <QString>
#include <QStringList>

/// Tells when a missing folder comes back. It watches the nearest folder above that is there, and moves down with what
/// is made; what changes in between may be missed. A folder that is there is not watched: each try to write into it
/// would be a change.
class FolderWatch
{
public:
    /// As many as are watched: systems have few watches to give.
    static constexpr int MaxFolders = 16;

    /// @param cameBack  is called from the event loop for each folder that is there again
    explicit FolderWatch(std::function<void()> cameBack);

    /// Watches for a folder, unless it is there or enough are watched for.
    void Await(const QString& folder);

    /// Watches for nothing any more.
    void Clear();

private:
    Q_DISABLE_COPY(FolderWatch)

    void look();

    QFileSystemWatcher m_watcher;
    QStringList m_missing;
    std::function<void()> m_cameBack;
};

#endif
