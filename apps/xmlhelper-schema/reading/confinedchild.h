#ifndef SCHEMADOCTOR_CONFINEDCHILD_H
#define SCHEMADOCTOR_CONFINEDCHILD_H

#include <functional>

#include <QByteArray>

namespace schemadoctor {

/// Lets a process of its own do what may need too long or too much, and gives the bytes of its result; nothing when
/// it was ended for that. The process shares what this one holds, as it is at the call, and changes none of it.
QByteArray resultOfChild(const std::function<QByteArray()>& work);

} // namespace schemadoctor

#endif
