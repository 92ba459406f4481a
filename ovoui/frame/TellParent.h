/// Not exported. The notifications of controls that are this library's own.
#pragma once

#include <ovoui/frame/Lifeline.h>

#include <afxwin.h>

namespace ovoui::frame
{

/// Sends the parent a message about a control. The parent may do anything: whether the control still has its
/// window afterwards. What the parent raises waits until the control's handler is done.
inline bool tellParent(const CWnd& control, UINT message, WPARAM wParam)
{
    const Lifeline::Watch watch(control);
    const HWND window = control.m_hWnd;
    ::SendMessageW(::GetParent(window), message, wParam, reinterpret_cast<LPARAM>(window));
    return watch.alive();
}

inline WPARAM notification(const CWnd& control, UINT code)
{
    return MAKEWPARAM(::GetDlgCtrlID(control), code);
}

/// The same with WM_COMMAND and a code.
inline bool tellParent(const CWnd& control, UINT code)
{
    return tellParent(control, WM_COMMAND, notification(control, code));
}

/// The same for handlers that end with what the parent raises.
inline bool tellParentOrRaise(const CWnd& control, UINT code)
{
    const Lifeline::Watch watch(control);
    const HWND window = control.m_hWnd;
    if (CWnd* const parent = control.GetParent())
        parent->SendMessage(WM_COMMAND, notification(control, code), reinterpret_cast<LPARAM>(window));
    return watch.alive();
}

} // namespace ovoui::frame
