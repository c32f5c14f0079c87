#ifndef XMLHELPER_BENCHMARKS_SCHEMAREADING_H
#define XMLHELPER_BENCHMARKS_SCHEMAREADING_H

#include <QString>

class XmlSchemaHandler;

/// Parses a schema file as the report builder does.
bool readSchema(XmlSchemaHandler& handler, const QString& path);

#endif
