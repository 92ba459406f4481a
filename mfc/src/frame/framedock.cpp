// CFrameWnd: docked and floating bars.
#include <afxext.h>
#include <afxpriv.h>

#include "bararea.h"
#include "core/dockrows.h"

namespace
{

struct DockSide
{
    UINT id;
    DWORD style;
};

/// In the order in which the sides take their room: top and bottom over the whole width, left and right
/// between them.
constexpr DockSide kSides[] = {
    {AFX_IDW_DOCKBAR_TOP, CBRS_ALIGN_TOP},
    {AFX_IDW_DOCKBAR_BOTTOM, CBRS_ALIGN_BOTTOM},
    {AFX_IDW_DOCKBAR_LEFT, CBRS_ALIGN_LEFT},
    {AFX_IDW_DOCKBAR_RIGHT, CBRS_ALIGN_RIGHT},
};

int rankOf(UINT id)
{
    int rank = 0;
    while (kSides[rank].id != id)
        ++rank;
    return rank;
}

constexpr UINT kKeepPlaceAndSize = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;

} // namespace

void CFrameWnd::EnableDocking(DWORD dockStyle)
{
    for (const DockSide& side : kSides) {
        if (!(dockStyle & side.style) || dockBar(side.id))
            continue;
        auto made = std::make_unique<CDockBar>();
        if (!made->Create(this, WS_VISIBLE | side.style, side.id))
            AfxThrowResourceException();
        const auto behind = std::find_if(m_dockBars.begin(), m_dockBars.end(), [&](const auto& one) {
            return rankOf(static_cast<UINT>(one->GetDlgCtrlID())) > rankOf(side.id);
        });
        m_dockBars.insert(behind, std::move(made));
        m_dockOrderStale = true;
    }
}

/// Bars with a fixed place, such as the status bar, take their room first: they have the frame's whole width
/// or height. Windows take their room from the front to the back.
void CFrameWnd::orderDockBars()
{
    m_dockOrderStale = false;
    for (const auto& bar : m_dockBars)
        bar->SetWindowPos(&wndBottom, 0, 0, 0, 0, kKeepPlaceAndSize | SWP_NOREDRAW);
}

CDockBar* CFrameWnd::dockBar(UINT id) const
{
    for (const auto& bar : m_dockBars)
        if (bar->m_hWnd && static_cast<UINT>(bar->GetDlgCtrlID()) == id)
            return bar.get();
    return nullptr;
}

CDockBar* CFrameWnd::firstDockBarFor(const CControlBar& bar) const
{
    for (const auto& one : m_dockBars)
        if (one->m_hWnd && (one->GetBarStyle() & bar.m_dwDockStyle & CBRS_ALIGN_ANY))
            return one.get();
    return nullptr;
}

void CFrameWnd::DockControlBar(CControlBar* bar, UINT dockBarId, LPCRECT rect)
{
    CDockBar* const found = dockBarId ? dockBar(dockBarId) : firstDockBarFor(*bar);
    ASSERT(found); // EnableDocking of frame and bar must have a side in common
    if (found)
        DockControlBar(bar, found, rect);
}

void CFrameWnd::DockControlBar(CControlBar* bar, CDockBar* dockBar, LPCRECT rect)
{
    ASSERT(bar && dockBar);
    if (rect)
        dockBar->takeDropped(*bar, *rect);
    else
        dockBar->take(*bar, dockBar->lastPlace(), 0);
    m_layoutPending = true;
}

// Floating

CMiniDockFrameWnd* CFrameWnd::makeFloat(CControlBar& bar, CPoint point)
{
    auto* made = new CMiniDockFrameWnd;
    if (!made->Create(this, bar.GetBarStyle(), point)) // it has deleted itself
        return nullptr;
    m_floats.push_back(made);
    CString title;
    bar.GetWindowText(title);
    made->SetWindowText(title);
    return made;
}

void CFrameWnd::FloatControlBar(CControlBar* bar, CPoint point, DWORD style)
{
    ASSERT(bar);
    const DWORD lies = (style & CBRS_ORIENT_VERT) ? CBRS_ALIGN_LEFT : CBRS_ALIGN_TOP;
    CDockBar* const before = bar->m_pDockBar;
    const bool alone = before && before->m_bFloating && before->bars().size() == 1;
    if (alone && (before->GetBarStyle() & CBRS_ALIGN_ANY) == lies) {
        before->GetParent()->SetWindowPos(nullptr, point.x, point.y, 0, 0,
                                          SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        return;
    }
    CMiniDockFrameWnd* const made = makeFloat(*bar, point);
    if (!made)
        return;
    CDockBar& to = made->m_wndDockBar;
    to.m_dwStyle = lies | CBRS_FLOATING;
    to.take(*bar, to.lastPlace(), 0);
    m_layoutPending = true;
}

/// Windows of floating bars have the size of their bars; one without bars ends.
void CFrameWnd::layOutFloats()
{
    const HWND frame = m_hWnd;
    for (CMiniDockFrameWnd* window : std::vector<CMiniDockFrameWnd*>(m_floats)) {
        if (FromHandlePermanent(frame) != this)
            return;
        if (std::find(m_floats.begin(), m_floats.end(), window) == m_floats.end())
            continue; // ended since another one was laid out
        if (window->m_wndDockBar.bars().empty())
            window->DestroyWindow();
        else
            window->RecalcLayout();
    }
}

// What the frame does, its floating bars do too.

void CFrameWnd::OnShowWindow(BOOL show, UINT why)
{
    CWnd::OnShowWindow(show, why);
    if (why != 0 || m_floats.empty())
        return; // with its owner the system hides and shows a window itself
    m_layoutPending = true;
    if (!show)
        for (CMiniDockFrameWnd* window : std::vector<CMiniDockFrameWnd*>(m_floats))
            window->ShowWindow(SW_HIDE);
}

/// The program becomes active or inactive: the frame and the windows beside it look alike.
LRESULT CFrameWnd::OnActivateTopLevel(WPARAM state, LPARAM lParam)
{
    const bool active = LOWORD(state) != WA_INACTIVE;
    for (CMiniDockFrameWnd* window : std::vector<CMiniDockFrameWnd*>(m_floats))
        window->SendMessage(WM_FLOATSTATUS, active ? FS_ACTIVATE : FS_DEACTIVATE);
    if (GetStyle() & WS_CHILD)
        return 0;
    SendMessage(WM_NCACTIVATE, active);
    SendMessageToDescendants(WM_ACTIVATETOPLEVEL, state, lParam, TRUE, TRUE); // to the frames inside it
    return 0;
}

// Bars of an object that is edited in place

void CFrameWnd::hideBarsInPlace()
{
    const bool inPlace = std::any_of(m_bars.begin(), m_bars.end(),
                                     [](const CControlBar* bar) { return bar->m_pInPlaceOwner != nullptr; });
    for (CControlBar* bar : m_bars) {
        if (bar->m_pInPlaceOwner || !(bar->m_dwStyle & CBRS_HIDE_INPLACE))
            continue;
        const bool hide = inPlace && bar->IsVisible();
        const bool show = !inPlace && bar->m_hiddenInPlace;
        if (hide || show)
            ShowControlBar(bar, show, TRUE);
        if (hide || !inPlace)
            bar->m_hiddenInPlace = hide;
    }
}
