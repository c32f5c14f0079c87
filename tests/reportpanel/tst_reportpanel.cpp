#include <QtTest>

#include <QClipboard>
#include <QDesktopServices>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>
#include <QTabBar>
#include <QTableView>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTextEdit>

#include <vornappstartup/translationcenter.h>
#include <xmlhelper/reportnews.h>
#include <xmlhelper/xmlhelper.h>
#include <xmlhelperreportwidgets/reportpanel.h>
#include <xmlhelperreportwidgets/reportwords_p.h>

#include "desk.h"

using State = ReportSupervisor::State;

namespace {

using Make = std::function<quint64(Desk&)>;

/// What is asked of a station: two values that both are needed.
const char SurveySchema[] = "<?xml version='1.0' encoding='UTF-8'?>"
                            "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>"
                            "<xs:element name='Survey'>"
                            "<xs:complexType>"
                            "<xs:sequence>"
                            "<xs:element name='Station' type='xs:string'>"
                            "<xs:annotation><xs:documentation>Name of the station</xs:documentation></xs:annotation>"
                            "</xs:element>"
                            "<xs:element name='Level' type='xs:double'/>"
                            "</xs:sequence>"
                            "</xs:complexType>"
                            "</xs:element>"
                            "</xs:schema>";

/// Knows the station, and forgets the level.
class Surveyor : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent* event) override
    {
        auto* const element = dynamic_cast<ElemBeginEvent*>(event);
        if (element && element->GetElementName() == QLatin1String("Station")) {
            builder->SetXmlValue(QStringLiteral("Tower"));
        }
    }

    XmlCreateReport* builder = nullptr; ///< not owned
};

void speak(const QString& language)
{
    TranslationCenter::Instance().InstallTranslators(QLocale(language), QStringLiteral(XMLHELPER_TRANSLATIONS));
}

bool areTranslationsMade()
{
    return QFileInfo::exists(QStringLiteral(XMLHELPER_TRANSLATIONS "/XMLHelperReportWidgets_de.qm"));
}

/// What the desktop is told to open, in place of the desktop.
class OpenedUrls : public QObject
{
    Q_OBJECT

public:
    explicit OpenedUrls(const char* slot = "Open")
    {
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, slot);
    }
    ~OpenedUrls() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

public Q_SLOTS:
    void Open(const QUrl& url) { urls.append(url); }

public:
    QList<QUrl> urls;

private:
    Q_DISABLE_COPY(OpenedUrls)
};

QStringList mnemonicsOf(const ReportPanel& panel)
{
    QStringList texts;
    const QList<QPushButton*> buttons = panel.findChildren<QPushButton*>();
    for (const QPushButton* const button : buttons) {
        texts.append(button->text());
    }
    const QList<QLabel*> labels = panel.findChildren<QLabel*>();
    for (const QLabel* const label : labels) {
        if (label->buddy()) {
            texts.append(label->text());
        }
    }
    const auto* const tabs = panel.findChild<QTabWidget*>();
    for (int i = 0; i < tabs->count(); ++i) {
        texts.append(tabs->tabText(i));
    }
    QStringList mnemonics;
    for (const QString& text : qAsConst(texts)) {
        mnemonics.append(QKeySequence::mnemonic(text).toString());
    }
    return mnemonics;
}

/// The texts that are cut off, with where they are.
QStringList cutOff(const ReportPanel& panel)
{
    QStringList cut;
    const QList<QLabel*> labels = panel.findChildren<QLabel*>();
    for (const QLabel* const label : labels) {
        const bool mayBeElided = !label->wordWrap() && label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
        const int width = mayBeElided ? 0 : label->wordWrap() ? 0 : label->sizeHint().width();
        const int height = label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        if (label->isVisible() && (label->width() < width || label->height() < height)) {
            cut.append(label->objectName() + QLatin1String(": ") + label->text());
        }
    }
    const QList<QPushButton*> buttons = panel.findChildren<QPushButton*>();
    for (const QPushButton* const button : buttons) {
        const bool isInside = panel.rect().contains(QRect(button->mapTo(&panel, QPoint()), button->size()));
        const QSize needed = button->sizeHint();
        if (button->isVisible()
            && (!isInside || button->width() < needed.width() || button->height() < needed.height())) {
            cut.append(button->text());
        }
    }
    return cut;
}

} // namespace

Q_DECLARE_METATYPE(Make)

/// What an operator sees and does.
class TestReportPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void wordsAndSignsAreNeverTheSame();
    void tellsEveryState_data();
    void tellsEveryState();
    void theListDrivesAll();
    void showsThePage();
    void saysWhyThereIsNoPage();
    void letsTheProgramAddToThePage();
    void exports_data();
    void exports();
    void exportsWhatIsChosenWhereTheNameDoesNotSay_data();
    void exportsWhatIsChosenWhereTheNameDoesNotSay();
    void saysWhenItCannotExport();
    void asksForThePrinter();
    void followsTheNewest();
    void disturbsNobodyWhoLooksAtAnOlderOne();
    void takesBackWhatIsNoLongerTrue();
    void readsAgainWhatHasChanged();
    void opensTheFile();
    void opensWhatHasNoFolderInItsPath();
    void tellsWhereTheFileOfTheButtonWillBe();
    void saysWhenNothingOpensTheFile();
    void showsTheFolder();
    void copiesThePathByItsKey();
    void triesAgain();
    void savesElsewhere();
    void discardsOnlyWhenMeant_data();
    void discardsOnlyWhenMeant();
    void tellsHowManyAreKept();
    void offersWhatEarlierProcessesLeft();
    void bringsTheCommentDialogBack();
    void showsAReportBeforeItIsSaved();
    void quitsWithoutAQuestionWhenNothingIsLost();
    void asksBeforeReportsAreLost_data();
    void asksBeforeReportsAreLost();
    void namesTenOfManyThatWouldBeLost();
    void takesNamesForText();
    void shortensWhatDoesNotFit();
    void looksAtManyReports();
    void showsTheBeginningOfALargeFile_data();
    void showsTheBeginningOfALargeFile();
    void everyButtonHasAKeyOfItsOwn_data();
    void everyButtonHasAKeyOfItsOwn();
    void everyTextFits_data();
    void everyTextFits();
    void changesItsLanguageAtOnce();
    void showsWhereTheKeyboardIs();
    void tabGoesFromTopToBottom();
    void remembersOnlyWhenToldTo();
    void goesBeforeItsSupervisor();
    void goesWhileItAsks_data();
    void goesWhileItAsks();
};

