#ifndef SCHEMADOCTOR_FINDING_H
#define SCHEMADOCTOR_FINDING_H

#include <QString>
#include <QVector>

namespace schemadoctor {

/// A line of a schema file.
struct Place
{
    QString file; ///< as in Examination::texts; empty when unknown
    int line = 0; ///< the first line is 1; 0: the file as a whole
};

enum class Severity {
    Note, ///< good to know, no report goes wrong by it
    Warning, ///< a report may surprise
    Error, ///< a report can never be right
};

/// One thing that the author of a schema should know. All texts are plain: whole sentences without markup.
struct Finding
{
    Severity severity = Severity::Note;
    QString rule; ///< the identifier of the rule, in lower case with hyphens; stays the same over versions
    Place place;
    QString subject; ///< the name that it is about: an element, a type, a file; may be empty
    QString what; ///< what is written there
    QString effect; ///< what the library does with it
    QString remedy; ///< what to write instead
    QString path; ///< of the laid-out element concerned, as pathOf() gives it; empty when there is none
    QString cause; ///< what brings it about, where findings of several rules are mended together; else empty

    /// The piece of structure as the author means it beside the piece as it is laid out: indented text, a line for
    /// each element. Both are empty for findings that are not about structure.
    QString meantTree;
    QString laidOutTree;
};

/// Findings of one cause, which follow each other.
struct FindingGroup
{
    QString cause; ///< the rule where no other is given
    int first = 0;
    int count = 0;
};

/// The cause that findings are put together by.
QString causeOf(const Finding& finding);

/// The groups of findings that are sorted by causes.
QVector<FindingGroup> groupsOf(const QVector<Finding>& findings);

/// "the prefix 'st:': 96 findings"
QString wordsFor(const FindingGroup& group);

/// "note", "warning" or "error", for programs.
QString nameOf(Severity severity);

/// The same for people.
QString wordFor(Severity severity);

} // namespace schemadoctor

#endif
