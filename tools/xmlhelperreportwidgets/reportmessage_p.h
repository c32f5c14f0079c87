#ifndef XMLHELPERREPORTWIDGETS_REPORTMESSAGE_P_H
#define XMLHELPERREPORTWIDGETS_REPORTMESSAGE_P_H

#include <QFrame>

#include <xmlhelperreports/reportsupervisor.h>

class ElidedLabel;
class QLabel;

/// Says what became of a report: what happened, why, what to do now, and where the file is. It tells so by words and a
/// sign, not by its colour alone, and screen readers are alerted.
class ReportMessage : public QFrame
{
    Q_OBJECT

public:
    explicit ReportMessage(QWidget* parent = nullptr);
    ~ReportMessage() override;

    /// @param verdict    with the number 0 for none
    /// @param hasDialog  whether its comment dialog can be shown
    void Show(const ReportSupervisor::Verdict& verdict, bool hasDialog);
    /// Says that something could not be done, until another report is shown or something else is said.
    /// @param complaint  a sentence; empty to take back what was said
    void Complain(const QString& complaint);
    /// Says everything again, in the language of now.
    void Translate();

protected:
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY(ReportMessage)

    QLabel* createLabel(const char* name);
    void showColours();

    ReportSupervisor::Verdict m_verdict;
    bool m_bHasDialog = false;

    // Children of the frame.
    QLabel* m_pSign;
    QLabel* m_pSentence;
    QLabel* m_pAdvice;
    ElidedLabel* m_pPath;
    QLabel* m_pComplaint;
};

#endif
