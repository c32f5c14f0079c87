#include "elementsearch_p.h"

#include "domorder_p.h"

namespace {

/// Whether a walk that starts at @p node, whose node name does not match, has its start for a match.
bool isMatchingAsStart(const QDomNode& node, const QString& name)
{
    // Only documents read with namespace processing know local names.
    return node.isElement() && !node.localName().isNull() && node.toElement().tagName() == name;
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
        const bool isMatching = node.nodeName() == name;
        if (isMatching) {
            results.push_back(node);
        } else if (isMatchingAsStart(node, name)) {
            results.push_back(m_topNode);
        }
        node = nextBelow(start, node, isMatching);
    }
}

QDomNode ElementSearch::FirstMatch(const QString& name, const QDomElement& start) const
{
    if (start.tagName() == name) {
        return m_topNode;
    }
    QDomNode node = start.firstChild();
    while (!node.isNull()) {
        if (node.nodeName() == name) {
            if (node.isElement()) {
                return node;
            }
            node = nextBelow(start, node.parentNode(), true);
        } else if (isMatchingAsStart(node, name)) {
            if (m_topNode.isElement()) {
                return m_topNode;
            }
            node = nextBelow(start, node, true);
        } else {
            node = nextBelow(start, node, false);
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
