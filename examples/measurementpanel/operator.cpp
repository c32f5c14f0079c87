#include "operator.h"

#include <QApplication>
#include <QCheckBox>
#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QPushButton>
#include <QTextEdit>
#include <QTextStream>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

#include <arbase/vornos.h>
#include <xmlhelper/vcreporting.h>

#include "panelwindow.h"
#include "simulatedreceiver.h"

namespace {

constexpr int PatienceMs = 10000;

void letApplicationLive(int milliseconds)
{
    QEventLoop loop;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(milliseconds);
    loop.exec();
}

/// Lets the application live until the condition holds; gives false when the patience ends first.
template <typename Condition> bool waitUntil(Condition condition)
{
    const QDeadlineTimer deadline(PatienceMs);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        letApplicationLive(1);
    }
    return true;
}

void sendMouseEvent(QEvent::Type type, QWindow& window, const QPoint& position, Qt::MouseButtons pressed)
{
    QMouseEvent event(type, position, position, window.mapToGlobal(position), Qt::LeftButton, pressed, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

/// Clicks on the place in the window where the widget is: what is covered, hidden or disabled does not get the click.
void clickOn(const QWidget& widget)
{
    QWindow* const window = widget.window()->windowHandle();
    const QPoint position = widget.mapTo(widget.window(), widget.rect().center());
    sendMouseEvent(QEvent::MouseButtonPress, *window, position, Qt::LeftButton);
    sendMouseEvent(QEvent::MouseButtonRelease, *window, position, Qt::NoButton);
}

/// Enters the text in one go, as an input method does.
void typeInto(QWidget& widget, const QString& text)
{
    clickOn(widget);
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(&widget, &event);
}

/// The open dialog; null when there is none. Answered ones are still there, hidden.
QWidget* openCommentDialog()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const widget : windows) {
        if (widget->objectName() == QLatin1String("ToReportCommentDialog") && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

void setChecked(QCheckBox& box, bool isWanted)
{
    if (box.isChecked() != isWanted) {
        clickOn(box);
    }
}

QString dialogScreenshot(const QString& windowScreenshot)
{
    const QFileInfo file(windowScreenshot);
    const QString suffix = file.suffix().isEmpty() ? QString() : QLatin1Char('.') + file.suffix();
    return file.dir().filePath(file.completeBaseName() + QStringLiteral("-dialog") + suffix);
}

} // namespace

Operator::Operator(PanelWindow& window, SimulatedReceiver& receiver, const Orders& orders)
    : m_window(window)
    , m_receiver(receiver)
    , m_orders(orders)
{
    connect(&m_window, &PanelWindow::ReportWritten, this, [this](const QString& path) { m_sWritten = path; });
    connect(&m_window, &PanelWindow::ReportFailed, this, [this](const QString& reason) { m_sFailure = reason; });
}

Operator::~Operator() = default;

bool Operator::Work()
{
    m_window.show();
    letApplicationLive(0);
    setChecked(*m_window.findChild<QCheckBox*>(QStringLiteral("askForComment")), m_orders.comment.has_value());
    for (int press = 0; press < m_orders.presses; ++press) {
        if (!makeReport()) {
            return false;
        }
    }
    return saveScreenshot(m_window, m_orders.screenshot);
}

bool Operator::makeReport()
{
    m_receiver.FinishChannel();
    const QToolButton* const button = m_window.findChild<VCReporting*>()->GetReportButton();
    if (!button->isEnabled()) {
        return complain(tr("The report button is disabled: the schema or the report directory is missing."));
    }
    // Reports are named after the time, to the millisecond: two of the same one would be the same file.
    waitUntil([this] { return VornOS::Create()->GetCurrentTime() > m_iLastPress; });
    m_sWritten.clear();
    m_sFailure.clear();
    clickOn(*button);
    m_iLastPress = VornOS::Create()->GetCurrentTime();

    if (m_orders.comment && !answerDialog()) {
        return false;
    }
    waitUntil([this] { return !m_sWritten.isEmpty() || !m_sFailure.isEmpty(); });
    if (!m_sFailure.isEmpty()) {
        return complain(m_sFailure);
    }
    if (m_sWritten.isEmpty()) {
        return complain(tr("The report has not arrived."));
    }
    QTextStream(stdout) << QDir::toNativeSeparators(m_sWritten) << '\n';
    return QFileInfo(m_sWritten).size() > 0 || complain(tr("The report is empty."));
}

bool Operator::answerDialog()
{
    QWidget* const dialog = openCommentDialog();
    if (!dialog) {
        return complain(tr("The comment dialog has not appeared."));
    }
    letApplicationLive(0);
    if (!m_orders.comment->isEmpty()) {
        typeInto(*dialog->findChild<QTextEdit*>(QStringLiteral("m_pTextEdit")), *m_orders.comment);
    }
    const bool isSaved
        = m_orders.screenshot.isEmpty() || saveScreenshot(*dialog, dialogScreenshot(m_orders.screenshot));
    const QString button
        = m_orders.comment->isEmpty() ? QStringLiteral("m_pNoCommentButton") : QStringLiteral("m_pSaveButton");
    clickOn(*dialog->findChild<QPushButton*>(button));
    return isSaved;
}

/// An empty path means that no picture is wanted.
bool Operator::saveScreenshot(QWidget& widget, const QString& path)
{
    letApplicationLive(0);
    return path.isEmpty() || widget.grab().save(path, "PNG") || complain(tr("Cannot write %1.").arg(path));
}

/// Gives false, to be passed on.
bool Operator::complain(const QString& complaint) const
{
    QTextStream(stderr) << complaint << '\n';
    return false;
}
