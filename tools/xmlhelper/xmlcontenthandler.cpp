#include "xmlcontenthandler.h"

#include "constants_p.h"
#include "docbeginevent.h"
#include "docendevent.h"
#include "elembeginevent.h"
#include "elemendevent.h"
#include "eventdelivery_p.h"
#include "tracing_p.h"

QT_WARNING_DISABLE_DEPRECATED

XmlContentHandler::XmlContentHandler(IXMLHelper* pCallback, QDomDocument* document)
    : m_bElementPending(false)
    , m_sElementName(QLatin1String(""))
    , m_pCallback(pCallback)
    , m_bFirstElement(false)
    , m_pDocument(document)
    , m_bClimbed(false)
{
    checkObserver(pCallback, "XmlContentHandler", "xmlcontenthandler", 19);
}

XmlContentHandler::~XmlContentHandler() = default;

QDomElement XmlContentHandler::GetCurrentElement() const
{
    return m_currentElement;
}

bool XmlContentHandler::startDocument()
{
    m_bElementPending = false;
    m_sElementName = QLatin1String("");
    m_bClimbed = false;
    if (m_pDocument) {
        m_bFirstElement = true;
        m_cursorNode = QDomNode();
        m_currentElement = m_pDocument->createElement(PlaceholderName);
    }
    deliver<DocBeginEvent>(m_pCallback);
    return true;
}

bool XmlContentHandler::endDocument()
{
    m_bFirstElement = false;
    deliver<DocEndEvent>(m_pCallback);
    return true;
}

bool XmlContentHandler::startElement(const QString&, const QString&, const QString& qName,
                                     const QXmlAttributes& attributes)
{
    m_sElementName = qName;
    m_attributes = attributes;
    m_bElementPending = true;
    if (m_pDocument) {
        moveToStartedElement();
        announceElement(QLatin1String(""));
    }
    return true;
}

bool XmlContentHandler::endElement(const QString&, const QString&, const QString& qName)
{
    // The end of the element that started last does not move, so that the next start tag goes to its sibling.
    if (m_pDocument && qName != m_sElementName) {
        m_currentElement = m_currentElement.parentNode().toElement();
        m_bClimbed = true;
    }
    deliver<ElemEndEvent>(m_pCallback, qName);
    return true;
}

bool XmlContentHandler::characters(const QString& ch)
{
    if (m_bElementPending && !m_pDocument) {
        announceElement(ch);
    }
    m_bElementPending = false;
    return true;
}

void XmlContentHandler::moveToStartedElement()
{
    if (m_bFirstElement) {
        m_bFirstElement = false;
        m_currentElement = m_pDocument->documentElement();
        return;
    }
    if (isToDescend()) {
        m_cursorNode = m_currentElement.firstChild();
    } else {
        m_cursorNode = m_currentElement.nextSibling();
        m_bClimbed = false;
    }
    if (m_cursorNode.isElement()) {
        m_currentElement = m_cursorNode.toElement();
    }
}

bool XmlContentHandler::isToDescend() const
{
    // Texts, CDATA sections and comments have DOM names that begin with "#".
    return !m_currentElement.isNull() && m_currentElement.hasChildNodes()
        && !m_currentElement.firstChild().nodeName().contains(QLatin1Char('#')) && !m_bClimbed;
}

void XmlContentHandler::announceElement(const QString& text)
{
    deliver<ElemBeginEvent>(m_pCallback, m_currentElement, m_sElementName, m_attributes, text);
}
