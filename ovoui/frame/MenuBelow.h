/// Not exported: menus that buttons open.
#pragma once

#include <afxwin.h>

namespace ovoui::frame
{

/// Opens a menu below `button`, which may be null, and aligned with the edge at which the owner's texts
/// begin. Gives what CMenu::TrackPopupMenu gives.
inline int openBelow(CMenu& menu, UINT flags, HWND button, CWnd& owner)
{
    CRect rect(0, 0, 0, 0);
    ::GetWindowRect(button, &rect);
    if (owner.GetExStyle() & WS_EX_LAYOUTRTL) // the system takes left for right then
        return menu.TrackPopupMenu(flags | TPM_LAYOUTRTL, rect.right, rect.bottom, &owner);
    return menu.TrackPopupMenu(flags, rect.left, rect.bottom, &owner);
}

} // namespace ovoui::frame
