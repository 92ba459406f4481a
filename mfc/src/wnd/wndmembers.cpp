// CWnd: the window functions as members.
#include <afxwin.h>

#include <detail/pending.h>

using afxdetail::callOut;

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return callOut([&] { return ::SendMessageW(m_hWnd, message, wParam, lParam); });
}

LRESULT CWnd::SendDlgItemMessage(int id, UINT message, WPARAM wParam, LPARAM lParam) const
{
    return callOut([&] { return ::SendDlgItemMessageW(m_hWnd, id, message, wParam, lParam); });
}

// Style and state

static BOOL modifyStyle(HWND wnd, int offset, DWORD remove, DWORD add, UINT flags)
{
    const auto before = static_cast<DWORD>(::GetWindowLongW(wnd, offset));
    const DWORD after = (before & ~remove) | add;
    if (before == after)
        return FALSE;
    callOut([&] { ::SetWindowLongW(wnd, offset, static_cast<LONG>(after)); });
    if (flags)
        callOut([&] {
            ::SetWindowPos(wnd, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
        });
    return TRUE;
}

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT flags)
{
    return modifyStyle(m_hWnd, GWL_STYLE, remove, add, flags);
}

BOOL CWnd::ModifyStyleEx(DWORD remove, DWORD add, UINT flags)
{
    return modifyStyle(m_hWnd, GWL_EXSTYLE, remove, add, flags);
}

BOOL CWnd::ShowWindow(int show)
{
    return callOut([&] { return ::ShowWindow(m_hWnd, show); });
}

BOOL CWnd::EnableWindow(BOOL enable)
{
    return callOut([&] { return ::EnableWindow(m_hWnd, enable); });
}

CWnd* CWnd::SetFocus()
{
    return FromHandle(callOut([&] { return ::SetFocus(m_hWnd); }));
}

CWnd* CWnd::SetActiveWindow()
{
    return FromHandle(callOut([&] { return ::SetActiveWindow(m_hWnd); }));
}

BOOL CWnd::SetForegroundWindow()
{
    return callOut([&] { return ::SetForegroundWindow(m_hWnd); });
}

void CWnd::BringWindowToTop()
{
    callOut([&] { ::BringWindowToTop(m_hWnd); });
}

// Text, font, icon

void CWnd::SetWindowText(LPCTSTR text)
{
    callOut([&] { ::SetWindowTextW(m_hWnd, text); });
}

int CWnd::GetWindowText(LPTSTR buffer, int maxCount) const
{
    return callOut([&] { return ::GetWindowTextW(m_hWnd, buffer, maxCount); });
}

void CWnd::GetWindowText(CString& text) const
{
    const int length = GetWindowTextLength();
    GetWindowText(text.GetBuffer(length), length + 1);
    text.ReleaseBuffer();
}

int CWnd::GetWindowTextLength() const
{
    return callOut([&] { return ::GetWindowTextLengthW(m_hWnd); });
}

void CWnd::SetFont(CFont* font, BOOL redraw)
{
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font ? font->GetSafeHandle() : nullptr), redraw);
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

HICON CWnd::SetIcon(HICON icon, BOOL big)
{
    return reinterpret_cast<HICON>(SendMessage(WM_SETICON, static_cast<WPARAM>(big), reinterpret_cast<LPARAM>(icon)));
}

HICON CWnd::GetIcon(BOOL big) const
{
    return reinterpret_cast<HICON>(SendMessage(WM_GETICON, static_cast<WPARAM>(big)));
}

// Place

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
    return callOut([&] {
        WINDOWPLACEMENT sized = *placement;
        sized.length = sizeof sized;
        return ::SetWindowPlacement(m_hWnd, &sized);
    });
}

int CWnd::SetWindowRgn(HRGN region, BOOL redraw)
{
    return callOut([&] { return ::SetWindowRgn(m_hWnd, region, redraw); });
}

// Painting

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
    return CDC::FromHandle(::GetDCEx(m_hWnd, clip ? static_cast<HRGN>(clip->GetSafeHandle()) : nullptr, flags));
}

int CWnd::ReleaseDC(CDC* dc)
{
    return ::ReleaseDC(m_hWnd, dc->m_hDC);
}

