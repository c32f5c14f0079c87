#include <QtTest>

#include <algorithm>
#include <cstdio>

#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTableView>
#include <QTextEdit>
#include <QToolButton>
#include <QToolTip>
#include <QWindow>

#include "panelscene.h"

/// An operator at a real screen: keys and the mouse are those of an X server, sent by xdotool from outside of the
/// program.
///
/// The program starts a server of its own, so it can run beside others and needs no screen. There is no window manager:
/// the operator points at the window that is to have the keyboard.
class TestOnScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void aClickWritesAReport();
    void theShortcutBeatsTheContextMenu_data();
    void theShortcutBeatsTheContextMenu();
    void aCommentIsTypedAndSavedByKeys();
    void tabGoesFromTheTextOverTheButtons();
    void escapeAsksAboutATypedComment();
    void quittingAsksForTheOpenDialogs();
    void aReportGoesToTheFullDiskLater();
    void theLanguageIsChosenInTheMenu();
};

namespace {

QString missingTool; ///< why nothing can be tested; empty when it can

/// Runs the tool while the application lives: it shall see what the tool does.
bool xdotool(const QStringList& arguments)
{
    QProcess tool;
    tool.start(QStringLiteral("xdotool"), arguments);
    return QTest::qWaitFor([&tool] { return tool.state() == QProcess::NotRunning; }, 20000) && tool.exitCode() == 0;
}

/// Gives the keyboard to a window, as a click on its frame does where there is a window manager.
bool pointAt(const QWidget& window)
{
    return xdotool({QStringLiteral("windowfocus"), QStringLiteral("--sync"), QString::number(window.winId())})
        && QTest::qWaitFor([&window] { return window.isActiveWindow(); });
}

bool pressKeys(const char* keys)
{
    return xdotool({QStringLiteral("key"), QString::fromLatin1(keys)});
}

bool typeText(const char* text)
{
    return xdotool({QStringLiteral("type"), QString::fromLatin1(text)});
}

/// The server does one after the other: a pointer that need not move is nothing to wait for.
bool pointTo(const QWidget& widget, const QStringList& andThen = QStringList())
{
    const QPoint place = widget.mapToGlobal(widget.rect().center());
    return xdotool(QStringList {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())}
                   + andThen);
}

bool clickOn(const QWidget& widget)
{
    return pointTo(widget, {QStringLiteral("click"), QStringLiteral("1")});
}

/// Clicks on a button of the next question. Questions keep the program inside of what has brought them up, so the click
/// has to be prepared before.
class ScreenAnswer
{
public:
    explicit ScreenAnswer(const QString& button)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, button] {
            const auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (question && question->windowHandle()->isExposed()) {
                click(*question, button);
            }
        });
        m_timer.start(50);
    }
    ~ScreenAnswer() { m_tool.waitForFinished(); }
    bool WasAsked() const { return !m_timer.isActive(); }

private:
    Q_DISABLE_COPY(ScreenAnswer)

    void click(const QMessageBox& question, const QString& text)
    {
        const QList<QAbstractButton*> buttons = question.buttons();
        for (const QAbstractButton* const button : buttons) {
            if (button->text().remove(QLatin1Char('&')) == text) {
                m_timer.stop();
                const QPoint place = button->mapToGlobal(button->rect().center());
                m_tool.start(QStringLiteral("xdotool"),
                             {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y()),
                              QStringLiteral("click"), QStringLiteral("1")});
            }
        }
    }

    QTimer m_timer;
    QProcess m_tool;
};

/// A scene whose window is in the corner of the screen, drawn, and has the keyboard.
class ScreenScene : public PanelScene
{
public:
    ScreenScene()
    {
        Window().move(0, 0);
        QApplication::setDoubleClickInterval(0); // Clicks may follow each other fast, and each counts.
        m_isReady = QTest::qWaitForWindowExposed(&Window()) && pointAt(Window());
    }
    bool IsReady() const { return m_isReady; }

