#include "rewrite.h"

#include "mendwords.h"

namespace schemadoctor {

QString wordsFor(RewriteEffect effect)
{
    return effect == RewriteEffect::StaysValid ? Mend::tr("reports stay valid by the original")
                                               : Mend::tr("changes the format");
}

} // namespace schemadoctor
