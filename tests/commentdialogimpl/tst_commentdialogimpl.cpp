#include <QtTest>

#include <memory>

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTimer>
#include <QTranslator>

#include <xmlhelper/commentdialogimpl.h>

#include "domtext.h"
#include "fakeclock.h"

namespace {

using Answer = void (*)(QMessageBox&);

QString plainReport()
{
    return QStringLiteral("<Report><Frequency>98.5</Frequency></Report>");
}

QDateTime summerMorning()
{
    return QDateTime(QDate(2008, 7, 4), QTime(10, 39, 20));
}

/// A dialog over a document and a file of its own, as the builder of a report makes it.
class OpenReport
{
public:
    explicit OpenReport(const QString& fileName, const QString& xml = plainReport())
        : m_fileName(fileName)
        , m_document(std::make_unique<QDomDocument>(documentOf(xml)))
        , m_dialog(new CommentDialogImpl)
    {
        m_dialog->SetDocument(m_document.get());
        m_dialog->SetFileName(fileName);
        m_dialog->ShowReportSummary();
    }
    ~OpenReport() { delete m_dialog; }

    CommentDialogImpl& Dialog() const { return *m_dialog; }
    bool IsOpen() const { return m_dialog->isVisible(); }
    void DeleteDialog() { delete m_dialog; }
    bool IsDialogDeleted() const { return m_dialog.isNull(); }

    template <class Widget> Widget* Find(const char* objectName) const
    {
        return m_dialog->findChild<Widget*>(QLatin1String(objectName));
    }
    void Type(const QString& comment) const { QTest::keyClicks(Find<QTextEdit>("m_pTextEdit"), comment); }
    void Click(const char* button) const { QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton); }

    bool IsWritten() const { return QFile::exists(m_fileName); }
    /// The texts of the comments that the file holds.
    QStringList WrittenComments() const
    {
        QStringList comments;
        const QDomElement root = documentInFile(m_fileName).documentElement();
        for (QDomElement child = root.firstChildElement(QStringLiteral("Comment")); !child.isNull();
             child = child.nextSiblingElement(QStringLiteral("Comment"))) {
            comments.append(child.text());
        }
        return comments;
    }

private:
    Q_DISABLE_COPY(OpenReport)

    QString m_fileName;
    std::unique_ptr<QDomDocument> m_document;
    QPointer<CommentDialogImpl> m_dialog;
};

/// Answers the next question like an operator who sees it come up, and remembers what was asked.
class Operator
{
public:
    explicit Operator(QMessageBox::StandardButton answer)
        : Operator([answer](QMessageBox& question) { QTest::mouseClick(question.button(answer), Qt::LeftButton); })
    {
    }
    template <class Act> explicit Operator(Act act)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, act] {
            if (auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                m_timer.stop();
                m_title = question->windowTitle();
                m_text = question->text();
                m_buttons = question->standardButtons();
                m_icon = question->icon();
                act(*question);
            }
        });
        m_timer.start(0);
    }

    bool WasAsked() const { return !m_text.isEmpty(); }
    QString Title() const { return m_title; }
    QString Text() const { return m_text; }
    QMessageBox::StandardButtons Buttons() const { return m_buttons; }
    QMessageBox::Icon Icon() const { return m_icon; }

private:
    Q_DISABLE_COPY(Operator)

    QTimer m_timer;
    QString m_title;
    QString m_text;
    QMessageBox::StandardButtons m_buttons;
    QMessageBox::Icon m_icon = QMessageBox::NoIcon;
};

/// The language of those who shout, and say everything that often, as long as it lives.
class UpperCase : public QTranslator
{
public:
    explicit UpperCase(int times = 1)
        : m_times(times)
    {
        QCoreApplication::installTranslator(this);
        QCoreApplication::sendPostedEvents(); // windows are told later
    }
    ~UpperCase() override { QCoreApplication::removeTranslator(this); }

    QString translate(const char*, const char* sourceText, const char*, int) const override
    {
        return QString::fromUtf8(sourceText).toUpper().repeated(m_times);
    }
    bool isEmpty() const override { return false; }

private:
    Q_DISABLE_COPY(UpperCase)

    int m_times;
};

/// In a font for which the form was made, which gives it 130 with its frame.
constexpr int UsualTimeWidth = 120;

/// The font of the application, as long as it lives, so large that a time is @p timeWidth pixels wide at most: fonts
/// differ between systems.
class ApplicationFont
{
public:
    explicit ApplicationFont(int timeWidth)
    {
        QFont font = m_before;
        int pixels = 100;
        do {
            font.setPixelSize(--pixels);
        } while (QFontMetrics(font).horizontalAdvance(QStringLiteral("2008/07/04 10:39:20")) > timeWidth);
        QApplication::setFont(font);
    }
    ~ApplicationFont() { QApplication::setFont(m_before); }

private:
    Q_DISABLE_COPY(ApplicationFont)

    const QFont m_before = QApplication::font();
};

/// The labels and buttons of @p dialog that show less than their whole text.
QStringList cutTexts(const QDialog& dialog)
{
    QStringList cut;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        const QRect needed = label->fontMetrics().boundingRect(QRect(), Qt::TextSingleLine, label->text());
        if (!QRect(QPoint(), label->contentsRect().size()).contains(QRect(QPoint(), needed.size()))) {
            cut << label->text();
        }
    }
    for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
        if (button->fontMetrics().horizontalAdvance(button->text()) > button->width()) {
            cut << button->text();
        }
    }
    for (const QWidget* widget : dialog.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!dialog.rect().contains(widget->geometry())) {
            cut << widget->objectName() + QStringLiteral(" is beyond the window");
        }
    }
    return cut;
}

/// Answers a question by one of its buttons.
template <QMessageBox::StandardButton Button> void press(QMessageBox& question)
{
    QTest::mouseClick(question.button(Button), Qt::LeftButton);
}

QByteArray bytesOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(there is no file)");
}

} // namespace

Q_DECLARE_METATYPE(Answer)

