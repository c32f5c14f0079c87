#ifndef SCHEMADOCTOR_MEND_H
#define SCHEMADOCTOR_MEND_H

#include <map>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include "rewrite.h"

namespace schemadoctor {

struct MendOptions
{
    bool isFormatKept = false; ///< only what keeps reports valid by the original is rewritten
    int levels
        = 0; ///< how many of one declaration may stand inside of each other; 0: two, or one where two are too much
    QString root; ///< the global element that reports begin with; empty: the one that the library takes, or could
};

/// A schema that was written in what the library understands.
struct Mending
{
    QString refusal; ///< why it cannot be mended, in a sentence; empty when it was
    QByteArray text; ///< of the mended schema
    QVector<Rewrite> rewrites; ///< in the order of files and lines; none: the declarations are as they were
    QVector<Rewrite> left; ///< what would have changed the format, and was not made
    bool isFormatLost = false; ///< some rewrites change the format, which was to be kept, because there is no other way
    std::map<QString, QString> texts; ///< of the files that were read, by name
    QStringList files; ///< these and others that the schema names: none of them may be written over
};

/// Writes any XML Schema, with all that it includes, as one schema in what the library understands. One that the doctor
/// has neither errors nor warnings about keeps its declarations, byte for byte.
///
/// Never fails, whatever the file holds: what is beyond the limits of the doctor is refused by name. Nothing is fetched
/// from a network.
Mending mend(const QString& file, const MendOptions& options = MendOptions());

} // namespace schemadoctor

#endif
