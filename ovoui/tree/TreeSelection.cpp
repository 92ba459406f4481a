// What is selected: one item, a range, all, none; and how the parent is told.
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/ParentNotificationFilter.h>
#include <ovoui/tree/RedrawHold.h>

#include <algorithm>
#include <optional>

using ovoui::tree::ParentNotificationFilter;
using ovoui::tree::RedrawHold;

namespace
{

/// Up to this number, items are changed one by one, each repainting its row; more with one repaint of the whole.
constexpr std::size_t kFewItems = 8;

} // namespace

// Telling the parent

void MultiTreeCtrl::notifyTvnSelchanged(unsigned action, HTREEITEM oldItem, HTREEITEM newItem,
                                        const CPoint& point) const
{
    NMTREEVIEW notification{};
    notification.hdr.hwndFrom = m_hWnd;
    notification.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID());
    notification.hdr.code = static_cast<UINT>(TVN_SELCHANGEDW);
    notification.action = action;
    notification.itemNew = describe(newItem);
    notification.itemOld = oldItem == newItem ? notification.itemNew : describe(oldItem);
    notification.ptDrag = point;
    notifyParent(notification.hdr);
}

/// An item as notifications carry it: handle, state, parameter.
TVITEM MultiTreeCtrl::describe(HTREEITEM item) const
{
    TVITEM description{};
    if (!item)
        return description;
    description.mask = TVIF_HANDLE | TVIF_STATE | TVIF_PARAM;
    description.hItem = item;
    description.stateMask = ~0u;
    ask(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&description));
    return description;
}

void MultiTreeCtrl::notifyParent(NMHDR& header) const
{
    if (const CWnd* parent = GetParent())
        parent->SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}

/// With TVN_GETDISPINFO the parent may change an item's state without a message to the tree.
BOOL MultiTreeCtrl::OnGetdispinfo(NMHDR* header, LRESULT*)
{
    m_state->selection.add(reinterpret_cast<const NMTVDISPINFO*>(header)->item.hItem);
    return FALSE;
}

// One item

BOOL MultiTreeCtrl::SelectItem(HTREEITEM item)
{
    return doSelectItem(item) ? 1 : 0;
}

bool MultiTreeCtrl::doSelectItem(HTREEITEM item)
{
    const HostCalls host(*this);
    const Tracker oldCaret(m_state, caret());
    const HTREEITEM caretBefore = oldCaret.item();
    const Tracker target(m_state, item);

    // The item itself may stay selected all the while.
    const unsigned before = deselectAllBut(item);
    const bool done = host.usable() && (!item || target) && selectCaret(item);
    if (!host.usable() || (item && !target))
        return done;
    const HTREEITEM caretNow = caret();
    if (caretNow == caretBefore && before > (item ? 1u : 0u)) {
        // The tree view tells of no change, as its selected item is the same, and yet others were deselected.
        if (item)
            setSelected(item, true);
        if (host.usable())
            notifyTvnSelchanged(TVC_UNKNOWN, oldCaret.item(), item, CPoint(0, 0));
    } else if (item && caretNow == item) {
        if (!isSelected(item))
            setSelected(item, true);
    } else if (item && caretNow == caretBefore) {
        setSelected(item, false); // refused
    }
    return done;
}

/// The selection for one step of a larger change: the parent hears nothing of it.
void MultiTreeCtrl::selectWithoutNotice(HTREEITEM item)
{
    const ParentNotificationFilter quiet(m_hWnd);
    doSelectItem(item);
}

void MultiTreeCtrl::selectItemAnchor(HTREEITEM item)
{
    m_anchor = item;
}

// None

unsigned MultiTreeCtrl::clearselection(HTREEITEM first)
{
    if (!first)
        return 0;
    if (first == next(TVGN_ROOT))
        return deselectAllBut(nullptr);
    std::vector<HTREEITEM> selected = selectedItems();
    const HTREEITEM parent = next(TVGN_PARENT, first);
    // Those at or behind `first` among its siblings, or below one of these.
    std::erase_if(selected, [&](HTREEITEM item) {
        while (item && next(TVGN_PARENT, item) != parent)
            item = next(TVGN_PARENT, item);
        while (item && item != first)
            item = next(TVGN_PREVIOUS, item);
        return !item;
    });
    setSelected(selected, false);
    return static_cast<unsigned>(selected.size());
}

