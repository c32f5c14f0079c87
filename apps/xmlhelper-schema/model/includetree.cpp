#include "includetree.h"

namespace schemadoctor {

QString wordsFor(IncludeState state)
{
    switch (state) {
    case IncludeState::Read:
        return QStringLiteral("read");
    case IncludeState::ReadAgain:
        return QStringLiteral("read again");
    case IncludeState::Missing:
        return QStringLiteral("missing");
    case IncludeState::Malformed:
        return QStringLiteral("malformed");
    case IncludeState::Cyclic:
        return QStringLiteral("cyclic, skipped");
    case IncludeState::TooDeep:
        return QStringLiteral("too deep, skipped");
    }
    return QString();
}

} // namespace schemadoctor
