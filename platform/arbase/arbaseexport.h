#ifndef ARBASE_ARBASEEXPORT_H
#define ARBASE_ARBASEEXPORT_H

#include <QtGlobal>

/// Marks what the library exports. CMake defines ARBase_EXPORTS while it builds the library itself.
#ifdef ARBase_EXPORTS
#define ARBASE_EXPORT Q_DECL_EXPORT
#else
#define ARBASE_EXPORT Q_DECL_IMPORT
#endif

#endif
