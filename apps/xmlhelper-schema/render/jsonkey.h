#ifndef SCHEMADOCTOR_JSONKEY_H
#define SCHEMADOCTOR_JSONKEY_H

#include <QString>

namespace schemadoctor {

/// The key of a JSON object, as QJsonObject wants it.
inline QString key(const char* name)
{
    return QString::fromLatin1(name);
}

} // namespace schemadoctor

#endif
