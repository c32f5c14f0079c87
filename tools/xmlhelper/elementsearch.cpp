#include "elementsearch_p.h"

namespace {

/// Moves @p node, which is below @p start, in document order behind all that is below it; to a null node at the end. It
/// is moved in place, because handles of nodes are most of what a search costs.
void moveBehind(QDomNode& node, const QDomNode& start)
{
    QDomNode next = node.nextSibling();
    while (next.isNull()) {
        node = node.parentNode();
        if (node == start || node.isNull()) {
            node = QDomNode();
            return;
        }
        next = node.nextSibling();
    }
    node = next;
}

/// Moves an element to its first child, else as above.
void moveInto(QDomNode& element, const QDomNode& start)
{
    const QDomNode child = element.firstChild();
    if (child.isNull()) {
        moveBehind(element, start);
    } else {
        element = child;
    }
}

/// Most names differ in their length already.
bool hasNodeName(const QDomNode& node, const QString& name)
{
    const QString nodeName = node.nodeName();
    return nodeName.size() == name.size() && nodeName == name;
}

/// Whether a walk that starts at an element, whose node name does not match, has its start for a match.
bool isMatchingAsStart(const QDomNode& element, const QString& name)
{
    // Only documents read with namespace processing know local names.
    return !element.localName().isNull() && element.toElement().tagName() == name;
}

} // namespace

ElementSearch::ElementSearch(const QDomNode& topNode)
    : m_topNode(topNode)
{
}

void ElementSearch::AppendMatches(const QString& name, const QDomElement& start, std::list<QDomNode>& results) const
{
    if (start.tagName() == name) {
        results.push_back(m_topNode);
    }
    QDomNode node = start.firstChild();
    while (!node.isNull()) {
        const bool isMatching = hasNodeName(node, name);
        if (isMatching) {
            results.push_back(node);
        }
        if (isMatching || !node.isElement()) {
            moveBehind(node, start);
            continue;
        }
        if (isMatchingAsStart(node, name)) {
            results.push_back(m_topNode);
        }
        moveInto(node, start);
    }
}

QDomNode ElementSearch::FirstMatch(const QString& name, const QDomElement& start) const
{
    if (start.tagName() == name) {
        return m_topNode;
    }
    QDomNode node = start.firstChild();
    while (!node.isNull()) {
        const bool isElement = node.isElement();
        if (hasNodeName(node, name)) {
            if (isElement) {
                return node;
            }
            node = node.parentNode().lastChild();
            moveBehind(node, start);
        } else if (!isElement) {
            moveBehind(node, start);
        } else if (!isMatchingAsStart(node, name)) {
            moveInto(node, start);
        } else if (m_topNode.isElement()) {
            return m_topNode;
        } else {
            moveBehind(node, start);
        }
    }
    return QDomNode();
}

bool ElementSearch::IsMatch(const QString& name, const QDomElement& start, const QDomNode& node) const
{
    if (start.tagName() == name && node == m_topNode) {
        return true;
    }
    if (node == start || node.nodeName() != name) {
        return false;
    }
    QDomNode ancestor = node.parentNode();
    while (!ancestor.isNull() && ancestor != start && ancestor.nodeName() != name) {
        ancestor = ancestor.parentNode();
    }
    return !start.isNull() && ancestor == start;
}
