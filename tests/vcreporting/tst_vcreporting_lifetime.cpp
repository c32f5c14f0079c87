#include <QtTest>

#include <algorithm>
#include <functional>
#include <utility>

#include <QDir>
#include <QPointer>
#include <QTextEdit>
#include <QTimer>
#include <QTimerEvent>
#include <QToolButton>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuenumeric.h>
#include <valueframework/valuetext.h>

#include <xmlhelper/commentdialogimpl.h>

#include "domtext.h"
#include "reportingscene.h"
#include "tracecollector.h"

namespace {

using Signal = void (VCReporting::*)();
using Report = void (*)(VCReporting&);

struct Thrown
{
};

/// A value that does something else, once, before it tells its text.
class ActingValue : public ValueText
{
public:
    ActingValue(const QString& name, const QString& text)
        : ValueText(name, text)
    {
    }
    QString GetText() const override
    {
        if (const auto act = std::exchange(m_act, nullptr)) {
            act();
        }
        return ValueText::GetText();
    }
    void Act(const std::function<void()>& act) { m_act = act; }

private:
    mutable std::function<void()> m_act;
};

/// A scene whose report has three elements: a fixed text, a value that acts when it is read, and a fixed text.
class ActingScene : public ReportingScene
{
public:
    explicit ActingScene(bool consume = false)
        : ReportingScene(declaredElement(QStringLiteral("First"), QStringLiteral("string"))
                             + declaredElement(QStringLiteral("Acting"), QStringLiteral("string"))
                             + declaredElement(QStringLiteral("Last"), QStringLiteral("string")),
                         consume)
        , m_value(new ActingValue(QStringLiteral("Acting"), QStringLiteral("2")))
    {
        new ValueItem(m_value, m_tree.GetRoot());
        AddText(QStringLiteral("First"), QStringLiteral("1"));
        Reporting().AddReportData(m_tree.GetRoot());
        AddText(QStringLiteral("Last"), QStringLiteral("3"));
    }

    ActingValue& Value() { return *m_value; }
    /// Lets an event loop run while the value is read, in which @p act is done.
    void ActInAnEventLoop(const std::function<void()>& act)
    {
        m_value->Act([act] {
            QTimer::singleShot(0, qApp, act);
            QCoreApplication::processEvents();
        });
    }
    QString CompleteBody() const
    {
        return bodyText(QStringLiteral("<First>1</First><Acting>2</Acting><Last>3</Last>"));
    }

private:
    Tree m_tree;
    ActingValue* m_value; ///< the tree's
};

QWidgetList openDialogs()
{
    QWidgetList dialogs = QApplication::topLevelWidgets();
    dialogs.erase(std::remove_if(dialogs.begin(), dialogs.end(),
                                 [](const QWidget* window) {
                                     return !window->isVisible() || !qobject_cast<const CommentDialogImpl*>(window);
                                 }),
                  dialogs.end());
    return dialogs;
}

bool tick(const VCReporting& reporting)
{
    auto* const timer = reporting.findChild<QTimer*>();
    QTimerEvent event(timer->timerId());
    return QCoreApplication::sendEvent(timer, &event);
}

} // namespace

Q_DECLARE_METATYPE(Signal)
Q_DECLARE_METATYPE(Report)

class TestVCReportingLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deletedInASlotEndsThere_data();
    void deletedInASlotEndsThere();
    void deletedByWhatItTellsOfItsLookEndsThere_data();
    void deletedByWhatItTellsOfItsLookEndsThere();
    void deletedWhileItsReportIsFilledLeavesItComplete_data();
    void deletedWhileItsReportIsFilledLeavesItComplete();

    void pressWhileAReportIsFilledIsRefused_data();
    void pressWhileAReportIsFilledIsRefused();
    void pressOfAnotherButtonWhileAReportIsFilledMakesAReport();
    void pressFromASlotIsAReportOfItsOwn_data();
    void pressFromASlotIsAReportOfItsOwn();

    void itemsTakenOutWhileAnElementIsAnsweredStillServeIt_data();
    void itemsTakenOutWhileAnElementIsAnsweredStillServeIt();
    void itemAddedWhileAnElementIsAnsweredIsNotConsumedForIt();
    void schemaChangedWhileAReportIsFilledServesTheNextOne();

    void exceptionLeavesTheButton_data();
    void exceptionLeavesTheButton();
    void exceptionLeavesNothingToTheNextReport_data();
    void exceptionLeavesNothingToTheNextReport();

    void nodeKeptOfAReportThatIsOverStandsAlone_data();
    void nodeKeptOfAReportThatIsOverStandsAlone();
    void nodeThatTheWalkRemovedStandsAloneToo();
    void dialogsShowAndWriteNothingAfterTheyHaveGivenBackAll_data();
    void dialogsShowAndWriteNothingAfterTheyHaveGivenBackAll();
    void dialogThatCouldNotWriteKeepsEverything();
};

