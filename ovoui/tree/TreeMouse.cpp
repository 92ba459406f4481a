// The mouse: clicks select, drags are reported, a second click edits the label, a double click activates.
#include <ovoui/tree/DragDetector.h>
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/ParentNotificationFilter.h>
#include <ovoui/tree/RedrawHold.h>
#include <ovoui/tree/core/HitParts.h>

using namespace ovoui::tree;

namespace
{

constexpr UINT_PTR kEditTimer = 2115;

} // namespace

/// A press of a button, from the moment it is looked at to its release or drag.
struct MultiTreeCtrl::Press
{
    Press(const MultiTreeCtrl& tree, UINT pressedKeys, CPoint where, UINT code, HTREEITEM under,
          unsigned flags)
        : keys(pressedKeys)
        , point(where)
        , dragCode(code)
        , hit(flags)
        , item(tree.m_state, under)
        , caretBefore(tree.m_state, tree.caret())
        , onCaret(under && under == caretBefore.item())
    {
    }

    bool shift() const { return (keys & MK_SHIFT) != 0; }
    bool ctrl() const { return (keys & MK_CONTROL) != 0; }
    bool left() const { return dragCode == static_cast<UINT>(TVN_BEGINDRAGW); }

    const UINT keys;
    const CPoint point;
    const UINT dragCode; ///< what the parent gets if this becomes a drag
    const unsigned hit;
    Tracker item; ///< the item under the pointer
    Tracker caretBefore;
    const bool onCaret; ///< the item was the caret already
};

// Pressing

void MultiTreeCtrl::OnLButtonDown(UINT keys, CPoint point)
{
    doButtonDown(keys, point, static_cast<UINT>(TVN_BEGINDRAGW));
}

void MultiTreeCtrl::OnRButtonDown(UINT keys, CPoint point)
{
    doButtonDown(keys, point, static_cast<UINT>(TVN_BEGINRDRAGW));
}

void MultiTreeCtrl::doButtonDown(UINT keys, CPoint point, UINT dragCode)
{
    const HostCalls host(*this);
    unsigned hit = 0;
    const HTREEITEM under = HitTest(point, &hit);
    if (!host.usable())
        return;
    Press press(*this, keys, point, dragCode, under, hit);
    m_pending = false;
    stopEditTimer();
    if (isNodesOwnPart(hit))
        if (const OVO::Handle<Node> owner = node(under))
            if (owner->buttonDown(*this, keys, point, hit) || !host.usable())
                return;
    if (!takesPress(hit)) {
        Default();
        return;
    }

    if (press.shift())
        pressWithShift(press);
    else if (press.ctrl())
        pressWithCtrl(press);
    else
        pressPlain(press);
    if (host.usable())
        takeFocus();
    if (!host.usable() || press.shift())
        return;

    const bool drag = detectDrag(m_hWnd, point);
    if (!host.usable())
        return;
    if (drag)
        sendBeginDrag(dragCode, point);
    else if (press.ctrl())
        releaseWithCtrl(press);
    else
        releasePlain(press);
}

/// Shift: the range from the anchor, which stays, to the item.
void MultiTreeCtrl::pressWithShift(Press& press)
{
    const HostCalls host(*this);
    if (!press.item)
        press.item.moveTo(itemBeyond(press.hit));
    if (!press.item) {
        doSelectItem(nullptr);
        return;
    }
    selectWithoutNotice(press.item.item());
    if (!host.usable() || !press.item)
        return;
    selectRange(m_anchor, press.item.item());
    if (host.usable())
        notifyTvnSelchanged(TVC_BYMOUSE, press.caretBefore.item(), press.item.item(), press.point);
}

/// Neither Shift nor Ctrl: the item alone. One that is selected with others stays so until the release, since
/// they may be about to be dragged.
void MultiTreeCtrl::pressPlain(Press& press)
{
    const bool selected = press.item && isSelected(press.item.item());
    if (!selected)
        moveAnchor(press);
    if (!hitsItem(press.hit)) {
        m_pending = true;
        doSelectItem(nullptr);
    } else if (!selected) {
        m_pending = true;
        doSelectItem(press.item.item());
    }
}

/// Ctrl: adds the item to the selection; one that is selected leaves it when the button goes up.
void MultiTreeCtrl::pressWithCtrl(Press& press)
{
    moveAnchor(press);
    if (!press.item || isSelected(press.item.item()))
        return;
    m_pending = true;
    const HostCalls host(*this);
    setSelected(press.item.item(), true);
    if (host.usable())
        notifyTvnSelchanged(TVC_BYMOUSE, caret(), caret(), press.point);
}

/// The anchor goes to the item of a press, or to the end of the tree beside which there is none.
void MultiTreeCtrl::moveAnchor(const Press& press)
{
    if (press.item)
        m_anchor = press.item.item();
    else if (beyond(press.hit) != Beyond::Nothing)
        m_anchor = itemBeyond(press.hit);
}

/// The item that a press stands for which hits none.
HTREEITEM MultiTreeCtrl::itemBeyond(unsigned hit) const
{
    switch (beyond(hit)) {
    case Beyond::FirstItem:
        return next(TVGN_ROOT);
    case Beyond::LastItem:
        return getLastItem();
    default:
        return nullptr;
    }
}

