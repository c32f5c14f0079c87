#ifndef XMLHELPERREPORTS_VALUETREE_P_H
#define XMLHELPERREPORTS_VALUETREE_P_H

#include <functional>
#include <map>
#include <tuple>
#include <vector>

#include <QString>
#include <QVariant>

#include "givenvalues_p.h"
#include "skeletonplaces_p.h"

/// The values of one element and of all below it, as indices of the values that were given.
struct ValueBranch
{
    static constexpr int None = -1;

    int text = None;
    std::map<QString, int> attributes;
    std::map<const Place*, std::map<int, ValueBranch>> children; ///< by place and index

    bool IsEmpty() const { return text == None && attributes.empty() && children.empty(); }
};

/// Lays values out over the places of a skeleton: which belongs where, how often what repeats.
class ValueTree
{
public:
    /// Says what speaks against the value of that index.
    using Refuse = std::function<void(int value, bool isUnknown, const QString& reason)>;
    using Source = std::function<QVariant(const QString& path)>;

    /// @param values  get those of a source appended
    ValueTree(const SkeletonPlaces& places, std::vector<GivenValue>& values, Refuse refuse);

    /// Gives each value its place.
    void Assign();
    /// Asks for values that are not there.
    void Ask(const Source& source);
    /// Takes away what stands behind a gap, and what the schema does not let occur so often.
    void KeepCounts();

    const ValueBranch& GetRoot() const { return m_root; }

private:
    using Way = std::vector<const Place*>;

    void assign(int value);
    std::vector<int> indicesOf(const ValuePath& path, const Way& way, int value);
    bool isTaken(const Way& way, const std::vector<int>& indices, const QString& attribute) const;
    void put(int value, const Way& way, const std::vector<int>& indices, const QString& attribute);
    bool ask(const Source& source, const Place& place, ValueBranch& branch, const QString& path);
    void askChildren(const Source& source, const Place& place, ValueBranch& branch, const QString& path);
    void keepCounts(ValueBranch& branch);
    void refuseAll(const ValueBranch& branch, const QString& reason);

    const SkeletonPlaces& m_places;
    std::vector<GivenValue>& m_values;
    const Refuse m_refuse;
    ValueBranch m_root;
    std::map<std::tuple<const Place*, QString, std::vector<int>, int>, int> m_lastIndices; ///< within a record
    qint64 m_elements; ///< of the report
};

/// A part of a path, with the index of what may repeat.
QString stepTo(const Place& place, int index);

/// The path of a place, without indices.
QString pathOf(const Place& place);

#endif
