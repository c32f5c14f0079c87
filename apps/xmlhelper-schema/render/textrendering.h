#ifndef SCHEMADOCTOR_TEXTRENDERING_H
#define SCHEMADOCTOR_TEXTRENDERING_H

#include <QString>

#include "model/examination.h"

namespace schemadoctor {

/// The examination as text for a terminal: the tree, a line for each element, then the includes and the findings.
QString textOf(const Examination& examination);

/// The findings alone, with their number and what the reports on trial said.
QString findingsTextOf(const Examination& examination);

} // namespace schemadoctor

#endif
