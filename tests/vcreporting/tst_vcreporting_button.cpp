#include <QtTest>

#include <memory>
#include <set>
#include <type_traits>

#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QMainWindow>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>
#include <QTimerEvent>
#include <QToolBar>
#include <QTranslator>

#include <basicvaluewidgets/vcbutton.h>

#include <xmlhelper/vcreporting.h>

#include "reportingscene.h"

static_assert(std::is_base_of_v<QWidget, VCReporting>, "Applications put it into a tool bar.");
static_assert(std::is_base_of_v<IXMLHelper, VCReporting>, "Report builders call it back.");
static_assert(std::has_virtual_destructor_v<VCReporting>, "Tool bars delete it.");

namespace {

/// A schema file and a report directory on disk.
class Surroundings
{
public:
    Surroundings()
    {
        MakeSchema();
        MakeDirectory();
    }

    QString Folder() const { return m_folder.path(); }
    QString Schema() const { return m_folder.filePath(QStringLiteral("schema.xsd")); }
    QString Directory() const { return m_folder.filePath(QStringLiteral("reports")); }
    void MakeSchema() const
    {
        QFile file(Schema());
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    void MakeDirectory() const { QVERIFY(QDir().mkpath(Directory())); }
    void RemoveSchema() const { QVERIFY(QFile::remove(Schema())); }
    void RemoveDirectory() const { QVERIFY(QDir(Directory()).removeRecursively()); }

    std::unique_ptr<VCReporting> MakeReporting(bool createButton = true, QToolBar* toolBar = nullptr) const
    {
        return MakeReporting(Schema(), Directory(), createButton, toolBar);
    }
    static std::unique_ptr<VCReporting> MakeReporting(const QString& schema, const QString& directory,
                                                      bool createButton = true, QToolBar* toolBar = nullptr)
    {
        return std::make_unique<VCReporting>(schema, directory, toolBar, createButton, "ToReport", false, QPixmap());
    }

private:
    Q_DISABLE_COPY(Surroundings)

    QTemporaryDir m_folder;
};

QTimer& timerOf(const VCReporting& reporting)
{
    return *reporting.findChild<QTimer*>();
}

/// Lets the watch tick, as it does when its time has come. Gives whether it was running.
bool tick(const VCReporting& reporting)
{
    QTimer& timer = timerOf(reporting);
    QTimerEvent event(timer.timerId());
    return timer.isActive() && QCoreApplication::sendEvent(&timer, &event);
}

QString withBackSlashes(QString path)
{
    return path.replace(QLatin1Char('/'), QLatin1Char('\\'));
}

/// Changes the current directory while it lives.
class CurrentDirectory
{
public:
    explicit CurrentDirectory(const QString& path)
        : m_previous(QDir::currentPath())
    {
        QDir::setCurrent(path);
    }
    ~CurrentDirectory() { QDir::setCurrent(m_previous); }

private:
    Q_DISABLE_COPY(CurrentDirectory)

    QString m_previous;
};

/// Answers every text of the class with its context.
class ContextTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* sourceText, const char*, int) const override
    {
        return QStringLiteral("%1|%2").arg(QLatin1String(context), QLatin1String(sourceText));
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TestVCReportingButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void announcesItsMethodsInOrder_data();
    void announcesItsMethodsInOrder();
    void announcesNothingElse();

    void standsBelowTheToolBarButNotInIt();
    void bearsTheObjectNameGiven();
    void holdsTheButtonWithoutMargins();
    void buttonIsTranslatedInTheContextOfTheClass();
    void buttonFollowsTheLanguage();
    void toolTipOfTheApplicationStaysWhenTheLanguageChanges();
    void buttonShowsTheBuiltInPicture();
    void buttonShowsTheGivenPicture();
    void withoutButtonIsHiddenAndStillWatches();
    void withoutButtonSwitchingDoesNothing();
    void takesButtonAndTimerWithIt();
    void goesWithTheToolBar();

