#ifndef MEASUREMENTPANEL_REPORTFILE_H
#define MEASUREMENTPANEL_REPORTFILE_H

#include <QString>

/// What is at a path where a report should be.
struct FileVerdict
{
    enum class Kind {
        Missing,
        Empty,
        Malformed,
        SeveralRoots, ///< something follows the root: the file was written to its end, but is no XML
        Sound,
    };

    Kind kind = Kind::Missing;
    qint64 line = 0; ///< where a malformed file stops being XML
    qint64 column = 0;
};

/// Reads the file from end to end. One that cannot be read counts as missing, and so does no path at all.
FileVerdict judgeFile(const QString& path);

/// The report that was made between two moments of the platform's clock, in milliseconds: the report widget names a
/// file after the time, and tells nobody. Empty when there is none.
QString reportMadeBetween(qint64 first, qint64 last, const QString& directory);

#endif
