#include <QtTest>

#include <QAction>
#include <QClipboard>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>
#include <QToolButton>

#include "languages.h"
#include "panelscene.h"
#include "panelsettings.h"

/// What an operator does on the panel, and what the panel says to it.
class TestPanelOperation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void everyReportStandsInTheList();
    void theMessageStays();
    void theListBringsAnEarlierMessageBack();
    void theMessageOffersTheFile();
    void theMessageSaysWhatToDo();
    void aFullDiskIsTold();

    void aDisabledButtonSaysWhichPathIsMissing_data();
    void aDisabledButtonSaysWhichPathIsMissing();
    void theButtonFollowsItsPathsWithinASecond();

    void quittingAsksOnceForAllDialogs_data();
    void quittingAsksOnceForAllDialogs();
    void goingThroughThemEndsTheProgramAfterTheLast();
    void goingThroughThemStopsAtAReportThatIsNotSaved();
    void savingAllStaysWhenAReportIsNotSaved();
    void quittingWithoutDialogsAsksNothing();

    void theLanguageChangesEverythingAtOnce();
    void openDialogsChangeTheirLanguageToo();
    void choicesAreRemembered();
    void anotherDirectoryTakesTheNextReports();

    void theShortcutWorksWhereverTheFocusIs();
    void theButtonHasACrispPicture();
};

namespace {

const QString translations = QStringLiteral(MEASUREMENTPANEL_TRANSLATIONS);

/// Catches what would be opened by the desktop.
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Open"); }
    ~Desktop() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QStringList opened;

public Q_SLOTS:
    void Open(const QUrl& url) { opened.append(url.toLocalFile()); }

private:
    Q_DISABLE_COPY(Desktop)
};

void click(QPushButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

} // namespace

void TestPanelOperation::cleanup()
{
    forgetDialogs();
}

void TestPanelOperation::everyReportStandsInTheList()
{
    PanelScene scene;
    scene.Press();
    QWidget* const dialog = scene.PressWithComment();
    QVERIFY(dialog);
    QCOMPARE(scene.Verdict(0), QStringLiteral("written"));
    QCOMPARE(scene.Verdict(1), QStringLiteral("waiting for comment"));
    dialog->close();
    QCOMPARE(scene.Verdict(1), QStringLiteral("written"));

    const QAbstractItemModel* const log = scene.Find<QTableView>("sessionLog")->model();
    QCOMPARE(log->rowCount(), 2);
    QStringList files;
    for (int row = 0; row < 2; ++row) {
        files.append(log->index(row, SessionLog::File).data().toString());
        QVERIFY(QTime::fromString(log->index(row, SessionLog::Time).data().toString(), QStringLiteral("hh:mm:ss"))
                    .isValid());
    }
    files.sort();
    QCOMPARE(files, scene.Written());
}

void TestPanelOperation::theMessageStays()
{
    PanelScene scene;
    QVERIFY(scene.LabelText("messageSentence").contains(QLatin1String("No report")));
    scene.Press();
    const QString sentence = scene.LabelText("messageSentence");
    QVERIFY2(sentence.startsWith(QLatin1String("Report written: ")), qPrintable(sentence));
    QCOMPARE(scene.LabelText("messagePath"),
             QDir::toNativeSeparators(QDir(scene.Reports()).filePath(scene.Written().constFirst())));
    QVERIFY(scene.Find<QLabel>("messagePath")->isVisible());

    // Measurements go on, and the watch looks again and again.
    QVERIFY(scene.RemoveReports());
    QTRY_VERIFY(!scene.Button().isEnabled());
    QCOMPARE(scene.LabelText("messageSentence"), sentence);
}

void TestPanelOperation::theListBringsAnEarlierMessageBack()
{
    PanelScene scene;
    scene.Press();
    const QString first = scene.LabelText("messageSentence");
    QTest::qWait(2); // reports are named after the millisecond
    scene.Press();
    QVERIFY(scene.LabelText("messageSentence") != first);
    scene.Find<QTableView>("sessionLog")->selectRow(0);
    QCOMPARE(scene.LabelText("messageSentence"), first);
}

