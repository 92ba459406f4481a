// Deleting items, at once or when the tree view has finished with them, and what becomes of their nodes.
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>

#include <algorithm>

using ovoui::tree::keepFirst;
using ovoui::tree::keeping;
using ovoui::tree::PlatformHolds;

BOOL MultiTreeCtrl::DeleteAllItems()
{
    const HostCalls host(*this);
    std::exception_ptr foreign;
    bool done = false;
    if (ask(TVM_GETEDITCONTROL))
        keepFirst(foreign, [this] { DefWindowProc(TVM_ENDEDITLABELNOW, FALSE, 0); });
    if (host.usable())
        keepFirst(foreign,
                  [&] { done = DefWindowProc(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT)) != 0; });
    ovoui::tree::raise(foreign);
    return done;
}

void MultiTreeCtrl::deleteItem(HTREEITEM item)
{
    DefWindowProc(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item));
}

void MultiTreeCtrl::OnDeleteitem(NMHDR* header, LRESULT* result)
{
    const TVITEM& item = reinterpret_cast<const NMTREEVIEW*>(header)->itemOld;
    *result = 0;
    const std::size_t releasedBefore = m_state->released.size();
    itemGoes(item.hItem, item.lParam);
    if (m_state->nativeCalls == 0)
        letGo(*m_state, releasedBefore);
}

/// The control forgets an item and lets go of its node.
void MultiTreeCtrl::itemGoes(HTREEITEM item, LPARAM data)
{
    m_state->forgetItem(item);
    if (m_anchor == item)
        m_anchor = nullptr;
    if (m_editItem == item)
        stopEditTimer();
    releaseNode(item, data);
}

/// Drops the tree's reference to the node behind an item. A node without another is destroyed when the tree
/// view has finished what it is doing: its destructor may do anything to the tree.
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
    m_state->released.push_back(std::move(last));
}

/// Destroys the nodes released since there were so many, unless others hold them.
void MultiTreeCtrl::letGo(State& state, std::size_t releasedBefore)
{
    while (state.released.size() > releasedBefore) {
        const OVO::Handle<Node> node = std::move(state.released.back());
        state.released.pop_back();
    }
}

// Before

/// The item that a message to the tree view deletes with all below it, TVI_ROOT for all; null for none. When
/// the item itself stays, `itselfToo` becomes false.
HTREEITEM MultiTreeCtrl::itemDeletedBy(UINT message, WPARAM wParam, LPARAM lParam, bool& itselfToo)
{
    auto* const item = reinterpret_cast<HTREEITEM>(lParam);
    itselfToo = message != TVM_EXPAND;
    switch (message) {
    case WM_DESTROY:
        return TVI_ROOT;
    case TVM_DELETEITEM:
        return item ? item : TVI_ROOT;
    case TVM_EXPAND:
        return (wParam & TVE_COLLAPSERESET) ? item : nullptr;
    default:
        return nullptr;
    }
}

/// An editor must not outlive its item. It is closed before the tree view begins to delete, since the node
/// hears of it, and the tree view in the middle of a deletion could not stand what the node may do. False
/// when there is nothing left to delete.
bool MultiTreeCtrl::endEditOfDeleted(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HTREEITEM edited = m_state->edited;
    bool itselfToo = false;
    const HTREEITEM top = edited ? itemDeletedBy(message, wParam, lParam, itselfToo) : nullptr;
    if (!top || (top != TVI_ROOT && !(itselfToo && edited == top) && !isBelow(edited, top)))
        return true;
    const std::shared_ptr<State> state = m_state;
    const Tracker going(state, top);
    DefWindowProc(TVM_ENDEDITLABELNOW, TRUE, 0);
    return state->tree && m_hWnd && going;
}

// Postponed

/// The tree view goes on with the items that the caret leaves and comes to.
BOOL MultiTreeCtrl::OnSelchanging(NMHDR* header, LRESULT*)
{
    const auto& notification = *reinterpret_cast<const NMTREEVIEW*>(header);
    if (m_state->nativeCalls > 0) {
        m_state->holds.add(PlatformHolds::Kind::Stays, notification.itemOld.hItem);
        m_state->holds.add(PlatformHolds::Kind::Stays, notification.itemNew.hItem);
    }
    return FALSE; // the parent decides
}

bool MultiTreeCtrl::mayDelete(HTREEITEM item) const
{
    return m_state->holds.mayGo(item, [this](HTREEITEM a, HTREEITEM b) { return isBelow(a, b); });
}

/// Whether an item, or one above it, waits for its deletion: it counts as gone.
bool MultiTreeCtrl::isDoomed(HTREEITEM item) const
{
    const auto& postponed = m_state->postponed;
    if (postponed.empty())
        return false;
    for (; item; item = next(TVGN_PARENT, item))
        if (std::any_of(postponed.begin(), postponed.end(),
                        [item](const State::Postponed& each) { return each.item == item; }))
            return true;
    return false;
}

