#ifndef SCHEMADOCTOR_EXAMINE_H
#define SCHEMADOCTOR_EXAMINE_H

#include "model/examination.h"

namespace schemadoctor {

/// Examines a schema file: reads it as the library does and by a look of its own, and applies every rule.
///
/// Never fails, whatever the file holds: a file that cannot be read gives an examination that says so. Nothing is
/// fetched from a network and nothing is written.
Examination examine(const QString& file);

} // namespace schemadoctor

#endif
