// CWnd: style, state, text, font and icon.
#include <afxwin.h>

#include <detail/handleof.h>
#include <detail/pending.h>

using afxdetail::callOut;

// Style

static BOOL modifyStyle(HWND wnd, int offset, DWORD remove, DWORD add, UINT flags)
{
    const auto before = static_cast<DWORD>(::GetWindowLongW(wnd, offset));
    const DWORD after = (before & ~remove) | add;
    if (before == after)
        return FALSE;
    constexpr UINT kStyleOnly = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;
    callOut([&] {
        ::SetWindowLongW(wnd, offset, static_cast<LONG>(after));
        if (flags)
            ::SetWindowPos(wnd, nullptr, 0, 0, 0, 0, kStyleOnly | flags);
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

// State

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

CWnd* CWnd::SetCapture()
{
    return FromHandle(callOut([&] { return ::SetCapture(m_hWnd); }));
}

BOOL CWnd::SetForegroundWindow()
{
    return callOut([&] { return ::SetForegroundWindow(m_hWnd); });
}

void CWnd::BringWindowToTop()
{
    callOut([&] { ::BringWindowToTop(m_hWnd); });
}

void CWnd::CloseWindow()
{
    callOut([&] { ::CloseWindow(m_hWnd); });
}

BOOL CWnd::AnimateWindow(DWORD milliseconds, DWORD flags)
{
    return callOut([&] { return ::AnimateWindow(m_hWnd, milliseconds, flags); });
}

void CWnd::ShowOwnedPopups(BOOL show)
{
    callOut([&] { ::ShowOwnedPopups(m_hWnd, show); });
}

BOOL CWnd::FlashWindow(BOOL invert)
{
    return callOut([&] { return ::FlashWindow(m_hWnd, invert); });
}

BOOL CWnd::FlashWindowEx(DWORD flags, UINT count, DWORD milliseconds)
{
    FLASHWINFO info{sizeof info, m_hWnd, flags, count, milliseconds};
    return callOut([&] { return ::FlashWindowEx(&info); });
}

void CWnd::BeginModalState()
{
    EnableWindow(FALSE);
}

void CWnd::EndModalState()
{
    EnableWindow(TRUE);
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
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(afxdetail::handleOf(font)), redraw);
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
