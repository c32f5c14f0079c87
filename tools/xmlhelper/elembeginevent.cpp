#include "elembeginevent.h"

QT_WARNING_DISABLE_DEPRECATED

ElemBeginEvent::ElemBeginEvent(const QDomNode& node, const QString& name, const QXmlAttributes& attributes,
                               const QString& text)
    : m_node(node)
    , m_sName(name)
    , m_attributes(attributes)
    , m_sText(text.isNull() ? QLatin1String("") : text)
{
    m_eType = EVENT_ELEM_BEGIN;
}

ElemBeginEvent::ElemBeginEvent(const ElemBeginEvent& other) = default;
ElemBeginEvent& ElemBeginEvent::operator=(const ElemBeginEvent& other) = default;
ElemBeginEvent::~ElemBeginEvent() = default;

QDomNode ElemBeginEvent::GetElementNode()
{
    return m_node;
}

QString ElemBeginEvent::GetElementName()
{
    return m_sName;
}

QString ElemBeginEvent::GetElementText()
{
    return m_sText;
}

QXmlAttributes ElemBeginEvent::GetElementAttributes()
{
    return m_attributes;
}
