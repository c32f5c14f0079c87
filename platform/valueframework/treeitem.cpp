#include <valueframework/node.h>
#include <valueframework/treeitem.h>

TreeItem::TreeItem(const QString& name, Node* parent)
    : m_sName(name)
    , m_pParent(parent)
{
    if (m_pParent) {
        m_pParent->m_items.push_back(this);
    }
}

TreeItem::~TreeItem()
{
    if (m_pParent) {
        m_pParent->m_items.remove(this);
    }
}

QString TreeItem::GetName() const
{
    return m_sName;
}

QString TreeItem::GetText() const
{
    return {};
}

Node* TreeItem::GetParent() const
{
    return m_pParent;
}
