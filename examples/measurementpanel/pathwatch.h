#ifndef MEASUREMENTPANEL_PATHWATCH_H
#define MEASUREMENTPANEL_PATHWATCH_H

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

/// Notices that files or directories come, go or change, whether or not they are there yet.
///
/// What is not there cannot be watched, and a removed parent takes its watch with it: so every folder on the way to a
/// path is watched too, and the watches are set anew after each change. Several changes in a row are told once, within
/// a quarter of a second. File systems that tell nothing, such as some network drives, are noticed by nobody: whoever
/// needs those asks from time to time.
class PathWatch : public QObject
{
    Q_OBJECT

public:
    explicit PathWatch(QObject* parent = nullptr);
    ~PathWatch() override;

    /// Watches these from now on, and nothing else.
    void SetPaths(const QStringList& paths);

Q_SIGNALS:
    /// Something has changed at one of the paths or on the way to it.
    void Changed();

private:
    Q_DISABLE_COPY(PathWatch)

    void settle();
    void watch();

    QStringList m_paths;
    QFileSystemWatcher m_watcher;
    QTimer m_settling;
};

#endif
