#ifndef XMLHELPER_DOCBEGINEVENT_H
#define XMLHELPER_DOCBEGINEVENT_H

#include <xmlhelper/xmlevent.h>

/// A document begins: always the first event of a parse or a walk. It carries nothing.
class XMLHELPER_EXPORT DocBeginEvent : public XmlEvent
{
public:
    DocBeginEvent();
    /// Copies the kind.
    /// @param other  copied
    DocBeginEvent(const DocBeginEvent& other);
    /// Copies the kind.
    /// @param other  copied
    /// @return this object
    DocBeginEvent& operator=(const DocBeginEvent& other);
    ~DocBeginEvent() override;
};

#endif
