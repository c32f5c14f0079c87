#ifndef SCHEMADOCTOR_JSONRENDERING_H
#define SCHEMADOCTOR_JSONRENDERING_H

#include <QByteArray>

#include "model/examination.h"

namespace schemadoctor {

/// The examination as a JSON object, for programs. Its keys are described in the man page and stay the same; new ones
/// may come.
QByteArray jsonOf(const Examination& examination);

} // namespace schemadoctor

#endif