void TestReportPanel::initTestCase()
{
    TranslationCenter::Instance().Register(QStringLiteral("XMLHelper"));
    TranslationCenter::Instance().Register(QStringLiteral("XMLHelperReportWidgets"));
}

void TestReportPanel::cleanup()
{
    speak(QStringLiteral("en"));
}

void TestReportPanel::wordsAndSignsAreNeverTheSame()
{
    const QMetaEnum states = QMetaEnum::fromType<State>();
    QSet<QString> signs;
    QSet<QString> words;
    QSet<QString> sentences;
    ReportSupervisor::Verdict verdict;
    for (int i = 0; i < states.keyCount(); ++i) {
        verdict.state = static_cast<State>(states.value(i));
        signs.insert(ReportWords::Sign(verdict));
        words.insert(ReportWords::Word(verdict));
        sentences.insert(ReportWords::Sentence(verdict));
    }
    verdict.state = State::Written;
    verdict.schemaFault = QStringLiteral("no root");
    signs.insert(ReportWords::Sign(verdict));
    words.insert(ReportWords::Word(verdict));
    sentences.insert(ReportWords::Sentence(verdict));
    QCOMPARE(int(signs.size()), states.keyCount() + 1);
    QCOMPARE(int(words.size()), states.keyCount() + 1);
    QCOMPARE(int(sentences.size()), states.keyCount() + 1);
    QVERIFY(!signs.contains(QString()) && !words.contains(QString()));
}

void TestReportPanel::tellsEveryState_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QString>("sign");
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<QString>("advice"); // a part of it
    QTest::addColumn<QStringList>("buttons"); // besides those for the path
    const QStringList kept {QStringLiteral("reportTryAgain"), QStringLiteral("reportSaveElsewhere"),
                            QStringLiteral("reportDiscard")};
    const QStringList open {QStringLiteral("reportOpen")};
    const auto row = [](const char* name, const Make& make, const QString& sign, const char* sentence,
                        const char* advice, const QStringList& buttons) {
        QTest::newRow(name) << make << sign << QString::fromLatin1(sentence) << QString::fromLatin1(advice) << buttons;
    };
    row("making", [](Desk& desk) { return desk.station.Begin(desk.PathOf("a.xml")); }, signOf(State::Making),
        "Report a.xml is being made.", "", {});
    row("waiting",
        [](Desk& desk) {
            const quint64 report = desk.station.Begin(desk.PathOf("a.xml"));
            auto* const dialog = new QDialog(desk.panel.get());
            dialog->show();
            Q_EMIT ReportNews::Instance().CommentAsked(report, dialog);
            return report;
        },
        signOf(State::Waiting), "Report a.xml waits for its comment.", "not on the disk before",
        {QStringLiteral("reportComment")});
    row(
        "written", [](Desk& desk) { return desk.Write("a.xml"); }, signOf(State::Written), "Report a.xml is written.",
        "no fault is known", open);
    row(
        "not-well-formed", [](Desk& desk) { return desk.Write("a.xml", "<report>"); }, signOf(State::NotWellFormed),
        "Report a.xml is written, but its file is damaged.", "Reason: ", open);
    row(
        "invalid",
        [](Desk& desk) {
            desk.station.Supervisor().SetValidator(
                [](const QString&, const QString&) { return QStringList(QStringLiteral("level is missing")); });
            return desk.Write("a.xml");
        },
        signOf(State::Invalid), "Report a.xml is written, but it breaks a rule of its schema.",
        "Reason: level is missing.", open);
    row(
        "schema-not-understood",
        [](Desk& desk) {
            const quint64 report = desk.station.Begin(desk.PathOf("a.xml"));
            Q_EMIT ReportNews::Instance().SchemaRead(report, false, QStringLiteral("no root is left"));
            desk.station.Write(report, desk.PathOf("a.xml"));
            return report;
        },
        signOf(State::Written, QStringLiteral("fault")), "Report a.xml is written, but its schema was not understood.",
        "Reason: no root is left.", open);
    row(
        "schema-that-spoils-the-file",
        [](Desk& desk) {
            const quint64 report = desk.station.Begin(desk.PathOf("a.xml"));
            Q_EMIT ReportNews::Instance().SchemaRead(report, false, QStringLiteral("it ends too early"));
            desk.station.Write(report, desk.PathOf("a.xml"), "<?xml version='1.0'?>");
            const auto isRead = [&] { return desk.station.StateOf(report) == State::NotWellFormed; };
            return QTest::qWaitFor(isRead) ? report : 0;
        },
        signOf(State::NotWellFormed, QStringLiteral("fault")),
        "Report a.xml is written, but its schema was not understood.",
        "Reason: it ends too early. Have the schema mended", open);
    row("gone",
        [](Desk& desk) {
            const quint64 report = desk.Write("a.xml");
            QFile::remove(desk.PathOf("a.xml"));
            return report;
        },
        signOf(State::Gone), "Report a.xml was written, but its file is gone.", "Bring the file back", {});
    row(
        "pending", [](Desk& desk) { return desk.Lose("a.xml"); }, signOf(State::Pending),
        "Report a.xml is not saved yet. It is tried again by itself.",
        "Reason: no space left on device. A copy is safe", kept);
    row(
        "pending-without-a-copy",
        [](Desk& desk) {
            desk.station.Supervisor().SetEmergencyFolder(QString());
            return desk.Lose("a.xml");
        },
        signOf(State::Pending), "Report a.xml is not saved yet. It is tried again by itself.", "There is no copy of it",
        kept);
    row(
        "blocked",
        [](Desk& desk) {
            const quint64 report = desk.station.Lose(desk.PathOf("a.xml"));
            desk.Write("a.xml");
            desk.panel->ShowReport(report);
            return report;
        },
        signOf(State::Blocked), "Report a.xml is not saved. It is kept until you decide.", "Save it elsewhere", kept);
    row("failed",
        [](Desk& desk) {
            const quint64 report = desk.station.Begin(desk.PathOf("a.xml"));
            desk.station.Fail(report, QByteArray());
            return report;
        },
        signOf(State::Failed), "Report a.xml could not be saved, and is lost.", "Reason: no space left on device.", {});
    row("closed",
        [](Desk& desk) {
            const quint64 report = desk.station.Begin(desk.PathOf("a.xml"));
            auto* const dialog = new QDialog(desk.panel.get());
            dialog->show();
            Q_EMIT ReportNews::Instance().CommentAsked(report, dialog);
            dialog->reject();
            return report;
        },
        signOf(State::Closed), "Report a.xml is not saved: its comment dialog was closed.", "can be opened again",
        {QStringLiteral("reportComment")});
    row("discarded",
        [](Desk& desk) {
            const quint64 report = desk.Lose("a.xml");
            desk.station.Supervisor().Discard(report);
            return report;
        },
        signOf(State::Discarded), "Report a.xml is not saved: it was discarded.", "", {});
}

