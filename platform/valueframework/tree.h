#ifndef VALUEFRAMEWORK_TREE_H
#define VALUEFRAMEWORK_TREE_H

#include <memory>
#include <valueframework/valueframeworkexport.h>

class Node;
class QString;
class TreeItem;
class ValueBase;

/// The application's value tree: a root node, and lookups by path from it. A path is the names below the root, joined
/// by "/", such as "Receiver/Frequency"; the name of the root is no part of it. An item without a name has no
/// path.
///
/// The application makes the tree and deletes it, with everything in it. The living tree is the instance. While
/// several live, the one made last is the instance, and the one before it takes its place again when it is deleted;
/// so a test can put a tree of its own in front of another for a while.
class VALUEFRAMEWORK_EXPORT Tree
{
public:
    Tree();
    ~Tree();

    /// Null when there is no tree.
    static Tree* Instance();

    /// Owned by the tree.
    Node* GetRoot() const;

    /// The first value at the path, in the order of the items; null when there is none.
    ValueBase* GetValue(const QString& path) const;

    /// The first item at the path, a node or a value item; null when there is none.
    TreeItem* GetTreeItem(const QString& path) const;

private:
    Q_DISABLE_COPY(Tree)

    std::unique_ptr<Node> m_pRoot;
    Tree* m_pEarlier; // the tree whose place this one took, or null; not owned

    static Tree* s_pLatest;
};

#endif
