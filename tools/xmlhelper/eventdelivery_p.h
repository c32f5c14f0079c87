#ifndef XMLHELPER_EVENTDELIVERY_P_H
#define XMLHELPER_EVENTDELIVERY_P_H

#include <memory>
#include <utility>

#include "ixmlhelper.h"
#include "xmlevent.h"

/// Makes an event on the heap, delivers it to the observer and deletes it as soon as the observer returns. The one way
/// in which every sender of the library reports, so that an observer may rely on it.
template <class Event, class... Arguments> void deliver(IXMLHelper* observer, Arguments&&... arguments)
{
    const std::unique_ptr<XmlEvent> event(new Event(std::forward<Arguments>(arguments)...));
    observer->XmlUpdate(event.get());
}

#endif
