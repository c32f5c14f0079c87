#include "reportview_p.h"

#include <QFileInfo>
#include <QScrollBar>
#include <QTextBrowser>

#include "focusring_p.h"
#include "reportwords_p.h"
#include "xmlview_p.h"

namespace {

enum Tab { PageTab, XmlTab };

/// Bytes of a report. The page of a longer one would keep its window waiting for seconds.
constexpr qint64 MaxShown = 1 << 17;

bool isSame(const ReportSupervisor::Verdict& one, const ReportSupervisor::Verdict& other)
{
    return one.report == other.report && one.state == other.state && one.reason == other.reason
        && one.fileName == other.fileName && one.size == other.size;
}

} // namespace

ReportView::ReportView(QWidget* parent)
    : QTabWidget(parent)
    , m_pPage(new QTextBrowser)
    , m_pXml(new XmlView)
{
    m_pPage->setObjectName(QStringLiteral("reportPage"));
    m_pPage->setOpenLinks(false);
    m_pXml->setObjectName(QStringLiteral("reportXml"));
    m_pXml->setTabChangesFocus(true);
    addTab(new FocusRing(*m_pPage), QString());
    addTab(new FocusRing(*m_pXml), QString());
    Translate();
}

ReportView::~ReportView() = default;

void ReportView::Show(const ReportSupervisor::Verdict& verdict, const QByteArray& preview)
{
    const QDateTime fileTime = QFileInfo(verdict.fileName).lastModified();
    if (isSame(verdict, m_verdict) && fileTime == m_fileTime && preview == m_preview) {
        return;
    }
    m_preview = preview;
    m_verdict = verdict;
    m_fileTime = fileTime;
    showPage();
    if (ReportWords::HasFile(verdict)) {
        m_pXml->ShowFile(verdict.fileName);
    } else {
        m_pXml->setPlainText(QString::fromUtf8(m_preview));
    }
}

void ReportView::Translate()
{
    setTabText(PageTab, tr("Pa&ge"));
    setTabText(XmlTab, tr("&XML"));
    m_pPage->setAccessibleName(tr("Report as a page"));
    m_pXml->setAccessibleName(tr("Report as XML"));
    m_pPage->setPlaceholderText(tr("This report has no file."));
    m_pXml->setPlaceholderText(tr("This report has no file."));
    showPage();
}

void ReportView::SetDresser(const Dresser& dresser)
{
    m_dresser = dresser;
    showPage();
}

bool ReportView::MakePage(ReportPage& page) const
{
    page.SetFaults(m_verdict.reason.isEmpty() ? QStringList() : QStringList(m_verdict.reason));
    if (!page.Read(m_verdict.fileName, m_verdict.schemaPath)) {
        return false;
    }
    if (m_dresser) {
        m_dresser(m_verdict.report, page);
    }
    return true;
}

void ReportView::showPage()
{
    m_bHasPage = ReportWords::HasFile(m_verdict);
    if (m_bHasPage) {
        showFile();
    } else {
        showPreview();
    }
}

/// A file that is no page is told about in its place; the XML is there all the same.
void ReportView::showFile()
{
    m_pPage->clear();
    if (qMax(m_verdict.size, QFileInfo(m_verdict.fileName).size()) > MaxShown) { // It may have grown.
        m_pPage->setPlainText(tr("This report is too long to be shown as a page. It can be exported as one."));
        return;
    }
    ReportPage page;
    m_bHasPage = MakePage(page);
    if (m_bHasPage) {
        m_pPage->setHtml(page.ToRichText());
    } else {
        m_pPage->setPlainText(page.GetError());
    }
}

/// Who reads while somebody types stays where he is. It cannot be exported: nothing of it has been decided yet.
void ReportView::showPreview()
{
    ReportPage page;
    if (m_preview.isEmpty() || !page.ReadContent(m_preview, m_verdict.schemaPath)) {
        m_pPage->clear();
        return;
    }
    if (m_dresser) {
        m_dresser(m_verdict.report, page);
    }
    const int place = m_pPage->verticalScrollBar()->value();
    m_pPage->setHtml(page.ToRichText());
    m_pPage->verticalScrollBar()->setValue(place);
}