class TestCommentDialogImpl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void isAFreeNonModalWindow();
    void hasItsSlotsInOrder();
    void formHoldsLabels_data();
    void formHoldsLabels();
    void formHoldsATextEdit();
    void formHoldsButtons_data();
    void formHoldsButtons();
    void formPlacesTheGrid_data();
    void formPlacesTheGrid();
    void formStacksGridAboveButtons();
    void formKeepsTheButtonsRight();
    void startsWithEmptyValues();
    void focusStartsInTheCommentAndTabGoesOverTheButtons();
    void captionsAreTheBuddiesOfTheirValues_data();
    void captionsAreTheBuddiesOfTheirValues();
    void everyWidgetHasAnAccessibleName();
    void aValueIsReadWithItsCaption();

    void showsTheSummary_data();
    void showsTheSummary();
    void showsTheTimeInLabelAndTitle();
    void showsWithoutBlocking();

    void saveWritesTheComment();
    void saveWritesReadableBytes();
    void saveKeepsEveryCharacterOfTheComment_data();
    void saveKeepsEveryCharacterOfTheComment();
    void saveWithoutATypedCommentEqualsNoComment();
    void noCommentIgnoresWhatWasTyped();
    void ctrlEnterSaves_data();
    void ctrlEnterSaves();
    void answersReplaceAnEarlierFile();
    void answersReplaceTheCommentOfAnEarlierOne();
    void answersOpenPathsWithBackSlashes();
    void answersKeepTheDialogAlive();

    void closeWritesSilentlyWithoutATypedComment();
    void closeAsksAboutATypedComment_data();
    void closeAsksAboutATypedComment();
    void wrapsLongLinesAnywhere_data();
    void wrapsLongLinesAnywhere();
    void closeAsksAboutACommentOfBlanks();
    void closeAfterSavingDoesNothing_data();
    void closeAfterSavingDoesNothing();
    void closeCancelledLeavesTheReportOpen();
    void closeAcceptsTheEventUnlessCancelled_data();
    void closeAcceptsTheEventUnlessCancelled();
    void escapeDoesWhatClosingDoes_data();
    void escapeDoesWhatClosingDoes();

    void failedWriteIsTriedAgainByALaterClose();
    void failedWriteLeavesNoCommentBehind_data();
    void failedWriteLeavesNoCommentBehind();
    void tellsWhatSavingWouldWrite();
    void tellsNothingAfterAnAnswer();
    void tellsNothingOfALongReport_data();
    void tellsNothingOfALongReport();
    void severalDialogsAnswerForThemselves();
    void dialogMayBeDeletedWhileItAsks_data();
    void dialogMayBeDeletedWhileItAsks();
    void dialogDeletedUnansweredWritesNothing();
    void showsAndWritesNothingWithoutADocument();
    void commentHasNoPlaceWithoutARoot();

    void textsFollowTheLanguageAndValuesStay();
    void questionIsTranslated();
    void keepsItsSizeWhereItsTextsFit();
    void growsUntilNoTextIsCut_data();
    void growsUntilNoTextIsCut();
    void growsNoLargerThanTheScreen();

private:
    QString reportFile(const QString& name = QStringLiteral("report.xml")) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestCommentDialogImpl::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestCommentDialogImpl::isAFreeNonModalWindow()
{
    const CommentDialogImpl dialog;
    QVERIFY(!dialog.parent());
    QCOMPARE(dialog.windowFlags(), Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    QVERIFY(!dialog.isModal());
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Comment"));
    QCOMPARE(dialog.objectName(), QStringLiteral("ToReportCommentDialog"));
    QCOMPARE(dialog.size(), QSize(392, 300));
    QCOMPARE(dialog.minimumSize(), QSize(90, 0));
    QVERIFY(dialog.isSizeGripEnabled());
    QVERIFY(!dialog.isVisible());
}

void TestCommentDialogImpl::hasItsSlotsInOrder()
{
    const QMetaObject& meta = CommentDialogImpl::staticMetaObject;
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("SlotSaveWithComment()"));
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(), QByteArray("SlotSaveWithoutComment()"));
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 2);
}

void TestCommentDialogImpl::formHoldsLabels_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("minimumWidth");
    QTest::addColumn<bool>("isFramed");

    QTest::newRow("m_pTimeTextLabel") << QStringLiteral("Time:") << 0 << false;
    QTest::newRow("m_pTimeLabel") << QStringLiteral("2008/07/04 10:39:20") << 130 << true;
    QTest::newRow("m_pFreqTextLabel") << QStringLiteral("Frequency:") << 0 << false;
    QTest::newRow("m_pFrequencyLabel") << QStringLiteral("98.5 MHz") << 90 << true;
    QTest::newRow("m_pBandwidthTextLabel") << QStringLiteral("Bandwidth:") << 0 << false;
    QTest::newRow("m_pBandwidthLabel") << QStringLiteral("150 kHz") << 90 << true;
    QTest::newRow("m_pLevelTextLabel") << QStringLiteral("Level:") << 0 << false;
    QTest::newRow("m_pLevelLabel") << QStringLiteral("17 dB\u00B5V") << 130 << true;
    QTest::newRow("m_pAzimuthTextLabel") << QStringLiteral("Azimuth:") << 0 << false;
    QTest::newRow("m_pAzimuthLabel") << QStringLiteral("235,1\u00B0") << 90 << true;
    QTest::newRow("m_pCommentTextLabel") << QStringLiteral("Comment:") << 0 << false;
}

void TestCommentDialogImpl::formHoldsLabels()
{
    QFETCH(QString, text);
    QFETCH(int, minimumWidth);
    QFETCH(bool, isFramed);
    CommentDialogImpl dialog;
    dialog.retranslateUi(&dialog); // Puts the texts back that the form is designed with.

    const auto* const label = dialog.findChild<QLabel*>(QLatin1String(QTest::currentDataTag()));
    QVERIFY(label);
    QCOMPARE(label->text(), text);
    QCOMPARE(label->minimumSize(), QSize(minimumWidth, 0));
    QVERIFY(!label->wordWrap());
    QCOMPARE(label->frameShape(), isFramed ? QFrame::WinPanel : QFrame::NoFrame);
    if (isFramed) {
        QCOMPARE(label->frameShadow(), QFrame::Sunken);
    }
}

void TestCommentDialogImpl::formHoldsATextEdit()
{
    const CommentDialogImpl dialog;
    const auto* const edit = dialog.findChild<QTextEdit*>(QStringLiteral("m_pTextEdit"));
    QVERIFY(edit);
    QVERIFY(edit->tabChangesFocus());
    QCOMPARE(edit->toPlainText(), QString());
    QVERIFY(!edit->isReadOnly());
}

void TestCommentDialogImpl::formHoldsButtons_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("m_pSaveButton") << QStringLiteral("Save");
    QTest::newRow("m_pNoCommentButton") << QStringLiteral("No Comment");
}

void TestCommentDialogImpl::formHoldsButtons()
{
    QFETCH(QString, text);
    const CommentDialogImpl dialog;
    const auto* const button = dialog.findChild<QPushButton*>(QLatin1String(QTest::currentDataTag()));
    QVERIFY(button);
    QCOMPARE(button->text(), text);
}

