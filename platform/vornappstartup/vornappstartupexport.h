#ifndef VORNAPPSTARTUP_VORNAPPSTARTUPEXPORT_H
#define VORNAPPSTARTUP_VORNAPPSTARTUPEXPORT_H

#include <QtGlobal>

/// Marks what the library exports. CMake defines VornAppStartUp_EXPORTS while it builds the library itself.
#ifdef VornAppStartUp_EXPORTS
#define VORNAPPSTARTUP_EXPORT Q_DECL_EXPORT
#else
#define VORNAPPSTARTUP_EXPORT Q_DECL_IMPORT
#endif

#endif