    void watchesEveryTenSeconds();
    void looksOnceAtConstruction_data();
    void looksOnceAtConstruction();
    void tellsEveryLook();
    void followsWhatIsOnDisk();
    void needsSchemaAndDirectory_data();
    void needsSchemaAndDirectory();
    void understandsPathsWithAllSlashes_data();
    void understandsPathsWithAllSlashes();
    void seeksABareSchemaNameBesideTheApplication_data();
    void seeksABareSchemaNameBesideTheApplication();
    void seeksRelativePathsInTheCurrentDirectory();
    void newSchemaIsSeenByTheNextLook();

    void switchingOffHoldsUntilSwitchedOn();
    void switchingOnLeavesTheDecisionToTheLook();
    void switchingOnRestoresTheInterval();

    void clickAndShortcutMakeAReport();
    void heldKeyAndDoubleClickAreOnePress();
    void disabledButtonMakesNoReport();

private:
    std::unique_ptr<Surroundings> m_surroundings;
};

void TestVCReportingButton::init()
{
    m_surroundings = std::make_unique<Surroundings>();
}

void TestVCReportingButton::announcesItsMethodsInOrder_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QByteArray>("result");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("access");

    const int isSignal = QMetaMethod::Signal;
    const int isSlot = QMetaMethod::Slot;
    const int isPublic = QMetaMethod::Public;
    const int isPrivate = QMetaMethod::Private;
    QTest::newRow("prepare") << 0 << QByteArray("PrepareToReport()") << QByteArray("void") << isSignal << isPublic;
    QTest::newRow("available") << 1 << QByteArray("ReportDirAndSchemaAvailable(bool)") << QByteArray("void") << isSignal
                               << isPublic;
    QTest::newRow("successful") << 2 << QByteArray("ReportSuccessful()") << QByteArray("void") << isSignal << isPublic;
    QTest::newRow("not-successful") << 3 << QByteArray("ReportNotSuccessful()") << QByteArray("void") << isSignal
                                    << isPublic;
    QTest::newRow("report") << 4 << QByteArray("SlotToReport()") << QByteArray("bool") << isSlot << isPublic;
    QTest::newRow("check") << 5 << QByteArray("SlotCheckFileAndDirectory()") << QByteArray("void") << isSlot
                           << isPrivate;
}

void TestVCReportingButton::announcesItsMethodsInOrder()
{
    QFETCH(int, index);
    QFETCH(QByteArray, signature);
    QFETCH(QByteArray, result);
    QFETCH(int, kind);
    QFETCH(int, access);
    const QMetaObject& meta = VCReporting::staticMetaObject;
    const QMetaMethod method = meta.method(meta.methodOffset() + index);
    QCOMPARE(method.methodSignature(), signature);
    QCOMPARE(QByteArray(method.typeName()), result);
    QCOMPARE(int(method.methodType()), kind);
    QCOMPARE(int(method.access()), access);
}

void TestVCReportingButton::announcesNothingElse()
{
    const QMetaObject& meta = VCReporting::staticMetaObject;
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 6);
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
}

void TestVCReportingButton::standsBelowTheToolBarButNotInIt()
{
    QToolBar toolBar;
    const int widgetsBefore = toolBar.layout()->count();
    const auto reporting = m_surroundings->MakeReporting(true, &toolBar);
    QCOMPARE(reporting->parent(), &toolBar);
    QCOMPARE(reporting->windowFlags(), QWidget(&toolBar).windowFlags());
    QVERIFY(toolBar.actions().isEmpty());
    QCOMPARE(toolBar.layout()->count(), widgetsBefore);
}

void TestVCReportingButton::bearsTheObjectNameGiven()
{
    QCOMPARE(m_surroundings->MakeReporting()->objectName(), QStringLiteral("ToReport"));
}

