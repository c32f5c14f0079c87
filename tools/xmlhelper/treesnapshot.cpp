#include "treesnapshot_p.h"

#include <algorithm>
#include <vector>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/treeitem.h>
#include <valueframework/valueitem.h>

namespace {

thread_local TreeSnapshot* t_innermost = nullptr;

/// The root of a tree that shows it. That of another suite's need not: what is not under its path is not found then.
template <class AnyTree> auto rootOf(const AnyTree& tree, int) -> decltype(tree.GetRoot())
{
    return tree.GetRoot();
}

template <class AnyTree> Node* rootOf(const AnyTree&, long)
{
    return nullptr;
}

bool isSame(const TreeItem& met, const TreeItem* item)
{
    return &met == item;
}

bool isSame(const TreeItem& met, const ValueBase* value)
{
    const auto* const valueItem = dynamic_cast<const ValueItem*>(&met);
    return valueItem && valueItem->GetValueObject() == value;
}

} // namespace

TreeSnapshot::TreeSnapshot()
    : m_pTree(nullptr)
    , m_pOuter(t_innermost)
{
    t_innermost = this;
}

TreeSnapshot::~TreeSnapshot()
{
    t_innermost = m_pOuter;
}

bool TreeSnapshot::Holds(const Tree& tree, const ValueBase* value)
{
    return ask(tree, value);
}

bool TreeSnapshot::Holds(const Tree& tree, const TreeItem* item)
{
    return ask(tree, item);
}

template <class Object> bool TreeSnapshot::ask(const Tree& tree, const Object* object)
{
    if (t_innermost) {
        return t_innermost->holds(tree, object);
    }
    TreeSnapshot once;
    return once.holds(tree, object);
}

template <class Object> bool TreeSnapshot::holds(const Tree& tree, const Object* object)
{
    if (m_pTree != &tree) {
        walk(tree);
    }
    if (!m_parents.contains(itemOf(object))) {
        return false;
    }
    const TreeItem* const item = itemStillThere(rootOf(tree, 0), itemOf(object));
    if (item && isSame(*item, object)) {
        return true;
    }
    walk(tree);
    return m_parents.contains(itemOf(object));
}

void TreeSnapshot::walk(const Tree& tree)
{
    m_pTree = &tree;
    m_parents.clear();
    m_items.clear();
    std::vector<const Node*> nodes;
    if (const Node* const root = rootOf(tree, 0)) {
        nodes.push_back(root);
    }
    while (!nodes.empty()) {
        const Node* const node = nodes.back();
        nodes.pop_back();
        for (const TreeItem* const item : node->GetTreeItems()) {
            m_parents.insert(item, node);
            if (const auto* const valueItem = dynamic_cast<const ValueItem*>(item)) {
                m_items.insert(valueItem->GetValueObject(), item);
            } else if (const auto* const branch = dynamic_cast<const Node*>(item)) {
                nodes.push_back(branch);
            }
        }
    }
}

/// @p item, when the road from @p root on which it was found still leads to it; else null.
const TreeItem* TreeSnapshot::itemStillThere(const Node* root, const TreeItem* item) const
{
    std::vector<const TreeItem*> road;
    for (const TreeItem* step = item; step && step != root; step = m_parents.value(step)) {
        road.push_back(step);
    }
    const TreeItem* met = root;
    for (auto step = road.crbegin(); step != road.crend(); ++step) {
        const auto* const node = dynamic_cast<const Node*>(met);
        if (!node) {
            return nullptr;
        }
        const auto& items = node->GetTreeItems();
        if (std::find(items.begin(), items.end(), *step) == items.end()) {
            return nullptr;
        }
        met = *step;
    }
    return met;
}
