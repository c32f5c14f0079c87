#ifndef VALUEFRAMEWORK_VALUEFRAMEWORKEXPORT_H
#define VALUEFRAMEWORK_VALUEFRAMEWORKEXPORT_H

#include <QtGlobal>

/// Marks what the library exports. CMake defines ValueFramework_EXPORTS while it builds the library itself.
#ifdef ValueFramework_EXPORTS
#define VALUEFRAMEWORK_EXPORT Q_DECL_EXPORT
#else
#define VALUEFRAMEWORK_EXPORT Q_DECL_IMPORT
#endif

#endif
