#ifndef SCHEMADOCTOR_DOCUMENTATION_H
#define SCHEMADOCTOR_DOCUMENTATION_H

#include <QStringList>

#include "reading/schematext.h"

namespace schemadoctor {

/// What the annotations of a declaration document.
QStringList documentationOf(const TextNode& declaration);

} // namespace schemadoctor

#endif
