// Bringing items up to date with their nodes.
#include <ovoui/tree/RedrawHold.h>
#include <ovoui/tree/NodeErrors.h>
#include <ovoui/tree/TreeState.h>

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
    if (node.hTreeItem() != item) // the questions above have changed the tree
        return;
    DefWindowProc(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changes));
    if (item == caret())
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
    const std::shared_ptr<State> state = m_state;
    const ovoui::tree::RedrawHold hold(m_hWnd);
    ovoui::tree::reportErrors(*this, [&] {
        std::unordered_set<const Node*> seen;
        std::vector<OVO::Handle<Node>> held; // so that no new node takes the place of one seen
        State::Tracker item(state, next(TVGN_ROOT), State::Tracker::WhenDeleted::MoveOn);
        while (state->usable() && item) {
            const HTREEITEM current = item.item();
            const OVO::Handle<Node> node = this->node(current);
            // A node that inserts itself anew would never end.
            const bool known = !node || !seen.insert(node.get()).second;
            if (known) {
                item.moveTo(nextItem(current, true));
                continue;
            }
            held.push_back(node);
            refreshItem(*node, current);
            // Unless the tracker had to go on by itself, because the item is gone.
            if (state->usable() && item.item() == current)
                item.moveTo(nextItem(current, node->hTreeItem() == current));
        }
    });
}

void MultiTreeCtrl::refreshItem(Node& node, HTREEITEM item)
{
    const std::shared_ptr<State> state = m_state;
    const bool stays = node.refresh();
    if (!state->usable() || node.hTreeItem() != item)
        return;
    if (stays)
        updateUI(node);
    else
        deleteItem(item);
}
