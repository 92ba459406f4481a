/// Not exported: the children of items that get many, in the order in which the tree shows them, and their
/// nodes. Kept only for hosts that promise to keep sorted children in order; see
/// MultiTreeCtrl::setSortedInsertion.
#pragma once

#include <ovoui/tree/MultiTreeCtrl.h>
#include <ovoui/tree/core/BlockList.h>

#include <optional>
#include <unordered_map>

namespace ovoui::tree
{

/// One of the children of an item.
struct Child
{
    HTREEITEM item;
    /// What the tree view has answered when it was first asked; null before, and for an item without a node.
    /// The tree's own reference to the node keeps it alive.
    mutable MultiTreeCtrl::Node* node = nullptr;
};

using Children = BlockList<Child>;

/// What is remembered of the children of some items, from one insertion to the next. It is forgotten when
/// their order, number or nodes change in another way.
class ChildOrders
{
public:
    /// Hands over what is remembered of a parent, if anything is. To be given back by remember() when it is
    /// still right: while the host is asked, nothing of it may change.
    std::optional<Children> take(HTREEITEM parent)
    {
        const auto found = m_orders.find(parent);
        if (found == m_orders.end())
            return std::nullopt;
        std::optional<Children> children(std::move(found->second));
        m_orders.erase(found);
        return children;
    }
    void remember(HTREEITEM parent, Children children)
    {
        m_orders.insert_or_assign(parent, std::move(children));
    }

    void forget(HTREEITEM parent) { m_orders.erase(parent); }
    void forgetAll() { m_orders.clear(); }

private:
    /// By parent, TVI_ROOT for the top level.
    std::unordered_map<HTREEITEM, Children> m_orders;
};

} // namespace ovoui::tree
