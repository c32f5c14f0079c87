#ifndef SCHEMADOCTOR_TYPEADVICE_H
#define SCHEMADOCTOR_TYPEADVICE_H

#include <QString>

namespace schemadoctor {

/// Which type to write instead of one that no setter takes.
QString adviceForElement(const QString& type);
QString adviceForAttribute(const QString& type);

} // namespace schemadoctor

#endif
