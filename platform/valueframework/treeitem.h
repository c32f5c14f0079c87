#ifndef VALUEFRAMEWORK_TREEITEM_H
#define VALUEFRAMEWORK_TREEITEM_H

#include <QString>
#include <valueframework/valueframeworkexport.h>

class Node;

/// An entry of the value tree: a Node, which holds further items, or a ValueItem, which holds a value.
///
/// An item enlists itself as the last one of its parent and is owned by it. It may be deleted before its parent; it
/// then leaves the parent's list.
class VALUEFRAMEWORK_EXPORT TreeItem
{
public:
    /// @param parent  the node to enter; null makes a free item, which its creator deletes
    explicit TreeItem(const QString& name = QString(), Node* parent = nullptr);
    virtual ~TreeItem();

    virtual QString GetName() const;

    /// The text to show for the item: empty, unless it holds a value.
    virtual QString GetText() const;

    /// Null for a free item and for the root of a tree.
    Node* GetParent() const;

private:
    Q_DISABLE_COPY(TreeItem)
    friend class Node; // cuts its items off before it deletes them

    QString m_sName;
    Node* m_pParent;
};

#endif
