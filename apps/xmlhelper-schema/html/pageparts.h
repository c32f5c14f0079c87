#ifndef SCHEMADOCTOR_PAGEPARTS_H
#define SCHEMADOCTOR_PAGEPARTS_H

#include <QString>

namespace schemadoctor {

/// A file that pages are made with, such as "page.css".
QString resource(const QString& name);

/// By what a page allows one style or script and no other.
QString hashOf(const QString& content);

} // namespace schemadoctor

#endif
