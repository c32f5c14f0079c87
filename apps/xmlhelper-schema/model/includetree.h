#ifndef SCHEMADOCTOR_INCLUDETREE_H
#define SCHEMADOCTOR_INCLUDETREE_H

#include <vector>

#include <QString>

#include "finding.h"

namespace schemadoctor {

enum class IncludeState {
    Read,
    ReadAgain, ///< read before, and read once more
    Missing, ///< cannot be opened: it adds nothing
    Malformed, ///< no well-formed XML: it adds what stands before the fault
    Cyclic, ///< it is being read already: skipped
    TooDeep, ///< the chain of includes is longer than the library follows: skipped
};

/// A schema file and what it includes, as the library follows it.
struct IncludedFile
{
    QString written; ///< the location as the schema gives it; for the top file, as the caller gave it
    QString file; ///< where the library looks for it, as in Examination::texts
    IncludeState state = IncludeState::Read;
    QString fault; ///< why it is malformed
    int faultLine = 0;
    bool isOutsideOfFolder = false; ///< not in the folder of the top schema nor below it
    Place place; ///< of the xs:include; nothing for the top file
    std::vector<IncludedFile> includes;
};

/// "read", "read again", "missing", "malformed", "cyclic, skipped", "too deep, skipped": for programs.
QString nameOf(IncludeState state);

/// The same for people, and whether the file is outside of the folder.
QString wordsFor(const IncludedFile& file);

} // namespace schemadoctor

#endif