void TestCommentDialogImpl::formPlacesTheGrid_data()
{
    QTest::addColumn<QRect>("cell"); // column, row, columns, rows

    QTest::newRow("m_pFreqTextLabel") << QRect(0, 0, 1, 1);
    QTest::newRow("m_pFrequencyLabel") << QRect(1, 0, 1, 1);
    QTest::newRow("m_pLevelTextLabel") << QRect(2, 0, 1, 1);
    QTest::newRow("m_pLevelLabel") << QRect(3, 0, 1, 1);
    QTest::newRow("m_pBandwidthTextLabel") << QRect(0, 1, 1, 1);
    QTest::newRow("m_pBandwidthLabel") << QRect(1, 1, 1, 1);
    QTest::newRow("m_pTimeTextLabel") << QRect(2, 1, 1, 1);
    QTest::newRow("m_pTimeLabel") << QRect(3, 1, 1, 1);
    QTest::newRow("m_pAzimuthTextLabel") << QRect(0, 2, 1, 1);
    QTest::newRow("m_pAzimuthLabel") << QRect(1, 2, 1, 1);
    QTest::newRow("(spacer)") << QRect(2, 2, 2, 1);
    QTest::newRow("m_pCommentTextLabel") << QRect(0, 3, 1, 1);
    QTest::newRow("m_pTextEdit") << QRect(0, 4, 4, 1);
}

void TestCommentDialogImpl::formPlacesTheGrid()
{
    QFETCH(QRect, cell);
    const CommentDialogImpl dialog;
    const auto* const grid = dialog.findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    QVERIFY(grid);
    QCOMPARE(grid->horizontalSpacing(), 6);
    QCOMPARE(grid->verticalSpacing(), 6);
    QCOMPARE(grid->count(), 13);

    QLayoutItem* const item = grid->itemAtPosition(cell.y(), cell.x());
    QVERIFY(item);
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(grid->indexOf(item), &row, &column, &rows, &columns);
    QCOMPARE(QRect(column, row, columns, rows), cell);
    if (item->widget()) {
        QCOMPARE(item->widget()->objectName(), QLatin1String(QTest::currentDataTag()));
    } else {
        QVERIFY(item->spacerItem());
        QCOMPARE(item->sizeHint(), QSize(171, 20));
        QCOMPARE(item->spacerItem()->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    }
}

void TestCommentDialogImpl::formStacksGridAboveButtons()
{
    const CommentDialogImpl dialog;
    const auto* const stack = qobject_cast<QVBoxLayout*>(dialog.layout());
    QVERIFY(stack);
    QCOMPARE(stack->objectName(), QStringLiteral("vboxLayout"));
    QCOMPARE(stack->spacing(), 6);
    QCOMPARE(stack->contentsMargins(), QMargins(11, 11, 11, 11));
    QCOMPARE(stack->count(), 2);
    QCOMPARE(stack->itemAt(0)->layout()->objectName(), QStringLiteral("gridLayout"));
    QCOMPARE(stack->itemAt(1)->layout()->objectName(), QStringLiteral("hboxLayout"));
}

void TestCommentDialogImpl::formKeepsTheButtonsRight()
{
    const CommentDialogImpl dialog;
    const auto* const row = dialog.findChild<QHBoxLayout*>(QStringLiteral("hboxLayout"));
    QVERIFY(row);
    QCOMPARE(row->spacing(), 6);
    QCOMPARE(row->count(), 3);
    QSpacerItem* const spacer = row->itemAt(0)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(150, 20));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(row->itemAt(1)->widget()->objectName(), QStringLiteral("m_pSaveButton"));
    QCOMPARE(row->itemAt(2)->widget()->objectName(), QStringLiteral("m_pNoCommentButton"));
}

void TestCommentDialogImpl::startsWithEmptyValues()
{
    const CommentDialogImpl dialog;
    for (const char* const name :
         {"m_pTimeLabel", "m_pFrequencyLabel", "m_pBandwidthLabel", "m_pLevelLabel", "m_pAzimuthLabel"}) {
        QCOMPARE(dialog.findChild<QLabel*>(QLatin1String(name))->text(), QString());
    }
}

void TestCommentDialogImpl::focusStartsInTheCommentAndTabGoesOverTheButtons()
{
    const OpenReport report(reportFile());
    CommentDialogImpl& dialog = report.Dialog();
    QApplication::setActiveWindow(&dialog);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));

    QStringList visited;
    for (int i = 0; i < 4; ++i) {
        visited.append(dialog.focusWidget()->objectName());
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    const QString text = QStringLiteral("m_pTextEdit");
    QCOMPARE(visited,
             (QStringList {text, QStringLiteral("m_pSaveButton"), QStringLiteral("m_pNoCommentButton"), text}));
}

void TestCommentDialogImpl::captionsAreTheBuddiesOfTheirValues_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("m_pTimeTextLabel") << QStringLiteral("m_pTimeLabel");
    QTest::newRow("m_pFreqTextLabel") << QStringLiteral("m_pFrequencyLabel");
    QTest::newRow("m_pBandwidthTextLabel") << QStringLiteral("m_pBandwidthLabel");
    QTest::newRow("m_pLevelTextLabel") << QStringLiteral("m_pLevelLabel");
    QTest::newRow("m_pAzimuthTextLabel") << QStringLiteral("m_pAzimuthLabel");
    QTest::newRow("m_pCommentTextLabel") << QStringLiteral("m_pTextEdit");
}

void TestCommentDialogImpl::captionsAreTheBuddiesOfTheirValues()
{
    QFETCH(QString, value);
    const CommentDialogImpl dialog;
    const QWidget* const buddy = dialog.findChild<QLabel*>(QLatin1String(QTest::currentDataTag()))->buddy();
    QVERIFY(buddy);
    QCOMPARE(buddy->objectName(), value);
}

void TestCommentDialogImpl::everyWidgetHasAnAccessibleName()
{
    const OpenReport report(reportFile());
    const QStringList names {
        QStringLiteral("m_pTimeTextLabel"),      QStringLiteral("m_pTimeLabel"),
        QStringLiteral("m_pFreqTextLabel"),      QStringLiteral("m_pFrequencyLabel"),
        QStringLiteral("m_pBandwidthTextLabel"), QStringLiteral("m_pBandwidthLabel"),
        QStringLiteral("m_pLevelTextLabel"),     QStringLiteral("m_pLevelLabel"),
        QStringLiteral("m_pAzimuthTextLabel"),   QStringLiteral("m_pAzimuthLabel"),
        QStringLiteral("m_pCommentTextLabel"),   QStringLiteral("m_pTextEdit"),
        QStringLiteral("m_pSaveButton"),         QStringLiteral("m_pNoCommentButton"),
    };
    for (const QString& name : names) {
        const QAccessibleInterface* const reader
            = QAccessible::queryAccessibleInterface(report.Find<QWidget>(qPrintable(name)));
        QVERIFY2(reader && !reader->text(QAccessible::Name).isEmpty(), qPrintable(name));
    }
}

