#include <valueframework/node.h>
#include <valueframework/valuebase.h>
#include <valueframework/valueitem.h>

ValueBase::ValueBase(const QString& name)
    : m_sName(name)
{
}

ValueBase::~ValueBase()
{
    LeaveItem();
}

QString ValueBase::GetName() const
{
    return m_sName;
}

QString ValueBase::GetPathName() const
{
    QString path = m_sName;
    const Node* node = m_pItem ? m_pItem->GetParent() : nullptr;
    while (node && node->GetParent()) {
        path.prepend(node->GetName() + QLatin1Char('/'));
        node = node->GetParent();
    }
    return path;
}

void ValueBase::MoveTo(ValueItem* item)
{
    LeaveItem();
    m_pItem = item;
}

void ValueBase::LeaveItem()
{
    if (m_pItem) {
        m_pItem->m_pValue = nullptr;
        m_pItem = nullptr;
    }
}
