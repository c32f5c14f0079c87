#include <QtTest>

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>

#include "panelscene.h"

/// What an operator does on the panel, and what the panel says to it.
class TestPanelWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void theValuesAreShown();
    void theDirectoryIsShownBeforeTheFirstPress();
    void aPressIsTold();
    void theMenuPressesTheButton();
    void theShortcutWorksWhereverTheFocusIs();
    void tabGoesOnFromTheButton();
    void everyKeyIsThatOfOneThing_data();
    void everyKeyIsThatOfOneThing();

    void aMissingPathIsNamed_data();
    void aMissingPathIsNamed();
    void aBrokenSchemaIsExplained_data();
    void aBrokenSchemaIsExplained();

    void aDialogSaysWhichReportItIsOf();
    void noDialogHidesAnother();
    void aReportThatIsNotSavedIsKept();
    void quittingAsksWhenReportsWouldBeLost_data();
    void quittingAsksWhenReportsWouldBeLost();
    void quittingWithoutLossAsksNothing();

    void theLanguageChangesEverythingAtOnce();
    void qtSpeaksTheLanguageToo();
    void choicesAreRemembered();
    void anotherDirectoryTakesTheNextReports();

    void theWindowFitsItsScreen_data();
    void theWindowFitsItsScreen();
};

namespace {

constexpr QSize Smallest(800, 560);

/// Speaks a language for as long as it lives.
class Spoken
{
public:
    explicit Spoken(const QString& language) { PanelWindow::Speak(language); }
    ~Spoken() { PanelWindow::Speak(QStringLiteral("en")); }
    static bool IsPossible()
    {
        return QFile::exists(QCoreApplication::applicationDirPath()
                             + QStringLiteral("/translations/MeasurementPanel_de.qm"));
    }

private:
    Q_DISABLE_COPY(Spoken)
};

void addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const char* const language : {"en", "de", "fr"}) {
        QTest::newRow(language) << QString::fromLatin1(language);
    }
}

/// The key of a text such as "&Open"; empty when it has none.
QString keyOf(const QString& text)
{
    return QKeySequence::mnemonic(text).toString();
}

QStringList keysIn(const PanelWindow& window)
{
    QStringList keys;
    const QList<QAction*> menus = window.menuBar()->actions();
    for (const QAction* const menu : menus) {
        keys.append(keyOf(menu->text()));
    }
    const auto buttons = window.findChildren<QAbstractButton*>();
    for (const QAbstractButton* const button : buttons) {
        keys.append(keyOf(button->text()));
    }
    const auto labels = window.findChildren<QLabel*>();
    for (const QLabel* const label : labels) {
        keys.append(label->buddy() ? keyOf(label->text()) : QString());
    }
    const auto* const tabs = window.findChild<QTabBar*>();
    for (int tab = 0; tab < tabs->count(); ++tab) {
        keys.append(keyOf(tabs->tabText(tab)));
    }
    keys.removeAll(QString());
    keys.sort();
    return keys;
}

} // namespace

void TestPanelWindow::cleanup()
{
    forgetDialogs();
}

void TestPanelWindow::theValuesAreShown()
{
    PanelScene scene;
    const SimulatedReceiver& receiver = scene.Receiver();
    for (const char* const value :
         {"Receiver/Frequency", "Receiver/Bandwidth", "Receiver/Level", "DirectionFinder/Azimuth"}) {
        QVERIFY2(scene.LabelText("values").contains(receiver.TextOf(value)), value);
    }
    scene.Receiver().MeasureNextChannel();
    QVERIFY(scene.LabelText("values").contains(QLatin1String("121.5 MHz")));
    QVERIFY(scene.LabelText("values").contains(QLatin1String("no bearing")));
}

void TestPanelWindow::theDirectoryIsShownBeforeTheFirstPress()
{
    const PanelScene scene;
    QCOMPARE(scene.Find<QLineEdit>("reportDirectory")->text(), QDir::toNativeSeparators(scene.Reports()));
    QVERIFY(scene.Find<QLineEdit>("reportDirectory")->isVisible());
}

void TestPanelWindow::aPressIsTold()
{
    PanelScene scene;
    scene.Press();
    QTRY_COMPARE(scene.Rows(), 1);
    const QString path = scene.OnlyReport();
    QTRY_COMPARE(scene.LabelText("reportSentence"),
                 QStringLiteral("Report %1 is written.").arg(QFileInfo(path).fileName()));
    QCOMPARE(scene.LabelText("reportPath"), QDir::toNativeSeparators(path));

    scene.Press();
    QTRY_COMPARE(scene.Rows(), 2);
    QCOMPARE(scene.Written().size(), 2);
}

