#include <afxwin.h>
#include <afxcmn.h>

#include <detail/handleof.h>
#include <detail/resourcechain.h>
#include <detail/send.h>

using afxdetail::handleOf;
using afxdetail::send;

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace
{

/// The description that names a tool: a whole window for id 0, else a part of it.
TOOLINFO toolOf(const CWnd* window, UINT_PTR id)
{
    TOOLINFO info{};
    info.cbSize = TTTOOLINFOW_V2_SIZE; // understood by all versions of the control
    if (id) {
        info.hwnd = handleOf(window);
        info.uId = id;
    } else {
        info.hwnd = ::GetParent(handleOf(window));
        info.uId = reinterpret_cast<UINT_PTR>(handleOf(window));
        info.uFlags = TTF_IDISHWND;
    }
    return info;
}

/// Makes a string resource the text of a tool.
void setText(TOOLINFO& info, UINT textId)
{
    info.hinst = afxdetail::moduleOfString(textId);
    info.lpszText = MAKEINTRESOURCEW(textId);
}

} // namespace

CToolTipCtrl::CToolTipCtrl() = default;

BOOL CToolTipCtrl::Create(CWnd* parent, DWORD style)
{
    return CreateEx(parent, style, 0);
}

BOOL CToolTipCtrl::CreateEx(CWnd* parent, DWORD style, DWORD exStyle)
{
    if (!CWnd::CreateEx(exStyle, TOOLTIPS_CLASSW, nullptr, WS_POPUP | style, CW_USEDEFAULT, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, handleOf(parent), nullptr))
        return FALSE;
    SetOwner(parent);
    return TRUE;
}

BOOL CToolTipCtrl::AddTool(CWnd* window, UINT textId, LPCRECT area, UINT_PTR id)
{
    ASSERT(!area == !id); // a part of a window has both
    TOOLINFO info = toolOf(window, id);
    setText(info, textId);
    if (area)
        info.rect = *area;
    return send<BOOL>(*this, TTM_ADDTOOLW, 0, &info);
}

BOOL CToolTipCtrl::AddTool(CWnd* window, LPCTSTR text, LPCRECT area, UINT_PTR id)
{
    ASSERT(!area == !id); // a part of a window has both
    TOOLINFO info = toolOf(window, id);
    info.lpszText = const_cast<LPTSTR>(text);
    if (area)
        info.rect = *area;
    return send<BOOL>(*this, TTM_ADDTOOLW, 0, &info);
}

void CToolTipCtrl::DelTool(CWnd* window, UINT_PTR id)
{
    TOOLINFO info = toolOf(window, id);
    send(*this, TTM_DELTOOLW, 0, &info);
}

int CToolTipCtrl::GetToolCount() const
{
    return send<int>(*this, TTM_GETTOOLCOUNT);
}

BOOL CToolTipCtrl::GetToolInfo(CToolInfo& info, CWnd* window, UINT_PTR id) const
{
    static_cast<TOOLINFO&>(info) = toolOf(window, id);
    info.szText[0] = 0;
    info.lpszText = info.szText;
    return send<BOOL>(*this, TTM_GETTOOLINFOW, 0, static_cast<LPTOOLINFO>(&info));
}

void CToolTipCtrl::SetToolInfo(LPTOOLINFO info)
{
    send(*this, TTM_SETTOOLINFOW, 0, info);
}

void CToolTipCtrl::SetToolRect(CWnd* window, UINT_PTR id, LPCRECT area)
{
    ASSERT(id != 0); // a whole window has its own place
    TOOLINFO info = toolOf(window, id);
    info.rect = *area;
    send(*this, TTM_NEWTOOLRECTW, 0, &info);
}

BOOL CToolTipCtrl::HitTest(CWnd* window, CPoint point, LPTOOLINFO info) const
{
    TTHITTESTINFO test{};
    test.hwnd = handleOf(window);
    test.pt = point;
    test.ti.cbSize = TTTOOLINFOW_V2_SIZE;
    if (!send<BOOL>(*this, TTM_HITTESTW, 0, &test))
        return FALSE;
    *info = test.ti;
    return TRUE;
}