void TestVCReportingLifetime::deletedInASlotEndsThere_data()
{
    QTest::addColumn<Signal>("signal");
    QTest::addColumn<bool>("isSchemaGood");
    QTest::addColumn<bool>("result");
    QTest::addColumn<int>("files");
    QTest::newRow("before-the-report") << Signal(&VCReporting::PrepareToReport) << true << false << 0;
    QTest::newRow("after-success") << Signal(&VCReporting::ReportSuccessful) << true << true << 1;
    QTest::newRow("after-failure") << Signal(&VCReporting::ReportNotSuccessful) << false << false << 1;
}

void TestVCReportingLifetime::deletedInASlotEndsThere()
{
    QFETCH(Signal, signal);
    QFETCH(bool, isSchemaGood);
    QFETCH(bool, result);
    QFETCH(int, files);
    for (const bool isClicked : {false, true}) {
        ReportingScene scene(declaredElement(QStringLiteral("Value"), QStringLiteral("string")));
        if (!isSchemaGood) {
            scene.WriteSchemaFile(QStringLiteral("<no schema"));
        }
        const QPointer<VCReporting> reporting(&scene.Reporting());
        const QPointer<QToolButton> button(reporting->GetReportButton());
        connect(reporting, signal, this, [&scene] { scene.DeleteReporting(); });
        if (isClicked) {
            reporting->show();
            QTest::mouseClick(reporting->GetReportButton(), Qt::LeftButton);
        } else {
            QCOMPARE(reporting->SlotToReport(), result);
        }
        QVERIFY(reporting.isNull());
        QCOMPARE(!button.isNull(), isClicked); // Qt still worked on it.
        QCoreApplication::sendPostedEvents(button, QEvent::DeferredDelete);
        QVERIFY(button.isNull());
        QCOMPARE(int(scene.ReportFiles().size()), files);
    }
}

void TestVCReportingLifetime::deletedByWhatItTellsOfItsLookEndsThere_data()
{
    QTest::addColumn<Report>("look");
    QTest::newRow("at-a-tick") << Report([](VCReporting& reporting) { QVERIFY(tick(reporting)); });
    QTest::newRow("when-switched-on") << Report([](VCReporting& reporting) { reporting.EnableReportButton(true); });
}

void TestVCReportingLifetime::deletedByWhatItTellsOfItsLookEndsThere()
{
    QFETCH(Report, look);
    ReportingScene scene(declaredElement(QStringLiteral("Value"), QStringLiteral("string")));
    const QPointer<VCReporting> reporting(&scene.Reporting());
    connect(reporting, &VCReporting::ReportDirAndSchemaAvailable, this, [&scene] { scene.DeleteReporting(); });
    look(*reporting);
    QVERIFY(reporting.isNull());
}

void TestVCReportingLifetime::deletedWhileItsReportIsFilledLeavesItComplete_data()
{
    QTest::addColumn<bool>("showsDialog");
    QTest::newRow("written") << false;
    QTest::newRow("with-a-dialog") << true;
}

