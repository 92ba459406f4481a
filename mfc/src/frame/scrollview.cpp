// CScrollView: a view of something that may be larger than its window.
#include <afxwin.h>

#include "core/scrollbars.h"
#include "flagscope.h"

IMPLEMENT_DYNAMIC(CScrollView, CView)

BEGIN_MESSAGE_MAP(CScrollView, CView)
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

const SIZE CScrollView::sizeDefault{0, 0};

namespace
{

constexpr int kToFit = 0; // in place of a mapping mode
constexpr UINT kNoCode = 0xFF;

/// A device context in the view's mapping mode, to convert with.
class Units
{
public:
    explicit Units(int mapMode) { m_dc.SetMapMode(mapMode); }

    CSize toPixels(CSize size)
    {
        m_dc.LPtoDP(&size);
        return {std::abs(size.cx), std::abs(size.cy)};
    }
    CPoint toPixels(CPoint point)
    {
        m_dc.LPtoDP(&point);
        return point;
    }
    CPoint toLogical(CPoint point)
    {
        m_dc.DPtoLP(&point);
        return point;
    }

private:
    CWindowDC m_dc{nullptr};
};

CSize orTenth(CSize given, CSize whole)
{
    return {given.cx > 0 ? given.cx : std::max(1L, whole.cx / 10),
            given.cy > 0 ? given.cy : std::max(1L, whole.cy / 10)};
}

SCROLLINFO infoOf(const CWnd& view, int bar)
{
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    ::GetScrollInfo(view.m_hWnd, bar, &info);
    return info;
}

bool hasBar(const CWnd& view, int bar)
{
    return (view.GetStyle() & static_cast<DWORD>(bar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL)) != 0;
}

int wheelLines()
{
    UINT lines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    return lines == WHEEL_PAGESCROLL ? -1 : static_cast<int>(lines);
}

} // namespace

CScrollView::CScrollView() = default;

bool CScrollView::scalesToFit() const
{
    return m_mapMode == kToFit;
}

// Sizes and places

void CScrollView::SetScrollSizes(int mapMode, SIZE total, const SIZE& page, const SIZE& line)
{
    ASSERT(mapMode > 0 && mapMode != MM_ISOTROPIC && mapMode != MM_ANISOTROPIC);
    const bool changedMode = mapMode != m_mapMode;
    m_mapMode = mapMode;
    m_total = total;
    Units units(mapMode);
    m_totalDevice = units.toPixels(CSize(total));
    m_page = orTenth(units.toPixels(CSize(page)), m_totalDevice);
    m_line = orTenth(units.toPixels(CSize(line)), m_page);
    if (!m_hWnd)
        return;
    updateBars();
    if (changedMode)
        Invalidate();
}

void CScrollView::SetScaleToFitSize(SIZE total)
{
    m_mapMode = kToFit;
    m_total = total;
    m_position = {0, 0};
    if (!m_hWnd)
        return;
    ShowScrollBar(SB_BOTH, FALSE);
    CRect client;
    GetClientRect(&client);
    m_totalDevice = client.Size();
    Invalidate();
}

CPoint CScrollView::GetScrollPosition() const
{
    return scalesToFit() ? CPoint(0, 0) : Units(m_mapMode).toLogical(m_position);
}

CPoint CScrollView::GetDeviceScrollPosition() const
{
    return m_position;
}

CSize CScrollView::GetTotalSize() const
{
    return m_total;
}

void CScrollView::GetDeviceScrollSizes(int& mapMode, SIZE& total, SIZE& page, SIZE& line) const
{
    mapMode = m_mapMode;
    total = m_totalDevice;
    page = m_page;
    line = m_line;
}

void CScrollView::ScrollToPosition(POINT point)
{
    ASSERT(!scalesToFit());
    moveTo(Units(m_mapMode).toPixels(CPoint(point)));
}

void CScrollView::CheckScrollBars(BOOL& horizontal, BOOL& vertical) const
{
    horizontal = hasBar(*this, SB_HORZ);
    vertical = hasBar(*this, SB_VERT);
}

