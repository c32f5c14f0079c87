#ifndef MEASUREMENTPANEL_PRESSTEXT_H
#define MEASUREMENTPANEL_PRESSTEXT_H

#include <QCoreApplication>
#include <QString>

struct Press;

/// Says in the operator's language what became of a press. The texts are made when they are asked for, so they follow
/// the language.
class PressText
{
    Q_DECLARE_TR_FUNCTIONS(PressText)

public:
    /// Few words, for a list: "written", "waiting for comment", "disk full".
    static QString Verdict(const Press& press);
    /// One sentence with the number or the file name of the report.
    static QString Sentence(const Press& press);
    /// What to do now, or what the check has shown.
    static QString Advice(const Press& press);
};

#endif
