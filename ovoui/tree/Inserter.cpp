#include <ovoui/tree/Inserter.h>

#include <ovoui/tree/Insertion.h>
#include <ovoui/tree/core/StableOrder.h>

#include <algorithm>

using ovoui::tree::Child;
using ovoui::tree::Children;
using ovoui::tree::sortStably;

MultiTreeCtrl::Inserter::Inserter(MultiTreeCtrl& tree, InsertionPoint& where)
    : m_tree(tree)
    , m_state(tree.m_state)
    , m_where(where)
    , m_parent(m_state, nullptr)
{
    // A node without an item may have no reference to share.
    if (auto* node = dynamic_cast<Node*>(&where); node && node->m_hTreeItem)
        m_placeHeld = OVO::Handle<Node>(node);
}

bool MultiTreeCtrl::Inserter::accepts()
{
    const bool open = m_where.expanded();
    if (!open || !m_state->usable())
        return false;
    m_parent.moveTo(m_where.hTreeItem());
    if (m_parent)
        m_sorted = m_where.canCompare();
    return m_state->usable() && m_parent;
}

HTREEITEM MultiTreeCtrl::Inserter::insert(Node& node, int position, bool& unused)
{
    unused = false;
    HTREEITEM item = nullptr;
    if (!m_sorted)
        item = insertAt(node, position);
    else if (m_state->insertion->halves())
        item = insertHalving(node, unused);
    else
        item = insertWalking(node, unused);
    if (!item && (!m_state->usable() || !m_parent))
        unused = true;
    return item;
}

HTREEITEM MultiTreeCtrl::Inserter::insertBefore(Node& node, ChildWalk& walk)
{
    return walk.usable() ? node.insert(m_tree, walk.parent(), walk.insertBehind()) : nullptr;
}

HTREEITEM MultiTreeCtrl::Inserter::insertWalking(Node& node, bool& unused)
{
    ChildWalk walk(m_tree, m_parent.item());
    unused = walk.findPlace(m_where, node);
    return unused ? walk.child() : insertBefore(node, walk);
}

HTREEITEM MultiTreeCtrl::Inserter::insertAt(Node& node, int position)
{
    ChildWalk walk(m_tree, m_parent.item());
    if (position < 0)
        walk.moveTo(nullptr);
    for (; position > 0 && !walk.atEnd(); --position)
        walk.advance();
    return insertBefore(node, walk);
}

// Halving, where the host keeps sorted children in order

HTREEITEM MultiTreeCtrl::Inserter::insertHalving(Node& node, bool& unused)
{
    const HTREEITEM parent = m_parent.item();
    const unsigned structure = m_state->structure;
    const auto unchanged = [&](unsigned since) { return m_state->usable() && m_state->structure == since; };
    const auto compare = [&](const Child& child) {
        const OVO::Handle<Node> other = unchanged(structure) ? m_state->insertion->nodeOf(child) : nullptr;
        return other ? m_where.compareChildren(m_tree, *other, node) : -1;
    };

    Children children = m_state->insertion->takeChildren(parent);
    const Children::Place place =
        children.partitionPoint([&](const Child& child) { return compare(child) < 0; });
    const Child* const behind = children.after(place);
    unused = behind && compare(*behind) == 0;
    // A comparison has changed the tree: what was found is of no use.
    if (!unchanged(structure))
        return m_state->usable() && m_parent ? insertWalking(node, unused) : nullptr;

    HTREEITEM item = nullptr;
    if (unused) {
        item = behind->item;
    } else {
        const Child* const before = children.before(place);
        item = node.insert(m_tree, parent, !behind ? TVI_LAST : before ? before->item : TVI_FIRST);
        if (!item || !unchanged(structure + 1)) // the node was asked for its text meanwhile
            return item;
        children.insert(place, Child{item, &node});
    }
    m_state->insertion->remember(parent, std::move(children));
    return item;
}

// Many

/// Puts the nodes into order first. Then one walk over the children finds all places: a node that sorts
/// behind another one has its place at or behind that one's.
void MultiTreeCtrl::Inserter::insert(const std::vector<Node*>& nodes, int position,
                                     std::vector<HTREEITEM>& items, std::vector<bool>& unused)
{
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < nodes.size(); ++i)
        if (nodes[i])
            order.push_back(i);
    if (m_sorted)
        sortStably(order, [&](std::size_t a, std::size_t b) {
            return m_state->usable() ? m_where.compareChildren(m_tree, *nodes[a], *nodes[b]) : 0;
        });
    if (!m_state->usable() || !m_parent) {
        unused.assign(nodes.size(), true);
        return;
    }
    const ItemList watch(m_state, {});
    ChildWalk walk(m_tree, m_parent.item());
    for (int passed = 0; !m_sorted && (position < 0 || passed < position) && !walk.atEnd(); ++passed)
        walk.advance();
    const Node* former = nullptr;
    HTREEITEM formerItem = nullptr;
    for (const std::size_t i : order) {
        Node& node = *nodes[i];
        if (m_sorted && walk.usable() && former && m_where.compareChildren(m_tree, *former, node) == 0) {
            items[i] = formerItem;
            unused[i] = true;
            continue;
        }
        unused[i] = m_sorted && walk.findPlace(m_where, node);
        items[i] = unused[i] ? walk.child() : insertBefore(node, walk);
        unused[i] = unused[i] || !walk.usable();
        former = &node;
        formerItem = items[i];
    }
    // Those that were deleted again while others were inserted.
    for (std::size_t i = 0; i < nodes.size(); ++i)
        if (watch.isGone(items[i]) && nodes[i]->hTreeItem() != items[i])
            items[i] = nullptr;
}
