#ifndef XMLHELPER_SCHEMAORIGIN_P_H
#define XMLHELPER_SCHEMAORIGIN_P_H

#include <QString>

#include "schemareadinglog_p.h"

class QDomNode;

// While somebody listens to the reading of a schema, each element and each attribute carries where it comes from: in a
// mark behind the name of an element and behind the value of an attribute. So the mark goes wherever clones and copies
// go, and counts of elements and attributes are the same with it. It begins with a character that XML does not allow.

/// The name of an element that comes from @p tag.
QString nameFrom(const SchemaTag& tag, const QString& name);

/// The value of an attribute that comes from @p tag.
QString valueFrom(const SchemaTag& tag, SchemaReadingLog::AttributeKind kind, const QString& value);

/// The name or value without its mark.
QString withoutOrigin(const QString& text);

/// The same value, from where it came, as one of another kind.
QString valueOfKind(SchemaReadingLog::AttributeKind kind, const QString& value);

/// Lets the topmost elements of @p fragment carry that they were laid out for @p reference.
void addReference(const QDomNode& fragment, const SchemaTag& reference);

/// Takes the marks off @p top and everything below it. What they say goes to @p log when there is one.
void takeOffOrigins(const QDomNode& top, SchemaReadingLog* log);

#endif
