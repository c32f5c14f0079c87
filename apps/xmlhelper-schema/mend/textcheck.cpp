#include "textcheck.h"

#include <algorithm>
#include <map>
#include <memory>

#include <QElapsedTimer>

#include <libxml/xmlerror.h>
#include <libxml/xmlregexp.h>
#include <libxml/xmlschemastypes.h>

namespace schemadoctor {

namespace {

using Decision = TextCheck::Decision;

constexpr int LongestPattern = 1000;
constexpr int LongestMatched = 200;
constexpr qint64 MostSpent = 1000000000; // nanoseconds for all patterns together

template <auto Free> struct Freed
{
    template <typename Object> void operator()(Object* object) const { Free(object); }
};
using TypedValue = std::unique_ptr<xmlSchemaVal, Freed<xmlSchemaFreeValue>>;
using Pattern = std::unique_ptr<xmlRegexp, Freed<xmlRegFreeRegexp>>;

const xmlChar* charsOf(const QByteArray& utf8)
{
    return reinterpret_cast<const xmlChar*>(utf8.constData());
}

/// The text as a value of a type of XML Schema; null when it is none. An unknown type has no values either.
TypedValue typed(const QString& base, const QString& text)
{
    const xmlSchemaTypePtr type = xmlSchemaGetPredefinedType(
        charsOf(base.toUtf8()), reinterpret_cast<const xmlChar*>("http://www.w3.org/2001/XMLSchema"));
    xmlSchemaVal* value = nullptr;
    const bool isValid = type && xmlSchemaValidatePredefinedType(type, charsOf(text.toUtf8()), &value) == 0;
    TypedValue owned(value);
    return isValid ? std::move(owned) : TypedValue();
}

/// Less than, equal to or greater than 0; nothing for what has no order.
std::optional<int> compared(const QString& base, const QString& left, const QString& right)
{
    const TypedValue first = typed(base, left);
    const TypedValue second = typed(base, right);
    const int order = first && second ? xmlSchemaCompareValues(first.get(), second.get()) : 2;
    return order >= -1 && order <= 1 ? std::make_optional(order) : std::nullopt;
}

void passOver(void*, xmlError*) { }

bool isOneOf(const QString& base, std::initializer_list<const char*> types)
{
    return std::any_of(types.begin(), types.end(), [&base](const char* type) { return base == QLatin1String(type); });
}

bool isListOf(const SimpleValue& value)
{
    return value.item || isOneOf(value.base, {"NMTOKENS", "IDREFS", "ENTITIES"});
}

/// As XML Schema reads it: of most types without the white space around. A space that is none of XML's stays.
QString normalised(const SimpleValue& value, const QString& text)
{
    const QString facet = value.Facet("whiteSpace");
    const bool isText = isOneOf(value.base, {"string", "anySimpleType", "anyType"}) && !value.item;
    if (isText && (facet.isEmpty() || facet == QLatin1String("preserve"))) {
        return text;
    }
    QString read = text;
    for (const char space : {'\t', '\n', '\r'}) {
        read.replace(QLatin1Char(space), QLatin1Char(' '));
    }
    const bool isCollapsed = !isText && value.base != QLatin1String("normalizedString");
    return isCollapsed || facet == QLatin1String("collapse")
        ? read.split(QLatin1Char(' '), Qt::SkipEmptyParts).join(QLatin1Char(' '))
        : read;
}

/// What two rules allow together: what one forbids is forbidden, whatever the other leaves open.
Decision both(const Decision& left, const Decision& right)
{
    if (!left.value_or(true) || !right.value_or(true)) {
        return false;
    }
    return left.has_value() && right.has_value() ? std::make_optional(true) : std::nullopt;
}

Decision isLength(const SimpleValue& value, const QString& facet, int limit, const QString& text)
{
    const bool isOfTexts = isOneOf(value.base,
                                   {"string", "normalizedString", "token", "language", "Name", "NCName", "NMTOKEN",
                                    "ID", "IDREF", "ENTITY", "anyURI"});
    if (!isOfTexts && !isListOf(value)) {
        return std::nullopt;
    }
    const int length
        = isListOf(value) ? int(text.split(QLatin1Char(' '), Qt::SkipEmptyParts).size()) : int(text.toUcs4().size());
    return facet == QLatin1String("minLength") ? length >= limit
        : facet == QLatin1String("maxLength")  ? length <= limit
                                               : length == limit;
}

/// Counts what a value has, not what the text shows: no zeros in front or at the end.
Decision isOfDigits(const QString& facet, int limit, const QString& text)
{
    const QString digits = text.startsWith(QLatin1Char('-')) || text.startsWith(QLatin1Char('+')) ? text.mid(1) : text;
    QString whole = digits.section(QLatin1Char('.'), 0, 0);
    QString fraction = digits.section(QLatin1Char('.'), 1);
    while (whole.startsWith(QLatin1Char('0'))) {
        whole.remove(0, 1);
    }
    while (fraction.endsWith(QLatin1Char('0'))) {
        fraction.chop(1);
    }
    return int(facet == QLatin1String("totalDigits") ? whole.size() + fraction.size() : fraction.size()) <= limit;
}

Decision isInFacet(const SimpleValue& value, const QString& facet, const QString& limit, const QString& text)
{
    static const std::map<QString, std::pair<int, int>> orders {
        {QStringLiteral("minInclusive"), {0, 1}},
        {QStringLiteral("minExclusive"), {1, 1}},
        {QStringLiteral("maxInclusive"), {-1, 0}},
        {QStringLiteral("maxExclusive"), {-1, -1}},
    };
    const auto bound = orders.find(facet);
    if (bound != orders.end()) {
        const std::optional<int> order = compared(value.base, text, limit);
        return order ? std::make_optional(*order >= bound->second.first && *order <= bound->second.second)
                     : std::nullopt;
    }
    bool isNumber = false;
    const int number = limit.toInt(&isNumber);
    if (isNumber && isOneOf(facet, {"length", "minLength", "maxLength"})) {
        return isLength(value, facet, number, text);
    }
    if (isNumber && isOneOf(facet, {"totalDigits", "fractionDigits"})) {
        return isOfDigits(facet, number, text);
    }
    return isOneOf(facet, {"whiteSpace", "pattern"}) ? std::make_optional(true) : std::nullopt;
}

} // namespace

Decision TextCheck::IsAllowed(const SimpleValue& value, const QString& text)
{
    if (!value.enumeration.isEmpty() && !value.enumeration.contains(text)) {
        return false;
    }
    const bool isAnyText = isOneOf(value.base, {"string", "normalizedString", "anySimpleType", "anyType"});
    return isAnyText || typed(value.base, text) ? isInFacets(value, text) : std::make_optional(false);
}

std::optional<QStringList> TextCheck::AllowedOf(const SimpleValue& value)
{
    QStringList allowed;
    for (const QString& text : value.enumeration) {
        const Decision isAllowed = isInFacets(value, text);
        if (!isAllowed) {
            return std::nullopt;
        }
        if (*isAllowed) {
            allowed.append(text);
        }
    }
    return allowed;
}

bool TextCheck::IsSame(const QString& base, const QString& left, const QString& right)
{
    return left == right || compared(base, left, right) == 0;
}

Decision TextCheck::isInFacets(const SimpleValue& value, const QString& text)
{
    const QString read = normalised(value, text);
    Decision isAllowed = isInPatterns(value, read);
    for (const auto& facet : value.facets) {
        isAllowed = both(isAllowed, isInFacet(value, facet.first, facet.second, read));
    }
    return isAllowed;
}

Decision TextCheck::isInPatterns(const SimpleValue& value, const QString& text)
{
    std::vector<QStringList> steps = value.earlierPatterns;
    steps.push_back(value.Patterns());
    Decision isAllowed = true;
    for (const QStringList& alternatives : steps) {
        isAllowed = both(isAllowed, alternatives.isEmpty() ? true : isMatchedByAny(alternatives, text));
    }
    return isAllowed;
}

Decision TextCheck::isMatchedByAny(const QStringList& alternatives, const QString& text)
{
    bool isDecided = true;
    for (const QString& pattern : alternatives) {
        const Decision isOne = isMatched(pattern, text);
        if (isOne == true) {
            return true;
        }
        isDecided = isDecided && isOne.has_value();
    }
    return isDecided ? std::make_optional(false) : std::nullopt;
}

Decision TextCheck::isMatched(const QString& pattern, const QString& text)
{
    if (pattern.size() > LongestPattern || text.size() > LongestMatched || m_spent > MostSpent) {
        return std::nullopt;
    }
    QElapsedTimer timer;
    timer.start();
    xmlSetStructuredErrorFunc(nullptr, passOver);
    const Pattern compiled(xmlRegexpCompile(charsOf(pattern.toUtf8())));
    const int result = compiled ? xmlRegexpExec(compiled.get(), charsOf(text.toUtf8())) : -1;
    m_spent += timer.nsecsElapsed();
    return result < 0 ? std::nullopt : std::make_optional(result == 1);
}

} // namespace schemadoctor