void TestReportPanel::tellsEveryState()
{
    QFETCH(const Make, make);
    QFETCH(const QString, sign);
    QFETCH(const QString, advice);
    QFETCH(const QStringList, buttons);
    Desk desk;
    const quint64 report = make(desk);
    QVERIFY(desk.Becomes(report, sign));
    QTEST(desk.Text("reportSentence"), "sentence");
    QTRY_VERIFY2(desk.Text("reportAdvice").contains(advice), qPrintable(desk.Text("reportAdvice")));
    QVERIFY(!desk.Text("reportSentence").contains(QLatin1Char('%')));
    const int row = desk.List()->currentIndex().row();
    QVERIFY(desk.Cell(row, 0).startsWith(sign + QLatin1Char(' ')));
    QCOMPARE(desk.Cell(row, 1), QStringLiteral("a.xml"));
    for (const char* const name :
         {"reportComment", "reportTryAgain", "reportSaveElsewhere", "reportDiscard", "reportOpen"}) {
        QVERIFY2(desk.IsOffered(name) == buttons.contains(QLatin1String(name)), name);
    }
    QVERIFY(desk.IsOffered("reportCopyPath"));
}

void TestReportPanel::theListDrivesAll()
{
    Desk desk;
    const quint64 written = desk.Write("written.xml", "<first/>");
    const quint64 kept = desk.Lose("kept.xml");
    QVERIFY(desk.Becomes(kept, signOf(State::Pending)));
    QCOMPARE(desk.Xml(), QString());

    desk.Click(1);
    QCOMPARE(desk.panel->GetShownReport(), written);
    QCOMPARE(desk.Text("reportSign"), signOf(State::Written));
    QCOMPARE(desk.Text("reportPath"), QDir::toNativeSeparators(desk.PathOf("written.xml")));
    QCOMPARE(desk.Xml(), QStringLiteral("<first/>"));
    QVERIFY(desk.Page().contains(QLatin1String("first")));
    QVERIFY(desk.IsOffered("reportOpen"));
    QVERIFY(!desk.IsOffered("reportTryAgain"));

    QTest::keyClick(desk.List(), Qt::Key_Up);
    QCOMPARE(desk.panel->GetShownReport(), kept);
    QCOMPARE(desk.Text("reportSign"), signOf(State::Pending));
    QCOMPARE(desk.Xml(), QString());
    QCOMPARE(desk.Page(), QString());
    QVERIFY(!desk.IsOffered("reportOpen"));
    QVERIFY(desk.IsOffered("reportTryAgain"));
}

void TestReportPanel::showsThePage()
{
    Desk desk;
    desk.station.Supervisor().SetValidator(
        [](const QString&, const QString&) { return QStringList(QStringLiteral("the level is too high")); });
    const quint64 report = desk.Write("a.xml", "<report><level>17</level></report>");
    QVERIFY(desk.Becomes(report, signOf(State::Invalid)));
    QVERIFY(desk.Page().contains(QLatin1String("level")) && desk.Page().contains(QLatin1String("17")));
    QVERIFY(desk.Page().contains(QLatin1String("the level is too high")));
    QVERIFY(!desk.Page().contains(QLatin1Char('<')));
    QVERIFY(desk.IsOffered("reportExport"));

    QVERIFY(QFile::remove(desk.PathOf("a.xml")));
    QVERIFY(desk.Becomes(report, signOf(State::Gone)));
    QCOMPARE(desk.Page(), QString());
    QVERIFY(!desk.IsOffered("reportExport"));
}

void TestReportPanel::saysWhyThereIsNoPage()
{
    Desk desk;
    QVERIFY(desk.Becomes(desk.Write("a.xml", "<report>"), signOf(State::NotWellFormed)));
    ReportPage page;
    QVERIFY(!page.Read(desk.PathOf("a.xml"), QString()));
    QVERIFY(!page.GetError().isEmpty());
    QCOMPARE(desk.Page(), page.GetError());
    QVERIFY(!desk.IsOffered("reportExport"));
    QCOMPARE(desk.Xml(), QStringLiteral("<report>"));
}

void TestReportPanel::letsTheProgramAddToThePage()
{
    Desk desk;
    quint64 dressed = 0;
    desk.panel->SetPageDresser([&dressed](quint64 report, ReportPage& page) {
        dressed = report;
        page.SetTitle(QStringLiteral("Tower on the hill"));
    });
    const quint64 report = desk.Write("a.xml");
    QVERIFY(desk.Becomes(report, signOf(State::Written)));
    QCOMPARE(dressed, report);
    QVERIFY(desk.Page().contains(QLatin1String("Tower on the hill")));
}

void TestReportPanel::exports_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("beginning");
    QTest::newRow("html") << QStringLiteral("page.html") << QByteArray("<!DOCTYPE html>");
    QTest::newRow("pdf") << QStringLiteral("page.PDF") << QByteArray("%PDF-");
}

void TestReportPanel::exports()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, beginning);
    Desk desk;
    QVERIFY(desk.Becomes(desk.Write("a.xml"), signOf(State::Written)));
    const QString fileName = desk.station.PathOf(name);
    QVERIFY(isFileChosen(desk, "reportExport", fileName));
    QVERIFY(bytesOf(fileName).startsWith(beginning));
    QVERIFY(!desk.Find<QLabel>("reportComplaint")->isVisible());
}

void TestReportPanel::exportsWhatIsChosenWhereTheNameDoesNotSay_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QByteArray>("beginning");
    const int webPage = 0;
    const int pdf = 1;
    const QByteArray beginningOfPdf("%PDF-");
    const QByteArray beginningOfPage("<!DOCTYPE html>");
    QTest::newRow("pdf") << QStringLiteral("page") << pdf << QStringLiteral("page.pdf") << beginningOfPdf;
    QTest::newRow("web-page") << QStringLiteral("page") << webPage << QStringLiteral("page.html") << beginningOfPage;
    QTest::newRow("pdf-with-a-dot-in-the-name")
        << QStringLiteral("level.17") << pdf << QStringLiteral("level.17") << beginningOfPdf;
    QTest::newRow("the-name-says-otherwise")
        << QStringLiteral("page.html") << pdf << QStringLiteral("page.html") << beginningOfPage;
}

