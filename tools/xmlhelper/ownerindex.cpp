#include "ownerindex.h"

#include <algorithm>

#include "domorder.h"

OwnerIndex::OwnerIndex(const QDomDocument& document, const QSet<QString>& names)
    : m_document(document)
    , m_changes(document)
    , m_bCurrent(false)
    , m_bUsable(false)
    , m_iOwnChanges(0)
{
    m_bearers.reserve(names.size());
    for (const QString& name : names) {
        m_bearers.insert(name, Bearers());
    }
}

bool OwnerIndex::Refresh()
{
    noticeChanges();
    if (!m_bCurrent) {
        make();
    }
    return m_bUsable;
}

bool OwnerIndex::IsFirst(const QDomNode& element, const QString& name)
{
    Bearers& bearers = m_bearers[name];
    std::vector<QDomElement>& elements = bearers.elements;
    while (!elements.empty() && !isInDocument(elements.back()) && !bearers.isCopied) {
        elements.pop_back();
    }
    if (isOutdated(bearers, element, name)) {
        make();
    }
    return !elements.empty() && elements.back() == element;
}

QDomNode OwnerIndex::Remove(const QDomNode& node)
{
    const OwnChange change(this);
    return node.parentNode().removeChild(node);
}

void OwnerIndex::InsertCopies(const QDomElement& element, int copies)
{
    const OwnChange change(this);
    QDomNode parent = element.parentNode();
    for (int copy = 0; copy < copies; ++copy) {
        parent.insertAfter(element.cloneNode(true), element);
    }
    for (QDomNode node = element; m_bCurrent && !node.isNull(); node = nextBelow(element, node, false)) {
        const auto bearers = m_bearers.find(node.nodeName());
        if (bearers != m_bearers.end()) {
            bearers->isCopied = true;
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
    if (--m_iOwnChanges == 0 && m_bCurrent) {
        m_changes.Reset();
    }
}

void OwnerIndex::noticeChanges()
{
    m_bCurrent = m_bCurrent && !m_changes.IsChanged();
}

void OwnerIndex::make()
{
    for (Bearers& bearers : m_bearers) {
        bearers = Bearers();
    }
    const QDomElement root = m_document.documentElement();
    m_bUsable = m_document.lastChild() == root;
    for (QDomNode node = root; !node.isNull(); node = nextBelow(root, node, false)) {
        const auto bearers = m_bearers.find(node.nodeName());
        if (bearers != m_bearers.end()) {
            bearers->elements.push_back(node.toElement());
        }
        m_bUsable = m_bUsable && isIndexable(node);
    }
    for (Bearers& bearers : m_bearers) {
        std::reverse(bearers.elements.begin(), bearers.elements.end());
    }
    m_bCurrent = true;
    m_changes.Reset();
}

/// Whether the first of @p bearers shows that the document is another one than when the index was made.
bool OwnerIndex::isOutdated(const Bearers& bearers, const QDomNode& element, const QString& name) const
{
    if (bearers.elements.empty()) {
        return isInDocument(element); // It has been given the name.
    }
    const QDomElement& first = bearers.elements.back();
    return first.tagName() != name || !isInDocument(first); // A copy may be the first now.
}

/// A search stops at other nodes of the name, and compares some elements by their name without prefix.
bool OwnerIndex::isIndexable(const QDomNode& node) const
{
    return node.isElement() ? node.localName().isNull() : !m_bearers.contains(node.nodeName());
}

bool OwnerIndex::isInDocument(const QDomNode& node) const
{
    QDomNode top = node;
    while (!top.isNull() && top != m_document) {
        top = top.parentNode();
    }
    return !top.isNull();
}
