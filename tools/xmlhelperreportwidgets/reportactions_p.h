#ifndef XMLHELPERREPORTWIDGETS_REPORTACTIONS_P_H
#define XMLHELPERREPORTWIDGETS_REPORTACTIONS_P_H

#include <QDialog>
#include <QPointer>
#include <QWidget>

#include <xmlhelperreports/reportsupervisor.h>

class QPushButton;
class ReportView;

/// What an operator can do with a report: buttons for its file, and where it is kept or waits, buttons for that.
class ReportActions : public QWidget
{
    Q_OBJECT

public:
    /// @param supervisor  outlives this
    /// @param view        shows the report before Show() is called; outlives this
    ReportActions(ReportSupervisor& supervisor, const ReportView& view, QWidget* parent = nullptr);
    ~ReportActions() override;

    /// @param dialog  its comment dialog; null when there is none
    void Show(const ReportSupervisor::Verdict& verdict, QDialog* dialog);
    /// Says everything again, in the language of now.
    void Translate();

    /// Whether the dialog of a report can still be answered.
    static bool IsDialogOf(const ReportSupervisor::Verdict& verdict, const QDialog* dialog);

Q_SIGNALS:
    /// Something that the operator wanted could not be done; empty when it could, so that no earlier one stands.
    void Complaint(const QString& complaint);

private:
    Q_DISABLE_COPY(ReportActions)

    QPushButton* createButton(const char* name, void (ReportActions::*action)());

    void open();
    void showInFolder();
    void copyPath();
    void exportPage();
    void printPage();
    void showDialog();
    void tryAgain();
    void saveElsewhere();
    void discard();

    ReportSupervisor& m_supervisor;
    const ReportView& m_view;
    ReportSupervisor::Verdict m_verdict;
    QPointer<QDialog> m_pDialog;

    // Children, in the order of the keyboard.
    QPushButton* m_pComment = nullptr;
    QPushButton* m_pTryAgain = nullptr;
    QPushButton* m_pSaveElsewhere = nullptr;
    QPushButton* m_pDiscard = nullptr;
    QPushButton* m_pOpen = nullptr;
    QPushButton* m_pShowInFolder = nullptr;
    QPushButton* m_pCopyPath = nullptr;
    QPushButton* m_pExport = nullptr;
    QPushButton* m_pPrint = nullptr; ///< null where the library is built without printing
};

#endif
