// CWnd: PreTranslateMessage and the tooltips of a window's tools.
#include <afxwin.h>
#include <afxcmn.h>

#include "wndflags.h"

#include <detail/pending.h>

using afxdetail::callOut;
using afxdetail::threadState;

namespace
{

bool isMouseMessage(UINT message)
{
    return (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
           (message >= WM_NCMOUSEMOVE && message <= WM_NCXBUTTONDBLCLK);
}

bool isKeyPress(UINT message)
{
    return message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
}

bool isMove(UINT message)
{
    return message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE;
}

bool isButtonDown()
{
    return ::GetKeyState(VK_LBUTTON) < 0 || ::GetKeyState(VK_RBUTTON) < 0 || ::GetKeyState(VK_MBUTTON) < 0;
}

/// The thread's tooltip control. It has one tool at most, the one under the pointer, and goes with the top-level
/// window that owns it.
class Tip
{
public:
    static HWND existing()
    {
        const CWnd* tip = threadState().toolTip;
        return tip ? tip->m_hWnd : nullptr;
    }

    static HWND ownedBy(const CWnd& topLevel)
    {
        const HWND present = existing();
        if (present && ::GetWindow(present, GW_OWNER) == topLevel.m_hWnd)
            return present;
        CWnd*& tip = threadState().toolTip;
        delete std::exchange(tip, nullptr);
        auto made = std::make_unique<CToolTipCtrl>();
        if (!made->Create(const_cast<CWnd*>(&topLevel), TTS_ALWAYSTIP | TTS_NOPREFIX))
            return nullptr;
        tip = made.release();
        return tip->m_hWnd;
    }

    static void add(HWND tip, TOOLINFO tool)
    {
        tool.uFlags &= ~static_cast<UINT>(TTF_NOTBUTTON | TTF_ALWAYSTIP); // the control does not know these
        callOut([&] {
            ::SendMessageW(tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
            ::SendMessageW(tip, TTM_ACTIVATE, TRUE, 0);
            ::SetWindowPos(tip, HWND_TOP, 0, 0, 0, 0, SWP_NOACTIVATE | SWP_NOSIZE | SWP_NOMOVE);
        });
    }

    /// A window that the mouse does not reach, such as a static text or a disabled control, becomes an area of the
    /// window that gets its messages: the control looks for tools where the mouse is.
    static void makeReachable(TOOLINFO& tool, INT_PTR hit, const MSG& message)
    {
        const auto window = reinterpret_cast<HWND>(tool.uId);
        if (!(tool.uFlags & TTF_IDISHWND) || message.hwnd == window || message.hwnd != tool.hwnd)
            return;
        ::GetWindowRect(window, &tool.rect);
        ::MapWindowPoints(nullptr, tool.hwnd, reinterpret_cast<POINT*>(&tool.rect), 2);
        tool.uFlags &= ~static_cast<UINT>(TTF_IDISHWND);
        tool.uId = static_cast<UINT_PTR>(hit);
    }

    /// Tells the control of the pointer as its tool sees it.
    static void tellMove(HWND tip, const TOOLINFO& tool, const MSG& original)
    {
        MSG move = original;
        move.message = WM_MOUSEMOVE;
        move.hwnd = (tool.uFlags & TTF_IDISHWND) ? reinterpret_cast<HWND>(tool.uId) : tool.hwnd;
        POINT point = original.pt;
        ::ScreenToClient(move.hwnd, &point);
        move.lParam = MAKELPARAM(point.x, point.y);
        callOut([&] { ::SendMessageW(tip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&move)); });
    }

    /// Takes the tip off the screen. A button's one stays away until the pointer has been elsewhere: the user has
    /// shown that he knows it.
    static void cancel()
    {
        const afxdetail::ThreadState& state = threadState();
        if (!state.toolTipOwner)
            return;
        if (state.toolTipFlags & TTF_NOTBUTTON) {
            removeTool();
            return;
        }
        const HWND tip = existing();
        callOut([&] {
            ::SendMessageW(tip, TTM_POP, 0, 0);
            ::SendMessageW(tip, TTM_ACTIVATE, FALSE, 0);
        });
    }

    static void removeTool()
    {
        afxdetail::ThreadState& state = threadState();
        if (!state.toolTipOwner)
            return;
        state.toolTipOwner = nullptr;
        state.toolTipHit = -1;
        TOOLINFO tool = empty();
        const HWND tip = existing();
        callOut([&] {
            ::SendMessageW(tip, TTM_POP, 0, 0);
            if (::SendMessageW(tip, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool)))
                ::SendMessageW(tip, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
        });
    }

    static TOOLINFO empty()
    {
        TOOLINFO tool{};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        return tool;
    }
};

} // namespace

BOOL CWnd::PreTranslateMessage(MSG* message)
{
    if (tooltipsEnabled() && (isMouseMessage(message->message) || isKeyPress(message->message)))
        FilterToolTipMessage(message);
    return FALSE;
}

bool CWnd::tooltipsEnabled() const
{
    return (m_nFlags & afxdetail::kToolTips) != 0;
}

/// A window that goes takes its tools along.
void CWnd::forgetTools()
{
    if (threadState().toolTipOwner == this)
        Tip::removeTool();
}

BOOL CWnd::EnableToolTips(BOOL enable)
{
    if (enable)
        m_nFlags |= afxdetail::kToolTips;
    else
        m_nFlags &= ~afxdetail::kToolTips;
    if (!enable)
        forgetTools();
    return enable;
}

void PASCAL CWnd::CancelToolTips(BOOL)
{
    Tip::cancel();
}

void CWnd::FilterToolTipMessage(MSG* message)
{
    if (!isMove(message->message)) {
        CancelToolTips(isKeyPress(message->message));
        return;
    }
    if (isButtonDown())
        return;

    TOOLINFO tool = Tip::empty();
    tool.hwnd = m_hWnd;
    CPoint point = message->pt;
    ScreenToClient(&point);
    const INT_PTR hit = OnToolHitTest(point, &tool);
    const bool wanted = hit != -1 && ((tool.uFlags & TTF_ALWAYSTIP) || IsTopParentActive());

    if (hit != -1)
        Tip::makeReachable(tool, hit, *message);

    afxdetail::ThreadState& state = threadState();
    if (!wanted) {
        if (state.toolTipOwner == this)
            Tip::removeTool();
        return;
    }
    const HWND tip = Tip::ownedBy(*GetTopLevelParent());
    if (!tip)
        return;
    if (state.toolTipOwner != this || state.toolTipHit != hit) {
        Tip::removeTool();
        Tip::add(tip, tool);
        state.toolTipOwner = this;
        state.toolTipHit = hit;
        state.toolTipFlags = tool.uFlags;
    }
    Tip::tellMove(tip, tool, *message);
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* info) const
{
    const HWND child = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (!child || child == m_hWnd)
        return -1;
    if (info && info->cbSize >= TTTOOLINFOW_V1_SIZE) {
        info->hwnd = m_hWnd;
        info->uId = reinterpret_cast<UINT_PTR>(child);
        info->uFlags |= TTF_IDISHWND;
        info->lpszText = LPSTR_TEXTCALLBACKW;
        if (!(::SendMessageW(child, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON))
            info->uFlags |= TTF_NOTBUTTON | TTF_CENTERTIP;
    }
    return ::GetDlgCtrlID(child);
}
