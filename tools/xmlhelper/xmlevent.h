#ifndef XMLHELPER_XMLEVENT_H
#define XMLHELPER_XMLEVENT_H

#include <xmlhelper/xmlhelperexport.h>

/// What travels through IXMLHelper::XmlUpdate(): the base of a small closed family.
///
/// Receivers switch on GetType() and cast down to the class that belongs to it. Every event is made on the heap by its
/// sender, delivered once and deleted by the sender through this base. Events have no setters.
///
/// Copying copies the kind and every member; assigning is meant between two events of one class.
class XMLHELPER_EXPORT XmlEvent
{
public:
    /// The kind of an event. Receivers compare with the numbers, so they never change.
    enum type : qint32 {
        EVENT_NONE = 0, ///< a plain XmlEvent
        EVENT_DOC_BEGIN = 1, ///< a DocBeginEvent
        EVENT_DOC_END = 2, ///< a DocEndEvent
        EVENT_ELEM_BEGIN = 3, ///< an ElemBeginEvent
        EVENT_ELEM_END = 4, ///< an ElemEndEvent
        EVENT_ERROR = 5 ///< an ErrorEvent
    };

    /// An event of no kind (EVENT_NONE).
    XmlEvent();
    /// Copies the kind.
    /// @param other  copied
    XmlEvent(const XmlEvent& other);
    /// Copies the kind.
    /// @param other  copied
    /// @return this object
    XmlEvent& operator=(const XmlEvent& other);
    virtual ~XmlEvent();

    /// @return the kind of this event
    type GetType();

protected:
    type m_eType; ///< set by the constructors of the concrete classes and by nothing else
};

#endif
