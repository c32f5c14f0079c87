#include <QtTest>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QToolButton>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuenumeric.h>
#include <valueframework/valuetext.h>
#include <xmlhelper/commentdialogimpl.h>
#include <xmlhelper/reportdata.h>
#include <xmlhelper/vcreporting.h>

#include "domtext.h"
#include "fakeclock.h"
#include "filesizelimit.h"
#include "strictreading.h"
#include "tracecollector.h"

/// What operators, disks and applications do to the report button and to its dialogs.
class TestRobustnessDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void schemaThatIsGoneAtThePressFailsTheReport();
    void directoryThatIsGoneAtThePressWritesNothing();
    void directoryThatIsGoneAtTheAnswerLeavesTheDialogToTryAgain();
    void directoryThatTakesNoFilesWritesNothing();
    void fileNameThatIsTooLongWritesNothing();
    void fullDiskKeepsNoHalfOfAReport();
    void fullDiskLeavesTheDialogToTryAgain();
    void pressesWithinOneMillisecondWriteOneWholeReport();

    void dialogsMayBeClosedInAnyOrder_data();
    void dialogsMayBeClosedInAnyOrder();
    void applicationMayQuitOverOpenDialogs_data();
    void applicationMayQuitOverOpenDialogs();

    void commentsKeepWhatXmlCanCarry_data();
    void commentsKeepWhatXmlCanCarry();
    void commentOfWhichNothingIsLeftIsNone();
    void commentOfMegabytesIsSaved_data();
    void commentOfMegabytesIsSaved();

    void valueThatWentAwayIsReadAsNone();
    void valueThatGaveItsPlaceToAnotherIsReadAsNone();
    void valuesOfATreeThatWentAwayAreReadAsNone();
    void valueThatChangesIsReadAtThePress();
    void withoutAValueTreeFixedTextsAreWritten();

private:
    QString schema() const { return m_folder->filePath(QStringLiteral("schema.xsd")); }
    QString directory() const { return m_folder->filePath(QStringLiteral("reports")); }
    /// The report named after the time the clock shows, and @p milliseconds later.
    QString report(int milliseconds = 0) const;
    QStringList reports() const { return QDir(directory()).entryList(QDir::Files, QDir::Name); }
    QString textOf(const char* name) const;
    VCReporting& reporting() const { return *m_reporting; }
    void press() const { m_reporting->GetReportButton()->click(); }
    void pressWithDialog();
    CommentDialogImpl* openDialog() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FakeClock> m_clock;
    std::unique_ptr<VCReporting> m_reporting;
};

namespace {

QByteArray schemaText()
{
    return R"(<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
  <xs:element name="Report">
    <xs:complexType>
      <xs:sequence>
        <xs:element name="Frequency" type="xs:double"/>
        <xs:element name="Mode" type="xs:string"/>
      </xs:sequence>
    </xs:complexType>
  </xs:element>
</xs:schema>)";
}

/// The dialogs that are open, in the order of their reports.
std::vector<CommentDialogImpl*> openDialogs()
{
    std::vector<CommentDialogImpl*> dialogs;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        auto* const dialog = qobject_cast<CommentDialogImpl*>(widget);
        if (dialog && dialog->isVisible()) {
            dialogs.push_back(dialog);
        }
    }
    return dialogs;
}

void typeComment(CommentDialogImpl& dialog, const QString& comment)
{
    dialog.findChild<QTextEdit*>(QStringLiteral("m_pTextEdit"))->setPlainText(comment);
}

void click(CommentDialogImpl& dialog, const char* button)
{
    QTest::mouseClick(dialog.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
}

QString commentIn(const QString& fileName)
{
    const QDomElement comment = documentInFile(fileName).documentElement().firstChildElement(QStringLiteral("Comment"));
    return comment.isNull() ? QStringLiteral("(none)") : comment.text();
}

} // namespace

