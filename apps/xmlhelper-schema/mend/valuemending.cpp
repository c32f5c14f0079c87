#include "valuemending.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

#include <xmlhelper/constants_p.h>

#include "mendwords.h"
#include "names.h"

namespace schemadoctor {

namespace {

constexpr const char* Bounds[] = {"minInclusive", "minExclusive", "maxInclusive", "maxExclusive"};
constexpr const char* Unchecked[]
    = {"pattern", "length", "minLength", "maxLength", "totalDigits", "fractionDigits", "assertion", "explicitTimezone"};

/// The types that a setter fills as they are.
bool isFillable(const QString& type)
{
    static const QStringList types {QStringLiteral("string"),  QStringLiteral("double"),   QStringLiteral("integer"),
                                    QStringLiteral("boolean"), QStringLiteral("dateTime"), QStringLiteral("time")};
    return types.contains(type);
}

/// The types that any text is one of.
bool isAnyText(const QString& type)
{
    static const QStringList types {QStringLiteral("token"), QStringLiteral("normalizedString"),
                                    QStringLiteral("anySimpleType"), QStringLiteral("anyType")};
    return types.contains(type);
}

struct Range
{
    QString least; ///< empty: none but that of the setter
    QString greatest;
};

/// The range of a type of integers; nothing for other types.
std::optional<Range> rangeOf(const QString& type)
{
    static const std::map<QString, Range> ranges {
        {QStringLiteral("long"), {}},
        {QStringLiteral("int"), {}},
        {QStringLiteral("short"), {QStringLiteral("-32768"), QStringLiteral("32767")}},
        {QStringLiteral("byte"), {QStringLiteral("-128"), QStringLiteral("127")}},
        {QStringLiteral("unsignedLong"), {QStringLiteral("0"), {}}},
        {QStringLiteral("unsignedInt"), {QStringLiteral("0"), {}}},
        {QStringLiteral("unsignedShort"), {QStringLiteral("0"), QStringLiteral("65534")}},
        {QStringLiteral("unsignedByte"), {QStringLiteral("0"), QStringLiteral("255")}},
        {QStringLiteral("nonNegativeInteger"), {QStringLiteral("0"), {}}},
        {QStringLiteral("positiveInteger"), {QStringLiteral("1"), {}}},
        {QStringLiteral("nonPositiveInteger"), {{}, QStringLiteral("0")}},
        {QStringLiteral("negativeInteger"), {{}, QStringLiteral("-1")}},
    };
    const auto found = ranges.find(type);
    return found == ranges.end() ? std::nullopt : std::make_optional(found->second);
}

bool isNumberType(const QString& type)
{
    return type == QLatin1String("double") || type == QLatin1String("decimal") || type == QLatin1String("float");
}

QString named(const QString& type)
{
    return QLatin1String("xs:") + type;
}

QString described(const char* facet, const QString& value)
{
    return QStringLiteral("xs:%1 '%2'").arg(QLatin1String(facet), value);
}

bool hasBound(const SimpleValue& value, const char* inclusive, const char* exclusive)
{
    return !value.Facet(inclusive).isEmpty() || !value.Facet(exclusive).isEmpty();
}

} // namespace

SimpleValue ValueMending::OfElement(SimpleValue value, const TextNode& user)
{
    const TextNode& tag = value.definition ? *value.definition : user;
    if (!value.enumeration.isEmpty()) {
        enumerateTexts(value, tag);
        return value;
    }
    dropUnchecked(value, tag);
    takeFillableType(value, tag);
    dropBoundsOfTexts(value, tag);
    keepFromAbsentBound(value, tag);
    std::stable_sort(value.facets.begin(), value.facets.end(), [](const auto& left, const auto& right) {
        return left.first.startsWith(QLatin1String("min")) && !right.first.startsWith(QLatin1String("min"));
    });
    return value;
}

SimpleValue ValueMending::OfAttribute(SimpleValue value, const TextNode& user)
{
    value = OfElement(value, user);
    const TextNode& tag = value.definition ? *value.definition : user;
    if (value.base == QLatin1String("boolean")) {
        m_log.Narrow(tag, Mend::tr("an attribute of the type xs:boolean"), Mend::tr("the texts true and false"));
        value.base = QStringLiteral("string");
        value.enumeration = QStringList {QStringLiteral("true"), QStringLiteral("false")};
    } else if (value.base == QLatin1String("time")
               && m_log.Change(tag, Mend::tr("an attribute of the type xs:time"), QStringLiteral("xs:string"))) {
        value.base = QStringLiteral("string");
    }
    takeIntegerBounds(value, tag);
    excludeUpperBound(value, tag);
    return value;
}

/// Only texts are compared with an enumeration; each of them keeps all other facets.
void ValueMending::enumerateTexts(SimpleValue& value, const TextNode& tag)
{
    if (value.base != QLatin1String("string")) {
        m_log.Narrow(tag, Mend::tr("an enumeration of %1").arg(named(value.base)),
                     Mend::tr("an enumeration of xs:string"));
    }
    for (const auto& facet : value.facets) {
        m_log.Narrow(tag, described(facet.first.toLatin1().constData(), facet.second),
                     Mend::tr("the enumeration alone"));
    }
    value.base = QStringLiteral("string");
    value.facets.clear();
}

void ValueMending::takeFillableType(SimpleValue& value, const TextNode& tag)
{
    if (isFillable(value.base)) {
        return;
    }
    if (rangeOf(value.base)) {
        takeInteger(value, tag);
        return;
    }
    const QString type = isNumberType(value.base) ? QStringLiteral("double") : QStringLiteral("string");
    if (isAnyText(value.base) || value.base == QLatin1String("float")) {
        m_log.Narrow(tag, named(value.base), named(type));
        value.base = type;
    } else if (m_log.Change(tag, named(value.base), named(type))) {
        value.base = type;
    }
}

/// The bounds of the type become facets, where there are none that are narrower.
void ValueMending::takeInteger(SimpleValue& value, const TextNode& tag)
{
    const Range range = *rangeOf(value.base);
    QStringList bounds;
    if (!range.least.isEmpty() && !hasBound(value, "minInclusive", "minExclusive")) {
        value.SetFacet(QStringLiteral("minInclusive"), range.least);
        bounds.append(described("minInclusive", range.least));
    }
    if (!range.greatest.isEmpty() && !hasBound(value, "maxInclusive", "maxExclusive")) {
        value.SetFacet(QStringLiteral("maxInclusive"), range.greatest);
        bounds.append(described("maxInclusive", range.greatest));
    }
    m_log.Narrow(tag, named(value.base),
                 bounds.isEmpty() ? QStringLiteral("xs:integer")
                                  : Mend::tr("xs:integer with %1").arg(bounds.join(QLatin1String(", "))));
    if (!value.definition) {
        value.name = capitalised(value.base);
    }
    value.base = QStringLiteral("integer");
}

void ValueMending::dropUnchecked(SimpleValue& value, const TextNode& tag)
{
    if (!value.Facet("whiteSpace").isEmpty()) {
        m_log.Narrow(tag, described("whiteSpace", value.Facet("whiteSpace")), Mend::tr("nothing"));
        value.RemoveFacet("whiteSpace");
    }
    for (const char* const facet : Unchecked) {
        const QString text = value.Facet(facet);
        if (!text.isEmpty() && m_log.Change(tag, described(facet, text), Mend::tr("nothing"))) {
            value.RemoveFacet(facet);
        }
    }
}

void ValueMending::dropBoundsOfTexts(SimpleValue& value, const TextNode& tag)
{
    for (const char* const facet : Bounds) {
        const QString text = value.Facet(facet);
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        const bool isInteger = value.base == QLatin1String("integer");
        const bool isUsed = (isInteger && isNumber && std::abs(number) < 2147483647.0)
            || (isNumberType(value.base) && isNumber && std::isfinite(number));
        if (!text.isEmpty() && !isUsed && m_log.Change(tag, described(facet, text), Mend::tr("nothing"))) {
            value.RemoveFacet(facet);
        }
    }
}

/// One number counts as no bound: the next one is taken that allows less.
void ValueMending::keepFromAbsentBound(SimpleValue& value, const TextNode& tag)
{
    for (const char* const facet : Bounds) {
        if (value.Facet(facet).isEmpty() || value.Facet(facet).toDouble() != double(AbsentBound)) {
            continue;
        }
        const bool isLower = QLatin1String(facet).startsWith(QLatin1String("min"));
        const QString text = QString::number(AbsentBound + (isLower ? 1 : -1));
        const char* const inclusive = isLower ? "minInclusive" : "maxInclusive";
        m_log.Narrow(tag, described(facet, value.Facet(facet)), described(inclusive, text));
        value.RemoveFacet(facet);
        value.SetFacet(QLatin1String(inclusive), text);
    }
}

/// Bounds of attributes are read as integers.
void ValueMending::takeIntegerBounds(SimpleValue& value, const TextNode& tag)
{
    for (const char* const facet : Bounds) {
        bool isInteger = false;
        static_cast<void>(value.Facet(facet).toInt(&isInteger));
        if (!value.Facet(facet).isEmpty() && !isInteger
            && m_log.Change(tag, Mend::tr("%1 of an attribute").arg(described(facet, value.Facet(facet))),
                            Mend::tr("nothing"))) {
            value.RemoveFacet(facet);
        }
    }
}

/// Beside a lower bound, an attribute never has its greatest value.
void ValueMending::excludeUpperBound(SimpleValue& value, const TextNode& tag)
{
    const QString greatest = value.Facet("maxInclusive");
    if (greatest.isEmpty() || !hasBound(value, "minInclusive", "minExclusive")) {
        return;
    }
    m_log.Narrow(tag, described("maxInclusive", greatest), described("maxExclusive", greatest));
    value.RemoveFacet("maxInclusive");
    value.SetFacet(QStringLiteral("maxExclusive"), greatest);
}

} // namespace schemadoctor
