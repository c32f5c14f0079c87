#ifndef SCHEMADOCTOR_MENDFILE_H
#define SCHEMADOCTOR_MENDFILE_H

#include <QString>

#include "mend.h"
#include "model/examination.h"

namespace schemadoctor {

/// A mended schema as a file, and what the doctor says of it.
struct MendedFile
{
    Mending mending; ///< refused also when the file cannot be written
    Examination examination; ///< of the mended schema; of nothing when it was refused
};

/// Mends a schema into another file, which is written whole or not at all. The schema itself and the files that it
/// includes are never written over.
MendedFile mendInto(const QString& out, const QString& file, const MendOptions& options);

} // namespace schemadoctor

#endif
