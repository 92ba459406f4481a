#include <ovoui/frame/OwnWindow.h>

namespace ovoui::frame
{

LPCTSTR arrowClass(UINT style, HBRUSH background)
{
    return AfxRegisterWndClass(style, ::LoadCursorW(nullptr, IDC_ARROW), background);
}

bool createPopup(CWnd& popup, LPCTSTR windowClass, CWnd& owner, DWORD style)
{
    return popup.CreateEx(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_TOPMOST, windowClass, L"",
                          WS_POPUP | style, CRect(), &owner, 0) != FALSE;
}

} // namespace ovoui::frame
