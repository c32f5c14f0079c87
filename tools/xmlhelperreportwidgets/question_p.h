#ifndef XMLHELPERREPORTWIDGETS_QUESTION_P_H
#define XMLHELPERREPORTWIDGETS_QUESTION_P_H

#include <QString>

class QWidget;

/// A question before something is lost.
struct Question
{
    const char* name = ""; ///< of the object
    QString title;
    QString text; ///< plain
    QString yes; ///< a button's text
    QString no; ///< a button's text; the default, and what Escape means
};

/// Asks above a window until the answer. Meanwhile the window may be deleted, and the question with it, which is a no.
bool isWanted(QWidget& window, const Question& question);

#endif
