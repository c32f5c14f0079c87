#ifndef SCHEMADOCTOR_EXAMINE_H
#define SCHEMADOCTOR_EXAMINE_H

#include "model/examination.h"

namespace schemadoctor {

/// Examines a schema file: reads it as the library does and by a look of its own, applies every rule, and tries
/// what reports come out.
///
/// Never fails, whatever the file holds: a file that cannot be read gives an examination that says so. Nothing is
/// fetched from a network and nothing is written.
/// @param isToProve   whether reports are filled and validated on trial too, see prove()
/// @param isAsButton  whether to try what the report button fills too, see tryButton()
Examination examine(const QString& file, bool isToProve = true, bool isAsButton = false);

/// Examines a schema file without libxml2, which needs longer than all else, and without reports.
Examination examineAlone(const QString& file);

} // namespace schemadoctor

#endif
