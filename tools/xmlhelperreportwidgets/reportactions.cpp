#include "reportactions_p.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QUrl>

#ifdef XMLHELPERREPORTWIDGETS_HAS_PRINTING
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>
#endif

#include "flowlayout_p.h"
#include "question_p.h"
#include "reportview_p.h"
#include "reportwords_p.h"

namespace {

QString folderOf(const ReportSupervisor::Verdict& verdict)
{
    return QFileInfo(ReportWords::Path(verdict)).absolutePath();
}

/// Shows the folder with the file selected, where the system's file manager can be told so.
bool showFileInFolder(const QString& fileName)
{
#ifdef Q_OS_WIN
    if (QFileInfo::exists(fileName)) {
        QProcess explorer;
        explorer.setProgram(QStringLiteral("explorer.exe"));
        explorer.setNativeArguments(QStringLiteral("/select,\"%1\"").arg(QDir::toNativeSeparators(fileName)));
        return explorer.startDetached();
    }
#endif
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(fileName).absolutePath()));
}

/// The ending of a kind of file; empty of one for any.
QString endingOf(const QString& kind)
{
    const QString pattern = kind.section(QLatin1String("(*"), -1).section(QLatin1Char(')'), 0, 0);
    return pattern.mid(1);
}

/// A file without an ending of its own is of the kind that was chosen.
bool isPdf(const QString& fileName, bool isPdfChosen)
{
    const QString ending = QFileInfo(fileName).suffix().toLower();
    const bool isPage = ending == QLatin1String("html") || ending == QLatin1String("htm");
    return ending == QLatin1String("pdf") || (isPdfChosen && !isPage);
}

/// Whether the operator really wants to lose a report.
bool isLossWanted(QWidget& parent, const ReportSupervisor::Verdict& verdict)
{
    Question question;
    question.name = "discardQuestion";
    question.title = ReportActions::tr("Discard the report");
    question.text = ReportActions::tr("Discard report %1? What was measured for it is lost then.")
                        .arg(ReportWords::Name(verdict));
    question.yes = ReportActions::tr("&Discard");
    question.no = ReportActions::tr("&Keep");
    return isWanted(parent, question);
}

/// Asks above @p parent for the name of a file to write; empty when there is none, or when the parent is gone. Each
/// kind of file has its ending; a name without one gets that of the kind that is chosen.
/// @param kinds   as they are shown, with the ending in brackets
/// @param chosen  becomes the kind that was chosen; may be null
QString askForFile(QWidget& parent, const QString& title, const QString& suggestion, const QStringList& kinds,
                   QString* chosen = nullptr)
{
    const QPointer<QFileDialog> dialog(new QFileDialog(&parent, title, QFileInfo(suggestion).absolutePath()));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters(kinds);
    dialog->selectFile(suggestion);
    dialog->setDefaultSuffix(endingOf(kinds.front()));
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog,
                     [&dialog](const QString& kind) { dialog->setDefaultSuffix(endingOf(kind)); });
    const bool isChosen = dialog->exec() == QDialog::Accepted;
    if (dialog.isNull()) {
        return QString();
    }
    const QString fileName = isChosen ? dialog->selectedFiles().value(0) : QString();
    if (chosen) {
        *chosen = dialog->selectedNameFilter();
    }
    delete dialog;
    return fileName;
}

} // namespace

ReportActions::ReportActions(ReportSupervisor& supervisor, const ReportView& view, QWidget* parent)
    : QWidget(parent)
    , m_supervisor(supervisor)
    , m_view(view)
{
    new FlowLayout(this);
    m_pComment = createButton("reportComment", &ReportActions::showDialog);
    m_pTryAgain = createButton("reportTryAgain", &ReportActions::tryAgain);
    m_pSaveElsewhere = createButton("reportSaveElsewhere", &ReportActions::saveElsewhere);
    m_pDiscard = createButton("reportDiscard", &ReportActions::discard);
    m_pOpen = createButton("reportOpen", &ReportActions::open);
    m_pShowInFolder = createButton("reportShowInFolder", &ReportActions::showInFolder);
    m_pCopyPath = createButton("reportCopyPath", &ReportActions::copyPath);
    m_pExport = createButton("reportExport", &ReportActions::exportPage);
#ifdef XMLHELPERREPORTWIDGETS_HAS_PRINTING
    m_pPrint = createButton("reportPrint", &ReportActions::printPage);
#endif
    Translate();
    Show(ReportSupervisor::Verdict(), nullptr);
}

ReportActions::~ReportActions() = default;

void ReportActions::Show(const ReportSupervisor::Verdict& verdict, QDialog* dialog)
{
    m_verdict = verdict;
    m_pDialog = dialog;
    m_pComment->setVisible(IsDialogOf(verdict, dialog));
    const bool isKept = ReportWords::IsKept(verdict);
    for (QPushButton* const button : {m_pTryAgain, m_pSaveElsewhere, m_pDiscard}) {
        button->setVisible(isKept);
    }
    m_pOpen->setVisible(!isKept);
    for (QPushButton* const button : {m_pExport, m_pPrint}) {
        if (button) {
            button->setVisible(!isKept);
            button->setEnabled(m_view.HasPage());
        }
    }
    const bool hasPath = !ReportWords::Path(verdict).isEmpty();
    m_pOpen->setEnabled(ReportWords::HasFile(verdict));
    m_pShowInFolder->setEnabled(hasPath);
    m_pCopyPath->setEnabled(hasPath);
}