void TestPanelWindow::theMenuPressesTheButton()
{
    PanelScene scene;
    QAction* const makeReport = scene.Window().menuBar()->actions().constFirst()->menu()->actions().constFirst();
    QCOMPARE(makeReport->text().section(QLatin1Char('\t'), 0, 0), QStringLiteral("&Make a report"));
    QVERIFY(makeReport->text().endsWith(scene.Button().shortcut().toString(QKeySequence::NativeText)));
    const QSignalSpy presses(&scene.Button(), &QAbstractButton::clicked);
    makeReport->trigger();
    QCOMPARE(presses.count(), 1);
    QCOMPARE(scene.Written().size(), 1);

    QVERIFY(scene.RemoveReports());
    scene.Look();
    QVERIFY(!makeReport->isEnabled());
}

void TestPanelWindow::theShortcutWorksWhereverTheFocusIs()
{
    PanelScene scene;
    QApplication::setActiveWindow(&scene.Window());
    QVERIFY(QTest::qWaitForWindowActive(&scene.Window()));
    int presses = 0;
    for (const char* const name : {"reportList", "reportPage", "askForComment", "reportDirectory"}) {
        auto* const widget = scene.Find<QWidget>(name);
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_F10, Qt::ShiftModifier);
        ++presses;
        QTRY_COMPARE(scene.Rows(), presses);
    }
    QVERIFY(!QApplication::activePopupWidget());
}

void TestPanelWindow::tabGoesOnFromTheButton()
{
    PanelScene scene;
    const QTemporaryDir folder;
    QApplication::setActiveWindow(&scene.Window());
    QVERIFY(QTest::qWaitForWindowActive(&scene.Window()));
    for (int times = 0; times < 2; ++times) {
        scene.Button().setFocus();
        for (const char* const name : {"askForComment", "reportDirectory"}) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(name));
        }
        scene.Window().UseReportDirectory(folder.path()); // which makes another button
    }
}

void TestPanelWindow::everyKeyIsThatOfOneThing_data()
{
    addLanguages();
}

void TestPanelWindow::everyKeyIsThatOfOneThing()
{
    QFETCH(const QString, language);
    const Spoken spoken(language);
    PanelScene scene;
    QVERIFY(!keyOf(scene.Find<QCheckBox>("askForComment")->text()).isEmpty());
    QStringList keys = keysIn(scene.Window());
    const QString all = keys.join(QLatin1Char(' '));
    // "Discard" and "Open" are never offered at once, but a key that is another thing's is never one of theirs.
    QVERIFY2(keys.removeDuplicates() == 0, qPrintable(all));
}

void TestPanelWindow::aMissingPathIsNamed_data()
{
    QTest::addColumn<bool>("isSchema");
    QTest::newRow("schema") << true;
    QTest::newRow("directory") << false;
}

void TestPanelWindow::aMissingPathIsNamed()
{
    QFETCH(const bool, isSchema);
    PanelScene scene;
    QCOMPARE(scene.LabelText("missing"), QString());
    QVERIFY(isSchema ? scene.RemoveSchema() : scene.RemoveReports());
    scene.Look();
    QVERIFY(!scene.Button().isEnabled());
    QVERIFY(scene.LabelText("missing").contains(QDir::toNativeSeparators(isSchema ? scene.Schema() : scene.Reports())));

    QVERIFY(isSchema ? scene.RestoreSchema() : scene.RestoreReports());
    QEvent comingBack(QEvent::ActivationChange);
    QApplication::sendEvent(&scene.Window(), &comingBack);
    QVERIFY(scene.Button().isEnabled());
    QCOMPARE(scene.LabelText("missing"), QString());
}

void TestPanelWindow::aBrokenSchemaIsExplained_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("reason");
    QTest::newRow("English") << "en"
                             << "is not well-formed";
    QTest::newRow("German") << "de"
                            << "nicht wohlgeformt";
}

/// By the library itself: no other program is needed.
void TestPanelWindow::aBrokenSchemaIsExplained()
{
    QFETCH(const QString, language);
    QFETCH(const QString, reason);
    if (!Spoken::IsPossible()) {
        QSKIP("Built without lrelease: there are no translations.");
    }
    const Spoken spoken(language);
    PanelScene scene;
    QVERIFY(writeFile(scene.Schema(), "<xs:schema><xs:element name='a'>"));
    scene.Press();
    QTRY_VERIFY2(scene.LabelText("reportAdvice").contains(reason), qPrintable(scene.LabelText("reportAdvice")));
}

