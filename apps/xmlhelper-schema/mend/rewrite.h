#ifndef SCHEMADOCTOR_REWRITE_H
#define SCHEMADOCTOR_REWRITE_H

#include <QString>

#include "model/finding.h"

namespace schemadoctor {

enum class RewriteEffect {
    /// What is filled by the rewritten place, the original allows too. It may allow numbers that no setter gives: the
    /// library reads no bound beyond 32 bits.
    StaysValid,
    ChangesFormat, ///< it allows reports that the original does not
};

/// One place of a schema that was written otherwise.
struct Rewrite
{
    Place place; ///< in the original
    QString before;
    QString after;
    RewriteEffect effect = RewriteEffect::StaysValid;
};

/// "reports stay valid by the original", or "changes the format".
QString wordsFor(RewriteEffect effect);

} // namespace schemadoctor

#endif