/// Gives how many were selected, `kept` included.
unsigned MultiTreeCtrl::deselectAllBut(HTREEITEM kept)
{
    std::vector<HTREEITEM> selected = selectedItems();
    const auto count = static_cast<unsigned>(selected.size());
    std::erase(selected, kept);
    setSelected(selected, false);
    return count;
}

void MultiTreeCtrl::setSelected(const std::vector<HTREEITEM>& items, bool selected)
{
    const HostCalls host(*this);
    ItemList list(m_state, items);
    std::optional<RedrawHold> hold;
    if (items.size() > kFewItems)
        hold.emplace(m_hWnd);
    list.forEach([&](HTREEITEM item) {
        if (host.usable())
            setSelected(item, selected);
    });
}

// Many

void MultiTreeCtrl::selectRange(HTREEITEM a, HTREEITEM b)
{
    setSelected(displayedRange(a, b), true);
}

/// The displayed items from one to the other. Both ends go on downwards in turn until one meets the other:
/// which stands first is not known, and the rest of the tree is no matter.
std::vector<HTREEITEM> MultiTreeCtrl::displayedRange(HTREEITEM a, HTREEITEM b) const
{
    struct Way
    {
        HTREEITEM at;
        HTREEITEM goal;
        std::vector<HTREEITEM> passed{};
    };
    Way ways[] = {{isDisplayed(a) ? a : nullptr, b}, {isDisplayed(b) ? b : nullptr, a}};
    Way* toTheEnd = nullptr; // the one that went furthest without meeting the other
    while (ways[0].at || ways[1].at)
        for (Way& way : ways) {
            if (!way.at)
                continue;
            way.passed.push_back(way.at);
            if (way.at == way.goal)
                return way.passed;
            way.at = next(TVGN_NEXTVISIBLE, way.at);
            if (!way.at)
                toTheEnd = &way;
        }
    return toTheEnd ? toTheEnd->passed : std::vector<HTREEITEM>();
}

void MultiTreeCtrl::OnEditSelectAll()
{
    selectAll(TVC_UNKNOWN);
}

void MultiTreeCtrl::selectAll(unsigned action)
{
    const HostCalls host(*this);
    {
        const RedrawHold hold(m_hWnd);
        Tracker item(m_state, next(TVGN_ROOT));
        while (host.usable() && item) {
            setSelected(item.item(), true);
            item.moveTo(host.usable() && item ? next(TVGN_NEXTVISIBLE, item.item()) : nullptr);
        }
    }
    if (host.usable())
        notifyTvnSelchanged(action, caret(), caret(), CPoint(0, 0));
}

void MultiTreeCtrl::moveCaretAlone(HTREEITEM item)
{
    keepSelection([&] { selectCaret(item); });
}

/// Moves the focus and leaves the selection as it is: the tree view, which selects along with it, is
/// corrected, and the parent hears nothing.
void MultiTreeCtrl::keepSelection(const std::function<void()>& moveFocus)
{
    const HostCalls host(*this);
    std::vector<HTREEITEM> selected = selectedItems();
    std::sort(selected.begin(), selected.end());
    ItemList before(m_state, std::move(selected));
    {
        const ParentNotificationFilter quiet(m_hWnd);
        moveFocus();
    }
    if (!host.usable())
        return;
    std::vector<HTREEITEM> now = selectedItems();
    std::sort(now.begin(), now.end());
    std::vector<HTREEITEM> changed;
    std::set_symmetric_difference(before.items().begin(), before.items().end(), now.begin(), now.end(),
                                  std::back_inserter(changed));
    for (const HTREEITEM each : changed)
        if (host.usable() && !before.isGone(each))
            setSelected(each, std::binary_search(before.items().begin(), before.items().end(), each));
}

/// Selected items look different without the focus; the tree view repaints only the caret by itself.
void MultiTreeCtrl::invalidateSelection()
{
    const auto rows = static_cast<int>(ask(TVM_GETVISIBLECOUNT)) + 1; // the last one may be cut off
    HTREEITEM item = next(TVGN_FIRSTVISIBLE);
    for (int row = 0; item && row < rows; ++row, item = next(TVGN_NEXTVISIBLE, item)) {
        CRect rect;
        if (isSelected(item) && GetItemRect(item, &rect, FALSE))
            InvalidateRect(&rect);
    }
}
