#ifndef XMLHELPERREPORTWIDGETS_REPORTPANEL_H
#define XMLHELPERREPORTWIDGETS_REPORTPANEL_H

#include <functional>
#include <memory>

#include <QWidget>

#include <xmlhelperreports/reportpage.h>
#include <xmlhelperreports/reportsupervisor.h>
#include <xmlhelperreportwidgets/xmlhelperreportwidgetsexport.h>

class QSettings;
class ReportJournal;
struct ReportPanelData;

/// Tells an operator what became of the reports of the process: a message about one of them in words and with a sign,
/// what can be done with it, the list of all that the supervisor remembers, and the file as a page and as XML.
///
/// The choice in the list decides what the whole panel shows. The newest report is chosen by itself as long as the
/// newest is chosen; who looks at an older one is not disturbed. Reports that could not be saved stand in the list with
/// the others, and below it how many they are and when they are tried again; the operator tries again, saves elsewhere
/// or discards. Where a file or its folder changes, the supervisor is told to check again, so that a verdict which is
/// no longer true is taken back.
///
/// Below them stand the reports of earlier sessions, where the program has a journal and gives it with SetJournal().
/// Whoever chooses one of them sees and does the same as with a report of this session.
///
/// A program makes the panel beside its supervisor, puts it into a window, and asks MayQuit() when that is closed:
///
///     ReportSupervisor supervisor;
///     ReportPanel panel(supervisor);
///     supervisor.TakeOverEarlier();
///
/// Texts are in the application's language, and change with it: the library registers the translation context
/// XMLHelperReportWidgets. Nothing is remembered unless Remember() is called. Everything belongs to the thread of the
/// widgets, which is the supervisor's too.
class XMLHELPERREPORTWIDGETS_EXPORT ReportPanel final : public QWidget
{
    Q_OBJECT

public:
    /// Adds to the page of a report.
    using PageDresser = std::function<void(quint64 report, ReportPage& page)>;

    /// @param supervisor  is watched; outlives the panel
    /// @param parent      owns it; may be null
    explicit ReportPanel(ReportSupervisor& supervisor, QWidget* parent = nullptr);
    ~ReportPanel() override;

    /// Chooses a report, as the operator does in the list.
    /// @param report  its number; of one that is not in the list nothing happens
    void ShowReport(quint64 report);

    /// @return the number of the chosen report; 0 when there is none, or when it is of an earlier session
    quint64 GetShownReport() const;

    /// Lists the reports of earlier sessions too: the latest 100 of this computer that the journal holds by now, and
    /// those of folders that it takes in later. What a journal knows of a file is compared with the file when its
    /// report is chosen, and when the file or its folder changes. Reports that are made from now on cost nothing more.
    /// @param journal  an open one; not owned, may go before the panel. Null for none any more, which is also all that
    ///                 can be given where the libraries are built without Qt SQL
    void SetJournal(ReportJournal* journal);

    /// @return the id of the journal's entry of the chosen report, when that is of an earlier session; else empty
    QString GetShownEntry() const;

    /// Asks the operator, in a dialog, whether to quit although reports would be lost; it says which. To be called when
    /// the program's window is closed.
    /// @return whether the program may quit: the operator wants it, or nothing would be lost, when nobody is asked
    bool MayQuit();

    /// Sets who adds to the page of each report what only the program knows, such as a title or a picture.
    /// @param dresser  is called when a page is made, with the number 0 for a report of an earlier session, and must
    ///                 not call the panel; an empty function for nobody
    void SetPageDresser(const PageDresser& dresser);

    /// Takes over how the panel was laid out the last time, and keeps it from now on.
    /// @param settings  outlives the panel; its group "ReportPanel" is used
    void Remember(QSettings& settings);

protected:
    /// Follows the application's language.
    /// @param event  Qt's
    void changeEvent(QEvent* event) override;
    /// Has files looked at again.
    /// @param event  Qt's
    void showEvent(QShowEvent* event) override;
    /// Has files looked at again when the window is used again.
    /// @param event  Qt's
    /// @return whether it was dealt with
    bool event(QEvent* event) override;

private:
    Q_DISABLE_COPY(ReportPanel)

    std::unique_ptr<ReportPanelData> m_pData;
};

#endif
