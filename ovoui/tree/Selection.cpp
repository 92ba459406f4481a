#include <ovoui/tree/Selection.h>

#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/ParentNotificationFilter.h>
#include <ovoui/tree/SelectionEvents.h>
#include <ovoui/frame/RedrawHold.h>
#include <ovoui/tree/core/ItemSets.h>
#include <ovoui/tree/core/RowWalk.h>
#include <ovoui/tree/core/SelectRule.h>

#include <optional>

using ovoui::frame::RedrawHold;
using namespace ovoui::tree;

namespace
{

/// Up to this number, items are changed one by one, each repainting its row; more with one repaint of the
/// whole.
constexpr std::size_t kFewItems = 8;

} // namespace

MultiTreeCtrl::Selection::Selection(State& state)
    : Concern(state)
    , m_events(std::make_unique<Events>(state))
{
}

MultiTreeCtrl::Selection::~Selection() = default;

// One item

bool MultiTreeCtrl::Selection::selectAlone(HTREEITEM item)
{
    const HostCalls host(tree());
    const Tracker oldCaret(shared(), view().caret());
    const HTREEITEM caretBefore = oldCaret.item();
    const Tracker target(shared(), item);

    // The item itself may stay selected all the while.
    const unsigned before = deselectAllBut(item);
    const bool done = host.usable() && (!item || target) && view().setCaret(item);
    if (!host.usable() || (item && !target))
        return done;
    const HTREEITEM caretNow = view().caret();
    switch (afterAsking({item != nullptr, item && caretNow == item, caretNow == caretBefore, before})) {
    case AfterAsking::SelectAndTell:
        view().setSelected(item, true);
        [[fallthrough]];
    case AfterAsking::Tell:
        if (host.usable())
            tree().notifyTvnSelchanged(TVC_UNKNOWN, oldCaret.item(), item, CPoint(0, 0));
        break;
    case AfterAsking::Select:
        if (!view().isSelected(item))
            view().setSelected(item, true);
        break;
    case AfterAsking::Deselect:
        view().setSelected(item, false);
        break;
    case AfterAsking::Nothing:
        break;
    }
    return done;
}

/// Selects the item even if the parent refuses it the caret; not if the parent has chosen another one
/// instead.
void MultiTreeCtrl::Selection::selectForCertain(HTREEITEM item)
{
    const HostCalls host(tree());
    const Tracker selected(shared(), item);
    const HTREEITEM before = view().caret();
    tree().doSelectItem(item);
    if (!host.usable() || !selected)
        return;
    const HTREEITEM now = view().caret();
    if (selectsForCertain(now == item, now == before))
        view().setSelected(item, true);
}

/// For one step of a larger change.
void MultiTreeCtrl::Selection::selectQuietly(HTREEITEM item)
{
    const ParentNotificationFilter quiet(tree().m_hWnd);
    tree().doSelectItem(item);
}

void MultiTreeCtrl::Selection::set(HTREEITEM item, bool selected, const Way& way)
{
    const HostCalls host(tree());
    view().setSelected(item, selected);
    if (host.usable())
        tree().notifyTvnSelchanged(way.action, view().caret(), view().caret(), way.point);
}

// None

unsigned MultiTreeCtrl::Selection::clear(HTREEITEM first)
{
    if (!first)
        return 0;
    if (first == view().next(TVGN_ROOT))
        return deselectAllBut(nullptr);
    std::vector<HTREEITEM> selected = items();
    const HTREEITEM parent = view().next(TVGN_PARENT, first);
    // Those at or behind `first` among its siblings, or below one of these.
    std::erase_if(selected, [&](HTREEITEM item) {
        while (item && view().next(TVGN_PARENT, item) != parent)
            item = view().next(TVGN_PARENT, item);
        while (item && item != first)
            item = view().next(TVGN_PREVIOUS, item);
        return !item;
    });
    setAll(selected, false);
    return static_cast<unsigned>(selected.size());
}