void TestCommentDialogImpl::aValueIsReadWithItsCaption()
{
    const OpenReport report(reportFile(), QStringLiteral("<R><Frequency Unit='MHz'>98.5</Frequency></R>"));
    QCOMPARE(report.Find<QLabel>("m_pFrequencyLabel")->accessibleName(), QStringLiteral("Frequency: 98.5 MHz"));
    QCOMPARE(report.Find<QLabel>("m_pLevelLabel")->accessibleName(), QStringLiteral("Level: ---"));
}

void TestCommentDialogImpl::showsTheSummary_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("text");

    const QString frequency = QStringLiteral("m_pFrequencyLabel");
    const QString bandwidth = QStringLiteral("m_pBandwidthLabel");
    const QString level = QStringLiteral("m_pLevelLabel");
    const QString azimuth = QStringLiteral("m_pAzimuthLabel");
    const QString none = QStringLiteral("---");

    QTest::newRow("frequency-is-followed-by-its-unit")
        << QStringLiteral("<R><Frequency Unit='MHz'>98.5</Frequency></R>") << frequency << QStringLiteral("98.5 MHz");
    QTest::newRow("frequency-without-unit-stands-alone")
        << QStringLiteral("<R><Frequency>98500000</Frequency></R>") << frequency << QStringLiteral("98500000");
    QTest::newRow("empty-unit-of-the-frequency-is-no-unit")
        << QStringLiteral("<R><Frequency Unit=''>98.5</Frequency></R>") << frequency << QStringLiteral("98.5");
    QTest::newRow("first-frequency-counts")
        << QStringLiteral("<R><Frequency>1</Frequency><Frequency Unit='Hz'>2</Frequency></R>") << frequency
        << QStringLiteral("1");
    QTest::newRow("frequency-is-found-anywhere")
        << QStringLiteral("<R><a><b><Frequency Unit='Hz'>1</Frequency></b></a><Frequency>2</Frequency></R>")
        << frequency << QStringLiteral("1 Hz");
    QTest::newRow("frequency-name-is-case-sensitive")
        << QStringLiteral("<R><frequency>1</frequency></R>") << frequency << none;
    QTest::newRow("no-frequency") << QStringLiteral("<R/>") << frequency << none;

    QTest::newRow("bandwidth-is-followed-by-its-unit")
        << QStringLiteral("<R><Bandwidth Unit='kHz'>150</Bandwidth></R>") << bandwidth << QStringLiteral("150 kHz");
    QTest::newRow("bandwidth-without-unit-stands-alone")
        << QStringLiteral("<R><Bandwidth>150</Bandwidth></R>") << bandwidth << QStringLiteral("150");
    QTest::newRow("no-bandwidth") << QStringLiteral("<R><Frequency>1</Frequency></R>") << bandwidth << none;

    QTest::newRow("level-is-shown-without-its-unit")
        << QStringLiteral("<R><Level Unit='dBm'>17</Level></R>") << level << QStringLiteral("17");
    QTest::newRow("signal-level-stands-in-for-the-level")
        << QStringLiteral("<R><Signal_Level Unit='dBm'>18</Signal_Level></R>") << level << QStringLiteral("18");
    QTest::newRow("level-wins-over-an-earlier-signal-level")
        << QStringLiteral("<R><Signal_Level>18</Signal_Level><Level>17</Level></R>") << level << QStringLiteral("17");
    QTest::newRow("empty-level-still-wins")
        << QStringLiteral("<R><Signal_Level>18</Signal_Level><Level/></R>") << level << QString();
    QTest::newRow("no-level") << QStringLiteral("<R/>") << level << none;

    QTest::newRow("azimuth-is-followed-by-a-degree-sign")
        << QStringLiteral("<R><Azimuth Unit='rad'>235.1</Azimuth></R>") << azimuth << QStringLiteral("235.1 \u00B0");
    QTest::newRow("df-azimuth-stands-in-for-the-azimuth")
        << QStringLiteral("<R><DFAzimuth>12</DFAzimuth></R>") << azimuth << QStringLiteral("12 \u00B0");
    QTest::newRow("azimuth-wins-over-an-earlier-df-azimuth")
        << QStringLiteral("<R><DFAzimuth>12</DFAzimuth><Azimuth>235.1</Azimuth></R>") << azimuth
        << QStringLiteral("235.1 \u00B0");
    QTest::newRow("no-azimuth") << QStringLiteral("<R/>") << azimuth << none;
}

void TestCommentDialogImpl::showsTheSummary()
{
    QFETCH(QString, xml);
    QFETCH(QString, label);
    QFETCH(QString, text);
    const OpenReport report(reportFile(), xml);
    QCOMPARE(report.Find<QLabel>(qPrintable(label))->text(), text);
}

void TestCommentDialogImpl::showsTheTimeInLabelAndTitle()
{
    const FakeClock clock(summerMorning());
    OpenReport report(reportFile());
    QCOMPARE(report.Find<QLabel>("m_pTimeLabel")->text(), QStringLiteral("2008/07/04 10:39:20"));
    QCOMPARE(report.Dialog().windowTitle(), QStringLiteral("ToReport - 2008/07/04 10:39:20"));
}

void TestCommentDialogImpl::showsWithoutBlocking()
{
    const OpenReport report(reportFile());
    QVERIFY(report.IsOpen());
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!report.IsWritten());
}

void TestCommentDialogImpl::saveWritesTheComment()
{
    const OpenReport report(reportFile(), QStringLiteral("<R><Level>1</Level><Azimuth>2</Azimuth></R>"));
    report.Type(QStringLiteral("Strong fading"));
    report.Click("m_pSaveButton");

    QVERIFY(!report.IsOpen());
    QCOMPARE(domText(documentInFile(reportFile()).documentElement()),
             QStringLiteral("<R>\n  <Level>\n    \"1\"\n  </Level>\n  <Azimuth>\n    \"2\"\n  </Azimuth>\n"
                            "  <Comment>\n    \"Strong fading\"\n  </Comment>\n</R>\n"));
}

void TestCommentDialogImpl::saveWritesReadableBytes()
{
    const OpenReport report(reportFile(),
                            QStringLiteral("<?xml version='1.0' encoding=\"UTF-8\"?><R><Site>M\u00FCnchen</Site></R>"));
    report.Type(QStringLiteral("17 dB\u00B5V"));
    report.Click("m_pSaveButton");

    QCOMPARE(bytesOf(reportFile()),
             QStringLiteral("<?xml version='1.0' encoding='UTF-8'?>\n"
                            "<R>\n"
                            "    <Site>M\u00FCnchen</Site>\n"
                            "    <Comment>17 dB\u00B5V</Comment>\n"
                            "</R>\n")
                 .toUtf8());
}