void ReportActions::Translate()
{
    m_pComment->setText(tr("Co&mment…"));
    m_pTryAgain->setText(tr("&Try again"));
    m_pSaveElsewhere->setText(tr("&Save elsewhere…"));
    m_pDiscard->setText(tr("&Discard…"));
    m_pOpen->setText(tr("&Open"));
    m_pShowInFolder->setText(tr("Show in &folder"));
    m_pCopyPath->setText(tr("&Copy path"));
    m_pExport->setText(tr("&Export…"));
    if (m_pPrint) {
        m_pPrint->setText(tr("&Print…"));
    }
}

bool ReportActions::IsDialogOf(const ReportSupervisor::Verdict& verdict, const QDialog* dialog)
{
    return dialog
        && (verdict.state == ReportSupervisor::State::Waiting || verdict.state == ReportSupervisor::State::Closed);
}

QPushButton* ReportActions::createButton(const char* name, void (ReportActions::*action)())
{
    auto* const button = new QPushButton(this);
    button->setObjectName(QLatin1String(name));
    layout()->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, action] {
        Q_EMIT Complaint(QString());
        (this->*action)();
    });
    return button;
}

void ReportActions::open()
{
    const QString path = ReportWords::Path(m_verdict);
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        Q_EMIT Complaint(tr("There is no program that opens %1.").arg(QDir::toNativeSeparators(path)));
    }
}

void ReportActions::showInFolder()
{
    const QString folder = folderOf(m_verdict);
    if (!QFileInfo(folder).isDir()) {
        Q_EMIT Complaint(tr("There is no folder %1.").arg(QDir::toNativeSeparators(folder)));
    } else if (!showFileInFolder(ReportWords::Path(m_verdict))) {
        Q_EMIT Complaint(tr("There is no program that shows %1.").arg(QDir::toNativeSeparators(folder)));
    }
}

void ReportActions::copyPath()
{
    QGuiApplication::clipboard()->setText(QDir::toNativeSeparators(ReportWords::Path(m_verdict)));
}

/// As what the name says it is, or else the kind that was chosen. Another report may be chosen before the answer, and
/// the panel be gone.
void ReportActions::exportPage()
{
    ReportPage page;
    if (!m_view.MakePage(page)) {
        Q_EMIT Complaint(page.GetError());
        return;
    }
    const QFileInfo info(ReportWords::Path(m_verdict));
    const QString suggestion = info.absolutePath() + QLatin1Char('/') + info.completeBaseName();
    const QString webPage = tr("Web page (*.html)");
    const QString pdf = tr("PDF (*.pdf)");
    QString kind;
    const QString fileName
        = askForFile(*this, tr("Export the report"), suggestion + QLatin1String(".html"), {webPage, pdf}, &kind);
    if (fileName.isEmpty()) {
        return;
    }
    QString reason;
    if (!(isPdf(fileName, kind == pdf) ? page.SavePdf(fileName, &reason) : page.SaveHtml(fileName, &reason))) {
        Q_EMIT Complaint(tr("The page could not be saved as %1: %2.").arg(QDir::toNativeSeparators(fileName), reason));
    }
}

void ReportActions::printPage()
{
#ifdef XMLHELPERREPORTWIDGETS_HAS_PRINTING
    ReportPage page;
    if (!m_view.MakePage(page)) {
        Q_EMIT Complaint(page.GetError());
        return;
    }
    QPrinter printer(QPrinter::HighResolution); // outlives the dialog
    const QPointer<QPrintDialog> dialog(new QPrintDialog(&printer, this));
    if (dialog->exec() == QDialog::Accepted) {
        QTextDocument document;
        document.setHtml(page.ToRichText());
        document.print(&printer);
    }
    delete dialog;
#endif
}

void ReportActions::showDialog()
{
    if (m_pDialog) {
        m_pDialog->show();
        m_pDialog->raise();
        m_pDialog->activateWindow();
    }
}

void ReportActions::tryAgain()
{
    if (!m_supervisor.TryAgain(m_verdict.report)) {
        Q_EMIT Complaint(tr("The report could still not be saved."));
    }
}

void ReportActions::saveElsewhere()
{
    const quint64 report = m_verdict.report; // another may be chosen before the answer
    const QStringList kinds = tr("Reports (*.xml);;All files (*)").split(QStringLiteral(";;"));
    const QString fileName = askForFile(*this, tr("Save the report elsewhere"), ReportWords::Path(m_verdict), kinds);
    if (!fileName.isEmpty() && !m_supervisor.SaveElsewhere(report, fileName)
        && ReportWords::IsKept(m_supervisor.GetReport(report))) { // It may have been saved meanwhile.
        Q_EMIT Complaint(tr("The report could not be saved as %1.").arg(QDir::toNativeSeparators(fileName)));
    }
}

void ReportActions::discard()
{
    const quint64 report = m_verdict.report;
    if (isLossWanted(*this, m_verdict)) {
        m_supervisor.Discard(report);
    }
}
