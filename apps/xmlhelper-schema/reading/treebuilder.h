#ifndef SCHEMADOCTOR_TREEBUILDER_H
#define SCHEMADOCTOR_TREEBUILDER_H

#include "layoutplan.h"
#include "libraryreading.h"
#include "model/laidouttree.h"

namespace schemadoctor {

/// The tree of the document that the library has laid out, with what its model says about each element. The plan adds
/// the places: where it has another shape than the document, the places are those of the first tag of the name.
LaidOutTree builtTree(const LibraryReading& reading, const LayoutPlan& plan);

/// The setters that take the type of an element, as the skeleton holds it.
Setters settersOfElement(const QString& type);

/// The setters that take the type of a declared attribute, prefix included.
Setters settersOfAttribute(const QString& type);

} // namespace schemadoctor

#endif
