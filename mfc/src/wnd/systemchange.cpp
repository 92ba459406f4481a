#include "systemchange.h"

#include <afxwin.h>

void afxdetail::passOnSystemChange(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool isChange = message == WM_SYSCOLORCHANGE || message == WM_SETTINGCHANGE;
    if (!isChange || !::IsWindow(window) || (::GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD))
        return;
    CWnd::SendMessageToDescendants(window, message, wParam, lParam, TRUE, FALSE);
}
