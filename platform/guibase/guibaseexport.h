#ifndef GUIBASE_GUIBASEEXPORT_H
#define GUIBASE_GUIBASEEXPORT_H

#include <QtGlobal>

/// Marks what the library exports. CMake defines GuiBase_EXPORTS while it builds the library itself.
#ifdef GuiBase_EXPORTS
#define GUIBASE_EXPORT Q_DECL_EXPORT
#else
#define GUIBASE_EXPORT Q_DECL_IMPORT
#endif

#endif