void TestPanelOperation::theMessageOffersTheFile()
{
    PanelScene scene;
    Desktop desktop;
    QVERIFY(!scene.Find<QPushButton>("openReport")->isEnabled());
    scene.Press();
    const QString path = QDir(scene.Reports()).filePath(scene.Written().constFirst());

    click(scene.Find<QPushButton>("openReport"));
    click(scene.Find<QPushButton>("showInFolder"));
    QCOMPARE(desktop.opened, (QStringList {path, scene.Reports()}));
    click(scene.Find<QPushButton>("copyPath"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QDir::toNativeSeparators(path));
}

void TestPanelOperation::theMessageSaysWhatToDo()
{
    PanelScene scene;
    QWidget* const dialog = scene.PressWithComment();
    QVERIFY(scene.RemoveReports());
    typeComment(*dialog, QStringLiteral("drifts"));
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Return, Qt::ControlModifier);
    if (dialog->isVisible()) { // offscreen, the dialog may not be the active window, whose shortcuts work
        click(dialog->findChild<QPushButton*>(QStringLiteral("m_pSaveButton")));
    }
    QCOMPARE(scene.LabelText("messageSentence"),
             QStringLiteral("Report 1 could not be written: the report directory is gone."));
    QVERIFY(scene.LabelText("messageAdvice").contains(QDir::toNativeSeparators(scene.Reports())));
    QVERIFY(scene.LabelText("messageAdvice").contains(QLatin1String("open the comment dialog again")));

    // And doing it helps: the comment and the values are still there.
    QVERIFY(scene.RestoreReports());
    QVERIFY(scene.Find<QPushButton>("openDialog")->isVisible());
    click(scene.Find<QPushButton>("openDialog"));
    QVERIFY(dialog->isVisible());
    click(dialog->findChild<QPushButton*>(QStringLiteral("m_pSaveButton")));
    QVERIFY(scene.LabelText("messageSentence").startsWith(QLatin1String("Report written: ")));
    QVERIFY(!scene.Find<QPushButton>("openDialog")->isVisible());
    QVERIFY(readFile(scene.LabelText("messagePath")).contains(QLatin1String("<Comment>drifts</Comment>")));
}

void TestPanelOperation::aFullDiskIsTold()
{
    if (!FullDisk::IsPossible()) {
        QSKIP("A full disk can only be feigned on Unix.");
    }
    PanelScene scene;
    const QSignalSpy failed(&scene.Window(), &PanelWindow::ReportFailed);
    {
        const FullDisk disk;
        scene.Press();
    }
    QCOMPARE(failed.count(), 1);
    QVERIFY(scene.LabelText("messageSentence").contains(QLatin1String("the disk is full")));
    QVERIFY(scene.LabelText("messageAdvice").contains(QLatin1String("Make room")));
    QCOMPARE(scene.Verdict(0), QStringLiteral("not saved: disk full"));
}

void TestPanelOperation::aDisabledButtonSaysWhichPathIsMissing_data()
{
    QTest::addColumn<bool>("isSchemaMissing");
    QTest::addColumn<bool>("isDirectoryMissing");
    QTest::newRow("schema") << true << false;
    QTest::newRow("directory") << false << true;
    QTest::newRow("both") << true << true;
}

void TestPanelOperation::aDisabledButtonSaysWhichPathIsMissing()
{
    QFETCH(bool, isSchemaMissing);
    QFETCH(bool, isDirectoryMissing);
    PanelScene scene;
    const QString ownToolTip = scene.Button().toolTip();
    QVERIFY(!isSchemaMissing || scene.RemoveSchema());
    QVERIFY(!isDirectoryMissing || scene.RemoveReports());

    QTRY_VERIFY(!scene.Button().isEnabled());
    const QString schema = QDir::toNativeSeparators(scene.Schema());
    const QString directory = QDir::toNativeSeparators(scene.Reports());
    const auto places = {scene.Button().toolTip(), scene.LabelText("availability")};
    for (const QString& text : places) {
        QTRY_COMPARE(text.contains(schema), isSchemaMissing);
        QCOMPARE(text.contains(directory), isDirectoryMissing);
    }
    QVERIFY(scene.Button().toolTip().startsWith(ownToolTip));
    QCOMPARE(scene.Button().accessibleName(), QStringLiteral("To Report"));

    QVERIFY(!isSchemaMissing || scene.RestoreSchema());
    QVERIFY(!isDirectoryMissing || scene.RestoreReports());
    QTRY_VERIFY(scene.Button().isEnabled());
    QTRY_COMPARE(scene.Button().toolTip(), ownToolTip);
}

void TestPanelOperation::theButtonFollowsItsPathsWithinASecond()
{
    constexpr int second = 1000;
    PanelScene scene;
    QVERIFY(scene.Button().isEnabled());
    for (int i = 0; i < 3; ++i) {
        QVERIFY(scene.RemoveReports());
        QTRY_VERIFY_WITH_TIMEOUT(!scene.Button().isEnabled(), second);
        QVERIFY(scene.RestoreReports());
        QTRY_VERIFY_WITH_TIMEOUT(scene.Button().isEnabled(), second);
        QVERIFY(scene.RemoveSchema());
        QTRY_VERIFY_WITH_TIMEOUT(!scene.Button().isEnabled(), second);
        QVERIFY(scene.RestoreSchema());
        QTRY_VERIFY_WITH_TIMEOUT(scene.Button().isEnabled(), second);
    }
}

