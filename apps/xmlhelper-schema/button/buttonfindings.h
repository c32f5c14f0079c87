#ifndef SCHEMADOCTOR_BUTTONFINDINGS_H
#define SCHEMADOCTOR_BUTTONFINDINGS_H

#include "model/examination.h"

namespace schemadoctor {

/// Adds findings about what the button view says, one for each declaration or item: what no item fills although a
/// setter takes it, what no item reaches alone, and units that items of the value tree's nodes leave out.
void addButtonFindings(Examination& examination);

} // namespace schemadoctor

#endif
