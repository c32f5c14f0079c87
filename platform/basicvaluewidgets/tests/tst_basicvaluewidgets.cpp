#include <basicvaluewidgets/vcbutton.h>
#include <memory>
#include <QPointer>
#include <QtTest>

namespace {

const char* const redDot[] = {"1 1 1 1", "r c #FF0000", "r"};

class CountingButton : public VCButton
{
public:
    CountingButton()
        : VCButton(nullptr, QString(), false)
    {
    }
    void setEnabled(bool enabled) override
    {
        ++calls;
        VCButton::setEnabled(enabled);
    }

    int calls = 0;
};

} // namespace

class TestBasicValueWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTextIsTheToolTipAndBindsAShortcut_data();
    void theTextIsTheToolTipAndBindsAShortcut();
    void theShortcutClicksTheButton();
    void theFirstLineOfTheToolTipIsTheAccessibleName_data();
    void theFirstLineOfTheToolTipIsTheAccessibleName();
    void enablingIsVirtual();
    void enablingIsVirtualAsASlot();
    void theDefaultPictureIsTheIcon();
    void noPictureTakesTheIconAway();
    void theButtonBelongsToItsParent();
    void theButtonIsDeletedThroughItsUndoBase();
};

void TestBasicValueWidgets::theTextIsTheToolTipAndBindsAShortcut_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QKeySequence>("shortcut");

    const QKeySequence none;
    QTest::newRow("key-sequence-in-brackets-at-the-end")
        << "To Report (Shift+F10)" << QKeySequence(int(Qt::SHIFT) | int(Qt::Key_F10));
    QTest::newRow("several-keys") << "Save (Ctrl+K, Ctrl+S)"
                                  << QKeySequence(int(Qt::CTRL) | int(Qt::Key_K), int(Qt::CTRL) | int(Qt::Key_S));
    QTest::newRow("last-brackets-count") << "Level (dBm) (F2)" << QKeySequence(Qt::Key_F2);
    QTest::newRow("no-brackets") << "To Report" << none;
    QTest::newRow("key-sequence-without-brackets") << "To Report Shift+F10" << none;
    QTest::newRow("brackets-not-at-the-end") << "To Report (Shift+F10) now" << none;
    QTest::newRow("no-key-in-the-brackets") << "Frequency (Hz)" << none;
    QTest::newRow("not-every-part-a-key") << "Frequency (F2, Hz)" << none;
    QTest::newRow("empty-brackets") << "To Report ()" << none;
    QTest::newRow("bracket-never-opened") << "Shift+F10)" << none;
    QTest::newRow("bracket-never-closed") << "To Report (Shift+F10" << none;
    QTest::newRow("empty") << "" << none;
}

void TestBasicValueWidgets::theTextIsTheToolTipAndBindsAShortcut()
{
    QFETCH(QString, text);
    QFETCH(QKeySequence, shortcut);

    const VCButton button(nullptr, text, false);
    QCOMPARE(button.toolTip(), text);
    QCOMPARE(button.shortcut(), shortcut);
}

void TestBasicValueWidgets::theShortcutClicksTheButton()
{
    QWidget window;
    VCButton button(&window, QStringLiteral("To Report (Shift+F10)"), true);
    const QSignalSpy clicked(&button, &VCButton::clicked);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));

    QTest::keyClick(&window, Qt::Key_F10);
    QCOMPARE(clicked.count(), 0);
    QTest::keyClick(&window, Qt::Key_F10, Qt::ShiftModifier);
    QTRY_COMPARE(clicked.count(), 1);

    button.setEnabled(false);
    QTest::keyClick(&window, Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(clicked.count(), 1);
}

void TestBasicValueWidgets::theFirstLineOfTheToolTipIsTheAccessibleName_data()
{
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("name");

    QTest::newRow("shortcut-is-left-out") << "To Report (Shift+F10)"
                                          << "To Report";
    QTest::newRow("brackets-without-a-key-stay") << "Frequency (Hz)"
                                                 << "Frequency (Hz)";
    QTest::newRow("later-lines-are-left-out") << "To Report (Shift+F10)\nThe directory is missing."
                                              << "To Report";
    QTest::newRow("empty") << ""
                           << "";
}

void TestBasicValueWidgets::theFirstLineOfTheToolTipIsTheAccessibleName()
{
    QFETCH(QString, toolTip);
    QFETCH(QString, name);

    const VCButton made(nullptr, toolTip, false);
    QCOMPARE(made.accessibleName(), name);

    VCButton changed(nullptr, QStringLiteral("Something else (F2)"), false);
    changed.setToolTip(toolTip);
    QCOMPARE(changed.accessibleName(), name);
    QCOMPARE(changed.shortcut(), QKeySequence(Qt::Key_F2));
}

void TestBasicValueWidgets::enablingIsVirtual()
{
    CountingButton button;
    VCButton* const asButton = &button;

    asButton->setEnabled(false);
    QCOMPARE(button.calls, 1);
    QVERIFY(!button.isEnabled());
    asButton->setEnabled(true);
    QCOMPARE(button.calls, 2);
    QVERIFY(button.isEnabled());
}

void TestBasicValueWidgets::enablingIsVirtualAsASlot()
{
    CountingButton button;

    QVERIFY(QMetaObject::invokeMethod(&button, "setEnabled", Q_ARG(bool, false)));
    QCOMPARE(button.calls, 1);
    QVERIFY(!button.isEnabled());
}

void TestBasicValueWidgets::theDefaultPictureIsTheIcon()
{
    VCButton button(nullptr, QString(), false);
    QVERIFY(button.icon().isNull());

    button.SetDefaultPicture(redDot);
    const QPixmap picture = button.icon().pixmap(QSize(1, 1));
    QCOMPARE(picture.size(), QSize(1, 1));
    QCOMPARE(picture.toImage().pixelColor(0, 0), QColor(Qt::red));
}

void TestBasicValueWidgets::noPictureTakesTheIconAway()
{
    VCButton button(nullptr, QString(), false);
    button.SetDefaultPicture(redDot);

    button.SetDefaultPicture(nullptr);
    QVERIFY(button.icon().isNull());
}

void TestBasicValueWidgets::theButtonBelongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<VCButton> button(new VCButton(parent.get(), QString(), false));
    QCOMPARE(button->parentWidget(), parent.get());

    parent.reset();
    QVERIFY(button.isNull());
}

void TestBasicValueWidgets::theButtonIsDeletedThroughItsUndoBase()
{
    QWidget parent;
    const QPointer<QToolButton> button(new VCButton(&parent, QString(), true));
    auto* const base = dynamic_cast<UndoRecordingControlBase*>(button.data());
    QVERIFY(base);

    delete base;
    QVERIFY(button.isNull());
    QVERIFY(parent.children().isEmpty());
}

QTEST_MAIN(TestBasicValueWidgets)

#include "tst_basicvaluewidgets.moc"
