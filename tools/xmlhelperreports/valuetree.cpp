#include "valuetree_p.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <QStringList>

#include <xmlhelper/limits_p.h>
#include <xmlhelper/valuerules_p.h>

QString stepTo(const Place& place, int index)
{
    return QLatin1Char('/') + (place.MayRepeat() ? QStringLiteral("%1[%2]").arg(place.name).arg(index) : place.name);
}

QString pathOf(const Place& place)
{
    return (place.parent ? pathOf(*place.parent) : QString()) + QLatin1Char('/') + place.name;
}

ValueTree::ValueTree(const SkeletonPlaces& places, std::vector<GivenValue>& values, Refuse refuse)
    : m_places(places)
    , m_values(values)
    , m_refuse(std::move(refuse))
    , m_elements(places.GetRoot().extent)
{
}

void ValueTree::Assign()
{
    for (int value = 0; value < int(m_values.size()); ++value) {
        assign(value);
    }
}

void ValueTree::assign(int value)
{
    const ValuePath path = parsedPath(m_values[std::size_t(value)].name);
    if (!path.isValid) {
        m_refuse(value, true, QStringLiteral("this is no path"));
        return;
    }
    const std::vector<const Place*> places = m_places.Find(path);
    if (places.empty()) {
        m_refuse(value, true, QStringLiteral("the schema has no place for it"));
        return;
    }
    if (places.size() > 1) {
        QStringList paths;
        std::transform(places.begin(), places.end(), std::back_inserter(paths),
                       [](const Place* place) { return pathOf(*place); });
        m_refuse(value, false, QStringLiteral("the name is ambiguous: %1").arg(paths.join(QLatin1String(", "))));
        return;
    }
    if (path.attribute.isEmpty() && !isValueType(places.front()->type)) {
        m_refuse(value, false, QStringLiteral("the element holds elements and no value"));
        return;
    }
    Way way;
    for (const Place* place = places.front(); place; place = place->parent) {
        way.insert(way.begin(), place);
    }
    put(value, way, indicesOf(path, way, value), path.attribute);
}

/// The index at each place of the way: as given, or the next one of what may repeat. A record has that of the
/// outermost.
std::vector<int> ValueTree::indicesOf(const ValuePath& path, const Way& way, int value)
{
    std::vector<int> indices(way.size(), 0);
    for (std::size_t i = 0; i < path.steps.size(); ++i) {
        indices[way.size() - path.steps.size() + i] = path.steps[i].index;
    }
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < way.size(); ++i) {
        if (indices[i] == 0 && way[i]->MayRepeat()) {
            open.push_back(i);
        }
    }
    const std::vector<int> given = indices;
    std::replace(indices.begin(), indices.end(), 0, 1);
    const int record = m_values[std::size_t(value)].record;
    const std::size_t ofRecords = record > 0 ? 1 : 0;
    if (record > 0 && !open.empty()) {
        indices[open.front()] = record;
    }
    if (open.size() > ofRecords) {
        int& last = m_lastIndices[{way.back(), path.attribute, given, record}];
        do {
            indices[open.back()] = ++last;
        } while (isTaken(way, indices, path.attribute));
    }
    return indices;
}

/// Whether a value has that place already.
bool ValueTree::isTaken(const Way& way, const std::vector<int>& indices, const QString& attribute) const
{
    const ValueBranch* branch = &m_root;
    for (std::size_t i = 1; i < way.size(); ++i) {
        const auto branches = branch->children.find(way[i]);
        if (branches == branch->children.end()) {
            return false;
        }
        const auto found = branches->second.find(indices[i]);
        if (found == branches->second.end()) {
            return false;
        }
        branch = &found->second;
    }
    return attribute.isEmpty() ? branch->text != ValueBranch::None
                               : branch->attributes.find(attribute) != branch->attributes.end();
}

