// CWnd: menus, scroll bars, caret, clipboard, help.
#include <afxwin.h>

#include <detail/handleof.h>
#include <detail/pending.h>

using afxdetail::callOut;

// Menus

CMenu* CWnd::GetMenu() const
{
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* menu)
{
    return callOut([&] { return ::SetMenu(m_hWnd, menu->GetSafeHmenu()); });
}

CMenu* CWnd::GetSystemMenu(BOOL revert) const
{
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, revert));
}

void CWnd::DrawMenuBar()
{
    callOut([&] { ::DrawMenuBar(m_hWnd); });
}

BOOL CWnd::HiliteMenuItem(CMenu* menu, UINT item, UINT hilite)
{
    return ::HiliteMenuItem(m_hWnd, menu->GetSafeHmenu(), item, hilite);
}

// Scroll bars

namespace
{

/// A scroll bar as the window functions name it.
struct Bar
{
    Bar(const CWnd& window, int kind)
        : wnd(window.m_hWnd)
        , kind(kind)
    {
        if (const CScrollBar* control = window.GetScrollBarCtrl(kind)) {
            wnd = control->m_hWnd;
            this->kind = SB_CTL;
        }
    }

    HWND wnd;
    int kind;
};

} // namespace

CScrollBar* CWnd::GetScrollBarCtrl(int) const
{
    return nullptr;
}

int CWnd::SetScrollPos(int bar, int pos, BOOL redraw)
{
    const Bar place(*this, bar);
    return callOut([&] { return ::SetScrollPos(place.wnd, place.kind, pos, redraw); });
}

int CWnd::GetScrollPos(int bar) const
{
    const Bar place(*this, bar);
    return ::GetScrollPos(place.wnd, place.kind);
}

void CWnd::SetScrollRange(int bar, int min, int max, BOOL redraw)
{
    const Bar place(*this, bar);
    callOut([&] { ::SetScrollRange(place.wnd, place.kind, min, max, redraw); });
}

void CWnd::GetScrollRange(int bar, LPINT min, LPINT max) const
{
    const Bar place(*this, bar);
    ::GetScrollRange(place.wnd, place.kind, min, max);
}

BOOL CWnd::SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw)
{
    const Bar place(*this, bar);
    info->cbSize = sizeof *info;
    callOut([&] { ::SetScrollInfo(place.wnd, place.kind, info, redraw); });
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask)
{
    const Bar place(*this, bar);
    info->cbSize = sizeof *info;
    info->fMask = mask;
    return ::GetScrollInfo(place.wnd, place.kind, info);
}

BOOL CWnd::GetScrollBarInfo(LONG object, PSCROLLBARINFO info) const
{
    info->cbSize = sizeof *info;
    return ::GetScrollBarInfo(m_hWnd, object, info);
}

int CWnd::GetScrollLimit(int bar)
{
    SCROLLINFO info{};
    if (!GetScrollInfo(bar, &info, SIF_RANGE | SIF_PAGE))
        return 0;
    const int page = static_cast<int>(info.nPage);
    return info.nMax - std::max(page - 1, 0);
}

void CWnd::ShowScrollBar(UINT bar, BOOL show)
{
    // Both at once can only be the window's own.
    const int kind = static_cast<int>(bar);
    if (CScrollBar* control = kind == SB_BOTH ? nullptr : GetScrollBarCtrl(kind)) {
        control->ShowWindow(show ? SW_SHOW : SW_HIDE);
        return;
    }
    callOut([&] { ::ShowScrollBar(m_hWnd, kind, show); });
}

void CWnd::EnableScrollBarCtrl(int bar, BOOL enable)
{
    if (CScrollBar* control = GetScrollBarCtrl(bar))
        control->EnableWindow(enable);
    else
        EnableScrollBar(bar, enable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
}

BOOL CWnd::EnableScrollBar(int bar, UINT flags)
{
    return callOut([&] { return ::EnableScrollBar(m_hWnd, static_cast<UINT>(bar), flags); });
}

// Caret

void CWnd::CreateCaret(CBitmap* bitmap)
{
    ::CreateCaret(m_hWnd, afxdetail::handleOf(bitmap), 0, 0);
}

CPoint PASCAL CWnd::GetCaretPos()
{
    CPoint point;
    ::GetCaretPos(&point);
    return point;
}

// Clipboard, files

HWND CWnd::SetClipboardViewer()
{
    return callOut([&] { return ::SetClipboardViewer(m_hWnd); });
}

BOOL CWnd::ChangeClipboardChain(HWND next)
{
    return callOut([&] { return ::ChangeClipboardChain(m_hWnd, next); });
}

void CWnd::DragAcceptFiles(BOOL accept)
{
    ::DragAcceptFiles(m_hWnd, accept);
}

BOOL CWnd::DragDetect(POINT point) const
{
    return callOut([&] { return ::DragDetect(m_hWnd, point); });
}

// Help

void CWnd::HtmlHelp(DWORD_PTR data, UINT command)
{
    if (CWinApp* app = AfxGetApp())
        app->HtmlHelp(data, command);
}

void CWnd::WinHelp(DWORD_PTR data, UINT command)
{
    if (CWinApp* app = AfxGetApp())
        app->WinHelp(data, command);
}
