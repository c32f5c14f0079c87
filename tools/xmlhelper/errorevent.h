#ifndef XMLHELPER_ERROREVENT_H
#define XMLHELPER_ERROREVENT_H

#include <xmlhelper/ixmlhelper.h>
#include <xmlhelper/xmlevent.h>

/// Something was refused or failed. Carries a number only; the wording lives with the receiver.
class XMLHELPER_EXPORT ErrorEvent : public XmlEvent
{
public:
    /// @param id  what went wrong
    explicit ErrorEvent(IXMLHelper::ErrorID id);
    /// Copies the kind and the identifier.
    /// @param other  copied
    ErrorEvent(const ErrorEvent& other);
    /// Copies the kind and the identifier.
    /// @param other  copied
    /// @return this object
    ErrorEvent& operator=(const ErrorEvent& other);
    ~ErrorEvent() override;

    /// @return what went wrong
    IXMLHelper::ErrorID GetErrorID();

private:
    IXMLHelper::ErrorID m_eErrorID;
};

#endif
