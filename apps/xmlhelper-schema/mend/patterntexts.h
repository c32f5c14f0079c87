#ifndef SCHEMADOCTOR_PATTERNTEXTS_H
#define SCHEMADOCTOR_PATTERNTEXTS_H

#include "textcheck.h"

namespace schemadoctor {

/// The texts that a pattern lists, such as 'on|off'; empty for other patterns.
QStringList textsListedBy(const QString& pattern);

/// A pattern of texts that are all items of a list; empty where none is known.
QString patternOfItem(const SimpleValue& item, TextCheck& check);

} // namespace schemadoctor

#endif
