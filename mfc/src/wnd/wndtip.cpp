// CWnd: PreTranslateMessage and the tooltips of a window's tools.
#include <afxwin.h>
#include <afxcmn.h>

#include "wndflags.h"

#include <detail/threadstate.h>

using afxdetail::threadState;

namespace
{

constexpr UINT_PTR kToolSlot = 1; // the tooltip control always has one tool: the one under the pointer

HWND tipWindow()
{
    return threadState().toolTip->GetSafeHwnd();
}

/// The thread's tooltip control, owned by the thread's state.
HWND tipControl(HWND owner)
{
    afxdetail::ThreadState& state = threadState();
    if (state.toolTip && ::IsWindow(state.toolTip->m_hWnd))
        return state.toolTip->m_hWnd;
    delete state.toolTip;
    auto* tip = new CToolTipCtrl;
    state.toolTip = tip;
    tip->Create(CWnd::FromHandle(owner)->GetTopLevelParent(), TTS_ALWAYSTIP);
    return tip->m_hWnd;
}

bool isMouseMessage(UINT message)
{
    return (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
           (message >= WM_NCMOUSEMOVE && message <= WM_NCMBUTTONDBLCLK);
}

bool isPress(UINT message)
{
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_NCLBUTTONDOWN:
    case WM_NCRBUTTONDOWN:
        return true;
    default:
        return false;
    }
}

TOOLINFO emptyTool()
{
    TOOLINFO info{};
    info.cbSize = TTTOOLINFOW_V2_SIZE;
    return info;
}

void removeTool()
{
    afxdetail::ThreadState& state = threadState();
    if (!state.toolTipOwner)
        return;
    TOOLINFO info = emptyTool();
    if (::SendMessageW(tipWindow(), TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&info)))
        ::SendMessageW(tipWindow(), TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&info));
    state.toolTipOwner = nullptr;
    state.toolTipHit = -1;
}

} // namespace

BOOL CWnd::PreTranslateMessage(MSG* message)
{
    if (tooltipsEnabled() && (isMouseMessage(message->message) || message->message == WM_KEYDOWN))
        FilterToolTipMessage(message);
    return FALSE;
}

bool CWnd::tooltipsEnabled() const
{
    return (m_nFlags & afxdetail::kToolTips) != 0;
}

BOOL CWnd::EnableToolTips(BOOL enable)
{
    if (enable)
        m_nFlags |= afxdetail::kToolTips;
    else
        m_nFlags &= ~afxdetail::kToolTips;
    if (!enable && threadState().toolTipOwner == this)
        CancelToolTips();
    return TRUE;
}

void PASCAL CWnd::CancelToolTips(BOOL)
{
    if (threadState().toolTipOwner)
        ::SendMessageW(tipWindow(), TTM_POP, 0, 0);
    removeTool();
}

void CWnd::FilterToolTipMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN || isPress(message->message)) {
        CancelToolTips();
        return;
    }
    if (message->message != WM_MOUSEMOVE && message->message != WM_NCMOUSEMOVE)
        return;

    afxdetail::ThreadState& state = threadState();
    CPoint point = message->pt;
    ScreenToClient(&point);
    TOOLINFO tool = emptyTool();
    const INT_PTR hit = OnToolHitTest(point, &tool);
    const HWND tip = tipControl(m_hWnd);
    if (state.toolTipOwner != this || state.toolTipHit != hit) {
        removeTool();
        if (hit == -1)
            return;
        tool.hwnd = m_hWnd;
        if (!(tool.uFlags & TTF_IDISHWND))
            tool.uId = kToolSlot;
        ::SendMessageW(tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
        ::SendMessageW(tip, TTM_ACTIVATE, TRUE, 0);
        ::SetWindowPos(tip, HWND_TOP, 0, 0, 0, 0, SWP_NOACTIVATE | SWP_NOSIZE | SWP_NOMOVE);
        state.toolTipOwner = this;
        state.toolTipHit = hit;
    }
    if (hit != -1)
        ::SendMessageW(tip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(message));
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* info) const
{
    const HWND child = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (!child || child == m_hWnd)
        return -1;
    const INT_PTR hit = ::GetDlgCtrlID(child);
    if (info && info->cbSize >= TTTOOLINFOW_V1_SIZE) {
        info->hwnd = m_hWnd;
        info->uId = reinterpret_cast<UINT_PTR>(child);
        info->uFlags |= TTF_IDISHWND;
        info->lpszText = LPSTR_TEXTCALLBACKW;
    }
    return hit;
}
