#ifndef XMLHELPER_ELEMBEGINEVENT_H
#define XMLHELPER_ELEMBEGINEVENT_H

#include <QDomNode>
#include <QString>
#include <QXmlAttributes>

#include <xmlhelper/xmlevent.h>

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED // QXmlAttributes: Qt keeps it, with a warning, for as long as it has the SAX classes.

/// An element begins, or the report builder announces it to be filled.
///
/// All members are values. The node is a handle into the sender's document: a receiver that keeps a copy keeps the
/// node alive and sees later changes to it. The document of a reader stays until XMLReader::ReleaseContent(); that
/// of a report builder must not be reached through the node once the builder is gone.
class XMLHELPER_EXPORT ElemBeginEvent : public XmlEvent
{
public:
    /// @param node        the element in the sender's document; null when the sender has none
    /// @param name        the element's qualified name
    /// @param attributes  the element's attributes in the order in which the sender met them
    /// @param text        the element's text, for the senders that know it; an empty one is kept as not null
    ElemBeginEvent(const QDomNode& node, const QString& name, const QXmlAttributes& attributes, const QString& text);
    /// Copies the kind, the node handle, the name, the attributes and the text.
    /// @param other  copied
    ElemBeginEvent(const ElemBeginEvent& other);
    /// Copies the kind, the node handle, the name, the attributes and the text.
    /// @param other  copied
    /// @return this object
    ElemBeginEvent& operator=(const ElemBeginEvent& other);
    ~ElemBeginEvent() override;

    /// @return the element in the sender's document; a null node when there is none
    QDomNode GetElementNode();
    /// @return the element's qualified name
    QString GetElementName();
    /// @return the element's text; empty when the sender does not report it. Prefer reading the node.
    QString GetElementText();
    /// @return the element's attributes
    QXmlAttributes GetElementAttributes();

private:
    QDomNode m_node;
    QString m_sName;
    QXmlAttributes m_attributes;
    QString m_sText;
};

QT_WARNING_POP

#endif
