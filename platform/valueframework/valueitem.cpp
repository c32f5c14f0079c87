#include <valueframework/valuebase.h>
#include <valueframework/valueitem.h>

ValueItem::ValueItem(ValueBase* value, Node* parent)
    : TreeItem(QString(), parent)
    , m_pValue(value)
{
    if (m_pValue) {
        m_pValue->MoveTo(this);
    }
}

ValueItem::~ValueItem()
{
    delete m_pValue;
}

QString ValueItem::GetName() const
{
    return m_pValue ? m_pValue->GetName() : QString();
}

QString ValueItem::GetText() const
{
    return m_pValue ? m_pValue->GetText() : QString();
}

ValueBase* ValueItem::GetValueObject() const
{
    return m_pValue;
}