void TestReportPanel::exportsWhatIsChosenWhereTheNameDoesNotSay()
{
    QFETCH(const QString, typed);
    QFETCH(const int, kind);
    QFETCH(const QString, written);
    QFETCH(const QByteArray, beginning);
    Desk desk;
    QVERIFY(desk.Becomes(desk.Write("a.xml"), signOf(State::Written)));
    QVERIFY(isFileChosen(desk, "reportExport", desk.station.PathOf(typed), kind));
    QVERIFY(bytesOf(desk.station.PathOf(written)).startsWith(beginning));
}

void TestReportPanel::saysWhenItCannotExport()
{
    Desk desk;
    QVERIFY(desk.Becomes(desk.Write("a.xml"), signOf(State::Written)));
    const QString fileName = desk.MissingFolder() + QStringLiteral("/page.html");
    QVERIFY(isFileChosen(desk, "reportExport", fileName));
    QVERIFY(
        desk.Text("reportComplaint")
            .startsWith(QStringLiteral("The page could not be saved as %1: ").arg(QDir::toNativeSeparators(fileName))));
}

void TestReportPanel::asksForThePrinter()
{
    Desk desk;
    if (!desk.Button("reportPrint")) {
        QSKIP("The library is built without printing.");
    }
    QVERIFY(desk.Becomes(desk.Write("a.xml"), signOf(State::Written)));
    bool isPrinters = false;
    QVERIFY(isAsked<QDialog>([&desk] { desk.Press("reportPrint"); },
                             [&isPrinters](QDialog& dialog) {
                                 isPrinters = dialog.inherits("QPrintDialog");
                                 dialog.reject();
                             }));
    QVERIFY(isPrinters);
}

void TestReportPanel::followsTheNewest()
{
    Desk desk;
    QCOMPARE(desk.Text("reportSentence"), QStringLiteral("No report has been made yet."));
    QCOMPARE(desk.panel->GetShownReport(), quint64(0));
    for (const char* const name : {"a.xml", "b.xml", "c.xml"}) {
        QVERIFY(desk.Becomes(desk.Write(name), signOf(State::Written)));
        QCOMPARE(desk.Cell(0, 1), QLatin1String(name));
    }
    QCOMPARE(desk.List()->model()->rowCount(), 3);
}

void TestReportPanel::disturbsNobodyWhoLooksAtAnOlderOne()
{
    Desk desk;
    const quint64 first = desk.Write("a.xml");
    QVERIFY(desk.Becomes(desk.Write("b.xml"), signOf(State::Written)));
    desk.panel->ShowReport(first);
    QCOMPARE(desk.panel->GetShownReport(), first);
    const quint64 third = desk.Lose("c.xml");
    QTRY_COMPARE(desk.List()->model()->rowCount(), 3);
    QCOMPARE(desk.panel->GetShownReport(), first);
    QCOMPARE(desk.List()->currentIndex().row(), 2);

    QTest::keyClick(desk.List(), Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(desk.panel->GetShownReport(), third);
    QVERIFY(desk.Becomes(desk.Write("d.xml"), signOf(State::Written)));
}

void TestReportPanel::takesBackWhatIsNoLongerTrue()
{
    Desk desk;
    const quint64 older = desk.Write("a.xml");
    const quint64 report = desk.Write("b.xml");
    QVERIFY(desk.Becomes(report, signOf(State::Written)));
    QVERIFY(QFile::rename(desk.PathOf("a.xml"), desk.PathOf("elsewhere.xml")));
    QVERIFY(QFile::rename(desk.PathOf("b.xml"), desk.PathOf("elsewhere-too.xml")));
    QVERIFY(desk.Becomes(report, signOf(State::Gone)));
    QTRY_VERIFY(desk.Cell(1, 0).startsWith(signOf(State::Gone)));
    QCOMPARE(desk.Xml(), QString());
    QVERIFY(!desk.IsOffered("reportOpen"));

    QVERIFY(QFile::rename(desk.PathOf("elsewhere.xml"), desk.PathOf("a.xml")));
    QTRY_COMPARE(desk.station.StateOf(older), State::Written);
    QVERIFY(QFile::rename(desk.PathOf("elsewhere-too.xml"), desk.PathOf("b.xml")));
    QVERIFY(desk.Becomes(report, signOf(State::Written)));
    QCOMPARE(desk.Xml(), QStringLiteral("<report/>"));
}

void TestReportPanel::readsAgainWhatHasChanged()
{
    Desk desk;
    const quint64 report = desk.Write("a.xml");
    QVERIFY(desk.Becomes(report, signOf(State::Written)));
    QTRY_VERIFY(desk.station.Supervisor().GetReport(report).isChecked);
    writeFile(desk.PathOf("a.xml"), "<report>/"); // of the same size
    QVERIFY(desk.Becomes(report, signOf(State::NotWellFormed)));
    QTRY_COMPARE(desk.Xml(), QStringLiteral("<report>/"));

    // Also what keeps its verdict.
    writeFile(desk.PathOf("a.xml"), "<report>!");
    QTRY_COMPARE(desk.Xml(), QStringLiteral("<report>!"));
}

void TestReportPanel::opensTheFile()
{
    Desk desk;
    const OpenedUrls desktop;
    QVERIFY(desk.Becomes(desk.Write("a.xml"), signOf(State::Written)));
    desk.Press("reportOpen");
    QCOMPARE(desktop.urls, QList<QUrl> {QUrl::fromLocalFile(desk.PathOf("a.xml"))});
    QVERIFY(!desk.Find<QLabel>("reportComplaint")->isVisible());
}

/// The button separates folders by back slashes on every system.
void TestReportPanel::tellsWhereTheFileOfTheButtonWillBe()
{
    Desk desk;
    const QString path = desk.PathOf("nowhere/a.xml");
    const quint64 report = desk.station.Lose(QString(path).replace(QLatin1Char('/'), QLatin1Char('\\')));
    QVERIFY(desk.Becomes(report, signOf(State::Pending)));
    QCOMPARE(desk.Text("reportPath"), QDir::toNativeSeparators(path));
}

void TestReportPanel::opensWhatHasNoFolderInItsPath()
{
    Desk desk;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(desk.station.PathOf(QString())));
    const auto restore = qScopeGuard([&before] { QDir::setCurrent(before); });
    const OpenedUrls desktop;
    const quint64 report = desk.station.Begin(QStringLiteral("a.xml"));
    desk.station.Write(report, QStringLiteral("a.xml"));
    QVERIFY(desk.Becomes(report, signOf(State::Written)));
    desk.Press("reportOpen");
    QCOMPARE(desktop.urls, QList<QUrl> {QUrl::fromLocalFile(QFileInfo(QStringLiteral("a.xml")).absoluteFilePath())});
    desk.Press("reportCopyPath");
    QVERIFY(QFileInfo(QGuiApplication::clipboard()->text()).isAbsolute());
}

