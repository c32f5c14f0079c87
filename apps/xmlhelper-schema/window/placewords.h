#ifndef SCHEMADOCTOR_PLACEWORDS_H
#define SCHEMADOCTOR_PLACEWORDS_H

#include "model/finding.h"

namespace schemadoctor {

/// A place in the few words that a column has room for.
inline QString wordsFor(const Place& place)
{
    const QString file = place.file.section(QLatin1Char('/'), -1);
    return place.line > 0 ? QStringLiteral("%1:%2").arg(file).arg(place.line) : file;
}

} // namespace schemadoctor

#endif
