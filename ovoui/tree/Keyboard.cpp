// The keyboard and the default action.
#include <ovoui/tree/Keyboard.h>

#include <ovoui/frame/AskedKey.h>
#include <ovoui/tree/Gesture.h>
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/Selection.h>
#include <ovoui/tree/core/RowWalk.h>
#include <ovoui/tree/core/SelectRule.h>

#include <ovouires/resource.h>

using namespace ovoui::frame;
using namespace ovoui::tree;

namespace
{

bool isDown(int key)
{
    return ::GetKeyState(key) < 0;
}

} // namespace

// The control's handlers

void MultiTreeCtrl::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    m_state->keyboard->keyDown(key, [=, this] { CTreeCtrl::OnKeyDown(key, repeat, flags); });
}

void MultiTreeCtrl::OnSysKeyDown(UINT key, UINT repeat, UINT flags)
{
    m_state->keyboard->systemKeyDown(key, [=, this] { CTreeCtrl::OnSysKeyDown(key, repeat, flags); });
}

void MultiTreeCtrl::OnChar(UINT character, UINT repeat, UINT flags)
{
    m_state->keyboard->character(character, [=, this] { CTreeCtrl::OnChar(character, repeat, flags); });
}

UINT MultiTreeCtrl::OnGetDlgCode()
{
    const bool escape = asksForKey(GetCurrentMessage()->lParam, VK_ESCAPE);
    const UINT searching = escape && m_state->isFinding() ? DLGC_WANTALLKEYS : 0;
    return CTreeCtrl::OnGetDlgCode() | DLGC_WANTARROWS | searching;
}

void MultiTreeCtrl::OnReturn(NMHDR*, LRESULT* result)
{
    *result = 0;
    if (!isDown(VK_MENU))
        m_state->keyboard->runDefaultAction();
}

void MultiTreeCtrl::OnOk()
{
    if (m_state->view.isEditing())
        DefWindowProc(TVM_ENDEDITLABELNOW, FALSE, 0);
    else
        m_state->keyboard->runDefaultAction();
}

BOOL MultiTreeCtrl::PreTranslateMessage(MSG* message)
{
    return m_state->keyboard->translate(*message) || CTreeCtrl::PreTranslateMessage(message);
}

void MultiTreeCtrl::defaultAction()
{
    m_state->keyboard->defaultAction();
}

// Keys

void MultiTreeCtrl::Keyboard::keyDown(UINT key, const Default& handle)
{
    if (m_state.takesKey(WM_KEYDOWN, key) || !m_state.usable())
        return;
    const HTREEITEM caret = view().caret();
    perform(keyPressed({key, isDown(VK_SHIFT), isDown(VK_CONTROL), isDown(VK_MENU), caret != nullptr,
                        (m_state.extras & AddRanges) != 0, m_state.hasCheckBox(caret)}),
            handle);
}

void MultiTreeCtrl::Keyboard::systemKeyDown(UINT key, const Default& handle)
{
    perform({Aim::None, systemKeyPressed(key)}, handle);
}

void MultiTreeCtrl::Keyboard::character(UINT character, const Default& handle)
{
    if (m_state.takesKey(WM_CHAR, character) || !m_state.usable())
        return;
    const bool ctrl = isDown(VK_CONTROL) && !isDown(VK_MENU);
    perform({Aim::None, characterTyped(static_cast<wchar_t>(character), ctrl)}, handle);
}

void MultiTreeCtrl::Keyboard::perform(const KeyRule& rule, const Default& handle)
{
    const HostCalls host(tree());
    const Tracker goal(shared(), goalOf(rule.aim));
    for (const Action action : rule.actions) {
        if (!host.usable() || (rule.aim != Aim::None && !goal))
            return;
        perform(action, goal.item(), handle);
    }
}

HTREEITEM MultiTreeCtrl::Keyboard::goalOf(Aim aim) const
{
    switch (aim) {
    case Aim::First:
        return view().next(TVGN_ROOT);
    case Aim::Above:
        return view().displayedAbove(view().caret());
    case Aim::Below:
        return view().displayedBelow(view().caret());
    case Aim::Last:
        return view().getLastItem();
    case Aim::PageAbove:
        return pageFrom(view().caret(), TVGN_PREVIOUSVISIBLE);
    case Aim::PageBelow:
        return pageFrom(view().caret(), TVGN_NEXTVISIBLE);
    default:
        return nullptr;
    }
}