void TestPanelOperation::quittingAsksOnceForAllDialogs_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("isClosed");
    QTest::addColumn<int>("written");
    QTest::addColumn<int>("stillOpen");

    QTest::newRow("save-all-without-comment") << "Save all without comment" << true << 2 << 0;
    QTest::newRow("go-through-them") << "Go through them" << false << 0 << 2;
    QTest::newRow("stay") << "Stay" << false << 0 << 2;
}

void TestPanelOperation::quittingAsksOnceForAllDialogs()
{
    QFETCH(QString, answer);
    QFETCH(bool, isClosed);
    QFETCH(int, written);
    QFETCH(int, stillOpen);
    PanelScene scene;
    typeComment(*scene.PressWithComment(), QStringLiteral("drifts"));
    QTest::qWait(2); // reports are named after the millisecond
    QVERIFY(scene.PressWithComment());

    const Answer operatorsAnswer(answer);
    QCOMPARE(scene.Window().close(), isClosed);
    QCOMPARE(operatorsAnswer.GetQuestions(), 1);
    QCOMPARE(scene.Window().isVisible(), !isClosed);
    QCOMPARE(scene.Written().size(), written);
    QCOMPARE(openDialogs().size(), stillOpen);
}

void TestPanelOperation::goingThroughThemEndsTheProgramAfterTheLast()
{
    PanelScene scene;
    QWidget* const first = scene.PressWithComment();
    QTest::qWait(2); // reports are named after the millisecond
    QWidget* const second = scene.PressWithComment();
    const Answer answer(QStringLiteral("Go through them"));
    QVERIFY(!scene.Window().close());

    first->close();
    QTRY_COMPARE(openDialogs(), QList<QWidget*> {second});
    QVERIFY(scene.Window().isVisible());
    second->close();
    QTRY_VERIFY(!scene.Window().isVisible());
    QCOMPARE(scene.Written().size(), 2);
    QCOMPARE(answer.GetQuestions(), 1);
}

void TestPanelOperation::goingThroughThemStopsAtAReportThatIsNotSaved()
{
    PanelScene scene;
    QWidget* const dialog = scene.PressWithComment();
    {
        const Answer answer(QStringLiteral("Go through them"));
        QVERIFY(!scene.Window().close());
    }
    QVERIFY(scene.RemoveReports());
    dialog->close();
    QCoreApplication::processEvents();
    QVERIFY(scene.Window().isVisible());
    QVERIFY(scene.LabelText("messageSentence").contains(QLatin1String("directory is gone")));
}

void TestPanelOperation::savingAllStaysWhenAReportIsNotSaved()
{
    PanelScene scene;
    QVERIFY(scene.PressWithComment());
    QVERIFY(scene.RemoveReports());
    const Answer answer(QStringLiteral("Save all without comment"));
    QVERIFY(!scene.Window().close());
    QVERIFY(scene.Window().isVisible());
    QVERIFY(scene.LabelText("messageSentence").contains(QLatin1String("directory is gone")));
}

void TestPanelOperation::quittingWithoutDialogsAsksNothing()
{
    PanelScene scene;
    scene.Press();
    const Answer answer(QStringLiteral("Stay"));
    QVERIFY(scene.Window().close());
    QCOMPARE(answer.GetQuestions(), 0);
}

void TestPanelOperation::theLanguageChangesEverythingAtOnce()
{
    Languages languages(translations);
    if (languages.GetAvailable().size() == 1) {
        QSKIP("Built without lrelease: there are no translations.");
    }
    PanelScene scene;
    scene.Window().OfferLanguages(languages);
    scene.Press();
    QVERIFY(scene.RemoveReports());
    QTRY_VERIFY(!scene.Button().isEnabled());

    auto* const german = scene.Window().findChild<QAction*>(QStringLiteral("language_de"));
    QVERIFY(german);
    german->trigger();
    QCoreApplication::processEvents();
    QCOMPARE(scene.Window().windowTitle(), QStringLiteral("Messpult"));
    QCOMPARE(scene.Verdict(0), QStringLiteral("geschrieben"));
    QVERIFY(scene.LabelText("messageSentence").startsWith(QLatin1String("Bericht geschrieben: ")));
    QVERIFY(scene.LabelText("lastPress").startsWith(QLatin1String("Bericht geschrieben: ")));
    QVERIFY(scene.LabelText("availability").contains(QLatin1String("Das Berichtsverzeichnis fehlt")));
    QVERIFY2(
        scene.Button().toolTip().startsWith(QLatin1String("Bericht erstellen (Shift+F10)\nDas Berichtsverzeichnis")),
        qPrintable(scene.Button().toolTip()));
    QCOMPARE(scene.Button().accessibleName(), QStringLiteral("Bericht erstellen"));
    QCOMPARE(scene.Find<QTableView>("sessionLog")->model()->headerData(2, Qt::Horizontal).toString(),
             QStringLiteral("Befund"));

    scene.Window().findChild<QAction*>(QStringLiteral("language_en"))->trigger();
    QCoreApplication::processEvents();
    QCOMPARE(scene.Window().windowTitle(), QStringLiteral("Measurement Panel"));
    QCOMPARE(scene.Button().accessibleName(), QStringLiteral("To Report"));
}

