#include "commentdialogimpl.h"

#include <vector>

#include <QCloseEvent>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextOption>

#include <arbase/vorndatetime.h>
#include <arbase/vornos.h>

#include "documentfile_p.h"
#include "filesaving_p.h"
#include "takeapart_p.h"
#include "xmltext_p.h"

namespace {

const QLatin1String NoValue("---");

/// The longest line of a comment that is wrapped between words.
constexpr int MaxWrappedLine = 5000;

/// The bytes of a report that is told before it is saved, at most: it is for people to read.
constexpr int MaxUnsaved = 1 << 17;

/// Asks above @p window. The question lives on the heap because the window may be deleted while it is open, which
/// counts as Cancel; QMessageBox::warning() keeps it on the stack, where its parent must not delete it.
QMessageBox::StandardButton ask(QWidget* window, const QString& title, const QString& text)
{
    const QPointer<QMessageBox> question(new QMessageBox(
        QMessageBox::Warning, title, text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, window));
    question->exec();
    if (!question) {
        return QMessageBox::Cancel;
    }
    const QMessageBox::StandardButton answer = question->standardButton(question->clickedButton());
    delete question;
    return answer;
}

QLabel& valueOf(const QLabel& caption)
{
    return *qobject_cast<QLabel*>(caption.buddy());
}

} // namespace

CommentDialogImpl::CommentDialogImpl()
    : QDialog(nullptr, Qt::WindowTitleHint | Qt::WindowSystemMenuHint)
    , m_pDocument(nullptr)
    , m_bSaved(false)
    , m_bGivenBack(false)
{
    setupUi(this);
    showTitle();
    setModal(false);
    setObjectName(QStringLiteral("ToReportCommentDialog"));
    for (const QLabel* caption : valueCaptions()) {
        valueOf(*caption).clear();
    }
    connect(m_pTextEdit->document(), &QTextDocument::contentsChange, this, &CommentDialogImpl::wrapLongLines);
    nameValues();
    connectSaveKeys();
    m_pTextEdit->setFocus();
}

void CommentDialogImpl::SetDocument(QDomDocument* document)
{
    m_pDocument = document;
}

void CommentDialogImpl::OwnDocument(std::unique_ptr<QDomDocument> document)
{
    m_pOwnDocument = std::move(document);
    giveBack();
}

void CommentDialogImpl::SetFileName(QString fileName)
{
    m_sFileName = fileName;
}

void CommentDialogImpl::SetTeller(const ReportTeller& teller)
{
    m_teller = teller;
}

void CommentDialogImpl::ShowReportSummary()
{
    if (m_bGivenBack) {
        return;
    }
    const Vorn::DateTime now(VornOS::Create()->GetCurrentTime());
    m_sSummaryTime = now.toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"));
    m_pTimeLabel->setText(m_sSummaryTime);
    showTitle();

    m_pFrequencyLabel->setText(textWithUnit(QStringLiteral("Frequency")));
    m_pBandwidthLabel->setText(textWithUnit(QStringLiteral("Bandwidth")));
    const QDomElement level = firstElement(QStringLiteral("Level"), QStringLiteral("Signal_Level"));
    m_pLevelLabel->setText(level.isNull() ? QString(NoValue) : level.text());
    const QDomElement azimuth = firstElement(QStringLiteral("Azimuth"), QStringLiteral("DFAzimuth"));
    m_pAzimuthLabel->setText(azimuth.isNull() ? QString(NoValue) : azimuth.text() + QStringLiteral(" °"));
    nameValues();
    growToTexts();
    show();
}

