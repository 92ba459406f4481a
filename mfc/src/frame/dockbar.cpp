// CDockBar: its bars, their rows, its part of the frame.
#include <afxext.h>
#include <afxpriv.h>

#include "bararea.h"
#include "core/dockrows.h"
#include "dockmemory.h"

#include <detail/pending.h>

IMPLEMENT_DYNAMIC(CDockBar, CControlBar)

BEGIN_MESSAGE_MAP(CDockBar, CControlBar)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_MESSAGE(WM_SIZEPARENT, &CDockBar::OnSizeParent)
END_MESSAGE_MAP()

using afxdetail::DockedBar;
using afxdetail::DockPlace;
using afxdetail::DockRow;

CDockBar::CDockBar(BOOL floating)
    : m_bFloating(floating)
    , m_rows(std::make_unique<afxdetail::DockRows>())
{
    SetBorders();
}

CDockBar::~CDockBar()
{
    if (m_hWnd)
        ::DestroyWindow(m_hWnd);
    for (CControlBar* bar : bars())
        bar->m_pDockBar = nullptr;
}

BOOL CDockBar::Create(CWnd* parent, DWORD style, UINT id)
{
    m_dwStyle = style & CBRS_ALL;
    const DWORD wndStyle = (style & ~static_cast<DWORD>(CBRS_ALL)) | WS_CHILD | WS_CLIPCHILDREN;
    return CWnd::Create(nullptr, nullptr, wndStyle, CRect(0, 0, 0, 0), parent, id);
}

/// The frame knows its dock bars apart from the bars in them.
int CDockBar::OnCreate(LPCREATESTRUCT cs)
{
    return CWnd::OnCreate(cs);
}

void CDockBar::OnDestroy()
{
    CWnd::OnDestroy();
}

void CDockBar::OnPaint()
{
    CPaintDC dc(this); // the background is all there is
}

// Bars

void CDockBar::take(CControlBar& bar, const DockPlace& place, int start)
{
    CDockBar* const before = bar.m_pDockBar;
    if (before)
        before->remember(bar);
    if (before && before != this)
        before->release(bar);
    insertBar(*m_rows, place, DockedBar{&bar, start, 0, 0, bar.IsVisible() != FALSE});
    bar.m_pDockBar = this;

    const DWORD lies = m_dwStyle & (CBRS_ALIGN_ANY | CBRS_FLOATING);
    bar.SetBarStyle((bar.GetBarStyle() & ~static_cast<DWORD>(CBRS_ALIGN_ANY | CBRS_FLOATING)) | lies);
    if (bar.m_hWnd && ::GetParent(bar.m_hWnd) != m_hWnd)
        bar.SetParent(this);
}

void CDockBar::takeDropped(CControlBar& bar, const CRect& screen)
{
    CRect rect(screen);
    ScreenToClient(&rect);
    const int start = isHorizontal() ? rect.left : rect.top;
    const CPoint middle = rect.CenterPoint();
    take(bar, findPlace(*m_rows, room(), start, isHorizontal() ? middle.y : middle.x), start);
    m_dropped = &bar;
}

void CDockBar::release(CControlBar& bar)
{
    if (m_dropped == &bar)
        m_dropped = nullptr;
    removeBar(*m_rows, &bar);
    if (bar.m_pDockBar == this)
        bar.m_pDockBar = nullptr;
}

std::vector<CControlBar*> CDockBar::bars() const
{
    std::vector<CControlBar*> found;
    for (const DockRow& row : m_rows->rows)
        for (const DockedBar& docked : row)
            found.push_back(static_cast<CControlBar*>(docked.bar));
    return found;
}

bool CDockBar::hasShownBar() const
{
    const std::vector<CControlBar*> all = bars();
    return std::any_of(all.begin(), all.end(), [](const CControlBar* bar) { return bar->IsVisible(); });
}

// Places

DockPlace CDockBar::placeOf(const CControlBar& bar, int& start) const
{
    const DockPlace place = afxdetail::placeOf(*m_rows, &bar);
    start = place.row < m_rows->rows.size() ? m_rows->rows[place.row][place.position].start : 0;
    return place;
}

DockPlace CDockBar::lastPlace() const
{
    return afxdetail::lastPlace(*m_rows);
}

/// What a bar that leaves, or moves, may want to come back to.
void CDockBar::remember(CControlBar& bar) const
{
    if (!bar.m_dockMemory)
        bar.m_dockMemory = std::make_unique<afxdetail::DockMemory>();
    afxdetail::DockMemory& memory = *bar.m_dockMemory;
    if (m_bFloating) {
        memory.floated = true;
        memory.floatPoint = afxdetail::screenRectOf(*GetParent()).TopLeft();
        memory.horizontal = isHorizontal();
    } else {
        memory.dockBar = static_cast<UINT>(GetDlgCtrlID());
        memory.place = placeOf(bar, memory.start);
    }
}

