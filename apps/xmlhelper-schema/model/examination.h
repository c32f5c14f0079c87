#ifndef SCHEMADOCTOR_EXAMINATION_H
#define SCHEMADOCTOR_EXAMINATION_H

#include <map>

#include <QString>
#include <QStringList>
#include <QVector>

#include "buttonview.h"
#include "finding.h"
#include "includetree.h"
#include "skeletontree.h"

namespace schemadoctor {

/// A global declaration that nothing refers to, so that it competes for the root of the report.
struct RootCandidate
{
    QString name;
    bool isAttribute = false;
    bool isChosen = false; ///< the greatest name wins
    Place place;
};

/// How many elements the schema lays out.
struct ElementCount
{
    int elements = 0; ///< of the report's skeleton; 0 when none is laid out
    bool isBeyondLimit = false; ///< the library refuses the schema; else a limit is that of the doctor
    QString limit; ///< which limit, in a sentence; empty when none is reached
};

/// What became of the reports that were filled on trial, see prove().
struct Proof
{
    int reports = 0; ///< that were filled and validated
    int validReports = 0;
    QString leftOut; ///< what was not tried, and why, in a sentence; empty when everything was
};

/// All that the doctor knows about a schema. Plain data: it refers to nothing outside of itself and is copied freely.
struct Examination
{
    QString file; ///< as the caller gave it

    /// Why the schema cannot be read at all: no file, no XML, beyond what the doctor reads. Empty when it can be read.
    /// When it cannot, the rest may be empty, except for `texts` and `includes` as far as the reading came.
    QString unreadableReason;

    QVector<Finding> findings; ///< sorted by causes, see groupsOf(): what to mend first comes first
    SkeletonTree tree; ///< empty when nothing is laid out
    QString noTreeReason; ///< why `tree` is empty, in a sentence
    QVector<RootCandidate> rootCandidates;
    ElementCount count;
    IncludedFile includes; ///< the top file and what it includes
    Proof proof;
    ButtonView button;
    std::map<QString, QString> texts; ///< the text of each file that was read, by the name that places give

    bool IsReadable() const { return unreadableReason.isEmpty(); }
};

/// "Reports filled on trial: 6, of which valid: 5.", and what was left out; empty when nothing was to be tried.
QString wordsFor(const Proof& proof);

enum ExitStatus { NothingToSay = 0, HasWarnings = 1, HasErrors = 2, Unreadable = 3 };

/// What a program says about the examination when it ends. Notes count as nothing.
ExitStatus exitStatusOf(const Examination& examination);

} // namespace schemadoctor

#endif
