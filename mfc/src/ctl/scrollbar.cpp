#include <afxwin.h>

#include <detail/pending.h>

using afxdetail::callOut;

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

CScrollBar::CScrollBar() = default;

BOOL CScrollBar::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_SCROLLBARW, nullptr, style, rect, parent, id);
}

int CScrollBar::GetScrollPos() const
{
    return ::GetScrollPos(m_hWnd, SB_CTL);
}

int CScrollBar::SetScrollPos(int position, BOOL redraw)
{
    return callOut([&] { return ::SetScrollPos(m_hWnd, SB_CTL, position, redraw); });
}

void CScrollBar::GetScrollRange(LPINT minimum, LPINT maximum) const
{
    ::GetScrollRange(m_hWnd, SB_CTL, minimum, maximum);
}

void CScrollBar::SetScrollRange(int minimum, int maximum, BOOL redraw)
{
    callOut([&] { ::SetScrollRange(m_hWnd, SB_CTL, minimum, maximum, redraw); });
}

void CScrollBar::ShowScrollBar(BOOL show)
{
    callOut([&] { ::ShowScrollBar(m_hWnd, SB_CTL, show); });
}

BOOL CScrollBar::EnableScrollBar(UINT arrows)
{
    return callOut([&] { return ::EnableScrollBar(m_hWnd, SB_CTL, arrows); });
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO info, BOOL redraw)
{
    info->cbSize = sizeof *info;
    callOut([&] { ::SetScrollInfo(m_hWnd, SB_CTL, info, redraw); });
    return TRUE; // the system gives the position, which is no success value
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO info, UINT mask)
{
    info->cbSize = sizeof *info;
    info->fMask = mask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, info);
}

int CScrollBar::GetScrollLimit()
{
    SCROLLINFO info{};
    if (!GetScrollInfo(&info, SIF_RANGE | SIF_PAGE))
        return 0;
    return info.nMax - std::max(static_cast<int>(info.nPage) - 1, 0);
}

BOOL CScrollBar::GetScrollBarInfo(PSCROLLBARINFO info) const
{
    info->cbSize = sizeof *info;
    return ::GetScrollBarInfo(m_hWnd, OBJID_CLIENT, info);
}
