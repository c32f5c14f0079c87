#ifndef SCHEMADOCTOR_MENDRENDERING_H
#define SCHEMADOCTOR_MENDRENDERING_H

#include <QByteArray>
#include <QString>

#include "mend.h"
#include "model/examination.h"

namespace schemadoctor {

/// What was rewritten and what was left, a line for each, and what the doctor finds in the mended schema.
/// @param result  the examination of the mended schema; of nothing when it was refused
QString textOf(const Mending& mending, const Examination& result);

/// The same as a JSON object, for programs.
QByteArray jsonOf(const Mending& mending, const Examination& result);

} // namespace schemadoctor

#endif