std::vector<HTREEITEM> MultiTreeCtrl::childrenOf(HTREEITEM item) const
{
    std::vector<HTREEITEM> children;
    HTREEITEM child = item && item != TVI_ROOT ? next(TVGN_CHILD, item) : next(TVGN_ROOT);
    for (; child; child = next(TVGN_NEXT, child))
        children.push_back(child);
    return children;
}

bool MultiTreeCtrl::postponesDeleting(HTREEITEM item)
{
    if (m_state->holds.empty())
        return false;
    const bool all = !item || item == TVI_ROOT;
    if (!all && mayDelete(item))
        return false;
    for (const HTREEITEM doomed : all ? childrenOf(TVI_ROOT) : std::vector<HTREEITEM>{item})
        postpone(doomed, false);
    return true;
}

/// The same for the children of an item that is being closed.
bool MultiTreeCtrl::postponesEmptying(HTREEITEM item)
{
    if (m_state->holds.empty())
        return false;
    const std::vector<HTREEITEM> children = childrenOf(item);
    if (std::all_of(children.begin(), children.end(), [this](HTREEITEM child) { return mayDelete(child); }))
        return false;
    for (const HTREEITEM child : children)
        postpone(child, true);
    return true;
}

/// Lets go of the nodes of an item and of all below it; the items go later.
void MultiTreeCtrl::postpone(HTREEITEM item, bool parentClosed)
{
    if (isDoomed(item))
        return;
    const std::shared_ptr<State> state = m_state;
    const std::size_t releasedBefore = state->released.size();
    detachNodes(item);
    state->postponed.push_back({item, parentClosed});
    if (state->nativeCalls == 0)
        letGo(*state, releasedBefore);
}

void MultiTreeCtrl::detachNodes(HTREEITEM item)
{
    for (HTREEITEM child = next(TVGN_CHILD, item); child; child = next(TVGN_NEXT, child))
        detachNodes(child);
    TVITEM data{};
    data.mask = TVIF_HANDLE | TVIF_PARAM;
    data.hItem = item;
    if (ask(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&data)))
        itemGoes(item, data.lParam);
}

void MultiTreeCtrl::deletePostponed(State& state)
{
    std::exception_ptr foreign;
    while (state.nativeCalls == 0 && state.holds.empty() && !state.postponed.empty() && state.usable()) {
        const State::Postponed postponed = state.postponed.back();
        state.postponed.pop_back();
        keepFirst(foreign, [&] { state.tree->deleteAfterwards(postponed.item, postponed.parentClosed); });
    }
    ovoui::tree::raise(foreign);
}

void MultiTreeCtrl::deleteAfterwards(HTREEITEM item, bool parentClosed)
{
    const HostCalls host(*this);
    const Tracker parent(m_state, next(TVGN_PARENT, item));
    deleteItem(item);
    // Without its last child the tree view takes the button from an item that can still be opened.
    if (parentClosed && host.usable() && parent)
        restoreButton(parent.item());
}

void MultiTreeCtrl::restoreButton(HTREEITEM item)
{
    const OVO::Handle<Node> node = this->node(item);
    if (!node)
        return;
    TVITEM changes{};
    changes.mask = TVIF_HANDLE | TVIF_CHILDREN;
    changes.hItem = item;
    changes.cChildren = node->children;
    DefWindowProc(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changes));
}

// Under a parent that is no window of the framework, which does not tell us of deleted items

std::vector<OVO::Handle<MultiTreeCtrl::Node>> MultiTreeCtrl::nodesGoingUnreported(UINT message, WPARAM wParam,
                                                                                  LPARAM lParam) const
{
    std::vector<OVO::Handle<Node>> nodes;
    auto* item = reinterpret_cast<HTREEITEM>(lParam);
    const bool deletes = message == TVM_DELETEITEM || message == WM_DESTROY;
    const bool empties = message == TVM_EXPAND && (wParam & TVE_COLLAPSERESET);
    if ((!deletes && !empties) || CWnd::FromHandlePermanent(::GetParent(m_hWnd)))
        return nodes;
    const auto collect = [&](auto&& self, HTREEITEM at) -> void {
        if (OVO::Handle<Node> node = this->node(at))
            nodes.push_back(std::move(node));
        for (const HTREEITEM child : childrenOf(at))
            self(self, child);
    };
    if (message == TVM_DELETEITEM && item && item != TVI_ROOT)
        collect(collect, item);
    else
        for (const HTREEITEM child : childrenOf(empties ? item : TVI_ROOT))
            collect(collect, child);
    return nodes;
}

/// Those whose items are gone, but which were not let go.
void MultiTreeCtrl::releaseUnreported(State& state, const std::vector<OVO::Handle<Node>>& nodes)
{
    for (const OVO::Handle<Node>& node : nodes) {
        const HTREEITEM item = std::exchange(node->m_hTreeItem, nullptr);
        if (!item)
            continue;
        state.forgetItem(item);
        if (state.tree && state.tree->m_anchor == item)
            state.tree->m_anchor = nullptr;
        node->release();
    }
}
