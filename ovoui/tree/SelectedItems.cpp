// Which items are selected: how they are known, and in what order they come.
#include <ovoui/tree/Selection.h>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

using ovoui::tree::Change;

namespace
{

bool selects(const TVITEM& item)
{
    return (item.mask & TVIF_STATE) && (item.state & item.stateMask & TVIS_SELECTED);
}

} // namespace

std::vector<HTREEITEM> MultiTreeCtrl::Selection::items() const
{
    complete();
    std::vector<HTREEITEM> items(m_record.items().begin(), m_record.items().end());
    if (const HTREEITEM focus = view().caret(); focus && !m_record.items().contains(focus))
        items.push_back(focus);
    std::erase_if(items, [&](HTREEITEM item) {
        const bool dropped = !view().isSelected(item) || view().isDoomed(item);
        if (dropped)
            m_record.drop(item);
        return dropped;
    });
    return items;
}

/// Looks at all items once, if the record does not know of all.
void MultiTreeCtrl::Selection::complete() const
{
    if (m_record.complete())
        return;
    for (HTREEITEM item = view().first(); item; item = view().nextItem(item, true))
        m_record.add(item);
    m_record.setComplete(true);
}

/// Changes with everything that may make an order of the selected items wrong.
unsigned MultiTreeCtrl::Selection::version() const
{
    return m_record.changes() + m_state.structure;
}

/// Few selected items among many are found by the record, and put in order; else all items are walked over.
HTREEITEM MultiTreeCtrl::Selection::first() const
{
    const auto all = static_cast<std::size_t>(view().ask(TVM_GETCOUNT));
    if (m_record.complete() && m_record.items().size() * 3 > all)
        return from(view().first());
    std::vector<HTREEITEM> selected = items();
    if (selected.empty())
        return nullptr;
    sortByTree(selected);
    const HTREEITEM first = selected.front();
    m_order.remember(std::move(selected), version());
    return first;
}

HTREEITEM MultiTreeCtrl::Selection::after(HTREEITEM item) const
{
    while (m_order.holds(version())) {
        HTREEITEM following = nullptr;
        if (!m_order.following(item, following))
            break;
        if (!following || (view().isSelected(following) && !view().isDoomed(following)))
            return following;
        item = following;
    }
    return from(view().nextItem(item, true));
}

HTREEITEM MultiTreeCtrl::Selection::from(HTREEITEM item) const
{
    while (item && !view().isSelected(item))
        item = view().nextItem(item, true);
    return item;
}

std::vector<OVO::Handle<MultiTreeCtrl::Node>> MultiTreeCtrl::Selection::nodes() const
{
    std::vector<OVO::Handle<Node>> nodes;
    for (HTREEITEM item = first(); item; item = after(item))
        if (OVO::Handle<Node> node = view().node(item))
            nodes.push_back(std::move(node));
    return nodes;
}

/// Puts items into the order of the tree, by what stands beside and below what: the places of rows say
/// nothing about items in closed ones.
void MultiTreeCtrl::Selection::sortByTree(std::vector<HTREEITEM>& items) const
{
    const std::unordered_set<HTREEITEM> wanted(items.begin(), items.end());
    // The items and all above them, by parent.
    std::unordered_map<HTREEITEM, std::vector<HTREEITEM>> children;
    std::unordered_set<HTREEITEM> met;
    for (const HTREEITEM item : items)
        for (HTREEITEM at = item; at && met.insert(at).second;) {
            const HTREEITEM parent = view().next(TVGN_PARENT, at);
            children[parent].push_back(at);
            at = parent;
        }
    items.clear();
    const auto into = [&](auto&& self, HTREEITEM parent) -> void {
        const auto found = children.find(parent);
        if (found == children.end())
            return;
        sortSiblings(found->second);
        for (const HTREEITEM child : found->second) {
            if (wanted.contains(child))
                items.push_back(child);
            self(self, child);
        }
    };
    into(into, nullptr);
}

/// From one of them on in both directions, until all are met: how far they are from the first child does not
/// matter.
void MultiTreeCtrl::Selection::sortSiblings(std::vector<HTREEITEM>& items) const
{
    if (items.size() < 2)
        return;
    std::unordered_set<HTREEITEM> missing(items.begin() + 1, items.end());
    std::vector<HTREEITEM> before;
    std::vector<HTREEITEM> behind{items.front()};
    HTREEITEM up = items.front();
    HTREEITEM down = items.front();
    while (!missing.empty() && (up || down)) {
        up = up ? view().next(TVGN_PREVIOUS, up) : nullptr;
        if (missing.erase(up))
            before.push_back(up);
        down = down ? view().next(TVGN_NEXT, down) : nullptr;
        if (missing.erase(down))
            behind.push_back(down);
    }
    items.assign(before.rbegin(), before.rend());
    items.insert(items.end(), behind.begin(), behind.end());
}

// What is noted of items that go and of messages to the tree view

void MultiTreeCtrl::Selection::itemGoes(HTREEITEM item)
{
    m_record.drop(item);
    if (tree().m_anchor == item)
        tree().m_anchor = nullptr;
}

void MultiTreeCtrl::Selection::allGo()
{
    m_record.clear();
}

void MultiTreeCtrl::Selection::begins(const Message& message)
{
    switch (message.change) {
    case Change::State:
        if (message.lParam && selects(message.changes()))
            note(message.changes().hItem);
        break;
    case Change::Caret:
        if (message.wParam == TVGN_CARET)
            note(message.item());
        break;
    case Change::Anything:
        // The caret may leave an item, or come to one, and the platform selects and deselects with it.
        note(view().caret());
        break;
    default:
        break;
    }
}

void MultiTreeCtrl::Selection::ends(const Message& message, LRESULT result)
{
    if (message.change == Change::Insert && result && selects(message.insertion().item))
        note(reinterpret_cast<HTREEITEM>(result));
    else if (message.change == Change::Anything && m_state.usable())
        note(view().caret());
}

void MultiTreeCtrl::Selection::fails()
{
    m_record.setComplete(false);
}

void MultiTreeCtrl::Selection::takesOver()
{
    m_record.setComplete(false);
}