void TestCommentDialogImpl::saveKeepsEveryCharacterOfTheComment_data()
{
    QTest::addColumn<QString>("comment");
    QTest::newRow("markup") << QStringLiteral("<b>a & b</b> ]]> \"'");
    QTest::newRow("several-lines") << QStringLiteral("first\nsecond\n\nlast");
    QTest::newRow("blanks-at-both-ends") << QStringLiteral("  fading  ");
    QTest::newRow("characters-beyond-ascii") << QStringLiteral("\u00B0\u00B5\u20AC\u0416\u6F22");
}

void TestCommentDialogImpl::saveKeepsEveryCharacterOfTheComment()
{
    QFETCH(QString, comment);
    const OpenReport report(reportFile());
    report.Find<QTextEdit>("m_pTextEdit")->setPlainText(comment);
    report.Click("m_pSaveButton");
    QCOMPARE(report.WrittenComments(), QStringList(comment));
}

void TestCommentDialogImpl::saveWithoutATypedCommentEqualsNoComment()
{
    const OpenReport saved(reportFile(QStringLiteral("saved.xml")));
    saved.Click("m_pSaveButton");
    QVERIFY(!saved.IsOpen());
    const OpenReport uncommented(reportFile(QStringLiteral("uncommented.xml")));
    uncommented.Click("m_pNoCommentButton");
    QVERIFY(!uncommented.IsOpen());

    QCOMPARE(bytesOf(reportFile(QStringLiteral("saved.xml"))),
             QByteArray("<Report>\n    <Frequency>98.5</Frequency>\n</Report>\n"));
    QCOMPARE(bytesOf(reportFile(QStringLiteral("uncommented.xml"))), bytesOf(reportFile(QStringLiteral("saved.xml"))));
}

void TestCommentDialogImpl::noCommentIgnoresWhatWasTyped()
{
    const OpenReport report(reportFile());
    report.Type(QStringLiteral("never mind"));
    report.Click("m_pNoCommentButton");
    QVERIFY(!report.IsOpen());
    QVERIFY(report.IsWritten());
    QCOMPARE(report.WrittenComments(), QStringList());
}

void TestCommentDialogImpl::ctrlEnterSaves_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("enter") << int(Qt::Key_Return);
    QTest::newRow("enter-of-the-number-pad") << int(Qt::Key_Enter);
}

void TestCommentDialogImpl::ctrlEnterSaves()
{
    QFETCH(int, key);
    const OpenReport report(reportFile());
    QApplication::setActiveWindow(&report.Dialog());
    QVERIFY(QTest::qWaitForWindowActive(&report.Dialog()));

    report.Type(QStringLiteral("first"));
    QTest::keyClick(report.Find<QTextEdit>("m_pTextEdit"), Qt::Key(key)); // Enter alone is a new line.
    QVERIFY(report.IsOpen());
    report.Type(QStringLiteral("second"));
    QTest::keyClick(report.Find<QTextEdit>("m_pTextEdit"), Qt::Key(key), Qt::ControlModifier);
    QVERIFY(!report.IsOpen());
    QCOMPARE(report.WrittenComments(), QStringList(QStringLiteral("first\nsecond")));
}

void TestCommentDialogImpl::answersReplaceAnEarlierFile()
{
    QFile earlier(reportFile());
    QVERIFY(earlier.open(QIODevice::WriteOnly));
    earlier.write(QByteArray(1000, 'x'));
    earlier.close();

    const OpenReport report(reportFile());
    report.Click("m_pNoCommentButton");
    QCOMPARE(bytesOf(reportFile()), QByteArray("<Report>\n    <Frequency>98.5</Frequency>\n</Report>\n"));
}

void TestCommentDialogImpl::answersReplaceTheCommentOfAnEarlierOne()
{
    const OpenReport report(reportFile());
    report.Type(QStringLiteral("first"));
    report.Dialog().SlotSaveWithComment();
    QCOMPARE(report.WrittenComments(), QStringList(QStringLiteral("first")));
    report.Find<QTextEdit>("m_pTextEdit")->setPlainText(QStringLiteral("second"));
    report.Dialog().SlotSaveWithComment();
    QCOMPARE(report.WrittenComments(), QStringList(QStringLiteral("second")));
    report.Dialog().SlotSaveWithoutComment();
    QCOMPARE(bytesOf(reportFile()), QByteArray("<Report>\n    <Frequency>98.5</Frequency>\n</Report>\n"));
}

void TestCommentDialogImpl::answersOpenPathsWithBackSlashes()
{
    QString path = reportFile();
    const OpenReport report(path.replace(QLatin1Char('/'), QLatin1Char('\\')));
    report.Click("m_pSaveButton");
    QVERIFY(QFile::exists(reportFile()));
}

void TestCommentDialogImpl::answersKeepTheDialogAlive()
{
    OpenReport report(reportFile());
    report.Dialog().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!report.IsDialogDeleted());
}

void TestCommentDialogImpl::closeWritesSilentlyWithoutATypedComment()
{
    OpenReport report(reportFile());
    const Operator asked(QMessageBox::Cancel);
    QVERIFY(report.Dialog().close());
    QVERIFY(!asked.WasAsked());
    QVERIFY(!report.IsOpen());
    QCOMPARE(bytesOf(reportFile()), QByteArray("<Report>\n    <Frequency>98.5</Frequency>\n</Report>\n"));
}

void TestCommentDialogImpl::closeAsksAboutATypedComment_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<bool>("isWritten");
    QTest::addColumn<QStringList>("comments");

    QTest::newRow("yes-writes-the-comment")
        << Answer(press<QMessageBox::Yes>) << true << QStringList(QStringLiteral("Strong fading"));
    QTest::newRow("no-writes-without-the-comment") << Answer(press<QMessageBox::No>) << true << QStringList();
    QTest::newRow("cancel-closes-and-writes-nothing") << Answer(press<QMessageBox::Cancel>) << false << QStringList();
    QTest::newRow("escape-is-cancel") << Answer([](QMessageBox& question) {
        QTest::keyClick(&question, Qt::Key_Escape);
    }) << false << QStringList();
    QTest::newRow("closed-question-is-cancel")
        << Answer([](QMessageBox& question) { question.close(); }) << false << QStringList();
}

