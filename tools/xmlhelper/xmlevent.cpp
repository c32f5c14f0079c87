#include "xmlevent.h"

XmlEvent::XmlEvent()
    : m_eType(EVENT_NONE)
{
}

XmlEvent::XmlEvent(const XmlEvent& other) = default;
XmlEvent& XmlEvent::operator=(const XmlEvent& other) = default;
XmlEvent::~XmlEvent() = default;

XmlEvent::type XmlEvent::GetType()
{
    return m_eType;
}
