#ifndef SCHEMADOCTOR_COPIESRENDERING_H
#define SCHEMADOCTOR_COPIESRENDERING_H

#include <QString>

#include "model/skeletontree.h"

namespace schemadoctor {

/// What is different in further copies of what repeats: for each container that does, a line for each element that
/// stays there, with what is left in it, or of which no count is accepted. Empty when there is no difference.
QString copiesText(const SkeletonTree& tree);

} // namespace schemadoctor

#endif