void TestCommentDialogImpl::closeAsksAboutATypedComment()
{
    QFETCH(Answer, answer);
    QFETCH(bool, isWritten);
    QFETCH(QStringList, comments);
    OpenReport report(reportFile());
    report.Type(QStringLiteral("Strong fading"));
    const Operator asked(answer);

    QVERIFY(report.Dialog().close());
    QVERIFY(asked.WasAsked());
    QCOMPARE(asked.Title(), QStringLiteral("Warning"));
    QCOMPARE(asked.Text(), QStringLiteral("You have enterd a comment. Would you like to save it?"));
    QCOMPARE(asked.Buttons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    QCOMPARE(asked.Icon(), QMessageBox::Warning);
    QVERIFY(!report.IsOpen());
    QVERIFY(report.Dialog().findChildren<QMessageBox*>().isEmpty());
    QCOMPARE(report.IsWritten(), isWritten);
    QCOMPARE(report.WrittenComments(), comments);
}

void TestCommentDialogImpl::wrapsLongLinesAnywhere_data()
{
    QTest::addColumn<QString>("comment");
    QTest::addColumn<bool>("isWrappedAnywhere");
    const QString longWord(5001, QLatin1Char('x'));
    const QString shortLine = QStringLiteral("Strong fading\n");
    QTest::newRow("lines-of-words") << shortLine.repeated(1000) << false;
    QTest::newRow("word-of-4000-characters") << longWord.left(4000) << false;
    QTest::newRow("word-of-5001-characters") << longWord << true;
    QTest::newRow("long-word-in-the-last-line") << shortLine + shortLine + longWord << true;
    QTest::newRow("long-word-in-the-first-line") << longWord + QLatin1Char('\n') + shortLine << true;
}

void TestCommentDialogImpl::wrapsLongLinesAnywhere()
{
    QFETCH(QString, comment);
    QFETCH(bool, isWrappedAnywhere);
    CommentDialogImpl dialog;
    auto* const text = dialog.findChild<QTextEdit*>();
    const QTextOption::WrapMode ordinary = text->document()->defaultTextOption().wrapMode();
    QVERIFY(ordinary != QTextOption::WrapAnywhere);
    text->insertPlainText(comment);
    const QTextOption::WrapMode mode = text->document()->defaultTextOption().wrapMode();
    QCOMPARE(mode == QTextOption::WrapAnywhere, isWrappedAnywhere);
    QVERIFY(isWrappedAnywhere || mode == ordinary);
    // It stays so when more is typed.
    text->insertPlainText(QStringLiteral("\nx"));
    QCOMPARE(text->document()->defaultTextOption().wrapMode(), mode);
}

void TestCommentDialogImpl::closeAsksAboutACommentOfBlanks()
{
    OpenReport report(reportFile());
    report.Type(QStringLiteral("  "));
    const Operator asked(QMessageBox::Yes);
    QVERIFY(report.Dialog().close());
    QVERIFY(asked.WasAsked());
    // A parser drops a text of blanks.
    QCOMPARE(bytesOf(reportFile()),
             QByteArray("<Report>\n    <Frequency>98.5</Frequency>\n    <Comment>  </Comment>\n</Report>\n"));
}

void TestCommentDialogImpl::closeAfterSavingDoesNothing_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("after-save") << QByteArray("m_pSaveButton");
    QTest::newRow("after-no-comment") << QByteArray("m_pNoCommentButton");
}

void TestCommentDialogImpl::closeAfterSavingDoesNothing()
{
    QFETCH(QByteArray, button);
    OpenReport report(reportFile());
    report.Type(QStringLiteral("Strong fading"));
    report.Click(button.constData());
    QVERIFY(QFile::remove(reportFile()));

    report.Dialog().show();
    const Operator asked(QMessageBox::Yes);
    QVERIFY(report.Dialog().close());
    QVERIFY(!asked.WasAsked());
    QVERIFY(!report.IsOpen());
    QVERIFY(!report.IsWritten());
}

void TestCommentDialogImpl::closeCancelledLeavesTheReportOpen()
{
    OpenReport report(reportFile());
    report.Type(QStringLiteral("Strong fading"));
    {
        const Operator cancels(QMessageBox::Cancel);
        report.Dialog().close();
        QVERIFY(cancels.WasAsked());
    }
    report.Dialog().show();
    const Operator agrees(QMessageBox::Yes);
    report.Dialog().close();
    QVERIFY(agrees.WasAsked());
    QCOMPARE(report.WrittenComments(), QStringList(QStringLiteral("Strong fading")));
}

void TestCommentDialogImpl::closeAcceptsTheEventUnlessCancelled_data()
{
    QTest::addColumn<QString>("comment");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("isAccepted");

    const QString comment = QStringLiteral("fading");
    QTest::newRow("silent-write-accepts") << QString() << int(QMessageBox::NoButton) << true;
    QTest::newRow("yes-accepts") << comment << int(QMessageBox::Yes) << true;
    QTest::newRow("no-accepts") << comment << int(QMessageBox::No) << true;
    QTest::newRow("cancel-leaves-the-event-as-it-arrived") << comment << int(QMessageBox::Cancel) << false;
}

void TestCommentDialogImpl::closeAcceptsTheEventUnlessCancelled()
{
    QFETCH(QString, comment);
    QFETCH(int, answer);
    QFETCH(bool, isAccepted);
    OpenReport report(reportFile());
    report.Type(comment);
    const Operator asked(static_cast<QMessageBox::StandardButton>(answer));

    QCloseEvent event;
    event.ignore();
    QCoreApplication::sendEvent(&report.Dialog(), &event);
    QCOMPARE(event.isAccepted(), isAccepted);
}

void TestCommentDialogImpl::escapeDoesWhatClosingDoes_data()
{
    QTest::addColumn<QString>("comment");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("isWritten");
    QTest::addColumn<QStringList>("comments");

    const QString fading = QStringLiteral("fading");
    QTest::newRow("without-comment-writes-silently")
        << QString() << int(QMessageBox::NoButton) << true << QStringList();
    QTest::newRow("answered-yes-writes-the-comment") << fading << int(QMessageBox::Yes) << true << QStringList(fading);
    QTest::newRow("answered-no-writes-without-the-comment") << fading << int(QMessageBox::No) << true << QStringList();
    QTest::newRow("answered-cancel-writes-nothing") << fading << int(QMessageBox::Cancel) << false << QStringList();
}

void TestCommentDialogImpl::escapeDoesWhatClosingDoes()
{
    QFETCH(QString, comment);
    QFETCH(int, answer);
    QFETCH(bool, isWritten);
    QFETCH(QStringList, comments);
    const OpenReport report(reportFile());
    report.Type(comment);
    const Operator asked(static_cast<QMessageBox::StandardButton>(answer));

    QTest::keyClick(report.Find<QTextEdit>("m_pTextEdit"), Qt::Key_Escape);
    QCOMPARE(asked.WasAsked(), !comment.isEmpty());
    QVERIFY(!report.IsOpen());
    QCOMPARE(report.IsWritten(), isWritten);
    QCOMPARE(report.WrittenComments(), comments);
}

