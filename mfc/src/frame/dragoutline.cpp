#include "dragoutline.h"

namespace afxdetail
{

namespace
{

HWND makeWindow()
{
    const LPCTSTR name = AfxRegisterWndClass(0, nullptr, reinterpret_cast<HBRUSH>(COLOR_HIGHLIGHT + 1));
    constexpr DWORD kExStyle = WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE | WS_EX_TRANSPARENT;
    return ::CreateWindowExW(kExStyle, name, L"", WS_POPUP | WS_DISABLED, 0, 0, 0, 0, nullptr, nullptr,
                             AfxGetInstanceHandle(), nullptr);
}

/// A rectangle with a hole. The window owns it afterwards.
HRGN hollow(CSize size, int thickness)
{
    const HRGN region = ::CreateRectRgn(0, 0, size.cx, size.cy);
    const HRGN hole = ::CreateRectRgn(thickness, thickness, size.cx - thickness, size.cy - thickness);
    ::CombineRgn(region, region, hole, RGN_DIFF);
    ::DeleteObject(hole);
    return region;
}

} // namespace

DragOutline::~DragOutline()
{
    if (m_wnd)
        ::DestroyWindow(m_wnd);
}

void DragOutline::show(const CRect& rect, int thickness)
{
    if (!m_wnd)
        m_wnd = makeWindow();
    if (!m_wnd)
        return; // the bar can be dragged without it
    if (rect.Size() != m_size || thickness != m_thickness) {
        m_size = rect.Size();
        m_thickness = thickness;
        ::SetWindowRgn(m_wnd, hollow(m_size, thickness), TRUE);
    }
    ::SetWindowPos(m_wnd, HWND_TOPMOST, rect.left, rect.top, rect.Width(), rect.Height(),
                   SWP_NOACTIVATE | SWP_SHOWWINDOW);
    ::UpdateWindow(m_wnd);
}

} // namespace afxdetail
