#ifndef SCHEMADOCTOR_SKELETONBUILDER_H
#define SCHEMADOCTOR_SKELETONBUILDER_H

#include "model/skeletontree.h"
#include "schemarecord.h"

namespace schemadoctor {

/// The tree of the document that the library has laid out, with what its model and its origins say about each element.
SkeletonTree builtTree(const SchemaRecord& record);

} // namespace schemadoctor

#endif
