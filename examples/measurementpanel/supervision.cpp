#include "supervision.h"

#include <QEvent>
#include <QScreen>

#include <xmlhelper/reportnews.h>

namespace {

constexpr int CascadeStep = 32;

} // namespace

Supervision::Supervision(ReportSupervisor& supervisor, QSettings& settings, QWidget& window)
    : QObject(&window)
    , m_supervisor(supervisor)
    , m_window(window)
    , m_pPanel(new ReportPanel(supervisor, &window))
{
    supervisor.SetValidator(&ReportPage::LacksOf);
    m_pPanel->Remember(settings);
    m_window.installEventFilter(this);
    connect(&ReportNews::Instance(), &ReportNews::CommentAsked, this, &Supervision::receiveDialog);
    if (const QStringList faults = supervisor.TakeOverEarlier(); !faults.isEmpty()) {
        qWarning("%s", qPrintable(faults.join(QLatin1Char('\n'))));
    }
}

/// Several dialogs may be open: each says which report it is of, and none hides another.
void Supervision::receiveDialog(quint64 report, QDialog* dialog)
{
    const QTime begun = m_supervisor.GetReport(report).begun.toLocalTime().time();
    const auto name = [dialog, report, time = begun.toString(QStringLiteral("hh:mm:ss.zzz"))] {
        //: %1 is a number, %2 a time to the millisecond
        dialog->setWindowTitle(tr("Report %1, %2").arg(report).arg(time));
    };
    name();
    connect(dialog, &QWidget::windowTitleChanged, this, name); // it names itself anew with the language

    const QRect screen = m_window.screen()->availableGeometry();
    const QSize room = (screen.size() - dialog->frameSize()).expandedTo(QSize(1, 1));
    const int distance = CascadeStep * m_iDialogs++;
    dialog->move(screen.x() + room.width() - distance % room.width(), screen.y() + distance % room.height());
}

bool Supervision::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_window && event->type() == QEvent::Close && !m_pPanel->MayQuit()) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
