#include "docendevent.h"

DocEndEvent::DocEndEvent()
{
    m_eType = EVENT_DOC_END;
}

DocEndEvent::DocEndEvent(const DocEndEvent& other) = default;
DocEndEvent& DocEndEvent::operator=(const DocEndEvent& other) = default;
DocEndEvent::~DocEndEvent() = default;
