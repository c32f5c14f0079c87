#ifndef XMLHELPER_IXMLHELPER_H
#define XMLHELPER_IXMLHELPER_H

#include <xmlhelper/xmlhelperexport.h>

class XmlEvent;

/// The observer to which every component of the library reports.
///
/// A client implements XmlUpdate() and hands a pointer to its observer to the component that it uses (XMLReader,
/// XmlCreateReport). The library never owns an observer and never deletes one, which is why the class has no virtual
/// destructor: the observer must outlive every component that was given the pointer. A class that implements it is
/// final, or has a virtual destructor of its own.
///
/// Everything happens on the thread of the component, as plain synchronous calls without any lock. An observer that
/// serves components of several threads has to protect itself.
class XMLHELPER_EXPORT IXMLHelper
{
public:
    /// What went wrong, as carried by an ErrorEvent. Receivers branch on the numbers, so they never change.
    /// 0 to 6 are kept free and never raised.
    enum ErrorID : qint32 {
        GENERAL_ERROR = -1, ///< a looked-up item does not exist, or a removal failed
        NO_CURRENT_ELEMENT = 7, ///< there is no element to put a value, an attribute or a text into
        CURRENT_TYPE_IS_UNKNOWN = 8, ///< the element carries no simple type
        CURRENT_TYPE_IS_NOT_STRING = 9, ///< a text was given for something that is not a string
        CURRENT_TYPE_IS_NOT_DOUBLE = 10, ///< a floating-point value was given for something that takes none
        CURRENT_TYPE_IS_NOT_INTEGER = 11, ///< an integer was given for something that takes none
        CURRENT_TYPE_IS_NOT_DATETIME = 12, ///< a date and time was given for something that takes none
        CURRENT_TYPE_IS_NOT_TIME = 13, ///< a time was given for something that takes none
        CURRENT_TYPE_IS_NOT_BOOLEAN = 14, ///< a truth value was given for something that takes none
        VALUE_IS_NOT_VALID
        = 15, ///< right kind, but outside the range or enumeration; or a name without occurrence limits
        MAX_OCCURS_EXCEEDED = 16 ///< an element would occur too often, or a mandatory one was left unfilled
    };

    /// Has nothing to make.
    IXMLHelper() = default;
    /// Has nothing to copy.
    /// @param other  left alone
    IXMLHelper(const IXMLHelper& other) = default;
    /// Has nothing to move.
    /// @param other  left alone
    IXMLHelper(IXMLHelper&& other) = default;
    /// Has nothing to copy.
    /// @param other  left alone
    /// @return this object
    IXMLHelper& operator=(const IXMLHelper& other) = default;
    /// Has nothing to move.
    /// @param other  left alone
    /// @return this object
    IXMLHelper& operator=(IXMLHelper&& other) = default;

    /// Receives one event.
    ///
    /// The sender owns @p event and deletes it as soon as the call returns: keep neither the pointer nor a reference
    /// obtained through it; the getters of the events return copies, which may be kept. The receiver learns the kind by
    /// XmlEvent::GetType() and casts down accordingly.
    ///
    /// The receiver may call back into the sender. Errors that this causes arrive nested, before the outer call has
    /// returned. An error event does not stop the sender: it abandons the one operation that failed.
    ///
    /// @param event  the event, never null; the sender's
    virtual void XmlUpdate(XmlEvent* event) = 0;

protected:
    /// Nobody deletes an observer by this class.
    ~IXMLHelper() = default;
};

static_assert(sizeof(IXMLHelper::ErrorID) == 4, "Error identifiers are 32-bit numbers to receivers.");

#endif
