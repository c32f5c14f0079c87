#ifndef XMLHELPERREPORTS_TYPEDVALUE_P_H
#define XMLHELPERREPORTS_TYPEDVALUE_P_H

#include <map>
#include <variant>
#include <vector>

#include <QDateTime>
#include <QString>
#include <QStringList>

class QDomElement;

/// A value as one of the operations of the builder takes it.
using TypedValue = std::variant<QString, bool, int, double, QDateTime, QTime>;

/// The value as everything that it may be offered as, what @p type asks for first.
std::vector<TypedValue> typedValues(const QString& text, const QString& type);

/// The C++ type of a value.
QString nameOf(const TypedValue& value);

/// "floating-point number", for sentences.
QString wordsFor(const TypedValue& value);

/// The facets of an element, or of an attribute of it, by their names without the attribute's; an enumeration has all
/// of its texts.
using Facets = std::map<QString, QStringList>;
Facets facetsOf(const QDomElement& element, const QString& attribute = QString());

/// Whether an attribute of the skeleton tells of its element or of another attribute, and is not declared itself.
bool isAnnotation(const QString& name, const QString& value);

/// Which facet, or bound of the type itself, the text breaks, in a sentence; empty when it breaks none.
QString faultOf(const QString& text, const QString& type, const Facets& facets);

#endif