    /// Opens a comment dialog by a click, beside the button.
    QWidget* OpenDialog()
    {
        if (!Find<QWidget>("askForComment")->property("checked").toBool()
            && !clickOn(*Find<QWidget>("askForComment"))) {
            return nullptr;
        }
        const QDialog* const before = LastDialog();
        if (!clickOn(Button()) || !QTest::qWaitFor([&] { return LastDialog() && LastDialog() != before; })) {
            return nullptr;
        }
        QDialog* const dialog = LastDialog();
        return QTest::qWaitForWindowExposed(dialog) && pointAt(*dialog) ? dialog : nullptr;
    }

private:
    bool m_isReady = false;
};

} // namespace

void TestOnScreen::initTestCase()
{
    if (!missingTool.isEmpty()) {
        QSKIP(qPrintable(missingTool));
    }
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
}

void TestOnScreen::cleanup()
{
    forgetDialogs();
}

void TestOnScreen::aClickWritesAReport()
{
    ScreenScene scene;
    QVERIFY(scene.IsReady());
    QVERIFY(clickOn(scene.Button()));
    QTRY_COMPARE(scene.Written().size(), 1);
    QTRY_COMPARE(scene.LabelText("reportSentence"),
                 QStringLiteral("Report %1 is written.").arg(scene.Written().constFirst()));

    QVERIFY(clickOn(*scene.Find<QPushButton>("reportCopyPath")));
    QTRY_VERIFY(QGuiApplication::clipboard()->text().endsWith(scene.Written().constFirst()));
}

void TestOnScreen::theShortcutBeatsTheContextMenu_data()
{
    QTest::addColumn<QString>("focus");
    for (const char* const widget : {"reportPage", "reportList", "reportDirectory"}) {
        QTest::newRow(widget) << QString::fromLatin1(widget);
    }
}

void TestOnScreen::theShortcutBeatsTheContextMenu()
{
    QFETCH(QString, focus);
    ScreenScene scene;
    QVERIFY(scene.IsReady());
    scene.Find<QWidget>(qPrintable(focus))->setFocus();
    QVERIFY(pressKeys("shift+F10"));
    QTRY_COMPARE(scene.Rows(), 1);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(scene.Written().size(), 1);
}

void TestOnScreen::aCommentIsTypedAndSavedByKeys()
{
    ScreenScene scene;
    QVERIFY(scene.IsReady());
    QWidget* const dialog = scene.OpenDialog();
    QVERIFY(dialog);
    QTRY_VERIFY(scene.LabelText("reportSentence").endsWith(QLatin1String("waits for its comment.")));

    QVERIFY(typeText("drifts")); // nobody has clicked into the text
    QVERIFY(pressKeys("Return"));
    QVERIFY(typeText("and fades"));
    QVERIFY(pressKeys("ctrl+Return"));
    QTRY_VERIFY(!dialog->isVisible());
    QTRY_VERIFY(scene.LabelText("reportSentence").endsWith(QLatin1String("is written.")));
    QVERIFY(readFile(scene.OnlyReport()).contains(QLatin1String("<Comment>drifts\nand fades</Comment>")));
}

void TestOnScreen::tabGoesFromTheTextOverTheButtons()
{
    ScreenScene scene;
    QVERIFY(scene.IsReady());
    const QWidget* const dialog = scene.OpenDialog();
    QVERIFY(dialog);
    for (const char* const name : {"m_pTextEdit", "m_pSaveButton", "m_pNoCommentButton", "m_pTextEdit"}) {
        QTRY_COMPARE(dialog->focusWidget()->objectName(), QLatin1String(name));
        QVERIFY(pressKeys("Tab"));
    }
    QTRY_COMPARE(dialog->focusWidget()->objectName(), QStringLiteral("m_pSaveButton"));
    QVERIFY(pressKeys("Tab"));
    QVERIFY(pressKeys("space"));
    QTRY_VERIFY(!dialog->isVisible());
    QCOMPARE(scene.Written().size(), 1);
}

