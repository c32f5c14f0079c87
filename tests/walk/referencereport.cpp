#include "referencereport.h"

#include <QXmlAttributes>
#include <QXmlSimpleReader>

#include <xmlhelper/docbeginevent.h>
#include <xmlhelper/docendevent.h>
#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/errorevent.h>
#include <xmlhelper/xmlschemahandler.h>

QT_WARNING_DISABLE_DEPRECATED

namespace {

const QString Type = QStringLiteral("type");
const QString Default = QStringLiteral("default");

bool isValueElement(const QDomElement& element)
{
    return !element.attribute(Type).isEmpty();
}

} // namespace

ReferenceReport::ReferenceReport(IXMLHelper* observer)
    : m_pObserver(observer)
    , m_pDocument(nullptr)
    , m_bResume(false)
    , m_bRevisit(false)
    , m_iDiscarded(0)
{
}

ReferenceReport::~ReferenceReport() = default;

void ReferenceReport::Create(const QString& schemaPath)
{
    m_pHandler = std::make_unique<XmlSchemaHandler>(m_pObserver, schemaPath);
    QXmlSimpleReader parser;
    m_pHandler->ReadFile(schemaPath, parser);
    m_pDocument = m_pHandler->GetDocument();
    UnresolvedTypeMap references;
    TypeDefinitionMap definitions;
    m_pHandler->HandOver(references, m_occurs, definitions, m_choices);
    if (!m_pDocument->documentElement().isNull()) {
        walk();
    }
}

void ReferenceReport::SetXmlValue(const QString& value)
{
    const QString type = m_current.attribute(Type);
    if (type.isEmpty()) {
        send(IXMLHelper::CURRENT_TYPE_IS_UNKNOWN);
    }
    if (!type.contains(QLatin1String("string")) && !type.contains(QLatin1String("short"))
        && !type.contains(QLatin1String("long"))) {
        send(IXMLHelper::CURRENT_TYPE_IS_NOT_STRING);
        return;
    }
    m_current.removeAttribute(Type);
    const QDomNode first = m_current.firstChild();
    if (first.isText()) {
        m_current.removeChild(first);
    }
    m_current.appendChild(m_pDocument->createTextNode(value));
    continueAt(m_current, false);
}

void ReferenceReport::SetElementMaxOccurs(const QString& name, int count)
{
    if (name == m_sLastMultiplied) {
        return;
    }
    m_sLastMultiplied = name;
    if (!isCountAllowed(name, m_current.tagName(), count, m_current)) {
        send(IXMLHelper::MAX_OCCURS_EXCEEDED);
        return;
    }
    QDomElement parent = m_current.parentNode().toElement();
    for (int copy = 1; copy < count && !parent.isNull(); ++copy) {
        parent.insertAfter(m_current.cloneNode(true), m_current);
    }
    continueAt(m_current, true);
}

void ReferenceReport::DiscardChoiceItem()
{
    const QDomElement discarded = m_current;
    const QString tag = discarded.tagName();
    constexpr int none = -100;
    int index = none;
    for (const auto& [number, name] : m_choices) {
        if (!tag.isEmpty() && name == tag) {
            index = number;
        }
    }
    if (index == none || (index % 100 <= m_iDiscarded && m_choices.count(index + 1) == 0)) {
        send(IXMLHelper::GENERAL_ERROR);
        return;
    }
    const QDomElement follower = discarded.nextSibling().toElement();
    const QDomNode removed = remove(discarded);
    continueAt(follower, false);
    if (removed.isNull()) {
        send(IXMLHelper::GENERAL_ERROR);
    } else {
        ++m_iDiscarded;
    }
}

void ReferenceReport::walk()
{
    DocBeginEvent begin;
    m_pObserver->XmlUpdate(&begin);
    const QDomElement root = m_pDocument->documentElement();
    m_current = root;
    announce(root, QString());
    QString text;
    QDomNode node = root.firstChild();
    while (!node.isNull()) {
        m_current = node.toElement();
        if (node.firstChild().isText()) {
            text = node.firstChild().toText().data();
        }
        announce(node, text);
        if (m_bResume) {
            m_bResume = false;
            node = m_bRevisit ? m_resume : m_resume.nextSibling();
        } else if (checkCurrentElement()) {
            node = m_resume;
        } else {
            walkChildren(node);
            node = node.nextSibling();
        }
    }
    DocEndEvent end;
    m_pObserver->XmlUpdate(&end);
}

void ReferenceReport::walkChildren(const QDomNode& parent)
{
    QString text;
    QDomNode node = parent.firstChild();
    while (!node.isNull() && !node.isText()) {
        m_current = node.toElement();
        takeText(node, text);
        announce(node, text);
        if (m_bResume) {
            m_bResume = false;
            m_probation = QDomElement();
            node = m_bRevisit ? m_resume : m_resume.nextSibling();
        } else if (!checkCurrentElement()) {
            m_resume = node;
            walkChildren(node);
            node = node.nextSibling();
        } else {
            node = m_resume;
            if (!m_probation.isNull()) {
                walkChildren(node);
                node = node.nextSibling();
            }
        }
    }
}

