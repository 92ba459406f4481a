// CScrollBar.
#include <afxwin.h>
#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

CScrollBar::CScrollBar() = default;

BOOL CScrollBar::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, L"SCROLLBAR", nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CScrollBar::GetScrollBarInfo(PSCROLLBARINFO info) const
{
    return static_cast<BOOL>(SendMessage(SBM_GETSCROLLBARINFO, 0, reinterpret_cast<LPARAM>(info)));
}

int CScrollBar::GetScrollPos() const
{
    return ::GetScrollPos(m_hWnd, SB_CTL);
}

int CScrollBar::SetScrollPos(int position, BOOL redraw)
{
    return ::SetScrollPos(m_hWnd, SB_CTL, position, redraw);
}

void CScrollBar::GetScrollRange(LPINT minimum, LPINT maximum) const
{
    ::GetScrollRange(m_hWnd, SB_CTL, minimum, maximum);
}

void CScrollBar::SetScrollRange(int minimum, int maximum, BOOL redraw)
{
    ::SetScrollRange(m_hWnd, SB_CTL, minimum, maximum, redraw);
}

void CScrollBar::ShowScrollBar(BOOL show)
{
    ::ShowScrollBar(m_hWnd, SB_CTL, show);
}

BOOL CScrollBar::EnableScrollBar(UINT arrows)
{
    return ::EnableScrollBar(m_hWnd, SB_CTL, arrows);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO info, BOOL redraw)
{
    return CWnd::SetScrollInfo(SB_CTL, info, redraw);
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO info, UINT mask)
{
    return CWnd::GetScrollInfo(SB_CTL, info, mask);
}

int CScrollBar::GetScrollLimit()
{
    return CWnd::GetScrollLimit(SB_CTL);
}
