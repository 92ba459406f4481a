// Walking over items: all of them, and those that are selected.
#include <ovoui/tree/TreeState.h>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

/// The item behind another one in the order of the tree. Those that wait for their deletion are left out.
HTREEITEM MultiTreeCtrl::nextItem(HTREEITEM item, bool intoChildren) const
{
    HTREEITEM following = nextOfAll(item, intoChildren);
    while (following && isDoomed(following))
        following = nextOfAll(following, false);
    return following;
}

HTREEITEM MultiTreeCtrl::nextOfAll(HTREEITEM item, bool intoChildren) const
{
    if (!item)
        return nullptr;
    if (intoChildren)
        if (const HTREEITEM child = next(TVGN_CHILD, item))
            return child;
    for (; item; item = next(TVGN_PARENT, item))
        if (const HTREEITEM sibling = next(TVGN_NEXT, item))
            return sibling;
    return nullptr;
}

HTREEITEM MultiTreeCtrl::firstItem() const
{
    const HTREEITEM root = next(TVGN_ROOT);
    return root && isDoomed(root) ? nextItem(root, false) : root;
}

HTREEITEM MultiTreeCtrl::firstChild(HTREEITEM parent) const
{
    const HTREEITEM child = parent == TVI_ROOT ? next(TVGN_ROOT) : next(TVGN_CHILD, parent);
    return child && isDoomed(child) ? nextSibling(child) : child;
}

HTREEITEM MultiTreeCtrl::nextSibling(HTREEITEM item) const
{
    do
        item = next(TVGN_NEXT, item);
    while (item && isDoomed(item));
    return item;
}

/// The last item that is displayed when one scrolls all the way down.
HTREEITEM MultiTreeCtrl::getLastItem() const
{
    return next(TVGN_LASTVISIBLE);
}

bool MultiTreeCtrl::isBelow(HTREEITEM item, HTREEITEM ancestor) const
{
    do
        item = next(TVGN_PARENT, item);
    while (item && item != ancestor);
    return item != nullptr;
}

// Displayed items: those in the list that one scrolls through

bool MultiTreeCtrl::isOpen(HTREEITEM item) const
{
    return (ask(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), TVIS_EXPANDED) & TVIS_EXPANDED) != 0;
}

bool MultiTreeCtrl::isDisplayed(HTREEITEM item) const
{
    return item && lastDisplayedOnTheWayTo(item) == item;
}

/// The item itself, or the outermost closed one that it is in.
HTREEITEM MultiTreeCtrl::lastDisplayedOnTheWayTo(HTREEITEM item) const
{
    HTREEITEM displayed = item;
    for (HTREEITEM above = next(TVGN_PARENT, item); above; above = next(TVGN_PARENT, above))
        if (!isOpen(above))
            displayed = above;
    return displayed;
}

/// What stands in the row above an item. The tree view answers for displayed items only; above one in a
/// closed item stands this.
HTREEITEM MultiTreeCtrl::displayedAbove(HTREEITEM item) const
{
    const HTREEITEM displayed = lastDisplayedOnTheWayTo(item);
    return displayed == item ? next(TVGN_PREVIOUSVISIBLE, item) : displayed;
}

HTREEITEM MultiTreeCtrl::displayedBelow(HTREEITEM item) const
{
    return next(TVGN_NEXTVISIBLE, lastDisplayedOnTheWayTo(item));
}

// Iterators

MultiTreeCtrl::iterator MultiTreeCtrl::begin(bool selectedOnly) const
{
    return {*this, selectedOnly ? firstSelected() : firstItem(), selectedOnly};
}

MultiTreeCtrl::iterator MultiTreeCtrl::beginAll() const
{
    return begin(false);
}

MultiTreeCtrl::iterator MultiTreeCtrl::beginSelected() const
{
    return begin(true);
}

MultiTreeCtrl::iterator MultiTreeCtrl::end() const
{
    return {*this, nullptr, false};
}

// Selected items

