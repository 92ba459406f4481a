#include <ovoui/tree/Expansion.h>

#include <ovoui/tree/Deletion.h>
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/LayoutHold.h>
#include <ovoui/tree/RowKeeper.h>
#include <ovoui/tree/core/ExpansionRule.h>

using namespace ovoui::frame;
using namespace ovoui::tree;

namespace
{

/// The bits that an item gets from its node when it was opened or closed: all but whether it is selected.
constexpr UINT kRestoredState = 0xFC;

bool isOpen(const TVITEM& item)
{
    return (item.state & TVIS_EXPANDED) != 0;
}

} // namespace

// The control's handlers

BOOL MultiTreeCtrl::OnItemexpanding(NMHDR* header, LRESULT* result)
{
    *result = FALSE;
    return m_state->expansion->before(*reinterpret_cast<const NMTREEVIEW*>(header), *result);
}

BOOL MultiTreeCtrl::OnItemexpanded(NMHDR* header, LRESULT* result)
{
    *result = 0;
    return m_state->expansion->after(*reinterpret_cast<const NMTREEVIEW*>(header));
}

// Opening

bool MultiTreeCtrl::Expansion::before(const NMTREEVIEW& notification, LRESULT& result)
{
    const TVITEM& item = notification.itemNew;
    const ExpansionStep step = expansionRule(Moment::Before, notification.action, isOpen(item));
    if (step == ExpansionStep::PassOn)
        return false;
    const OVO::Handle<Node> node = view().node(item.hItem);
    if (!node) {
        result = view().isDoomed(item.hItem); // an item that is about to go does not open
        return false;
    }
    node->state = item.state & ~TVIS_EXPANDEDONCE;
    if (step == ExpansionStep::Open)
        open(*node, item.hItem, result);
    return true;
}

/// Has the node insert its children; the item stays closed exactly when it says that it cannot.
void MultiTreeCtrl::Expansion::open(Node& node, HTREEITEM item, LRESULT& result)
{
    const HostCalls host(tree());
    std::exception_ptr foreign;
    {
        const CWaitCursor wait;
        const PlatformHold opening(m_state.holds, PlatformHolds::Kind::Opening, item);
        host.reportKeeping(foreign, [&] { result = !node.expand(tree()); });
        if (host.usable())
            host.reportKeeping(foreign, [&] { restoreState(node, item); });
    }
    // An item that is to go, or was inserted anew elsewhere, does not open.
    if (node.hTreeItem() != item)
        result = TRUE;
    m_state.deletion->deleteDoomed();
    raise(foreign);
}

void MultiTreeCtrl::Expansion::restoreState(Node& node, HTREEITEM item)
{
    if (node.hTreeItem() != item)
        return;
    view().setState(item, node.state, kRestoredState);
    tree().updateUI(node);
}

// Closing

bool MultiTreeCtrl::Expansion::after(const NMTREEVIEW& notification)
{
    const TVITEM& item = notification.itemNew;
    const HostCalls host(tree());
    const RowKeeper::HiddenItem note(tree(), item.hItem);
    const OVO::Handle<Node> node = view().node(item.hItem);
    if (!node)
        return false;
    if (item.mask & TVIF_CHILDREN)
        node->children = item.cChildren;
    node->state = item.state & ~TVIS_EXPANDEDONCE;
    const ExpansionStep step = expansionRule(Moment::After, notification.action, isOpen(item));
    std::exception_ptr foreign;
    {
        const PlatformHold opening(m_state.holds, PlatformHolds::Kind::Opening, item.hItem);
        host.reportKeeping(foreign, [&] {
            if (step == ExpansionStep::Empty)
                close(*node, item.hItem);
            else
                tree().updateUI(*node);
        });
        if (host.usable() && node->hTreeItem() == item.hItem && view().isOpen(item.hItem))
            host.reportKeeping(foreign, [&] { m_state.meetChildren(item.hItem); });
    }
    m_state.deletion->deleteDoomed();
    raise(foreign);
    return true;
}

void MultiTreeCtrl::Expansion::settles(const Message& message, HTREEITEM item)
{
    const OVO::Handle<Node> node = message.id == TVM_EXPAND ? view().node(item) : nullptr;
    if (!node || !(node->state & TVIS_EXPANDED) || view().isOpen(item))
        return;
    node->state = view().stateOf(item) & ~TVIS_EXPANDEDONCE;
    close(*node, item);
}

/// Tells the node, and deletes the children: they are made anew at every opening.
void MultiTreeCtrl::Expansion::close(Node& node, HTREEITEM item)
{
    const HostCalls host(tree());
    std::exception_ptr foreign;
    host.reportKeeping(foreign, [&] { node.collapse(tree()); });
    if (host.usable())
        m_state.forgetChildren(item);
    if (host.usable() && node.hTreeItem() == item) {
        host.reportKeeping(foreign, [&] { deleteChildren(item); });
        if (host.usable())
            host.reportKeeping(foreign, [&] { restoreState(node, item); });
    }
    raise(foreign);
}

void MultiTreeCtrl::Expansion::deleteChildren(HTREEITEM item)
{
    const HostCalls host(tree());
    const Tracker parent(shared(), item);
    // Or the caret would go from child to child, always one ahead of the deletion. Whatever the parent window
    // makes of the change, the children go.
    std::exception_ptr foreign;
    const HTREEITEM focus = view().caret();
    if (focus && view().isBelow(focus, item))
        keepFirst(foreign, [&] { view().setCaret(item); });
    const RedrawHold hold(tree().m_hWnd);
    if (host.usable() && parent)
        keepFirst(foreign, [&] {
            tree().DefWindowProc(TVM_EXPAND, TVE_COLLAPSE | TVE_COLLAPSERESET,
                                 reinterpret_cast<LPARAM>(item));
        });
    // The tree view may keep the children of an item that is closed already.
    if (host.usable() && parent && view().firstChild(item))
        keepFirst(foreign, [&] { deleteChildrenOneByOne(item); });
    raise(foreign);
}

void MultiTreeCtrl::Expansion::deleteChildrenOneByOne(HTREEITEM item)
{
    const HostCalls host(tree());
    const Tracker parent(shared(), item);
    const LayoutHold hold(tree());
    std::exception_ptr foreign;
    HTREEITEM former = nullptr;
    while (host.usable() && parent) {
        const HTREEITEM child = view().firstChild(item);
        if (!child || child == former)
            break;
        keepFirst(foreign, [&] { view().remove(child); });
        former = child;
    }
    raise(foreign);
}

// What the state asks for

template <>
std::shared_ptr<MultiTreeCtrl::Expansion> MultiTreeCtrl::State::make()
{
    return std::make_shared<Expansion>(*this);
}
