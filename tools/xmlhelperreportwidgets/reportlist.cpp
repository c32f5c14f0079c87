#include "reportlist_p.h"

#include <algorithm>
#include <set>

#include <QDir>
#include <QGuiApplication>

#include "reportwords_p.h"

namespace {

QString timeText(const QDateTime& utc)
{
    const QDateTime time = utc.toLocalTime();
    return time.toString(time.date() == QDate::currentDate() ? QStringLiteral("hh:mm:ss")
                                                             : QStringLiteral("yyyy-MM-dd hh:mm"));
}

/// Plain text, whatever a file is called: a tool tip would take markup in it for its own.
QString toolTip(const QString& text)
{
    return QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(text.toHtmlEscaped());
}

} // namespace

ReportList::ReportList(QObject* parent)
    : QAbstractTableModel(parent)
{
}

ReportList::~ReportList() = default;

void ReportList::Put(const std::vector<ReportSupervisor::Verdict>& reports)
{
    dropOthersThan(reports);
    for (std::size_t i = 0; i < reports.size(); ++i) {
        const ReportSupervisor::Verdict& verdict = reports[reports.size() - 1 - i];
        if (i == m_reports.size() || m_reports[i].report != verdict.report) {
            beginInsertRows({}, static_cast<int>(i), static_cast<int>(i));
            m_reports.insert(m_reports.begin() + static_cast<std::ptrdiff_t>(i), verdict);
            endInsertRows();
        } else {
            m_reports[i] = verdict;
        }
    }
    if (!m_reports.empty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

const ReportSupervisor::Verdict& ReportList::At(int row) const
{
    return m_reports.at(static_cast<std::size_t>(row));
}

int ReportList::RowOf(quint64 report) const
{
    const auto isIt = [report](const ReportSupervisor::Verdict& verdict) { return verdict.report == report; };
    const auto found = std::find_if(m_reports.begin(), m_reports.end(), isIt);
    return found == m_reports.end() ? -1 : static_cast<int>(found - m_reports.begin());
}

void ReportList::Translate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_reports.empty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

int ReportList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_reports.size());
}

int ReportList::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ReportList::data(const QModelIndex& index, int role) const
{
    const ReportSupervisor::Verdict& verdict = At(index.row());
    if (role == Qt::ToolTipRole) {
        return toolTip(index.column() == File ? QDir::toNativeSeparators(ReportWords::Path(verdict))
                                              : ReportWords::Sentence(verdict));
    }
    if (role == Qt::ForegroundRole && index.column() == Verdict) {
        return ReportWords::Colour(verdict, QGuiApplication::palette());
    }
    if (role == Qt::AccessibleTextRole && index.column() == Verdict) {
        return ReportWords::Word(verdict);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (index.column()) {
    case Verdict:
        return QString(ReportWords::Sign(verdict) + QLatin1Char(' ') + ReportWords::Word(verdict));
    case File:
        return ReportWords::Name(verdict);
    default:
        return timeText(verdict.begun);
    }
}

QVariant ReportList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Verdict:
        return tr("Verdict");
    case File:
        return tr("File");
    default:
        return tr("Time");
    }
}

void ReportList::dropOthersThan(const std::vector<ReportSupervisor::Verdict>& reports)
{
    std::set<quint64> numbers;
    for (const ReportSupervisor::Verdict& verdict : reports) {
        numbers.insert(verdict.report);
    }
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (numbers.count(At(row).report) == 0) {
            beginRemoveRows({}, row, row);
            m_reports.erase(m_reports.begin() + row);
            endRemoveRows();
        }
    }
}