/// The selected items in no order.
std::vector<HTREEITEM> MultiTreeCtrl::selectedItems() const
{
    ovoui::tree::SelectionRecord& record = m_state->selection;
    if (!record.complete()) {
        for (HTREEITEM item = firstItem(); item; item = nextItem(item, true))
            record.add(item);
        record.setComplete(true);
    }
    std::vector<HTREEITEM> items;
    items.reserve(record.items().size() + 1);
    for (const HTREEITEM item : record.items())
        items.push_back(item);
    if (const HTREEITEM focus = caret(); focus && !record.items().contains(focus))
        items.push_back(focus);
    std::erase_if(items, [&](HTREEITEM item) {
        const bool dropped = !isSelected(item) || isDoomed(item);
        if (dropped)
            record.drop(item);
        return dropped;
    });
    return items;
}

/// Puts siblings into their order. From one of them on in both directions, until all are met: how far they
/// are from the first child does not matter.
void MultiTreeCtrl::orderSiblings(std::vector<HTREEITEM>& items) const
{
    if (items.size() < 2)
        return;
    std::unordered_set<HTREEITEM> missing(items.begin() + 1, items.end());
    std::vector<HTREEITEM> before;
    std::vector<HTREEITEM> behind{items.front()};
    HTREEITEM up = items.front();
    HTREEITEM down = items.front();
    while (!missing.empty() && (up || down)) {
        up = up ? next(TVGN_PREVIOUS, up) : nullptr;
        if (missing.erase(up))
            before.push_back(up);
        down = down ? next(TVGN_NEXT, down) : nullptr;
        if (missing.erase(down))
            behind.push_back(down);
    }
    items.assign(before.rbegin(), before.rend());
    items.insert(items.end(), behind.begin(), behind.end());
}

/// Puts items into the order of the tree, by what stands beside and below what: the places of rows say
/// nothing about items in closed ones.
void MultiTreeCtrl::orderByTree(std::vector<HTREEITEM>& items) const
{
    const std::unordered_set<HTREEITEM> wanted(items.begin(), items.end());
    // The items and all above them, by parent.
    std::unordered_map<HTREEITEM, std::vector<HTREEITEM>> children;
    std::unordered_set<HTREEITEM> met;
    for (const HTREEITEM item : items)
        for (HTREEITEM at = item; at && met.insert(at).second;) {
            const HTREEITEM parent = next(TVGN_PARENT, at);
            children[parent].push_back(at);
            at = parent;
        }
    items.clear();
    const auto into = [&](auto&& self, HTREEITEM parent) -> void {
        const auto found = children.find(parent);
        if (found == children.end())
            return;
        orderSiblings(found->second);
        for (const HTREEITEM child : found->second) {
            if (wanted.contains(child))
                items.push_back(child);
            self(self, child);
        }
    };
    into(into, nullptr);
}

/// Few selected items among many are found by the record, and put in order; else all items are walked over.
HTREEITEM MultiTreeCtrl::firstSelected() const
{
    const auto all = static_cast<std::size_t>(ask(TVM_GETCOUNT));
    const ovoui::tree::SelectionRecord& record = m_state->selection;
    if (record.complete() && record.items().size() * 3 > all)
        return selectedFrom(firstItem());
    std::vector<HTREEITEM> items = selectedItems();
    if (items.empty())
        return nullptr;
    orderByTree(items);
    const HTREEITEM first = items.front();
    m_state->order.remember(std::move(items), record.changes());
    return first;
}

HTREEITEM MultiTreeCtrl::nextSelected(HTREEITEM item) const
{
    while (m_state->order.holds(m_state->selection.changes())) {
        HTREEITEM following = nullptr;
        if (!m_state->order.following(item, following))
            break;
        if (!following || (isSelected(following) && !isDoomed(following)))
            return following;
        item = following;
    }
    return selectedFrom(nextItem(item, true));
}

/// The first selected item at or behind `item`.
HTREEITEM MultiTreeCtrl::selectedFrom(HTREEITEM item) const
{
    while (item && !isSelected(item))
        item = nextItem(item, true);
    return item;
}

std::vector<OVO::Handle<MultiTreeCtrl::Node>> MultiTreeCtrl::selectedNodes() const
{
    std::vector<OVO::Handle<Node>> nodes;
    for (iterator at = beginSelected(); at != end(); ++at)
        nodes.push_back(at);
    return nodes;
}
