// Walking over items: all of them, and those that are selected.
#include <ovoui/tree/TreeState.h>

#include <algorithm>
#include <cstring>

HTREEITEM MultiTreeCtrl::nextItem(HTREEITEM item, bool intoChildren) const
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

// Iterators

MultiTreeCtrl::iterator MultiTreeCtrl::begin(bool selectedOnly) const
{
    return {*this, selectedOnly ? firstSelected() : next(TVGN_ROOT), selectedOnly};
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
        for (HTREEITEM item = next(TVGN_ROOT); item; item = nextItem(item, true))
            record.add(item);
        record.setComplete(true);
    }
    std::vector<HTREEITEM> items;
    items.reserve(record.items().size());
    for (const HTREEITEM item : record.items())
        items.push_back(item);
    if (const HTREEITEM focus = caret(); focus && !record.items().contains(focus))
        items.push_back(focus);
    std::erase_if(items, [&](HTREEITEM item) {
        const bool dropped = !isSelected(item);
        if (dropped)
            record.drop(item);
        return dropped;
    });
    return items;
}

/// Sorts items as the tree shows them. False when one of them is not displayed, being in a closed item.
bool MultiTreeCtrl::orderSelected(std::vector<HTREEITEM>& items) const
{
    std::vector<std::pair<LONG, HTREEITEM>> places;
    places.reserve(items.size());
    for (const HTREEITEM item : items) {
        RECT rect;
        std::memcpy(&rect, &item, sizeof item); // the message finds the item where it puts the rectangle
        if (!ask(TVM_GETITEMRECT, FALSE, reinterpret_cast<LPARAM>(&rect)))
            return false;
        places.emplace_back(rect.top, item);
    }
    std::sort(places.begin(), places.end());
    std::transform(places.begin(), places.end(), items.begin(),
                   [](const auto& place) { return place.second; });
    return true;
}

/// Few selected items among many are found by the record, and put in order; else all items are walked over.
HTREEITEM MultiTreeCtrl::firstSelected() const
{
    const auto all = static_cast<std::size_t>(ask(TVM_GETCOUNT));
    const ovoui::tree::SelectionRecord& record = m_state->selection;
    if (record.complete() && record.items().size() * 3 > all)
        return selectedFrom(next(TVGN_ROOT));
    std::vector<HTREEITEM> items = selectedItems();
    if (items.empty())
        return nullptr;
    if (!orderSelected(items))
        return selectedFrom(next(TVGN_ROOT));
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
        if (!following || isSelected(following))
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
        if (OVO::Handle<Node> node = at)
            nodes.push_back(std::move(node));
    return nodes;
}
