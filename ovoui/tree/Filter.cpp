#include <ovoui/tree/Filter.h>

#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/LayoutHold.h>
#include <ovoui/tree/ParentNotificationFilter.h>
#include <ovoui/tree/core/FilterRule.h>

using ovoui::frame::keepFirst;
using ovoui::frame::keeping;
using ovoui::frame::raise;
using ovoui::tree::FilteredItem;
using ovoui::tree::ParentNotificationFilter;

// The control's operation

void MultiTreeCtrl::setFilter(std::function<bool(const Node&)> keeps)
{
    const std::shared_ptr<State> state = m_state; // a node may delete the tree
    state->filter->set(std::move(keeps));
}

/// The host may set another filter while it is asked: then that one counts.
void MultiTreeCtrl::Filter::set(Test keeps)
{
    std::exception_ptr foreign;
    keepFirst(foreign, [this] { closeEditor(); });
    const unsigned version = ++m_version;
    m_keeps = std::move(keeps);
    if (!m_state.usable()) {
        raise(foreign);
        return;
    }
    const HostCalls host(tree());
    const Tracker caret(shared(), view().caret());
    const std::size_t selected = m_state.selectedItems().size();
    {
        const LayoutHold hold(tree());
        const ParentNotificationFilter quiet(tree().m_hWnd);
        keepFirst(foreign, [&] { showAll(); });
        if (host.usable() && version == m_version && m_keeps)
            keepFirst(foreign, [&] { hideAll(version); });
    }
    if (host.usable() && (caret.moved() || m_state.selectedItems().size() != selected))
        keepFirst(foreign,
                  [&] { tree().notifyTvnSelchanged(TVC_UNKNOWN, nullptr, view().caret(), CPoint(0, 0)); });
    raise(foreign);
}

/// The node whose label is edited hears of its end, and may set a filter: not when items are being taken out
/// already.
void MultiTreeCtrl::Filter::closeEditor() const
{
    if (m_state.usable() && view().isEditing())
        tree().DefWindowProc(TVM_ENDEDITLABELNOW, FALSE, 0);
}

// Hiding

/// Where a node gives no answer there is no filter.
void MultiTreeCtrl::Filter::hideAll(unsigned version)
{
    const HostCalls host(tree());
    std::vector<HTREEITEM> items;
    const std::exception_ptr error = keeping([&] { items = itemsToHide(TVI_ROOT, version); });
    if (error && version == m_version)
        m_keeps = nullptr;
    raise(error);
    if (host.usable() && version == m_version)
        hide(items);
}

void MultiTreeCtrl::Filter::hideBelow(HTREEITEM parent)
{
    const HostCalls host(tree());
    const unsigned version = m_version;
    const std::vector<HTREEITEM> items = itemsToHide(parent, version);
    if (host.usable() && version == m_version)
        hide(items);
}

/// All nodes are asked before anything is hidden. The outermost items to go, in the order of the tree.
std::vector<HTREEITEM> MultiTreeCtrl::Filter::itemsToHide(HTREEITEM parent, unsigned version) const
{
    const HostCalls host(tree());
    std::unordered_map<HTREEITEM, std::ptrdiff_t> places;
    std::vector<HTREEITEM> all;
    for (HTREEITEM item = view().firstChild(parent);
         item && (parent == TVI_ROOT || view().isBelow(item, parent)); item = view().nextItem(item, true)) {
        places.emplace(item, static_cast<std::ptrdiff_t>(all.size()));
        all.push_back(item);
    }
    std::vector<FilteredItem> items;
    for (const HTREEITEM item : all) {
        const auto above = places.find(view().next(TVGN_PARENT, item));
        items.push_back({above == places.end() ? -1 : above->second, false});
    }
    const ItemList list(shared(), std::move(all));
    const Test keeps = m_keeps;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (!host.usable() || version != m_version)
            return {};
        const HTREEITEM item = list.items()[i];
        const OVO::Handle<Node> node = list.isGone(item) ? nullptr : view().node(item);
        items[i].hit = !node || keeps(*node); // items without a node are the host's own
    }
    const std::vector<bool> kept = ovoui::tree::keptByFilter(items);
    std::vector<HTREEITEM> toHide;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const bool parentKept = items[i].parent < 0 || kept[static_cast<std::size_t>(items[i].parent)];
        if (!kept[i] && parentKept && !list.isGone(list.items()[i]))
            toHide.push_back(list.items()[i]);
    }
    return toHide;
}

void MultiTreeCtrl::Filter::hide(const std::vector<HTREEITEM>& items)
{
    const HostCalls host(tree());
    const unsigned version = m_version;
    std::exception_ptr foreign;
    ItemList(shared(), items).forEach([&](HTREEITEM item) {
        if (!host.usable() || version != m_version)
            return;
        const HTREEITEM above = view().next(TVGN_PARENT, item);
        const bool aboveOpen = above && view().isOpen(above);
        const Tracker parent(shared(), above);
        Hidden hidden = remembered(item);
        Family& family = familyOf(above ? above : TVI_ROOT);
        family.hidden.emplace(hidden.node.get(), std::move(hidden));
        keepFirst(foreign, [&] { view().remove(item); });
        if (host.usable() && parent)
            keepFirst(foreign, [&] { keepLooks(parent.item(), aboveOpen); });
    });
    raise(foreign);
}

