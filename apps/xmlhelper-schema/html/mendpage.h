#ifndef SCHEMADOCTOR_MENDPAGE_H
#define SCHEMADOCTOR_MENDPAGE_H

#include <QByteArray>

#include "mend/mend.h"

namespace schemadoctor {

/// What was written otherwise as one page for a browser: the list of rewrites, each leading to its line, and the two
/// schemas beside each other below it. The page needs nothing but itself and runs no script.
QByteArray htmlOf(const Mending& mending);

} // namespace schemadoctor

#endif
