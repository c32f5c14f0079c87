#ifndef MEASUREMENTPANEL_REPORTMESSAGE_H
#define MEASUREMENTPANEL_REPORTMESSAGE_H

#include <QFrame>

#include "press.h"

class QLabel;
class QPushButton;

/// Says what became of a press, and stays until the next one: what happened, where the file is, what to do now.
///
/// The file can be opened, shown in its folder, and its path copied; a report whose comment dialog has been answered
/// without saving it can be answered again. The verdict is told by words and a sign, not by its colour alone, and
/// screen readers are alerted.
class ReportMessage : public QFrame
{
    Q_OBJECT

public:
    explicit ReportMessage(QWidget* parent = nullptr);
    ~ReportMessage() override;

    void ShowPress(const Press& press);
    /// Says everything again, in the language of now.
    void Translate();

Q_SIGNALS:
    /// The operator wants to answer the comment dialog of the press shown.
    void DialogWanted(const Press& press);
    /// Something that the operator wanted could not be done.
    void Complaint(const QString& complaint);

protected:
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY(ReportMessage)

    QLabel* createLabel(const char* name);
    QPushButton* createButton(const char* name);
    void showSign();
    void open(const QString& path);

    Press m_press; ///< number 0: none yet

    // Children of the frame.
    QLabel* m_pSign;
    QLabel* m_pSentence;
    QLabel* m_pAdvice;
    QLabel* m_pPath;
    QPushButton* m_pOpen;
    QPushButton* m_pShowInFolder;
    QPushButton* m_pCopyPath;
    QPushButton* m_pOpenDialog;
};

#endif
