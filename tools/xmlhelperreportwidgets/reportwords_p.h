#ifndef XMLHELPERREPORTWIDGETS_REPORTWORDS_P_H
#define XMLHELPERREPORTWIDGETS_REPORTWORDS_P_H

#include <QColor>
#include <QCoreApplication>
#include <QPalette>
#include <QString>

#include <xmlhelperreports/reportsupervisor.h>

/// What is said of a report to its operator, in the application's language. Each state has a sign of its own, since
/// not everybody sees colours.
class ReportWords
{
    Q_DECLARE_TR_FUNCTIONS(ReportWords)

public:
    /// The name of its file, or what stands for one.
    static QString Name(const ReportSupervisor::Verdict& verdict);
    /// A character, none of which is said of two states.
    static QString Sign(const ReportSupervisor::Verdict& verdict);
    static QColor Colour(const ReportSupervisor::Verdict& verdict, const QPalette& palette);
    /// A word or two, for a list.
    static QString Word(const ReportSupervisor::Verdict& verdict);
    /// What became of it.
    static QString Sentence(const ReportSupervisor::Verdict& verdict);
    /// Why, and what to do now; may be empty.
    /// @param hasDialog  whether its comment dialog can be shown
    static QString Advice(const ReportSupervisor::Verdict& verdict, bool hasDialog);
    /// What is said of all that are kept; empty when there are none.
    /// @param msToNextTry  -1 when none is tried by itself
    static QString Kept(int count, int msToNextTry);

    /// Whether its file is there to be looked at.
    static bool HasFile(const ReportSupervisor::Verdict& verdict);
    /// Whether it is kept, and waits for a try or a decision.
    static bool IsKept(const ReportSupervisor::Verdict& verdict);
    /// Where the file is, or shall be; absolute. Empty when that is not known.
    static QString Path(const ReportSupervisor::Verdict& verdict);
};

#endif