void TestReportPanel::saysWhenNothingOpensTheFile()
{
    Desk desk;
    const OpenedUrls desktop("NoSuchSlot");
    QVERIFY(desk.Becomes(desk.Write("a.xml"), signOf(State::Written)));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("No such method .*NoSuchSlot")));
    desk.Press("reportOpen");
    QVERIFY(desk.Find<QLabel>("reportComplaint")->isVisible());
    QCOMPARE(desk.Text("reportComplaint"),
             QStringLiteral("There is no program that opens %1.").arg(QDir::toNativeSeparators(desk.PathOf("a.xml"))));

    // What is done next takes it back.
    desk.Press("reportCopyPath");
    QVERIFY(!desk.Find<QLabel>("reportComplaint")->isVisible());
}

void TestReportPanel::showsTheFolder()
{
#ifdef Q_OS_WIN
    QSKIP("The Explorer is asked.");
#endif
    Desk desk;
    const OpenedUrls desktop;
    QVERIFY(desk.Becomes(desk.Lose("a.xml"), signOf(State::Pending)));
    desk.Press("reportShowInFolder");
    QCOMPARE(desk.Text("reportComplaint"),
             QStringLiteral("There is no folder %1.").arg(QDir::toNativeSeparators(desk.MissingFolder())));
    QCOMPARE(desktop.urls, QList<QUrl>());

    QVERIFY(desk.Becomes(desk.Write("b.xml"), signOf(State::Written)));
    desk.Press("reportShowInFolder");
    QCOMPARE(desktop.urls, QList<QUrl> {QUrl::fromLocalFile(QFileInfo(desk.PathOf("b.xml")).absolutePath())});
}

void TestReportPanel::copiesThePathByItsKey()
{
    Desk desk;
    QVERIFY(desk.Becomes(desk.Write("a.xml"), signOf(State::Written)));
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(desk.panel.get(), Qt::Key_C, Qt::AltModifier);
    QTRY_COMPARE(QGuiApplication::clipboard()->text(), QDir::toNativeSeparators(desk.PathOf("a.xml")));
}

void TestReportPanel::triesAgain()
{
    Desk desk;
    const quint64 report = desk.Lose("a.xml");
    QVERIFY(desk.Becomes(report, signOf(State::Pending)));
    desk.Press("reportTryAgain");
    QCOMPARE(desk.Text("reportComplaint"), QStringLiteral("The report could still not be saved."));
    QVERIFY(QDir().mkpath(desk.MissingFolder()));
    if (desk.IsOffered("reportTryAgain")) { // the supervisor may have seen the folder first
        desk.Press("reportTryAgain");
    }
    QVERIFY(desk.Becomes(report, signOf(State::Written)));
    QCOMPARE(bytesOf(desk.MissingFolder() + QStringLiteral("/a.xml")), QByteArray("<report/>"));
    QCOMPARE(desk.Xml(), QStringLiteral("<report/>"));
}

void TestReportPanel::savesElsewhere()
{
    Desk desk;
    const quint64 report = desk.Lose("a.xml");
    QVERIFY(desk.Becomes(report, signOf(State::Pending)));
    const QString elsewhere = desk.PathOf("elsewhere.xml");
    QVERIFY(isFileChosen(desk, "reportSaveElsewhere", elsewhere));
    QVERIFY(desk.Becomes(report, signOf(State::Written)));
    QCOMPARE(desk.Text("reportPath"), QDir::toNativeSeparators(elsewhere));
    QCOMPARE(bytesOf(elsewhere), QByteArray("<report/>"));
}

void TestReportPanel::discardsOnlyWhenMeant_data()
{
    QTest::addColumn<bool>("isMeant");
    QTest::newRow("meant") << true;
    QTest::newRow("escape-keeps") << false;
}

void TestReportPanel::discardsOnlyWhenMeant()
{
    QFETCH(const bool, isMeant);
    Desk desk;
    const quint64 report = desk.Lose("a.xml");
    QVERIFY(desk.Becomes(report, signOf(State::Pending)));
    QString said;
    const auto answer = [&said, isMeant](QMessageBox& question) {
        said = question.text();
        if (isMeant) {
            press(question, QMessageBox::DestructiveRole);
        } else {
            QTest::keyClick(&question, Qt::Key_Escape);
        }
    };
    QVERIFY(isAsked<QMessageBox>([&desk] { desk.Press("reportDiscard"); }, answer));
    QVERIFY(said.contains(QLatin1String("a.xml")));
    QVERIFY(desk.Becomes(report, signOf(isMeant ? State::Discarded : State::Pending)));
    QCOMPARE(desk.station.Copies().isEmpty(), isMeant);
}

void TestReportPanel::tellsHowManyAreKept()
{
    Desk desk;
    QVERIFY(!desk.Find<QLabel>("reportsKept")->isVisible());
    const quint64 first = desk.Lose("a.xml");
    const quint64 second = desk.Lose("b.xml");
    QVERIFY(desk.Becomes(second, signOf(State::Pending)));
    QVERIFY(desk.Find<QLabel>("reportsKept")->isVisible());
    QVERIFY2(QRegularExpression(QStringLiteral("^Not saved yet: 2\\. Next try in (360\\d|35\\d\\d) s\\.$"))
                 .match(desk.Text("reportsKept"))
                 .hasMatch(),
             qPrintable(desk.Text("reportsKept")));
    // The seconds go on by themselves.
    const QString before = desk.Text("reportsKept");
    QTRY_VERIFY(desk.Text("reportsKept") != before);
    desk.station.Supervisor().Discard(first);
    desk.station.Supervisor().Discard(second);
    QTRY_VERIFY(!desk.Find<QLabel>("reportsKept")->isVisible());
}

