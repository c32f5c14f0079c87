#ifndef XMLHELPERREPORTS_REPORTIDS_P_H
#define XMLHELPERREPORTS_REPORTIDS_P_H

#include <map>
#include <mutex>

#include <QString>
#include <QUuid>

#include "reportsupervisor.h"

/// Gives reports of the process their entries, the same in all of its journals, so that none doubles what another
/// wrote. May be used on any thread.
class ReportIds
{
public:
    static ReportIds& Instance();

    /// The id for a new entry of a report.
    QString Make(const ReportSupervisor::Verdict& report) const;

    /// The entry that a report goes on with; empty when it does not.
    QString Find(const ReportSupervisor::Verdict& report);

    /// A report goes on with an entry that was there.
    void Set(const ReportSupervisor::Verdict& report, const QString& id);

    /// The id for the entry of a file that was found. Those who find one at once make one entry.
    static QString OfFound(const QString& station, const QString& path);

private:
    ReportIds() = default;
    Q_DISABLE_COPY(ReportIds)

    const QUuid m_process = QUuid::createUuid();
    std::mutex m_mutex;
    std::map<QString, QString> m_earlier; ///< by what tells reports apart
};

#endif
