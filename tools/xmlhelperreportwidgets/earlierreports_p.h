#ifndef XMLHELPERREPORTWIDGETS_EARLIERREPORTS_P_H
#define XMLHELPERREPORTWIDGETS_EARLIERREPORTS_P_H

#include <vector>

#include <QObject>
#include <QString>

#include <xmlhelperreports/reportsupervisor.h>

class ReportJournal;

/// The reports of earlier sessions that a journal remembers, as verdicts: the latest of this computer. They are read
/// when the journal is set and when it has taken in a folder, so that a report of this session costs no look into it.
/// One whose file is also that of a report of this session is none of them any more.
class EarlierReports : public QObject
{
    Q_OBJECT

public:
    /// At most so many.
    static constexpr std::size_t MaxListed = 100;

    /// @param supervisor  knows the reports of this session; outlives this
    explicit EarlierReports(const ReportSupervisor& supervisor, QObject* parent = nullptr);
    ~EarlierReports() override;

    /// What the journal holds by now is of earlier sessions, unless the supervisor has it. Changed() does not follow.
    /// @param journal  null for none; may go before this
    void SetJournal(ReportJournal* journal);

    /// The newest first. Their numbers are no other reports'.
    const std::vector<ReportSupervisor::Verdict>& GetReports() const { return m_reports; }
    /// The id of the entry of a report; empty of one that is none of these.
    QString IdOf(quint64 report) const;
    /// Looks at the file of a report again; nothing happens with one that is none of these.
    void Recheck(quint64 report);

    /// Whether the number is one of those that are given here.
    static bool IsNumber(quint64 report);

Q_SIGNALS:
    /// Others are listed now, or something in a verdict has changed.
    void Changed();

private:
    Q_DISABLE_COPY(EarlierReports)

    void read();
    void dropReplaced(quint64 report);

    const ReportSupervisor& m_supervisor;
    ReportJournal* m_pJournal = nullptr; ///< not owned
    qint64 m_iLast = 0; ///< the number of the last entry when the journal was set
    std::vector<ReportSupervisor::Verdict> m_reports;
};

#endif