void TestReportPanel::offersWhatEarlierProcessesLeft()
{
    Desk desk;
    desk.Lose("a.xml");
    desk.panel.reset();
    desk.station.Restart();
    desk.panel = std::make_unique<ReportPanel>(desk.station.Supervisor());
    desk.panel->show();
    QCOMPARE(desk.station.Supervisor().TakeOverEarlier(), QStringList());
    QVERIFY(desk.Becomes(ReportSupervisor::FirstEarlier, signOf(State::Offered)));
    QCOMPARE(desk.Text("reportsKept"), QStringLiteral("Not saved yet: 1."));
    QVERIFY(desk.IsOffered("reportTryAgain"));
    QVERIFY(QDir().mkpath(desk.MissingFolder()));
    desk.Press("reportTryAgain");
    QVERIFY(desk.Becomes(ReportSupervisor::FirstEarlier, signOf(State::Written)));
}

void TestReportPanel::bringsTheCommentDialogBack()
{
    Desk desk;
    QDialog dialog;
    const quint64 report = desk.station.Begin(desk.PathOf("a.xml"));
    dialog.show();
    Q_EMIT ReportNews::Instance().CommentAsked(report, &dialog);
    QVERIFY(desk.Becomes(report, signOf(State::Waiting)));
    desk.panel->activateWindow();
    desk.Press("reportComment");
    QTRY_VERIFY(dialog.isActiveWindow());

    dialog.reject();
    QVERIFY(desk.Becomes(report, signOf(State::Closed)));
    desk.Press("reportComment");
    QTRY_VERIFY(dialog.isVisible());
    QVERIFY(desk.Becomes(report, signOf(State::Waiting))); // and is lost if nobody is asked before quitting
    QCOMPARE(desk.station.Supervisor().MayQuit().size(), 1);
    desk.station.Write(report, desk.PathOf("a.xml"));
    QVERIFY(desk.Becomes(report, signOf(State::Written)));
    QVERIFY(!desk.IsOffered("reportComment"));
}

void TestReportPanel::showsAReportBeforeItIsSaved()
{
    Desk desk;
    writeFile(desk.PathOf("survey.xsd"), SurveySchema);
    quint64 report = 0;
    QPointer<QDialog> dialog;
    connect(&ReportNews::Instance(), &ReportNews::CommentAsked, &desk.context, [&](quint64 number, QDialog* asking) {
        report = number;
        dialog = asking;
    });
    Surveyor surveyor;
    XmlCreateReport builder(&surveyor);
    surveyor.builder = &builder;
    QVERIFY(builder.CreateXmlFromSchema(desk.PathOf("survey.xsd"), desk.PathOf("a.xml"), true));
    QVERIFY(dialog);
    QVERIFY(desk.Becomes(report, signOf(State::Waiting)));
    QVERIFY2(desk.Page().contains(QLatin1String("Name of the station")), qPrintable(desk.Page())); // as in the schema
    QVERIFY(desk.Page().contains(QLatin1String("Tower")));
    QVERIFY(desk.Page().contains(QLatin1String("missing"))); // which is seen in time
    QVERIFY(desk.Xml().contains(QLatin1String("<Station>Tower</Station>")));
    QVERIFY(!desk.IsOffered("reportOpen") && !desk.IsOffered("reportExport"));
    QVERIFY(!QFile::exists(desk.PathOf("a.xml")));

    QTest::keyClicks(dialog->findChild<QTextEdit*>(), QStringLiteral("mast leans"));
    QTRY_VERIFY(desk.Page().contains(QLatin1String("mast leans")));
    QVERIFY(desk.Xml().contains(QLatin1String("<Comment>mast leans</Comment>")));

    desk.Write("b.xml");
    QTRY_COMPARE(desk.Text("reportSentence"), QStringLiteral("Report b.xml is written."));
    QVERIFY(!desk.Page().contains(QLatin1String("Tower")));
    desk.panel->ShowReport(report);
    QVERIFY(desk.Page().contains(QLatin1String("mast leans")));

    QTest::keyClick(dialog->findChild<QTextEdit*>(), Qt::Key_Return, Qt::ControlModifier); // saves
    QVERIFY(desk.Becomes(report, signOf(State::Written)));
    QVERIFY(desk.Page().contains(QLatin1String("mast leans")) && desk.Page().contains(QLatin1String("a.xml")));
    QVERIFY(desk.IsOffered("reportExport"));
}

void TestReportPanel::quitsWithoutAQuestionWhenNothingIsLost()
{
    Desk desk;
    QVERIFY(desk.panel->MayQuit());
    QVERIFY(desk.Becomes(desk.Lose("a.xml"), signOf(State::Pending))); // and safe
    QVERIFY(desk.panel->MayQuit());
}

void TestReportPanel::asksBeforeReportsAreLost_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<bool>("mayQuit");
    QTest::newRow("quits") << int(QMessageBox::DestructiveRole) << true;
    QTest::newRow("stays") << int(QMessageBox::RejectRole) << false;
    QTest::newRow("escape-stays") << int(QMessageBox::InvalidRole) << false;
}

void TestReportPanel::asksBeforeReportsAreLost()
{
    QFETCH(const int, role);
    Desk desk;
    desk.station.Supervisor().SetEmergencyFolder(QString());
    desk.station.Begin(desk.PathOf("making.xml"));
    QVERIFY(desk.Becomes(desk.Lose("lost.xml"), signOf(State::Pending)));
    QString said;
    Qt::TextFormat format = Qt::AutoText;
    const auto answer = [&said, &format, role](QMessageBox& question) {
        said = question.text();
        format = question.textFormat();
        if (role == QMessageBox::InvalidRole) {
            QTest::keyClick(&question, Qt::Key_Escape);
        } else {
            press(question, QMessageBox::ButtonRole(role));
        }
    };
    bool mayQuit = false;
    QVERIFY(isAsked<QMessageBox>([&desk, &mayQuit] { mayQuit = desk.panel->MayQuit(); }, answer));
    QTEST(mayQuit, "mayQuit");
    QCOMPARE(format, Qt::PlainText);
    QVERIFY(said.endsWith(desk.station.Supervisor().MayQuit().join(QLatin1Char('\n'))));
    QVERIFY(said.contains(QLatin1String("making.xml")) && said.contains(QLatin1String("lost.xml")));
}

void TestReportPanel::namesTenOfManyThatWouldBeLost()
{
    Desk desk;
    for (int i = 0; i < 12; ++i) {
        desk.station.Begin(desk.PathOf("a.xml"));
    }
    QString said;
    bool mayQuit = true;
    QVERIFY(isAsked<QMessageBox>([&desk, &mayQuit] { mayQuit = desk.panel->MayQuit(); },
                                 [&said](QMessageBox& question) {
                                     said = question.text();
                                     QTest::keyClick(&question, Qt::Key_Escape);
                                 }));
    QVERIFY(!mayQuit);
    QCOMPARE(said.count(QLatin1String("a.xml")), 10);
    QVERIFY(said.endsWith(QLatin1String("and 2 more")));
}

