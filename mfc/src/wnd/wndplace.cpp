// CWnd: place and size.
#include <afxwin.h>

#include <detail/handleof.h>
#include <detail/pending.h>

using afxdetail::callOut;

void CWnd::MoveWindow(int x, int y, int width, int height, BOOL repaint)
{
    callOut([&] { ::MoveWindow(m_hWnd, x, y, width, height, repaint); });
}

void CWnd::MoveWindow(LPCRECT rect, BOOL repaint)
{
    MoveWindow(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, repaint);
}

BOOL CWnd::SetWindowPos(const CWnd* insertAfter, int x, int y, int cx, int cy, UINT flags)
{
    return callOut([&] { return ::SetWindowPos(m_hWnd, insertAfter->GetSafeHwnd(), x, y, cx, cy, flags); });
}

void CWnd::ClientToScreen(LPRECT rect) const
{
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(rect), 2);
}

void CWnd::ScreenToClient(LPRECT rect) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(rect), 2);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* placement) const
{
    placement->length = sizeof *placement;
    return ::GetWindowPlacement(m_hWnd, placement);
}

BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* placement)
{
    WINDOWPLACEMENT sized = *placement;
    sized.length = sizeof sized;
    return callOut([&] { return ::SetWindowPlacement(m_hWnd, &sized); });
}

int CWnd::SetWindowRgn(HRGN region, BOOL redraw)
{
    return callOut([&] { return ::SetWindowRgn(m_hWnd, region, redraw); });
}

UINT CWnd::ArrangeIconicWindows()
{
    return callOut([&] { return ::ArrangeIconicWindows(m_hWnd); });
}

BOOL CWnd::GetWindowInfo(PWINDOWINFO info) const
{
    info->cbSize = sizeof *info;
    return ::GetWindowInfo(m_hWnd, info);
}

BOOL CWnd::GetTitleBarInfo(PTITLEBARINFO info) const
{
    info->cbSize = sizeof *info;
    return ::GetTitleBarInfo(m_hWnd, info);
}

BOOL CWnd::GetMenuBarInfo(LONG object, LONG item, PMENUBARINFO info) const
{
    info->cbSize = sizeof *info;
    return ::GetMenuBarInfo(m_hWnd, object, item, info);
}

void CWnd::ScrollWindow(int x, int y, LPCRECT rect, LPCRECT clip)
{
    callOut([&] { ::ScrollWindow(m_hWnd, x, y, rect, clip); });
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT scroll, LPCRECT clip, CRgn* update, LPRECT updateRect, UINT flags)
{
    const HRGN region = afxdetail::handleOf(update);
    return callOut([&] { return ::ScrollWindowEx(m_hWnd, dx, dy, scroll, clip, region, updateRect, flags); });
}
