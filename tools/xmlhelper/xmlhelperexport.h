#ifndef XMLHELPER_XMLHELPEREXPORT_H
#define XMLHELPER_XMLHELPEREXPORT_H

#include <QtGlobal>

/// Marks what the shared library exports. A static build of the sources (XMLHELPER_STATIC) exports nothing.
#if defined(XMLHELPER_STATIC)
#define XMLHELPER_EXPORT
#elif defined(XMLHELPER_LIBRARY)
#define XMLHELPER_EXPORT Q_DECL_EXPORT
#else
#define XMLHELPER_EXPORT Q_DECL_IMPORT
#endif

#endif