void TestReportPanel::takesNamesForText()
{
    Desk desk;
    const quint64 report = desk.Lose("<b>a&amp;b<b>.xml");
    QVERIFY(desk.Becomes(report, signOf(State::Pending)));
    QCOMPARE(desk.Find<QLabel>("reportSentence")->textFormat(), Qt::PlainText);
    QVERIFY(desk.Text("reportSentence").contains(QLatin1String("<b>a&amp;b<b>.xml")));
    const QString toolTip = desk.List()->model()->index(0, 1).data(Qt::ToolTipRole).toString();
    QVERIFY(toolTip.contains(QLatin1String("&lt;b&gt;a&amp;amp;b&lt;b&gt;.xml")));
    Qt::TextFormat format = Qt::AutoText;
    QVERIFY(isAsked<QMessageBox>([&desk] { desk.Press("reportDiscard"); },
                                 [&format](QMessageBox& question) {
                                     format = question.textFormat();
                                     QTest::keyClick(&question, Qt::Key_Escape);
                                 }));
    QCOMPARE(format, Qt::PlainText);
}

void TestReportPanel::shortensWhatDoesNotFit()
{
    Desk desk;
    const QByteArray name = QByteArray(200, 'n') + ".xml";
    QVERIFY(desk.Becomes(desk.Write(name.constData()), signOf(State::Written)));
    const auto* const sentence = desk.Find<QLabel>("reportSentence");
    for (const QString& word : sentence->text().split(QLatin1Char(' '))) {
        QVERIFY(sentence->fontMetrics().horizontalAdvance(word) < sentence->width());
    }
    QVERIFY(sentence->text().contains(QLatin1String("nnn.xml ")));
    QCOMPARE(desk.panel->size(), Smallest);
}

void TestReportPanel::looksAtManyReports()
{
    Desk desk;
    std::vector<quint64> reports;
    for (int i = 0; i < 200; ++i) {
        reports.push_back(desk.Write(qPrintable(QStringLiteral("%1.xml").arg(i))));
    }
    QTRY_VERIFY(desk.station.Supervisor().GetReport(reports.back()).isChecked);
    QVERIFY(QFile::remove(desk.PathOf("0.xml")));
    QVERIFY(QFile::remove(desk.PathOf("150.xml")));
    QTRY_COMPARE(desk.station.StateOf(reports[0]), State::Gone);
    QTRY_COMPARE(desk.station.StateOf(reports[150]), State::Gone);
    QCOMPARE(desk.station.StateOf(reports[1]), State::Written);
}

void TestReportPanel::showsTheBeginningOfALargeFile_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::newRow("lines") << QByteArray("<level unit='dBm'>17</level>\n");
    QTest::newRow("one-line") << QByteArray("<level unit='dBm'>17</level>");
}

void TestReportPanel::showsTheBeginningOfALargeFile()
{
    QFETCH(const QByteArray, element);
    Desk desk;
    const QByteArray content = "<report>" + element.repeated(20000) + "</report>";
    QVERIFY(desk.Becomes(desk.Write("a.xml", content), signOf(State::Written)));
    QVERIFY(desk.Xml().startsWith(QLatin1String("<report>")));
    QVERIFY(desk.Xml().endsWith(QChar(0x2026)));
    QVERIFY(desk.Xml().size() < content.size() / 2);
    QVERIFY(desk.Page().startsWith(QLatin1String("This report is too long to be shown as a page.")));

    const QString fileName = desk.PathOf("page.html");
    QVERIFY(isFileChosen(desk, "reportExport", fileName));
    QVERIFY(bytesOf(fileName).size() > content.size());
}

void TestReportPanel::everyButtonHasAKeyOfItsOwn_data()
{
    QTest::addColumn<QString>("language");
    for (const char* const language : {"en", "de", "fr"}) {
        QTest::newRow(language) << QString::fromLatin1(language);
    }
}

void TestReportPanel::everyButtonHasAKeyOfItsOwn()
{
    QFETCH(const QString, language);
    if (!areTranslationsMade()) {
        QSKIP("The translations are not made.");
    }
    speak(language);
    Desk desk;
    const QStringList mnemonics = mnemonicsOf(*desk.panel);
    QVERIFY(mnemonics.size() >= 9);
    QVERIFY2(!mnemonics.contains(QString()), qPrintable(mnemonics.join(QLatin1Char(' '))));
    QCOMPARE(int(QSet<QString>(mnemonics.begin(), mnemonics.end()).size()), int(mnemonics.size()));
}

void TestReportPanel::everyTextFits_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("dpi");
    for (const char* const language : {"en", "de", "fr"}) {
        for (const int dpi : {96, 144, 192}) {
            QTest::addRow("%s-%d-dpi", language, dpi) << QString::fromLatin1(language) << dpi;
        }
    }
}

/// On the smallest window. Letters half as large again must do with the same; only those twice as large get more.
void TestReportPanel::everyTextFits()
{
    QFETCH(const QString, language);
    QFETCH(const int, dpi);
    if (!areTranslationsMade()) {
        QSKIP("The translations are not made.");
    }
    const QFont usual = QApplication::font();
    const QFontMetrics metrics(usual);
    if (metrics.horizontalAdvance(QLatin1Char('i')) == metrics.horizontalAdvance(QLatin1Char('W'))) {
        QSKIP("There are boxes in place of letters, which are far wider.");
    }
    speak(language);
    QFont font = usual;
    font.setPointSizeF(usual.pointSizeF() * dpi / 96);
    QApplication::setFont(font);
    const auto restore = qScopeGuard([usual] { QApplication::setFont(usual); });

    Desk desk;
    const QSize size = dpi > 144 ? Smallest * dpi / 96 : Smallest;
    desk.panel->resize(size);
    desk.Write("Report_20261122_231907.xml", "<report>");
    const quint64 kept = desk.Lose("Report_20261122_231907.xml");
    QVERIFY(desk.Becomes(kept, signOf(State::Pending)));
    QTRY_VERIFY2(cutOff(*desk.panel).isEmpty(), qPrintable(cutOff(*desk.panel).join(QLatin1Char('\n'))));
    QTest::keyClick(desk.List(), Qt::Key_Down);
    QTRY_COMPARE(desk.Text("reportSign"), signOf(State::NotWellFormed));
    QTRY_VERIFY2(cutOff(*desk.panel).isEmpty(), qPrintable(cutOff(*desk.panel).join(QLatin1Char('\n'))));
    QCOMPARE(desk.panel->size(), size);
    QVERIFY(desk.List()->height() > 3 * desk.List()->fontMetrics().height());
}

