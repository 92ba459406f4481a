// Opening and closing items, and what becomes of the nodes of items that go.
#include <ovoui/tree/NodeErrors.h>
#include <ovoui/tree/ParentNotificationFilter.h>
#include <ovoui/tree/RedrawHold.h>
#include <ovoui/tree/TreeState.h>

#include <algorithm>

using ovoui::tree::keepForeign;
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

/// So long, the tree view has an item in its hands.
class Opening
{
public:
    Opening(std::vector<HTREEITEM>& items, HTREEITEM item)
        : m_items(items)
    {
        m_items.push_back(item);
    }
    ~Opening() { m_items.pop_back(); }
    Opening(const Opening&) = delete;
    Opening& operator=(const Opening&) = delete;

private:
    std::vector<HTREEITEM>& m_items;
};

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
    const OVO::Handle<Node> node(reinterpret_cast<Node*>(item.lParam));
    if (!node)
        return FALSE;
    node->state = item.state & ~TVIS_EXPANDEDONCE;
    if (!isOpen)
        openItem(*node, item.hItem, result);
    return TRUE;
}

/// Has the node insert its children; the item stays closed exactly when it says that it cannot.
void MultiTreeCtrl::openItem(Node& node, HTREEITEM item, LRESULT* result)
{
    const std::shared_ptr<State> state = m_state;
    std::exception_ptr foreign;
    {
        const CWaitCursor wait;
        const Opening opening(state->opening, item);
        foreign = keepForeign(*this, [&] { *result = !node.expand(*this); });
        if (state->usable()) {
            const std::exception_ptr another = keepForeign(*this, [&] { restoreState(node, item); });
            foreign = foreign ? foreign : another;
        }
    }
    // The item itself is to go: then it had better not open.
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

/// When a program closes an item, the tree view may do so without a notification; the node must hear of it.
void MultiTreeCtrl::noticeClosing(HTREEITEM item)
{
    const OVO::Handle<Node> node = this->node(item);
    if (!node || !node->expanded())
        return;
    const auto state = static_cast<UINT>(ask(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), ~0u));
    if (state & TVIS_EXPANDED)
        return;
    node->state = state & ~TVIS_EXPANDEDONCE;
    closeItem(*node, item);
}

BOOL MultiTreeCtrl::OnItemexpanded(NMHDR* header, LRESULT* result)
{
    const auto& notification = *reinterpret_cast<const NMTREEVIEW*>(header);
    const TVITEM& item = notification.itemNew;
    *result = 0;
    const OVO::Handle<Node> node(reinterpret_cast<Node*>(item.lParam));
    if (!node)
        return FALSE;
    if (item.mask & TVIF_CHILDREN)
        node->children = item.cChildren;
    node->state = item.state & ~TVIS_EXPANDEDONCE;
    const std::shared_ptr<State> state = m_state;
    std::exception_ptr foreign;
    {
        const Opening opening(state->opening, item.hItem);
        foreign = keepForeign(*this, [&] {
            if (!isExpand(notification.action) && !(item.state & TVIS_EXPANDED))
                closeItem(*node, item.hItem);
            else if (node->hTreeItem() == item.hItem)
                updateUI(*node);
        });
    }
    deletePostponed(*state);
    raise(foreign);
    return TRUE;
}

/// Tells the node, and deletes the children: they are made anew at every opening.
void MultiTreeCtrl::closeItem(Node& node, HTREEITEM item)
{
    const std::shared_ptr<State> state = m_state;
    const std::exception_ptr foreign = keepForeign(*this, [&] { node.collapse(*this); });
    if (state->usable() && node.hTreeItem() == item) {
        deleteChildren(item);
        if (state->usable())
            restoreState(node, item);
    }
    raise(foreign);
}

void MultiTreeCtrl::deleteChildren(HTREEITEM item)
{
    const std::shared_ptr<State> state = m_state;
    // Or the caret would go from child to child, always one ahead of the deletion.
    const HTREEITEM focus = caret();
    if (focus && isBelow(focus, item))
        selectCaret(item);
    if (!state->usable())
        return;
    const RedrawHold hold(m_hWnd);
    DefWindowProc(TVM_EXPAND, kCollapseReset, reinterpret_cast<LPARAM>(item));
    // Should the tree view keep the children of an item that is closed already:
    for (HTREEITEM child = next(TVGN_CHILD, item); child; child = next(TVGN_CHILD, item)) {
        deleteItem(child);
        if (!state->usable() || next(TVGN_CHILD, item) == child)
            return;
    }
}

// Deleting

BOOL MultiTreeCtrl::DeleteAllItems()
{
    if (ask(TVM_GETEDITCONTROL))
        DefWindowProc(TVM_ENDEDITLABELNOW, FALSE, 0);
    return DefWindowProc(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT)) != 0;
}

void MultiTreeCtrl::OnDeleteitem(NMHDR* header, LRESULT* result)
{
    const TVITEM& item = reinterpret_cast<const NMTREEVIEW*>(header)->itemOld;
    *result = 0;
    if (m_state->edited == item.hItem) // an editor must not outlive its item
        ask(TVM_ENDEDITLABELNOW, TRUE);
    m_state->forgetItem(item.hItem);
    if (m_anchor == item.hItem)
        m_anchor = nullptr;
    if (m_editItem == item.hItem)
        stopEditTimer();
    releaseNode(item.hItem, item.lParam);
}

/// Drops the tree's reference to the node behind an item. A node that nobody else holds is destroyed when the
/// tree view has finished what it is doing: its destructor may do anything to the tree.
void MultiTreeCtrl::releaseNode(HTREEITEM item, LPARAM data)
{
    auto* node = reinterpret_cast<Node*>(data);
    if (!node)
        return;
    OVO::Handle<Node> last(node);
    node->release();
    // It may have been inserted anew meanwhile.
    if (node->m_hTreeItem == item)
        node->m_hTreeItem = nullptr;
    TVITEM cleared{};
    cleared.mask = TVIF_HANDLE | TVIF_PARAM;
    cleared.hItem = item;
    ask(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&cleared));
    if (m_state->nativeCalls > 0)
        m_state->released.push_back(std::move(last));
}

/// Lets go of the nodes of an item and of all below it, before the items go.
void MultiTreeCtrl::detachNodes(HTREEITEM item)
{
    for (HTREEITEM child = next(TVGN_CHILD, item); child; child = next(TVGN_NEXT, child))
        detachNodes(child);
    TVITEM data{};
    data.mask = TVIF_HANDLE | TVIF_PARAM;
    data.hItem = item;
    if (ask(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&data)))
        releaseNode(item, data.lParam);
}

/// With TVN_GETDISPINFO the parent may change an item's state without a message to the tree.
BOOL MultiTreeCtrl::OnGetdispinfo(NMHDR* header, LRESULT*)
{
    m_state->selection.add(reinterpret_cast<const NMTVDISPINFO*>(header)->item.hItem);
    return FALSE;
}
