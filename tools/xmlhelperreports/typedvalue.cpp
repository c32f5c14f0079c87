#include "typedvalue_p.h"

#include <algorithm>
#include <cmath>

#include <QDomElement>
#include <QRegularExpression>

#include <xmlhelper/skeletonwords_p.h>
#include <xmlhelper/valuerules_p.h>

namespace {

const QLatin1String LengthFacet("length");
const QLatin1String MinLengthFacet("minLength");
const QLatin1String MaxLengthFacet("maxLength");
const QLatin1String PatternFacet("pattern");
const QLatin1String TotalDigitsFacet("totalDigits");
const QLatin1String FractionDigitsFacet("fractionDigits");

/// What a restriction may hold beside enumerations and bounds.
bool isFurtherFacet(const QString& name)
{
    static const QStringList names {LengthFacet,
                                    MinLengthFacet,
                                    MaxLengthFacet,
                                    PatternFacet,
                                    TotalDigitsFacet,
                                    FractionDigitsFacet,
                                    QStringLiteral("whiteSpace"),
                                    QStringLiteral("annotation"),
                                    QStringLiteral("documentation")};
    return names.contains(name);
}

bool isOf(const QString& type, Setter setter)
{
    return type.contains(wordOf(setter));
}

/// Types that take every kind of value hold integers all the same.
bool isUniversal(const QString& type)
{
    return !isOf(type, Setter::Text) && settersOfElement(type).testFlag(Setter::Text);
}

bool isTruth(const QString& text, bool& value)
{
    value = text == QLatin1String("true") || text == QLatin1String("1");
    return value || text == QLatin1String("false") || text == QLatin1String("0");
}

/// The value as what the schema asks for, or as a text when it cannot be read so.
TypedValue typedValue(const QString& text, const QString& type)
{
    bool truth = false;
    if (isOf(type, Setter::Truth) && isTruth(text, truth)) {
        return truth;
    }
    const QDateTime moment = QDateTime::fromString(text, Qt::ISODate);
    if (isOf(type, Setter::DateTime) && moment.isValid()) {
        return moment;
    }
    const QTime time = QTime::fromString(text, Qt::ISODate);
    if (isOf(type, Setter::Time) && time.isValid()) {
        return time;
    }
    bool isInteger = false;
    const int integer = text.toInt(&isInteger);
    if (isInteger && settersOfElement(type).testFlag(Setter::Integer)) {
        return integer;
    }
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber && !isOf(type, Setter::Text) && !isUniversal(type)) {
        return number;
    }
    return text;
}

QString brokenBy(const QString& facet, const QString& bound)
{
    return QStringLiteral("it is outside of its %1, %2").arg(facet, bound);
}

/// What the type itself says and the builder does not look at.
QString faultByType(const QString& text, const QString& type)
{
    bool isNumber = true;
    if (type.contains(ShortType)) {
        static_cast<void>(text.toShort(&isNumber));
    } else if (isUniversal(type)) {
        static_cast<void>(text.toLongLong(&isNumber));
    } else if (isOf(type, Setter::Floating)) {
        bool isConverted = false;
        isNumber = std::isfinite(text.toDouble(&isConverted)) || !isConverted;
    }
    return isNumber ? QString() : QStringLiteral("its type, %1, has no such value").arg(type);
}

QString faultByBounds(const QString& text, const Facets& facets)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    for (const auto& [facet, bounds] : facets) {
        const double bound = bounds.front().toDouble();
        if (isNumber
            && ((facet == MinInclusiveFacet && number < bound) || (facet == MaxInclusiveFacet && number > bound)
                || (facet == MinExclusiveFacet && number <= bound)
                || (facet == MaxExclusiveFacet && number >= bound))) {
            return brokenBy(facet, bounds.front());
        }
    }
    return QString();
}

int digitsIn(const QString& text)
{
    return int(std::count_if(text.begin(), text.end(), [](QChar one) { return one.isDigit(); }));
}

bool isPatternKept(const QString& text, const QString& pattern)
{
    const QRegularExpression expression(QRegularExpression::anchoredPattern(pattern),
                                        QRegularExpression::UseUnicodePropertiesOption);
    return !expression.isValid() || expression.match(text).hasMatch();
}

QString faultByForm(const QString& text, const Facets& facets)
{
    const QString fraction = text.section(QLatin1Char('.'), 1);
    for (const auto& [facet, values] : facets) {
        const QString& value = values.front();
        const int number = value.toInt();
        if ((facet == LengthFacet && text.size() != number) || (facet == MinLengthFacet && text.size() < number)
            || (facet == MaxLengthFacet && text.size() > number)
            || (facet == TotalDigitsFacet && digitsIn(text) > number)
            || (facet == FractionDigitsFacet && digitsIn(fraction) > number)
            || (facet == PatternFacet && !isPatternKept(text, value))) {
            return brokenBy(facet, value);
        }
    }
    return QString();
}

QString faultByEnumeration(const QString& text, const Facets& facets)
{
    const auto enumeration = facets.find(EnumerationFacet);
    return enumeration == facets.end() || enumeration->second.contains(text)
        ? QString()
        : brokenBy(EnumerationFacet, enumeration->second.join(QLatin1String(", ")));
}

} // namespace

std::vector<TypedValue> typedValues(const QString& text, const QString& type)
{
    std::vector<TypedValue> all {typedValue(text, type)};
    const auto append = [&all](const TypedValue& value) {
        if (std::none_of(all.begin(), all.end(),
                         [&value](const TypedValue& one) { return one.index() == value.index(); })) {
            all.push_back(value);
        }
    };
    bool isConverted = false;
    const double number = text.toDouble(&isConverted);
    if (isConverted) {
        append(number);
    }
    const int integer = text.toInt(&isConverted);
    if (isConverted) {
        append(integer);
    }
    append(text);
    return all;
}

QString nameOf(const TypedValue& value)
{
    static const char* const names[] = {"QString", "bool", "int", "double", "QDateTime", "QTime"};
    return QString::fromLatin1(names[value.index()]);
}

QString wordsFor(const TypedValue& value)
{
    static const char* const words[]
        = {"text", "truth value", "integer", "floating-point number", "date and time", "time"};
    return QString::fromLatin1(words[value.index()]);
}

Facets facetsOf(const QDomElement& element, const QString& attribute)
{
    std::map<int, QString> enumeration; // in its own order: that of the attributes is random
    Facets facets;
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QString name = attributes.item(i).nodeName();
        const QString value = attributes.item(i).nodeValue();
        const FacetName facet = facetNameIn(name);
        if (facet.facet == EnumerationFacet && facet.attribute == attribute) {
            enumeration[facet.number] = value;
        } else if (facet.facet.size() > 0 && facet.attribute == attribute) {
            facets[facet.facet] = QStringList(value);
        } else if (attribute.isEmpty() && isAnnotation(name, value) && isFurtherFacet(name)) {
            facets[name] = QStringList(value);
        }
    }
    for (const auto& [number, text] : enumeration) {
        facets[EnumerationFacet].append(text);
    }
    return facets;
}

bool isAnnotation(const QString& name, const QString& value)
{
    return name == TypeAttribute() || name == DefaultAttribute() || facetNameIn(name).facet.size() > 0
        || (isFurtherFacet(name) && !value.startsWith(SchemaPrefix));
}

QString faultOf(const QString& text, const QString& type, const Facets& facets)
{
    for (const QString& fault : {faultByType(text, type), faultByEnumeration(text, facets), faultByBounds(text, facets),
                                 faultByForm(text, facets)}) {
        if (!fault.isEmpty()) {
            return fault;
        }
    }
    return QString();
}
