// The keyboard, the focus, and the default action.
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/ParentNotificationFilter.h>

#include <ovouires/resource.h>

#include <optional>

using ovoui::tree::ParentNotificationFilter;

namespace
{

/// Keys of the tree view that go to another item.
bool movesCaret(UINT key)
{
    return key == VK_END || key == VK_PRIOR || key == VK_NEXT || key == VK_LEFT || key == VK_RIGHT ||
           key == VK_BACK;
}

bool isDown(int key)
{
    return ::GetKeyState(key) < 0;
}

} // namespace

void MultiTreeCtrl::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    const HTREEITEM focus = caret();
    const bool ctrl = isDown(VK_CONTROL);
    switch (key) {
    case VK_RETURN:
        if (!isDown(VK_MENU))
            runDefaultAction();
        return;
    case VK_SPACE:
        if (ctrl)
            toggleCaret();
        else
            runDefaultAction();
        return;
    case VK_HOME:
        moveTo(next(TVGN_ROOT));
        return;
    case VK_UP:
        moveTo(focus ? displayedAbove(focus) : nullptr);
        return;
    case VK_DOWN:
        moveTo(focus ? displayedBelow(focus) : nullptr);
        return;
    case VK_DELETE:
        runOwnCommand(ID_TREE_DELETE);
        return;
    case 'A':
        if (ctrl) {
            const HostCalls host(*this);
            if (!isCommandDisabled(ID_EDIT_SELECT_ALL) && host.usable())
                selectAll(TVC_BYKEYBOARD);
            return;
        }
        break;
    case VK_F2:
        if (focus) {
            runOwnCommand(ID_TREE_RENAME);
            return;
        }
        break;
    case VK_F5: {
        const HostCalls host(*this);
        runOwnCommand(ID_TREE_REDRAW);
        if (!host.usable())
            return;
        break;
    }
    }
    if (movesCaret(key))
        leaveToTreeView(isDown(VK_SHIFT), [&] { CTreeCtrl::OnKeyDown(key, repeat, flags); });
    else
        CTreeCtrl::OnKeyDown(key, repeat, flags);
}

/// With Alt held keys come this way. The tree view would activate its item at Enter.
void MultiTreeCtrl::OnSysKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (key != VK_RETURN)
        CTreeCtrl::OnSysKeyDown(key, repeat, flags);
}

/// The characters of keys that were handled when they went down must not be searched for among the items.
void MultiTreeCtrl::OnChar(UINT character, UINT repeat, UINT flags)
{
    constexpr UINT kCtrlA = 1;
    if (character != L'\r' && character != L' ' && character != kCtrlA)
        leaveToTreeView(false, [&] { CTreeCtrl::OnChar(character, repeat, flags); });
}

/// A key that the tree view handles, which knows of one selected item only. Where it moves the caret, the
/// others are deselected, or with Shift the range from the anchor is selected, and the parent hears of it
/// once. With Ctrl, or where no others are selected, its own way is right. The anchor stays.
void MultiTreeCtrl::leaveToTreeView(bool shift, const std::function<void()>& handle)
{
    const HostCalls host(*this);
    const std::shared_ptr<State> state = m_state;
    const Tracker oldCaret(state, caret());
    const std::vector<HTREEITEM> selected = selectedItems();
    const bool alone = selected.empty() || (selected.size() == 1 && selected.front() == oldCaret.item());
    if (isDown(VK_CONTROL) || (alone && !shift)) {
        handle();
        return;
    }
    std::optional<ParentNotificationFilter> quiet(m_hWnd);
    handle();
    if (!host.usable())
        return;
    const Tracker target(state, caret());
    if (!target || target.item() == oldCaret.item())
        return;
    doSelectItem(target.item());
    if (!host.usable() || !target)
        return;
    if (shift)
        selectRange(m_anchor, target.item());
    quiet.reset();
    if (host.usable() && target)
        notifyTvnSelchanged(TVC_BYKEYBOARD, oldCaret.item(), target.item(), CPoint(0, 0));
}

/// A command of the tree's own, unless the host forbids it.
void MultiTreeCtrl::runOwnCommand(unsigned id)
{
    OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
}

// Moving