void CWnd::InvalidateRgn(CRgn* region, BOOL erase)
{
    ::InvalidateRgn(m_hWnd, region ? static_cast<HRGN>(region->GetSafeHandle()) : nullptr, erase);
}

int CWnd::GetUpdateRgn(CRgn* region, BOOL erase)
{
    return ::GetUpdateRgn(m_hWnd, static_cast<HRGN>(region->GetSafeHandle()), erase);
}

void CWnd::UpdateWindow()
{
    callOut([&] { ::UpdateWindow(m_hWnd); });
}

BOOL CWnd::RedrawWindow(LPCRECT rect, CRgn* region, UINT flags)
{
    const HRGN handle = region ? static_cast<HRGN>(region->GetSafeHandle()) : nullptr;
    return callOut([&] { return ::RedrawWindow(m_hWnd, rect, handle, flags); });
}

void CWnd::Print(CDC* dc, DWORD flags) const
{
    SendMessage(WM_PRINT, reinterpret_cast<WPARAM>(dc->m_hDC), static_cast<LPARAM>(flags));
}

void CWnd::PrintClient(CDC* dc, DWORD flags) const
{
    SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc->m_hDC), static_cast<LPARAM>(flags));
}

void CWnd::ScrollWindow(int x, int y, LPCRECT rect, LPCRECT clip)
{
    callOut([&] { ::ScrollWindow(m_hWnd, x, y, rect, clip); });
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT scroll, LPCRECT clip, CRgn* update, LPRECT updateRect, UINT flags)
{
    const HRGN region = update ? static_cast<HRGN>(update->GetSafeHandle()) : nullptr;
    return callOut([&] { return ::ScrollWindowEx(m_hWnd, dx, dy, scroll, clip, region, updateRect, flags); });
}

// Messages

BOOL CWnd::IsDialogMessage(LPMSG message)
{
    return callOut([&] { return ::IsDialogMessageW(m_hWnd, message); });
}

// Dialog items

void CWnd::SetDlgItemText(int id, LPCTSTR text)
{
    callOut([&] { ::SetDlgItemTextW(m_hWnd, id, text); });
}

int CWnd::GetDlgItemText(int id, LPTSTR buffer, int maxCount) const
{
    return static_cast<int>(::GetDlgItemTextW(m_hWnd, id, buffer, maxCount));
}

int CWnd::GetDlgItemText(int id, CString& text) const
{
    text.Empty();
    if (CWnd* item = GetDlgItem(id))
        item->GetWindowText(text);
    return text.GetLength();
}

int CWnd::GetCheckedRadioButton(int first, int last) const
{
    for (int id = first; id <= last; ++id)
        if (IsDlgButtonChecked(id))
            return id;
    return 0;
}

// Menus, scroll bars, the rest

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

BOOL CWnd::HiliteMenuItem(CMenu* menu, UINT item, UINT hilite)
{
    return ::HiliteMenuItem(m_hWnd, menu->GetSafeHmenu(), item, hilite);
}

BOOL CWnd::SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw)
{
    info->cbSize = sizeof *info;
    ::SetScrollInfo(m_hWnd, bar, info, redraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask)
{
    info->cbSize = sizeof *info;
    info->fMask = mask;
    return ::GetScrollInfo(m_hWnd, bar, info);
}

int CWnd::GetScrollLimit(int bar)
{
    SCROLLINFO info{};
    if (!GetScrollInfo(bar, &info, SIF_RANGE | SIF_PAGE))
        return 0;
    const int page = static_cast<int>(info.nPage);
    return info.nMax - (page > 1 ? page - 1 : 0);
}

CScrollBar* CWnd::GetScrollBarCtrl(int) const
{
    return nullptr;
}

CPoint PASCAL CWnd::GetCaretPos()
{
    CPoint point;
    ::GetCaretPos(&point);
    return point;
}

void CWnd::DragAcceptFiles(BOOL accept)
{
    ::DragAcceptFiles(m_hWnd, accept);
}

int CWnd::MessageBox(LPCTSTR text, LPCTSTR caption, UINT type)
{
    return callOut([&] { return ::MessageBoxW(m_hWnd, text, caption ? caption : AfxGetAppName(), type); });
}

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

void CWnd::DoDataExchange(CDataExchange*) {}
