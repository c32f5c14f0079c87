#ifndef SCHEMADOCTOR_TESTS_SAMPLEEXAMINATION_H
#define SCHEMADOCTOR_TESTS_SAMPLEEXAMINATION_H

#include "model/examination.h"

namespace schemadoctor {

/// A small report with everything that a rendering has to show: a container with a repeated value, an alternative, an
/// attribute, an element that nothing can fill, an include, findings of each severity, one about structure.
///
/// @param suffix  stands at the end of every text that comes from a schema
Examination sampleExamination(const QString& suffix = QString());

/// A root with so many elements below it.
Examination wideExamination(int elements);

} // namespace schemadoctor

#endif