void TestVCReportingButton::holdsTheButtonWithoutMargins()
{
    QToolBar toolBar;
    const auto reporting = m_surroundings->MakeReporting(true, &toolBar);
    auto* const button = reporting->findChild<VCButton*>();
    QVERIFY(button);
    QCOMPARE(reporting->GetReportButton(), button);
    QCOMPARE(button->parent(), reporting.get());
    QCOMPARE(button->toolTip(), QStringLiteral("To Report (Shift+F10)"));
    toolBar.show();
    QVERIFY(button->isVisible());

    const auto* const layout = qobject_cast<QHBoxLayout*>(reporting->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), button);
}

void TestVCReportingButton::buttonIsTranslatedInTheContextOfTheClass()
{
    ContextTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const auto reporting = m_surroundings->MakeReporting();
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(reporting->GetReportButton()->toolTip(), QStringLiteral("VCReporting|To Report (Shift+F10)"));
}

void TestVCReportingButton::buttonFollowsTheLanguage()
{
    const auto reporting = m_surroundings->MakeReporting();
    const QToolButton* const button = reporting->GetReportButton();
    const QKeySequence shortcut(int(Qt::SHIFT) | int(Qt::Key_F10));
    QCOMPARE(button->accessibleName(), QStringLiteral("To Report"));
    QCOMPARE(button->shortcut(), shortcut);

    ContextTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QEvent languageChange(QEvent::LanguageChange);
    QCoreApplication::sendEvent(reporting.get(), &languageChange);
    QCOMPARE(button->toolTip(), QStringLiteral("VCReporting|To Report (Shift+F10)"));
    QCOMPARE(button->accessibleName(), QStringLiteral("VCReporting|To Report"));
    QCOMPARE(button->shortcut(), shortcut);

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendEvent(reporting.get(), &languageChange);
    QCOMPARE(button->toolTip(), QStringLiteral("To Report (Shift+F10)"));

    const auto buttonless = m_surroundings->MakeReporting(false);
    QCoreApplication::sendEvent(buttonless.get(), &languageChange);
    QVERIFY(!buttonless->GetReportButton());
}

void TestVCReportingButton::toolTipOfTheApplicationStaysWhenTheLanguageChanges()
{
    const auto reporting = m_surroundings->MakeReporting();
    QToolButton* const button = reporting->GetReportButton();
    const QString own = button->toolTip();
    button->setToolTip(QStringLiteral("Report this bearing"));

    ContextTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QEvent languageChange(QEvent::LanguageChange);
    QCoreApplication::sendEvent(reporting.get(), &languageChange);
    QCOMPARE(button->toolTip(), QStringLiteral("Report this bearing"));

    // Given back, it follows again.
    button->setToolTip(own);
    QCoreApplication::sendEvent(reporting.get(), &languageChange);
    QCOMPARE(button->toolTip(), QStringLiteral("VCReporting|To Report (Shift+F10)"));
    QCoreApplication::removeTranslator(&translator);
}

void TestVCReportingButton::buttonShowsTheBuiltInPicture()
{
    const auto reporting = m_surroundings->MakeReporting();
    const QIcon icon = reporting->GetReportButton()->icon();
    QCOMPARE(icon.availableSizes(), QList<QSize>({QSize(16, 16)}));

    const QImage picture = icon.pixmap(16, 16).toImage().convertToFormat(QImage::Format_ARGB32);
    std::set<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            colours.insert(picture.pixel(x, y));
        }
    }
    QCOMPARE(colours.size(), std::size_t(11));
}

void TestVCReportingButton::buttonShowsTheGivenPicture()
{
    QPixmap picture(24, 24);
    picture.fill(Qt::red);
    const VCReporting reporting(m_surroundings->Schema(), m_surroundings->Directory(), nullptr, true, "ToReport", false,
                                picture);
    const QIcon icon = reporting.GetReportButton()->icon();
    QCOMPARE(icon.availableSizes(), QList<QSize>({QSize(24, 24)}));
    QCOMPARE(icon.pixmap(24, 24).toImage().pixelColor(12, 12), QColor(Qt::red));
}

