#ifndef SCHEMADOCTOR_BUTTONTRIAL_H
#define SCHEMADOCTOR_BUTTONTRIAL_H

#include "model/examination.h"

namespace schemadoctor {

/// Tries what the report button fills: has it answer the announcement of each declared element with items of every
/// kind, one at a time, and writes into the examination which of them are written. Adds findings about those elements
/// and attributes that it cannot fill although a setter takes them, that no item reaches alone, and whose units
/// get lost.
void tryButton(const QString& file, Examination& examination);

} // namespace schemadoctor

#endif
