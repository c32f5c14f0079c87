#include "nestingguard_p.h"

#include "limits_p.h"

QT_WARNING_DISABLE_DEPRECATED

NestingGuard::NestingGuard(QXmlContentHandler* handler)
    : m_pHandler(handler)
    , m_iNesting(0)
    , m_bExceeded(false)
{
}

bool NestingGuard::startDocument()
{
    m_iNesting = 0;
    m_bExceeded = false;
    return m_pHandler->startDocument();
}

bool NestingGuard::endDocument()
{
    return m_pHandler->endDocument();
}

bool NestingGuard::startElement(const QString& namespaceURI, const QString& localName, const QString& qName,
                                const QXmlAttributes& attributes)
{
    if (++m_iNesting > limits().elementNesting) {
        m_bExceeded = true;
        return false;
    }
    return m_pHandler->startElement(namespaceURI, localName, qName, attributes);
}

bool NestingGuard::endElement(const QString& namespaceURI, const QString& localName, const QString& qName)
{
    --m_iNesting;
    return m_pHandler->endElement(namespaceURI, localName, qName);
}

bool NestingGuard::characters(const QString& ch)
{
    return m_pHandler->characters(ch);
}
