#include "reportactions_p.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QUrl>

#ifdef XMLHELPERREPORTWIDGETS_HAS_PRINTING
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>
#endif

#include "flowlayout_p.h"
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

/// Whether the operator really wants to lose a report.
bool isLossWanted(QWidget& parent, const ReportSupervisor::Verdict& verdict)
{
    QMessageBox question(
        QMessageBox::Warning, ReportActions::tr("Discard the report"),
        ReportActions::tr("Discard report %1? What was measured for it is lost then.").arg(ReportWords::Name(verdict)),
        QMessageBox::NoButton, &parent);
    question.setObjectName(QStringLiteral("discardQuestion"));
    question.setTextFormat(Qt::PlainText); // a file may have any name
    const QPushButton* const discard = question.addButton(ReportActions::tr("&Discard"), QMessageBox::DestructiveRole);
    QPushButton* const keep = question.addButton(ReportActions::tr("&Keep"), QMessageBox::RejectRole);
    question.setDefaultButton(keep);
    question.setEscapeButton(keep);
    question.exec();
    return question.clickedButton() == discard;
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

/// As what the name says it is. Another report may be chosen before the answer.
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
    QString filter = webPage;
    const QString fileName
        = QFileDialog::getSaveFileName(this, tr("Export the report"), suggestion + QLatin1String(".html"),
                                       webPage + QLatin1String(";;") + pdf, &filter);
    if (fileName.isEmpty()) {
        return;
    }
    QString reason;
    const bool isPdf = fileName.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
    if (!(isPdf ? page.SavePdf(fileName, &reason) : page.SaveHtml(fileName, &reason))) {
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
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted) {
        QTextDocument document;
        document.setHtml(page.ToRichText());
        document.print(&printer);
    }
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
    const QString fileName = QFileDialog::getSaveFileName(
        this, tr("Save the report elsewhere"), ReportWords::Path(m_verdict), tr("Reports (*.xml);;All files (*)"));
    if (!fileName.isEmpty() && !m_supervisor.SaveElsewhere(report, fileName)) {
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
