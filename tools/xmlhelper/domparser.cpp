#include "domparser.h"

#include <algorithm>
#include <memory>

#include <QXmlAttributes>

#include "constants.h"
#include "docbeginevent.h"
#include "docendevent.h"
#include "elembeginevent.h"
#include "elementsearch.h"
#include "errorevent.h"
#include "eventdelivery.h"
#include "tracing.h"

QT_WARNING_DISABLE_DEPRECATED

namespace {

QXmlAttributes attributesOf(const QDomNode& node)
{
    QXmlAttributes attributes;
    const QDomNamedNodeMap map = node.attributes();
    for (int i = 0; i < map.count(); ++i) {
        const QDomAttr attribute = map.item(i).toAttr();
        attributes.append(attribute.name(), QLatin1String(""), QLatin1String(""), attribute.value());
    }
    return attributes;
}

bool isValueElement(const QDomElement& element)
{
    return !element.attribute(TypeAttribute).isEmpty();
}

/// Whether an occurs code is one of minOccurs 0.
bool isOptionalCode(int occursCode)
{
    return occursCode % OptionalOccursFactor == 0;
}

} // namespace

DomParser::DomParser(IXMLHelper* pCallback, const OccursMap& occurs, const ChoiceMap& choices)
    : m_pDocument(nullptr)
    , m_pCallback(pCallback)
    , m_bResume(false)
    , m_bRevisit(false)
    , m_bAnnounced(false)
{
    if (checkObserver(pCallback, "DomParser", "domparser", 37)) {
        m_occurs = occurs;
        m_choices = choices;
    }
}

bool DomParser::SetDocument(QDomDocument* document)
{
    if (!document) {
        return false;
    }
    m_pDocument = document;
    m_firstElements.clear();
    return true;
}

bool DomParser::Walk()
{
    if (!m_pCallback || !m_pDocument || m_pDocument->documentElement().isNull()) {
        return false;
    }
    deliver<DocBeginEvent>(m_pCallback);
    const QDomElement root = m_pDocument->documentElement();
    m_currentElement = root;
    announce(root, QLatin1String(""));

    // A stack of our own: siblings of pruned containers are walked one level deeper, without a limit.
    m_levels.push_back({root.firstChild(), QLatin1String("")});
    while (!m_levels.empty()) {
        const QDomNode node = m_levels.back().node;
        const bool isTopLevel = m_levels.size() == 1;
        if (!node.isNull() && (isTopLevel || !node.isText())) {
            visit();
            continue;
        }
        m_levels.pop_back();
        if (!m_levels.empty()) {
            m_levels.back().node = m_levels.back().node.nextSibling();
        }
    }
    deliver<DocEndEvent>(m_pCallback);
    return true;
}

QDomElement* DomParser::GetCurrentElement()
{
    return m_bAnnounced ? &m_currentElement : nullptr;
}

bool DomParser::ContinueAt(QDomElement* element, bool revisit)
{
    if (!element) {
        return false;
    }
    m_resumeNode = *element;
    m_bResume = true;
    m_bRevisit = revisit;
    return true;
}

std::list<QDomNode>* DomParser::SearchElements(const QString& name, const QString& ownerName)
{
    auto results = std::make_unique<std::list<QDomNode>>();
    if (m_pDocument) {
        const ElementSearch search(m_pDocument->lastChild());
        QDomElement start = m_pDocument->documentElement();
        if (!ownerName.isEmpty()) {
            start = search.FirstMatch(ownerName, start).toElement();
        }
        if (!start.isNull()) {
            search.AppendMatches(name, start, *results);
        }
    }
    return results.release();
}

bool DomParser::IsBelowOwner(const QString& name, const QString& ownerName, const QDomNode& element)
{
    if (!m_pDocument || ownerName.isEmpty()) {
        return false;
    }
    const QDomElement start = firstElement(ownerName);
    return !start.isNull() && ElementSearch(m_pDocument->lastChild()).IsMatch(name, start, element);
}

/// Announces the node on which the walk stands and moves on from it.
void DomParser::visit()
{
    const bool isTopLevel = m_levels.size() == 1;
    Level& level = m_levels.back();
    m_currentElement = level.node.toElement();
    takeText(level, isTopLevel);
    announce(level.node, level.text);

    if (takeNotice()) {
        if (!isTopLevel) {
            m_probationElement = QDomElement();
        }
        level.node = m_bRevisit ? m_resumeNode : m_resumeNode.nextSibling();
    } else if (!checkCurrentElement()) {
        // Below the top level the node takes the place of what a notice from inside an error of the check has named.
        if (!isTopLevel) {
            m_resumeNode = level.node;
        }
        m_levels.push_back({level.node.firstChild(), QLatin1String("")});
    } else {
        level.node = m_resumeNode;
        // At the top level a container that goes on probation is announced once more, and walked then.
        if (!isTopLevel && !m_probationElement.isNull()) {
            m_levels.push_back({level.node.firstChild(), QLatin1String("")});
        }
    }
}

