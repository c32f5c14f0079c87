#ifndef XMLHELPERREPORTS_TYPEDVALUE_P_H
#define XMLHELPERREPORTS_TYPEDVALUE_P_H

#include <variant>
#include <vector>

#include <QDateTime>
#include <QString>

#include <xmlhelper/valuerules_p.h>

/// A value as one of the operations of the builder takes it.
using TypedValue = std::variant<QString, bool, int, double, QDateTime, QTime>;

/// The value as everything that it may be offered as, what @p type asks for first.
std::vector<TypedValue> typedValues(const QString& text, const QString& type);

/// The C++ type of a value.
QString nameOf(const TypedValue& value);

/// "floating-point number", for sentences.
QString wordsFor(const TypedValue& value);

bool isOf(const QString& type, Setter setter);

/// Types that take every kind of value hold integers all the same.
bool isUniversal(const QString& type);

#endif
