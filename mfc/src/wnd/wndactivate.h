// Internal to the window engine: what activation means to a group of windows.
#pragma once

#include <afxwin.h>

namespace afxdetail
{

/// On WM_ACTIVATE: tells the outermost owner that a window of its group becomes active, or ceases to be, unless
/// the other window is of the same group.
void announceActivation(CWnd& window, WPARAM state, HWND other);

/// On WM_SETCURSOR: a press on a window that is disabled by its popup brings that popup to the front. TRUE when it
/// did.
bool bringPopupToFront(CWnd& window, LPARAM hitAndMessage);

} // namespace afxdetail
