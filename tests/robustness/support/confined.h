#ifndef XMLHELPER_TESTS_CONFINED_H
#define XMLHELPER_TESTS_CONFINED_H

#include <QString>
#include <QStringList>

/// What came of work that was done in a process of its own, on a stack of 1 MB.
struct ConfinedOutcome
{
    bool hasEnded = false; ///< by itself, in time and without a crash
    bool result = false; ///< what the library answered
    int begunElements = 0; ///< begin events
    int errors = 0; ///< error events
    QStringList traces;
    qint64 milliseconds = 0; ///< of processor time
    qint64 megabytes = 0; ///< at most in use; 0 where it cannot be told
};

/// Reads the content in the file called @p fileName twice with one reader; the result is the first one if the second
/// is the same, and the work counts as not ended if it is not.
ConfinedOutcome readConfined(const QString& fileName);

/// Builds a report from a schema, with an observer that answers nothing.
ConfinedOutcome buildConfined(const QString& schemaFileName, const QString& reportFileName);

/// What the text of an outcome must be for QCOMPARE to tell all that is wrong: "ended, true" or the like, followed by
/// the traces, a line each.
QString outcomeText(bool result, const QStringList& traces = QStringList());
QString outcomeText(const ConfinedOutcome& outcome);

/// Whether the tests run under sanitizers. These multiply time and memory, since they keep what was freed and a shadow
/// of all memory, so that limits of both say nothing; and the leak checker needs a time that grows with the square of
/// what report builders keep on purpose.
bool isSanitized();

#endif
