// Inserting nodes: one by one, in a batch, with a selection.
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/Inserter.h>
#include <ovoui/tree/LayoutHold.h>
#include <ovoui/tree/Platform.h>

using ovoui::tree::BorrowedNode;

namespace
{

/// The state bits that an item is inserted with: all but the lowest.
constexpr UINT kInsertedState = 0xFE;

} // namespace

/// Node::insert's part of the tree: the item, with nothing done to the node. What the node is asked may
/// delete the places given.
HTREEITEM MultiTreeCtrl::insertItem(const Node& node, HTREEITEM parent, HTREEITEM after)
{
    const HostCalls host(*this);
    const std::shared_ptr<State> state = m_state;
    const Tracker under(state, parent ? parent : TVI_ROOT);
    const Tracker behind(state, after, Tracker::WhenDeleted::PreviousSibling);
    const HTREEITEM itemBefore = node.m_hTreeItem;
    std::wstring label = node.text(*this);
    TVINSERTSTRUCT insert{};
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_STATE | TVIF_CHILDREN | TVIF_PARAM;
    insert.item.pszText = label.data();
    insert.item.iImage = node.image();
    insert.item.iSelectedImage = insert.item.iImage;
    insert.item.state = node.state;
    insert.item.stateMask = kInsertedState;
    insert.item.cChildren = node.children;
    insert.item.lParam = reinterpret_cast<LPARAM>(&node);
    // The node may have got another item meanwhile, by its own doing.
    if (!host.usable() || !under || node.m_hTreeItem != itemBefore)
        return nullptr;
    insert.hParent = under.item();
    insert.hInsertAfter = behindLastIfKnown(under.item(), behind.item());
    const HTREEITEM item = sendInsert(insert, node);
    if (behind.item() == TVI_LAST && host.usable()) {
        state->appendedTo = under.item();
        state->appended = item;
    }
    return item;
}

/// TVI_LAST, or the last child where that is faster; anything else as it is.
HTREEITEM MultiTreeCtrl::behindLastIfKnown(HTREEITEM parent, HTREEITEM after) const
{
    const bool known = after == TVI_LAST && m_state->appended && m_state->appendedTo == parent;
    return known && !ovoui::tree::platform().appendsFasterByMarker ? m_state->appended : after;
}

/// An exception out of the message, raised by a window that the tree view has told of the change, must not
/// leave an item behind that belongs to no node.
HTREEITEM MultiTreeCtrl::sendInsert(const TVINSERTSTRUCT& insert, const Node& node)
{
    const HostCalls host(*this);
    HTREEITEM item = nullptr;
    const std::exception_ptr foreign = ovoui::tree::keeping([&] {
        item =
            reinterpret_cast<HTREEITEM>(DefWindowProc(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
    });
    if (foreign && host.usable()) {
        item = insert.hParent == TVI_ROOT ? next(TVGN_ROOT) : next(TVGN_CHILD, insert.hParent);
        while (item && this->node(item) != &node)
            item = next(TVGN_NEXT, item);
        if (item)
            takeBack(item);
    }
    ovoui::tree::raise(foreign);
    return item;
}

/// Deletes an item that has just been inserted, as if it had never been there.
void MultiTreeCtrl::takeBack(HTREEITEM item)
{
    TVITEM cleared{};
    cleared.mask = TVIF_HANDLE | TVIF_PARAM;
    cleared.hItem = item;
    ask(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&cleared));
    // What this raises takes second place.
    ovoui::tree::keeping([&] { deleteItem(item); });
}

void MultiTreeCtrl::setSortedInsertion(SortedInsertion way)
{
    m_state->halves = way == SortedInsertion::Halve;
    m_state->children.forgetAll();
}

HTREEITEM MultiTreeCtrl::insert(Node* node, InsertionPoint& where, int position)
{
    if (!node)
        return nullptr;
    BorrowedNode borrowed(*node);
    Inserter inserter(*this, where);
    bool unused = !inserter.accepts();
    const HTREEITEM item = unused ? nullptr : inserter.insert(*node, position, unused);
    if (unused)
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
    std::vector<bool> unused(nodes.size(), true);
    Inserter inserter(*this, where);
    if (inserter.accepts()) {
        const LayoutHold hold(*this);
        inserter.insert(nodes, position, items, unused);
    }
    // Held once more, so that one that came twice is destroyed once.
    std::vector<OVO::Handle<Node>> refused;
    for (std::size_t i = 0; i < nodes.size(); ++i)
        if (nodes[i] && unused[i])
            refused.emplace_back(nodes[i]);
    borrowed.clear();
    return items;
}

// Inserting with a selection

HTREEITEM MultiTreeCtrl::insertAndSelect(Node* node, bool& first, HTREEITEM parent, HTREEITEM after)
{
    const HostCalls host(*this);
    const HTREEITEM item = node ? node->insert(*this, parent, after) : nullptr;
    return item && host.usable() ? selectInserted(item, first) : nullptr;
}

HTREEITEM MultiTreeCtrl::insertAndSelect(Node* node, bool& first, InsertionPoint& where, int position)
{
    const HostCalls host(*this);
    const HTREEITEM item = insert(node, where, position);
    return item && host.usable() ? selectInserted(item, first) : nullptr;
}

/// Gives the item, or null when the parent has deleted it on hearing of the selection.
HTREEITEM MultiTreeCtrl::selectInserted(HTREEITEM item, bool& first)
{
    const HostCalls host(*this);
    const Tracker inserted(m_state, item);
    if (first) {
        doSelectItem(item);
        first = false;
    }
    if (!host.usable() || !inserted)
        return nullptr;
    setSelected(item, true);
    m_anchor = item;
    return item;
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
    // What windows raise that hear of the new layout must not leave a destructor.
    if (m_holds && m_state->usable())
        ovoui::tree::keeping([this] { m_state->tree->DefWindowProc(WM_SETREDRAW, TRUE, 0); });
}
