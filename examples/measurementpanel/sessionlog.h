#ifndef MEASUREMENTPANEL_SESSIONLOG_H
#define MEASUREMENTPANEL_SESSIONLOG_H

#include <QAbstractTableModel>
#include <QList>

#include "press.h"

/// The presses of this session, a row for each in their order: number, time, verdict, file name.
class SessionLog : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Number, Time, Verdict, File, ColumnCount };

    explicit SessionLog(QObject* parent = nullptr);
    ~SessionLog() override;

    /// Takes a press in, or what has become of one that is there already: they are told apart by their numbers.
    void Put(const Press& press);
    const Press& At(int row) const;
    /// The press of a comment dialog; null when there is none.
    const Press* Find(const QWidget* dialog) const;

    /// Says everything again, in the language of now.
    void Translate();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    Q_DISABLE_COPY(SessionLog)

    QList<Press> m_presses;
};

#endif
