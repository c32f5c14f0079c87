#include "reportlist_p.h"

#include <algorithm>
#include <cstddef>
#include <set>

#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QSize>

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
    put(m_reports, 0, {reports.rbegin(), reports.rend()});
    sayAllAgain();
}

/// The heading comes and goes with the rows below it: when none of them stays, it goes with the last and comes anew.
void ReportList::PutEarlier(const std::vector<ReportSupervisor::Verdict>& reports)
{
    const auto stays = [&reports](const ReportSupervisor::Verdict& known) {
        return std::any_of(reports.begin(), reports.end(),
                           [&known](const auto& report) { return report.report == known.report; });
    };
    if (!reports.empty() && !m_earlier.empty() && std::none_of(m_earlier.begin(), m_earlier.end(), stays)) {
        PutEarlier({});
    }
    const int heading = int(m_reports.size());
    if (m_earlier.empty() && !reports.empty()) {
        beginInsertRows({}, heading, heading + int(reports.size()));
        m_earlier = reports;
        endInsertRows();
    } else if (!m_earlier.empty() && reports.empty()) {
        beginRemoveRows({}, heading, rowCount() - 1);
        m_earlier.clear();
        endRemoveRows();
    } else {
        put(m_earlier, heading + 1, reports);
    }
    sayAllAgain();
}

const ReportSupervisor::Verdict& ReportList::At(int row) const
{
    static const ReportSupervisor::Verdict nothing;
    const int heading = HeadingRow();
    if (heading < 0 || row < heading) {
        return m_reports.at(std::size_t(row));
    }
    return row == heading ? nothing : m_earlier.at(std::size_t(row - heading - 1));
}

int ReportList::RowOf(quint64 report) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (row != HeadingRow() && At(row).report == report) {
            return row;
        }
    }
    return -1;
}

void ReportList::Translate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    sayAllAgain();
}

int ReportList::rowCount(const QModelIndex& parent) const
{
    const std::size_t headings = m_earlier.empty() ? 0 : 1;
    return parent.isValid() ? 0 : int(m_reports.size() + headings + m_earlier.size());
}

int ReportList::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

Qt::ItemFlags ReportList::flags(const QModelIndex& index) const
{
    return index.row() == HeadingRow() ? Qt::NoItemFlags : QAbstractTableModel::flags(index);
}

QVariant ReportList::data(const QModelIndex& index, int role) const
{
    if (index.row() == HeadingRow()) {
        return headingData(index.column(), role);
    }
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

/// Rows that stay are the same rows as before.
void ReportList::put(Reports& rows, int firstRow, const Reports& newestFirst)
{
    dropOthers(rows, firstRow, newestFirst);
    for (std::size_t i = 0; i < newestFirst.size(); ++i) {
        if (i == rows.size() || rows[i].report != newestFirst[i].report) {
            beginInsertRows({}, firstRow + int(i), firstRow + int(i));
            rows.insert(rows.begin() + std::ptrdiff_t(i), newestFirst[i]);
            endInsertRows();
        } else {
            rows[i] = newestFirst[i];
        }
    }
}

void ReportList::dropOthers(Reports& rows, int firstRow, const Reports& reports)
{
    std::set<quint64> numbers;
    for (const ReportSupervisor::Verdict& verdict : reports) {
        numbers.insert(verdict.report);
    }
    for (int row = int(rows.size()) - 1; row >= 0; --row) {
        if (numbers.count(rows[std::size_t(row)].report) == 0) {
            beginRemoveRows({}, firstRow + row, firstRow + row);
            rows.erase(rows.begin() + row);
            endRemoveRows();
        }
    }
}

void ReportList::sayAllAgain()
{
    if (rowCount() > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

/// It spans the columns, and must not widen the first. It cannot be chosen, but shall be read as well as the rest.
QVariant ReportList::headingData(int column, int role)
{
    if (column != Verdict) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return tr("Earlier sessions");
    case Qt::SizeHintRole:
        return QSize(0, 0);
    case Qt::ForegroundRole:
        return QGuiApplication::palette().color(QPalette::Active, QPalette::WindowText);
    case Qt::FontRole: {
        QFont font;
        font.setBold(true);
        return font;
    }
    default:
        return {};
    }
}
