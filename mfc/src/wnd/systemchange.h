// Internal to CWnd: changes of the system's colours and settings.
#pragma once

#include <windows.h>

namespace afxdetail
{

/// The system tells of such changes to top-level windows alone, and leaves it to them to tell the controls in
/// them. Does so after `window` has handled `message`, if it is one of those; `window` may be gone.
void passOnSystemChange(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace afxdetail