void TestVCReportingLifetime::deletedWhileItsReportIsFilledLeavesItComplete()
{
    QFETCH(bool, showsDialog);
    ActingScene scene;
    const QPointer<VCReporting> reporting(&scene.Reporting());
    reporting->SetShowCommentDialog(showsDialog);
    const QSignalSpy successful(reporting, &VCReporting::ReportSuccessful);
    scene.ActInAnEventLoop([&scene] { scene.DeleteReporting(); });
    QVERIFY(reporting->SlotToReport());
    QVERIFY(reporting.isNull());
    QCOMPARE(int(successful.count()), 0);
    if (showsDialog) {
        for (QWidget* const dialog : openDialogs()) {
            dialog->close();
        }
    }
    QCOMPARE(bodyText(scene.Report()), scene.CompleteBody());
}

void TestVCReportingLifetime::pressWhileAReportIsFilledIsRefused_data()
{
    QTest::addColumn<bool>("isClicked");
    QTest::newRow("by-the-slot") << false;
    QTest::newRow("by-the-button") << true;
}

void TestVCReportingLifetime::pressWhileAReportIsFilledIsRefused()
{
    QFETCH(bool, isClicked);
    ActingScene scene(true);
    VCReporting& reporting = scene.Reporting();
    const QSignalSpy preparing(&reporting, &VCReporting::PrepareToReport);
    const QSignalSpy successful(&reporting, &VCReporting::ReportSuccessful);
    const QSignalSpy notSuccessful(&reporting, &VCReporting::ReportNotSuccessful);
    bool isPressed = false;
    bool result = true;
    QString traces;
    scene.ActInAnEventLoop([&] {
        const TraceCollector collector;
        isPressed = true;
        if (isClicked) {
            reporting.GetReportButton()->click();
            result = false;
        } else {
            result = reporting.SlotToReport();
        }
        traces = collector.Messages();
    });
    QCOMPARE(scene.MakeReport(), scene.CompleteBody());
    QVERIFY(isPressed);
    QVERIFY(!result);
    QCOMPARE(int(traces.count(QStringLiteral("No report is made while another one is being filled!"))), 1);
    QCOMPARE(int(preparing.count()), 1);
    QCOMPARE(int(successful.count()), 1);
    QCOMPARE(int(notSuccessful.count()), 0);
    QCOMPARE(int(scene.ReportFiles().size()), 1);
    // All are consumed.
    scene.Clock().Advance(1);
    QVERIFY(reporting.SlotToReport());
    QCOMPARE(int(scene.ReportFiles().size()), 2);
}

void TestVCReportingLifetime::pressOfAnotherButtonWhileAReportIsFilledMakesAReport()
{
    ActingScene scene;
    ReportingScene other(declaredElement(QStringLiteral("Value"), QStringLiteral("string")));
    other.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    QString body;
    scene.ActInAnEventLoop([&] { body = other.MakeReport(); });
    QCOMPARE(scene.MakeReport(), scene.CompleteBody());
    QCOMPARE(body, bodyText(QStringLiteral("<Value>FM</Value>")));
}

void TestVCReportingLifetime::pressFromASlotIsAReportOfItsOwn_data()
{
    QTest::addColumn<Signal>("signal");
    QTest::addColumn<bool>("isSchemaGood");
    QTest::newRow("before-the-report") << Signal(&VCReporting::PrepareToReport) << true;
    QTest::newRow("after-success") << Signal(&VCReporting::ReportSuccessful) << true;
    QTest::newRow("after-failure") << Signal(&VCReporting::ReportNotSuccessful) << false;
}

void TestVCReportingLifetime::pressFromASlotIsAReportOfItsOwn()
{
    QFETCH(Signal, signal);
    QFETCH(bool, isSchemaGood);
    ReportingScene scene(declaredElement(QStringLiteral("Value"), QStringLiteral("string")));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    if (!isSchemaGood) {
        scene.WriteSchemaFile(QStringLiteral("<no schema"));
    }
    int presses = 0;
    connect(&scene.Reporting(), signal, this, [&] {
        if (++presses == 1) {
            scene.Clock().Advance(1);
            QCOMPARE(scene.Reporting().SlotToReport(), isSchemaGood);
            scene.Clock().Advance(1);
        }
    });
    QCOMPARE(scene.Reporting().SlotToReport(), isSchemaGood);
    QCOMPARE(presses, 2);
    QCOMPARE(int(scene.ReportFiles().size()), 2);
    for (const QString& name : scene.ReportFiles()) {
        QCOMPARE(bodyText(documentInFile(scene.Directory() + QLatin1Char('/') + name)),
                 isSchemaGood ? bodyText(QStringLiteral("<Value>FM</Value>")) : QStringLiteral("(no report)"));
    }
}

