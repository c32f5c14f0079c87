#ifndef XMLHELPER_REPORTITEMS_P_H
#define XMLHELPER_REPORTITEMS_P_H

#include <list>
#include <map>
#include <memory>
#include <vector>

#include <QHash>
#include <QString>

#include "constants_p.h"
#include "reportdata.h"

/// The items of a report button, in the order in which they were added and found by name without a scan.
///
/// An item is known by its index, a number that grows in this order and stays the item's as long as it is there.
/// Whoever reads an item keeps a share in it: reading a value may run anything, which may delete the item.
class ReportItems
{
public:
    using Item = std::shared_ptr<const ReportData>;

    ReportItems();

    /// The name of an item that fills an element only below a parent of that name.
    static QString QualifiedName(const QString& parent, const QString& name);

    /// Appends @p item.
    void Append(Item item);

    /// Takes out the first item called @p name; does nothing when there is none.
    void DeleteFirst(const QString& name);

    /// Takes out all items.
    void Clear();

    /// The item with @p index, which must be one of those given below; null for NO_INDEX.
    Item At(int index) const;

    /// The first item of all; NO_INDEX when there is none.
    int First() const;

    /// The first item called @p name; NO_INDEX when there is none.
    int First(const QString& name) const;

    /// Whether the name of any item has a slash, as those have that name an element below its parent.
    bool HasQualifiedNames() const { return m_iQualifiedNames > 0; }

    /// Those of the items before @p end that are called by one of @p names, in their order, and in front of, between
    /// and behind them up to @p others of the other items each. NO_INDEX is behind all.
    std::vector<Item> Before(int end, const std::vector<QString>& names, int others = 0) const;

private:
    Q_DISABLE_COPY(ReportItems)

    std::vector<int> indicesBefore(int end, const std::vector<QString>& names) const;

    std::map<int, Item> m_items;
    QHash<QString, std::list<int>> m_indices; ///< of the items of each name, in their order
    int m_iNextIndex;
    int m_iQualifiedNames;
};

#endif
