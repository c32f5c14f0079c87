#include "xmlwriter.h"

#include <QDomDocument>
#include <QFile>

#include <valueframework/node.h>
#include <valueframework/treeitem.h>
#include <valueframework/valuebase.h>
#include <valueframework/valueitem.h>

#include "documentfile_p.h"
#include "domextent_p.h"
#include "limits_p.h"
#include "tracing_p.h"
#include "xmltext_p.h"

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
    // What stands for a name is checked there, but not every character, and what came before an error stays.
    const QString root = isRepresentableText(rootName) ? rootName : QString();
    const bool isParsed = m_pDocument->setContent(QStringLiteral("<?xml version = '1.0' encoding = 'UTF-8'?><") + root
                                                  + QStringLiteral("/>"));
    if (!isParsed || !isName(m_pDocument->documentElement().tagName())) {
        m_pDocument->removeChild(m_pDocument->documentElement());
    }
    *m_pCurrentElement = m_pDocument->documentElement();
    return true;
}

bool XMLWriter::CreateXmlElement(const QString& name, const QString& text, bool enter)
{
    if (m_pCurrentElement->lastChild().isText() || !m_pDocument || !isPlaceForElement()
        || !isRepresentableName(name, "XMLWriter::CreateXmlElement")) {
        return false;
    }
    QDomElement element = m_pDocument->createElement(name);
    m_pCurrentElement->appendChild(element);
    const QString writtenText = representableText(text, "XMLWriter::CreateXmlElement");
    if (!writtenText.isEmpty()) {
        element.appendChild(m_pDocument->createTextNode(writtenText));
    }
    if (enter) {
        *m_pCurrentElement = m_pCurrentElement->lastChild().toElement();
    }
    return true;
}

bool XMLWriter::SetXmlAttribute(const QString& name, const QString& value)
{
    if (m_pCurrentElement->isNull() || !isRepresentableName(name, "XMLWriter::SetXmlAttribute")) {
        return false;
    }
    m_pCurrentElement->setAttribute(name, representableText(value, "XMLWriter::SetXmlAttribute"));
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
    if (!node || !CreateXmlElement(node->GetName(), QString(), true)) {
        return false;
    }
    bool isComplete = true;
    for (TreeItem* const item : node->GetTreeItems()) {
        if (const auto* const valueItem = dynamic_cast<const ValueItem*>(item)) {
            const ValueBase* const value = valueItem->GetValueObject();
            isComplete = (!value || CreateXmlElement(value->GetName(), value->GetText(), false)) && isComplete;
        } else if (auto* const nodeBelow = dynamic_cast<Node*>(item)) {
            isComplete = CreateElementsFromNode(nodeBelow) && isComplete;
        }
    }
    GoToXmlParent();
    return isComplete;
}

/// Whether the current element is not nested too deep to have a child. Traces when it is.
bool XMLWriter::isPlaceForElement() const
{
    const bool isPlace = levelOf(*m_pCurrentElement) < limits().elementNesting;
    if (!isPlace) {
        trace(QStringLiteral("XMLWriter: Elements nested deeper than %1 are refused!").arg(limits().elementNesting),
              "xmlwriter", __LINE__);
    }
    return isPlace;
}