HTREEITEM MultiTreeCtrl::Keyboard::pageFrom(HTREEITEM caret, UINT relation) const
{
    return pageOn(caret ? view().displayedFor(caret) : nullptr,
                  static_cast<int>(view().ask(TVM_GETVISIBLECOUNT)),
                  [&](HTREEITEM row) { return view().next(relation, row); });
}

void MultiTreeCtrl::Keyboard::perform(Action action, HTREEITEM goal, const Default& handle)
{
    Selection& selection = *m_state.selection;
    const Selection::Way way{TVC_BYKEYBOARD};
    switch (action) {
    case Action::LeaveToTreeView:
        handle();
        break;
    case Action::FollowAlone:
    case Action::FollowRange:
        selection.follow(action == Action::FollowRange, way, handle);
        break;
    case Action::ScrollTo:
        tree().EnsureVisible(goal);
        break;
    case Action::SelectAlone:
        tree().doSelectItem(goal);
        break;
    case Action::SelectRange:
        selection.selectRange(goal, way);
        break;
    case Action::AddRange:
        selection.addRange(goal, way);
        break;
    case Action::MoveCaret:
        selection.moveCaret(goal, way);
        break;
    case Action::MoveAnchor:
        tree().m_anchor = goal;
        break;
    case Action::ToggleCaret:
        if (const HTREEITEM caret = view().caret())
            selection.set(caret, !view().isSelected(caret), way);
        break;
    case Action::ToggleCheck:
        m_state.toggleCaretsCheck();
        break;
    case Action::SelectAll:
        selectAll();
        break;
    case Action::DefaultAction:
        runDefaultAction();
        break;
    case Action::Delete:
        tree().OnCmdMsg(ID_TREE_DELETE, CN_COMMAND, nullptr, nullptr);
        break;
    case Action::Rename:
        tree().OnCmdMsg(ID_TREE_RENAME, CN_COMMAND, nullptr, nullptr);
        break;
    case Action::Redraw:
        tree().OnCmdMsg(ID_TREE_REDRAW, CN_COMMAND, nullptr, nullptr);
        break;
    default:
        break; // for clicks
    }
}

void MultiTreeCtrl::Keyboard::selectAll()
{
    const HostCalls host(tree());
    if (!tree().isCommandDisabled(ID_EDIT_SELECT_ALL) && host.usable())
        m_state.selection->selectDisplayed({TVC_BYKEYBOARD});
}

// The default action

void MultiTreeCtrl::Keyboard::defaultAction()
{
    const HostCalls host(tree());
    if (tree().isCommandDisabled(kGestureDefaultAction) || !host.usable())
        return;
    raise(asGesture(tree().m_gestures, kGestureDefaultAction, [&] {
        if (host.usable())
            activateSelection();
    }));
}

void MultiTreeCtrl::Keyboard::activateSelection()
{
    const HostCalls host(tree());
    for (const OVO::Handle<Node>& node : m_state.selectedNodes()) {
        if (node->hTreeItem())
            view().setState(node->hTreeItem(), 0, TVIS_EXPANDEDONCE);
        if (!host.usable())
            return;
        node->activate(tree());
        if (!host.usable())
            return;
        const HTREEITEM item = node->hTreeItem();
        if (!item)
            continue;
        node->state = view().stateOf(item);
        tree().updateUI(*node);
        if (!host.usable())
            return;
    }
}

void MultiTreeCtrl::Keyboard::runDefaultAction()
{
    HostCalls(tree()).report([this] { defaultAction(); });
}

// Dialogs and the message loop

bool MultiTreeCtrl::Keyboard::translate(MSG& message)
{
    const bool keyboard = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    const HACCEL accelerators = tree().m_accelerators;
    switch (treeKeyRoute(keyboard, keyboard && view().isEditing(), accelerators != nullptr)) {
    case TreeKeyRoute::ToEditor:
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
        return true;
    case TreeKeyRoute::Accelerators:
        if (::TranslateAcceleratorW(tree().m_hWnd, accelerators, &message))
            return true;
        break;
    case TreeKeyRoute::PassOn:
        break;
    }
    if (message.message != WM_KEYDOWN || message.wParam != VK_RETURN)
        return false;
    if (!isDown(VK_MENU))
        tree().OnOk();
    return true;
}

// What the state asks for

template <>
std::shared_ptr<MultiTreeCtrl::Keyboard> MultiTreeCtrl::State::make()
{
    return std::make_shared<Keyboard>(*this);
}