/// The text of an element without one is that of the last sibling that had one; receivers read values from the node.
void DomParser::takeText(Level& level, bool isTopLevel)
{
    const QDomNode first = level.node.firstChild();
    if (first.isText()) {
        level.text = first.toText().data();
        return;
    }
    const QString defaultText = m_currentElement.attribute(DefaultAttribute);
    if (!isTopLevel && !defaultText.isEmpty()) {
        m_currentElement.removeAttribute(DefaultAttribute);
        m_currentElement.appendChild(m_pDocument->createTextNode(defaultText));
    }
}

void DomParser::announce(const QDomNode& node, const QString& text)
{
    m_bAnnounced = true;
    deliver<ElemBeginEvent>(m_pCallback, node, node.nodeName(), attributesOf(node), text);
}

bool DomParser::takeNotice()
{
    const bool isPending = m_bResume;
    m_bResume = false;
    return isPending;
}

/// Decides what becomes of an element without a notice. Gives whether the position of the walk was changed.
bool DomParser::checkCurrentElement()
{
    if (!m_probationElement.isNull()) {
        if (!isValueElement(m_currentElement)) {
            return false;
        }
        removeProbationElement();
        return true;
    }
    if (!isOptional() && !isChoiceAlternative()) {
        deliver<ErrorEvent>(m_pCallback, IXMLHelper::MAX_OCCURS_EXCEEDED);
        return false;
    }
    if (isValueElement(m_currentElement)) {
        removeCurrentElement();
    } else {
        m_probationElement = m_currentElement;
        m_resumeNode = m_currentElement;
    }
    return true;
}

bool DomParser::isOptional()
{
    const auto codes = m_occurs.find(m_currentElement.tagName());
    if (codes == m_occurs.end()) {
        deliver<ErrorEvent>(m_pCallback, IXMLHelper::VALUE_IS_NOT_VALID);
        return false;
    }
    return std::any_of(codes->second.begin(), codes->second.end(),
                       [this](const auto& code) { return isOptionalCode(code.first) && isBelowAnyOf(code.second); });
}

bool DomParser::isBelowAnyOf(const std::list<QString>& owners)
{
    return std::any_of(owners.begin(), owners.end(), [this](const QString& owner) {
        return IsBelowOwner(m_currentElement.tagName(), owner, m_currentElement);
    });
}

bool DomParser::isChoiceAlternative() const
{
    const QString name = m_currentElement.tagName();
    return !name.isEmpty() && std::any_of(m_choices.begin(), m_choices.end(), [&name](const auto& alternative) {
        return alternative.second == name;
    });
}

/// The walk goes on behind the container, one level deeper than the container stood.
void DomParser::removeProbationElement()
{
    m_resumeNode = m_probationElement.nextSibling();
    m_currentElement = m_resumeNode.toElement();
    remove(m_probationElement);
    m_probationElement = QDomElement();
}

void DomParser::removeCurrentElement()
{
    m_resumeNode = m_currentElement.nextSibling();
    if (remove(m_currentElement).isNull()) {
        deliver<ErrorEvent>(m_pCallback, IXMLHelper::GENERAL_ERROR);
    }
}

/// Gives a null node when there was nothing to remove @p node from.
QDomNode DomParser::remove(const QDomNode& node)
{
    m_removedNodes.push_back(node);
    return node.parentNode().removeChild(node);
}

/// The first element called @p name in the document. The answer is remembered while the element is there: copies go
/// behind their original and nothing else is put in, so no other becomes the first.
QDomElement DomParser::firstElement(const QString& name)
{
    const auto known = m_firstElements.find(name);
    if (known != m_firstElements.end() && (known->second.isNull() || isInDocument(known->second))) {
        return known->second;
    }
    const ElementSearch search(m_pDocument->lastChild());
    return m_firstElements[name] = search.FirstMatch(name, m_pDocument->documentElement()).toElement();
}

bool DomParser::isInDocument(const QDomNode& node) const
{
    QDomNode top = node;
    while (!top.parentNode().isNull()) {
        top = top.parentNode();
    }
    return top == *m_pDocument;
}
