// CWnd: painting.
#include <afxwin.h>

#include <detail/handleof.h>
#include <detail/pending.h>

using afxdetail::callOut;
using afxdetail::handleOf;

CDC* CWnd::BeginPaint(LPPAINTSTRUCT paint)
{
    return CDC::FromHandle(callOut([&] { return ::BeginPaint(m_hWnd, paint); }));
}

CDC* CWnd::GetDC()
{
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetWindowDC()
{
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

CDC* CWnd::GetDCEx(CRgn* clip, DWORD flags)
{
    return CDC::FromHandle(::GetDCEx(m_hWnd, handleOf(clip), flags));
}

int CWnd::ReleaseDC(CDC* dc)
{
    return ::ReleaseDC(m_hWnd, handleOf(dc));
}

void CWnd::InvalidateRgn(CRgn* region, BOOL erase)
{
    ::InvalidateRgn(m_hWnd, handleOf(region), erase);
}

void CWnd::ValidateRgn(CRgn* region)
{
    ::ValidateRgn(m_hWnd, handleOf(region));
}

int CWnd::GetUpdateRgn(CRgn* region, BOOL erase)
{
    return callOut([&] { return ::GetUpdateRgn(m_hWnd, handleOf(region), erase); });
}

BOOL CWnd::GetUpdateRect(LPRECT rect, BOOL erase)
{
    return callOut([&] { return ::GetUpdateRect(m_hWnd, rect, erase); });
}

void CWnd::UpdateWindow()
{
    callOut([&] { ::UpdateWindow(m_hWnd); });
}

BOOL CWnd::RedrawWindow(LPCRECT rect, CRgn* region, UINT flags)
{
    return callOut([&] { return ::RedrawWindow(m_hWnd, rect, handleOf(region), flags); });
}

void CWnd::Print(CDC* dc, DWORD flags) const
{
    SendMessage(WM_PRINT, reinterpret_cast<WPARAM>(handleOf(dc)), static_cast<LPARAM>(flags));
}

void CWnd::PrintClient(CDC* dc, DWORD flags) const
{
    SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(handleOf(dc)), static_cast<LPARAM>(flags));
}

BOOL CWnd::PrintWindow(CDC* dc, UINT flags) const
{
    return callOut([&] { return ::PrintWindow(m_hWnd, handleOf(dc), flags); });
}

BOOL CWnd::DrawCaption(CDC* dc, LPCRECT rect, UINT flags)
{
    return ::DrawCaption(m_hWnd, handleOf(dc), rect, flags);
}

BOOL CWnd::UpdateLayeredWindow(CDC* destination, POINT* place, SIZE* size, CDC* source, POINT* sourcePlace,
                               COLORREF key, BLENDFUNCTION* blend, DWORD flags)
{
    return ::UpdateLayeredWindow(m_hWnd, handleOf(destination), place, size, handleOf(source), sourcePlace, key,
                                 blend, flags);
}