/// The client area as it is without scroll bars.
CSize CScrollView::windowSize() const
{
    CRect client;
    GetClientRect(&client);
    CSize size = client.Size();
    if (hasBar(*this, SB_VERT))
        size.cx += ::GetSystemMetrics(SM_CXVSCROLL);
    if (hasBar(*this, SB_HORZ))
        size.cy += ::GetSystemMetrics(SM_CYHSCROLL);
    return size;
}

void CScrollView::ResizeParentToFit(BOOL shrinkOnly)
{
    CFrameWnd* const frame = GetParentFrame();
    if (!frame || scalesToFit())
        return;
    CSize change = m_totalDevice - windowSize();
    if (shrinkOnly) {
        change.cx = std::min(change.cx, 0L);
        change.cy = std::min(change.cy, 0L);
    }
    CRect rect;
    frame->GetWindowRect(&rect);
    frame->SetWindowPos(nullptr, 0, 0, rect.Width() + change.cx, rect.Height() + change.cy,
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CScrollView::FillOutsideRect(CDC* dc, CBrush* brush)
{
    CRect client;
    GetClientRect(&client);
    const CSize seen(m_totalDevice.cx - m_position.x, m_totalDevice.cy - m_position.y);
    CRect right = client;
    right.left = std::min(client.right, seen.cx);
    if (!right.IsRectEmpty())
        dc->FillRect(&right, brush);
    CRect below = client;
    below.right = right.left;
    below.top = std::min(client.bottom, seen.cy);
    if (!below.IsRectEmpty())
        dc->FillRect(&below, brush);
}

// Painting

void CScrollView::OnPrepareDC(CDC* dc, CPrintInfo* info)
{
    CView::OnPrepareDC(dc, info);
    if (dc->IsPrinting())
        return;
    if (!scalesToFit()) {
        dc->SetMapMode(m_mapMode);
        dc->SetViewportOrg(-m_position.x, -m_position.y);
        return;
    }
    CRect client;
    GetClientRect(&client);
    dc->SetMapMode(MM_ANISOTROPIC);
    dc->SetWindowExt(CSize(std::max(1L, m_total.cx), std::max(1L, m_total.cy)));
    dc->SetViewportExt(client.Size());
}

// The bars

void CScrollView::OnSize(UINT type, int cx, int cy)
{
    CView::OnSize(type, cx, cy);
    m_sized = true;
    if (scalesToFit()) {
        m_totalDevice = {cx, cy};
        Invalidate();
    } else {
        updateBars();
    }
}

void CScrollView::updateBars()
{
    if (m_updating || !m_sized)
        return;
    const afxdetail::FlagScope updating(m_updating); // a bar that comes or goes changes the size
    const CSize window = windowSize();
    const afxdetail::ScrollBars bars =
        afxdetail::neededBars({m_totalDevice.cx, m_totalDevice.cy}, {window.cx, window.cy},
                              {::GetSystemMetrics(SM_CXVSCROLL), ::GetSystemMetrics(SM_CYHSCROLL)});
    const CPoint position(afxdetail::scrollPosition(m_position.x, m_totalDevice.cx, bars.seen.width),
                          afxdetail::scrollPosition(m_position.y, m_totalDevice.cy, bars.seen.height));
    setBar(SB_HORZ, bars.horizontal, m_totalDevice.cx, bars.seen.width, position.x);
    setBar(SB_VERT, bars.vertical, m_totalDevice.cy, bars.seen.height, position.y);
    moveTo(position);
}

void CScrollView::setBar(int bar, bool shown, int whole, int seen, int position)
{
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    info.nMax = shown ? whole - 1 : 0;
    info.nPage = shown ? static_cast<UINT>(seen) : 1;
    info.nPos = position;
    SetScrollInfo(bar, &info);
    ShowScrollBar(static_cast<UINT>(bar), shown);
}

/// `position`: in pixels.
void CScrollView::moveTo(CPoint position)
{
    CRect client;
    GetClientRect(&client);
    position.x = afxdetail::scrollPosition(position.x, m_totalDevice.cx, client.Width());
    position.y = afxdetail::scrollPosition(position.y, m_totalDevice.cy, client.Height());
    const CSize distance = position - m_position;
    if (distance == CSize(0, 0))
        return;
    m_position = position;
    ScrollWindow(-distance.cx, -distance.cy);
    if (hasBar(*this, SB_HORZ))
        SetScrollPos(SB_HORZ, position.x);
    if (hasBar(*this, SB_VERT))
        SetScrollPos(SB_VERT, position.y);
}

BOOL CScrollView::OnScrollBy(CSize distance, BOOL doScroll)
{
    CRect client;
    GetClientRect(&client);
    const CPoint wanted = m_position + distance;
    const CPoint reached(afxdetail::scrollPosition(wanted.x, m_totalDevice.cx, client.Width()),
                         afxdetail::scrollPosition(wanted.y, m_totalDevice.cy, client.Height()));
    if (reached == m_position)
        return FALSE;
    if (doScroll) {
        moveTo(reached);
        UpdateWindow();
    }
    return TRUE;
}

/// Where a code of a scroll bar leads.
int CScrollView::positionAfter(int bar, int code) const
{
    const bool horizontal = bar == SB_HORZ;
    const int now = horizontal ? m_position.x : m_position.y;
    const int line = horizontal ? m_line.cx : m_line.cy;
    const int page = horizontal ? m_page.cx : m_page.cy;
    switch (code) {
    case SB_LINEUP:
        return now - line;
    case SB_LINEDOWN:
        return now + line;
    case SB_PAGEUP:
        return now - page;
    case SB_PAGEDOWN:
        return now + page;
    case SB_TOP:
        return 0;
    case SB_BOTTOM:
        return horizontal ? m_totalDevice.cx : m_totalDevice.cy;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        return infoOf(*this, bar).nTrackPos; // all of its bits, unlike the message's
    default:
        return now;
    }
}

BOOL CScrollView::OnScroll(UINT codes, UINT, BOOL doScroll)
{
    CPoint wanted = m_position;
    if (LOBYTE(codes) != kNoCode)
        wanted.x = positionAfter(SB_HORZ, LOBYTE(codes));
    if (HIBYTE(codes) != kNoCode)
        wanted.y = positionAfter(SB_VERT, HIBYTE(codes));
    return OnScrollBy(wanted - m_position, doScroll);
}

void CScrollView::OnHScroll(UINT code, UINT position, CScrollBar* bar)
{
    // A scroll bar or slider inside the view is no bar of the view's.
    if (bar && ::GetParent(bar->m_hWnd) == m_hWnd)
        CView::OnHScroll(code, position, bar);
    else
        OnScroll(MAKEWORD(code, kNoCode), position);
}

void CScrollView::OnVScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (bar && ::GetParent(bar->m_hWnd) == m_hWnd)
        CView::OnVScroll(code, position, bar);
    else
        OnScroll(MAKEWORD(kNoCode, code), position);
}

BOOL CScrollView::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    BOOL horizontal = FALSE;
    BOOL vertical = FALSE;
    CheckScrollBars(horizontal, vertical);
    if ((flags & (MK_SHIFT | MK_CONTROL)) || (!horizontal && !vertical))
        return CView::OnMouseWheel(flags, delta, point);
    if ((delta > 0) != (m_wheel > 0))
        m_wheel = 0;
    m_wheel += delta;
    const int steps = m_wheel / WHEEL_DELTA;
    m_wheel %= WHEEL_DELTA;
    const int lines = wheelLines();
    const int distance = -steps * (lines < 0 ? static_cast<int>(vertical ? m_page.cy : m_page.cx)
                                             : lines * static_cast<int>(vertical ? m_line.cy : m_line.cx));
    OnScrollBy(vertical ? CSize(0, distance) : CSize(distance, 0));
    return TRUE;
}
