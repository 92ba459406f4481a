#include "WorkAreaMap.h"

#include "Direction.h"
#include "Resolution.h"

#include <ovoui/frame/Geometry.h>

namespace
{

constexpr int kMargin = 24; // pixels at 96 dots per inch around the work area, for what hangs out of it

CRect workArea()
{
    return GetWorkArea({0, 0, 1, 1});
}

} // namespace

BEGIN_MESSAGE_MAP(WorkAreaMap, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

bool WorkAreaMap::create(CWnd& parent, std::function<void(const CRect&)> moved)
{
    m_moved = std::move(moved);
    const LPCTSTR cls = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW));
    return CreateEx(WS_EX_CLIENTEDGE, cls, L"", WS_CHILD | WS_VISIBLE, CRect(), &parent, 1) != FALSE &&
           readsFromTheLeft(*this);
}

CRect WorkAreaMap::onMap(const CRect& screen) const
{
    CRect client;
    GetClientRect(&client);
    const int margin = scaled(m_hWnd, kMargin);
    client.DeflateRect(margin, margin);
    const CRect work = workArea();
    const double scale = std::min(static_cast<double>(client.Width()) / work.Width(),
                                  static_cast<double>(client.Height()) / work.Height());
    // In the middle of the room there is.
    const int left = client.left + static_cast<int>(client.Width() - work.Width() * scale) / 2;
    const int top = client.top + static_cast<int>(client.Height() - work.Height() * scale) / 2;
    const auto x = [&](int value) { return left + static_cast<int>((value - work.left) * scale); };
    const auto y = [&](int value) { return top + static_cast<int>((value - work.top) * scale); };
    return CRect(x(screen.left), y(screen.top), x(screen.right), y(screen.bottom));
}

BOOL WorkAreaMap::OnEraseBkgnd(CDC*)
{
    return TRUE; // painted whole, in one go
}

void WorkAreaMap::OnPaint()
{
    CPaintDC paint(this);
    CRect client;
    GetClientRect(&client);

    CDC dc;
    dc.CreateCompatibleDC(&paint);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&paint, client.Width(), client.Height());
    CBitmap* const old = dc.SelectObject(&bitmap);
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_APPWORKSPACE));
    const CRect desk = onMap(workArea());
    dc.FillSolidRect(&desk, ::GetSysColor(COLOR_WINDOW));
    const CRect rect = onMap(m_rect);
    dc.FillSolidRect(&rect, ::GetSysColor(COLOR_HIGHLIGHT));
    dc.Draw3dRect(&rect, ::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_WINDOWTEXT));
    paint.BitBlt(0, 0, client.Width(), client.Height(), &dc, 0, 0, SRCCOPY);
    dc.SelectObject(old);
}

void WorkAreaMap::OnLButtonDown(UINT, CPoint point)
{
    if (!onMap(m_rect).PtInRect(point))
        return;
    m_grip = point;
    m_gripped = m_rect;
    SetCapture();
}

void WorkAreaMap::OnMouseMove(UINT, CPoint point)
{
    if (GetCapture() != this)
        return;
    const CRect unit = onMap(workArea());
    const double scale = static_cast<double>(workArea().Width()) / unit.Width();
    const CSize distance = point - m_grip;
    CRect rect = m_gripped;
    rect.OffsetRect(static_cast<int>(distance.cx * scale), static_cast<int>(distance.cy * scale));
    moveTo(rect);
}

void WorkAreaMap::OnLButtonUp(UINT, CPoint)
{
    if (GetCapture() != this)
        return;
    ::ReleaseCapture();
    CRect rect = m_rect;
    EnsureRectVisible(rect);
    moveTo(rect);
}

void WorkAreaMap::moveTo(const CRect& rect)
{
    m_rect = rect;
    Invalidate();
    if (m_moved)
        m_moved(rect);
}