void TestPanelWindow::aDialogSaysWhichReportItIsOf()
{
    if (!Spoken::IsPossible()) {
        QSKIP("Built without lrelease: there are no translations.");
    }
    PanelScene scene;
    const QDialog* const first = scene.PressWithComment();
    const QDialog* const second = scene.PressWithComment();
    QVERIFY(first && second);
    const std::vector<ReportSupervisor::Verdict> reports = scene.Supervisor().GetReports();
    QCOMPARE(reports.size(), std::size_t(2));
    const auto title = [&reports](std::size_t report, const char* word) {
        return QStringLiteral("%1 %2, %3")
            .arg(QLatin1String(word))
            .arg(reports[report].report)
            .arg(reports[report].begun.toLocalTime().toString(QStringLiteral("hh:mm:ss.zzz")));
    };
    QCOMPARE(first->windowTitle(), title(0, "Report"));
    QCOMPARE(second->windowTitle(), title(1, "Report"));

    // The dialogs change their language too, and would go back to a title of their own.
    const Spoken spoken(QStringLiteral("fr"));
    QTRY_COMPARE(first->findChild<QPushButton*>(QStringLiteral("m_pSaveButton"))->text(),
                 QStringLiteral("Enregistrer"));
    QCOMPARE(first->windowTitle(), title(0, "Rapport"));
    QCOMPARE(second->windowTitle(), title(1, "Rapport"));
}

void TestPanelWindow::noDialogHidesAnother()
{
    PanelScene scene;
    std::vector<QRect> places;
    for (int dialog = 0; dialog < 5; ++dialog) {
        const QRect place = scene.PressWithComment()->frameGeometry();
        QVERIFY(scene.Window().screen()->availableGeometry().contains(place));
        for (const QRect& other : places) {
            QVERIFY(qAbs(place.x() - other.x()) > 20 && qAbs(place.y() - other.y()) > 20);
        }
        places.push_back(place);
    }
}

void TestPanelWindow::aReportThatIsNotSavedIsKept()
{
    PanelScene scene;
    QDialog* const dialog = scene.PressWithComment();
    typeComment(*dialog, QStringLiteral("drifts"));
    QVERIFY(scene.RemoveReports());
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("m_pSaveButton")), Qt::LeftButton);
    QTRY_VERIFY(scene.Find<QPushButton>("reportTryAgain")->isVisible());
    QVERIFY(scene.LabelText("reportSentence").contains(QLatin1String("is not saved yet")));

    QVERIFY(scene.RestoreReports());
    QTest::mouseClick(scene.Find<QPushButton>("reportTryAgain"), Qt::LeftButton);
    QVERIFY(readFile(scene.OnlyReport()).contains(QLatin1String("<Comment>drifts</Comment>")));
    QTRY_VERIFY(scene.LabelText("reportSentence").contains(QLatin1String("is written")));
}

void TestPanelWindow::quittingAsksWhenReportsWouldBeLost_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("isClosed");
    QTest::newRow("quit") << "Quit all the same" << true;
    QTest::newRow("stay") << "Stay" << false;
}

void TestPanelWindow::quittingAsksWhenReportsWouldBeLost()
{
    QFETCH(const QString, answer);
    QFETCH(const bool, isClosed);
    PanelScene scene;
    QVERIFY(scene.PressWithComment());
    QVERIFY(scene.PressWithComment());
    const Answer operatorsAnswer(answer);
    QCOMPARE(scene.Window().close(), isClosed);
    QCOMPARE(scene.Window().isVisible(), !isClosed);
    QCOMPARE(operatorsAnswer.GetQuestions(), 1);
}

void TestPanelWindow::quittingWithoutLossAsksNothing()
{
    PanelScene scene;
    scene.Press();
    const Answer answer(QStringLiteral("Stay"));
    QVERIFY(scene.Window().close());
    QCOMPARE(answer.GetQuestions(), 0);
}

void TestPanelWindow::theLanguageChangesEverythingAtOnce()
{
    if (!Spoken::IsPossible()) {
        QSKIP("Built without lrelease: there are no translations.");
    }
    PanelScene scene;
    scene.Press();
    QVERIFY(scene.RemoveReports());
    scene.Look();
    const Spoken english(QStringLiteral("en"));
    scene.Find<QAction>("language_de")->trigger();
    QTRY_COMPARE(scene.Window().windowTitle(), QStringLiteral("Messpult"));
    QCOMPARE(scene.Find<QCheckBox>("askForComment")->text().remove(QLatin1Char('&')),
             QStringLiteral("Nach Kommentar fragen"));
    QVERIFY(scene.LabelText("missing").startsWith(QLatin1String("Es kann kein Bericht")));
    QCOMPARE(scene.Button().accessibleName(), QStringLiteral("Bericht erstellen"));
    QTRY_VERIFY(scene.LabelText("reportSentence").startsWith(QLatin1String("Bericht ")));

    scene.Find<QAction>("language_en")->trigger();
    QTRY_COMPARE(scene.Window().windowTitle(), QStringLiteral("Measurement Panel"));
    QCOMPARE(scene.Button().accessibleName(), QStringLiteral("To Report"));
}