void TestRobustnessDialog::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(QDir().mkdir(directory()));
    QFile file(schema());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(schemaText()), qint64(schemaText().size()));
    file.close();
    m_clock = std::make_unique<FakeClock>(QDateTime(QDate(2017, 3, 31), QTime(12, 34, 56, 7)));
    m_reporting = std::make_unique<VCReporting>(schema(), directory(), nullptr, true, "ToReport", false, QPixmap());
    m_reporting->AddReportData(QStringLiteral("Mode"), QString(), QStringLiteral("FM"), 1, QString(), 0, QString());
}

void TestRobustnessDialog::cleanup()
{
    for (CommentDialogImpl* const dialog : openDialogs()) {
        dialog->hide();
    }
    m_reporting.reset();
    m_clock.reset();
}

QString TestRobustnessDialog::report(int milliseconds) const
{
    return directory() + QStringLiteral("/2017-03-31_12-34-56-%1.xml").arg(7 + milliseconds);
}

QString TestRobustnessDialog::textOf(const char* name) const
{
    return documentInFile(report()).documentElement().firstChildElement(QLatin1String(name)).text();
}

CommentDialogImpl* TestRobustnessDialog::openDialog() const
{
    const std::vector<CommentDialogImpl*> dialogs = openDialogs();
    return dialogs.empty() ? nullptr : dialogs.back();
}

void TestRobustnessDialog::pressWithDialog()
{
    m_reporting->SetShowCommentDialog(true);
    press();
    QCOMPARE(int(openDialogs().size()), 1);
}

void TestRobustnessDialog::schemaThatIsGoneAtThePressFailsTheReport()
{
    QSignalSpy failures(&reporting(), &VCReporting::ReportNotSuccessful);
    QVERIFY(QFile::remove(schema()));
    QVERIFY(reporting().GetReportButton()->isEnabled()); // The watch has not looked yet.
    press();
    QCOMPARE(int(failures.count()), 1);
    // What there is of a report is the declaration, which nobody takes for one.
    QVERIFY(!strictErrorOf(report()).isEmpty());
}

void TestRobustnessDialog::directoryThatIsGoneAtThePressWritesNothing()
{
    QVERIFY(QDir(directory()).removeRecursively());
    press();
    QVERIFY(!QFile::exists(directory()));
    QVERIFY(QDir().mkdir(directory()));
    press();
    QCOMPARE(strictErrorOf(report()), QString());
}

void TestRobustnessDialog::directoryThatIsGoneAtTheAnswerLeavesTheDialogToTryAgain()
{
    pressWithDialog();
    CommentDialogImpl& dialog = *openDialog();
    QVERIFY(QDir(directory()).removeRecursively());
    typeComment(dialog, QStringLiteral("comment"));
    click(dialog, "m_pSaveButton");
    QVERIFY(!QFile::exists(directory()));
    QVERIFY(QDir().mkdir(directory()));
    dialog.SlotSaveWithComment();
    QCOMPARE(strictErrorOf(report()), QString());
    QCOMPARE(commentIn(report()), QStringLiteral("comment"));
}

