// CDC: rectangles, edges, icons and states.
#include <afxwin.h>

#include <detail/handleof.h>

using afxdetail::handleOf;

namespace
{

/// The frame between the edge of a rectangle and `thickness` inside it, in device units as regions are.
void makeFrame(const CDC& dc, CRgn& frame, LPCRECT rect, SIZE thickness)
{
    CRect outer(*rect);
    CRect inner(outer);
    inner.DeflateRect(thickness.cx, thickness.cy);
    inner.IntersectRect(inner, outer);
    dc.LPtoDP(&outer);
    dc.LPtoDP(&inner);
    CRgn hole;
    frame.CreateRectRgnIndirect(outer);
    hole.CreateRectRgnIndirect(inner);
    frame.CombineRgn(&frame, &hole, RGN_DIFF);
}

void invertInside(CDC& dc, CRgn& region, CBrush* brush)
{
    const int saved = ::SaveDC(dc);
    ::ExtSelectClipRgn(dc, region, RGN_AND);
    ::SelectObject(dc, handleOf(brush));
    CRect box;
    ::GetClipBox(dc, &box);
    ::PatBlt(dc, box.left, box.top, box.Width(), box.Height(), PATINVERT);
    ::RestoreDC(dc, saved);
}

} // namespace

void CDC::FillRect(LPCRECT rect, CBrush* brush)
{
    ::FillRect(m_hDC, rect, handleOf(brush));
}

void CDC::FrameRect(LPCRECT rect, CBrush* brush)
{
    ::FrameRect(m_hDC, rect, handleOf(brush));
}

void CDC::InvertRect(LPCRECT rect)
{
    ::InvertRect(m_hDC, rect);
}

void CDC::FillSolidRect(LPCRECT rect, COLORREF colour)
{
    SetBkColor(colour);
    if (::GetLayout(m_hDC) & LAYOUT_RTL) { // where Wine's ExtTextOut is a pixel off
        const COLORREF before = ::SetDCBrushColor(m_hDC, colour);
        ::FillRect(m_hDC, rect, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
        ::SetDCBrushColor(m_hDC, before);
        return;
    }
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF colour)
{
    FillSolidRect(CRect(CPoint(x, y), CSize(cx, cy)), colour);
}

void CDC::Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight)
{
    Draw3dRect(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, topLeft,
               bottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight)
{
    // The corners at the ends of the top and left sides belong to the other two.
    FillSolidRect(x, y, cx - 1, 1, topLeft);
    FillSolidRect(x, y, 1, cy - 1, topLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, bottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, bottomRight);
}

void CDC::DrawDragRect(LPCRECT rect, SIZE size, LPCRECT lastRect, SIZE lastSize, CBrush* brush,
                       CBrush* lastBrush)
{
    if (!brush)
        brush = GetHalftoneBrush();
    if (!lastBrush)
        lastBrush = brush;

    CRgn frame;
    makeFrame(*this, frame, rect, size);
    if (!lastRect) {
        invertInside(*this, frame, brush);
        return;
    }
    CRgn last;
    makeFrame(*this, last, lastRect, lastSize);
    if (*lastBrush != *brush) {
        invertInside(*this, last, lastBrush);
        invertInside(*this, frame, brush);
        return;
    }
    // What both frames cover stays as it is: no flicker.
    frame.CombineRgn(&frame, &last, RGN_XOR);
    invertInside(*this, frame, brush);
}

BOOL CDC::DrawEdge(LPRECT rect, UINT edge, UINT flags)
{
    return ::DrawEdge(m_hDC, rect, edge, flags);
}

BOOL CDC::DrawFrameControl(LPRECT rect, UINT type, UINT state)
{
    return ::DrawFrameControl(m_hDC, rect, type, state);
}

void CDC::DrawFocusRect(LPCRECT rect)
{
    ::DrawFocusRect(m_hDC, rect);
}

BOOL CDC::DrawIcon(int x, int y, HICON icon)
{
    return ::DrawIcon(m_hDC, x, y, icon);
}

BOOL CDC::DrawIcon(POINT point, HICON icon)
{
    return DrawIcon(point.x, point.y, icon);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP bitmap, UINT flags, HBRUSH brush)
{
    return ::DrawStateW(m_hDC, brush, nullptr, reinterpret_cast<LPARAM>(bitmap), 0, pt.x, pt.y, size.cx,
                        size.cy, flags | DST_BITMAP);
}

BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap* bitmap, UINT flags, CBrush* brush)
{
    return DrawState(pt, size, handleOf(bitmap), flags, handleOf(brush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON icon, UINT flags, HBRUSH brush)
{
    return ::DrawStateW(m_hDC, brush, nullptr, reinterpret_cast<LPARAM>(icon), 0, pt.x, pt.y, size.cx,
                        size.cy, flags | DST_ICON);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON icon, UINT flags, CBrush* brush)
{
    return DrawState(pt, size, icon, flags, handleOf(brush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR text, UINT flags, BOOL prefixText, int textLength,
                    HBRUSH brush)
{
    return ::DrawStateW(m_hDC, brush, nullptr, reinterpret_cast<LPARAM>(text),
                        static_cast<WPARAM>(textLength), pt.x, pt.y, size.cx, size.cy,
                        flags | (prefixText ? DST_PREFIXTEXT : DST_TEXT));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR text, UINT flags, BOOL prefixText, int textLength,
                    CBrush* brush)
{
    return DrawState(pt, size, text, flags, prefixText, textLength, handleOf(brush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC drawProc, LPARAM data, UINT flags, HBRUSH brush)
{
    return ::DrawStateW(m_hDC, brush, drawProc, data, 0, pt.x, pt.y, size.cx, size.cy, flags | DST_COMPLEX);
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC drawProc, LPARAM data, UINT flags, CBrush* brush)
{
    return DrawState(pt, size, drawProc, data, flags, handleOf(brush));
}
