#include "question_p.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

bool isWanted(QWidget& window, const Question& question)
{
    // On the heap: its parent deletes it when that goes first.
    const QPointer<QMessageBox> box(
        new QMessageBox(QMessageBox::Warning, question.title, question.text, QMessageBox::NoButton, &window));
    box->setObjectName(QLatin1String(question.name));
    box->setTextFormat(Qt::PlainText); // a file may have any name
    const QPushButton* const yes = box->addButton(question.yes, QMessageBox::DestructiveRole);
    QPushButton* const no = box->addButton(question.no, QMessageBox::RejectRole);
    box->setDefaultButton(no);
    box->setEscapeButton(no);
    box->exec();
    const bool isYes = box && box->clickedButton() == yes;
    delete box;
    return isYes;
}