void ValueTree::put(int value, const Way& way, const std::vector<int>& indices, const QString& attribute)
{
    for (std::size_t i = 0; i < way.size(); ++i) {
        if (indices[i] > 1 && !way[i]->MayRepeat()) {
            m_refuse(value, false, QStringLiteral("%1 may occur at most once").arg(pathOf(*way[i])));
            return;
        }
    }
    ValueBranch* branch = &m_root;
    for (std::size_t i = 1; i < way.size(); ++i) {
        branch = &branch->children[way[i]][indices[i]];
    }
    int& there
        = attribute.isEmpty() ? branch->text : branch->attributes.emplace(attribute, ValueBranch::None).first->second;
    GivenValue& given = m_values[std::size_t(value)];
    if (there == ValueBranch::None) {
        there = value;
    } else if (given.record != m_values[std::size_t(there)].record && given.record > 0
               && given.text == m_values[std::size_t(there)].text) {
        given.sameAs = there;
    } else {
        m_refuse(value, false, QStringLiteral("there is a value already, and it may occur at most once"));
    }
}

void ValueTree::Ask(const Source& source)
{
    ask(source, m_places.GetRoot(), m_root, stepTo(m_places.GetRoot(), 1));
}

/// Gives whether there is any value in the end.
bool ValueTree::ask(const Source& source, const Place& place, ValueBranch& branch, const QString& path)
{
    const auto given = [&](const QString& name) {
        const bool isAsked = int(m_values.size()) < limits().elements;
        const QVariant value = isAsked ? source(name) : QVariant();
        if (!value.isValid()) {
            return ValueBranch::None;
        }
        m_values.push_back({name, textOf(value), 0, -1});
        return int(m_values.size()) - 1;
    };
    if (branch.text == ValueBranch::None && isValueType(place.type)) {
        branch.text = given(path);
    }
    for (const QString& attribute : place.attributes) {
        const bool isThere = branch.attributes.find(attribute) != branch.attributes.end();
        const int value = isThere ? ValueBranch::None : given(path + QLatin1Char('@') + attribute);
        if (value != ValueBranch::None) {
            branch.attributes[attribute] = value;
        }
    }
    askChildren(source, place, branch, path);
    return !branch.IsEmpty();
}

void ValueTree::askChildren(const Source& source, const Place& place, ValueBranch& branch, const QString& path)
{
    for (const auto& child : place.children) {
        const auto there = branch.children.find(child.get());
        std::map<int, ValueBranch> branches
            = there == branch.children.end() ? std::map<int, ValueBranch>() : there->second;
        for (int index = 1; index <= child->greatest; ++index) {
            if (!ask(source, *child, branches[index], path + stepTo(*child, index))) {
                branches.erase(index);
                break;
            }
        }
        if (!branches.empty()) {
            branch.children[child.get()] = std::move(branches);
        }
    }
}

void ValueTree::KeepCounts()
{
    keepCounts(m_root);
}

void ValueTree::keepCounts(ValueBranch& branch)
{
    for (auto& [place, branches] : branch.children) {
        int count = 0;
        while (count < int(branches.size()) && branches.find(count + 1) != branches.end()) {
            ++count;
        }
        const int allowed = std::min(place->greatest, std::max(count, 1));
        const qint64 more = qint64(place->extent) * (std::max(allowed, place->laidOut) - place->laidOut);
        const bool isTooMuch = m_elements + more > limits().elements;
        const int kept = isTooMuch ? std::min(allowed, place->laidOut) : std::min(allowed, count);
        m_elements += isTooMuch ? 0 : more;
        for (auto one = branches.upper_bound(kept); one != branches.end(); one = branches.erase(one)) {
            const QString name = pathOf(*place);
            refuseAll(one->second,
                      one->first > count ? QStringLiteral("there is no %1[%2] before it").arg(name).arg(count + 1)
                          : isTooMuch    ? QStringLiteral("the report would have too many elements")
                                         : QStringLiteral("%1 may occur at most %2 times").arg(name).arg(allowed));
        }
        for (auto& one : branches) {
            keepCounts(one.second);
        }
    }
}

void ValueTree::refuseAll(const ValueBranch& branch, const QString& reason)
{
    if (branch.text != ValueBranch::None) {
        m_refuse(branch.text, false, reason);
    }
    for (const auto& attribute : branch.attributes) {
        m_refuse(attribute.second, false, reason);
    }
    for (const auto& child : branch.children) {
        for (const auto& one : child.second) {
            refuseAll(one.second, reason);
        }
    }
}
