#include "ownerindex_p.h"

#include <algorithm>

#include "domorder_p.h"
#include "elementsearch_p.h"
#include "limits_p.h"

namespace {

/// How many nodes each question allows to look at again. It costs about as much as announcing an element.
constexpr qint64 NodesOfQuestion = 50;

} // namespace

OwnerIndex::OwnerIndex(const QDomDocument& document, const QSet<QString>& names)
    : m_document(document)
    , m_changes(document)
    , m_bOutdated(false)
    , m_iOwnChanges(0)
    , m_iSeen(0)
    , m_iAllowed(limits().nodesLookedAtAgain)
{
    m_bearers.reserve(names.size());
    for (const QString& name : names) {
        m_bearers.insert(name, Bearers());
    }
    m_bearers.insert(document.lastChild().nodeName(), Bearers()); // A search may name the top node.
    m_changes.Reset();
}

bool OwnerIndex::GoTo(const QDomNode& node)
{
    noticeChanges();
    if (!m_bOutdated && isBelowPath(node)) {
        m_iAllowed += NodesOfQuestion;
    } else if (!followTo(node)) {
        return false;
    }
    seeChildrenUpTo(m_path.back(), node);
    return true;
}

/// Whether the last step leads to the parent of @p node, and no step was moved or renamed. Nearly every question is
/// about such a node, and is answered without a list of what stands above it.
bool OwnerIndex::isBelowPath(const QDomNode& node) const
{
    QDomNode above = node.parentNode();
    std::size_t level = m_path.size();
    while (level > 0 && above == m_path[level - 1].element && above.nodeName() == m_path[level - 1].name) {
        above = above.parentNode();
        --level;
    }
    return level == 0 && !m_path.empty() && above == m_document;
}

/// Makes the steps lead to the parent of @p node. Gives false, and changes none, when it is not below the root.
bool OwnerIndex::followTo(const QDomNode& node)
{
    std::vector<QDomElement> elements;
    QDomNode top = node.parentNode();
    for (; top.isElement(); top = top.parentNode()) {
        elements.push_back(top.toElement());
    }
    if (elements.empty() || top != m_document || elements.back() != m_document.documentElement()) {
        return false;
    }
    std::reverse(elements.begin(), elements.end());

    const std::size_t matching = matchingLevels(elements);
    lookAgainIfAllowed();
    while (m_path.size() > matching) {
        leave();
    }
    while (m_path.size() < elements.size()) {
        enter(elements[m_path.size()]);
    }
    return true;
}

void OwnerIndex::GoToEnd()
{
    noticeChanges();
    lookAgainIfAllowed();
    const QDomElement root = m_document.documentElement();
    if (m_path.empty() || m_path.front().element != root) {
        m_path.clear();
        enter(root);
    }
    while (m_path.size() > 1) {
        leave();
    }
    seeChildrenUpTo(m_path.front(), QDomNode());
}

bool OwnerIndex::IsBelowRoot(const QString& name) const
{
    const QDomElement root = m_document.documentElement();
    const auto bearers = m_bearers.find(name);
    if (bearers == m_bearers.end() || bearers->isHidden) {
        std::list<QDomNode> matches;
        ElementSearch(m_document.lastChild()).AppendMatches(name, root, matches);
        return matches.size() > 1; // The first stands for the root.
    }
    return std::any_of(bearers->elements.begin(), bearers->elements.end(), [&](const QDomElement& element) {
        return element.nodeName() == name && element != root && isInDocument(element);
    });
}

bool OwnerIndex::IsBehindPrefix(const QString& name)
{
    const auto found = m_prefixed.find(name);
    if (found == m_prefixed.end()) {
        return false;
    }
    const auto isReported = [&](const QDomElement& element) {
        return element.tagName() == name && element.nodeName() != name && isInDocument(element)
            && !isBelowCalled(element, name);
    };
    found->erase(found->begin(), std::find_if(found->begin(), found->end(), isReported));
    return !found->empty();
}

bool OwnerIndex::IsFirstAt(std::size_t level)
{
    Step& step = m_path[level];
    if (step.rank == Rank::Unknown) {
        step.rank = isFirst(step.element, step.name) ? Rank::First : Rank::Later;
    }
    return step.rank == Rank::First;
}

void OwnerIndex::Forget(const QDomNode& node)
{
    for (Step& step : m_path) {
        if (step.rank == Rank::Later) { // What is first stays it.
            step.rank = Rank::Unknown;
        }
        if (step.lastSeen == node) {
            step.lastSeen = siblingBefore(node);
        }
    }
}

OwnerIndex::OwnChange::OwnChange(OwnerIndex* index)
    : m_pIndex(index)
{
    if (m_pIndex) {
        m_pIndex->beginOwnChange();
    }
}

OwnerIndex::OwnChange::~OwnChange()
{
    if (m_pIndex) {
        m_pIndex->endOwnChange();
    }
}

void OwnerIndex::beginOwnChange()
{
    if (m_iOwnChanges++ == 0) {
        noticeChanges();
    }
}

void OwnerIndex::endOwnChange()
{
    if (--m_iOwnChanges == 0) {
        m_changes.Reset();
    }
}

