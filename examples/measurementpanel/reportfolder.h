#ifndef MEASUREMENTPANEL_REPORTFOLDER_H
#define MEASUREMENTPANEL_REPORTFOLDER_H

#include <QFileSystemWatcher>
#include <QObject>
#include <QSet>
#include <QString>

/// Notices new reports in the report directory.
///
/// The report widget does not say how it has called a report, and with the comment dialog the file comes only when the
/// operator has answered. So the directory is watched. It need not exist yet, see Look().
class ReportFolder : public QObject
{
    Q_OBJECT

public:
    /// Reports that are there already are not announced.
    explicit ReportFolder(const QString& path, QObject* parent = nullptr);
    ~ReportFolder() override;

    /// Looks now, announces what is new, and watches a directory that has not been there before. Returns whether
    /// there was anything new.
    bool Look();

Q_SIGNALS:
    /// @param path  of a report that has not been there before
    void ReportAppeared(const QString& path);

private:
    Q_DISABLE_COPY(ReportFolder)

    QStringList reports() const;

    QString m_sPath;
    QSet<QString> m_known;
    QFileSystemWatcher m_watcher;
};

#endif
