#include "commentdialogs.h"

#include <QApplication>
#include <QEvent>

CommentDialogs::CommentDialogs(QObject* parent)
    : QObject(parent)
{
}

CommentDialogs::~CommentDialogs() = default;

QWidget* CommentDialogs::TakeNew()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        if (window->objectName() == QLatin1String("ToReportCommentDialog") && window->isVisible()
            && !m_dialogs.contains(window)) {
            m_dialogs.append(window);
            window->installEventFilter(this);
            return window;
        }
    }
    return nullptr;
}

QList<QWidget*> CommentDialogs::GetOpen() const
{
    QList<QWidget*> open;
    for (const QPointer<QWidget>& dialog : m_dialogs) {
        if (dialog && dialog->isVisible()) {
            open.append(dialog);
        }
    }
    return open;
}

void CommentDialogs::SaveAllWithoutComment()
{
    const QList<QWidget*> open = GetOpen();
    for (QWidget* const dialog : open) {
        QMetaObject::invokeMethod(dialog, "SlotSaveWithoutComment");
    }
}

void CommentDialogs::Show(QWidget& dialog)
{
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

bool CommentDialogs::eventFilter(QObject* watched, QEvent* event)
{
    // The window system hides windows too, as when they are made icons; those events are spontaneous.
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        Q_EMIT Answered(qobject_cast<QWidget*>(watched));
    }
    return false;
}
