#include <afxwin.h>
#include <afxcmn.h>

#include <detail/send.h>

using afxdetail::send;

IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)

namespace
{

/// Takes apart what the text messages answer: the length low, the type high.
int lengthAndType(DWORD answer, int* type)
{
    if (type)
        *type = HIWORD(answer);
    return LOWORD(answer);
}

} // namespace

CStatusBarCtrl::CStatusBarCtrl() = default;

BOOL CStatusBarCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(STATUSCLASSNAMEW, nullptr, style, rect, parent, id);
}

BOOL CStatusBarCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, STATUSCLASSNAMEW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CStatusBarCtrl::SetParts(int count, int* ends)
{
    return send<BOOL>(*this, SB_SETPARTS, count, ends);
}

int CStatusBarCtrl::GetParts(int count, int* ends) const
{
    return send<int>(*this, SB_GETPARTS, count, ends);
}

BOOL CStatusBarCtrl::GetRect(int pane, LPRECT rect) const
{
    return send<BOOL>(*this, SB_GETRECT, pane, rect);
}

BOOL CStatusBarCtrl::GetBorders(int* borders) const
{
    return send<BOOL>(*this, SB_GETBORDERS, 0, borders);
}

BOOL CStatusBarCtrl::GetBorders(int& horizontal, int& vertical, int& spacing) const
{
    int borders[3]{};
    const BOOL got = GetBorders(borders);
    horizontal = borders[0];
    vertical = borders[1];
    spacing = borders[2];
    return got;
}

void CStatusBarCtrl::SetMinHeight(int height)
{
    send(*this, SB_SETMINHEIGHT, height);
}

BOOL CStatusBarCtrl::SetSimple(BOOL simple)
{
    return send<BOOL>(*this, SB_SIMPLE, simple);
}

BOOL CStatusBarCtrl::IsSimple() const
{
    return send<BOOL>(*this, SB_ISSIMPLE);
}

BOOL CStatusBarCtrl::SetText(LPCTSTR text, int pane, int type)
{
    return send<BOOL>(*this, SB_SETTEXTW, pane | type, text);
}

CString CStatusBarCtrl::GetText(int pane, int* type) const
{
    CString text;
    const int length = GetTextLength(pane);
    GetText(text.GetBuffer(length), pane, type);
    text.ReleaseBuffer(length);
    return text;
}

int CStatusBarCtrl::GetText(LPCTSTR text, int pane, int* type) const
{
    return lengthAndType(send<DWORD>(*this, SB_GETTEXTW, pane, text), type);
}

int CStatusBarCtrl::GetTextLength(int pane, int* type) const
{
    return lengthAndType(send<DWORD>(*this, SB_GETTEXTLENGTHW, pane), type);
}

BOOL CStatusBarCtrl::SetIcon(int pane, HICON icon)
{
    return send<BOOL>(*this, SB_SETICON, pane, icon);
}

HICON CStatusBarCtrl::GetIcon(int pane) const
{
    return send<HICON>(*this, SB_GETICON, pane);
}

void CStatusBarCtrl::SetTipText(int pane, LPCTSTR text)
{
    send(*this, SB_SETTIPTEXTW, pane, text);
}

CString CStatusBarCtrl::GetTipText(int pane) const
{
    constexpr int kRoom = 256;
    CString text;
    LPTSTR buffer = text.GetBuffer(kRoom);
    *buffer = 0;
    send(*this, SB_GETTIPTEXTW, MAKEWPARAM(pane, kRoom), buffer);
    text.ReleaseBuffer();
    return text;
}

COLORREF CStatusBarCtrl::SetBkColor(COLORREF colour)
{
    return send<COLORREF>(*this, SB_SETBKCOLOR, 0, colour);
}

void CStatusBarCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CStatusBarCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
