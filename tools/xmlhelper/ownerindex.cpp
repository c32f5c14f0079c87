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

bool OwnerIndex::IsFirst(const QDomNode& element, const QString& name) const
{
    const auto found = m_bearers.constFind(name);
    return found != m_bearers.constEnd() && found->first == element && !element.isNull();
}

QDomNode OwnerIndex::Remove(const QDomNode& node)
{
    const OwnChange change(this);
    QDomNode parent = node.parentNode();
    if (!m_bCurrent || !holdsBearers(node) || !isInDocument(parent)) {
        return parent.removeChild(node);
    }
    const QDomNode following = nextBelow(m_document, node, true);
    const QDomNode removed = parent.removeChild(node);
    if (!removed.isNull()) {
        forget(removed, following);
    }
    return removed;
}

void OwnerIndex::InsertCopies(const QDomElement& element, int copies)
{
    const OwnChange change(this);
    QDomNode parent = element.parentNode();
    for (int copy = 0; copy < copies; ++copy) {
        parent.insertAfter(element.cloneNode(true), element);
    }
    if (!m_bCurrent || !isInDocument(parent)) {
        return;
    }
    for (QDomNode node = element; !node.isNull(); node = nextBelow(element, node, false)) {
        const auto bearers = m_bearers.find(node.nodeName());
        if (bearers != m_bearers.end()) {
            bearers->count += copies;
            bearers->isCopied = true;
            bearers->others.clear();
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
            bearers->others.push_back(node.toElement());
        }
        m_bUsable = m_bUsable && isIndexable(node);
    }
    for (Bearers& bearers : m_bearers) {
        std::vector<QDomElement>& others = bearers.others;
        bearers.count = static_cast<int>(others.size());
        std::reverse(others.begin(), others.end());
        if (!others.empty()) {
            bearers.first = others.back();
            others.pop_back();
        }
    }
    m_bCurrent = true;
    m_changes.Reset();
}

/// A search stops at other nodes of the name, and compares some elements by their name without prefix.
bool OwnerIndex::isIndexable(const QDomNode& node) const
{
    return node.isElement() ? node.localName().isNull() : !m_bearers.contains(node.nodeName());
}

bool OwnerIndex::holdsBearers(const QDomNode& top) const
{
    QDomNode node = top;
    while (!node.isNull() && !m_bearers.contains(node.nodeName())) {
        node = nextBelow(top, node, false);
    }
    return !node.isNull();
}

/// @p removed has been taken out of the document in front of @p following.
void OwnerIndex::forget(const QDomNode& removed, const QDomNode& following)
{
    QSet<QString> namesWithoutFirst;
    for (QDomNode node = removed; !node.isNull(); node = nextBelow(removed, node, false)) {
        const QString name = node.nodeName();
        const auto bearers = m_bearers.find(name);
        if (bearers != m_bearers.end()) {
            --bearers->count;
            if (bearers->first == node) {
                namesWithoutFirst.insert(name);
            }
        }
    }
    for (const QString& name : namesWithoutFirst) {
        findNext(name, m_bearers[name], following);
    }
}

/// The next first one is one of those that the index was made from; behind copies, which these do not include, it is
/// looked for.
void OwnerIndex::findNext(const QString& name, Bearers& bearers, const QDomNode& following)
{
    bearers.first = QDomElement();
    if (bearers.count == 0) {
        return;
    }
    if (bearers.isCopied) {
        QDomNode node = following;
        while (!node.isNull() && node.nodeName() != name) {
            node = nextBelow(m_document, node, false);
        }
        bearers.first = node.toElement();
    } else {
        std::vector<QDomElement>& others = bearers.others;
        while (!others.empty() && !isInDocument(others.back())) {
            others.pop_back();
        }
        if (!others.empty()) {
            bearers.first = others.back();
            others.pop_back();
        }
    }
    // There must be one, unless somebody has renamed elements.
    m_bCurrent = !bearers.first.isNull();
}

bool OwnerIndex::isInDocument(const QDomNode& node) const
{
    QDomNode top = node;
    while (!top.isNull() && top != m_document) {
        top = top.parentNode();
    }
    return !top.isNull();
}
