#ifndef XMLHELPERREPORTWIDGETS_REPORTLIST_P_H
#define XMLHELPERREPORTWIDGETS_REPORTLIST_P_H

#include <vector>

#include <QAbstractTableModel>

#include <xmlhelperreports/reportsupervisor.h>

/// The reports that are remembered, a row for each, the newest first: what became of it, its file, when it began. Those
/// of earlier sessions stand below the others, under a heading that cannot be chosen.
class ReportList : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Verdict, File, Time, ColumnCount };

    explicit ReportList(QObject* parent = nullptr);
    ~ReportList() override;

    /// Takes over what is known now. The rows of reports that stay are the same rows as before.
    /// @param reports  in the order of the supervisor, the oldest first
    void Put(const std::vector<ReportSupervisor::Verdict>& reports);
    const std::vector<ReportSupervisor::Verdict>& GetReports() const { return m_reports; }
    /// Takes over which reports of earlier sessions are known now.
    /// @param reports  the newest first, with numbers of their own
    void PutEarlier(const std::vector<ReportSupervisor::Verdict>& reports);
    const std::vector<ReportSupervisor::Verdict>& GetEarlier() const { return m_earlier; }
    /// The row of the heading; -1 when there are no reports of earlier sessions.
    int HeadingRow() const { return m_earlier.empty() ? -1 : int(m_reports.size()); }
    /// What is known of the report of a row; of the heading nothing.
    const ReportSupervisor::Verdict& At(int row) const;
    /// The row of a report; -1 when it is not there.
    int RowOf(quint64 report) const;
    /// Says everything again, in the language of now.
    void Translate();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    Q_DISABLE_COPY(ReportList)

    using Reports = std::vector<ReportSupervisor::Verdict>;

    void put(Reports& rows, int firstRow, const Reports& newestFirst);
    void dropOthers(Reports& rows, int firstRow, const Reports& reports);
    void sayAllAgain();
    static QVariant headingData(int column, int role);

    Reports m_reports; ///< of this session
    Reports m_earlier;
};

#endif