void TestVCReportingButton::withoutButtonIsHiddenAndStillWatches()
{
    QToolBar toolBar;
    const auto reporting = m_surroundings->MakeReporting(false, &toolBar);
    toolBar.show();
    QVERIFY(!reporting->GetReportButton());
    QVERIFY(!reporting->findChild<QAbstractButton*>());
    QVERIFY(reporting->isHidden());

    QSignalSpy available(reporting.get(), &VCReporting::ReportDirAndSchemaAvailable);
    QVERIFY(tick(*reporting));
    QCOMPARE(available.count(), 1);
    QCOMPARE(available.takeFirst().at(0).toBool(), true);
    m_surroundings->RemoveSchema();
    QVERIFY(tick(*reporting));
    QCOMPARE(available.count(), 1);
    QCOMPARE(available.takeFirst().at(0).toBool(), false);
}

void TestVCReportingButton::withoutButtonSwitchingDoesNothing()
{
    const auto reporting = m_surroundings->MakeReporting(false);
    const QSignalSpy available(reporting.get(), &VCReporting::ReportDirAndSchemaAvailable);
    reporting->EnableReportButton(false);
    QVERIFY(timerOf(*reporting).isActive());
    reporting->EnableReportButton(true);
    QCOMPARE(available.count(), 0);
}

void TestVCReportingButton::takesButtonAndTimerWithIt()
{
    QToolBar toolBar;
    auto reporting = m_surroundings->MakeReporting(true, &toolBar);
    const QPointer<QToolButton> button = reporting->GetReportButton();
    const QPointer<QTimer> timer = &timerOf(*reporting);
    const auto childrenBefore = toolBar.children().size();
    reporting.reset();
    QVERIFY(!button);
    QVERIFY(!timer);
    QCOMPARE(toolBar.children().size(), childrenBefore - 1);
}

void TestVCReportingButton::goesWithTheToolBar()
{
    auto toolBar = std::make_unique<QToolBar>();
    const QPointer<VCReporting> reporting = m_surroundings->MakeReporting(true, toolBar.get()).release();
    toolBar->addWidget(reporting);
    toolBar.reset();
    QVERIFY(!reporting);
}

void TestVCReportingButton::watchesEveryTenSeconds()
{
    const auto reporting = m_surroundings->MakeReporting();
    QCOMPARE(reporting->findChildren<QTimer*>().size(), 1);
    const QTimer& timer = timerOf(*reporting);
    QCOMPARE(timer.interval(), 10000);
    QVERIFY(timer.isActive());
    QVERIFY(!timer.isSingleShot());
    QCOMPARE(timer.parent(), reporting.get());
}

void TestVCReportingButton::looksOnceAtConstruction_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::newRow("available-enables-the-button") << true;
    QTest::newRow("missing-disables-the-button") << false;
}

void TestVCReportingButton::looksOnceAtConstruction()
{
    QFETCH(bool, isThere);
    if (!isThere) {
        m_surroundings->RemoveSchema();
    }
    QCOMPARE(m_surroundings->MakeReporting()->GetReportButton()->isEnabled(), isThere);
}

void TestVCReportingButton::tellsEveryLook()
{
    const auto reporting = m_surroundings->MakeReporting();
    QSignalSpy available(reporting.get(), &VCReporting::ReportDirAndSchemaAvailable);
    for (int look = 1; look <= 3; ++look) {
        QVERIFY(tick(*reporting));
        QCOMPARE(available.count(), look);
        QCOMPARE(available.last().at(0).toBool(), true);
    }
}

