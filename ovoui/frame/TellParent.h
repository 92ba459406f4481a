/// Not exported. The notifications of controls that are this library's own.
#pragma once

#include <ovoui/frame/Lifeline.h>

#include <afxwin.h>

namespace ovoui::frame
{

/// Sends the parent WM_COMMAND with a code. The parent may do anything: whether the control still has its
/// window afterwards.
inline bool tellParent(const CWnd& control, UINT code)
{
    const Lifeline::Watch watch(control);
    const HWND window = control.m_hWnd;
    ::SendMessageW(::GetParent(window), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(window), code),
                   reinterpret_cast<LPARAM>(window));
    return watch.alive();
}

} // namespace ovoui::frame
