// CFrameWnd: control bars and layout.
#include <afxext.h>
#include <afxpriv.h>

#include "flagscope.h"

namespace
{

/// Whether a window is there and is shown while its parents are.
bool isShown(HWND wnd)
{
    return (::GetWindowLongPtrW(wnd, GWL_STYLE) & WS_VISIBLE) != 0;
}

} // namespace

// Layout

void CFrameWnd::RecalcLayout(BOOL)
{
    if (m_layingOut || !m_hWnd)
        return;
    // Bars that are shown or asked for their sizes may end the frame.
    const afxdetail::WindowFlagScope layingOut(*this, m_layingOut);
    m_layoutPending = false;
    applyPendingBars();
    if (!layingOut.windowIsThere())
        return;
    if (m_dockOrderStale)
        orderDockBars();
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposExtra, &m_rectBorder);
    if (layingOut.windowIsThere())
        layOutFloats();
}

void CFrameWnd::OnSize(UINT type, int cx, int cy)
{
    CWnd::OnSize(type, cx, cy);
    if (type != SIZE_MINIMIZED)
        RecalcLayout();
}

BOOL CFrameWnd::OnEraseBkgnd(CDC* dc)
{
    // The view covers everything: erasing below it would flicker.
    return m_pViewActive ? TRUE : CWnd::OnEraseBkgnd(dc);
}

/// A child has changed its size. With a rectangle it asks how much room there is for the view.
LRESULT CFrameWnd::OnRecalcParent(WPARAM, LPARAM rect)
{
    if (!rect) {
        RecalcLayout();
        return FALSE;
    }
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposQuery, reinterpret_cast<LPRECT>(rect));
    return TRUE;
}

LRESULT CFrameWnd::OnIdleUpdateCmdUI(WPARAM, LPARAM)
{
    if (m_layoutPending)
        RecalcLayout();
    return 0;
}

// Control bars

void CFrameWnd::addControlBar(CControlBar* bar)
{
    m_bars.push_back(bar);
    m_dockOrderStale = !m_dockBars.empty();
}

void CFrameWnd::removeControlBar(CControlBar* bar)
{
    std::erase(m_bars, bar);
    m_layoutPending = true;
}

CControlBar* CFrameWnd::GetControlBar(UINT id)
{
    for (CControlBar* bar : m_bars)
        if (bar->m_hWnd && static_cast<UINT>(bar->GetDlgCtrlID()) == id)
            return bar;
    return dockBar(id);
}

void CFrameWnd::ShowControlBar(CControlBar* bar, BOOL show, BOOL delay)
{
    bar->delayShow(show != FALSE);
    if (delay)
        m_layoutPending = true;
    else
        RecalcLayout();
}

void CFrameWnd::applyPendingBars()
{
    const HWND frame = m_hWnd;
    for (CControlBar* bar : std::vector<CControlBar*>(m_bars)) {
        if (FromHandlePermanent(frame) != this)
            return;
        if (std::find(m_bars.begin(), m_bars.end(), bar) == m_bars.end())
            continue; // gone since another one was shown or hidden
        const HWND wnd = bar->m_hWnd;
        const bool hadFocus = wnd && AfxIsDescendant(wnd, ::GetFocus());
        bar->applyPending();
        if (hadFocus && FromHandlePermanent(frame) == this && !isShown(wnd))
            SetFocus();
    }
}

BOOL CFrameWnd::OnBarCheck(UINT id)
{
    CControlBar* bar = GetControlBar(id);
    if (!bar)
        return FALSE;
    ShowControlBar(bar, !bar->IsVisible(), FALSE);
    return TRUE;
}

void CFrameWnd::OnUpdateControlBarMenu(CCmdUI* ui)
{
    const CControlBar* bar = GetControlBar(ui->m_nID);
    if (!bar) {
        ui->ContinueRouting();
        return;
    }
    ui->Enable();
    ui->SetCheck(bar->IsVisible());
}
