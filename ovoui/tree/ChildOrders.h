/// Not exported: the children of items that get many, in the order in which the tree shows them. Kept only
/// for hosts that promise to keep sorted children in order; see MultiTreeCtrl::setSortedInsertion.
#pragma once

#include <ovoui/tree/core/BlockList.h>

#include <windows.h>
#include <commctrl.h>

#include <optional>
#include <unordered_map>

namespace ovoui::tree
{

using Children = BlockList<HTREEITEM>;

/// What is remembered of the children of some items, from one insertion to the next. It is forgotten when
/// their order or number changes in another way.
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