void TestVCReportingLifetime::itemsTakenOutWhileAnElementIsAnsweredStillServeIt_data()
{
    QTest::addColumn<bool>("isCleared");
    QTest::addColumn<QString>("last");
    QTest::newRow("deleted") << false << QStringLiteral("<Last>3</Last>");
    QTest::newRow("cleared") << true << QStringLiteral("<Last type='string'/>");
}

void TestVCReportingLifetime::itemsTakenOutWhileAnElementIsAnsweredStillServeIt()
{
    QFETCH(bool, isCleared);
    QFETCH(QString, last);
    for (const bool consume : {false, true}) {
        ActingScene scene(consume);
        scene.Value().Act([&] {
            if (isCleared) {
                scene.Reporting().ClearReportData();
            } else {
                scene.Reporting().DeleteReportData(QStringLiteral("Acting"));
            }
        });
        QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<First>1</First><Acting>2</Acting>") + last));
    }
}

void TestVCReportingLifetime::itemAddedWhileAnElementIsAnsweredIsNotConsumedForIt()
{
    ActingScene scene(true);
    scene.Value().Act([&] {
        scene.Reporting().DeleteReportData(QStringLiteral("Acting"));
        scene.AddText(QStringLiteral("Acting"), QStringLiteral("new"));
    });
    QCOMPARE(scene.MakeReport(), scene.CompleteBody());
    QCOMPARE(scene.MakeReport(),
             bodyText(QStringLiteral("<First type='string'/><Acting>new</Acting><Last type='string'/>")));
}

void TestVCReportingLifetime::schemaChangedWhileAReportIsFilledServesTheNextOne()
{
    ActingScene scene;
    scene.Value().Act([&] { scene.Reporting().SetSchema(QStringLiteral("/missing/other.xsd")); });
    QCOMPARE(scene.MakeReport(), scene.CompleteBody());
    QVERIFY(!scene.Reporting().SlotToReport());
}

void TestVCReportingLifetime::exceptionLeavesTheButton_data()
{
    QTest::addColumn<Signal>("signal");
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("before-the-report") << Signal(&VCReporting::PrepareToReport) << false;
    QTest::newRow("after-success") << Signal(&VCReporting::ReportSuccessful) << false;
    QTest::newRow("from-a-slot-that-deletes-it") << Signal(&VCReporting::PrepareToReport) << true;
}

/// It can be pressed again, and goes with its widget.
void TestVCReportingLifetime::exceptionLeavesTheButton()
{
    QFETCH(Signal, signal);
    QFETCH(bool, isDeleted);
    ActingScene scene;
    const QPointer<VCReporting> reporting(&scene.Reporting());
    const QPointer<QToolButton> button(reporting->GetReportButton());
    const QMetaObject::Connection throwing = connect(reporting, signal, this, [&] {
        if (isDeleted) {
            scene.DeleteReporting();
        }
        throw Thrown();
    });
    // Not by click(): Qt's widgets are compiled without exceptions, and would leak what they keep meanwhile.
    QVERIFY_EXCEPTION_THROWN(button->clicked(), Thrown);
    QCOMPARE(reporting.isNull(), isDeleted);
    if (isDeleted) {
        QCoreApplication::sendPostedEvents(button, QEvent::DeferredDelete);
    } else {
        disconnect(throwing);
        const QSignalSpy successful(reporting, &VCReporting::ReportSuccessful);
        button->click();
        QCOMPARE(int(successful.count()), 1);
        QCOMPARE(bodyText(scene.Report()), scene.CompleteBody());
        scene.DeleteReporting();
    }
    QVERIFY(button.isNull());
}

