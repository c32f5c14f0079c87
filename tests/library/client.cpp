// A client that uses the shared library, and succeeds when it could be loaded.
#include <xmlhelper/xmlevent.h>

int main()
{
    XmlEvent event;
    return event.GetType() == XmlEvent::EVENT_NONE ? 0 : 1;
}