void TestVCReportingButton::followsWhatIsOnDisk()
{
    const auto reporting = m_surroundings->MakeReporting();
    const QToolButton& button = *reporting->GetReportButton();
    QSignalSpy available(reporting.get(), &VCReporting::ReportDirAndSchemaAvailable);
    const auto seen = [&] {
        tick(*reporting);
        return available.last().at(0).toBool();
    };

    m_surroundings->RemoveSchema();
    QVERIFY(button.isEnabled()); // until the watch looks
    QVERIFY(!seen());
    QVERIFY(!button.isEnabled());
    m_surroundings->MakeSchema();
    QVERIFY(seen());
    QVERIFY(button.isEnabled());
    m_surroundings->RemoveDirectory();
    QVERIFY(!seen());
    QVERIFY(!button.isEnabled());
    m_surroundings->RemoveSchema();
    QVERIFY(!seen());
    m_surroundings->MakeDirectory();
    QVERIFY(!seen());
    QVERIFY(!button.isEnabled());
    m_surroundings->MakeSchema();
    QVERIFY(seen());
    QVERIFY(button.isEnabled());
}

void TestVCReportingButton::needsSchemaAndDirectory_data()
{
    QTest::addColumn<QString>("schema");
    QTest::addColumn<QString>("directory");
    QTest::addColumn<bool>("isAvailable");

    const QString schema = QStringLiteral("/schema.xsd");
    const QString reports = QStringLiteral("/reports");
    QTest::newRow("both") << schema << reports << true;
    QTest::newRow("schema-missing") << QStringLiteral("/other.xsd") << reports << false;
    QTest::newRow("directory-missing") << schema << QStringLiteral("/other") << false;
    QTest::newRow("both-missing") << QStringLiteral("/other.xsd") << QStringLiteral("/other") << false;
    // Existence is all that is asked, of either kind.
    QTest::newRow("file-in-place-of-the-directory-counts") << schema << schema << true;
    QTest::newRow("directory-in-place-of-the-schema-counts") << reports << reports << true;
}

void TestVCReportingButton::needsSchemaAndDirectory()
{
    QFETCH(QString, schema);
    QFETCH(QString, directory);
    QFETCH(bool, isAvailable);
    const QString folder = m_surroundings->Folder();
    const auto reporting = Surroundings::MakeReporting(folder + schema, folder + directory);
    QCOMPARE(reporting->GetReportButton()->isEnabled(), isAvailable);
}

void TestVCReportingButton::understandsPathsWithAllSlashes_data()
{
    QTest::addColumn<QString>("schema");
    QTest::addColumn<QString>("directory");
    QTest::addColumn<bool>("isAvailable");

    // %1 stands for the folder with slashes, %2 for the folder with back slashes.
    const QString schema = QStringLiteral("%1/schema.xsd");
    const QString reports = QStringLiteral("%1/reports");
    QTest::newRow("slashes") << schema << reports << true;
    QTest::newRow("back-slashes") << QStringLiteral("%2\\schema.xsd") << QStringLiteral("%2\\reports") << true;
    QTest::newRow("both-mixed") << QStringLiteral("%1\\schema.xsd") << QStringLiteral("%2/reports") << true;
    QTest::newRow("directory-with-trailing-slash") << schema << QStringLiteral("%1/reports/") << true;
    QTest::newRow("directory-with-trailing-back-slash") << schema << QStringLiteral("%2\\reports\\") << true;
    QTest::newRow("schema-with-trailing-back-slash-loses-it") << QStringLiteral("%1/schema.xsd\\") << reports << true;
    QTest::newRow("schema-with-two-trailing-back-slashes-loses-one")
        << QStringLiteral("%1/schema.xsd\\\\") << reports << false;
    QTest::newRow("empty-directory-is-not-there") << schema << QString() << false;
}

