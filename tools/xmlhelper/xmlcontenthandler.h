#ifndef XMLHELPER_XMLCONTENTHANDLER_H
#define XMLHELPER_XMLCONTENTHANDLER_H

#include <QDomDocument>
#include <QDomElement>
#include <QString>
#include <QXmlAttributes>
#include <QXmlDefaultHandler>

class IXMLHelper;

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED // The SAX classes: Qt keeps them, with a warning.

/// Turns the callbacks of Qt's SAX parser into the library's events and pairs every start tag with the element of a
/// DOM document that holds the same content.
///
/// XMLReader makes the handler, gives it to its parser and keeps it for all its parses. The parser calls the five
/// SAX operations below; the handler moves a cursor through the DOM in step with them and delivers one event each
/// to the observer. The observer and the document belong to others and must outlive the handler.
///
/// The walk is a simple one: it descends only into elements whose first child is no text, CDATA section or comment,
/// and it climbs only when an end tag differs from the start tag before it. Text before a child and nested elements
/// of equal name therefore lead it astray; receivers know these limits.
///
/// Without a document an element is announced by the first character data after its start tag, with that text and a
/// null node. A handler made with a null observer traces it and must not be used.
class XmlContentHandler : public QXmlDefaultHandler
{
public:
    /// @param pCallback  the observer, not owned
    /// @param document   the DOM form of the content to come, not owned; null for content without one. The handler
    ///                   stays with this document for good.
    XmlContentHandler(IXMLHelper* pCallback, QDomDocument* document);
    ~XmlContentHandler() override;

    /// The element of the latest begin event; the placeholder "dummy" between the start of a document and its first
    /// start tag; null without a document.
    QDomElement GetCurrentElement() const;

    // All of them return true: the handler never stops a parse.
    bool startDocument() override;
    bool endDocument() override;
    bool startElement(const QString& namespaceURI, const QString& localName, const QString& qName,
                      const QXmlAttributes& attributes) override;
    bool endElement(const QString& namespaceURI, const QString& localName, const QString& qName) override;
    bool characters(const QString& ch) override;

private:
    Q_DISABLE_COPY(XmlContentHandler)

    void moveToStartedElement();
    bool isToDescend() const;
    void announceElement(const QString& text);

    bool m_bElementPending; ///< a start tag waits for its character data; matters only without a document
    QXmlAttributes m_attributes;
    QString m_sElementName; ///< the most recently started element
    IXMLHelper* m_pCallback;
    bool m_bFirstElement; ///< the document has begun, its first start tag has not come yet
    QDomDocument* m_pDocument;
    QDomNode m_cursorNode; ///< where the last move led, element or not
    QDomElement m_currentElement; ///< the element that belongs to the tag being reported
    bool m_bClimbed; ///< the last end tag climbed: the next start tag goes to a sibling, not to a child
};

QT_WARNING_POP

#endif