void TestPanelOperation::openDialogsChangeTheirLanguageToo()
{
    Languages languages(translations);
    if (languages.GetAvailable().size() == 1) {
        QSKIP("Built without lrelease: there are no translations.");
    }
    PanelScene scene;
    const QWidget* const dialog = scene.PressWithComment();
    const auto* const save = dialog->findChild<QPushButton*>(QStringLiteral("m_pSaveButton"));
    QCOMPARE(save->text(), QStringLiteral("Save"));
    languages.Use(QStringLiteral("fr"));
    QCoreApplication::processEvents();
    QCOMPARE(save->text(), QStringLiteral("Enregistrer"));
    QCOMPARE(dialog->findChild<QLabel*>(QStringLiteral("m_pFrequencyLabel"))->text(), QStringLiteral("98.5 MHz"));
    languages.Use(QStringLiteral("en"));
}

void TestPanelOperation::choicesAreRemembered()
{
    const QTemporaryDir folder;
    PanelSettings settings(folder.filePath(QStringLiteral("settings.ini")));
    Languages languages(translations);
    PanelScene scene;
    scene.Window().OfferLanguages(languages);
    scene.Window().Remember(settings);

    scene.Window().AskForComment(true);
    QVERIFY(settings.GetAskForComment());
    scene.Window().UseSchema(scene.Schema());
    QCOMPARE(settings.GetSchema(), scene.Schema());
    scene.Window().UseReportDirectory(folder.path());
    QCOMPARE(settings.GetReportDirectory(), folder.path());
    if (auto* const french = scene.Window().findChild<QAction*>(QStringLiteral("language_fr"))) {
        french->trigger();
        QCOMPARE(settings.GetLanguage(), QStringLiteral("fr"));
        languages.Use(QStringLiteral("en"));
    }
}

void TestPanelOperation::anotherDirectoryTakesTheNextReports()
{
    const QTemporaryDir folder;
    PanelScene scene;
    scene.Press();
    scene.Window().UseReportDirectory(folder.path());
    scene.Press();
    QCOMPARE(scene.Written().size(), 1);
    QCOMPARE(QDir(folder.path()).entryList({QStringLiteral("*.xml")}).size(), 1);
    QCOMPARE(scene.Verdict(1), QStringLiteral("written"));
    QVERIFY(scene.LabelText("messagePath").startsWith(QDir::toNativeSeparators(folder.path())));
}

void TestPanelOperation::theShortcutWorksWhereverTheFocusIs()
{
    PanelScene scene;
    QApplication::setActiveWindow(&scene.Window());
    QVERIFY(QTest::qWaitForWindowActive(&scene.Window()));
    int presses = 0;
    for (const char* const name : {"reportView", "sessionLog", "askForComment", "showInFolder"}) {
        auto* const widget = scene.Find<QWidget>(name);
        widget->setFocus();
        QTest::qWait(2); // reports are named after the millisecond
        QTest::keyClick(widget, Qt::Key_F10, Qt::ShiftModifier);
        ++presses;
        QTRY_COMPARE(scene.Find<QTableView>("sessionLog")->model()->rowCount(), presses);
    }
    QVERIFY(!QApplication::activePopupWidget());
}

void TestPanelOperation::theButtonHasACrispPicture()
{
#ifndef MEASUREMENTPANEL_HAS_SVG
    QSKIP("Built without Qt's SVG module: the button shows the library's own picture.");
#endif
    PanelScene scene;
    const QSize size = scene.Button().iconSize();
    // Drawn for twice the dots, not stretched: no picture of the smaller size could have this many.
    QVERIFY(scene.Button().icon().availableSizes().contains(2 * size));

    const QImage light = scene.Button().icon().pixmap(size).toImage();
    QPalette dark = scene.Window().palette();
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::ButtonText, Qt::white);
    scene.Window().setPalette(dark);
    QVERIFY(scene.Button().icon().pixmap(size).toImage() != light);
}

QTEST_MAIN(TestPanelOperation)

#include "tst_panelwindow_operation.moc"
