#ifndef XMLHELPER_DOCENDEVENT_H
#define XMLHELPER_DOCENDEVENT_H

#include <xmlhelper/xmlevent.h>

/// A document has ended: the last event of a parse that succeeded, or of a walk. It carries nothing.
class XMLHELPER_EXPORT DocEndEvent : public XmlEvent
{
public:
    DocEndEvent();
    /// Copies the kind.
    /// @param other  copied
    DocEndEvent(const DocEndEvent& other);
    /// Copies the kind.
    /// @param other  copied
    /// @return this object
    DocEndEvent& operator=(const DocEndEvent& other);
    ~DocEndEvent() override;
};

#endif
