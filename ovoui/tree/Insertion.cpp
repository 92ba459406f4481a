#include <ovoui/tree/Insertion.h>

#include <ovoui/tree/CheckBoxConcern.h>
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/Inserter.h>
#include <ovoui/tree/LayoutHold.h>

using ovoui::frame::keeping;
using ovoui::tree::BorrowedNode;
using ovoui::tree::Change;
using ovoui::tree::Child;
using ovoui::tree::Children;
using ovoui::tree::ToBeDeleted;

namespace
{

/// The state bits that an item is inserted with: all but the lowest.
constexpr UINT kInsertedState = 0xFE;

} // namespace

// Items

HTREEITEM MultiTreeCtrl::Insertion::insertItem(const Node& node, HTREEITEM parent, HTREEITEM after)
{
    const HostCalls host(tree());
    const Tracker under(shared(), parent ? parent : TVI_ROOT);
    const Tracker behind(shared(), after, Tracker::WhenDeleted::PreviousSibling);
    const HTREEITEM itemBefore = node.m_hTreeItem;
    std::wstring label = node.text(tree());
    TVINSERTSTRUCT insert{};
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_STATE | TVIF_CHILDREN | TVIF_PARAM;
    insert.item.pszText = label.data();
    insert.item.iImage = node.image();
    insert.item.iSelectedImage = insert.item.iImage;
    const TVITEM box = m_state.checkBoxes->stateImage(node);
    insert.item.state = node.state | box.state;
    insert.item.stateMask = kInsertedState | box.stateMask;
    insert.item.cChildren = node.children;
    insert.item.lParam = reinterpret_cast<LPARAM>(&node);
    // The node may have got another item meanwhile, by its own doing.
    if (!host.usable() || !under || node.m_hTreeItem != itemBefore)
        return nullptr;
    insert.hParent = under.item();
    insert.hInsertAfter = behind.item();
    return send(insert, node);
}

/// An exception out of the message, raised by a window that the tree view has told of the change, must not
/// leave an item behind that belongs to no node.
HTREEITEM MultiTreeCtrl::Insertion::send(const TVINSERTSTRUCT& insert, const Node& node)
{
    const HostCalls host(tree());
    HTREEITEM item = nullptr;
    const std::exception_ptr foreign = keeping([&] {
        item = reinterpret_cast<HTREEITEM>(
            tree().DefWindowProc(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
    });
    if (foreign && host.usable()) {
        item = insert.hParent == TVI_ROOT ? view().next(TVGN_ROOT) : view().next(TVGN_CHILD, insert.hParent);
        while (item && view().node(item) != &node)
            item = view().next(TVGN_NEXT, item);
        if (item)
            takeBack(item);
    }
    ovoui::frame::raise(foreign);
    return item;
}

/// Deletes an item that has just been inserted, as if it had never been there.
void MultiTreeCtrl::Insertion::takeBack(HTREEITEM item) const
{
    view().clearData(item);
    // What this raises takes second place.
    keeping([&] { view().remove(item); });
}

HTREEITEM MultiTreeCtrl::Insertion::select(HTREEITEM item, bool& first)
{
    const HostCalls host(tree());
    const Tracker inserted(shared(), item);
    if (first) {
        tree().doSelectItem(item);
        first = false;
    }
    if (!host.usable() || !inserted)
        return nullptr;
    view().setSelected(item, true);
    tree().m_anchor = item;
    return item;
}

// What is remembered

/// Otherwise than by inserting one.
bool MultiTreeCtrl::Insertion::changesChildren(const Message& message)
{
    return message.change == Change::Order || message.setsData() ||
           message.toBeDeleted() != ToBeDeleted::Nothing;
}

void MultiTreeCtrl::Insertion::setHalves(bool halves)
{
    m_halves = halves;
    m_children.forgetAll();
}

Children MultiTreeCtrl::Insertion::takeChildren(HTREEITEM parent)
{
    if (std::optional<Children> known = m_children.take(parent))
        return std::move(*known);
    Children children;
    for (HTREEITEM child = view().firstChild(parent); child; child = view().nextSibling(child))
        children.push_back(Child{child, nullptr});
    return children;
}

void MultiTreeCtrl::Insertion::remember(HTREEITEM parent, Children children)
{
    m_children.remember(parent, std::move(children));
}

OVO::Handle<MultiTreeCtrl::Node> MultiTreeCtrl::Insertion::nodeOf(const Child& child) const
{
    if (!child.node)
        child.node = view().node(child.item).get();
    return OVO::Handle<Node>(child.node);
}

void MultiTreeCtrl::Insertion::itemGoes(HTREEITEM)
{
    m_children.forgetAll();
}

void MultiTreeCtrl::Insertion::allGo()
{
    m_children.forgetAll();
}

/// What is remembered is of the tree view before.
void MultiTreeCtrl::Insertion::windowMade()
{
    m_children.forgetAll();
}

void MultiTreeCtrl::Insertion::begins(const Message& message)
{
    if (changesChildren(message))
        m_children.forgetAll();
}

/// Once more: who was told on the way may have inserted.
void MultiTreeCtrl::Insertion::ends(const Message& message, LRESULT result)
{
    if (changesChildren(message))
        m_children.forgetAll();
    if (message.change != Change::Insert || !result)
        return;
    const HTREEITEM parent = message.insertion().hParent;
    m_children.forget(parent ? parent : TVI_ROOT);
}

void MultiTreeCtrl::Insertion::fails()
{
    m_children.forgetAll();
}

// The control's operations

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

void MultiTreeCtrl::setSortedInsertion(SortedInsertion way)
{
    m_state->insertion->setHalves(way == SortedInsertion::Halve);
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

HTREEITEM MultiTreeCtrl::insertAndSelect(Node* node, bool& first, HTREEITEM parent, HTREEITEM after)
{
    const HostCalls host(*this);
    const HTREEITEM item = node ? node->insert(*this, parent, after) : nullptr;
    return item && host.usable() ? m_state->insertion->select(item, first) : nullptr;
}

HTREEITEM MultiTreeCtrl::insertAndSelect(Node* node, bool& first, InsertionPoint& where, int position)
{
    const HostCalls host(*this);
    const HTREEITEM item = insert(node, where, position);
    return item && host.usable() ? m_state->insertion->select(item, first) : nullptr;
}

// What the state asks for

template <>
std::shared_ptr<MultiTreeCtrl::Insertion> MultiTreeCtrl::State::make()
{
    return std::make_shared<Insertion>(*this);
}