void OwnerIndex::noticeChanges()
{
    if (m_changes.IsChanged()) {
        m_bOutdated = true;
        m_changes.Reset();
        for (Step& step : m_path) {
            step.rank = Rank::Unknown;
        }
    }
}

void OwnerIndex::lookAgainIfAllowed()
{
    m_iAllowed += NodesOfQuestion;
    if (!m_bOutdated || m_iSeen > m_iAllowed) {
        return;
    }
    m_iAllowed -= m_iSeen;
    m_iSeen = 0;
    m_bOutdated = false;
    m_path.clear();
    m_prefixed.clear();
    for (Bearers& bearers : m_bearers) {
        bearers = Bearers();
    }
}

/// How many of the steps still lead to a place below @p elements.
std::size_t OwnerIndex::matchingLevels(const std::vector<QDomElement>& elements)
{
    std::size_t level = 0;
    while (level < m_path.size() && level < elements.size() && m_path[level].element == elements[level]) {
        const QString name = elements[level].nodeName();
        if (name != m_path[level].name) {
            m_path[level].name = name;
            m_path[level].rank = Rank::Unknown;
            m_bOutdated = true;
            see(elements[level]);
        }
        ++level;
    }
    return level;
}

/// Takes the last step back. What is left below its element has been passed by the walk, or left out.
void OwnerIndex::leave()
{
    Step step = m_path.back();
    m_path.pop_back();
    if (!m_path.empty() && step.element.parentNode() == m_path.back().element) {
        seeChildrenUpTo(step, QDomNode());
        m_path.back().lastSeen = step.element;
    }
}

void OwnerIndex::enter(const QDomElement& element)
{
    if (!m_path.empty()) {
        seeChildrenUpTo(m_path.back(), element);
    }
    see(element);
    m_path.push_back({element, element.nodeName(), QDomNode(), Rank::Unknown});
}

/// Looks at the children of a step that come before @p end, null for all, and at what is below them.
void OwnerIndex::seeChildrenUpTo(Step& step, const QDomNode& end)
{
    if (!step.lastSeen.isNull() && step.lastSeen.parentNode() != step.element) {
        // Others have taken it away.
        step.lastSeen = end.isNull() ? step.element.lastChild() : end.previousSibling();
    }
    if (!step.lastSeen.isNull() && step.lastSeen == end) {
        return;
    }
    QDomNode child = step.lastSeen.isNull() ? step.element.firstChild() : step.lastSeen.nextSibling();
    for (; !child.isNull() && child != end; child = child.nextSibling()) {
        for (QDomNode node = child; !node.isNull(); node = nextBelow(child, node, false)) {
            see(node);
        }
        step.lastSeen = child;
    }
    m_bOutdated = m_bOutdated || child != end; // The walk has gone back.
}

void OwnerIndex::see(const QDomNode& node)
{
    ++m_iSeen;
    const auto bearers = m_bearers.find(node.nodeName());
    if (node.isElement()) {
        if (bearers != m_bearers.end()) {
            bearers->elements.push_back(node.toElement());
        }
        if (!node.prefix().isEmpty()) {
            seePrefixed(node.toElement());
        }
    } else if (bearers != m_bearers.end()) {
        bearers->isHidden = true;
    }
}

/// Keeps an element whose tag name lacks its prefix.
void OwnerIndex::seePrefixed(const QDomElement& element)
{
    const auto bearers = m_bearers.find(element.tagName());
    if (bearers != m_bearers.end()) {
        bearers->elements.push_back(element);
        m_prefixed[element.tagName()].push_back(element);
    }
}

bool OwnerIndex::isFirst(const QDomElement& element, const QString& name)
{
    if (element == m_document.documentElement()) {
        return m_document.lastChild() == element; // A search names the top node in place of the root.
    }
    const auto bearers = m_bearers.find(name);
    if (bearers == m_bearers.end() && name != m_document.lastChild().nodeName()) {
        return false;
    }
    if (bearers == m_bearers.end() || bearers->isHidden) {
        return isFound(element, name);
    }
    const std::vector<QDomElement>& elements = bearers->elements;
    for (; bearers->first < elements.size(); ++bearers->first) {
        const QDomElement& first = elements[bearers->first];
        if (isInDocument(first)) {
            if (first.nodeName() == name) {
                return first == element;
            }
            if (first.tagName() == name) { // In its place a search finds the top node, if that is an element.
                return !m_document.lastChild().isElement() && isFound(element, name);
            }
            m_bOutdated = true; // It was renamed.
        }
    }
    return false;
}

bool OwnerIndex::isFound(const QDomElement& element, const QString& name) const
{
    return ElementSearch(m_document.lastChild()).FirstMatch(name, m_document.documentElement()) == element;
}

bool OwnerIndex::isInDocument(const QDomNode& node) const
{
    QDomNode top = node;
    while (!top.isNull() && top != m_document) {
        top = top.parentNode();
    }
    return !top.isNull();
}

/// Whether @p element stands below one called @p name, other than the root.
bool OwnerIndex::isBelowCalled(const QDomElement& element, const QString& name) const
{
    QDomNode above = element.parentNode();
    while (!above.isNull() && above != m_document.documentElement() && above.nodeName() != name) {
        above = above.parentNode();
    }
    return above != m_document.documentElement();
}