void TestCommentDialogImpl::failedWriteIsTriedAgainByALaterClose()
{
    OpenReport report(reportFile(QStringLiteral("missing/report.xml")));
    const Operator asked(QMessageBox::Cancel);
    report.Click("m_pSaveButton");
    QVERIFY(!report.IsOpen());
    QVERIFY(!report.IsWritten());
    report.Dialog().show();
    QVERIFY(report.Dialog().close());
    QVERIFY(!report.IsOpen());
    QVERIFY(!report.IsWritten());

    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("missing")));
    report.Dialog().show();
    QVERIFY(report.Dialog().close());
    QVERIFY(report.IsWritten());
    QVERIFY(!asked.WasAsked());
}

void TestCommentDialogImpl::failedWriteLeavesNoCommentBehind_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("comments");

    QTest::newRow("yes-writes-the-comment-once") << int(QMessageBox::Yes) << QStringList(QStringLiteral("fading"));
    QTest::newRow("no-writes-without-the-comment") << int(QMessageBox::No) << QStringList();
}

void TestCommentDialogImpl::failedWriteLeavesNoCommentBehind()
{
    QFETCH(int, answer);
    QFETCH(QStringList, comments);
    OpenReport report(reportFile(QStringLiteral("missing/report.xml")));
    report.Type(QStringLiteral("fading"));
    report.Click("m_pSaveButton");
    QVERIFY(!report.IsWritten());

    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("missing")));
    report.Dialog().show();
    const Operator asked(static_cast<QMessageBox::StandardButton>(answer));
    QVERIFY(report.Dialog().close());
    QVERIFY(asked.WasAsked());
    QVERIFY(report.IsWritten());
    QCOMPARE(report.WrittenComments(), comments);
}

void TestCommentDialogImpl::tellsWhatSavingWouldWrite()
{
    const OpenReport report(reportFile());
    const auto told = [&report] { return report.Dialog().property("unsavedReport").toByteArray(); };
    const QByteArray withoutComment("<Report>\n    <Frequency>98.5</Frequency>\n</Report>\n");
    QCOMPARE(told(), withoutComment);
    report.Type(QStringLiteral("drifts & fades"));
    const QByteArray withComment = told();
    QVERIFY(withComment.contains("<Comment>drifts &amp; fades</Comment>"));
    QCOMPARE(told(), withComment); // It leaves nothing behind.
    QVERIFY(!QFile::exists(reportFile()));
    report.Dialog().SlotSaveWithComment();
    QCOMPARE(bytesOf(reportFile()), withComment);

    const OpenReport another(reportFile());
    another.Find<QTextEdit>("m_pTextEdit")->setPlainText(QString(QChar(0xFFFE)));
    QCOMPARE(another.Dialog().property("unsavedReport").toByteArray(), withoutComment);
}

void TestCommentDialogImpl::tellsNothingAfterAnAnswer()
{
    const OpenReport written(reportFile());
    written.Dialog().SlotSaveWithoutComment();
    QCOMPARE(written.Dialog().property("unsavedReport").toByteArray(), QByteArray());

    const OpenReport failed(reportFile() + QStringLiteral("/missing.xml"));
    failed.Type(QStringLiteral("first"));
    failed.Dialog().SlotSaveWithComment();
    QCOMPARE(failed.Dialog().property("unsavedReport").toByteArray(), QByteArray());

    const CommentDialogImpl withoutDocument;
    QCOMPARE(withoutDocument.property("unsavedReport").toByteArray(), QByteArray());
}

void TestCommentDialogImpl::tellsNothingOfALongReport_data()
{
    QTest::addColumn<int>("bytes");
    QTest::addColumn<bool>("isTold");
    constexpr int limit = 131072; // as ReportNews has it
    QTest::newRow("as-long-as-may-be") << limit << true;
    QTest::newRow("longer-by-one") << limit + 1 << false;
    QTest::newRow("far-longer") << 4 * limit << false;
}

void TestCommentDialogImpl::tellsNothingOfALongReport()
{
    QFETCH(const int, bytes);
    QFETCH(const bool, isTold);
    const int others = int(QByteArray("<Report></Report>\n").size());
    const QString text(bytes - others, QLatin1Char('x'));
    const OpenReport report(reportFile(), QStringLiteral("<Report>%1</Report>").arg(text));
    QCOMPARE(report.Dialog().property("unsavedReport").toByteArray().size(), isTold ? bytes : 0);
    report.Find<QTextEdit>("m_pTextEdit")->setPlainText(text);
    QCOMPARE(report.Dialog().property("unsavedReport").toByteArray(), QByteArray());
}

void TestCommentDialogImpl::severalDialogsAnswerForThemselves()
{
    const OpenReport first(reportFile(QStringLiteral("first.xml")), QStringLiteral("<R><Level>1</Level></R>"));
    OpenReport second(reportFile(QStringLiteral("second.xml")), QStringLiteral("<R><Level>2</Level></R>"));
    const OpenReport third(reportFile(QStringLiteral("third.xml")), QStringLiteral("<R><Level>3</Level></R>"));
    QVERIFY(first.IsOpen() && second.IsOpen() && third.IsOpen());
    first.Type(QStringLiteral("one"));
    second.Type(QStringLiteral("two"));

    third.Click("m_pNoCommentButton");
    const Operator agrees(QMessageBox::Yes);
    second.Dialog().close();
    QVERIFY(agrees.WasAsked());
    QVERIFY(first.IsOpen());
    QVERIFY(!first.IsWritten());
    QCOMPARE(second.WrittenComments(), QStringList(QStringLiteral("two")));
    QCOMPARE(third.WrittenComments(), QStringList());
    first.Click("m_pSaveButton");
    QCOMPARE(first.WrittenComments(), QStringList(QStringLiteral("one")));
    QCOMPARE(second.Find<QLabel>("m_pLevelLabel")->text(), QStringLiteral("2"));
}

void TestCommentDialogImpl::dialogMayBeDeletedWhileItAsks_data()
{
    QTest::addColumn<bool>("byEscape");
    QTest::newRow("closed") << false;
    QTest::newRow("left-by-escape") << true;
}

