#ifndef XMLHELPER_TREESNAPSHOT_P_H
#define XMLHELPER_TREESNAPSHOT_P_H

#include <QHash>

class Node;
class Tree;
class TreeItem;
class ValueBase;

/// Finds out whether the value tree still holds an object, wherever it stands now. The object itself is not touched.
///
/// Each question walks through the whole tree; but while a snapshot lives, the questions of its thread share what one
/// walk has found. Nothing tells of changes of the tree: the road to what was found is looked at before it counts, and
/// the tree is walked through again when it leads there no more. What was not found at the latest walk counts as gone,
/// so a snapshot should live no longer than one report is filled. They may be nested; the innermost is used.
class TreeSnapshot
{
public:
    TreeSnapshot();
    ~TreeSnapshot();

    /// Whether @p tree holds @p value, which may have been deleted.
    static bool Holds(const Tree& tree, const ValueBase* value);
    /// Whether @p tree holds @p item, which may have been deleted.
    static bool Holds(const Tree& tree, const TreeItem* item);

private:
    Q_DISABLE_COPY(TreeSnapshot)

    template <class Object> static bool ask(const Tree& tree, const Object* object);
    template <class Object> bool holds(const Tree& tree, const Object* object);
    void walk(const Tree& tree);
    const TreeItem* itemOf(const TreeItem* item) const { return item; }
    const TreeItem* itemOf(const ValueBase* value) const { return m_items.value(value); }
    const TreeItem* itemStillThere(const Node* root, const TreeItem* item) const;

    const Tree* m_pTree; ///< the tree that was walked through; null before the first walk
    // What was found. It may have been deleted since: no pointer is followed before it has been met on the road again.
    QHash<const TreeItem*, const TreeItem*> m_parents; ///< up to the root, which has none
    QHash<const ValueBase*, const TreeItem*> m_items; ///< the items of the values
    TreeSnapshot* const m_pOuter;
};

#endif
