#include "elemendevent.h"

ElemEndEvent::ElemEndEvent(const QString& name)
    : m_sName(name)
{
    m_eType = EVENT_ELEM_END;
}

ElemEndEvent::ElemEndEvent(const ElemEndEvent& other) = default;
ElemEndEvent& ElemEndEvent::operator=(const ElemEndEvent& other) = default;
ElemEndEvent::~ElemEndEvent() = default;

QString ElemEndEvent::GetElementName()
{
    return m_sName;
}
