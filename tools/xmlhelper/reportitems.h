#ifndef XMLHELPER_REPORTITEMS_H
#define XMLHELPER_REPORTITEMS_H

#include <list>
#include <map>
#include <memory>
#include <vector>

#include <QHash>
#include <QString>

#include "constants.h"
#include "reportdata.h"

/// The items of a report button, in the order in which they were added and found by name without a scan.
///
/// An item is known by its index, a number that grows in this order and stays the item's as long as it is there.
class ReportItems
{
public:
    ReportItems();

    /// Appends @p item and owns it from then on.
    void Append(ReportData* item);

    /// Destroys the first item called @p name; does nothing when there is none.
    void DeleteFirst(const QString& name);

    /// Destroys all items.
    void Clear();

    /// The item with @p index, which must be one of those given below.
    const ReportData& At(int index) const;

    /// The first item of all; NO_INDEX when there is none.
    int First() const;

    /// The first item called @p name; NO_INDEX when there is none.
    int First(const QString& name) const;

    /// Whether the name of any item has a slash, as those have that name an element below its parent.
    bool HasQualifiedNames() const { return m_iQualifiedNames > 0; }

    /// All items before @p end in their order; NO_INDEX is behind all.
    std::vector<int> Before(int end) const;

    /// Those of the items before @p end that are called by one of @p names, in their order.
    std::vector<int> Before(int end, const std::vector<QString>& names) const;

private:
    Q_DISABLE_COPY(ReportItems)

    std::map<int, std::unique_ptr<const ReportData>> m_items;
    QHash<QString, std::list<int>> m_indices; ///< of the items of each name, in their order
    int m_iNextIndex;
    int m_iQualifiedNames;
};

#endif
