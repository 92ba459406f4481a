#include <ovoui/tree/Deletion.h>

#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>

#include <algorithm>

using namespace ovoui::frame;
using namespace ovoui::tree;

// The control's handlers and operations

BOOL MultiTreeCtrl::DeleteAllItems()
{
    return m_state->deletion->deleteAll();
}

void MultiTreeCtrl::OnDeleteitem(NMHDR* header, LRESULT* result)
{
    const TVITEM& item = reinterpret_cast<const NMTREEVIEW*>(header)->itemOld;
    *result = 0;
    const HostCalls host(*this);
    Deletion& deletion = *m_state->deletion;
    const std::size_t releasedBefore = m_state->released.size();
    deletion.forget(item.hItem, item.lParam);
    if (m_state->nativeCalls == 0)
        deletion.letGo(releasedBefore);
}

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

bool MultiTreeCtrl::Deletion::deleteAll()
{
    const HostCalls host(tree());
    std::exception_ptr foreign;
    bool done = false;
    if (view().isEditing())
        keepFirst(foreign, [this] { tree().DefWindowProc(TVM_ENDEDITLABELNOW, FALSE, 0); });
    if (host.usable())
        keepFirst(foreign, [&] {
            done = tree().DefWindowProc(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT)) != 0;
        });
    raise(foreign);
    return done;
}

// Nodes

void MultiTreeCtrl::Deletion::forget(HTREEITEM item, LPARAM data)
{
    m_state.forgetItem(item);
    releaseNode(item, data);
}

/// Drops the tree's reference to the node behind an item. A node without another is destroyed when the tree
/// view has finished what it is doing: its destructor may do anything to the tree.
void MultiTreeCtrl::Deletion::releaseNode(HTREEITEM item, LPARAM data)
{
    auto* node = reinterpret_cast<Node*>(data);
    if (!node)
        return;
    OVO::Handle<Node> last(node);
    node->release();
    // It may have been inserted anew meanwhile.
    if (node->m_hTreeItem == item)
        node->m_hTreeItem = nullptr;
    view().clearData(item);
    m_state.released.push_back(std::move(last));
}

void MultiTreeCtrl::Deletion::letGo(std::size_t releasedBefore)
{
    std::vector<OVO::Handle<Node>>& released = m_state.released;
    while (released.size() > releasedBefore) {
        const OVO::Handle<Node> node = std::move(released.back());
        released.pop_back();
    }
}

// Deletions that have to wait

bool MultiTreeCtrl::Deletion::arrives(Message& message)
{
    if (message.change == Change::Delete)
        return !postponesDeleting(message.item());
    if (message.empties() && postponesEmptying(message.item()))
        message.wParam &= ~static_cast<WPARAM>(TVE_COLLAPSERESET);
    return true;
}

/// What must not be deleted before the tree view has finished with the message.
void MultiTreeCtrl::Deletion::begins(const Message& message)
{
    PlatformHolds& holds = m_state.holds;
    // The one knows the neighbours of the deleted item, the other opens everything below the caret.
    if (message.change == Change::Delete || (message.id == WM_KEYDOWN && message.wParam == VK_MULTIPLY))
        holds.add(PlatformHolds::Kind::Everything);
    switch (message.id) {
    case TVM_SELECTITEM:
    case TVM_ENSUREVISIBLE:
    case TVM_EDITLABELW:
    case TVM_EDITLABELA:
        holds.add(PlatformHolds::Kind::Stays, message.item());
        break;
    }
    if (message.id == TVM_SELECTITEM && message.item())
        holds.add(PlatformHolds::Kind::Stays, view().caret());
}

void MultiTreeCtrl::Deletion::settles(const Message&, HTREEITEM)
{
    deleteDoomed();
}

bool MultiTreeCtrl::Deletion::mayGo(HTREEITEM item) const
{
    return m_state.holds.mayGo(item, [this](HTREEITEM a, HTREEITEM b) { return view().isBelow(a, b); });
}

bool MultiTreeCtrl::Deletion::postponesDeleting(HTREEITEM item)
{
    if (m_state.holds.empty())
        return false;
    const bool all = !item || item == TVI_ROOT;
    if (!all && mayGo(item))
        return false;
    for (const HTREEITEM doomed : all ? view().childrenOf(TVI_ROOT) : std::vector<HTREEITEM>{item})
        doom(doomed, false);
    return true;
}

/// The same for the children of an item that is being closed.
bool MultiTreeCtrl::Deletion::postponesEmptying(HTREEITEM item)
{
    if (m_state.holds.empty())
        return false;
    const std::vector<HTREEITEM> children = view().childrenOf(item);
    if (std::all_of(children.begin(), children.end(), [this](HTREEITEM child) { return mayGo(child); }))
        return false;
    for (const HTREEITEM child : children)
        doom(child, true);
    return true;
}

/// Lets go of the nodes of an item and of all below it; the items go later.
void MultiTreeCtrl::Deletion::doom(HTREEITEM item, bool parentClosed)
{
    if (view().isDoomed(item))
        return;
    const std::shared_ptr<State> state = shared();
    const std::size_t releasedBefore = state->released.size();
    detachNodes(item);
    state->doomed.push_back({item, parentClosed});
    if (state->nativeCalls == 0)
        letGo(releasedBefore);
}

void MultiTreeCtrl::Deletion::detachNodes(HTREEITEM item)
{
    for (const HTREEITEM child : view().childrenOf(item))
        detachNodes(child);
    forget(item, view().dataOf(item));
}

void MultiTreeCtrl::Deletion::deleteDoomed()
{
    std::exception_ptr foreign;
    while (m_state.nativeCalls == 0 && m_state.holds.empty() && !m_state.doomed.empty() && m_state.usable()) {
        const State::Doomed doomed = m_state.doomed.back();
        m_state.doomed.pop_back();
        keepFirst(foreign, [&] { deleteAfterwards(doomed.item, doomed.parentClosed); });
    }
    raise(foreign);
}

void MultiTreeCtrl::Deletion::deleteAfterwards(HTREEITEM item, bool parentClosed)
{
    const HostCalls host(tree());
    const Tracker parent(shared(), view().next(TVGN_PARENT, item));
    view().remove(item);
    // Without its last child the tree view takes the button from an item that can still be opened.
    if (parentClosed && host.usable() && parent)
        restoreButton(parent.item());
}

void MultiTreeCtrl::Deletion::restoreButton(HTREEITEM item)
{
    const OVO::Handle<Node> node = view().node(item);
    if (!node)
        return;
    TVITEM changes{};
    changes.mask = TVIF_HANDLE | TVIF_CHILDREN;
    changes.hItem = item;
    changes.cChildren = node->children;
    tree().DefWindowProc(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changes));
}

// What the state asks for

template <>
std::shared_ptr<MultiTreeCtrl::Deletion> MultiTreeCtrl::State::make()
{
    return std::make_shared<Deletion>(*this);
}
