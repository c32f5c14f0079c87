#ifndef XMLHELPER_VALUERULES_P_H
#define XMLHELPER_VALUERULES_P_H

#include <optional>

#include <QFlags>
#include <QLatin1String>
#include <QString>
#include <QStringList>

// Which values the elements and attributes of a skeleton take, and how often elements may occur: what the report
// builder, its walk and the companion programs go by. All that is asked for is the text that the skeleton holds.

/// The operations of the report builder that give a value, by the type of their argument. There is none of truth or
/// time for attributes.
enum class Setter {
    Text = 1, ///< QString
    Floating = 2, ///< double
    Integer = 4, ///< int
    Truth = 8, ///< bool
    DateTime = 16, ///< QDateTime
    Time = 32, ///< QTime
};
Q_DECLARE_FLAGS(Setters, Setter)
Q_DECLARE_OPERATORS_FOR_FLAGS(Setters)

/// A type that takes every kind of value, and truncates floating-point numbers.
inline const QLatin1String ShortType("short");

/// The word by which a setter knows the types that it takes.
QString wordOf(Setter setter);

/// As which type the setter with @p word takes an element of @p type: "short" and "long" take everything, one might
/// expect numbers only, but modules write texts and flags into such elements. An "int" takes integers. Empty when it is
/// not taken.
QString typeTakenBy(const QString& word, const QString& type);

/// Whether the setter with @p word takes a declared attribute, which holds @p type.
bool isAttributeTakenBy(const QString& word, const QString& type);

/// The types of XML Schema that the setters are made for, one for each: what to advise where a type has no setter.
QStringList builtInTypesOfElements();
QStringList builtInTypesOfAttributes();

Setters settersOfElement(const QString& type);
Setters settersOfAttribute(const QString& type);

/// Whether an element of @p type holds a value. Without a type it is a container, though nothing may be in it.
bool isValueType(const QString& type);

/// Whether @p attribute of an element holds one of the texts that the element takes. One might expect the exact name:
/// values of an attribute whose name ends with a digit are taken for the element's, too. It is kept because schemas
/// count on what they have been given.
bool isEnumerationOfElement(const QString& attribute);

/// Whether @p attribute of an element holds one of the texts that the attribute @p owner of the element takes.
bool isEnumerationOfAttribute(const QString& attribute, const QString& owner);

/// The range facet of an element that its attribute @p attribute is; empty when it is none.
QLatin1String rangeFacetOfElement(const QString& attribute);

/// The range facet of the attribute @p owner that @p attribute of the same element is; empty when it is none.
QLatin1String rangeFacetOfAttribute(const QString& attribute, const QString& owner);

/// Whether @p attribute may be a facet of its element or of any attribute.
bool isPossibleFacet(const QString& attribute);

/// Whether a type gives @p attribute to those that are of it, as a facet.
bool isFacetOfType(const QString& attribute);

/// A facet as the reading of a schema names it: the facet, the number of a text of an enumeration, and the attribute
/// whose facet it is.
struct FacetName
{
    QLatin1String facet; ///< empty for other names
    int number = 0;
    QString attribute; ///< empty for a facet of the element
};

/// Takes the name of an attribute apart.
FacetName facetNameIn(const QString& attribute);

/// The occurs code of a declaration; none when it has no limits. OccursNotGiven stands for a maximum that is not given.
std::optional<int> occursCodeOf(int minOccurs, int maxOccurs);

/// Whether an occurs code is one of minOccurs 0.
bool isOptionalCode(int occursCode);

/// The greatest count above 0 that an occurs code allows: UnboundedOccurs for any, 0 for none. The code counts as it
/// is, so an optional element takes up to a hundred times its maxOccurs.
int greatestCountOf(int occursCode);

/// Whether an occurs code allows an element to occur @p count times.
bool isCountAllowed(int occursCode, int count);

#endif
