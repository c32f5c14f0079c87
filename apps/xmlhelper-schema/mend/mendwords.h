#ifndef SCHEMADOCTOR_MENDWORDS_H
#define SCHEMADOCTOR_MENDWORDS_H

#include <QCoreApplication>

namespace schemadoctor {

/// The words of the mending for people.
struct Mend
{
    Q_DECLARE_TR_FUNCTIONS(Mend)
};

} // namespace schemadoctor

#endif