void TestOnScreen::escapeAsksAboutATypedComment()
{
    ScreenScene scene;
    QVERIFY(scene.IsReady());
    const QWidget* const dialog = scene.OpenDialog();
    QVERIFY(dialog);
    QVERIFY(typeText("drifts"));
    const ScreenAnswer answer(QStringLiteral("Yes"));
    QVERIFY(pressKeys("Escape"));
    QTRY_VERIFY(!dialog->isVisible());
    QVERIFY(answer.WasAsked());
    QTRY_COMPARE(scene.Written().size(), 1);
    QVERIFY(readFile(scene.OnlyReport()).contains(QLatin1String("<Comment>drifts</Comment>")));
}

void TestOnScreen::quittingAsksForTheOpenDialogs()
{
    ScreenScene scene;
    QVERIFY(scene.IsReady());
    QVERIFY(scene.OpenDialog());
    QVERIFY(scene.OpenDialog());
    {
        const ScreenAnswer answer(QStringLiteral("Stay"));
        QVERIFY(pointAt(scene.Window()));
        QVERIFY(pressKeys("ctrl+q"));
        QTRY_VERIFY(answer.WasAsked());
    }
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QVERIFY(scene.Window().isVisible());
    QCOMPARE(openDialogs().size(), 2);

    const ScreenAnswer answer(QStringLiteral("Quit all the same"));
    QVERIFY(pointAt(scene.Window()));
    QVERIFY(pressKeys("ctrl+q"));
    QTRY_VERIFY(!scene.Window().isVisible());
    QCOMPARE(scene.Written().size(), 0);
}

void TestOnScreen::aReportGoesToTheFullDiskLater()
{
    ScreenScene scene;
    QVERIFY(scene.IsReady());
    {
        QVERIFY(pointTo(scene.Button()));
        const FullDisk disk;
        QVERIFY(xdotool({QStringLiteral("click"), QStringLiteral("1")}));
        QTRY_VERIFY(scene.LabelText("reportSentence").contains(QLatin1String("is not saved yet")));
    }
    QVERIFY(pressKeys("alt+t")); // "Try again"
    QTRY_COMPARE(scene.Written().size(), 1);
    QTRY_VERIFY(scene.LabelText("reportSentence").endsWith(QLatin1String("is written.")));
}

void TestOnScreen::theLanguageIsChosenInTheMenu()
{
    ScreenScene scene;
    QVERIFY(scene.IsReady());
    if (!scene.Find<QAction>("language_de")) {
        QSKIP("Built without lrelease: there are no translations.");
    }
    // Each menu by its letter; German goes first in the list, and is pointed at when the list opens.
    QVERIFY(pressKeys("alt+n"));
    QTRY_VERIFY(QApplication::activePopupWidget());
    QVERIFY(pressKeys("l"));
    const QObject* const menu = scene.Find<QAction>("language_de")->parent();
    QTRY_VERIFY(QApplication::activePopupWidget() == menu);
    QVERIFY(pressKeys("Return"));
    QTRY_COMPARE(scene.Window().windowTitle(), QStringLiteral("Messpult"));
    PanelWindow::Speak(QStringLiteral("en"));
}

namespace {

/// Starts a server that chooses its own number and tells it; gives that number, empty when it has not started.
QByteArray startServer(QProcess& server)
{
    server.start(QStringLiteral("Xvfb"),
                 {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                  QStringLiteral("1400x1000x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                  QStringLiteral("-terminate")}); // with its last client, however that ends
    return server.waitForStarted() && server.waitForReadyRead() ? server.readLine().trimmed() : QByteArray();
}

} // namespace

int main(int argc, char* argv[])
{
    QProcess server;
    for (const char* const tool : {"Xvfb", "xdotool"}) {
        if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty()) {
            missingTool = QStringLiteral("%1 is missing: there is no screen to drive.").arg(QLatin1String(tool));
        }
    }
    if (missingTool.isEmpty()) {
        const QByteArray display = startServer(server);
        if (display.isEmpty()) {
            std::fprintf(stderr, "Xvfb has not started.\n");
            return 1;
        }
        qputenv("DISPLAY", ':' + display);
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    int result = 0;
    {
        QApplication application(argc, argv);
        TestOnScreen test;
        result = QTest::qExec(&test, argc, argv);
    }
    server.terminate();
    server.waitForFinished();
    return result;
}

#include "tst_onscreen.moc"
