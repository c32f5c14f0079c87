#ifndef REPORTCHECK_REPORTCHECK_H
#define REPORTCHECK_REPORTCHECK_H

#include <vector>

#include <QString>

/// What a finished report still lacks.
///
/// checkReport() reads one report, applies every rule to it and validates it. Renderings take the result, which is
/// plain data: it refers to nothing outside of itself and is copied freely. Nothing is written and nothing is fetched
/// from a network; files may be of any content and come from anywhere.
namespace reportcheck {

enum class Severity {
    Note, ///< good to know, the report is right all the same
    Warning, ///< the report may be other than was meant
    Error, ///< the report is not right
};

/// One thing to say about a report. All texts are plain: whole sentences without markup.
struct Finding
{
    Severity severity = Severity::Error;
    QString
        rule; ///< lower case with hyphens, the same over versions; "validation" and "schema" for the validator's words
    QString file; ///< the report; the schema file for a message about the schema
    int line = 0; ///< the first line is 1; 0: the file as a whole
    QString path; ///< of the element, such as "/Report/Signal/Sample[2]"; empty when it is about no element
    QString text; ///< what is there
    QString advice; ///< what it comes from, and what to do; empty when there is nothing to add
    int count = 1; ///< greater for the last of a rule, when it stands for all those that are left out
};

struct Result
{
    QString report; ///< as the caller gave it

    /// Why the report, or the schema that the caller gave, cannot be read: no file, no well-formed XML, beyond the
    /// limits. Empty when it can be read. When it cannot, there are no findings.
    QString unreadableReason;

    /// The file that the report was validated against; empty when there is none that can be read from here.
    QString schema;
    bool isValidated = false; ///< false as well when the schema is at fault itself; `validation` says how
    bool isStopped = false; ///< the validation, for the time that it took; `validation` holds what it said until then

    std::vector<Finding> findings; ///< by the rules; in document order
    std::vector<Finding> validation; ///< by the validator, about the report or the schema; in the validator's order

    bool IsReadable() const { return unreadableReason.isEmpty(); }
};

/// Findings of one rule, and messages of the validator; behind them only their number is told.
constexpr int MaxFindingsOfARule = 100;

/// Processor time for the validation of one report.
constexpr int MaxValidationSeconds = 10;

/// Checks one report.
///
/// The schema named in the report is looked for as written, in the folder of the report and in the working folder.
/// @param schema  is taken in place of the one that the report names, when not empty
Result checkReport(const QString& report, const QString& schema = QString());

enum ExitStatus { NothingToSay = 0, HasWarnings = 1, HasErrors = 2, Unreadable = 3 };

/// What a program says about the result when it ends. Notes count as nothing.
ExitStatus exitStatusOf(const Result& result);

/// "note", "warning" or "error", for programs.
QString nameOf(Severity severity);

/// The same for people.
QString wordFor(Severity severity);

} // namespace reportcheck

#endif
