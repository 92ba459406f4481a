// The keyboard, the focus, and the default action.
#include <ovoui/tree/NodeErrors.h>
#include <ovoui/tree/TreeState.h>

#include <ovouires/resource.h>

namespace
{

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
        moveTo(focus ? next(TVGN_PREVIOUSVISIBLE, focus) : nullptr);
        return;
    case VK_DOWN:
        moveTo(focus ? next(TVGN_NEXTVISIBLE, focus) : nullptr);
        return;
    case VK_DELETE:
        runOwnCommand(ID_TREE_DELETE);
        return;
    case 'A':
        if (ctrl) {
            if (!isCommandDisabled(ID_EDIT_SELECT_ALL))
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
        const std::shared_ptr<State> state = m_state;
        runOwnCommand(ID_TREE_REDRAW);
        if (!state->usable())
            return;
        break;
    }
    }
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
        CTreeCtrl::OnChar(character, repeat, flags);
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
    const std::shared_ptr<State> state = m_state;
    const State::Tracker goal(state, target);
    EnsureVisible(target);
    if (!state->usable() || !goal)
        return;
    if (isDown(VK_SHIFT)) {
        const State::Tracker oldCaret(state, caret());
        selectWithoutNotice(target);
        if (!state->usable() || !goal)
            return;
        selectRange(m_anchor, target);
        notifyTvnSelchanged(TVC_BYKEYBOARD, oldCaret.item(), target, CPoint(0, 0));
        return;
    }
    m_anchor = target;
    if (!isDown(VK_CONTROL)) {
        doSelectItem(target);
        return;
    }
    moveCaretAlone(target);
    if (state->usable())
        notifyTvnSelchanged(TVC_BYKEYBOARD, caret(), caret(), CPoint(0, 0));
}

void MultiTreeCtrl::toggleCaret()
{
    const HTREEITEM focus = caret();
    if (!focus)
        return;
    setSelected(focus, !isSelected(focus));
    notifyTvnSelchanged(TVC_BYKEYBOARD, focus, focus, CPoint(0, 0));
}

// The default action

void MultiTreeCtrl::defaultAction()
{
    if (isCommandDisabled(kGestureDefaultAction))
        return;
    const std::shared_ptr<State> state = m_state;
    const OVO::Handle<EVSubscriptionList<int>> gestures = m_gestures;
    gestures->notify(kGestureDefaultAction);
    std::exception_ptr error;
    try {
        if (state->usable())
            activateSelection();
    } catch (...) {
        error = std::current_exception();
    }
    gestures->notify(0);
    ovoui::tree::raise(error);
}

void MultiTreeCtrl::activateSelection()
{
    const std::shared_ptr<State> state = m_state;
    for (const OVO::Handle<Node>& node : selectedNodes()) {
        if (node->hTreeItem())
            setItemState(node->hTreeItem(), 0, TVIS_EXPANDEDONCE);
        node->activate(*this);
        if (!state->usable())
            return;
        const HTREEITEM item = node->hTreeItem();
        if (!item)
            continue;
        node->state = static_cast<std::uint32_t>(ask(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), ~0u));
        updateUI(*node);
        if (!state->usable())
            return;
    }
}

/// The default action as the user wants it: what nodes raise is shown.
void MultiTreeCtrl::runDefaultAction()
{
    ovoui::tree::reportErrors(*this, [this] { defaultAction(); });
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
