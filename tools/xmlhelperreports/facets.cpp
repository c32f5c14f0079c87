#include "facets_p.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>

#include <QDateTime>
#include <QDomElement>
#include <QRegularExpression>

#include <xmlhelper/skeletonwords_p.h>
#include <xmlhelper/valuerules_p.h>

#include "typedvalue_p.h"

namespace {

const QLatin1String LengthFacet("length");
const QLatin1String MinLengthFacet("minLength");
const QLatin1String MaxLengthFacet("maxLength");
const QLatin1String PatternFacet("pattern");
const QLatin1String TotalDigitsFacet("totalDigits");
const QLatin1String FractionDigitsFacet("fractionDigits");
const QLatin1String WhiteSpaceFacet("whiteSpace");
const QLatin1String Collapse("collapse");
const QLatin1String Replace("replace");

bool isAsciiDigit(QChar one)
{
    return one >= QLatin1Char('0') && one <= QLatin1Char('9');
}

/// What a restriction may hold beside enumerations and bounds. An attribute may be called so, too: then it holds its
/// type.
bool isFurtherFacet(const QString& name, const QString& value)
{
    for (const QLatin1String& number :
         {LengthFacet, MinLengthFacet, MaxLengthFacet, TotalDigitsFacet, FractionDigitsFacet}) {
        if (name == number) {
            return !value.isEmpty() && std::all_of(value.begin(), value.end(), isAsciiDigit);
        }
    }
    if (name == WhiteSpaceFacet) {
        return value == Collapse || value == Replace || value == QLatin1String("preserve");
    }
    return !value.startsWith(SchemaPrefix)
        && (name == PatternFacet || name == QLatin1String("annotation") || name == QLatin1String("documentation"));
}

FacetVerdict brokenBy(const QString& facet, const QString& bound)
{
    return {FacetVerdict::Broken, QStringLiteral("it is outside of its %1, %2").arg(facet, bound)};
}

FacetVerdict unknownBy(const QString& facet, const QString& bound)
{
    return {FacetVerdict::Unknown, QStringLiteral("whether it is within its %1, %2, is not known").arg(facet, bound)};
}

/// The text as a validator compares it.
QString normalised(const QString& text, const QString& type, const Facets& facets)
{
    const auto facet = facets.find(WhiteSpaceFacet);
    const QString rule = facet != facets.end() ? facet->second.front() : QString();
    if (rule == Collapse || !isOf(type, Setter::Text)) {
        return text.simplified();
    }
    QString replaced = text;
    return rule == Replace ? replaced.replace(QRegularExpression(QStringLiteral("[\\t\\r\\n]")), QStringLiteral(" "))
                           : replaced;
}

bool isIntegerText(const QString& text)
{
    const bool isSigned = text.startsWith(QLatin1Char('-')) || text.startsWith(QLatin1Char('+'));
    return text.size() > (isSigned ? 1 : 0) && std::all_of(text.begin() + (isSigned ? 1 : 0), text.end(), isAsciiDigit);
}

/// What the type itself says and the builder does not look at.
FacetVerdict verdictByType(const QString& text, const QString& type)
{
    bool isNumber = true;
    if (type.contains(ShortType)) {
        static_cast<void>(text.toShort(&isNumber));
    } else if (isUniversal(type)) {
        static_cast<void>(text.toLongLong(&isNumber));
    } else if (isOf(type, Setter::Floating)) {
        bool isConverted = false;
        isNumber = std::isfinite(text.toDouble(&isConverted)) || !isConverted;
    } else if (isIntegerText(text) && settersOfElement(type).testFlag(Setter::Integer) && !isOf(type, Setter::Text)) {
        static_cast<void>(text.toInt(&isNumber));
        if (!isNumber) {
            return {FacetVerdict::Broken, QStringLiteral("integers of more than 32 bits are not written")};
        }
    }
    return isNumber ? FacetVerdict()
                    : FacetVerdict {FacetVerdict::Broken, QStringLiteral("its type, %1, has no such value").arg(type)};
}

template <typename Value> int orderOf(const Value& left, const Value& right)
{
    return left < right ? -1 : right < left ? 1 : 0;
}

std::optional<int> orderOfMoments(const QString& left, const QString& right)
{
    const QDateTime first = QDateTime::fromString(left, Qt::ISODateWithMs);
    const QDateTime second = QDateTime::fromString(right, Qt::ISODateWithMs);
    // One without a zone is neither before nor behind one of a zone, unless they are far apart.
    const bool isComparable = first.isValid() && second.isValid()
        && (first.timeSpec() == Qt::LocalTime) == (second.timeSpec() == Qt::LocalTime);
    return isComparable ? std::make_optional(orderOf(first, second)) : std::nullopt;
}

std::optional<int> orderOfTimes(const QString& left, const QString& right)
{
    const QTime first = QTime::fromString(left, Qt::ISODateWithMs);
    const QTime second = QTime::fromString(right, Qt::ISODateWithMs);
    return first.isValid() && second.isValid() ? std::make_optional(orderOf(first, second)) : std::nullopt;
}

std::optional<int> orderOfNumbers(const QString& left, const QString& right)
{
    bool isFirst = false;
    bool isSecond = false;
    const qint64 firstInteger = left.toLongLong(&isFirst);
    const qint64 secondInteger = right.toLongLong(&isSecond);
    if (isFirst && isSecond) {
        return orderOf(firstInteger, secondInteger);
    }
    const double first = left.toDouble(&isFirst);
    const double second = right.toDouble(&isSecond);
    const bool isComparable = isFirst && isSecond && !std::isnan(first) && !std::isnan(second);
    return isComparable ? std::make_optional(orderOf(first, second)) : std::nullopt;
}

/// Which of two values of a type is less, below 0 for the first; none when that cannot be told.
std::optional<int> orderOfValues(const QString& left, const QString& right, const QString& type)
{
    return isOf(type, Setter::DateTime) ? orderOfMoments(left, right)
        : isOf(type, Setter::Time)      ? orderOfTimes(left, right)
                                        : orderOfNumbers(left, right);
}

FacetVerdict verdictByBounds(const QString& text, const QString& type, const Facets& facets)
{
    FacetVerdict verdict;
    for (const QLatin1String& facet : {MaxExclusiveFacet, MaxInclusiveFacet, MinExclusiveFacet, MinInclusiveFacet}) {
        const auto bound = facets.find(facet);
        if (bound == facets.end()) {
            continue;
        }
        const std::optional<int> order = orderOfValues(text, bound->second.front(), type);
        if (!order) {
            verdict = unknownBy(facet, bound->second.front());
        } else if ((facet == MinInclusiveFacet && *order < 0) || (facet == MaxInclusiveFacet && *order > 0)
                   || (facet == MinExclusiveFacet && *order <= 0) || (facet == MaxExclusiveFacet && *order >= 0)) {
            return brokenBy(facet, bound->second.front());
        }
    }
    return verdict;
}

FacetVerdict verdictByEnumeration(const QString& text, const QString& type, const Facets& facets)
{
    const auto enumeration = facets.find(EnumerationFacet);
    if (enumeration == facets.end()) {
        return {};
    }
    const bool isListed = std::any_of(enumeration->second.begin(), enumeration->second.end(), [&](const QString& one) {
        return one == text || (!isOf(type, Setter::Text) && orderOfValues(text, one, type) == 0);
    });
    return isListed ? FacetVerdict() : brokenBy(EnumerationFacet, enumeration->second.join(QLatin1String(", ")));
}

/// Zeros at the end of a fraction, and in front of a whole number, do not count.
int digitsOfFraction(const QString& text)
{
    QString fraction = text.section(QLatin1Char('.'), 1);
    while (fraction.endsWith(QLatin1Char('0'))) {
        fraction.chop(1);
    }
    return int(fraction.size());
}

int digitsOf(const QString& text)
{
    const QString whole = text.section(QLatin1Char('.'), 0, 0);
    const auto* const first = std::find_if(whole.begin(), whole.end(),
                                           [](QChar one) { return isAsciiDigit(one) && one != QLatin1Char('0'); });
    return int(std::count_if(first, whole.end(), isAsciiDigit)) + digitsOfFraction(text);
}

/// Whether the expression holds what Qt does not read as XML Schema does: names and words, blocks, anchors, which are
/// characters there, and what is subtracted from a class.
bool isReadOtherwise(const QString& pattern)
{
    bool isInClass = false;
    for (int i = 0; i < int(pattern.size()); ++i) {
        const QChar one = pattern.at(i);
        if (one == QLatin1Char('\\')) {
            const QString escape = pattern.mid(++i, 4);
            const bool isBlock = escape.startsWith(QLatin1String("p{Is")) || escape.startsWith(QLatin1String("P{Is"));
            if (isBlock || escape.isEmpty() || QStringLiteral("icICwW").contains(escape.at(0))) {
                return true;
            }
        } else if (one == QLatin1Char('[')) {
            if (isInClass) {
                return true;
            }
            isInClass = true;
        } else if (one == QLatin1Char(']')) {
            isInClass = false;
        } else if (!isInClass && (one == QLatin1Char('^') || one == QLatin1Char('$'))) {
            return true;
        }
    }
    return false;
}

FacetVerdict verdictByPattern(const QString& text, const Facets& facets,
                              const std::function<bool(const QString& pattern)>& isOneOfSeveral)
{
    const auto facet = facets.find(PatternFacet);
    if (facet == facets.end()) {
        return {};
    }
    const QString pattern = facet->second.front();
    const QRegularExpression expression(QRegularExpression::anchoredPattern(pattern),
                                        QRegularExpression::UseUnicodePropertiesOption);
    if (isReadOtherwise(pattern) || !expression.isValid()) {
        return unknownBy(PatternFacet, pattern);
    }
    const QRegularExpressionMatch match = expression.match(text);
    if (match.isValid() && match.hasMatch()) {
        return {};
    }
    return !match.isValid() || isOneOfSeveral(pattern) ? unknownBy(PatternFacet, pattern)
                                                       : brokenBy(PatternFacet, pattern);
}

FacetVerdict verdictByLength(const QString& text, const Facets& facets)
{
    const int length = int(text.toUcs4().size());
    for (const auto& [facet, values] : facets) {
        const int number = values.front().toInt();
        if ((facet == LengthFacet && length != number) || (facet == MinLengthFacet && length < number)
            || (facet == MaxLengthFacet && length > number) || (facet == TotalDigitsFacet && digitsOf(text) > number)
            || (facet == FractionDigitsFacet && digitsOfFraction(text) > number)) {
            return brokenBy(facet, values.front());
        }
    }
    return {};
}

/// The first that is broken, else the first that is not known to be kept.
FacetVerdict worstOf(std::initializer_list<FacetVerdict> verdicts)
{
    FacetVerdict worst;
    for (const FacetVerdict& verdict : verdicts) {
        if (verdict.kind > worst.kind) {
            worst = verdict;
        }
    }
    return worst;
}

} // namespace

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
        } else if (attribute.isEmpty() && isFurtherFacet(name, value)) {
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
        || isFurtherFacet(name, value);
}

FacetVerdict verdictOnValue(const QString& text, const QString& type, const Facets& facets)
{
    const QString value = normalised(text, type, facets);
    return worstOf(
        {verdictByType(value, type), verdictByEnumeration(value, type, facets), verdictByBounds(value, type, facets)});
}

FacetVerdict verdictOnText(const QString& text, const QString& type, const Facets& facets,
                           const std::function<bool(const QString& pattern)>& isOneOfSeveral)
{
    const QString value = normalised(text, type, facets);
    return worstOf({verdictOnValue(text, type, facets), verdictByLength(value, facets),
                    verdictByPattern(value, facets, isOneOfSeveral)});
}
