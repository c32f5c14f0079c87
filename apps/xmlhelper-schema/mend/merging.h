#ifndef SCHEMADOCTOR_MERGING_H
#define SCHEMADOCTOR_MERGING_H

#include <QByteArray>

#include "reading/schematext.h"

namespace schemadoctor {

/// The text of a schema file, with what the included files declare in the place of each xs:include.
QByteArray mergedText(const TextFile& top);

} // namespace schemadoctor

#endif
