#include <valueframework/node.h>

Node::Node(const QString& name, Node* parent)
    : TreeItem(name, parent)
{
}

Node::~Node()
{
    while (!m_items.empty()) {
        TreeItem* item = m_items.front();
        m_items.pop_front();
        item->m_pParent = nullptr;
        delete item;
    }
}

const std::list<TreeItem*>& Node::GetTreeItems() const
{
    return m_items;
}
