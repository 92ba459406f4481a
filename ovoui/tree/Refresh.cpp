#include <ovoui/tree/Refresh.h>

#include <ovoui/tree/CheckBoxConcern.h>
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/frame/RedrawHold.h>

#include <unordered_set>

namespace
{

/// The state bits that a node decides about.
constexpr UINT kNodesState = TVIS_CUT | TVIS_DROPHILITED | TVIS_BOLD;

} // namespace

// The control's operations and handler

void MultiTreeCtrl::updateUI(Node& node)
{
    const HTREEITEM item = node.hTreeItem();
    if (!item)
        return;
    const OVO::Handle<Node> held(&node); // without an item it may have no reference to share
    const HostCalls host(*this);
    const std::shared_ptr<State> state = m_state;
    std::wstring label = node.text(*this);
    TVITEM changes{};
    changes.mask = TVIF_HANDLE | TVIF_TEXT | TVIF_STATE | TVIF_CHILDREN | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    changes.hItem = item;
    changes.pszText = label.data();
    const TVITEM box = state->checkBoxes->stateImage(node);
    changes.state = (node.state & kNodesState) | box.state;
    changes.stateMask = kNodesState | box.stateMask;
    changes.cChildren = node.children;
    changes.iImage = node.image();
    changes.iSelectedImage = node.children == 0 ? node.openImage() : changes.iImage;
    if (!host.usable() || node.hTreeItem() != item) // the questions above have changed the tree
        return;
    DefWindowProc(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changes));
    if (host.usable() && node.hTreeItem() == item && item == state->view.caret())
        notifyTvnSelchanged(TVC_UNKNOWN, item, item, CPoint(0, 0));
}

void MultiTreeCtrl::updateUI(HTREEITEM item)
{
    if (const OVO::Handle<Node> node = this->node(item))
        updateUI(*node);
}

void MultiTreeCtrl::OnRedraw()
{
    const HostCalls host(*this);
    const ovoui::frame::RedrawHold hold(m_hWnd);
    host.report([this] { Refresh(*this).all(); });
}

// Refreshing

void MultiTreeCtrl::Refresh::all() const
{
    const HostCalls host(m_tree);
    const std::shared_ptr<State> state = m_tree.m_state;
    std::unordered_set<const Node*> seen;
    std::vector<OVO::Handle<Node>> held; // so that no new node takes the place of one seen
    Tracker item(state, state->view.first(), Tracker::WhenDeleted::NextInTree);
    while (host.usable() && item) {
        const OVO::Handle<Node> node = state->view.node(item.item());
        // A node that inserts itself anew would never end.
        const bool known = !node || !seen.insert(node.get()).second;
        const bool goesInto = known || refresh(*node, item.item());
        if (node)
            held.push_back(node);
        if (!host.usable())
            return;
        // Unless the tracker had to go on by itself, because the item is gone.
        item.moveTo(item.moved() ? item.item() : state->view.nextItem(item.item(), goesInto));
    }
}

bool MultiTreeCtrl::Refresh::refresh(Node& node, HTREEITEM item) const
{
    const HostCalls host(m_tree);
    const Tracker refreshed(m_tree.m_state, item);
    const bool stays = node.refresh();
    if (!host.usable() || !refreshed)
        return false;
    if (stays)
        m_tree.updateUI(node);
    else
        m_tree.m_state->view.remove(item);
    return stays;
}
