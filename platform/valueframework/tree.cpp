#include <QStringView>
#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>

namespace {

ValueBase* valueOf(TreeItem* item)
{
    const auto* valueItem = dynamic_cast<ValueItem*>(item);
    return valueItem ? valueItem->GetValueObject() : nullptr;
}

TreeItem* itemOf(TreeItem* item)
{
    return item;
}

/// The first answer that is not null, asked of every item at the path below the node. Names need not be unique, and a
/// name may itself hold the separator, so a road that leads nowhere does not end the search.
template <typename Answer> Answer* firstAt(const Node* node, QStringView path, Answer* (*ask)(TreeItem*))
{
    for (TreeItem* item : node->GetTreeItems()) {
        const QString name = item->GetName();
        if (name.isEmpty() || !path.startsWith(name)) {
            continue;
        }
        Answer* answer = nullptr;
        const QStringView rest = path.mid(name.size());
        if (rest.isEmpty()) {
            answer = ask(item);
        } else if (const auto* branch = dynamic_cast<Node*>(item); branch && rest.front() == QLatin1Char('/')) {
            answer = firstAt(branch, rest.mid(1), ask);
        }
        if (answer) {
            return answer;
        }
    }
    return nullptr;
}

} // namespace

Tree* Tree::s_pLatest = nullptr;

Tree::Tree()
    : m_pRoot(std::make_unique<Node>(QStringLiteral("Root"), nullptr))
    , m_pEarlier(s_pLatest)
{
    s_pLatest = this;
}

Tree::~Tree()
{
    Tree** link = &s_pLatest;
    while (*link != this) {
        link = &(*link)->m_pEarlier;
    }
    *link = m_pEarlier;
}

Tree* Tree::Instance()
{
    return s_pLatest;
}

Node* Tree::GetRoot() const
{
    return m_pRoot.get();
}

ValueBase* Tree::GetValue(const QString& path) const
{
    return firstAt(m_pRoot.get(), path, valueOf);
}

TreeItem* Tree::GetTreeItem(const QString& path) const
{
    return firstAt(m_pRoot.get(), path, itemOf);
}
