#include "wndactivate.h"

#include <afxpriv.h>

#include <detail/pending.h>

namespace
{

HWND groupOf(CWnd* window)
{
    return window ? window->GetTopLevelParent()->GetSafeHwnd() : nullptr;
}

bool isPress(UINT message)
{
    return message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN;
}

} // namespace

void afxdetail::announceActivation(CWnd& window, WPARAM state, HWND other)
{
    if (window.GetStyle() & WS_CHILD)
        return;
    const HWND group = groupOf(&window);
    if (group == groupOf(CWnd::FromHandle(other)))
        return;
    // The window becoming active comes first, the other one second.
    HWND windows[2] = {window.m_hWnd, other};
    if (LOWORD(state) == WA_INACTIVE)
        std::swap(windows[0], windows[1]);
    callOut([&] { ::SendMessageW(group, WM_ACTIVATETOPLEVEL, state, reinterpret_cast<LPARAM>(windows)); });
}

bool afxdetail::bringPopupToFront(CWnd& window, LPARAM hitAndMessage)
{
    const auto parts = static_cast<DWORD>(hitAndMessage);
    if (static_cast<short>(LOWORD(parts)) != HTERROR || !isPress(HIWORD(parts)))
        return false;
    const HWND popup = ::GetLastActivePopup(groupOf(&window));
    if (!popup || popup == ::GetForegroundWindow() || !::IsWindowEnabled(popup))
        return false;
    callOut([&] { ::SetForegroundWindow(popup); });
    return true;
}