/// The comment stands in the document only while that is written. One that would be changed first is left out, since
/// whoever looks often would have that traced each time.
QByteArray CommentDialogImpl::UnsavedReport() const
{
    if (!m_pDocument || m_bSaved || !m_comment.isNull() || m_pTextEdit->document()->characterCount() > MaxUnsaved) {
        return QByteArray();
    }
    const QString comment = m_pTextEdit->toPlainText();
    if (comment.isEmpty() || !isRepresentableText(comment)) {
        return savedBytesOf(*m_pDocument, MaxUnsaved);
    }
    QDomElement element = appendedComment(comment);
    const QByteArray bytes = savedBytesOf(*m_pDocument, MaxUnsaved);
    element.parentNode().removeChild(element);
    return bytes;
}

void CommentDialogImpl::reject()
{
    close();
}

void CommentDialogImpl::setVisible(bool visible)
{
    QDialog::setVisible(visible && !m_bGivenBack);
    if (!visible && m_bSaved) {
        // Later, because the answer comes from inside the widgets.
        QMetaObject::invokeMethod(this, &CommentDialogImpl::giveBack, Qt::QueuedConnection);
    }
}

void CommentDialogImpl::SlotSaveWithComment()
{
    if (m_bGivenBack) {
        return;
    }
    removeComment();
    const QString comment = representableText(m_pTextEdit->toPlainText(), "CommentDialogImpl");
    if (!comment.isEmpty()) {
        appendComment(comment);
    }
    writeAndHide();
}

void CommentDialogImpl::SlotSaveWithoutComment()
{
    if (m_bGivenBack) {
        return;
    }
    removeComment();
    writeAndHide();
}

void CommentDialogImpl::closeEvent(QCloseEvent* event)
{
    if (!m_bSaved && m_pTextEdit->toPlainText().isEmpty()) {
        removeComment();
        WriteReportFile();
    } else if (!m_bSaved) {
        switch (ask(this, tr("Warning"), tr("You have enterd a comment. Would you like to save it?"))) {
        case QMessageBox::Yes:
            SlotSaveWithComment();
            break;
        case QMessageBox::No:
            SlotSaveWithoutComment();
            break;
        default:
            // Cancel leaves the event as it arrived, which is accepted: the dialog closes and the report is not
            // written. The dialog may be gone by now.
            return;
        }
    }
    event->accept();
}

/// Wraps the comment anywhere once it has a long line, before that is laid out: Qt looks for the end of a word from
/// every row that the word fills, which takes hours for one of ten megabytes.
void CommentDialogImpl::wrapLongLines(int position, int, int added)
{
    QTextDocument* const document = m_pTextEdit->document();
    QTextBlock block = document->findBlock(position);
    while (block.isValid() && block.position() <= position + added && block.length() <= MaxWrappedLine) {
        block = block.next();
    }
    QTextOption option = document->defaultTextOption();
    if (block.length() > MaxWrappedLine && option.wrapMode() != QTextOption::WrapAnywhere) {
        option.setWrapMode(QTextOption::WrapAnywhere);
        document->setDefaultTextOption(option);
    }
}

void CommentDialogImpl::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && !m_bGivenBack) {
        translate();
    }
    QDialog::changeEvent(event);
    if ((event->type() == QEvent::LanguageChange || event->type() == QEvent::FontChange) && isVisible()) {
        growToTexts();
    }
}

/// The captions whose buddies are values.
std::array<QLabel*, 5> CommentDialogImpl::valueCaptions() const
{
    return {m_pTimeTextLabel, m_pFreqTextLabel, m_pBandwidthTextLabel, m_pLevelTextLabel, m_pAzimuthTextLabel};
}

/// The text edit leaves these keys to shortcuts; Enter is that of the number pad.
void CommentDialogImpl::connectSaveKeys()
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* const shortcut = new QShortcut(QKeySequence(int(Qt::CTRL) | int(key)), this);
        connect(shortcut, &QShortcut::activated, m_pSaveButton, &QPushButton::click);
    }
}