void TestVCReportingButton::understandsPathsWithAllSlashes()
{
    QFETCH(QString, schema);
    QFETCH(QString, directory);
    QFETCH(bool, isAvailable);
    const QString folder = m_surroundings->Folder();
    const auto inFolder = [&folder](QString path) {
        path.replace(QLatin1String("%1"), folder);
        return path.replace(QLatin1String("%2"), withBackSlashes(folder));
    };
    const auto reporting = Surroundings::MakeReporting(inFolder(schema), inFolder(directory));
    QCOMPARE(reporting->GetReportButton()->isEnabled(), isAvailable);
}

void TestVCReportingButton::seeksABareSchemaNameBesideTheApplication_data()
{
    QTest::addColumn<QString>("schema");
    QTest::addColumn<bool>("isAvailable");

    QTest::newRow("file-beside-the-application")
        << QFileInfo(QCoreApplication::applicationFilePath()).fileName() << true;
    QTest::newRow("file-only-in-the-current-directory") << QStringLiteral("schema.xsd") << false;
    QTest::newRow("empty-name-is-the-folder-of-the-application") << QString() << true;
}

void TestVCReportingButton::seeksABareSchemaNameBesideTheApplication()
{
    QFETCH(QString, schema);
    QFETCH(bool, isAvailable);
    const CurrentDirectory current(m_surroundings->Folder());
    const auto reporting = Surroundings::MakeReporting(schema, m_surroundings->Directory());
    QCOMPARE(reporting->GetReportButton()->isEnabled(), isAvailable);
}

void TestVCReportingButton::seeksRelativePathsInTheCurrentDirectory()
{
    const CurrentDirectory current(m_surroundings->Folder());
    const auto reporting = Surroundings::MakeReporting(QStringLiteral("./schema.xsd"), QStringLiteral("reports"));
    QVERIFY(reporting->GetReportButton()->isEnabled());
}

void TestVCReportingButton::newSchemaIsSeenByTheNextLook()
{
    const auto reporting = m_surroundings->MakeReporting();
    QSignalSpy available(reporting.get(), &VCReporting::ReportDirAndSchemaAvailable);
    QVERIFY(reporting->SetSchema(QStringLiteral("missing.xsd")));
    QCOMPARE(available.count(), 0);
    QVERIFY(reporting->GetReportButton()->isEnabled());
    QVERIFY(tick(*reporting));
    QVERIFY(!reporting->GetReportButton()->isEnabled());

    QVERIFY(reporting->SetSchema(m_surroundings->Schema()));
    QVERIFY(tick(*reporting));
    QVERIFY(reporting->GetReportButton()->isEnabled());
    QVERIFY(reporting->SetSchema(QFileInfo(QCoreApplication::applicationFilePath()).fileName()));
    QVERIFY(tick(*reporting));
    QVERIFY(reporting->GetReportButton()->isEnabled());
}

void TestVCReportingButton::switchingOffHoldsUntilSwitchedOn()
{
    const auto reporting = m_surroundings->MakeReporting();
    QSignalSpy available(reporting.get(), &VCReporting::ReportDirAndSchemaAvailable);
    reporting->EnableReportButton(false);
    QVERIFY(!reporting->GetReportButton()->isEnabled());
    QVERIFY(!tick(*reporting));
    QCOMPARE(available.count(), 0);

    reporting->EnableReportButton(true);
    QVERIFY(reporting->GetReportButton()->isEnabled());
    QCOMPARE(available.count(), 1);
    QVERIFY(tick(*reporting));
    QCOMPARE(available.count(), 2);
}

void TestVCReportingButton::switchingOnLeavesTheDecisionToTheLook()
{
    const auto reporting = m_surroundings->MakeReporting();
    QSignalSpy available(reporting.get(), &VCReporting::ReportDirAndSchemaAvailable);
    m_surroundings->RemoveDirectory();
    reporting->EnableReportButton(true); // also while it is on
    QCOMPARE(available.count(), 1);
    QCOMPARE(available.last().at(0).toBool(), false);
    QVERIFY(!reporting->GetReportButton()->isEnabled());

    reporting->EnableReportButton(false);
    reporting->EnableReportButton(true);
    QVERIFY(!reporting->GetReportButton()->isEnabled());
    m_surroundings->MakeDirectory();
    QVERIFY(tick(*reporting));
    QVERIFY(reporting->GetReportButton()->isEnabled());
}

