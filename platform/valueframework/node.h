#ifndef VALUEFRAMEWORK_NODE_H
#define VALUEFRAMEWORK_NODE_H

#include <list>
#include <valueframework/treeitem.h>

/// A branch of the value tree. It owns its items, keeps them in the order in which they were made and deletes them
/// with itself. Its text is empty.
class VALUEFRAMEWORK_EXPORT Node : public TreeItem
{
public:
    /// @param parent  the node to enter; null makes a free node, the top of its own items, which its creator deletes
    Node(const QString& name, Node* parent);
    ~Node() override;

    const std::list<TreeItem*>& GetTreeItems() const;

private:
    Q_DISABLE_COPY(Node)
    friend class TreeItem; // enters and leaves the list by itself

    std::list<TreeItem*> m_items; // owned
};

#endif