/// Gives how many were selected, `kept` included.
unsigned MultiTreeCtrl::Selection::deselectAllBut(HTREEITEM kept)
{
    std::vector<HTREEITEM> selected = items();
    const auto count = static_cast<unsigned>(selected.size());
    std::erase(selected, kept);
    setAll(selected, false);
    return count;
}

// Many

void MultiTreeCtrl::Selection::setAll(const std::vector<HTREEITEM>& items, bool selected)
{
    const HostCalls host(tree());
    ItemList list(shared(), items);
    std::optional<RedrawHold> hold;
    if (items.size() > kFewItems)
        hold.emplace(tree().m_hWnd);
    list.forEach([&](HTREEITEM item) {
        if (host.usable())
            view().setSelected(item, selected);
    });
}

void MultiTreeCtrl::Selection::addRange(HTREEITEM a, HTREEITEM b)
{
    setAll(displayedRange(a, b), true);
}

std::vector<HTREEITEM> MultiTreeCtrl::Selection::displayedRange(HTREEITEM a, HTREEITEM b) const
{
    const auto displayed = [this](HTREEITEM item) { return view().isDisplayed(item) ? item : nullptr; };
    return rowRange(displayed(a), displayed(b),
                    [this](HTREEITEM row) { return view().next(TVGN_NEXTVISIBLE, row); });
}

void MultiTreeCtrl::Selection::selectRange(HTREEITEM end, const Way& way)
{
    const HostCalls host(tree());
    const Tracker goal(shared(), end);
    const Tracker oldCaret(shared(), view().caret());
    selectQuietly(end);
    if (!host.usable() || !goal)
        return;
    addRange(tree().m_anchor, end);
    if (host.usable())
        tree().notifyTvnSelchanged(way.action, oldCaret.item(), goal.item(), way.point);
}

/// Adds the range from the anchor, and moves the caret.
void MultiTreeCtrl::Selection::addRange(HTREEITEM end, const Way& way)
{
    const HostCalls host(tree());
    const Tracker goal(shared(), end);
    const Tracker oldCaret(shared(), view().caret());
    keepWhile([&] { view().setCaret(end); });
    if (!host.usable() || !goal)
        return;
    addRange(tree().m_anchor, end);
    if (host.usable())
        tree().notifyTvnSelchanged(way.action, oldCaret.item(), goal.item(), way.point);
}

void MultiTreeCtrl::Selection::selectDisplayed(const Way& way)
{
    const HostCalls host(tree());
    addRange(view().next(TVGN_ROOT), view().getLastItem());
    if (host.usable())
        tree().notifyTvnSelchanged(way.action, view().caret(), view().caret(), way.point);
}

// The focus

void MultiTreeCtrl::Selection::moveCaret(HTREEITEM item, const Way& way)
{
    const HostCalls host(tree());
    keepWhile([&] { view().setCaret(item); });
    if (host.usable())
        tree().notifyTvnSelchanged(way.action, view().caret(), view().caret(), way.point);
}

void MultiTreeCtrl::Selection::keepWhile(const std::function<void()>& moveFocus)
{
    const HostCalls host(tree());
    const ItemList before(shared(), items());
    {
        const ParentNotificationFilter quiet(tree().m_hWnd);
        moveFocus();
    }
    if (host.usable())
        become(before);
}

void MultiTreeCtrl::Selection::become(const ItemList& wanted)
{
    const HostCalls host(tree());
    const std::vector<HTREEITEM> then = setOf(wanted.items());
    const std::vector<HTREEITEM> changed = differing(then, setOf(items()));
    std::optional<RedrawHold> hold;
    if (changed.size() > kFewItems)
        hold.emplace(tree().m_hWnd);
    for (const HTREEITEM each : changed)
        if (host.usable() && !wanted.isGone(each))
            view().setSelected(each, isIn(then, each));
}

