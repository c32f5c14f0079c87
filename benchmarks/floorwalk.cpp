#include "floorwalk.h"

#include <QXmlAttributes>

#include <xmlhelper/docbeginevent.h>
#include <xmlhelper/docendevent.h>
#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/errorevent.h>
#include <xmlhelper/eventdelivery_p.h>

QT_WARNING_DISABLE_DEPRECATED

namespace {

const QLatin1String TypeName("type");

void announce(IXMLHelper* observer, const QDomNode& node, const QString& text)
{
    QXmlAttributes attributes;
    const QDomNamedNodeMap map = node.attributes();
    for (int i = 0; i < map.count(); ++i) {
        const QDomAttr attribute = map.item(i).toAttr();
        attributes.append(attribute.name(), QString(), QString(), attribute.value());
    }
    deliver<ElemBeginEvent>(observer, node, node.nodeName(), attributes, text);
}

} // namespace

FloorWalk::FloorWalk(IXMLHelper* observer, const OccursMap& occurs, const ChoiceMap& choices, Answer answer)
    : m_observer(observer)
    , m_occurs(occurs)
    , m_choices(choices)
    , m_answer(answer)
{
}

bool FloorWalk::SetDocument(QDomDocument* document)
{
    m_document = document;
    return true;
}

bool FloorWalk::Walk()
{
    deliver<DocBeginEvent>(m_observer);
    m_currentElement = m_document->documentElement();
    announce(m_observer, m_currentElement, QString());
    m_levels.push_back({m_currentElement.firstChild(), QString()});
    while (!m_levels.empty()) {
        const QDomNode& node = m_levels.back().node;
        if (!node.isNull() && (m_levels.size() == 1 || !node.isText())) {
            visit();
            continue;
        }
        m_levels.pop_back();
        if (!m_levels.empty()) {
            m_levels.back().node = m_levels.back().node.nextSibling();
        }
    }
    deliver<DocEndEvent>(m_observer);
    return true;
}

bool FloorWalk::ContinueAt(QDomElement* element, bool revisit)
{
    m_resumeNode = *element;
    m_resume = true;
    m_revisit = revisit;
    return true;
}

void FloorWalk::visit()
{
    const bool isTopLevel = m_levels.size() == 1;
    Level& level = m_levels.back();
    m_currentElement = level.node.toElement();
    const QDomNode first = level.node.firstChild();
    if (first.isText()) {
        level.text = first.toText().data();
    }
    announce(m_observer, level.node, level.text);

    if (m_resume) {
        m_resume = false;
        if (!isTopLevel) {
            m_probationElement = QDomElement();
        }
        level.node = m_revisit ? m_resumeNode : m_resumeNode.nextSibling();
        return;
    }
    if (checkCurrentElement()) {
        level.node = m_resumeNode;
        if (isTopLevel || m_probationElement.isNull()) {
            return;
        }
    }
    const QDomNode child = level.node.firstChild();
    m_levels.push_back({child, QString()});
}

bool FloorWalk::checkCurrentElement()
{
    const bool isValue = !m_currentElement.attribute(TypeName).isEmpty();
    if (!m_probationElement.isNull()) {
        if (!isValue) {
            return false;
        }
        m_resumeNode = m_probationElement.nextSibling();
        m_currentElement = m_resumeNode.toElement();
        remove(m_probationElement);
        m_probationElement = QDomElement();
        return true;
    }
    if (!mayBeMissing()) {
        deliver<ErrorEvent>(m_observer, IXMLHelper::MAX_OCCURS_EXCEEDED);
        return false;
    }
    if (isValue) {
        m_resumeNode = m_currentElement.nextSibling();
        remove(m_currentElement);
    } else {
        m_probationElement = m_currentElement;
        m_resumeNode = m_currentElement;
    }
    return true;
}

bool FloorWalk::mayBeMissing()
{
    const Leave leave = m_answer(m_currentElement);
    if (leave == Leave::Alternative) {
        deliver<ErrorEvent>(m_observer, IXMLHelper::VALUE_IS_NOT_VALID);
    }
    return leave != Leave::Required;
}

void FloorWalk::remove(const QDomNode& node)
{
    m_removedNodes.push_back(node);
    node.parentNode().removeChild(node);
}