/// The form's translation puts its sample values into the value labels: they are given back what they have shown.
void CommentDialogImpl::translate()
{
    std::vector<QString> values;
    for (const QLabel* caption : valueCaptions()) {
        values.push_back(valueOf(*caption).text());
    }
    retranslateUi(this);
    auto value = values.cbegin();
    for (const QLabel* caption : valueCaptions()) {
        valueOf(*caption).setText(*value++);
    }
    showTitle();
    nameValues();
}

void CommentDialogImpl::showTitle()
{
    setWindowTitle(m_sSummaryTime.isEmpty() ? tr("Comment") : tr("ToReport - ") + m_sSummaryTime);
}

/// A value alone would tell a screen reader nothing, and a name alone would hide the value.
void CommentDialogImpl::nameValues()
{
    for (const QLabel* caption : valueCaptions()) {
        QLabel& value = valueOf(*caption);
        value.setAccessibleName((caption->text() + QLatin1Char(' ') + value.text()).trimmed());
    }
}

/// The form's size suits short texts in a small font. It only grows, as the operator may have made it larger, and never
/// beyond the screen.
void CommentDialogImpl::growToTexts()
{
    layout()->activate();
    // The minimum width of a value takes the place of what its text needs, which only the hint still has.
    const QSize needed(layout()->totalSizeHint().width(), layout()->totalMinimumSize().height());
    if (const QScreen* const place = screen()) { // None is there while a remote desktop is cut off.
        resize(size().expandedTo(needed.boundedTo(place->availableSize())));
    }
}

QDomElement CommentDialogImpl::appendedComment(const QString& comment) const
{
    QDomElement element = m_pDocument->createElement(QStringLiteral("Comment"));
    element.appendChild(m_pDocument->createTextNode(comment));
    m_pDocument->documentElement().appendChild(element);
    return element;
}

void CommentDialogImpl::appendComment(const QString& comment)
{
    if (m_pDocument) {
        m_comment = appendedComment(comment);
    }
}

/// Takes back the comment of an earlier answer whose file could not be written.
void CommentDialogImpl::removeComment()
{
    m_comment.parentNode().removeChild(m_comment);
    m_comment = QDomElement();
}

/// Who hears what became of the file may delete the dialog.
void CommentDialogImpl::WriteReportFile()
{
    if (m_pDocument) {
        SavedFile file;
        const bool isWritten = saveDocument(*m_pDocument, m_sFileName, &file);
        m_bSaved = m_bSaved || isWritten;
        m_teller.TellFile(isWritten, file, *m_pDocument);
    }
}

void CommentDialogImpl::writeAndHide()
{
    const QPointer<CommentDialogImpl> self(this);
    WriteReportFile();
    if (self) {
        hide();
    }
}

/// Gives back what a dialog holds that has been answered and has written its file.
void CommentDialogImpl::giveBack()
{
    if (!m_bSaved || isVisible()) {
        return;
    }
    m_bGivenBack = true;
    setSizeGripEnabled(false); // QDialog keeps a pointer to the grip
    qDeleteAll(findChildren<QObject*>(QString(), Qt::FindDirectChildrenOnly));
    destroy();
    if (m_pOwnDocument) {
        m_comment = QDomElement();
        takeApart(*m_pOwnDocument);
        m_pOwnDocument.reset();
        m_pDocument = nullptr;
    }
}

QDomElement CommentDialogImpl::firstElement(const QString& name) const
{
    return m_pDocument ? m_pDocument->elementsByTagName(name).item(0).toElement() : QDomElement();
}

QDomElement CommentDialogImpl::firstElement(const QString& name, const QString& alternativeName) const
{
    const QDomElement element = firstElement(name);
    return element.isNull() ? firstElement(alternativeName) : element;
}

QString CommentDialogImpl::textWithUnit(const QString& name) const
{
    const QDomElement element = firstElement(name);
    if (element.isNull()) {
        return NoValue;
    }
    const QString unit = element.attribute(QStringLiteral("Unit"));
    return unit.isEmpty() ? element.text() : element.text() + QLatin1Char(' ') + unit;
}