void TestVCReportingLifetime::exceptionLeavesNothingToTheNextReport_data()
{
    QTest::addColumn<QString>("acting");
    const QString text = QStringLiteral("string");
    const QString attribute = declaredAttribute(QStringLiteral("Acting"), text);
    const QString first = declaredAttribute(QStringLiteral("First"), text);
    QTest::newRow("at-an-element") << declaredElement(QStringLiteral("Acting"), text);
    QTest::newRow("at-a-refusal") << declaredElement(QStringLiteral("Acting"), QStringLiteral("dateTime"));
    QTest::newRow("at-an-attribute") << declaredElement(QStringLiteral("Owner"), text, attribute);
    QTest::newRow("behind-an-attribute") << declaredElement(QStringLiteral("Owner"), text, first + attribute);
}

/// The value acts when its text is asked for. The number in front of it is offered to an int, so that it is refused and
/// offered again.
void TestVCReportingLifetime::exceptionLeavesNothingToTheNextReport()
{
    QFETCH(QString, acting);
    const QString level = declaredElement(QStringLiteral("Level"), QStringLiteral("int"));
    QStringList bodies;
    for (const bool isThrown : {false, true}) {
        ReportingScene scene(level + acting);
        Tree tree;
        auto* const value = new ActingValue(QStringLiteral("Acting"), QStringLiteral("2"));
        new ValueItem(value, tree.GetRoot());
        new ValueItem(new ValueNumeric(QStringLiteral("Level"), 1.9), tree.GetRoot());
        scene.AddText(QStringLiteral("First"), QStringLiteral("1"));
        scene.Reporting().AddReportData(tree.GetRoot());
        if (isThrown) {
            value->Act([] { throw Thrown(); });
            QVERIFY_EXCEPTION_THROWN(scene.Reporting().SlotToReport(), Thrown);
            QCOMPARE(scene.ReportFiles(), QStringList());
        }
        bodies += scene.MakeReport();
    }
    QVERIFY2(bodies[0].contains(QLatin1String("<Level>\n  \"1\"\n</Level>")), qPrintable(bodies[0]));
    QCOMPARE(bodies[1], bodies[0]);
}

void TestVCReportingLifetime::nodeKeptOfAReportThatIsOverStandsAlone_data()
{
    QTest::addColumn<Report>("end");
    QTest::newRow("next-press") << Report([](VCReporting& reporting) { QVERIFY(reporting.SlotToReport()); });
    QTest::newRow("next-press-with-a-dialog") << Report([](VCReporting& reporting) {
        reporting.SetShowCommentDialog(true);
        QVERIFY(reporting.SlotToReport());
    });
    QTest::newRow("button-deleted") << Report([](VCReporting&) {});
}

void TestVCReportingLifetime::nodeKeptOfAReportThatIsOverStandsAlone()
{
    QFETCH(Report, end);
    for (const bool hasDialog : {false, true}) {
        ReportingScene scene(declaredElement(QStringLiteral("First"), QStringLiteral("string"))
                             + declaredElement(QStringLiteral("Value"), QStringLiteral("string"),
                                               declaredAttribute(QStringLiteral("Unit"), QStringLiteral("string")))
                             + declaredElement(QStringLiteral("Last"), QStringLiteral("string")));
        scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"), QStringLiteral("kHz"));
        scene.Reporting().SetShowCommentDialog(hasDialog);
        QVERIFY(scene.Reporting().SlotToReport());
        QDomElement value = scene.Reporting().Element(QStringLiteral("Value"));
        QCOMPARE(value.parentNode().nodeName(), QStringLiteral("Report"));
        for (QWidget* const dialog : openDialogs()) {
            dialog->close();
        }
        QCoreApplication::processEvents();

        scene.Reporting().Forget();
        end(scene.Reporting());
        scene.DeleteReporting();
        for (QWidget* const dialog : openDialogs()) {
            dialog->close();
        }
        QCoreApplication::processEvents();
        QCOMPARE(domText(value), bodyText(QStringLiteral("<Value Unit='kHz'>FM</Value>")));
        QVERIFY(value.parentNode().isNull());
        QVERIFY(value.previousSibling().isNull());
        QVERIFY(value.nextSibling().isNull());
        QVERIFY(value.ownerDocument().documentElement().isNull());
        value.appendChild(value.ownerDocument().createElement(QStringLiteral("New")));
        QCOMPARE(value.childNodes().count(), 2);
    }
}

