// Bringing items up to date with their nodes.
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/RedrawHold.h>

#include <unordered_set>

namespace
{

/// The state bits that a node decides about.
constexpr UINT kNodesState = TVIS_CUT | TVIS_DROPHILITED | TVIS_BOLD;

} // namespace

void MultiTreeCtrl::updateUI(Node& node)
{
    const HTREEITEM item = node.hTreeItem();
    if (!item)
        return;
    const OVO::Handle<Node> held(&node); // without an item it may have no reference to share
    const HostCalls host(*this);
    std::wstring label = node.text(*this);
    TVITEM changes{};
    changes.mask = TVIF_HANDLE | TVIF_TEXT | TVIF_STATE | TVIF_CHILDREN | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    changes.hItem = item;
    changes.pszText = label.data();
    changes.state = node.state;
    changes.stateMask = kNodesState;
    changes.cChildren = node.children;
    changes.iImage = node.image();
    changes.iSelectedImage = node.children == 0 ? node.openImage() : changes.iImage;
    if (!host.usable() || node.hTreeItem() != item) // the questions above have changed the tree
        return;
    DefWindowProc(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changes));
    if (host.usable() && node.hTreeItem() == item && item == caret())
        notifyTvnSelchanged(TVC_UNKNOWN, item, item, CPoint(0, 0));
}

void MultiTreeCtrl::updateUI(HTREEITEM item)
{
    if (const OVO::Handle<Node> node = this->node(item))
        updateUI(*node);
}

/// The redraw command: every node looks at what it stands for, and some go.
void MultiTreeCtrl::OnRedraw()
{
    const HostCalls host(*this);
    const ovoui::tree::RedrawHold hold(m_hWnd);
    host.report([&] {
        std::unordered_set<const Node*> seen;
        std::vector<OVO::Handle<Node>> held; // so that no new node takes the place of one seen
        Tracker item(m_state, firstItem(), Tracker::WhenDeleted::NextInTree);
        while (host.usable() && item) {
            const OVO::Handle<Node> node = this->node(item.item());
            // A node that inserts itself anew would never end.
            const bool known = !node || !seen.insert(node.get()).second;
            const bool goesInto = known || refreshItem(*node, item.item());
            if (node)
                held.push_back(node);
            if (!host.usable())
                return;
            // Unless the tracker had to go on by itself, because the item is gone.
            item.moveTo(item.moved() ? item.item() : nextItem(item.item(), goesInto));
        }
    });
}

/// Whether the item is still there.
bool MultiTreeCtrl::refreshItem(Node& node, HTREEITEM item)
{
    const HostCalls host(*this);
    const Tracker refreshed(m_state, item);
    const bool stays = node.refresh();
    if (!host.usable() || !refreshed)
        return false;
    if (stays)
        updateUI(node);
    else
        deleteItem(item);
    return stays;
}
