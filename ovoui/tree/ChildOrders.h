/// Not exported: the children of items that get many, in the order in which the tree shows them.
#pragma once

#include <ovoui/tree/MultiTreeCtrl.h>
#include <ovoui/tree/core/BlockList.h>

#include <memory>
#include <unordered_map>

namespace ovoui::tree
{

struct Child
{
    HTREEITEM item;
    const MultiTreeCtrl::Node* node; ///< null for an item without one
};

using Children = BlockList<Child>;

/// The children of one item.
struct ChildOrder
{
    Children children;
    /// By whom the children were found to be in order; null when they were not looked at.
    const MultiTreeCtrl::InsertionPoint* sortedBy = nullptr;
};

/// What is remembered of the children of some items, from one insertion to the next. Whoever changes the
/// order or the number of children in another way makes it forget.
class ChildOrders
{
public:
    bool empty() const { return m_orders.empty(); }

    /// Null when nothing is remembered of this parent.
    std::shared_ptr<ChildOrder> find(HTREEITEM parent) const;
    void remember(HTREEITEM parent, Children children);

    void forget(HTREEITEM parent) { m_orders.erase(parent); }
    void forgetAll() { m_orders.clear(); }

    /// The children of a parent may no longer be in order, or those of all.
    void distrust(HTREEITEM parent);
    void distrustAll();

private:
    std::unordered_map<HTREEITEM, std::shared_ptr<ChildOrder>>
        m_orders; ///< by parent, TVI_ROOT for the top level
};

} // namespace ovoui::tree
