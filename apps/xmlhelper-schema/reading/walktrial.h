#ifndef SCHEMADOCTOR_WALKTRIAL_H
#define SCHEMADOCTOR_WALKTRIAL_H

#include <xmlhelper/schemamodel.h>

#include "model/skeletontree.h"

namespace schemadoctor {

/// Has the library walk the skeleton of a tree on trial, and writes down in the elements of the tree what it did: which
/// counts it accepts of them, and what becomes of those that nobody fills. Where the trial would take too long the tree
/// says that it was not tried.
void tryWalks(SkeletonTree& tree, const OccursMap& occurs, const ChoiceMap& choices);

} // namespace schemadoctor

#endif
