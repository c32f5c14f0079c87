#include "valuemending.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <optional>

#include <xmlhelper/constants_p.h>
#include <xmlhelper/valuerules_p.h>

#include "mendwords.h"
#include "names.h"
#include "patterntexts.h"

namespace schemadoctor {

namespace {

constexpr const char* Bounds[] = {"minInclusive", "minExclusive", "maxInclusive", "maxExclusive"};
constexpr const char* Unchecked[]
    = {"length", "minLength", "maxLength", "totalDigits", "fractionDigits", "assertion", "explicitTimezone"};

/// The types that any text is one of.
bool isAnyText(const QString& type)
{
    static const QStringList types {QStringLiteral("token"), QStringLiteral("normalizedString"),
                                    QStringLiteral("anySimpleType"), QStringLiteral("anyType")};
    return types.contains(type);
}

/// The types of which one text may be several items of a list.
bool mayHoldSpaces(const QString& type)
{
    return type == QLatin1String("string") || type == QLatin1String("anyURI") || isAnyText(type);
}

struct Range
{
    QString least; ///< empty: none
    QString greatest;
};

/// The range of a type of integers; nothing for other types.
std::optional<Range> rangeOf(const QString& type)
{
    static const std::map<QString, Range> ranges {
        {QStringLiteral("long"), {QStringLiteral("-9223372036854775808"), QStringLiteral("9223372036854775807")}},
        {QStringLiteral("int"), {QStringLiteral("-2147483648"), QStringLiteral("2147483647")}},
        {QStringLiteral("short"), {QStringLiteral("-32768"), QStringLiteral("32767")}},
        {QStringLiteral("byte"), {QStringLiteral("-128"), QStringLiteral("127")}},
        {QStringLiteral("unsignedLong"), {QStringLiteral("0"), QStringLiteral("18446744073709551615")}},
        {QStringLiteral("unsignedInt"), {QStringLiteral("0"), QStringLiteral("4294967295")}},
        {QStringLiteral("unsignedShort"), {QStringLiteral("0"), QStringLiteral("65535")}},
        {QStringLiteral("unsignedByte"), {QStringLiteral("0"), QStringLiteral("255")}},
        {QStringLiteral("nonNegativeInteger"), {QStringLiteral("0"), {}}},
        {QStringLiteral("positiveInteger"), {QStringLiteral("1"), {}}},
        {QStringLiteral("nonPositiveInteger"), {{}, QStringLiteral("0")}},
        {QStringLiteral("negativeInteger"), {{}, QStringLiteral("-1")}},
    };
    const auto found = ranges.find(type);
    return found == ranges.end() ? std::nullopt : std::make_optional(found->second);
}

/// The types of which the setter of integers fills no other: of one it takes the range, too.
bool isIntegerType(const QString& type)
{
    return settersOfElement(type) == Setters(Setter::Integer);
}

/// Whether a setter may give a number beyond a bound.
bool isWithinSetter(const QString& bound)
{
    return std::abs(bound.toDouble()) < double(std::numeric_limits<int>::max());
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

QString describedPatterns(const QStringList& alternatives)
{
    return described("pattern", alternatives.join(QLatin1Char('|')));
}

void enumerate(SimpleValue& value, const QStringList& texts)
{
    value.base = QStringLiteral("string");
    value.enumeration = texts;
    value.facets.clear();
    value.earlierPatterns.clear();
    value.item.reset();
}

void allowOnly(SimpleValue& value, const QString& pattern)
{
    enumerate(value, QStringList());
    value.SetFacet(QStringLiteral("pattern"), pattern);
}

bool hasBound(const SimpleValue& value, const char* inclusive, const char* exclusive)
{
    return !value.Facet(inclusive).isEmpty() || !value.Facet(exclusive).isEmpty();
}

/// All but the enumeration; alternatives as one.
QStringList describedFacets(const SimpleValue& value)
{
    QStringList described;
    for (const QStringList& step : value.earlierPatterns) {
        described.append(describedPatterns(step));
    }
    if (!value.Patterns().isEmpty()) {
        described.append(describedPatterns(value.Patterns()));
    }
    for (const auto& facet : value.facets) {
        if (facet.first != QLatin1String("pattern")) {
            described.append(schemadoctor::described(facet.first.toLatin1().constData(), facet.second));
        }
    }
    return described;
}

/// How many items a list may have.
struct ItemCounts
{
    int least = 0;
    int greatest = std::numeric_limits<int>::max();
};

ItemCounts countsOf(const SimpleValue& list)
{
    ItemCounts counts;
    for (const char* const facet : {"length", "minLength", "maxLength"}) {
        const QString text = list.Facet(facet);
        const int number = int(std::min(text.toDouble(), double(std::numeric_limits<int>::max())));
        if (!text.isEmpty() && QLatin1String(facet) != QLatin1String("maxLength")) {
            counts.least = std::max(counts.least, number);
        }
        if (!text.isEmpty() && QLatin1String(facet) != QLatin1String("minLength")) {
            counts.greatest = std::min(counts.greatest, number);
        }
    }
    return counts;
}

/// Whether no number is between the bounds.
bool isEmptyRange(const SimpleValue& value)
{
    if (!hasBound(value, "minInclusive", "minExclusive") || !hasBound(value, "maxInclusive", "maxExclusive")) {
        return false;
    }
    const bool isAbove = !value.Facet("minExclusive").isEmpty();
    const bool isBelow = !value.Facet("maxExclusive").isEmpty();
    double least = value.Facet(isAbove ? "minExclusive" : "minInclusive").toDouble();
    double greatest = value.Facet(isBelow ? "maxExclusive" : "maxInclusive").toDouble();
    if (isIntegerType(value.base)) {
        least += isAbove ? 1 : 0;
        greatest -= isBelow ? 1 : 0;
        return least > greatest;
    }
    return least > greatest || (least == greatest && (isAbove || isBelow));
}

} // namespace

SimpleValue ValueMending::OfElement(SimpleValue value, const TextNode& user)
{
    const TextNode& tag = value.definition ? *value.definition : user;
    if (isSettled(value, tag)) {
        return value;
    }
    if (!value.enumeration.isEmpty()) {
        enumerateTexts(value, tag);
        return value;
    }
    dropPatterns(value, tag);
    dropUnchecked(value, tag);
    takeFillableType(value, tag);
    dropBoundsOfTexts(value, tag);
    const SimpleValue whole = value;
    keepFromAbsentBound(value, tag);
    keepFromEmptyRange(value, whole, tag);
    std::stable_sort(value.facets.begin(), value.facets.end(), [](const auto& left, const auto& right) {
        return left.first.startsWith(QLatin1String("min")) && !right.first.startsWith(QLatin1String("min"));
    });
    return value;
}

SimpleValue ValueMending::OfAttribute(SimpleValue value, const TextNode& user)
{
    const TextNode& tag = value.definition ? *value.definition : user;
    if (value.base == QLatin1String("boolean") && value.enumeration.isEmpty() && !value.item) {
        m_log.Narrow(tag, Mend::tr("an attribute of the type xs:boolean"), Mend::tr("the texts true and false"));
        value.base = QStringLiteral("string");
        value.enumeration = QStringList {QStringLiteral("true"), QStringLiteral("false")};
    }
    value = OfElement(value, user);
    if (isIntegerType(value.base) && !isAttributeTakenBy(wordOf(Setter::Integer), value.base)) {
        takeInteger(value, tag);
    } else if (value.base == QLatin1String("time")
               && m_log.Change(tag, Mend::tr("an attribute of the type xs:time"), QStringLiteral("xs:string"))) {
        value.base = QStringLiteral("string");
    }
    takeIntegerBounds(value, tag);
    const SimpleValue whole = value;
    excludeUpperBound(value, tag);
    keepFromEmptyRange(value, whole, tag);
    return value;
}

SimpleValue ValueMending::OfFixed(const TextNode& tag, const QString& fixed)
{
    m_log.Narrow(tag, Mend::tr("the fixed value '%1'").arg(fixed), Mend::tr("an enumeration of this value"));
    SimpleValue value;
    value.base = QStringLiteral("string");
    value.enumeration = QStringList {fixed};
    return value;
}

QString ValueMending::DefaultOf(const SimpleValue& original, const SimpleValue& mended, const TextNode& tag)
{
    if (!tag.Has("default")) {
        return QString();
    }
    const QString text = tag.Value("default");
    if (!text.isEmpty() && m_check.IsAllowed(mended, text) != false) {
        return text;
    }
    const QString before = Mend::tr("the default '%1'").arg(text);
    for (const QString& same : mended.enumeration) {
        if (!same.isEmpty() && TextCheck::IsSame(original.base, same, text)) {
            m_log.Narrow(tag, before, Mend::tr("the default '%1'").arg(same));
            return same;
        }
    }
    m_log.Narrow(tag, before, Mend::tr("nothing"));
    return QString();
}

/// Whether nothing else is to be mended: where the format is kept, some types can be written only as others.
bool ValueMending::isSettled(SimpleValue& value, const TextNode& tag)
{
    if (value.isUnknown && m_log.IsFormatKept() && value.enumeration.isEmpty()) {
        if (!value.facets.empty()) { // They are facets of a type that is written, or of none.
            allowNothing(value, tag, describedFacets(value).join(QLatin1String(", ")));
        }
        return true;
    }
    return takeItems(value, tag) || takeListedTexts(value, tag);
}

/// A list where the format is kept: one item is a list as well, where one is allowed.
bool ValueMending::takeItems(SimpleValue& value, const TextNode& tag)
{
    if (!value.item || !value.enumeration.isEmpty()) {
        return false;
    }
    const QString text = Mend::tr("xs:string, which holds the items as a text");
    const ItemCounts counts = countsOf(value);
    if (!m_log.IsFormatKept()) {
        m_log.Change(*value.list, QStringLiteral("xs:list"), text);
        value.item.reset();
        return false;
    }
    if (counts.least <= 1 && counts.greatest >= 1) {
        takeSingleItem(value, counts.least == 0 && counts.greatest == ItemCounts().greatest);
        return isSettled(value, tag);
    }
    const QString pattern = patternOfItem(*value.item, m_check);
    if (pattern.isEmpty() || counts.least < 2 || counts.greatest < counts.least || !value.Patterns().isEmpty()) {
        allowNothing(value, *value.list, Mend::tr("an xs:list that is never a single item"));
        return true;
    }
    const bool isLimited = counts.greatest != std::numeric_limits<int>::max();
    const QString most = isLimited ? QString::number(counts.greatest - 1) : QString();
    const TextNode& list = *value.list;
    allowOnly(value, QStringLiteral("(%1)( (%1)){%2,%3}").arg(pattern).arg(counts.least - 1).arg(most));
    m_log.Narrow(list, Mend::tr("an xs:list that is never a single item"),
                 Mend::tr("xs:string with %1").arg(describedPatterns(value.Patterns())));
    return false;
}

/// Where not just any text is one, an item must hold no space: that would make several of it.
void ValueMending::takeSingleItem(SimpleValue& list, bool isOfAnyCount)
{
    SimpleValue item = *list.item;
    QString after = Mend::tr("a single item");
    if (mayHoldSpaces(item.base) && !item.enumeration.isEmpty()) {
        item.AddPatterns({QStringLiteral("\\S+")});
    } else if (mayHoldSpaces(item.base) && !(item.IsPlain() && isOfAnyCount)) {
        item.base = QStringLiteral("NMTOKEN");
        after = Mend::tr("a single item of %1").arg(named(item.base));
    }
    m_log.Narrow(*list.list, QStringLiteral("xs:list"), after);
    item.name = list.name;
    item.definition = list.definition;
    for (const QStringList& step : list.earlierPatterns) {
        item.AddPatterns(step);
    }
    item.AddPatterns(list.Patterns());
    list = item;
}

/// Of patterns of several restrictions, which all have to hold, one may list texts: a setter fills these.
bool ValueMending::takeListedTexts(SimpleValue& value, const TextNode& tag)
{
    if (value.earlierPatterns.empty() || !value.enumeration.isEmpty() || !m_log.IsFormatKept()) {
        return false;
    }
    std::vector<QStringList> steps = value.earlierPatterns;
    steps.push_back(value.Patterns());
    for (const QStringList& step : steps) {
        QStringList texts = textsListedBy(step.join(QLatin1Char('|')));
        const auto isRefused = [&](const QString& text) { return m_check.IsAllowed(value, text) != true; };
        texts.erase(std::remove_if(texts.begin(), texts.end(), isRefused), texts.end());
        if (!texts.isEmpty()) {
            m_log.Narrow(tag, describedPatterns(step), Mend::tr("an enumeration of its texts"));
            enumerate(value, texts);
            return true;
        }
    }
    return false;
}

/// Of what no single restriction can say, and no text is known.
void ValueMending::allowNothing(SimpleValue& value, const TextNode& tag, const QString& before)
{
    const QString nothing = Mend::tr("a type without any value");
    m_log.Narrow(tag, before, nothing);
    m_log.Change(tag, nothing, QStringLiteral("xs:string"));
    enumerate(value, QStringList());
    value.SetFacet(QStringLiteral("length"), QStringLiteral("0"));
    value.SetFacet(QStringLiteral("pattern"), QStringLiteral("."));
}

/// Only texts are compared with an enumeration: it holds those that all other facets allow.
void ValueMending::enumerateTexts(SimpleValue& value, const TextNode& tag)
{
    const std::optional<QStringList> allowed = m_check.AllowedOf(value);
    const bool isDecided = allowed && !allowed->isEmpty();
    const QString alone = isDecided && allowed->size() < value.enumeration.size()
        ? Mend::tr("an enumeration of what it allows")
        : Mend::tr("the enumeration alone");
    const QStringList facets = describedFacets(value);
    for (const QString& before : facets) {
        if (isDecided) {
            m_log.Narrow(tag, before, alone);
        } else if (!m_log.Change(tag, before, alone)) {
            keepEnumeration(value, tag);
            return;
        }
    }
    if (value.base != QLatin1String("string") && !value.isUnknown) {
        m_log.Narrow(tag, Mend::tr("an enumeration of %1").arg(named(value.base)),
                     Mend::tr("an enumeration of xs:string"));
    }
    enumerate(value, isDecided ? *allowed : value.enumeration);
}

/// As it is, where one restriction can say it.
void ValueMending::keepEnumeration(SimpleValue& value, const TextNode& tag)
{
    if (value.item || value.isUnknown) {
        allowNothing(value, tag, describedFacets(value).join(QLatin1String(", ")));
    }
}

void ValueMending::takeFillableType(SimpleValue& value, const TextNode& tag)
{
    if (builtInTypesOfElements().contains(value.base) || isIntegerType(value.base)) {
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

/// The bounds of the type become facets, where there are none that are narrower, and a setter could pass them.
void ValueMending::takeInteger(SimpleValue& value, const TextNode& tag)
{
    const Range range = *rangeOf(value.base);
    QStringList bounds;
    bool isLeftToSetter = false;
    const auto take = [&](const char* inclusive, const char* exclusive, const QString& bound) {
        const bool isTaken = !bound.isEmpty() && !hasBound(value, inclusive, exclusive);
        if (isTaken && isWithinSetter(bound)) {
            value.SetFacet(QLatin1String(inclusive), bound);
            bounds.append(described(inclusive, bound));
        } else if (isTaken) {
            isLeftToSetter = true;
        }
    };
    take("minInclusive", "minExclusive", range.least);
    take("maxInclusive", "maxExclusive", range.greatest);
    const QString after = bounds.isEmpty() ? QStringLiteral("xs:integer")
                                           : Mend::tr("xs:integer with %1").arg(bounds.join(QLatin1String(", ")));
    m_log.Narrow(tag, named(value.base),
                 isLeftToSetter
                     ? Mend::tr("%1; setters give no number beyond the bounds of %2").arg(after, named(value.base))
                     : after);
    if (!value.definition) {
        value.name = capitalised(value.base);
    }
    value.base = QStringLiteral("integer");
}

void ValueMending::dropPatterns(SimpleValue& value, const TextNode& tag)
{
    std::vector<QStringList> steps = value.earlierPatterns;
    steps.push_back(value.Patterns());
    for (const QStringList& step : steps) {
        if (!step.isEmpty() && m_log.Change(tag, describedPatterns(step), Mend::tr("nothing"))) {
            value.RemoveFacet("pattern");
            value.earlierPatterns.clear();
        }
    }
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
        bool isInteger = false;
        static_cast<void>(text.toInt(&isInteger));
        const bool isUsed = (isIntegerType(value.base) && isInteger)
            || (isNumberType(value.base) && isNumber && std::isfinite(number));
        if (!text.isEmpty() && !isUsed && m_log.Change(tag, described(facet, text), Mend::tr("nothing"))) {
            value.RemoveFacet(facet);
        }
    }
}

/// One number counts as no bound. Of integers the one beside it, turned from inclusive to exclusive or back, says the
/// same; of other numbers the next one is taken that allows less.
void ValueMending::keepFromAbsentBound(SimpleValue& value, const TextNode& tag)
{
    const bool isInteger = isIntegerType(value.base);
    for (const char* const facet : Bounds) {
        if (value.Facet(facet).isEmpty() || value.Facet(facet).toDouble() != double(AbsentBound)) {
            continue;
        }
        const bool isLower = QLatin1String(facet).startsWith(QLatin1String("min"));
        const bool isTurned = isInteger && QLatin1String(facet).endsWith(QLatin1String("Inclusive"));
        const QString text = QString::number(AbsentBound + (isLower == isTurned ? -1 : 1));
        const char* const other
            = isLower ? (isTurned ? "minExclusive" : "minInclusive") : (isTurned ? "maxExclusive" : "maxInclusive");
        m_log.Narrow(tag, described(facet, value.Facet(facet)), described(other, text));
        value.RemoveFacet(facet);
        value.SetFacet(QLatin1String(other), text);
    }
}

/// Where a bound that allows less leaves no number, there are few.
void ValueMending::keepFromEmptyRange(SimpleValue& value, const SimpleValue& whole, const TextNode& tag)
{
    if (!isEmptyRange(value) || isEmptyRange(whole)) {
        return;
    }
    QStringList texts {whole.Facet("minInclusive"), QString::number(AbsentBound), whole.Facet("maxInclusive")};
    texts.removeDuplicates();
    const auto isRefused
        = [&](const QString& text) { return text.isEmpty() || m_check.IsAllowed(whole, text) != true; };
    texts.erase(std::remove_if(texts.begin(), texts.end(), isRefused), texts.end());
    if (!texts.isEmpty()) {
        m_log.Narrow(tag, Mend::tr("bounds between which hardly any number is"),
                     Mend::tr("an enumeration of '%1'").arg(texts.join(QLatin1String("', '"))));
        enumerate(value, texts);
        return;
    }
    const bool mayChange
        = m_log.Change(tag, Mend::tr("bounds between which hardly any number is"), Mend::tr("nothing"));
    value = whole;
    for (const char* const facet : Bounds) {
        if (mayChange) {
            value.RemoveFacet(facet);
        }
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

/// Beside a lower bound, an attribute never has its greatest value: of integers it is the one before the bound then.
void ValueMending::excludeUpperBound(SimpleValue& value, const TextNode& tag)
{
    const QString greatest = value.Facet("maxInclusive");
    if (greatest.isEmpty() || !hasBound(value, "minInclusive", "minExclusive")) {
        return;
    }
    bool isInteger = false;
    const int last = greatest.toInt(&isInteger);
    const bool isNext = isInteger && value.base == QLatin1String("integer") && last + qint64(1) != AbsentBound
        && last < std::numeric_limits<int>::max();
    const QString bound = isNext ? QString::number(last + 1) : greatest;
    m_log.Narrow(tag, described("maxInclusive", greatest), described("maxExclusive", bound));
    value.RemoveFacet("maxInclusive");
    value.SetFacet(QStringLiteral("maxExclusive"), bound);
}

} // namespace schemadoctor
