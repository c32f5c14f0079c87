#ifndef SCHEMADOCTOR_BUTTONRENDERING_H
#define SCHEMADOCTOR_BUTTONRENDERING_H

#include <QJsonValue>
#include <QString>

#include "model/examination.h"

namespace schemadoctor {

/// What the report button fills, a line for each element and attribute; empty when it was not asked for.
QString buttonText(const Examination& examination);

/// The same as an array with an object for each element, in document order; null when it was not tried.
QJsonValue buttonJson(const Examination& examination);

} // namespace schemadoctor

#endif
