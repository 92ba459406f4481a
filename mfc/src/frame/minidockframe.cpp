// CMiniDockFrameWnd: the window of a floating bar.
#include <afxext.h>
#include <afxpriv.h>

#include "bararea.h"
#include "bardrag.h"
#include "core/floatrules.h"
#include "flagscope.h"

IMPLEMENT_DYNCREATE(CMiniDockFrameWnd, CMiniFrameWnd)

BEGIN_MESSAGE_MAP(CMiniDockFrameWnd, CMiniFrameWnd)
    ON_WM_CLOSE()
    // dragging by the caption
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_MOUSEACTIVATE()
    // sizing by the border
    ON_WM_SIZING()
    ON_WM_SIZE()
END_MESSAGE_MAP()

namespace
{

constexpr DWORD kPlainStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;

/// Bars of dynamic size can be sized.
DWORD windowStyle(DWORD barStyle)
{
    return (barStyle & CBRS_SIZE_DYNAMIC) ? kPlainStyle | WS_THICKFRAME : kPlainStyle;
}

afxdetail::MovedEdges movedEdges(UINT edge)
{
    afxdetail::MovedEdges moved;
    moved.left = edge == WMSZ_LEFT || edge == WMSZ_TOPLEFT || edge == WMSZ_BOTTOMLEFT;
    moved.right = edge == WMSZ_RIGHT || edge == WMSZ_TOPRIGHT || edge == WMSZ_BOTTOMRIGHT;
    moved.top = edge == WMSZ_TOP || edge == WMSZ_TOPLEFT || edge == WMSZ_TOPRIGHT;
    moved.bottom = edge == WMSZ_BOTTOM || edge == WMSZ_BOTTOMLEFT || edge == WMSZ_BOTTOMRIGHT;
    return moved;
}

} // namespace

CMiniDockFrameWnd::CMiniDockFrameWnd() = default;

CMiniDockFrameWnd::~CMiniDockFrameWnd() = default;

BOOL CMiniDockFrameWnd::Create(CFrameWnd* frame, DWORD barStyle, CPoint topLeft)
{
    m_frame = frame;
    const DWORD mini = MFS_SYNCACTIVE | ((barStyle & CBRS_SIZE_DYNAMIC) ? MFS_THICKFRAME : 0u);
    if (!CMiniFrameWnd::CreateEx(0, nullptr, L"", windowStyle(barStyle) | mini, CRect(topLeft, CSize(0, 0)),
                                 frame->GetTopLevelFrame()))
        return FALSE;
    if (m_wndDockBar.Create(this, WS_VISIBLE | CBRS_ALIGN_TOP | CBRS_FLOATING, AFX_IDW_DOCKBAR_FLOAT)) {
        m_wndDockBar.SetOwner(frame);
        return TRUE;
    }
    DestroyWindow();
    return FALSE;
}

void CMiniDockFrameWnd::PostNcDestroy()
{
    std::erase(m_frame->m_floats, this);
    CMiniFrameWnd::PostNcDestroy();
}

/// The bar of a window with one bar.
CControlBar* CMiniDockFrameWnd::onlyBar() const
{
    const std::vector<CControlBar*> bars = m_wndDockBar.bars();
    return bars.size() == 1 ? bars.front() : nullptr;
}

// Layout

CSize CMiniDockFrameWnd::outerSize(CSize client, DWORD barStyle)
{
    CRect rect(CPoint(0, 0), client);
    ::AdjustWindowRectEx(&rect, windowStyle(barStyle), FALSE, WS_EX_TOOLWINDOW);
    return rect.Size();
}

bool CMiniDockFrameWnd::isShownWithFrame() const
{
    return m_wndDockBar.hasShownBar() && (m_frame->GetStyle() & WS_VISIBLE);
}