void TestReportPanel::changesItsLanguageAtOnce()
{
    if (!areTranslationsMade()) {
        QSKIP("The translations are not made.");
    }
    Desk desk;
    QVERIFY(desk.Becomes(desk.Write("a.xml"), signOf(State::Written)));
    QCOMPARE(desk.Button("reportOpen")->text(), QStringLiteral("&Open"));
    speak(QStringLiteral("de"));
    QTRY_COMPARE(desk.Button("reportOpen")->text(), QStringLiteral("Ö&ffnen"));
    QCOMPARE(desk.Text("reportSentence"), QStringLiteral("Bericht a.xml ist geschrieben."));
    QVERIFY(desk.Cell(0, 0).endsWith(QLatin1String("geschrieben")));
    speak(QStringLiteral("fr"));
    QTRY_COMPARE(desk.Button("reportOpen")->text(), QStringLiteral("&Ouvrir"));
    QCOMPARE(desk.Text("reportSentence"), QStringLiteral("Le rapport a.xml est écrit."));
}

void TestReportPanel::showsWhereTheKeyboardIs()
{
    Desk desk;
    QVERIFY(desk.Becomes(desk.Write("a.xml"), signOf(State::Written)));
    QWidget* const list = desk.List();
    QWidget* const text = desk.Find<QTextBrowser>("reportPage");
    const auto edgeOf = [](QWidget* widget) {
        const QPoint corner = widget->mapTo(widget->window(), QPoint()) - QPoint(1, 1);
        return QColor(widget->window()->grab().toImage().pixel(corner));
    };
    const QColor marked = desk.panel->palette().color(QPalette::Highlight);
    list->setFocus();
    QCOMPARE(edgeOf(list), marked);
    QVERIFY(edgeOf(text) != marked);
    text->setFocus();
    QVERIFY(edgeOf(list) != marked);
    QCOMPARE(edgeOf(text), marked);
}

void TestReportPanel::tabGoesFromTopToBottom()
{
    Desk desk;
    QVERIFY(desk.Becomes(desk.Lose("kept.xml"), signOf(State::Pending)));
    desk.Button("reportTryAgain")->setFocus();
    QStringList names;
    for (int i = 0; i < 12; ++i) {
        const QWidget* const focus = QApplication::focusWidget();
        names.append(focus->objectName());
        QTest::keyClick(desk.panel->window(), Qt::Key_Tab);
    }
    const QStringList expected {
        QStringLiteral("reportTryAgain"),      QStringLiteral("reportSaveElsewhere"), QStringLiteral("reportDiscard"),
        QStringLiteral("reportShowInFolder"),  QStringLiteral("reportCopyPath"),      QStringLiteral("reportList"),
        QStringLiteral("qt_tabwidget_tabbar"), QStringLiteral("reportPage"),          QStringLiteral("reportTryAgain")};
    QVERIFY2(names.mid(0, expected.size()) == expected, qPrintable(names.join(QLatin1Char(' '))));
}

void TestReportPanel::remembersOnlyWhenToldTo()
{
    Desk desk;
    QSettings settings(desk.PathOf("settings.ini"), QSettings::IniFormat);
    const auto move = [&desk](int width) {
        auto* const row = desk.panel->findChild<QSplitter*>();
        row->setSizes({width, row->width() - width});
        Q_EMIT row->splitterMoved(width, 1);
    };
    const auto listWidth = [&desk] { return desk.panel->findChild<QSplitter*>()->sizes().at(0); };
    move(500);
    QVERIFY(settings.allKeys().isEmpty());
    desk.panel->Remember(settings);
    move(250);
    const int width = listWidth();
    QVERIFY(!settings.allKeys().isEmpty());

    desk.panel = std::make_unique<ReportPanel>(desk.station.Supervisor());
    desk.panel->resize(Smallest);
    desk.panel->show();
    QVERIFY(listWidth() != width);
    desk.panel->Remember(settings);
    QCOMPARE(listWidth(), width);
}

void TestReportPanel::goesBeforeItsSupervisor()
{
    Desk desk;
    QVERIFY(desk.Becomes(desk.Write("a.xml"), signOf(State::Written)));
    desk.Lose("b.xml");
    desk.panel.reset();
    QSignalSpy changes(&desk.station.Supervisor(), &ReportSupervisor::Changed);
    const quint64 report = desk.Write("c.xml");
    QTRY_VERIFY(desk.station.Supervisor().GetReport(report).isChecked);
    QVERIFY(!changes.isEmpty());
}

void TestReportPanel::goesWhileItAsks_data()
{
    QTest::addColumn<QString>("button"); // empty for the question before quitting
    for (const char* const button : {"reportExport", "reportPrint", "reportSaveElsewhere", "reportDiscard", ""}) {
        QTest::newRow(*button ? button : "quitting") << QString::fromLatin1(button);
    }
}

/// A program may close its windows whatever stands above them.
void TestReportPanel::goesWhileItAsks()
{
    QFETCH(const QString, button);
    Desk desk;
    const bool isOfFile = button == QLatin1String("reportExport") || button == QLatin1String("reportPrint");
    if (isOfFile) {
        QVERIFY(desk.Becomes(desk.Write("a.xml"), signOf(State::Written)));
    } else {
        desk.station.Supervisor().SetEmergencyFolder(QString());
        QVERIFY(desk.Becomes(desk.Lose("a.xml"), signOf(State::Pending)));
    }
    const QByteArray name = button.toLatin1();
    if (!name.isEmpty() && !desk.Button(name.constData())) {
        QSKIP("The library is built without printing.");
    }
    bool mayQuit = false;
    const auto ask = [&] {
        if (name.isEmpty()) {
            mayQuit = desk.panel->MayQuit();
        } else {
            desk.Press(name.constData());
        }
    };
    QVERIFY(isAsked<QDialog>(ask, [&desk](QDialog&) { desk.panel.reset(); }));
    QVERIFY(!mayQuit);
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(int(desk.station.Supervisor().GetKept().size()), isOfFile ? 0 : 1);
}

QTEST_MAIN(TestReportPanel)

#include "tst_reportpanel.moc"