void MultiTreeCtrl::moveTo(HTREEITEM target)
{
    if (!target)
        return;
    const HostCalls host(*this);
    const std::shared_ptr<State> state = m_state;
    const Tracker goal(state, target);
    EnsureVisible(target);
    if (!host.usable() || !goal)
        return;
    if (isDown(VK_SHIFT)) {
        const Tracker oldCaret(state, caret());
        selectWithoutNotice(target);
        if (!host.usable() || !goal)
            return;
        selectRange(m_anchor, target);
        if (host.usable())
            notifyTvnSelchanged(TVC_BYKEYBOARD, oldCaret.item(), goal.item(), CPoint(0, 0));
        return;
    }
    m_anchor = target;
    if (!isDown(VK_CONTROL)) {
        doSelectItem(target);
        return;
    }
    moveCaretAlone(target);
    if (host.usable())
        notifyTvnSelchanged(TVC_BYKEYBOARD, caret(), caret(), CPoint(0, 0));
}

void MultiTreeCtrl::toggleCaret()
{
    const Tracker focus(m_state, caret());
    if (!focus)
        return;
    const HostCalls host(*this);
    setSelected(focus.item(), !isSelected(focus.item()));
    if (host.usable())
        notifyTvnSelchanged(TVC_BYKEYBOARD, focus.item(), focus.item(), CPoint(0, 0));
}

// The default action

void MultiTreeCtrl::defaultAction()
{
    const HostCalls host(*this);
    if (isCommandDisabled(kGestureDefaultAction) || !host.usable())
        return;
    const OVO::Handle<EVSubscriptionList<int>> gestures = m_gestures;
    gestures->notify(kGestureDefaultAction);
    const std::exception_ptr error = ovoui::tree::keeping([&] {
        if (host.usable())
            activateSelection();
    });
    gestures->notify(0);
    ovoui::tree::raise(error);
}

void MultiTreeCtrl::activateSelection()
{
    const HostCalls host(*this);
    for (const OVO::Handle<Node>& node : selectedNodes()) {
        if (node->hTreeItem())
            setItemState(node->hTreeItem(), 0, TVIS_EXPANDEDONCE);
        if (!host.usable())
            return;
        node->activate(*this);
        if (!host.usable())
            return;
        const HTREEITEM item = node->hTreeItem();
        if (!item)
            continue;
        node->state = static_cast<std::uint32_t>(ask(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), ~0u));
        updateUI(*node);
        if (!host.usable())
            return;
    }
}

/// The default action as the user wants it: what nodes raise is shown.
void MultiTreeCtrl::runDefaultAction()
{
    HostCalls(*this).report([this] { defaultAction(); });
}

void MultiTreeCtrl::OnReturn(NMHDR*, LRESULT* result)
{
    *result = 0;
    if (!isDown(VK_MENU))
        runDefaultAction();
}

void MultiTreeCtrl::OnOk()
{
    if (ask(TVM_GETEDITCONTROL))
        DefWindowProc(TVM_ENDEDITLABELNOW, FALSE, 0);
    else
        runDefaultAction();
}

// Dialogs and the message loop

UINT MultiTreeCtrl::OnGetDlgCode()
{
    return CTreeCtrl::OnGetDlgCode() | DLGC_WANTARROWS;
}

BOOL MultiTreeCtrl::PreTranslateMessage(MSG* message)
{
    const bool keyboard = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    if (keyboard && ask(TVM_GETEDITCONTROL)) {
        // Or a dialog around us would take Enter, Escape and Tab.
        ::TranslateMessage(message);
        ::DispatchMessageW(message);
        return TRUE;
    }
    if (keyboard && m_accelerators && ::TranslateAcceleratorW(m_hWnd, m_accelerators, message))
        return TRUE;
    if (message->message == WM_KEYDOWN && message->wParam == VK_RETURN) {
        OnOk();
        return TRUE;
    }
    return CTreeCtrl::PreTranslateMessage(message);
}

// Focus

void MultiTreeCtrl::OnSetFocus(CWnd* old)
{
    invalidateSelection();
    CTreeCtrl::OnSetFocus(old);
}

void MultiTreeCtrl::OnKillFocus(CWnd* next)
{
    invalidateSelection();
    CTreeCtrl::OnKillFocus(next);
}