void MultiTreeCtrl::takeFocus()
{
    if (caret() || ::GetFocus() == m_hWnd) {
        SetFocus();
        return;
    }
    // There is no caret; the tree view makes an item the caret, and selects it, whenever it gets the focus
    // so.
    const HostCalls host(*this);
    const RedrawHold hold(m_hWnd);
    keepSelection([&] {
        SetFocus();
        if (host.usable())
            selectCaret(nullptr);
    });
}

// Releasing, without a drag in between

/// Ctrl: an item that was selected before the press is not any more.
void MultiTreeCtrl::releaseWithCtrl(const Press& press)
{
    const HostCalls host(*this);
    if (press.item) {
        m_anchor = press.item.item();
        if (!m_pending)
            deselectOne(press.item.item(), press.point);
    }
    if (!press.left() && host.usable())
        sendContextMenu();
}

void MultiTreeCtrl::releasePlain(const Press& press)
{
    const HostCalls host(*this);
    if (press.item)
        m_anchor = press.item.item();
    if (press.left() || m_pending)
        selectPressed(press);
    if (!host.usable())
        return;
    if (!press.left())
        sendContextMenu();
    else if ((GetStyle() & TVS_EDITLABELS) && !m_pending && (press.hit & kHitLabel) && press.onCaret &&
             press.item)
        startEditTimer(press.item.item());
}

/// Selects the item of a press, even if the parent refuses it the caret; not if the parent has chosen another
/// one instead.
void MultiTreeCtrl::selectPressed(const Press& press)
{
    const HostCalls host(*this);
    const HTREEITEM before = caret();
    doSelectItem(press.item.item());
    if (!host.usable() || !press.item)
        return;
    const HTREEITEM now = caret();
    if (now == press.item.item() || now == before)
        setSelected(press.item.item(), true);
}

void MultiTreeCtrl::deselectOne(HTREEITEM item, CPoint point)
{
    const HostCalls host(*this);
    setSelected(item, false);
    if (host.usable())
        notifyTvnSelchanged(TVC_BYMOUSE, caret(), caret(), point);
}

void MultiTreeCtrl::sendBeginDrag(UINT dragCode, CPoint point) const
{
    NMTREEVIEW notification{};
    notification.hdr.hwndFrom = m_hWnd;
    notification.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID());
    notification.hdr.code = dragCode;
    notification.itemNew = describe(caret());
    notification.ptDrag = point;
    notifyParent(notification.hdr);
}

void MultiTreeCtrl::sendContextMenu()
{
    SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_hWnd), static_cast<LPARAM>(::GetMessagePos()));
}

// A release that comes as a message of its own: after a Shift click, or a double click

void MultiTreeCtrl::OnLButtonUp(UINT keys, CPoint point)
{
    const HostCalls host(*this);
    const std::shared_ptr<State> state = m_state;
    unsigned hit = 0;
    const Tracker item(state, HitTest(point, &hit));
    if (!host.usable())
        return;
    if (isNodesOwnPart(hit))
        if (const OVO::Handle<Node> owner = node(item.item()))
            if (owner->handleLButtonUp(*this, point, hit) || !host.usable())
                return;
    if (!takesRelease(hit)) {
        Default();
        return;
    }
    if (keys & MK_SHIFT)
        return;
    if (item)
        m_anchor = item.item();
    if (!(keys & MK_CONTROL))
        doSelectItem(item.item());
    else if (item && !m_pending)
        deselectOne(item.item(), point);
}

void MultiTreeCtrl::OnRButtonUp(UINT keys, CPoint point)
{
    const HostCalls host(*this);
    unsigned hit = 0;
    HitTest(point, &hit);
    if (!host.usable())
        return;
    if (!takesRelease(hit))
        Default();
    else if (keys & MK_SHIFT)
        sendContextMenu();
}

void MultiTreeCtrl::OnRClick(NMHDR*, LRESULT* result)
{
    *result = TRUE;
    sendContextMenu();
}

// Double clicks

void MultiTreeCtrl::OnLButtonDblClk(UINT keys, CPoint point)
{
    const HostCalls host(*this);
    unsigned hit = 0;
    HitTest(point, &hit);
    if (!host.usable())
        return;
    stopEditTimer();
    if (!takesRelease(hit))
        Default();
    else if (!(hit & kHitNowhere) || (keys & (MK_SHIFT | MK_CONTROL)))
        runDefaultAction();
}

void MultiTreeCtrl::OnRButtonDblClk(UINT, CPoint)
{
    stopEditTimer();
    Default();
}

// The second click on a label

void MultiTreeCtrl::startEditTimer(HTREEITEM item)
{
    m_editItem = item;
    m_editTimer = SetTimer(kEditTimer, ::GetDoubleClickTime(), nullptr);
}

void MultiTreeCtrl::stopEditTimer()
{
    if (m_editTimer)
        KillTimer(m_editTimer);
    m_editTimer = 0;
    m_editItem = nullptr;
}

void MultiTreeCtrl::OnTimer(UINT_PTR id)
{
    if (!m_editTimer || id != m_editTimer) {
        CTreeCtrl::OnTimer(id);
        return;
    }
    const HTREEITEM item = m_editItem;
    stopEditTimer();
    editLabel(item);
}
