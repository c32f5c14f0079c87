#include "reportfolder.h"

#include <QDir>

ReportFolder::ReportFolder(const QString& path, QObject* parent)
    : QObject(parent)
    , m_sPath(path)
{
    const QStringList present = reports();
    m_known = QSet<QString>(present.begin(), present.end());
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &ReportFolder::Look);
}

ReportFolder::~ReportFolder() = default;

bool ReportFolder::Look()
{
    if (m_watcher.directories().isEmpty() && QDir(m_sPath).exists()) {
        m_watcher.addPath(m_sPath);
    }
    QStringList appeared;
    const QStringList present = reports();
    for (const QString& report : present) {
        if (!m_known.contains(report)) {
            m_known.insert(report);
            appeared.append(report);
        }
    }
    for (const QString& report : std::as_const(appeared)) {
        Q_EMIT ReportAppeared(QDir(m_sPath).filePath(report));
    }
    return !appeared.isEmpty();
}

/// The oldest first. The names would not do: they count the milliseconds without leading zeros.
QStringList ReportFolder::reports() const
{
    return QDir(m_sPath).entryList({QStringLiteral("*.xml")}, QDir::Files, QDir::Time | QDir::Reversed);
}
