// Internal to CWnd: changes of the system's colours and settings.
#pragma once

#include <windows.h>

namespace afxdetail
{

/// New colours or settings of the system. It tells top-level windows alone, and leaves it to them to tell the
/// controls in them.
inline bool isSystemChange(UINT message)
{
    return message == WM_SYSCOLORCHANGE || message == WM_SETTINGCHANGE;
}

/// Tells everything in `window`, which has handled the message itself and may be gone, unless it is a child.
void passOnSystemChange(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace afxdetail
