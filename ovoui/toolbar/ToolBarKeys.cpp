// CVantorToolBar: the keys of embedded controls.
#include <ovoui/frame/HeldKeysNow.h>
#include <ovoui/toolbar/ToolBarState.h>
#include <ovoui/toolbar/core/ControlKeys.h>

using namespace ovoui::toolbar;

namespace
{

bool isKey(UINT message)
{
    return message == WM_KEYDOWN || message == WM_KEYUP || message == WM_SYSKEYDOWN || message == WM_SYSKEYUP;
}

/// Whether the window takes characters, or all keys.
bool wantsKeys(const MSG& message)
{
    const LRESULT code =
        ::SendMessageW(message.hwnd, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message));
    return (code & (DLGC_WANTCHARS | DLGC_WANTALLKEYS)) != 0;
}

} // namespace

BOOL CVantorToolBar::PreTranslateMessage(MSG* message)
{
    if (!isKey(message->message))
        return CToolBar::PreTranslateMessage(message);

    const std::shared_ptr<State> state = m_state;
    ControlKey key;
    key.key = static_cast<unsigned>(message->wParam);
    key.down = message->message == WM_KEYDOWN;
    key.ctrl = ovoui::frame::heldKeysNow().ctrl;
    key.wantsKeys = wantsKeys(*message); // asks the host's control
    if (!state->usable())
        return TRUE;
    key.toTheBar = message->hwnd == m_hWnd;

    const KeyDecision decision = decideKey(key);
    if (decision.postsCommand)
        postEndOfInput(message->hwnd);
    switch (decision.route) {
    case KeyRoute::Loop:
        return FALSE;
    case KeyRoute::Control:
        ::TranslateMessage(message);
        ::DispatchMessageW(message);
        return TRUE;
    case KeyRoute::Framework:
        break;
    }
    return CToolBar::PreTranslateMessage(message);
}

/// Enter, Escape or Tab in a control: the bar gets a command of the control's number. The edit of a combo box
/// counts as the box.
void CVantorToolBar::postEndOfInput(HWND target)
{
    const HWND parent = ::GetParent(target);
    const HWND control = parent && parent != m_hWnd ? parent : target;
    const auto id = static_cast<WORD>(::GetDlgCtrlID(control));
    PostMessage(WM_COMMAND, MAKEWPARAM(id, 0), reinterpret_cast<LPARAM>(target));
}