void TestPanelWindow::qtSpeaksTheLanguageToo()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
    if (!QFile::exists(folder + QStringLiteral("/qtbase_de.qm"))) {
        QSKIP("Qt's own catalogues are not installed.");
    }
    const Spoken spoken(QStringLiteral("de"));
    const QMessageBox question(QMessageBox::Warning, QString(), QString(), QMessageBox::Yes | QMessageBox::Cancel);
    QCOMPARE(question.button(QMessageBox::Yes)->text(), QStringLiteral("&Ja"));
    QCOMPARE(question.button(QMessageBox::Cancel)->text(), QStringLiteral("Abbrechen"));
}

void TestPanelWindow::choicesAreRemembered()
{
    const QTemporaryDir folder;
    PanelScene scene;
    const Spoken english(QStringLiteral("en"));
    scene.Find<QCheckBox>("askForComment")->setChecked(true);
    scene.Window().UseReportDirectory(folder.path());
    QCOMPARE(scene.Settings().value(QStringLiteral("reports")).toString(), folder.path());
    if (auto* const french = scene.Find<QAction>("language_fr")) {
        french->trigger();
        QCOMPARE(scene.Settings().value(QStringLiteral("language")).toString(), QStringLiteral("fr"));
    }
    const PanelWindow again(scene.Receiver(), scene.Supervisor(), scene.Settings(), scene.Schema(), scene.Reports());
    QVERIFY(again.findChild<QCheckBox*>(QStringLiteral("askForComment"))->isChecked());
}

void TestPanelWindow::anotherDirectoryTakesTheNextReports()
{
    const QTemporaryDir folder;
    PanelScene scene;
    scene.Press();
    const auto inToolBar = scene.Window().findChild<QToolBar*>()->actions().size();
    scene.Window().UseReportDirectory(folder.path());
    QCOMPARE(scene.Window().findChild<QToolBar*>()->actions().size(), inToolBar);
    QCOMPARE(scene.Find<QLineEdit>("reportDirectory")->text(), QDir::toNativeSeparators(folder.path()));
    scene.Press();
    QCOMPARE(scene.Written().size(), 1);
    QCOMPARE(QDir(folder.path()).entryList({QStringLiteral("*.xml")}).size(), 1);
    QTRY_VERIFY(scene.LabelText("reportPath").startsWith(QDir::toNativeSeparators(folder.path())));
}

void TestPanelWindow::theWindowFitsItsScreen_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("dpi");
    for (const char* const language : {"en", "de", "fr"}) {
        for (const int dpi : {96, 144, 192}) {
            QTest::addRow("%s-%d-dpi", language, dpi) << QString::fromLatin1(language) << dpi;
        }
    }
}

/// Letters half as large again must do with the same; only those twice as large get more, as in the report panel.
void TestPanelWindow::theWindowFitsItsScreen()
{
    QFETCH(const QString, language);
    QFETCH(const int, dpi);
    const QFont usual = QApplication::font();
    QFont font = usual;
    font.setPointSizeF(usual.pointSizeF() * dpi / 96);
    QApplication::setFont(font);
    const auto restore = qScopeGuard([usual] { QApplication::setFont(usual); });
    const Spoken spoken(language);

    PanelScene scene;
    const QSize screen = scene.Window().screen()->availableSize();
    QVERIFY(scene.Window().width() <= screen.width() && scene.Window().height() <= screen.height());
    scene.Press();
    for (const QSize& size : {dpi > 144 ? Smallest * dpi / 96 : Smallest, QSize(1366, 768), QSize(3840, 2160)}) {
        if (size.width() < Smallest.width() * dpi / 96) {
            continue;
        }
        scene.Window().resize(size);
        QCoreApplication::processEvents();
        QCOMPARE(scene.Window().size(), size);
        QVERIFY(scene.Find<QTableView>("reportList")->height() > 3 * QFontMetrics(font).height());
        QVERIFY(!scene.Find<QWidget>("qt_toolbar_ext_button")->isVisible()); // everything in the tool bar is seen
    }
}

QTEST_MAIN(TestPanelWindow)

#include "tst_panelwindow.moc"
