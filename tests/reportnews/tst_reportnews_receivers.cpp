#include <QtTest>

#include <functional>
#include <memory>

#include <QDir>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTimer>
#include <QToolButton>

#include <xmlhelper/vcreporting.h>

#include "fakeclock.h"
#include "newsrecorder.h"
#include "tracecollector.h"

// What clients are warned of goes on doing what it did.
QT_WARNING_DISABLE_DEPRECATED

/// What those may do who are told of a report, while they are told.
class TestReportNewsReceivers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void mayDeleteTheBuilder_data();
    void mayDeleteTheBuilder();
    void mayDeleteTheDialogOrItsBuilder_data();
    void mayDeleteTheDialogOrItsBuilder();
    void mayDeleteTheDialogOfAButton_data();
    void mayDeleteTheDialogOfAButton();
    void mayDeleteTheButton_data();
    void mayDeleteTheButton();
    void mayMakeAReport_data();
    void mayMakeAReport();
    void mayPressTheButton_data();
    void mayPressTheButton();
    void mayAnswerTheDialog();
    void mayCloseTheDialogThatHasWritten();
    void makeNoSecondReportOfABuilder();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString schema() const { return path(QStringLiteral("schema.xsd")); }
    QString report(bool isWritable) const;
    std::unique_ptr<VCReporting> makeButton(bool isWritable) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    FakeClock m_clock {QDateTime(QDate(2017, 3, 31), QTime(12, 34, 56))};
};

namespace {

/// Calls @p deed for the first signal whose line begins with @p word.
void onceOn(NewsRecorder& recorder, const QString& word, const std::function<void()>& deed)
{
    recorder.On(word, [deed, done = std::make_shared<bool>(false)] {
        if (!std::exchange(*done, true)) {
            deed();
        }
    });
}

/// Answers the question that comes up next.
void answerQuestion(QMessageBox::StandardButton answer)
{
    QTimer::singleShot(0, qApp, [answer] {
        auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(question);
        QTest::mouseClick(question->button(answer), Qt::LeftButton);
    });
}

/// The ways to answer a dialog, by name.
void answer(QDialog* dialog, const QString& way)
{
    auto* const save = dialog->findChild<QPushButton*>(QStringLiteral("m_pSaveButton"));
    auto* const text = dialog->findChild<QTextEdit*>(QStringLiteral("m_pTextEdit"));
    text->setPlainText(way.startsWith(QLatin1String("close")) ? QString() : QStringLiteral("Loud"));
    if (way == QLatin1String("click")) {
        QTest::mouseClick(save, Qt::LeftButton);
    } else if (way == QLatin1String("no-comment")) {
        dialog->findChild<QPushButton*>(QStringLiteral("m_pNoCommentButton"))->click();
    } else if (way == QLatin1String("blank")) {
        QTest::keyClick(save, Qt::Key_Space);
    } else if (way == QLatin1String("control-enter")) {
        dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        QTest::keyClick(text, Qt::Key_Return, Qt::ControlModifier);
    } else if (way == QLatin1String("close-by-escape")) {
        QTest::keyClick(dialog, Qt::Key_Escape);
    } else if (way == QLatin1String("close")) {
        dialog->close();
    } else {
        answerQuestion(way == QLatin1String("yes") ? QMessageBox::Yes : QMessageBox::No);
        dialog->close();
    }
}

void addPlaces(const QStringList& places)
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<bool>("isWritable");
    for (const QString& place : places) {
        QTest::newRow(qPrintable(place)) << place << (place != QLatin1String("not"));
    }
}

} // namespace

void TestReportNewsReceivers::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("reports")));
    QVERIFY(writeFile(schema(), schemaWith()));
}

QString TestReportNewsReceivers::report(bool isWritable) const
{
    return path(isWritable ? QStringLiteral("reports/report.xml") : QStringLiteral("none/report.xml"));
}

std::unique_ptr<VCReporting> TestReportNewsReceivers::makeButton(bool isWritable) const
{
    const QString directory = path(isWritable ? QStringLiteral("reports") : QStringLiteral("none"));
    auto button = std::make_unique<VCReporting>(schema(), directory, nullptr, true, "ToReport", false, QPixmap());
    button->AddExplicitReportData(QStringLiteral("Frequency"), 98.5, 1, QString(), 0, QString());
    return button;
}

void TestReportNewsReceivers::mayDeleteTheBuilder_data()
{
    addPlaces({QStringLiteral("asked"), QStringLiteral("written"), QStringLiteral("not")});
}

