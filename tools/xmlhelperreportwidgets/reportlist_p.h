#ifndef XMLHELPERREPORTWIDGETS_REPORTLIST_P_H
#define XMLHELPERREPORTWIDGETS_REPORTLIST_P_H

#include <vector>

#include <QAbstractTableModel>

#include <xmlhelperreports/reportsupervisor.h>

/// The reports that are remembered, a row for each, the newest first: what became of it, its file, when it began.
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
    const ReportSupervisor::Verdict& At(int row) const;
    /// The row of a report; -1 when it is not there.
    int RowOf(quint64 report) const;
    /// Says everything again, in the language of now.
    void Translate();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    Q_DISABLE_COPY(ReportList)

    void dropOthersThan(const std::vector<ReportSupervisor::Verdict>& reports);

    std::vector<ReportSupervisor::Verdict> m_reports;
};

#endif
