#include "skeletonplaces_p.h"

#include <algorithm>
#include <utility>

#include <xmlhelper/constants_p.h>
#include <xmlhelper/limits_p.h>
#include <xmlhelper/skeletonwords_p.h>

#include "facets_p.h"

namespace {

const QLatin1Char Separator('/');

int childCountOf(const QDomElement& element)
{
    int count = 0;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        ++count;
    }
    return count;
}

int elementsBelow(const QDomElement& element)
{
    int count = 0;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        count += 1 + elementsBelow(child);
    }
    return count;
}

/// "Emission[2]", which is not valid with an index below 1.
ValuePath::Step parsedStep(const QString& text, bool& isValid)
{
    const int bracket = int(text.indexOf(QLatin1Char('[')));
    if (bracket < 0) {
        isValid = isValid && !text.isEmpty();
        return {text, 0};
    }
    const QString number = text.mid(bracket + 1, text.size() - bracket - 2);
    const bool isNumber = std::all_of(number.begin(), number.end(),
                                      [](QChar one) { return one >= QLatin1Char('0') && one <= QLatin1Char('9'); });
    const int index = number.toInt();
    isValid = isValid && bracket > 0 && text.endsWith(QLatin1Char(']')) && isNumber && index > 0;
    return {text.left(bracket), index};
}

/// Whether the steps lead to the place; @p above becomes what stands above the first of them.
bool isEndOf(const std::vector<ValuePath::Step>& steps, const Place* place, const Place*& above)
{
    for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
        if (!place || place->name != step->name) {
            return false;
        }
        place = place->parent;
    }
    above = place;
    return true;
}

QStringList declaredAttributesOf(const QDomElement& element)
{
    QStringList names;
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomNode attribute = attributes.item(i);
        if (!isAnnotation(attribute.nodeName(), attribute.nodeValue())) {
            names.append(attribute.nodeName());
        }
    }
    names.sort(); // Their own order is random.
    return names;
}

} // namespace

ValuePath parsedPath(const QString& name)
{
    ValuePath path;
    QString way = name.section(QLatin1Char('@'), 0, 0);
    path.attribute = name.section(QLatin1Char('@'), 1);
    path.isValid = !name.contains(QLatin1Char('@')) || !path.attribute.isEmpty();
    if (way.startsWith(Separator)) {
        path.anchor = ValuePath::Anchor::Root;
        way.remove(0, 1);
    } else if (way == QLatin1String(".") || way.startsWith(QLatin1String("./"))) {
        path.anchor = ValuePath::Anchor::BelowRoot;
        way.remove(0, 2);
        if (way.isEmpty()) {
            return path;
        }
    }
    const QStringList names = way.split(Separator);
    for (const QString& one : names) {
        path.steps.push_back(parsedStep(one, path.isValid));
    }
    return path;
}

SkeletonPlaces::SkeletonPlaces(const QDomElement& root, const QMultiHash<QString, int>& alternatives,
                               IsCountAllowed isCountAllowed)
    : m_alternatives(alternatives)
    , m_isCountAllowed(std::move(isCountAllowed))
    , m_root(build(root, nullptr))
{
}

std::unique_ptr<Place> SkeletonPlaces::build(const QDomElement& element, const Place* parent)
{
    auto place = std::make_unique<Place>();
    place->name = element.tagName();
    place->element = element;
    place->parent = parent;
    m_placesOfNames[place->name].push_back(place.get());
    if (parent) {
        QDomElement richest = element;
        for (QDomElement next = element.nextSiblingElement(); next.tagName() == place->name;
             next = next.nextSiblingElement()) {
            ++place->laidOut;
            richest = childCountOf(next) > childCountOf(richest) ? next : richest;
        }
        place->isOptional = place->laidOut == 1 && m_isCountAllowed(element, 0);
        place->isAlternative = m_alternatives.contains(place->name) && !isWithin(place->name, *parent);
        place->greatest = greatestCountOf(*place);
        place->element = richest;
    }
    place->type = place->element.attribute(TypeAttribute());
    place->defaultValue = place->element.attribute(DefaultAttribute());
    place->attributes = declaredAttributesOf(place->element);
    addChildren(*place);
    return place;
}

void SkeletonPlaces::addChildren(Place& place)
{
    QDomElement child = place.element.firstChildElement();
    while (!child.isNull()) {
        place.children.push_back(build(child, &place));
        const Place& added = *place.children.back();
        place.extent += added.extent * added.laidOut;
        for (int i = 0; i < added.laidOut; ++i) {
            child = child.nextSiblingElement();
        }
    }
}

std::vector<const Place*> SkeletonPlaces::Find(const ValuePath& path) const
{
    if (path.steps.empty()) {
        const bool isThere = path.attribute.isEmpty() || m_root->attributes.contains(path.attribute);
        return isThere ? std::vector<const Place*> {m_root.get()} : std::vector<const Place*>();
    }
    std::vector<const Place*> anywhere;
    std::vector<const Place*> anchored;
    for (const Place* const place : m_placesOfNames.value(path.steps.back().name)) {
        const Place* above = nullptr;
        const bool isDeclared = path.attribute.isEmpty() || place->attributes.contains(path.attribute);
        if (!isDeclared || !isEndOf(path.steps, place, above)) {
            continue;
        }
        anywhere.push_back(place);
        if (!above || (above == m_root.get() && path.anchor == ValuePath::Anchor::BelowRoot)) {
            anchored.push_back(place);
        }
    }
    const bool isAnchored
        = path.anchor == ValuePath::Anchor::Root || (path.anchor == ValuePath::Anchor::BelowRoot && !anchored.empty());
    return isAnchored ? anchored : anywhere;
}

/// Whether what is called so was read as a part of the alternative that is its parent: the numbers of alternatives run
/// on through what they hold.
bool SkeletonPlaces::isWithin(const QString& name, const Place& parent) const
{
    const QList<int> numbers = m_alternatives.values(name);
    const QList<int> parentNumbers = m_alternatives.values(parent.name);
    const int below = parentNumbers.isEmpty() ? 0 : elementsBelow(parent.element);
    return std::any_of(parentNumbers.begin(), parentNumbers.end(), [&](int outer) {
        return std::any_of(numbers.begin(), numbers.end(),
                           [&](int number) { return number > outer && number <= outer + below; });
    });
}

int SkeletonPlaces::greatestCountOf(const Place& place) const
{
    int allowed = place.laidOut;
    int refused = isAllowed(place, allowed + 1) ? limits().elements + 1 : allowed + 1;
    while (refused - allowed > 1) {
        const int middle = allowed + (refused - allowed) / 2;
        (isAllowed(place, middle) ? allowed : refused) = middle;
    }
    return allowed;
}

/// The library takes up to a hundred times its maximum of an optional element: it is asked for a hundred times the
/// count. One laid out several times is required, though the library may take its maximum for that of an optional one.
bool SkeletonPlaces::isAllowed(const Place& place, int count) const
{
    const int factor = place.isOptional ? OptionalOccursFactor : 1;
    return m_isCountAllowed(place.element, count * factor);
}
