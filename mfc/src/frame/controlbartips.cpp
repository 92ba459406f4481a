// CControlBar: tips of its tools, and their prompts in the message line.
#include <afxext.h>
#include <afxpriv.h>

#include <utility>

namespace
{

constexpr UINT_PTR kPromptTimer = 0xE000; // the pointer rests on a tool
constexpr UINT_PTR kLeaveTimer = 0xE001;  // looks whether the pointer is still there
constexpr UINT kLeaveInterval = 200;      // milliseconds

} // namespace

/// The style may have changed by SetBarStyle or in m_dwStyle itself.
void CControlBar::followTipStyle()
{
    const bool wanted = (m_dwStyle & CBRS_TOOLTIPS) != 0;
    if (wanted != m_tipsFollowed)
        EnableToolTips(m_tipsFollowed = wanted);
    if (!(m_dwStyle & CBRS_FLYBY))
        forgetPrompt();
}

/// Prompts come after the same delay as tips. Once one is shown, those of the neighbours follow at once.
void CControlBar::followPointer()
{
    if (!(m_dwStyle & CBRS_FLYBY) || !m_pDockSite)
        return;
    const INT_PTR tool = toolUnderPointer();
    if (tool == m_promptTool)
        return;
    if (tool == -1) {
        forgetPrompt();
        return;
    }
    m_promptTool = tool;
    if (m_promptShown)
        showPrompt();
    else
        SetTimer(kPromptTimer, ::GetDoubleClickTime(), nullptr);
}

/// The tool that the pointer is on, as OnToolHitTest knows it; -1 for none, or with another window in front.
INT_PTR CControlBar::toolUnderPointer() const
{
    CPoint point;
    ::GetCursorPos(&point);
    const HWND under = ::WindowFromPoint(point);
    if (under != m_hWnd && !::IsChild(m_hWnd, under))
        return -1;
    ScreenToClient(&point);
    return OnToolHitTest(point, nullptr);
}

void CControlBar::OnTimer(UINT_PTR id)
{
    if (id != kPromptTimer && id != kLeaveTimer) {
        CWnd::OnTimer(id);
        return;
    }
    KillTimer(kPromptTimer);
    if (toolUnderPointer() != m_promptTool)
        forgetPrompt();
    else if (!m_promptShown)
        showPrompt();
}

void CControlBar::showPrompt()
{
    m_promptShown = true;
    SetTimer(kLeaveTimer, kLeaveInterval, nullptr);
    if (m_pDockSite)
        m_pDockSite->SetMessageText(static_cast<UINT>(m_promptTool & 0xFFFF));
}

/// The message line goes back to what it says without a tool.
void CControlBar::forgetPrompt()
{
    if (m_promptTool == -1)
        return;
    m_promptTool = -1;
    KillTimer(kPromptTimer);
    KillTimer(kLeaveTimer);
    if (std::exchange(m_promptShown, false) && m_pDockSite)
        m_pDockSite->PostMessage(WM_POPMESSAGESTRING, AFX_IDS_IDLEMESSAGE, 0);
}