void ReferenceReport::takeText(const QDomNode& node, QString& text)
{
    if (node.firstChild().isText()) {
        text = node.firstChild().toText().data();
        return;
    }
    const QString defaultText = m_current.attribute(Default);
    if (!defaultText.isEmpty()) {
        m_current.removeAttribute(Default);
        m_current.appendChild(m_pDocument->createTextNode(defaultText));
    }
}

void ReferenceReport::announce(const QDomNode& node, const QString& text)
{
    QXmlAttributes attributes;
    const QDomNamedNodeMap map = node.attributes();
    for (int i = 0; i < map.count(); ++i) {
        const QDomAttr attribute = map.item(i).toAttr();
        attributes.append(attribute.name(), QString(), QString(), attribute.value());
    }
    ElemBeginEvent event(node, node.nodeName(), attributes, text);
    m_pObserver->XmlUpdate(&event);
}

bool ReferenceReport::checkCurrentElement()
{
    if (!m_probation.isNull()) {
        if (!isValueElement(m_current)) {
            return false;
        }
        m_resume = m_probation.nextSibling();
        m_current = m_resume.toElement();
        remove(m_probation);
        m_probation = QDomElement();
        return true;
    }
    if (!isOptional() && !isChoiceAlternative()) {
        send(IXMLHelper::MAX_OCCURS_EXCEEDED);
        return false;
    }
    if (isValueElement(m_current)) {
        m_resume = m_current.nextSibling();
        if (remove(m_current).isNull()) {
            send(IXMLHelper::GENERAL_ERROR);
        }
    } else {
        m_probation = m_current;
        m_resume = m_current;
    }
    return true;
}

bool ReferenceReport::isOptional()
{
    const auto codes = m_occurs.find(m_current.tagName());
    if (codes == m_occurs.end()) {
        send(IXMLHelper::VALUE_IS_NOT_VALID);
        return false;
    }
    bool isFound = false;
    for (const auto& [code, owners] : codes->second) {
        if (code % 100 != 0) {
            continue;
        }
        for (const QString& owner : owners) {
            isFound = isFound || isBelow(owner, m_current.tagName(), m_current);
        }
    }
    return isFound;
}

bool ReferenceReport::isChoiceAlternative() const
{
    const QString tag = m_current.tagName();
    bool isFound = false;
    for (const auto& alternative : m_choices) {
        isFound = isFound || (!tag.isEmpty() && alternative.second == tag);
    }
    return isFound;
}

void ReferenceReport::continueAt(const QDomNode& node, bool revisit)
{
    m_resume = node;
    m_bResume = true;
    m_bRevisit = revisit;
}

QDomNode ReferenceReport::remove(const QDomNode& node)
{
    m_removed.push_back(node);
    return node.parentNode().removeChild(node);
}

void ReferenceReport::searchNodes(const QString& name, const QDomElement& element, Nodes& results) const
{
    if (element.tagName() == name) {
        results.push_back(m_pDocument->lastChild());
    }
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.nodeName() == name) {
            results.push_back(child);
        } else if (child.isElement()) {
            searchNodes(name, child.toElement(), results);
        }
    }
}

QDomNode ReferenceReport::searchStartNode(const QString& name, const QDomElement& element) const
{
    if (element.tagName() == name) {
        return m_pDocument->lastChild();
    }
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.nodeName() == name) {
            return child;
        }
        const QDomNode found = child.isElement() ? searchStartNode(name, child.toElement()) : QDomNode();
        if (found.isElement()) {
            return found;
        }
    }
    return QDomNode();
}

ReferenceReport::Nodes ReferenceReport::searchElements(const QString& name, const QString& ownerName) const
{
    Nodes results;
    QDomElement start = m_pDocument->documentElement();
    if (!ownerName.isEmpty()) {
        start = searchStartNode(ownerName, start).toElement();
    }
    if (!start.isNull()) {
        searchNodes(name, start, results);
    }
    return results;
}

bool ReferenceReport::isCountAllowed(const QString& name, const QString& tagName, int count, const QDomElement& element)
{
    const auto codes = m_occurs.find(name);
    if (codes == m_occurs.end()) {
        send(IXMLHelper::MAX_OCCURS_EXCEEDED);
        return false;
    }
    bool isFound = false;
    for (const auto& [code, owners] : codes->second) {
        const bool isAllowed
            = count > 0 ? code == -1 || code / 100 == -1 || count <= code : count < 0 || code % 100 == 0;
        if (!isAllowed) {
            continue;
        }
        for (const QString& owner : owners) {
            isFound = isFound || isBelow(owner, tagName, element);
        }
    }
    return isFound;
}

bool ReferenceReport::isBelow(const QString& owner, const QString& tagName, const QDomElement& element) const
{
    bool isFound = false;
    for (const QDomNode& found : searchElements(owner, QString())) {
        for (const QDomNode& node : searchElements(tagName, found.nodeName())) {
            isFound = isFound || node == element;
        }
    }
    return isFound;
}

void ReferenceReport::send(int errorID)
{
    ErrorEvent event(static_cast<IXMLHelper::ErrorID>(errorID));
    m_pObserver->XmlUpdate(&event);
}
