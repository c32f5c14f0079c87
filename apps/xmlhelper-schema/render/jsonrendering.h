#ifndef SCHEMADOCTOR_JSONRENDERING_H
#define SCHEMADOCTOR_JSONRENDERING_H

#include <QByteArray>
#include <QJsonObject>

#include "model/examination.h"

namespace schemadoctor {

/// The examination as a JSON object, for programs. Its keys are described in the man page and stay the same; new ones
/// may come.
QByteArray jsonOf(const Examination& examination);

/// The object itself, to be part of another.
QJsonObject jsonObjectOf(const Examination& examination);

} // namespace schemadoctor

#endif
