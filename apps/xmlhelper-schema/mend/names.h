#ifndef SCHEMADOCTOR_NAMES_H
#define SCHEMADOCTOR_NAMES_H

#include <QString>

namespace schemadoctor {

/// The name itself where XML allows it, else one of what it allows.
QString allowedXmlName(const QString& name);

/// The name with a capital in front.
QString capitalised(QString name);

} // namespace schemadoctor

#endif
