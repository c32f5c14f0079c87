#ifndef XMLHELPER_BENCHMARKS_INPUTS_H
#define XMLHELPER_BENCHMARKS_INPUTS_H

#include <vector>

#include <QByteArray>
#include <QString>

/// How the declared elements of a generated schema are arranged. The root is always called "Survey", containers have
/// names that begin with "Station"; no value has a name that begins with "S".
enum class Shape {
    Flat, ///< optional values below the root
    Groups, ///< optional containers of nine optional values, every name once
    SharedNames, ///< the same, but the values of all containers have the same nine names
    NamedTypes, ///< optional containers of one named type
    Choice, ///< values of one choice below the root
    RequiredFlat, ///< required values below the root
    RequiredGroups ///< required containers of nine optional values, every name once
};

constexpr int ValuesOfGroup = 9;

QString toText(Shape shape);

/// The kinds of values that inputs are made of, known by the first letter of their names.
struct ValueKind
{
    QString name;
    QString type; ///< of the schema language, without prefix
    QString text; ///< of the value that every report has
    double number;
};

/// Nine kinds: four doubles, two integers, two strings and a boolean.
const std::vector<ValueKind>& valueKinds();

/// The kind of a value called @p name.
const ValueKind& kindOf(const QString& name);

bool isValueName(const QString& name);

/// A schema that declares @p elements elements below its root; a whole number of groups where there are groups.
QByteArray schemaText(Shape shape, int elements);

/// One element of a report that a schema of RequiredFlat or RequiredGroups allows.
struct ReportElement
{
    QString name;
    QString text; ///< empty: a container, whose values follow
};

/// The elements of a complete report below the root, in their order.
std::vector<ReportElement> reportElements(Shape shape, int elements);

/// A measurement report of at least @p bytes bytes: containers of nine values with attributes, indented.
QByteArray reportText(int bytes);

#endif