/// Where no others than the caret are selected, the tree view's own way is right, and it tells the parent.
void MultiTreeCtrl::Selection::follow(bool range, const Way& way, const std::function<void()>& handle)
{
    const HostCalls host(tree());
    const Tracker oldCaret(shared(), view().caret());
    const std::vector<HTREEITEM> selected = items();
    const bool caretAlone = selected.size() == 1 && selected.front() == oldCaret.item();
    if (treeViewSelects(selected.size(), caretAlone, range)) {
        handle();
        return;
    }
    std::optional<ParentNotificationFilter> quiet(tree().m_hWnd);
    handle();
    if (!host.usable())
        return;
    const Tracker target(shared(), view().caret());
    if (!target || target.item() == oldCaret.item())
        return;
    tree().doSelectItem(target.item());
    if (!host.usable() || !target)
        return;
    if (range)
        addRange(tree().m_anchor, target.item());
    quiet.reset();
    if (host.usable() && target)
        tree().notifyTvnSelchanged(way.action, oldCaret.item(), target.item(), way.point);
}

void MultiTreeCtrl::Selection::repaint() const
{
    const auto rows = static_cast<int>(view().ask(TVM_GETVISIBLECOUNT)) + 1; // the last one may be cut off
    HTREEITEM item = view().next(TVGN_FIRSTVISIBLE);
    for (int row = 0; item && row < rows; ++row, item = view().next(TVGN_NEXTVISIBLE, item)) {
        CRect rect;
        if (view().isSelected(item) && tree().GetItemRect(item, &rect, FALSE))
            tree().InvalidateRect(&rect);
    }
}

// The control's operations

void MultiTreeCtrl::notifyTvnSelchanged(unsigned action, HTREEITEM oldItem, HTREEITEM newItem,
                                        const CPoint& point) const
{
    const View& view = m_state->view;
    NMTREEVIEW notification{};
    notification.hdr.code = static_cast<UINT>(TVN_SELCHANGEDW);
    notification.action = action;
    notification.itemNew = view.describe(newItem);
    notification.itemOld = oldItem == newItem ? notification.itemNew : view.describe(oldItem);
    notification.ptDrag = point;
    view.notifyParent(notification.hdr);
}

BOOL MultiTreeCtrl::SelectItem(HTREEITEM item)
{
    return doSelectItem(item) ? 1 : 0;
}

bool MultiTreeCtrl::doSelectItem(HTREEITEM item)
{
    return m_state->selection->selectAlone(item);
}

void MultiTreeCtrl::selectItemAnchor(HTREEITEM item)
{
    m_anchor = item;
}

unsigned MultiTreeCtrl::clearselection(HTREEITEM first)
{
    return m_state->selection->clear(first);
}

void MultiTreeCtrl::selectRange(HTREEITEM a, HTREEITEM b)
{
    m_state->selection->addRange(a, b);
}

void MultiTreeCtrl::OnEditSelectAll()
{
    m_state->selection->selectDisplayed({TVC_UNKNOWN});
}

/// With TVN_GETDISPINFO the parent may change an item's state without a message to the tree.
BOOL MultiTreeCtrl::OnGetdispinfo(NMHDR* header, LRESULT*)
{
    m_state->selection->note(reinterpret_cast<const NMTVDISPINFO*>(header)->item.hItem);
    return FALSE;
}

void MultiTreeCtrl::OnSetFocus(CWnd* old)
{
    m_state->selection->repaint();
    CTreeCtrl::OnSetFocus(old);
}

void MultiTreeCtrl::OnKillFocus(CWnd* next)
{
    m_state->selection->repaint();
    CTreeCtrl::OnKillFocus(next);
}

// What the state asks for

template <>
std::shared_ptr<MultiTreeCtrl::Selection> MultiTreeCtrl::State::make()
{
    return std::make_shared<Selection>(*this);
}

std::vector<HTREEITEM> MultiTreeCtrl::State::selectedItems() const
{
    return selection->items();
}

std::vector<OVO::Handle<MultiTreeCtrl::Node>> MultiTreeCtrl::State::selectedNodes() const
{
    return selection->nodes();
}
