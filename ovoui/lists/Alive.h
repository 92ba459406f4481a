/// Not exported: whether a control outlived a call to its host.
#pragma once

#include <afxwin.h>

namespace ovoui::lists
{

/// Whether `object` still is the control of this window; it may be deleted. To be asked after every call that
/// reaches the host, which may destroy the window or the object.
inline bool isAlive(const CWnd* object, HWND window)
{
    return CWnd::FromHandlePermanent(window) == object;
}

} // namespace ovoui::lists
