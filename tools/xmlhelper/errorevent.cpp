#include "errorevent.h"

ErrorEvent::ErrorEvent(IXMLHelper::ErrorID id)
    : m_eErrorID(id)
{
    m_eType = EVENT_ERROR;
}

ErrorEvent::ErrorEvent(const ErrorEvent& other) = default;
ErrorEvent& ErrorEvent::operator=(const ErrorEvent& other) = default;
ErrorEvent::~ErrorEvent() = default;

IXMLHelper::ErrorID ErrorEvent::GetErrorID()
{
    return m_eErrorID;
}
