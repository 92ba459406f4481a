// Opening and closing items.
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/LayoutHold.h>
#include <ovoui/tree/RedrawHold.h>
#include <ovoui/tree/RowKeeper.h>

using ovoui::tree::keepFirst;
using ovoui::tree::PlatformHold;
using ovoui::tree::PlatformHolds;
using ovoui::tree::raise;
using ovoui::tree::RedrawHold;

namespace
{

constexpr UINT kCollapseReset = TVE_COLLAPSE | TVE_COLLAPSERESET;

/// The bits that an item gets from its node when it was opened or closed: all but whether it is selected.
constexpr UINT kRestoredState = 0xFC;

bool isExpand(UINT action)
{
    return action == TVE_EXPAND || action == TVE_EXPANDPARTIAL;
}

} // namespace

// Opening

BOOL MultiTreeCtrl::OnItemexpanding(NMHDR* header, LRESULT* result)
{
    const auto& notification = *reinterpret_cast<const NMTREEVIEW*>(header);
    const TVITEM& item = notification.itemNew;
    const bool isOpen = (item.state & TVIS_EXPANDED) != 0;
    *result = FALSE;
    if (notification.action == TVE_COLLAPSE || notification.action == kCollapseReset)
        return FALSE;
    if (isExpand(notification.action) && isOpen)
        return FALSE;
    const OVO::Handle<Node> node = this->node(item.hItem);
    if (!node) {
        *result = isDoomed(item.hItem); // an item that is about to go does not open
        return FALSE;
    }
    node->state = item.state & ~TVIS_EXPANDEDONCE;
    if (!isOpen)
        openItem(*node, item.hItem, result);
    return TRUE;
}

/// Has the node insert its children; the item stays closed exactly when it says that it cannot.
void MultiTreeCtrl::openItem(Node& node, HTREEITEM item, LRESULT* result)
{
    const std::shared_ptr<State> state = m_state;
    const HostCalls host(*this);
    std::exception_ptr foreign;
    {
        const CWaitCursor wait;
        const PlatformHold opening(state->holds, PlatformHolds::Kind::Opening, item);
        host.reportKeeping(foreign, [&] { *result = !node.expand(*this); });
        if (host.usable())
            host.reportKeeping(foreign, [&] { restoreState(node, item); });
    }
    // An item that is to go, or was inserted anew elsewhere, does not open.
    if (node.hTreeItem() != item)
        *result = TRUE;
    deletePostponed(*state);
    raise(foreign);
}

void MultiTreeCtrl::restoreState(Node& node, HTREEITEM item)
{
    if (node.hTreeItem() != item)
        return;
    setItemState(item, node.state, kRestoredState);
    updateUI(node);
}

// Closing

BOOL MultiTreeCtrl::OnItemexpanded(NMHDR* header, LRESULT* result)
{
    const auto& notification = *reinterpret_cast<const NMTREEVIEW*>(header);
    const TVITEM& item = notification.itemNew;
    *result = 0;
    const HiddenItemNote note(*this, item.hItem);
    const OVO::Handle<Node> node = this->node(item.hItem);
    if (!node)
        return FALSE;
    if (item.mask & TVIF_CHILDREN)
        node->children = item.cChildren;
    node->state = item.state & ~TVIS_EXPANDEDONCE;
    const std::shared_ptr<State> state = m_state;
    const HostCalls host(*this);
    std::exception_ptr foreign;
    {
        const PlatformHold opening(state->holds, PlatformHolds::Kind::Opening, item.hItem);
        host.reportKeeping(foreign, [&] {
            if (!isExpand(notification.action) && !(item.state & TVIS_EXPANDED))
                closeItem(*node, item.hItem);
            else
                updateUI(*node);
        });
    }
    deletePostponed(*state);
    raise(foreign);
    return TRUE;
}

/// When a program closes an item, the tree view may do so without a notification; the node must hear of it.
void MultiTreeCtrl::noticeClosing(HTREEITEM item)
{
    const OVO::Handle<Node> node = this->node(item);
    if (!node || !(node->state & TVIS_EXPANDED))
        return;
    const auto state = static_cast<UINT>(ask(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), ~0u));
    if (state & TVIS_EXPANDED)
        return;
    node->state = state & ~TVIS_EXPANDEDONCE;
    closeItem(*node, item);
}

/// Tells the node, and deletes the children: they are made anew at every opening.
void MultiTreeCtrl::closeItem(Node& node, HTREEITEM item)
{
    const HostCalls host(*this);
    std::exception_ptr foreign;
    host.reportKeeping(foreign, [&] { node.collapse(*this); });
    if (host.usable() && node.hTreeItem() == item) {
        host.reportKeeping(foreign, [&] { deleteChildren(item); });
        if (host.usable())
            host.reportKeeping(foreign, [&] { restoreState(node, item); });
    }
    raise(foreign);
}

void MultiTreeCtrl::deleteChildren(HTREEITEM item)
{
    const HostCalls host(*this);
    const Tracker parent(m_state, item);
    // Or the caret would go from child to child, always one ahead of the deletion. Whatever the parent window
    // makes of the change, the children go.
    std::exception_ptr foreign;
    const HTREEITEM focus = caret();
    if (focus && isBelow(focus, item))
        keepFirst(foreign, [&] { selectCaret(item); });
    const RedrawHold hold(m_hWnd);
    if (host.usable() && parent)
        keepFirst(foreign,
                  [&] { DefWindowProc(TVM_EXPAND, kCollapseReset, reinterpret_cast<LPARAM>(item)); });
    // The tree view may keep the children of an item that is closed already.
    if (host.usable() && parent && firstChild(item))
        keepFirst(foreign, [&] { deleteChildrenOneByOne(item); });
    raise(foreign);
}

void MultiTreeCtrl::deleteChildrenOneByOne(HTREEITEM item)
{
    const HostCalls host(*this);
    const Tracker parent(m_state, item);
    const LayoutHold hold(*this);
    std::exception_ptr foreign;
    HTREEITEM former = nullptr;
    while (host.usable() && parent) {
        const HTREEITEM child = firstChild(item);
        if (!child || child == former)
            break;
        keepFirst(foreign, [&] { deleteItem(child); });
        former = child;
    }
    raise(foreign);
}
