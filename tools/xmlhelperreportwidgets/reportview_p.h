#ifndef XMLHELPERREPORTWIDGETS_REPORTVIEW_P_H
#define XMLHELPERREPORTWIDGETS_REPORTVIEW_P_H

#include <functional>

#include <QTabWidget>

#include <xmlhelperreports/reportpage.h>
#include <xmlhelperreports/reportsupervisor.h>

class QTextBrowser;
class XmlView;

/// Shows the file of a report: as a page for people, and as the XML that it is. Of one that waits for its comment it
/// shows what would be saved.
class ReportView : public QTabWidget
{
    Q_OBJECT

public:
    using Dresser = std::function<void(quint64 report, ReportPage& page)>;

    explicit ReportView(QWidget* parent = nullptr);
    ~ReportView() override;

    /// Reads the file, unless it is the same as before. Without a file it says so.
    /// @param preview  the bytes that are shown in place of the file of a report that has none
    void Show(const ReportSupervisor::Verdict& verdict, const QByteArray& preview);
    /// Says everything again, in the language of now; the page too.
    void Translate();
    /// Sets who adds to each page that is made from now on; an empty function for nobody.
    void SetDresser(const Dresser& dresser);

    /// Whether there is a page to be exported or printed, as far as is known.
    bool HasPage() const { return m_bHasPage; }
    /// Makes the page of the report that is shown, of any length, from its file as it is now.
    /// @return whether it is made; else its GetError() says why not
    bool MakePage(ReportPage& page) const;

private:
    Q_DISABLE_COPY(ReportView)

    void showPage();
    void showFile();
    void showPreview();

    ReportSupervisor::Verdict m_verdict; ///< of the report that is shown
    QByteArray m_preview;
    QDateTime m_fileTime; ///< when its file was changed
    Dresser m_dresser;
    bool m_bHasPage = false;

    // Children of the tabs.
    QTextBrowser* m_pPage;
    XmlView* m_pXml;
};

#endif