void TestVCReportingLifetime::nodeThatTheWalkRemovedStandsAloneToo()
{
    const QString content = QStringLiteral("<xs:element name='Group' minOccurs='0'><xs:complexType><xs:sequence>"
                                           "<xs:element name='First' type='xs:string'/>"
                                           "<xs:element name='Last' type='xs:string'/>"
                                           "</xs:sequence></xs:complexType></xs:element>");
    ReportingScene scene(content);
    QVERIFY(scene.Reporting().SlotToReport());
    const QDomElement group = scene.Reporting().Element(QStringLiteral("Group"));
    const QDomElement first = scene.Reporting().Element(QStringLiteral("First"));
    QVERIFY(group.parentNode().isNull()); // nothing in it was filled
    QCOMPARE(first.parentNode().nodeName(), QStringLiteral("Group"));

    scene.Reporting().Forget();
    QVERIFY(scene.Reporting().SlotToReport());
    scene.Reporting().Forget();
    scene.DeleteReporting();
    for (const QDomElement& kept : {group, first}) {
        QVERIFY(kept.parentNode().isNull());
        QVERIFY(kept.nextSibling().isNull());
        QVERIFY(kept.ownerDocument().documentElement().isNull());
    }
}

void TestVCReportingLifetime::dialogsShowAndWriteNothingAfterTheyHaveGivenBackAll_data()
{
    QTest::addColumn<bool>("isReleasedFirst");
    QTest::newRow("answered-before-the-next-press") << false;
    QTest::newRow("answered-behind-the-next-press") << true;
}

void TestVCReportingLifetime::dialogsShowAndWriteNothingAfterTheyHaveGivenBackAll()
{
    QFETCH(bool, isReleasedFirst);
    ReportingScene scene(declaredElement(QStringLiteral("Value"), QStringLiteral("string")));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    scene.Reporting().SetShowCommentDialog(true);
    QVERIFY(scene.Reporting().SlotToReport());
    const QPointer<CommentDialogImpl> dialog(qobject_cast<CommentDialogImpl*>(openDialogs().constFirst()));
    if (isReleasedFirst) {
        scene.DeleteReporting();
    }
    dialog->SlotSaveWithoutComment();
    scene.DeleteReporting();
    QCoreApplication::processEvents();
    QCOMPARE(bodyText(scene.Report()), bodyText(QStringLiteral("<Value>FM</Value>")));

    QVERIFY(dialog); // It stays with its builder.
    QCOMPARE(dialog->findChildren<QObject*>().size(), 0);
    QVERIFY(!dialog->windowHandle());
    QVERIFY(QFile::remove(scene.Directory() + QLatin1Char('/') + scene.ReportFiles().constFirst()));
    dialog->SlotSaveWithComment();
    dialog->SlotSaveWithoutComment();
    dialog->ShowReportSummary();
    dialog->show();
    QEvent languageChange(QEvent::LanguageChange);
    QCoreApplication::sendEvent(dialog, &languageChange);
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(dialog->close());
    QVERIFY(!dialog->isVisible());
    QCOMPARE(scene.ReportFiles(), QStringList());
}

void TestVCReportingLifetime::dialogThatCouldNotWriteKeepsEverything()
{
    ReportingScene scene(declaredElement(QStringLiteral("Value"), QStringLiteral("string")));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    scene.Reporting().SetShowCommentDialog(true);
    QVERIFY(scene.Reporting().SlotToReport());
    auto* const dialog = qobject_cast<CommentDialogImpl*>(openDialogs().constFirst());
    QVERIFY(QDir(scene.Directory()).removeRecursively());
    dialog->m_pTextEdit->setPlainText(QStringLiteral("late"));
    dialog->SlotSaveWithComment();
    scene.DeleteReporting();
    QCoreApplication::processEvents();
    QVERIFY(QDir().mkdir(scene.Directory()));
    dialog->SlotSaveWithComment();
    QCOMPARE(bodyText(scene.Report()), bodyText(QStringLiteral("<Value>FM</Value><Comment>late</Comment>")));
}

QTEST_MAIN(TestVCReportingLifetime)
#include "tst_vcreporting_lifetime.moc"
