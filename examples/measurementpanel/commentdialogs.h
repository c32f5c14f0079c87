#ifndef MEASUREMENTPANEL_COMMENTDIALOGS_H
#define MEASUREMENTPANEL_COMMENTDIALOGS_H

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

/// The comment dialogs of this session's reports.
///
/// The library makes them, keeps them until the process ends, and says nothing when they are answered. They are windows
/// of their own, so they are found among the windows by their object name, and they are hidden when they have been
/// answered. An answered dialog still has its report: shown again, it can be answered again.
class CommentDialogs : public QObject
{
    Q_OBJECT

public:
    explicit CommentDialogs(QObject* parent = nullptr);
    ~CommentDialogs() override;

    /// The dialog that has been opened since the last call, and is followed from now on; null when there is none.
    QWidget* TakeNew();

    /// Those that wait for an answer, the oldest first.
    QList<QWidget*> GetOpen() const;

    /// Answers all that wait with "No Comment".
    void SaveAllWithoutComment();

    /// Brings a dialog to the front, also one that has been answered.
    static void Show(QWidget& dialog);

Q_SIGNALS:
    /// The dialog has been answered; its file is written by now, or never.
    void Answered(QWidget* dialog);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Q_DISABLE_COPY(CommentDialogs)

    QList<QPointer<QWidget>> m_dialogs;
};

#endif