void CMiniDockFrameWnd::RecalcLayout(BOOL)
{
    if (m_layingOut || !m_wndDockBar.m_hWnd)
        return;
    const afxdetail::WindowFlagScope layingOut(*this, m_layingOut);
    const afxdetail::Extent extent = m_wndDockBar.measure();
    if (!layingOut.windowIsThere())
        return;
    CRect rect(0, 0, extent.width, extent.height);
    m_wndDockBar.MoveWindow(&rect);
    m_wndDockBar.placeBars((m_wndDockBar.GetBarStyle() & CBRS_ORIENT_HORZ) ? extent.width : extent.height);
    if (!layingOut.windowIsThere())
        return;
    ::AdjustWindowRectEx(&rect, GetStyle(), FALSE, GetExStyle());
    const bool shown = isShownWithFrame();
    SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER |
                     static_cast<UINT>(shown ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

CRect CMiniDockFrameWnd::borders() const
{
    CRect rect(0, 0, 0, 0);
    ::AdjustWindowRectEx(&rect, GetStyle(), FALSE, GetExStyle());
    return rect;
}

/// The window keeps to sizes that the bar can have: its rows break as the border moves.
void CMiniDockFrameWnd::OnSizing(UINT edge, LPRECT rect)
{
    CMiniFrameWnd::OnSizing(edge, rect);
    CControlBar* const bar = onlyBar();
    if (!bar)
        return;
    const HWND wnd = m_hWnd;
    const CSize around = borders().Size();
    const afxdetail::MovedEdges moved = movedEdges(edge);
    CPoint pointer;
    ::GetCursorPos(&pointer);
    // What is proposed may build on the size that was given before: the pointer knows better what is wanted.
    const CRect wanted =
        afxdetail::rectOf(afxdetail::edgesAt(afxdetail::areaOf(*rect), moved, {pointer.x, pointer.y}));
    const CSize size = moved.horizontal()
                           ? bar->CalcDynamicLayout(wanted.Width() - around.cx, LM_HORZ)
                           : bar->CalcDynamicLayout(wanted.Height() - around.cy, LM_HORZ | LM_LENGTHY);
    if (FromHandlePermanent(wnd) != this)
        return;
    m_sized = true;
    *rect = afxdetail::rectOf(
        afxdetail::snapped(afxdetail::areaOf(wanted), moved, afxdetail::extentOf(size + around)));
}

void CMiniDockFrameWnd::OnSize(UINT type, int cx, int cy)
{
    CWnd::OnSize(type, cx, cy);
    if (m_layingOut || !m_sized)
        return;
    m_sized = false;
    const HWND wnd = m_hWnd;
    if (CControlBar* bar = onlyBar())
        bar->CalcDynamicLayout(cx, LM_HORZ | LM_COMMIT);
    if (FromHandlePermanent(wnd) == this)
        RecalcLayout();
}

// Closing, dragging, activation

/// Hides the bars, each in its own way: WM_CLOSE is theirs to answer.
void CMiniDockFrameWnd::OnClose()
{
    const HWND wnd = m_hWnd;
    std::vector<HWND> closed;
    for (const CControlBar* bar : m_wndDockBar.bars())
        closed.push_back(bar->m_hWnd);
    for (const HWND one : closed) {
        const auto* const bar = dynamic_cast<const CControlBar*>(FromHandlePermanent(one));
        if (bar && bar->IsVisible())
            bar->SendMessage(WM_CLOSE);
        if (FromHandlePermanent(wnd) != this)
            return;
    }
    RecalcLayout();
}

void CMiniDockFrameWnd::OnNcLButtonDown(UINT hit, CPoint point)
{
    CControlBar* const bar = hit == HTCAPTION ? onlyBar() : nullptr;
    if (!bar || !bar->isDockable()) {
        CMiniFrameWnd::OnNcLButtonDown(hit, point);
        return;
    }
    SetWindowPos(&wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    afxdetail::BarDrag(*bar, *this, point).run();
}

void CMiniDockFrameWnd::OnNcLButtonDblClk(UINT hit, CPoint point)
{
    CControlBar* const bar = hit == HTCAPTION ? onlyBar() : nullptr;
    if (bar && bar->isDockable())
        afxdetail::BarDrag::toggle(*bar);
    else
        CMiniFrameWnd::OnNcLButtonDblClk(hit, point);
}

/// A click on a button shall not take the focus out of the program's view. A control of the bar that wants
/// the focus takes it itself.
int CMiniDockFrameWnd::OnMouseActivate(CWnd* top, UINT hit, UINT message)
{
    return IsTopParentActive() ? MA_NOACTIVATE : CMiniFrameWnd::OnMouseActivate(top, hit, message);
}
