#include "sessionlog.h"

#include <algorithm>

#include <QDir>
#include <QFileInfo>

#include "presstext.h"

SessionLog::SessionLog(QObject* parent)
    : QAbstractTableModel(parent)
{
}

SessionLog::~SessionLog() = default;

void SessionLog::Put(const Press& press)
{
    const auto found = std::find_if(m_presses.begin(), m_presses.end(),
                                    [&press](const Press& known) { return known.number == press.number; });
    if (found == m_presses.end()) {
        beginInsertRows({}, rowCount(), rowCount());
        m_presses.append(press);
        endInsertRows();
        return;
    }
    *found = press;
    const int row = static_cast<int>(found - m_presses.begin());
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

const Press& SessionLog::At(int row) const
{
    return m_presses.at(row);
}

const Press* SessionLog::Find(const QWidget* dialog) const
{
    const auto found = std::find_if(m_presses.begin(), m_presses.end(),
                                    [dialog](const Press& press) { return press.dialog == dialog; });
    return dialog && found != m_presses.end() ? &*found : nullptr;
}

void SessionLog::Translate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_presses.isEmpty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

int SessionLog::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_presses.size());
}

int SessionLog::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SessionLog::data(const QModelIndex& index, int role) const
{
    const Press& press = m_presses.at(index.row());
    if (role == Qt::ToolTipRole) {
        return index.column() == File ? QDir::toNativeSeparators(press.path) : PressText::Sentence(press);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (index.column()) {
    case Number:
        return press.number;
    case Time:
        return press.time.toString(QStringLiteral("hh:mm:ss"));
    case Verdict:
        return PressText::Verdict(press);
    default:
        return QFileInfo(press.path).fileName();
    }
}

QVariant SessionLog::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Number:
        return tr("No.");
    case Time:
        return tr("Time");
    case Verdict:
        return tr("Verdict");
    default:
        return tr("File");
    }
}
