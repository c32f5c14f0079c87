#ifndef VALUEFRAMEWORK_VALUEITEM_H
#define VALUEFRAMEWORK_VALUEITEM_H

#include <valueframework/treeitem.h>

class ValueBase;

/// A leaf of the value tree: gives a value its place. Name and text are those of the value, empty without one.
class VALUEFRAMEWORK_EXPORT ValueItem : public TreeItem
{
public:
    /// @param value   owned by the item from here on, and by one item only: an item that had it is left empty; may be
    ///                null
    /// @param parent  the node to enter; null makes a free item, which its creator deletes
    ValueItem(ValueBase* value, Node* parent);
    ~ValueItem() override;

    QString GetName() const override;
    QString GetText() const override;

    /// Null when the item was made without a value, or the value has been deleted or taken over.
    ValueBase* GetValueObject() const;

private:
    Q_DISABLE_COPY(ValueItem)
    friend class ValueBase; // takes itself out when it is deleted before its item

    ValueBase* m_pValue; // owned
};

#endif
