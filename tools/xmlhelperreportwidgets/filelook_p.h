#ifndef XMLHELPERREPORTWIDGETS_FILELOOK_P_H
#define XMLHELPERREPORTWIDGETS_FILELOOK_P_H

#include <vector>

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <xmlhelperreports/reportsupervisor.h>

/// Has the files of written reports checked again when they or their folders change, so that no verdict stands that is
/// no longer true. A change of a folder costs a look at each report, a few at a time so that a slow disk keeps nobody
/// waiting, and only files that have come, gone or grown are read.
class FileLook : public QObject
{
    Q_OBJECT

public:
    explicit FileLook(QObject* parent = nullptr);
    ~FileLook() override;

    /// @param reports  those whose folders are watched
    /// @param chosen   the file of this one is watched too; 0 for none
    void Follow(const std::vector<ReportSupervisor::Verdict>& reports, quint64 chosen);
    /// Looks at all of them, the newest first, from the event loop. Asked for meanwhile, it looks once more at the end.
    void Look();

Q_SIGNALS:
    /// The verdict of a report may be no longer true.
    void Doubted(quint64 report);
    /// The file of the chosen report has changed.
    void ChosenChanged();

private:
    Q_DISABLE_COPY(FileLook)

    void lookTwice();
    void lookAtSome();
    void watch();

    QFileSystemWatcher m_watcher;
    QTimer m_timer;
    QTimer m_lastLookTimer;
    std::vector<ReportSupervisor::Verdict> m_written;
    std::size_t m_next = 0; ///< of those above, the one that is looked at next
    quint64 m_chosen = 0;
    bool m_bLookAgain = false; ///< when all have been looked at
    bool m_bChosenChanged = false;
};

#endif
