#include "docbeginevent.h"

DocBeginEvent::DocBeginEvent()
{
    m_eType = EVENT_DOC_BEGIN;
}

DocBeginEvent::DocBeginEvent(const DocBeginEvent& other) = default;
DocBeginEvent& DocBeginEvent::operator=(const DocBeginEvent& other) = default;
DocBeginEvent::~DocBeginEvent() = default;