MultiTreeCtrl::Filter::Hidden MultiTreeCtrl::Filter::remembered(HTREEITEM item) const
{
    Hidden hidden{view().node(item), view().isOpen(item), {}};
    for (HTREEITEM child = view().firstChild(item); child; child = view().nextSibling(child))
        if (view().node(child))
            hidden.children.push_back(remembered(child));
    return hidden;
}

MultiTreeCtrl::Filter::Family& MultiTreeCtrl::Filter::familyOf(HTREEITEM parent)
{
    const auto [found, isNew] = m_hidden.try_emplace(parent);
    if (isNew)
        for (HTREEITEM child = view().firstChild(parent); child; child = view().nextSibling(child))
            if (OVO::Handle<Node> node = view().node(child))
                found->second.order.push_back(std::move(node));
    return found->second;
}

/// Without its last child the tree view takes the button from an item, and may close it.
void MultiTreeCtrl::Filter::keepLooks(HTREEITEM parent, bool open) const
{
    const OVO::Handle<Node> node = view().node(parent);
    if (!node || view().firstChild(parent))
        return;
    TVITEM changes{};
    changes.mask = TVIF_HANDLE | TVIF_CHILDREN;
    changes.hItem = parent;
    changes.cChildren = node->children;
    if (open && !view().isOpen(parent)) {
        changes.mask |= TVIF_STATE;
        changes.state = changes.stateMask = TVIS_EXPANDED;
    }
    tree().DefWindowProc(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changes));
}

// Showing

void MultiTreeCtrl::Filter::showAll()
{
    const HostCalls host(tree());
    const Families families = std::exchange(m_hidden, {});
    std::vector<HTREEITEM> parents;
    for (const auto& [parent, family] : families)
        parents.push_back(parent);
    std::exception_ptr foreign;
    ItemList(shared(), parents).forEach([&](HTREEITEM parent) {
        if (host.usable())
            keepFirst(foreign, [&] { showFamily(parent, families.at(parent)); });
    });
    raise(foreign);
}

/// The hidden ones go to where they were among those that are still there. What has been inserted meanwhile
/// stays behind the one that it was inserted behind.
void MultiTreeCtrl::Filter::showFamily(HTREEITEM parent, const Family& family)
{
    const HostCalls host(tree());
    const Tracker under(shared(), parent);
    Tracker after(shared(), TVI_FIRST, Tracker::WhenDeleted::PreviousSibling);
    std::exception_ptr foreign;
    for (const OVO::Handle<Node>& node : family.order) {
        if (!host.usable() || !under)
            break;
        const auto hidden = family.hidden.find(node.get());
        HTREEITEM item = node->hTreeItem();
        if (!item && hidden != family.hidden.end())
            keepFirst(foreign, [&] { item = show(hidden->second, parent, after.item()); });
        const HTREEITEM above = item && host.usable() ? view().next(TVGN_PARENT, item) : nullptr;
        if (item && host.usable() && (above ? above : TVI_ROOT) == parent)
            after.moveTo(item);
    }
    raise(foreign);
}

/// Inserts a node and all that was below it, open as it was. Null when it cannot be inserted.
HTREEITEM MultiTreeCtrl::Filter::show(const Hidden& hidden, HTREEITEM parent, HTREEITEM after)
{
    const HostCalls host(tree());
    Node& node = *hidden.node;
    const HTREEITEM item = node.insert(tree(), parent, after);
    if (!item)
        return nullptr;
    const Tracker shown(shared(), item);
    for (const Hidden& child : hidden.children)
        if (host.usable() && shown && !child.node->hTreeItem())
            show(child, item, TVI_LAST);
    if (hidden.open && host.usable() && shown) {
        node.state |= TVIS_EXPANDED;
        view().setState(item, TVIS_EXPANDED, TVIS_EXPANDED);
        if (host.usable() && shown)
            tree().updateUI(node);
    }
    return shown.item();
}

// What becomes of hidden nodes

/// Nodes are let go when the tree view has finished: their destructors may do anything to the tree.
void MultiTreeCtrl::Filter::letGo(Families::iterator family)
{
    for (OVO::Handle<Node>& node : family->second.order)
        m_state.released.push_back(std::move(node));
    for (auto& [node, hidden] : family->second.hidden)
        letGo(hidden);
    m_hidden.erase(family);
}

void MultiTreeCtrl::Filter::letGo(Hidden& hidden)
{
    m_state.released.push_back(std::move(hidden.node));
    for (Hidden& child : hidden.children)
        letGo(child);
}

void MultiTreeCtrl::Filter::itemGoes(HTREEITEM item)
{
    if (const auto family = m_hidden.find(item); family != m_hidden.end())
        letGo(family);
}

void MultiTreeCtrl::Filter::allGo()
{
    while (!m_hidden.empty())
        letGo(m_hidden.begin());
}

/// When all items are deleted, the hidden ones go too.
void MultiTreeCtrl::Filter::begins(const Message& message)
{
    if (message.change == ovoui::tree::Change::Delete && (!message.item() || message.item() == TVI_ROOT))
        allGo();
}

/// Here the host may be called, and its nodes may go at once.
void MultiTreeCtrl::Filter::childrenGo(HTREEITEM parent)
{
    const auto family = m_hidden.extract(parent);
}

void MultiTreeCtrl::Filter::childrenCame(HTREEITEM parent)
{
    if (m_keeps)
        hideBelow(parent);
}

// What the state asks for

template <>
std::shared_ptr<MultiTreeCtrl::Filter> MultiTreeCtrl::State::make()
{
    return std::make_shared<Filter>(*this);
}
