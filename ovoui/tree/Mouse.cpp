// The mouse: clicks select, drags are reported, a second click edits the label, a double click activates.
#include <ovoui/tree/Mouse.h>

#include <ovoui/tree/DragDetector.h>
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/frame/RedrawHold.h>
#include <ovoui/tree/Selection.h>
#include <ovoui/tree/core/HitParts.h>

using namespace ovoui::frame;
using namespace ovoui::tree;

namespace
{

constexpr UINT_PTR kEditTimer = 2115;

} // namespace

// The control's handlers

void MultiTreeCtrl::OnLButtonDown(UINT keys, CPoint point)
{
    m_state->mouse->doButtonDown(Mouse::Button::Left, keys, point);
}

void MultiTreeCtrl::OnRButtonDown(UINT keys, CPoint point)
{
    m_state->mouse->doButtonDown(Mouse::Button::Right, keys, point);
}

void MultiTreeCtrl::OnLButtonUp(UINT keys, CPoint point)
{
    m_state->mouse->release(Mouse::Button::Left, keys, point);
}

void MultiTreeCtrl::OnRButtonUp(UINT keys, CPoint point)
{
    m_state->mouse->release(Mouse::Button::Right, keys, point);
}

void MultiTreeCtrl::OnLButtonDblClk(UINT keys, CPoint point)
{
    m_state->mouse->doubleClick(Mouse::Button::Left, keys, point);
}

void MultiTreeCtrl::OnRButtonDblClk(UINT keys, CPoint point)
{
    m_state->mouse->doubleClick(Mouse::Button::Right, keys, point);
}

void MultiTreeCtrl::OnRClick(NMHDR*, LRESULT* result)
{
    *result = TRUE;
    m_state->mouse->askForMenu();
}

// Clicks

/// A click, from the moment it is looked at.
struct MultiTreeCtrl::Mouse::Click
{
    /// Asks the node under the pointer, which may destroy the tree.
    Click(const std::shared_ptr<State>& state, Button which, UINT pressedKeys, CPoint where)
        : button(which)
        , keys(pressedKeys)
        , point(where)
        , item(state, state->control()->HitTest(where, &hit))
        , onCaret(state->usable() && item && item.item() == state->view.caret())
        , onCheckBox(state->usable() && which == Button::Left && state->hasCheckBox(item.item()))
        , extras(state->extras)
    {
    }

    Held held() const
    {
        return ovoui::tree::held((keys & MK_SHIFT) != 0, (keys & MK_CONTROL) != 0, (extras & AddRanges) != 0);
    }
    Where pressedAt() const { return placeOfPress(!!item, hit, onCheckBox); }
    Where releasedAt() const { return placeOfRelease(!!item, hit, onCheckBox); }
    bool right() const { return button == Button::Right; }
    Selection::Way way() const { return {TVC_BYMOUSE, point}; }

    const Button button;
    const UINT keys;
    const CPoint point;
    unsigned hit = 0;
    const Tracker item;    ///< the item under the pointer
    const bool onCaret;    ///< it is the caret already
    const bool onCheckBox; ///< it has one, which takes this button
    const unsigned extras; ///< what the host has asked for
};

void MultiTreeCtrl::Mouse::doButtonDown(Button button, UINT keys, CPoint point)
{
    const HostCalls host(tree());
    const Click click(shared(), button, keys, point);
    if (!host.usable())
        return;
    tree().m_pending = false;
    stopEditTimer();
    if (isNodesOwnPart(click.hit))
        if (const OVO::Handle<Node> owner = view().node(click.item.item()))
            if (owner->buttonDown(tree(), keys, point, click.hit) || !host.usable())
                return;
    const bool selected = click.item && view().isSelected(click.item.item());
    const Actions actions = pressed({click.held(), click.pressedAt(), selected});
    if (isSettledBy(actions))
        tree().m_pending = true;
    perform(actions, click);
}

void MultiTreeCtrl::Mouse::release(Button button, UINT keys, CPoint point)
{
    const HostCalls host(tree());
    const Click click(shared(), button, keys, point);
    if (!host.usable())
        return;
    if (!click.right() && isNodesOwnPart(click.hit))
        if (const OVO::Handle<Node> owner = view().node(click.item.item()))
            if (owner->handleLButtonUp(tree(), point, click.hit) || !host.usable())
                return;
    perform(released({click.held(), click.releasedAt(), click.right(), tree().m_pending, false}), click);
}

void MultiTreeCtrl::Mouse::doubleClick(Button button, UINT keys, CPoint point)
{
    if (button == Button::Right) {
        stopEditTimer();
        tree().Default();
        return;
    }
    const HostCalls host(tree());
    const Click click(shared(), button, keys, point);
    if (!host.usable())
        return;
    stopEditTimer();
    perform(doubleClicked({click.held(), click.releasedAt(), (click.hit & kHitNowhere) != 0}), click);
}

void MultiTreeCtrl::Mouse::perform(const Actions& actions, const Click& click)
{
    const HostCalls host(tree());
    for (const Action action : actions)
        if (host.usable())
            perform(action, click);
}