void TestVCReportingButton::switchingOnRestoresTheInterval()
{
    const auto reporting = m_surroundings->MakeReporting();
    QTimer& timer = timerOf(*reporting);
    const int runningId = timer.timerId();
    reporting->EnableReportButton(true);
    QCOMPARE(timer.timerId(), runningId); // goes on where it was

    reporting->EnableReportButton(false);
    timer.setInterval(1);
    reporting->EnableReportButton(true);
    QVERIFY(timer.isActive());
    QCOMPARE(timer.interval(), 10000);
}

void TestVCReportingButton::clickAndShortcutMakeAReport()
{
    ReportingScene scene(declaredElement(QStringLiteral("Level"), QStringLiteral("double")));
    RecordingReporting& reporting = scene.Reporting();
    QMainWindow window;
    reporting.setParent(&window);
    window.setCentralWidget(&reporting);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QSignalSpy successful(&reporting, &VCReporting::ReportSuccessful);

    QTest::mouseClick(reporting.GetReportButton(), Qt::LeftButton);
    QCOMPARE(successful.count(), 1);
    scene.Clock().Advance(1000);
    QTest::keyClick(&window, Qt::Key_F10, Qt::ShiftModifier);
    QTRY_COMPARE(successful.count(), 2);
    QCOMPARE(scene.ReportFiles(),
             QStringList({QStringLiteral("2017-03-31_12-34-56-7.xml"), QStringLiteral("2017-03-31_12-34-57-7.xml")}));
    window.takeCentralWidget();
    scene.DeleteReporting();
}

void TestVCReportingButton::heldKeyAndDoubleClickAreOnePress()
{
    ReportingScene scene(declaredElement(QStringLiteral("Level"), QStringLiteral("double")));
    RecordingReporting& reporting = scene.Reporting();
    QMainWindow window;
    reporting.setParent(&window);
    window.setCentralWidget(&reporting);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QSignalSpy prepare(&reporting, &VCReporting::PrepareToReport);
    const auto key = [&window](bool isPress, bool isRepeat) {
        QTest::simulateEvent(&window, isPress, Qt::Key_F10, Qt::ShiftModifier, QString(), isRepeat);
    };

    QTest::mouseClick(reporting.GetReportButton(), Qt::LeftButton);
    QTest::mouseDClick(reporting.GetReportButton(), Qt::LeftButton);
    QTest::mouseRelease(reporting.GetReportButton(), Qt::LeftButton);
    QCOMPARE(prepare.count(), 1);
    for (int reports = 2; reports <= 3; ++reports) {
        key(true, false);
        QTRY_COMPARE(prepare.count(), reports);
        for (int repeat = 0; repeat < 3; ++repeat) {
            key(true, true);
            QTRY_VERIFY(!reporting.GetReportButton()->isDown()); // the button stays down while it animates a click
            QCOMPARE(prepare.count(), reports);
        }
        key(false, false);
    }
    QTest::mouseClick(reporting.GetReportButton(), Qt::LeftButton);
    QCOMPARE(prepare.count(), 4);
    window.takeCentralWidget();
    scene.DeleteReporting();
}

void TestVCReportingButton::disabledButtonMakesNoReport()
{
    const auto reporting = m_surroundings->MakeReporting();
    const QSignalSpy prepare(reporting.get(), &VCReporting::PrepareToReport);
    m_surroundings->RemoveSchema();
    QVERIFY(tick(*reporting));
    reporting->show();
    QTest::mouseClick(reporting->GetReportButton(), Qt::LeftButton);
    QCOMPARE(prepare.count(), 0);
}

QTEST_MAIN(TestVCReportingButton)
#include "tst_vcreporting_button.moc"
