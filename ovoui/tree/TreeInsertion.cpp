// Inserting nodes: one by one, in a batch, with a selection.
#include <ovoui/tree/AppendPosition.h>
#include <ovoui/tree/BorrowedNode.h>
#include <ovoui/tree/Inserter.h>
#include <ovoui/tree/LayoutHold.h>

using ovoui::tree::BorrowedNode;

namespace
{

/// The state bits that an item is inserted with: all but the lowest.
constexpr UINT kInsertedState = 0xFE;

} // namespace

/// Node::insert's part of the tree: the item, with nothing done to the node.
HTREEITEM MultiTreeCtrl::insertItem(const Node& node, HTREEITEM parent, HTREEITEM after)
{
    std::wstring label = node.text(*this);
    TVINSERTSTRUCT insert{};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_STATE | TVIF_CHILDREN | TVIF_PARAM;
    insert.item.pszText = label.data();
    insert.item.iImage = node.image();
    insert.item.iSelectedImage = insert.item.iImage;
    insert.item.state = node.state;
    insert.item.stateMask = kInsertedState;
    insert.item.cChildren = node.children;
    insert.item.lParam = reinterpret_cast<LPARAM>(&node);

    State& state = *m_state;
    if (after == TVI_LAST && state.appended && state.appendedTo == parent)
        insert.hInsertAfter = ovoui::tree::behindLast(state.appended);
    const auto item =
        reinterpret_cast<HTREEITEM>(DefWindowProc(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
    if (after == TVI_LAST) {
        state.appendedTo = parent;
        state.appended = item;
    }
    return item;
}

HTREEITEM MultiTreeCtrl::insert(Node* node, InsertionPoint& where, int position)
{
    if (!node)
        return nullptr;
    BorrowedNode borrowed(*node);
    if (!where.expanded()) {
        borrowed.giveUp();
        return nullptr;
    }
    Inserter inserter(*this, where);
    if (!where.canCompare())
        return inserter.insertAt(*node, position);
    bool duplicate = false;
    const HTREEITEM item = inserter.insertSorted(*node, duplicate);
    if (duplicate)
        borrowed.giveUp();
    return item;
}

std::vector<HTREEITEM> MultiTreeCtrl::insertBatch(const std::vector<Node*>& nodes, InsertionPoint& where,
                                                  int position)
{
    std::vector<BorrowedNode> borrowed;
    for (const Node* node : nodes)
        if (node)
            borrowed.emplace_back(*node);
    std::vector<HTREEITEM> items(nodes.size());
    const bool refused = !where.expanded();
    if (!refused) {
        const LayoutHold hold(*this);
        Inserter inserter(*this, where);
        if (where.canCompare())
            inserter.insertSorted(nodes, items);
        else
            inserter.insertBlock(nodes, position, items);
    }
    // Refused, or there already: held once more, so that one that came twice is destroyed once.
    std::vector<OVO::Handle<Node>> unused;
    for (std::size_t i = 0; i < nodes.size(); ++i)
        if (nodes[i] && (refused || (items[i] && nodes[i]->hTreeItem() != items[i])))
            unused.emplace_back(nodes[i]);
    borrowed.clear();
    return items;
}

// Inserting with a selection

HTREEITEM MultiTreeCtrl::insertAndSelect(Node* node, bool& first, HTREEITEM parent, HTREEITEM after)
{
    const HTREEITEM item = node ? node->insert(*this, parent, after) : nullptr;
    selectInserted(item, first);
    return item;
}

HTREEITEM MultiTreeCtrl::insertAndSelect(Node* node, bool& first, InsertionPoint& where, int position)
{
    const HTREEITEM item = insert(node, where, position);
    selectInserted(item, first);
    return item;
}

void MultiTreeCtrl::selectInserted(HTREEITEM item, bool& first)
{
    if (!item)
        return;
    const State::Tracker inserted(m_state, item);
    if (first) {
        doSelectItem(item);
        first = false;
    }
    if (!inserted)
        return;
    setSelected(item, true);
    m_anchor = item;
}

// Holding the layout

MultiTreeCtrl::LayoutHold::LayoutHold(MultiTreeCtrl& tree)
    : m_state(tree.m_state)
    , m_holds(m_state->redraws)
    , m_redraw(tree.m_hWnd)
{
    if (m_holds)
        tree.DefWindowProc(WM_SETREDRAW, FALSE, 0);
}

MultiTreeCtrl::LayoutHold::~LayoutHold()
{
    if (m_holds && m_state->usable())
        m_state->tree->DefWindowProc(WM_SETREDRAW, TRUE, 0);
}
