/// Not exported. Windows that the library draws itself: their class, and popups among them.
#pragma once

#include <afxwin.h>

namespace ovoui::frame
{

/// A window class with the arrow for a cursor. Without a background the window paints all of itself.
LPCTSTR arrowClass(UINT style = 0, HBRUSH background = nullptr);

/// Creates a window above all others that never takes the activation, as tips have it. It has no size yet and
/// is not shown. `style` comes on top of WS_POPUP.
bool createPopup(CWnd& popup, LPCTSTR windowClass, CWnd& owner, DWORD style = 0);

} // namespace ovoui::frame
