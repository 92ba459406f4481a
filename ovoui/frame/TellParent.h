/// Not exported. The notifications of controls that are this library's own.
#pragma once

#include <ovoui/frame/Lifeline.h>

#include <afxwin.h>

namespace ovoui::frame
{

/// Sends a window of the host a message; 0 without a window. What the host raises is raised here, when the
/// system has returned: it does not fly through the system's code.
inline LRESULT sendToHost(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const CWnd* const host = CWnd::FromHandle(window);
    return host ? host->SendMessage(message, wParam, lParam) : 0;
}

/// Sends the parent a message about a control. The parent may do anything: whether the control still has its
/// window afterwards.
inline bool tellParent(const CWnd& control, UINT message, WPARAM wParam)
{
    const Lifeline::Watch watch(control);
    const HWND window = control.m_hWnd;
    sendToHost(::GetParent(window), message, wParam, reinterpret_cast<LPARAM>(window));
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

} // namespace ovoui::frame