void MultiTreeCtrl::Mouse::perform(Action action, const Click& click)
{
    Selection& selection = *m_state.selection;
    const HTREEITEM item = click.item.item();
    switch (action) {
    case Action::LeaveToTreeView:
        tree().Default();
        break;
    case Action::SelectAlone:
        tree().doSelectItem(item);
        break;
    case Action::SelectForCertain:
        selection.selectForCertain(item);
        break;
    case Action::Clear:
        tree().doSelectItem(nullptr);
        break;
    case Action::SelectRange:
        selectRange(click);
        break;
    case Action::AddRange:
        addRange(click);
        break;
    case Action::Add:
    case Action::Remove:
        if (item)
            selection.set(item, action == Action::Add, click.way());
        break;
    case Action::MoveAnchor:
        if (item || beyond(click.hit) != Beyond::Nothing)
            tree().m_anchor = item ? item : itemBeyond(click.hit);
        break;
    case Action::TakeFocus:
        takeFocus();
        break;
    case Action::AwaitDrag:
        awaitDrag(click);
        break;
    case Action::BeginDrag:
        beginDrag(click);
        break;
    case Action::SelectByBand:
        m_state.selectByBand(click.point, click.held() == Held::Ctrl);
        break;
    case Action::AskForMenu:
        askForMenu();
        break;
    case Action::ToggleCheck:
        m_state.toggleCheck(item);
        break;
    case Action::EditLater:
        if (item)
            editLater(item);
        break;
    case Action::DefaultAction:
        HostCalls(tree()).report([this] { tree().defaultAction(); });
        break;
    default:
        break; // for keys
    }
}

void MultiTreeCtrl::Mouse::awaitDrag(const Click& click)
{
    const HostCalls host(tree());
    const bool drag = detectDrag(tree().m_hWnd, click.point);
    if (!host.usable())
        return;
    if (drag) {
        perform(dragged({click.pressedAt(), click.right(), (click.extras & RubberBand) != 0}), click);
        return;
    }
    const bool editable = editsLabel(click.hit, click.onCaret, (tree().GetStyle() & TVS_EDITLABELS) != 0);
    perform(releasedAfterPress({click.held(), click.pressedAt(), click.right(), tree().m_pending, editable}),
            click);
}

void MultiTreeCtrl::Mouse::beginDrag(const Click& click) const
{
    NMTREEVIEW notification{};
    notification.hdr.code = static_cast<UINT>(click.right() ? TVN_BEGINRDRAGW : TVN_BEGINDRAGW);
    notification.itemNew = view().describe(view().caret());
    notification.ptDrag = click.point;
    view().notifyParent(notification.hdr);
}

void MultiTreeCtrl::Mouse::selectRange(const Click& click)
{
    const HTREEITEM end = click.item ? click.item.item() : itemBeyond(click.hit);
    if (end)
        m_state.selection->selectRange(end, click.way());
    else
        tree().doSelectItem(nullptr);
}

void MultiTreeCtrl::Mouse::addRange(const Click& click)
{
    const HTREEITEM end = click.item ? click.item.item() : itemBeyond(click.hit);
    if (end)
        m_state.selection->addRange(end, click.way());
}

/// The item that a click stands for which hits none.
HTREEITEM MultiTreeCtrl::Mouse::itemBeyond(unsigned hit) const
{
    switch (beyond(hit)) {
    case Beyond::FirstItem:
        return view().next(TVGN_ROOT);
    case Beyond::LastItem:
        return view().getLastItem();
    default:
        return nullptr;
    }
}

void MultiTreeCtrl::Mouse::takeFocus()
{
    if (view().caret() || ::GetFocus() == tree().m_hWnd) {
        tree().SetFocus();
        return;
    }
    // There is no caret; the tree view makes an item the caret, and selects it, whenever it gets the focus
    // so.
    const HostCalls host(tree());
    const RedrawHold hold(tree().m_hWnd);
    m_state.selection->keepWhile([&] {
        tree().SetFocus();
        if (host.usable())
            view().setCaret(nullptr);
    });
}

void MultiTreeCtrl::Mouse::askForMenu() const
{
    tree().SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(tree().m_hWnd),
                       static_cast<LPARAM>(::GetMessagePos()));
}

// The second click on a label

void MultiTreeCtrl::Mouse::editLater(HTREEITEM item)
{
    tree().m_editItem = item;
    tree().m_editTimer = tree().SetTimer(kEditTimer, ::GetDoubleClickTime(), nullptr);
}

void MultiTreeCtrl::Mouse::stopEditTimer()
{
    if (tree().m_editTimer)
        tree().KillTimer(tree().m_editTimer);
    tree().m_editTimer = 0;
    tree().m_editItem = nullptr;
}

HTREEITEM MultiTreeCtrl::Mouse::takeItemToEdit(UINT_PTR timer)
{
    if (!tree().m_editTimer || timer != tree().m_editTimer)
        return nullptr;
    const HTREEITEM item = tree().m_editItem;
    stopEditTimer();
    return item;
}

void MultiTreeCtrl::Mouse::itemGoes(HTREEITEM item)
{
    if (tree().m_editItem == item)
        stopEditTimer();
}

// What the state asks for

template <>
std::shared_ptr<MultiTreeCtrl::Mouse> MultiTreeCtrl::State::make()
{
    return std::make_shared<Mouse>(*this);
}
