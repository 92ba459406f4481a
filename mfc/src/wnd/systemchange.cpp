#include "systemchange.h"

#include <afxwin.h>

void afxdetail::passOnSystemChange(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (::IsWindow(window) && !(::GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD))
        CWnd::SendMessageToDescendants(window, message, wParam, lParam, TRUE, FALSE);
}
