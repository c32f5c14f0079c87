#ifndef XMLHELPER_ELEMENDEVENT_H
#define XMLHELPER_ELEMENDEVENT_H

#include <QString>

#include <xmlhelper/xmlevent.h>

/// An element has ended. Sent by the reader only.
class XMLHELPER_EXPORT ElemEndEvent : public XmlEvent
{
public:
    /// @param name  the element's qualified name
    explicit ElemEndEvent(const QString& name);
    /// Copies the kind and the name.
    /// @param other  copied
    ElemEndEvent(const ElemEndEvent& other);
    /// Copies the kind and the name.
    /// @param other  copied
    /// @return this object
    ElemEndEvent& operator=(const ElemEndEvent& other);
    ~ElemEndEvent() override;

    /// @return the element's qualified name
    QString GetElementName();

private:
    QString m_sName;
};

#endif