BOOL CToolTipCtrl::GetCurrentTool(LPTOOLINFO info) const
{
    return send<BOOL>(*this, TTM_GETCURRENTTOOLW, 0, info);
}

void CToolTipCtrl::GetText(CString& text, CWnd* window, UINT_PTR id) const
{
    constexpr int kRoom = 1024;
    TOOLINFO info = toolOf(window, id);
    info.lpszText = text.GetBuffer(kRoom);
    info.lpszText[0] = 0;
    send(*this, TTM_GETTEXTW, kRoom, &info);
    text.ReleaseBuffer();
}

void CToolTipCtrl::UpdateTipText(LPCTSTR text, CWnd* window, UINT_PTR id)
{
    TOOLINFO info = toolOf(window, id);
    info.lpszText = const_cast<LPTSTR>(text);
    send(*this, TTM_UPDATETIPTEXTW, 0, &info);
}

void CToolTipCtrl::UpdateTipText(UINT textId, CWnd* window, UINT_PTR id)
{
    TOOLINFO info = toolOf(window, id);
    setText(info, textId);
    send(*this, TTM_UPDATETIPTEXTW, 0, &info);
}

void CToolTipCtrl::GetTitle(PTTGETTITLE title) const
{
    send(*this, TTM_GETTITLE, 0, title);
}

BOOL CToolTipCtrl::SetTitle(UINT icon, LPCTSTR title)
{
    return send<BOOL>(*this, TTM_SETTITLEW, icon, title);
}

void CToolTipCtrl::Activate(BOOL activate)
{
    send(*this, TTM_ACTIVATE, activate);
}

void CToolTipCtrl::RelayEvent(LPMSG message)
{
    send(*this, TTM_RELAYEVENT, 0, message);
}

void CToolTipCtrl::Pop()
{
    send(*this, TTM_POP);
}

void CToolTipCtrl::Popup()
{
    send(*this, TTM_POPUP);
}

void CToolTipCtrl::Update()
{
    send(*this, TTM_UPDATE);
}

int CToolTipCtrl::GetDelayTime(DWORD which) const
{
    return send<int>(*this, TTM_GETDELAYTIME, which);
}

void CToolTipCtrl::SetDelayTime(UINT delay)
{
    SetDelayTime(TTDT_AUTOMATIC, static_cast<int>(delay));
}

void CToolTipCtrl::SetDelayTime(DWORD which, int milliseconds)
{
    send(*this, TTM_SETDELAYTIME, which, afxdetail::pack(milliseconds, 0));
}

int CToolTipCtrl::GetMaxTipWidth() const
{
    return send<int>(*this, TTM_GETMAXTIPWIDTH);
}

int CToolTipCtrl::SetMaxTipWidth(int width)
{
    return send<int>(*this, TTM_SETMAXTIPWIDTH, 0, width);
}

void CToolTipCtrl::GetMargin(LPRECT margin) const
{
    send(*this, TTM_GETMARGIN, 0, margin);
}

void CToolTipCtrl::SetMargin(LPRECT margin)
{
    send(*this, TTM_SETMARGIN, 0, margin);
}

COLORREF CToolTipCtrl::GetTipBkColor() const
{
    return send<COLORREF>(*this, TTM_GETTIPBKCOLOR);
}

void CToolTipCtrl::SetTipBkColor(COLORREF colour)
{
    send(*this, TTM_SETTIPBKCOLOR, colour);
}

COLORREF CToolTipCtrl::GetTipTextColor() const
{
    return send<COLORREF>(*this, TTM_GETTIPTEXTCOLOR);
}

void CToolTipCtrl::SetTipTextColor(COLORREF colour)
{
    send(*this, TTM_SETTIPTEXTCOLOR, colour);
}

CSize CToolTipCtrl::GetBubbleSize(LPTOOLINFO info) const
{
    return CSize(send<DWORD>(*this, TTM_GETBUBBLESIZE, 0, info));
}

BOOL CToolTipCtrl::AdjustRect(LPRECT rect, BOOL larger)
{
    return send<BOOL>(*this, TTM_ADJUSTRECT, larger, rect);
}

HRESULT CToolTipCtrl::SetWindowTheme(LPCWSTR subAppName)
{
    return send<HRESULT>(*this, TTM_SETWINDOWTHEME, 0, subAppName);
}