void TestCommentDialogImpl::dialogMayBeDeletedWhileItAsks()
{
    QFETCH(bool, byEscape);
    OpenReport report(reportFile());
    report.Type(QStringLiteral("fading"));
    const Operator asked([&report](QMessageBox&) { report.DeleteDialog(); });
    if (byEscape) {
        QTest::keyClick(report.Find<QTextEdit>("m_pTextEdit"), Qt::Key_Escape);
    } else {
        report.Dialog().close();
    }
    QVERIFY(asked.WasAsked());
    QVERIFY(report.IsDialogDeleted());
    QVERIFY(!report.IsWritten());
    QVERIFY(!QApplication::activeModalWidget());
}

void TestCommentDialogImpl::dialogDeletedUnansweredWritesNothing()
{
    OpenReport report(reportFile());
    report.DeleteDialog();
    QVERIFY(!report.IsWritten());
}

void TestCommentDialogImpl::showsAndWritesNothingWithoutADocument()
{
    CommentDialogImpl dialog;
    dialog.SetFileName(reportFile());
    dialog.ShowReportSummary();
    QCOMPARE(dialog.findChild<QLabel*>(QStringLiteral("m_pFrequencyLabel"))->text(), QStringLiteral("---"));
    QCOMPARE(dialog.findChild<QLabel*>(QStringLiteral("m_pAzimuthLabel"))->text(), QStringLiteral("---"));
    QTest::keyClicks(dialog.findChild<QTextEdit*>(QStringLiteral("m_pTextEdit")), QStringLiteral("fading"));
    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("m_pSaveButton")), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QVERIFY(!QFile::exists(reportFile()));
}

void TestCommentDialogImpl::commentHasNoPlaceWithoutARoot()
{
    // What a schema that fails leaves of a report.
    QDomDocument document;
    document.setContent(QStringLiteral("<?xml version='1.0' encoding='UTF-8'?>"));
    CommentDialogImpl dialog;
    dialog.SetDocument(&document);
    dialog.SetFileName(reportFile());
    dialog.ShowReportSummary();
    QTest::keyClicks(dialog.findChild<QTextEdit*>(QStringLiteral("m_pTextEdit")), QStringLiteral("fading"));
    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("m_pSaveButton")), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(bytesOf(reportFile()), QByteArray("<?xml version='1.0' encoding='UTF-8'?>\n"));

    // It counts as saved: closing asks and writes no more.
    QVERIFY(QFile::remove(reportFile()));
    dialog.show();
    const Operator asked(QMessageBox::Yes);
    QVERIFY(dialog.close());
    QVERIFY(!asked.WasAsked());
    QVERIFY(!QFile::exists(reportFile()));
}

void TestCommentDialogImpl::textsFollowTheLanguageAndValuesStay()
{
    const OpenReport report(reportFile(), QStringLiteral("<R><Frequency Unit='MHz'>98.5</Frequency></R>"));
    report.Type(QStringLiteral("fading"));
    const QString time = report.Find<QLabel>("m_pTimeLabel")->text();

    const UpperCase language;
    QCOMPARE(report.Find<QLabel>("m_pFreqTextLabel")->text(), QStringLiteral("FREQUENCY:"));
    QCOMPARE(report.Find<QLabel>("m_pFrequencyLabel")->text(), QStringLiteral("98.5 MHz"));
    QCOMPARE(report.Find<QLabel>("m_pFrequencyLabel")->accessibleName(), QStringLiteral("FREQUENCY: 98.5 MHz"));
    QCOMPARE(report.Find<QLabel>("m_pLevelLabel")->text(), QStringLiteral("---"));
    QCOMPARE(report.Find<QLabel>("m_pTimeLabel")->text(), time);
    QCOMPARE(report.Find<QTextEdit>("m_pTextEdit")->toPlainText(), QStringLiteral("fading"));
    QCOMPARE(report.Find<QTextEdit>("m_pTextEdit")->accessibleName(), QStringLiteral("COMMENT"));
    QCOMPARE(report.Find<QPushButton>("m_pSaveButton")->text(), QStringLiteral("SAVE"));
    QCOMPARE(report.Dialog().windowTitle(), QStringLiteral("TOREPORT - ") + time);
}

void TestCommentDialogImpl::questionIsTranslated()
{
    const UpperCase language;
    const OpenReport report(reportFile());
    report.Type(QStringLiteral("fading"));
    const Operator asked(QMessageBox::No);
    report.Dialog().close();
    QCOMPARE(asked.Title(), QStringLiteral("WARNING"));
    QCOMPARE(asked.Text(), QStringLiteral("YOU HAVE ENTERD A COMMENT. WOULD YOU LIKE TO SAVE IT?"));
}

void TestCommentDialogImpl::keepsItsSizeWhereItsTextsFit()
{
    const ApplicationFont usual(UsualTimeWidth);
    const OpenReport report(reportFile());
    QCOMPARE(cutTexts(report.Dialog()), QStringList());
    QCOMPARE(report.Dialog().size(), QSize(392, 300));
}

void TestCommentDialogImpl::growsUntilNoTextIsCut_data()
{
    QTest::addColumn<bool>("isOpen"); // when language and font change
    QTest::addColumn<bool>("isWordy");
    QTest::addColumn<int>("timeWidth");

    QTest::newRow("wordy-language") << false << true << UsualTimeWidth;
    QTest::newRow("large-font") << false << false << 2 * UsualTimeWidth;
    QTest::newRow("both") << false << true << UsualTimeWidth * 3 / 2;
    QTest::newRow("wordy-language-while-open") << true << true << UsualTimeWidth;
    QTest::newRow("large-font-while-open") << true << false << 2 * UsualTimeWidth;
}

void TestCommentDialogImpl::growsUntilNoTextIsCut()
{
    QFETCH(const bool, isOpen);
    QFETCH(const bool, isWordy);
    QFETCH(const int, timeWidth);

    const ApplicationFont usual(UsualTimeWidth);
    const OpenReport report(reportFile());
    report.Dialog().setVisible(isOpen);
    const UpperCase language(isWordy ? 2 : 1);
    const ApplicationFont larger(timeWidth);
    if (!isOpen) {
        report.Dialog().ShowReportSummary();
    }
    QCoreApplication::processEvents();
    QCOMPARE(cutTexts(report.Dialog()), QStringList());
}

void TestCommentDialogImpl::growsNoLargerThanTheScreen()
{
    const QString azimuth(100000, QLatin1Char('7'));
    const OpenReport report(reportFile(), QStringLiteral("<R><Azimuth>%1</Azimuth></R>").arg(azimuth));
    const QSize screen = report.Dialog().screen()->availableSize();
    QCOMPARE(report.Dialog().size().boundedTo(screen), report.Dialog().size());
}

QTEST_MAIN(TestCommentDialogImpl)
#include "tst_commentdialogimpl.moc"
