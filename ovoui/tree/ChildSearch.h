/// Not exported: where a node sorts among the children of an insertion point.
#pragma once

#include <ovoui/tree/ChildOrders.h>

namespace ovoui::tree
{

/// Compares the remembered children of a parent with a node, as long as they stay what they are: the host's
/// comparison may do anything to the tree.
class ChildSearch
{
public:
    /// The children of `where` must be remembered in `orders`.
    ChildSearch(MultiTreeCtrl& tree, MultiTreeCtrl::InsertionPoint& where, ChildOrders& orders);

    /// The place before the first child that does not sort before the node. Found by halving where there are
    /// many children that are in order, else by going from one to the next.
    Children::Place find(const MultiTreeCtrl::Node& node);

    /// The child that sorts the same as the last node, at the place found; null for none.
    HTREEITEM equal() const { return m_equal; }

    /// Whether every child sorts before the one behind it, or the same.
    bool inOrder();

    /// False when a comparison has changed the tree: what was found is of no use then.
    bool reliable() const { return m_reliable; }

    const Children& children() const { return m_order->children; }

private:
    int compare(const MultiTreeCtrl::Node& a, const MultiTreeCtrl::Node& b);
    Children::Place byHalving(const MultiTreeCtrl::Node& node);
    Children::Place byWalking(const MultiTreeCtrl::Node& node);

    MultiTreeCtrl& m_tree;
    MultiTreeCtrl::InsertionPoint& m_where;
    ChildOrders& m_orders;
    const HTREEITEM m_parent;
    const std::shared_ptr<ChildOrder> m_order; ///< shared, so that it stays while it is walked over
    HTREEITEM m_equal = nullptr;
    bool m_reliable = true;
};

} // namespace ovoui::tree
