#include "xmlwriter.h"

#include <QDomDocument>
#include <QFile>

#include <valueframework/node.h>
#include <valueframework/treeitem.h>
#include <valueframework/valuebase.h>
#include <valueframework/valueitem.h>

#include "documentfile.h"

XMLWriter::XMLWriter()
    : m_pFile(nullptr)
    , m_pDocument(nullptr)
    , m_pCurrentElement(new QDomElement)
    , m_pSpareElement(new QDomElement)
{
}

XMLWriter::XMLWriter(const XMLWriter& other) = default;
XMLWriter& XMLWriter::operator=(const XMLWriter& other) = default;

XMLWriter::~XMLWriter()
{
    delete m_pFile;
    delete m_pSpareElement;
    delete m_pCurrentElement;
    delete m_pDocument;
}

bool XMLWriter::CreateXmlFile(const QString& fileName, const QString& rootName)
{
    if (!m_pFile) {
        m_pFile = new QFile(fileName);
    }
    if (m_pDocument) {
        return false;
    }
    m_pDocument = new QDomDocument;
    m_pDocument->setContent(QStringLiteral("<?xml version = '1.0' encoding = 'UTF-8'?><") + rootName
                            + QStringLiteral("/>"));
    *m_pCurrentElement = m_pDocument->documentElement();
    return true;
}

bool XMLWriter::CreateXmlElement(const QString& name, const QString& text, bool enter)
{
    if (m_pCurrentElement->lastChild().isText() || !m_pDocument) {
        return false;
    }
    QDomElement element = m_pDocument->createElement(name);
    m_pCurrentElement->appendChild(element);
    if (!text.isEmpty()) {
        element.appendChild(m_pDocument->createTextNode(text));
    }
    if (enter) {
        *m_pCurrentElement = m_pCurrentElement->lastChild().toElement();
    }
    return true;
}

bool XMLWriter::SetXmlAttribute(const QString& name, const QString& value)
{
    if (m_pCurrentElement->isNull()) {
        return false;
    }
    m_pCurrentElement->setAttribute(name, value);
    return true;
}

bool XMLWriter::GoToXmlParent()
{
    if (!m_pDocument || *m_pCurrentElement == m_pDocument->documentElement() || !m_pCurrentElement->isElement()) {
        return false;
    }
    *m_pCurrentElement = m_pCurrentElement->parentNode().toElement();
    return true;
}

bool XMLWriter::SaveXmlFile()
{
    if (!m_pFile || !m_pDocument) {
        return false;
    }
    saveDocument(*m_pDocument, m_pFile->fileName());
    return true;
}

bool XMLWriter::CreateElementsFromNode(Node* node)
{
    if (!node || !m_pDocument) {
        return false;
    }
    CreateXmlElement(node->GetName(), QString(), true);
    for (TreeItem* const item : node->GetTreeItems()) {
        const auto* const valueItem = dynamic_cast<const ValueItem*>(item);
        if (!valueItem) {
            CreateElementsFromNode(dynamic_cast<Node*>(item));
        } else if (const ValueBase* const value = valueItem->GetValueObject()) {
            CreateXmlElement(value->GetName(), value->GetText(), false);
        }
    }
    GoToXmlParent();
    return true;
}
