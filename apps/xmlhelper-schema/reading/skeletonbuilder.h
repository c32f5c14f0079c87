#ifndef SCHEMADOCTOR_TREEBUILDER_H
#define SCHEMADOCTOR_TREEBUILDER_H

#include "model/laidouttree.h"
#include "schemarecord.h"

namespace schemadoctor {

/// The tree of the document that the library has laid out, with what its model and its origins say about each element.
LaidOutTree builtTree(const SchemaRecord& record);

} // namespace schemadoctor

#endif
