#ifndef BASICVALUEWIDGETS_BASICVALUEWIDGETSEXPORT_H
#define BASICVALUEWIDGETS_BASICVALUEWIDGETSEXPORT_H

#include <QtGlobal>

/// Marks what the library exports. CMake defines BasicValueWidgets_EXPORTS while it builds the library itself.
#ifdef BasicValueWidgets_EXPORTS
#define BASICVALUEWIDGETS_EXPORT Q_DECL_EXPORT
#else
#define BASICVALUEWIDGETS_EXPORT Q_DECL_IMPORT
#endif

#endif
