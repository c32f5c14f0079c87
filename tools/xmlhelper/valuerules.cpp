#include "valuerules_p.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "constants_p.h"
#include "skeletonwords_p.h"

namespace {

const QLatin1String LongType("long");
const QLatin1String IntType("int");

constexpr Setter AllSetters[]
    = {Setter::Text, Setter::Floating, Setter::Integer, Setter::Truth, Setter::DateTime, Setter::Time};
constexpr Setter SettersOfAttributes[] = {Setter::Text, Setter::Floating, Setter::Integer, Setter::DateTime};

/// In the order in which a name is held against them.
const QLatin1String RangeFacets[] = {MinInclusiveFacet, MaxInclusiveFacet, MinExclusiveFacet, MaxExclusiveFacet};

// Of the words, one is short for the type's name.
QString builtInTypeOf(Setter setter)
{
    return setter == Setter::Truth ? QStringLiteral("boolean") : wordOf(setter);
}

template <std::size_t Count> QStringList builtInTypesOf(const Setter (&setters)[Count])
{
    QStringList types;
    std::transform(std::begin(setters), std::end(setters), std::back_inserter(types), builtInTypeOf);
    return types;
}

/// QString::contains() prepares for longer texts than types are.
bool isWordInside(const QString& type, const QString& word)
{
    return std::search(type.cbegin(), type.cend(), word.cbegin(), word.cend()) != type.cend();
}

QLatin1String rangeFacetWithin(const QString& attribute)
{
    for (const QLatin1String& facet : RangeFacets) {
        if (attribute.contains(facet)) {
            return facet;
        }
    }
    return QLatin1String();
}

} // namespace

QString wordOf(Setter setter)
{
    switch (setter) {
    case Setter::Text:
        return QStringLiteral("string");
    case Setter::Floating:
        return QStringLiteral("double");
    case Setter::Integer:
        return QStringLiteral("integer");
    case Setter::Truth:
        return QStringLiteral("bool");
    case Setter::DateTime:
        return QStringLiteral("dateTime");
    case Setter::Time:
        break;
    }
    return QStringLiteral("time");
}

QString typeTakenBy(const QString& word, const QString& type)
{
    if (isWordInside(type, word) || (type == IntType && word == wordOf(Setter::Integer))) {
        return type;
    }
    for (const QLatin1String universal : {ShortType, LongType}) {
        if (type.contains(universal)) {
            return universal;
        }
    }
    return QString();
}

bool isAttributeTakenBy(const QString& word, const QString& type)
{
    return isWordInside(type, word);
}

QStringList builtInTypesOfElements()
{
    return builtInTypesOf(AllSetters);
}

QStringList builtInTypesOfAttributes()
{
    return builtInTypesOf(SettersOfAttributes);
}

Setters settersOfElement(const QString& type)
{
    Setters setters;
    for (const Setter setter : AllSetters) {
        setters.setFlag(setter, !typeTakenBy(wordOf(setter), type).isEmpty());
    }
    return setters;
}

Setters settersOfAttribute(const QString& type)
{
    Setters setters;
    for (const Setter setter : SettersOfAttributes) {
        setters.setFlag(setter, isAttributeTakenBy(wordOf(setter), type));
    }
    return setters;
}

bool isValueType(const QString& type)
{
    return !type.isEmpty();
}

bool isEnumerationOfElement(const QString& attribute)
{
    return !attribute.isEmpty() && attribute.back().isDigit() && attribute.contains(EnumerationFacet);
}

bool isEnumerationOfAttribute(const QString& attribute, const QString& owner)
{
    return attribute.size() >= EnumerationFacet.size() && attribute.contains(EnumerationFacet)
        && attribute.contains(owner);
}

// No algorithm: asked for every attribute of every number that is set.
QLatin1String rangeFacetOfElement(const QString& attribute)
{
    for (const QLatin1String& facet : RangeFacets) {
        if (attribute == facet) {
            return facet;
        }
    }
    return QLatin1String();
}

QLatin1String rangeFacetOfAttribute(const QString& attribute, const QString& owner)
{
    return attribute.contains(owner) ? rangeFacetWithin(attribute) : QLatin1String();
}

bool isPossibleFacet(const QString& attribute)
{
    return attribute.contains(EnumerationFacet) || rangeFacetWithin(attribute).size() > 0;
}

bool isFacetOfType(const QString& attribute)
{
    return attribute.contains(EnumerationFacet) || attribute.contains(RangeFacetMark);
}

FacetName facetNameIn(const QString& attribute)
{
    for (const QLatin1String& range : RangeFacets) {
        if (attribute.startsWith(range)) {
            return {range, 0, attribute.mid(range.size())};
        }
    }
    if (!attribute.startsWith(EnumerationFacet)) {
        return {};
    }
    const auto* const digits = attribute.cbegin() + EnumerationFacet.size();
    if (digits == attribute.cend() || !digits->isDigit()) {
        return {};
    }
    const auto* const end = std::find_if(digits, attribute.cend(), [](QChar one) { return !one.isDigit(); });
    const QString number(digits, int(end - digits));
    return {EnumerationFacet, number.toInt(), QString(end, int(attribute.cend() - end))};
}

std::optional<int> occursCodeOf(int minOccurs, int maxOccurs)
{
    if (maxOccurs == OccursNotGiven) {
        return minOccurs == 0 ? std::optional<int>(0) : std::nullopt;
    }
    constexpr int greatestFactor = std::numeric_limits<int>::max() / OptionalOccursFactor;
    constexpr int leastFactor = std::numeric_limits<int>::min() / OptionalOccursFactor;
    return minOccurs == 0 ? std::clamp(maxOccurs, leastFactor, greatestFactor) * OptionalOccursFactor : maxOccurs;
}

bool isOptionalCode(int occursCode)
{
    return occursCode % OptionalOccursFactor == 0;
}

int greatestCountOf(int occursCode)
{
    const bool isUnbounded = occursCode == UnboundedOccurs || occursCode / OptionalOccursFactor == UnboundedOccurs;
    return isUnbounded ? UnboundedOccurs : std::max(0, occursCode);
}

bool isCountAllowed(int occursCode, int count)
{
    if (count <= 0) {
        return count < 0 || isOptionalCode(occursCode);
    }
    const int greatest = greatestCountOf(occursCode);
    return greatest == UnboundedOccurs || count <= greatest;
}
