#ifndef XMLHELPERREPORTS_XMLHELPERREPORTSEXPORT_H
#define XMLHELPERREPORTS_XMLHELPERREPORTSEXPORT_H

#include <QtGlobal>

/// Marks what the shared library exports. A static build of the sources (XMLHELPER_STATIC) exports nothing.
#if defined(XMLHELPER_STATIC)
#define XMLHELPERREPORTS_EXPORT
#elif defined(XMLHELPERREPORTS_LIBRARY)
#define XMLHELPERREPORTS_EXPORT Q_DECL_EXPORT
#else
#define XMLHELPERREPORTS_EXPORT Q_DECL_IMPORT
#endif

#endif