/// The last signal of a call.
void TestReportNewsReceivers::mayDeleteTheBuilder()
{
    QFETCH(QString, word);
    QFETCH(bool, isWritable);
    const bool withComment = word == QLatin1String("asked");
    NewsRecorder recorder(m_folder->path());
    FilledReport filled;
    onceOn(recorder, word, [&] { filled.DeleteBuilder(); });
    QVERIFY(filled.Builder().CreateXmlFromSchema(schema(), report(isWritable), withComment));
    QVERIFY(recorder.Lines().last().startsWith(QStringLiteral("1 ") + word));
    QVERIFY(!recorder.Dialog());
    QCOMPARE(QFile::exists(report(true)), word == QLatin1String("written"));
}

void TestReportNewsReceivers::mayDeleteTheDialogOrItsBuilder_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("isWritable");
    QTest::addColumn<bool>("isDialogAlone");
    for (const char* const way :
         {"click", "no-comment", "blank", "control-enter", "close", "close-by-escape", "yes", "no"}) {
        for (const bool isDialogAlone : {false, true}) {
            const char* const what = isDialogAlone ? "dialog" : "builder";
            QTest::addRow("%s-%s-written", what, way) << QString::fromLatin1(way) << true << isDialogAlone;
            QTest::addRow("%s-%s-not-written", what, way) << QString::fromLatin1(way) << false << isDialogAlone;
        }
    }
}

void TestReportNewsReceivers::mayDeleteTheDialogOrItsBuilder()
{
    QFETCH(QString, way);
    QFETCH(bool, isWritable);
    QFETCH(bool, isDialogAlone);
    NewsRecorder recorder(m_folder->path());
    FilledReport filled;
    const QString word = isWritable ? QStringLiteral("written") : QStringLiteral("not");
    onceOn(recorder, word, [&] {
        if (isDialogAlone) {
            delete recorder.Dialog();
        } else {
            filled.DeleteBuilder();
        }
    });
    QVERIFY(filled.Builder().CreateXmlFromSchema(schema(), report(isWritable), true));
    answer(recorder.Dialog(), way);
    QVERIFY(recorder.Lines().last().startsWith(QStringLiteral("1 ") + word));
    QVERIFY(!recorder.Dialog());
    QCoreApplication::processEvents();
    QCOMPARE(int(recorder.Lines().size()), 4);
}

void TestReportNewsReceivers::mayDeleteTheDialogOfAButton_data()
{
    addPlaces({QStringLiteral("asked"), QStringLiteral("written"), QStringLiteral("not")});
}

/// The next press gives back what the report held.
void TestReportNewsReceivers::mayDeleteTheDialogOfAButton()
{
    QFETCH(QString, word);
    QFETCH(bool, isWritable);
    NewsRecorder recorder(m_folder->path());
    const std::unique_ptr<VCReporting> button = makeButton(isWritable);
    button->SetShowCommentDialog(true);
    onceOn(recorder, word, [&] { delete recorder.Dialog(); });
    for (int press = 0; press < 2; ++press) {
        m_clock.Advance(1000);
        QVERIFY(button->SlotToReport());
        if (recorder.Dialog()) {
            recorder.Dialog()->close();
        }
    }
    const QStringList last = recorder.Lines().filter(QRegularExpression(QStringLiteral("^2 (not )?written")));
    QCOMPARE(int(last.size()), 1);
}

void TestReportNewsReceivers::mayDeleteTheButton_data()
{
    addPlaces({QStringLiteral("begun"), QStringLiteral("schema"), QStringLiteral("asked"), QStringLiteral("written"),
               QStringLiteral("not")});
}