// Layout

/// A bar's size as it lies here. The bar may end this one, with the frame, when it is asked.
CSize CDockBar::askSize(CControlBar& bar) const
{
    if (m_bFloating)
        return bar.CalcDynamicLayout(-1, isHorizontal() ? LM_HORZ | LM_MRUWIDTH : LM_VERTDOCK);
    return bar.CalcDynamicLayout(-1, isHorizontal() ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK);
}

afxdetail::Extent CDockBar::measure()
{
    const HWND wnd = m_hWnd;
    for (CControlBar* bar : bars()) {
        DockPlace place = afxdetail::placeOf(*m_rows, bar);
        if (place.row == m_rows->rows.size()) // gone since another bar was asked
            continue;
        const bool shown = bar->IsVisible() != FALSE;
        const CSize size = shown ? askSize(*bar) : CSize(0, 0);
        if (FromHandlePermanent(wnd) != this)
            return {};
        place = afxdetail::placeOf(*m_rows, bar);
        if (place.row == m_rows->rows.size())
            continue;
        DockedBar& docked = m_rows->rows[place.row][place.position];
        docked.shown = shown;
        if (!shown)
            continue;
        docked.length = isHorizontal() ? size.cx : size.cy;
        docked.depth = isHorizontal() ? size.cy : size.cx;
    }
    const int length = lengthOf(*m_rows);
    const int depth = depthOf(*m_rows);
    return isHorizontal() ? afxdetail::Extent{length, depth} : afxdetail::Extent{depth, length};
}

CRect CDockBar::rectOf(int start, int length, int across, int depth) const
{
    return isHorizontal() ? CRect(CPoint(start, across), CSize(length, depth))
                          : CRect(CPoint(across, start), CSize(depth, length));
}

void CDockBar::placeBars(int room)
{
    if (const CControlBar* dropped = std::exchange(m_dropped, nullptr))
        settleRow(*m_rows, dropped, room);
    AFX_SIZEPARENTPARAMS pass{};
    const std::vector<afxdetail::PlacedBar> placed = placeRows(*m_rows, room);
    pass.hDWP = ::BeginDeferWindowPos(static_cast<int>(placed.size()));
    for (const afxdetail::PlacedBar& one : placed) {
        const CRect rect = rectOf(one.along.start, one.along.length, one.across.start, one.across.length);
        AfxRepositionWindow(&pass, static_cast<CControlBar*>(one.bar)->m_hWnd, &rect);
    }
    if (pass.hDWP)
        afxdetail::callOut([&] { ::EndDeferWindowPos(pass.hDWP); });
}

/// How long the side is.
int CDockBar::room() const
{
    CRect client;
    GetClientRect(&client);
    return isHorizontal() ? client.Width() : client.Height();
}

CSize CDockBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    const afxdetail::Extent extent = measure();
    CSize size(extent.width, extent.height);
    if (stretch)
        (horizontal ? size.cx : size.cy) = 32767;
    return size;
}

LRESULT CDockBar::OnSizeParent(WPARAM, LPARAM lParam)
{
    auto& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    const HWND wnd = m_hWnd;
    const CSize size = CalcFixedLayout(layout.bStretch, isHorizontal());
    if (FromHandlePermanent(wnd) != this) // a bar that was asked for its size has ended the frame
        return 0;
    afxdetail::Area free = afxdetail::areaOf(layout.rect);
    const afxdetail::Area place = takeStrip(free, afxdetail::extentOf(size), afxdetail::sideOf(m_dwStyle));
    afxdetail::Extent total = afxdetail::extentOf(layout.sizeTotal);
    addToTotal(total, place, afxdetail::sideOf(m_dwStyle));
    layout.rect = afxdetail::rectOf(free);
    layout.sizeTotal = CSize(total.width, total.height);
    if (!layout.hDWP)
        return 0;
    const CRect rect = afxdetail::rectOf(place);
    AfxRepositionWindow(&layout, m_hWnd, &rect);
    placeBars(isHorizontal() ? place.width() : place.height());
    return 0;
}

/// The bars are brought up to date themselves.
void CDockBar::OnUpdateCmdUI(CFrameWnd*, BOOL) {}

/// The keys of a dialog hold inside a bar, not between bars.
BOOL CDockBar::PreTranslateMessage(MSG* message)
{
    return CWnd::PreTranslateMessage(message);
}