void TestRobustnessDialog::directoryThatTakesNoFilesWritesNothing()
{
    QVERIFY(QFile::setPermissions(directory(), QFile::ReadOwner | QFile::ExeOwner));
    QString closed = directory();
    if (QFile(directory() + QStringLiteral("/probe")).open(QIODevice::WriteOnly)) {
        // The superuser may write everywhere, but not here.
        QFile::remove(directory() + QStringLiteral("/probe"));
        closed = QStringLiteral("/proc/self");
    }
    if (!QFile::exists(closed)) {
        QSKIP("There is no directory here that takes no files.");
    }
    const QStringList before = QDir(closed).entryList(QDir::AllEntries);
    VCReporting onClosed(schema(), closed, nullptr, true, "ToReport", false, QPixmap());
    QSignalSpy successes(&onClosed, &VCReporting::ReportSuccessful);
    onClosed.GetReportButton()->click();
    QCOMPARE(int(successes.count()), 1); // The result is that of reading the schema.
    onClosed.SetShowCommentDialog(true);
    onClosed.GetReportButton()->click();
    typeComment(*openDialog(), QStringLiteral("comment"));
    click(*openDialog(), "m_pSaveButton");
    QCOMPARE(QDir(closed).entryList(QDir::AllEntries), before);
    QFile::setPermissions(directory(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void TestRobustnessDialog::fileNameThatIsTooLongWritesNothing()
{
    for (const int length : {300, 5000, 100000}) {
        const QString tooLong = directory() + QLatin1Char('/') + QString(length, QLatin1Char('d'));
        VCReporting onTooLong(schema(), tooLong, nullptr, true, "ToReport", false, QPixmap());
        QVERIFY(!onTooLong.GetReportButton()->isEnabled());
        QVERIFY(onTooLong.SlotToReport());
        onTooLong.SetShowCommentDialog(true);
        QVERIFY(onTooLong.SlotToReport());
        click(*openDialog(), "m_pNoCommentButton");
    }
    QCOMPARE(reports(), QStringList());
}

void TestRobustnessDialog::fullDiskKeepsNoHalfOfAReport()
{
    if (!FileSizeLimit::IsSupported()) {
        QSKIP("The size of files cannot be limited here.");
    }
    const TraceCollector traces;
    {
        const FileSizeLimit limit(100);
        press();
    }
    QCOMPARE(reports(), QStringList());
    QVERIFY(traces.Messages().contains(QStringLiteral("Only a part could be written of ")));
    press();
    QCOMPARE(strictErrorOf(report()), QString());
}

void TestRobustnessDialog::fullDiskLeavesTheDialogToTryAgain()
{
    if (!FileSizeLimit::IsSupported()) {
        QSKIP("The size of files cannot be limited here.");
    }
    pressWithDialog();
    CommentDialogImpl& dialog = *openDialog();
    typeComment(dialog, QStringLiteral("comment").repeated(1000));
    {
        const FileSizeLimit limit(4096);
        click(dialog, "m_pSaveButton");
    }
    QCOMPARE(reports(), QStringList());
    dialog.SlotSaveWithComment();
    QCOMPARE(strictErrorOf(report()), QString());
    QCOMPARE(commentIn(report()), QStringLiteral("comment").repeated(1000));
}

void TestRobustnessDialog::pressesWithinOneMillisecondWriteOneWholeReport()
{
    press();
    press();
    QCOMPARE(int(reports().size()), 1);
    QCOMPARE(strictErrorOf(report()), QString());

    m_reporting->SetShowCommentDialog(true);
    press();
    press();
    for (CommentDialogImpl* const dialog : openDialogs()) {
        typeComment(*dialog, QStringLiteral("comment"));
        click(*dialog, "m_pSaveButton");
    }
    QCOMPARE(int(reports().size()), 1);
    QCOMPARE(strictErrorOf(report()), QString());
    QCOMPARE(commentIn(report()), QStringLiteral("comment"));
}

void TestRobustnessDialog::dialogsMayBeClosedInAnyOrder_data()
{
    QTest::addColumn<uint>("seed");
    for (uint seed = 1; seed <= 10; ++seed) {
        QTest::addRow("order-%u", seed) << seed;
    }
}

void TestRobustnessDialog::dialogsMayBeClosedInAnyOrder()
{
    QFETCH(uint, seed);
    m_reporting->SetShowCommentDialog(true);
    struct Open
    {
        CommentDialogImpl* dialog;
        QString file;
        QString comment;
    };
    std::vector<Open> all;
    for (int number = 0; number < 10; ++number) {
        press();
        for (CommentDialogImpl* const dialog : openDialogs()) {
            if (std::none_of(all.begin(), all.end(), [dialog](const Open& open) { return open.dialog == dialog; })) {
                all.push_back({dialog, report(number), QStringLiteral("comment %1").arg(number)});
            }
        }
        m_clock->Advance(1);
    }
    QCOMPARE(int(all.size()), 10);

    std::mt19937 random(seed);
    std::shuffle(all.begin(), all.end(), random);
    int way = 0;
    for (Open& open : all) {
        switch (way++ % 4) {
        case 0:
            typeComment(*open.dialog, open.comment);
            click(*open.dialog, "m_pSaveButton");
            break;
        case 1:
            open.comment = QStringLiteral("(none)");
            click(*open.dialog, "m_pNoCommentButton");
            break;
        case 2:
            open.comment = QStringLiteral("(none)");
            QTest::keyClick(open.dialog, Qt::Key_Escape);
            break;
        default:
            open.comment = QStringLiteral("(none)");
            open.dialog->close();
            break;
        }
        QVERIFY(!open.dialog->isVisible());
    }
    for (const Open& open : all) {
        QCOMPARE(strictErrorOf(open.file), QString());
        QCOMPARE(commentIn(open.file), open.comment);
    }
    QCOMPARE(int(reports().size()), 10);
}

void TestRobustnessDialog::applicationMayQuitOverOpenDialogs_data()
{
    QTest::addColumn<bool>("isWritten");
    QTest::newRow("return") << false;
    QTest::newRow("close-windows") << true;
    // Qt 6 asks all windows to close before it quits.
    QTest::newRow("quit") << (QT_VERSION >= QT_VERSION_CHECK(6, 0, 0));
}

/// Dialogs that are asked to close write their reports; those that the end of the process meets do not.
void TestRobustnessDialog::applicationMayQuitOverOpenDialogs()
{
    QFETCH(bool, isWritten);
    QProcess application;
    application.start(QStringLiteral(QUITTING_APPLICATION),
                      {schema(), directory(), QString::fromLatin1(QTest::currentDataTag())});
    QVERIFY(application.waitForFinished(60000));
    QCOMPARE(application.exitStatus(), QProcess::NormalExit);
    QCOMPARE(application.exitCode(), 0);
    QCOMPARE(int(reports().size()), isWritten ? 3 : 0);
    for (const QString& name : reports()) {
        QCOMPARE(strictErrorOf(directory() + QLatin1Char('/') + name), QString());
    }
}

void TestRobustnessDialog::commentsKeepWhatXmlCanCarry_data()
{
    QTest::addColumn<QString>("comment");
    QTest::addColumn<QString>("kept");
    const QString ab = QStringLiteral("ab");
    QTest::newRow("control-characters") << QStringLiteral("a\u0001\u0008\u001Bb") << ab;
    QTest::newRow("half-of-a-surrogate-pair") << QStringLiteral("a") + QChar(0xD83D) + QStringLiteral("b") << ab;
    QTest::newRow("ffff") << QStringLiteral("ab") + QChar(0xFFFF) << ab;
    QTest::newRow("end-of-a-section") << QStringLiteral("a]]>b") << QStringLiteral("a]]>b");
    QTest::newRow("markup") << QStringLiteral("<a b='c'>&amp;") << QStringLiteral("<a b='c'>&amp;");
    QTest::newRow("pair-of-surrogates") << QString::fromUtf8("\xF0\x9F\x98\x80")
                                        << QString::fromUtf8("\xF0\x9F\x98\x80");
}

void TestRobustnessDialog::commentsKeepWhatXmlCanCarry()
{
    QFETCH(QString, comment);
    QFETCH(QString, kept);
    const TraceCollector traces;
    pressWithDialog();
    typeComment(*openDialog(), comment);
    click(*openDialog(), "m_pSaveButton");
    QCOMPARE(strictErrorOf(report()), QString());
    QCOMPARE(commentIn(report()), kept);
    QCOMPARE(traces.Messages().contains(QStringLiteral("CommentDialogImpl: XML cannot carry ")), comment != kept);
}

void TestRobustnessDialog::commentOfWhichNothingIsLeftIsNone()
{
    pressWithDialog();
    typeComment(*openDialog(), QStringLiteral("\u0001\u0002"));
    click(*openDialog(), "m_pSaveButton");
    QCOMPARE(strictErrorOf(report()), QString());
    QCOMPARE(commentIn(report()), QStringLiteral("(none)"));
}

void TestRobustnessDialog::commentOfMegabytesIsSaved_data()
{
    QTest::addColumn<QString>("comment");
    QTest::newRow("a-megabyte-in-one-line") << QStringLiteral("x").repeated(1000000);
    QTest::newRow("ten-megabytes-of-what-needs-escaping")
        << (QStringLiteral("<").repeated(99) + QLatin1Char('\n')).repeated(100000);
    QTest::newRow("a-megabyte-of-section-ends")
        << (QStringLiteral("]]>").repeated(33) + QLatin1Char('\n')).repeated(10000);
}

void TestRobustnessDialog::commentOfMegabytesIsSaved()
{
    QFETCH(QString, comment);
    pressWithDialog();
    typeComment(*openDialog(), comment);
    click(*openDialog(), "m_pSaveButton");
    QCOMPARE(strictErrorOf(report()), QString());
    QVERIFY(commentIn(report()) == comment);
}

void TestRobustnessDialog::valueThatWentAwayIsReadAsNone()
{
    const Tree tree;
    auto mode
        = std::make_unique<ValueItem>(new ValueText(QStringLiteral("Mode"), QStringLiteral("AM")), tree.GetRoot());
    auto frequency = std::make_unique<ValueItem>(new ValueNumeric(QStringLiteral("Frequency"), 98.5), tree.GetRoot());
    reporting().ClearReportData();
    reporting().AddReportData(tree.GetRoot());
    mode.reset();
    frequency.reset();
    press();
    QCOMPARE(strictErrorOf(report()), QString());
    QCOMPARE(textOf("Mode"), QString());
    QCOMPARE(textOf("Frequency"), QString());
}

void TestRobustnessDialog::valueThatGaveItsPlaceToAnotherIsReadAsNone()
{
    const Tree tree;
    auto mode
        = std::make_unique<ValueItem>(new ValueText(QStringLiteral("Mode"), QStringLiteral("AM")), tree.GetRoot());
    const ReportData item(QStringLiteral("Mode"), QStringLiteral("Mode"), QString(), 1, QString(), 0, QString(), false);
    // Made before the first goes away, so that it cannot stand where that stood.
    new ValueItem(new ValueText(QStringLiteral("Mode"), QStringLiteral("CW")), tree.GetRoot());
    mode.reset();
    QString text = QStringLiteral("untouched");
    QVERIFY(!item.GetDataValue(text));
    QCOMPARE(text, QStringLiteral("untouched"));
    double number = 1.0;
    QVERIFY(!item.GetDataValue(number));
}

void TestRobustnessDialog::valuesOfATreeThatWentAwayAreReadAsNone()
{
    auto tree = std::make_unique<Tree>();
    new ValueItem(new ValueText(QStringLiteral("Mode"), QStringLiteral("AM")), tree->GetRoot());
    new ValueItem(new ValueText(QStringLiteral("Inner"), QStringLiteral("CW")),
                  new Node(QStringLiteral("Node"), tree->GetRoot()));
    reporting().ClearReportData();
    reporting().AddReportData(tree->GetRoot());
    reporting().AddReportData(QStringLiteral("Frequency"), QStringLiteral("Node"), QString(), 1, QString(), 0,
                              QString());
    tree.reset();
    press();
    QCOMPARE(strictErrorOf(report()), QString());
    QCOMPARE(textOf("Mode"), QString());
}

void TestRobustnessDialog::valueThatChangesIsReadAtThePress()
{
    const Tree tree;
    auto* const mode = new ValueText(QStringLiteral("Mode"), QStringLiteral("AM"));
    new ValueItem(mode, tree.GetRoot());
    reporting().ClearReportData();
    reporting().AddReportData(tree.GetRoot());
    mode->SetText(QStringLiteral("C\u0001W"));
    press();
    QCOMPARE(strictErrorOf(report()), QString());
    QCOMPARE(textOf("Mode"), QStringLiteral("CW"));
}

void TestRobustnessDialog::withoutAValueTreeFixedTextsAreWritten()
{
    QVERIFY(!Tree::Instance());
    reporting().AddReportData(QStringLiteral("Frequency"), QStringLiteral("Receiver/Frequency"), QStringLiteral("1"), 1,
                              QString(), 0, QString());
    press();
    QCOMPARE(strictErrorOf(report()), QString());
    QCOMPARE(textOf("Mode"), QStringLiteral("FM"));
    QCOMPARE(textOf("Frequency"), QString());
}

QTEST_MAIN(TestRobustnessDialog)
#include "tst_robustness_dialog.moc"