/// The report is told to its end; a dialog can be answered.
void TestReportNewsReceivers::mayDeleteTheButton()
{
    QFETCH(QString, word);
    QFETCH(bool, isWritable);
    for (const bool isClicked : {false, true}) {
        NewsRecorder recorder(m_folder->path());
        std::unique_ptr<VCReporting> button = makeButton(isWritable);
        button->SetShowCommentDialog(word == QLatin1String("asked"));
        onceOn(recorder, word, [&] { button.reset(); });
        m_clock.Advance(1000);
        if (isClicked) {
            button->EnableReportButton(true);
            button->GetReportButton()->setEnabled(true);
            button->GetReportButton()->click();
        } else {
            QVERIFY(button->SlotToReport());
        }
        QVERIFY(!button);
        if (recorder.Dialog()) {
            recorder.Dialog()->close();
        }
        QVERIFY(
            recorder.Lines().last().contains(isWritable ? QLatin1String("1 written") : QLatin1String("1 not written")));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void TestReportNewsReceivers::mayMakeAReport_data()
{
    mayDeleteTheButton_data();
}

/// By a builder of its own; both are as if each had been made alone.
void TestReportNewsReceivers::mayMakeAReport()
{
    QFETCH(QString, word);
    QFETCH(bool, isWritable);
    const bool withComment = word == QLatin1String("asked");
    NewsRecorder recorder(m_folder->path());
    FilledReport outer;
    FilledReport inner;
    const QString innerReport = path(QStringLiteral("reports/inner.xml"));
    bool isInnerMade = false;
    onceOn(recorder, word, [&] { isInnerMade = inner.Builder().CreateXmlFromSchema(schema(), innerReport, false); });
    QVERIFY(outer.Builder().CreateXmlFromSchema(schema(), report(isWritable), withComment));
    QVERIFY(isInnerMade);
    if (withComment) {
        recorder.Dialog()->close();
    }
    QStringList inside;
    QStringList outside;
    for (const QString& line : recorder.Lines()) {
        (line.startsWith(QLatin1Char('2')) ? inside : outside) << line;
    }
    QCOMPARE(int(inside.size()), 3);
    QCOMPARE(int(outside.size()), withComment ? 4 : 3);
    QVERIFY(inside.last().startsWith(QLatin1String("2 written reports/inner.xml")));
    QCOMPARE(bytesOf(report(isWritable)), isWritable ? bytesOf(innerReport) : QByteArray("(no file)"));
}

void TestReportNewsReceivers::mayPressTheButton_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<bool>("isDialogs");
    QTest::newRow("begun") << QStringLiteral("begun") << false;
    QTest::newRow("schema-read") << QStringLiteral("schema") << false;
    QTest::newRow("comment-asked") << QStringLiteral("asked") << false;
    QTest::newRow("written") << QStringLiteral("written") << false;
    QTest::newRow("written-by-the-dialog") << QStringLiteral("written") << true;
}

/// A press is refused while the button makes a report, and makes one when the dialog has been answered.
void TestReportNewsReceivers::mayPressTheButton()
{
    QFETCH(QString, word);
    QFETCH(bool, isDialogs);
    NewsRecorder recorder(m_folder->path());
    const std::unique_ptr<VCReporting> button = makeButton(true);
    button->SetShowCommentDialog(isDialogs || word == QLatin1String("asked"));
    bool isPressTaken = false;
    onceOn(recorder, word, [&] {
        button->SetShowCommentDialog(false);
        m_clock.Advance(1000);
        isPressTaken = button->SlotToReport();
    });
    const TraceCollector traces;
    QVERIFY(button->SlotToReport());
    if (recorder.Dialog()) {
        recorder.Dialog()->close();
    }
    QCOMPARE(isPressTaken, isDialogs);
    QCOMPARE(traces.Messages(),
             isDialogs ? QString() : QStringLiteral("No report is made while another one is being filled!"));
    QCOMPARE(int(recorder.Lines().filter(QStringLiteral(" written ")).size()), isDialogs ? 2 : 1);
    QCOMPARE(int(QDir(path(QStringLiteral("reports"))).entryList(QDir::Files).size()), isDialogs ? 2 : 1);
}

void TestReportNewsReceivers::mayAnswerTheDialog()
{
    NewsRecorder recorder(m_folder->path());
    onceOn(recorder, QStringLiteral("asked"), [&] { recorder.Dialog()->close(); });
    FilledReport filled;
    QVERIFY(filled.Builder().CreateXmlFromSchema(schema(), report(true), true));
    QCOMPARE(int(recorder.Lines().size()), 4);
    QVERIFY(recorder.Lines().last().startsWith(QLatin1String("1 written reports/report.xml")));
    QVERIFY(!recorder.Dialog()->isVisible());
}

/// It is not written once more: it knows already that it has been.
void TestReportNewsReceivers::mayCloseTheDialogThatHasWritten()
{
    NewsRecorder recorder(m_folder->path());
    recorder.On(QStringLiteral("written"), [&] { recorder.Dialog()->close(); });
    FilledReport filled;
    QVERIFY(filled.Builder().CreateXmlFromSchema(schema(), report(true), true));
    recorder.Dialog()->findChild<QPushButton*>(QStringLiteral("m_pSaveButton"))->click();
    QCOMPARE(int(recorder.Lines().size()), 4);
}

void TestReportNewsReceivers::makeNoSecondReportOfABuilder()
{
    NewsRecorder recorder(m_folder->path());
    FilledReport filled;
    int refusals = 0;
    for (const char* const word : {"begun", "schema", "written"}) {
        recorder.On(QString::fromLatin1(word),
                    [&] { refusals += filled.Builder().CreateXmlFromSchema(schema(), report(true), false) ? 0 : 1; });
    }
    QVERIFY(filled.Builder().CreateXmlFromSchema(schema(), report(true), false));
    QCOMPARE(refusals, 3);
    QCOMPARE(int(recorder.Lines().size()), 3);
}

QTEST_MAIN(TestReportNewsReceivers)
#include "tst_reportnews_receivers.moc"
