// CDC: members that are the drawing functions of the same names. Those that change how units or text are measured
// do it in both contexts and give what the attribute context had.
#include <afxwin.h>

int CDC::GetDeviceCaps(int index) const
{
    return ::GetDeviceCaps(m_hAttribDC, index);
}

UINT CDC::SetBoundsRect(LPCRECT bounds, UINT flags)
{
    return ::SetBoundsRect(m_hDC, bounds, flags);
}

UINT CDC::GetBoundsRect(LPRECT bounds, UINT flags)
{
    return ::GetBoundsRect(m_hAttribDC, bounds, flags);
}

DWORD CDC::SetLayout(DWORD layout)
{
    if (m_hDC && m_hDC != m_hAttribDC)
        ::SetLayout(m_hDC, layout);
    return ::SetLayout(m_hAttribDC, layout);
}

DWORD CDC::GetLayout() const
{
    return ::GetLayout(m_hAttribDC);
}

int CDC::SetGraphicsMode(int mode)
{
    if (m_hDC && m_hDC != m_hAttribDC)
        ::SetGraphicsMode(m_hDC, mode);
    return ::SetGraphicsMode(m_hAttribDC, mode);
}

int CDC::GetGraphicsMode() const
{
    return ::GetGraphicsMode(m_hAttribDC);
}

UINT CDC::RealizePalette()
{
    return ::RealizePalette(m_hDC);
}

COLORREF CDC::GetNearestColor(COLORREF colour) const
{
    return ::GetNearestColor(m_hAttribDC, colour);
}

COLORREF CDC::GetBkColor() const
{
    return ::GetBkColor(m_hAttribDC);
}

COLORREF CDC::SetBkColor(COLORREF colour)
{
    if (m_hDC && m_hDC != m_hAttribDC)
        ::SetBkColor(m_hDC, colour);
    return ::SetBkColor(m_hAttribDC, colour);
}

int CDC::GetBkMode() const
{
    return ::GetBkMode(m_hAttribDC);
}

int CDC::SetBkMode(int mode)
{
    return ::SetBkMode(m_hDC, mode);
}

COLORREF CDC::GetTextColor() const
{
    return ::GetTextColor(m_hAttribDC);
}

COLORREF CDC::SetTextColor(COLORREF colour)
{
    if (m_hDC && m_hDC != m_hAttribDC)
        ::SetTextColor(m_hDC, colour);
    return ::SetTextColor(m_hAttribDC, colour);
}

COLORREF CDC::GetDCBrushColor() const
{
    return ::GetDCBrushColor(m_hAttribDC);
}

COLORREF CDC::SetDCBrushColor(COLORREF colour)
{
    return ::SetDCBrushColor(m_hDC, colour);
}

COLORREF CDC::GetDCPenColor() const
{
    return ::GetDCPenColor(m_hAttribDC);
}

COLORREF CDC::SetDCPenColor(COLORREF colour)
{
    return ::SetDCPenColor(m_hDC, colour);
}

int CDC::GetPolyFillMode() const
{
    return ::GetPolyFillMode(m_hAttribDC);
}

int CDC::SetPolyFillMode(int mode)
{
    return ::SetPolyFillMode(m_hDC, mode);
}

int CDC::GetROP2() const
{
    return ::GetROP2(m_hAttribDC);
}

int CDC::SetROP2(int mode)
{
    return ::SetROP2(m_hDC, mode);
}

int CDC::GetStretchBltMode() const
{
    return ::GetStretchBltMode(m_hAttribDC);
}

int CDC::SetStretchBltMode(int mode)
{
    return ::SetStretchBltMode(m_hDC, mode);
}

BOOL CDC::GetColorAdjustment(LPCOLORADJUSTMENT adjustment) const
{
    return ::GetColorAdjustment(m_hAttribDC, adjustment);
}

BOOL CDC::SetColorAdjustment(const COLORADJUSTMENT* adjustment)
{
    return ::SetColorAdjustment(m_hDC, adjustment);
}

int CDC::GetMapMode() const
{
    return ::GetMapMode(m_hAttribDC);
}

int CDC::SetMapMode(int mode)
{
    if (m_hDC && m_hDC != m_hAttribDC)
        ::SetMapMode(m_hDC, mode);
    return ::SetMapMode(m_hAttribDC, mode);
}

CPoint CDC::GetViewportOrg() const
{
    CPoint value;
    ::GetViewportOrgEx(m_hAttribDC, &value);
    return value;
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    CPoint before;
    if (m_hDC && m_hDC != m_hAttribDC)
        ::SetViewportOrgEx(m_hDC, x, y, &before);
    ::SetViewportOrgEx(m_hAttribDC, x, y, &before);
    return before;
}

CPoint CDC::SetViewportOrg(POINT point)
{
    return SetViewportOrg(point.x, point.y);
}

CPoint CDC::OffsetViewportOrg(int width, int height)
{
    CPoint before;
    if (m_hDC && m_hDC != m_hAttribDC)
        ::OffsetViewportOrgEx(m_hDC, width, height, &before);
    ::OffsetViewportOrgEx(m_hAttribDC, width, height, &before);
    return before;
}

CSize CDC::GetViewportExt() const
{
    CSize value;
    ::GetViewportExtEx(m_hAttribDC, &value);
    return value;
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    CSize before;
    if (m_hDC && m_hDC != m_hAttribDC)
        ::SetViewportExtEx(m_hDC, cx, cy, &before);
    ::SetViewportExtEx(m_hAttribDC, cx, cy, &before);
    return before;
}

CSize CDC::SetViewportExt(SIZE size)
{
    return SetViewportExt(size.cx, size.cy);
}

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom)
{
    CSize before;
    if (m_hDC && m_hDC != m_hAttribDC)
        ::ScaleViewportExtEx(m_hDC, xNum, xDenom, yNum, yDenom, &before);
    ::ScaleViewportExtEx(m_hAttribDC, xNum, xDenom, yNum, yDenom, &before);
    return before;
}

CPoint CDC::GetWindowOrg() const
{
    CPoint value;
    ::GetWindowOrgEx(m_hAttribDC, &value);
    return value;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    CPoint before;
    if (m_hDC && m_hDC != m_hAttribDC)
        ::SetWindowOrgEx(m_hDC, x, y, &before);
    ::SetWindowOrgEx(m_hAttribDC, x, y, &before);
    return before;
}

CPoint CDC::SetWindowOrg(POINT point)
{
    return SetWindowOrg(point.x, point.y);
}

CPoint CDC::OffsetWindowOrg(int width, int height)
{
    CPoint before;
    if (m_hDC && m_hDC != m_hAttribDC)
        ::OffsetWindowOrgEx(m_hDC, width, height, &before);
    ::OffsetWindowOrgEx(m_hAttribDC, width, height, &before);
    return before;
}

CSize CDC::GetWindowExt() const
{
    CSize value;
    ::GetWindowExtEx(m_hAttribDC, &value);
    return value;
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    CSize before;
    if (m_hDC && m_hDC != m_hAttribDC)
        ::SetWindowExtEx(m_hDC, cx, cy, &before);
    ::SetWindowExtEx(m_hAttribDC, cx, cy, &before);
    return before;
}

CSize CDC::SetWindowExt(SIZE size)
{
    return SetWindowExt(size.cx, size.cy);
}

CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom)
{
    CSize before;
    if (m_hDC && m_hDC != m_hAttribDC)
        ::ScaleWindowExtEx(m_hDC, xNum, xDenom, yNum, yDenom, &before);
    ::ScaleWindowExtEx(m_hAttribDC, xNum, xDenom, yNum, yDenom, &before);
    return before;
}

int CDC::GetClipBox(LPRECT rect) const
{
    return ::GetClipBox(m_hAttribDC, rect);
}

BOOL CDC::SelectClipPath(int mode)
{
    return ::SelectClipPath(m_hDC, mode);
}

BOOL CDC::AngleArc(int x, int y, int radius, float startAngle, float sweepAngle)
{
    return ::AngleArc(m_hDC, x, y, radius, startAngle, sweepAngle);
}

int CDC::GetArcDirection() const
{
    return ::GetArcDirection(m_hAttribDC);
}

int CDC::SetArcDirection(int direction)
{
    return ::SetArcDirection(m_hDC, direction);
}

BOOL CDC::Polyline(LPPOINT points, int count)
{
    return ::Polyline(m_hDC, points, count);
}

BOOL CDC::PolylineTo(const POINT* points, int count)
{
    return ::PolylineTo(m_hDC, points, count);
}

BOOL CDC::PolyPolyline(const POINT* points, const DWORD* polyPoints, int count)
{
    return ::PolyPolyline(m_hDC, points, polyPoints, count);
}

BOOL CDC::PolyDraw(const POINT* points, const BYTE* types, int count)
{
    return ::PolyDraw(m_hDC, points, types, count);
}

BOOL CDC::PolyBezier(const POINT* points, int count)
{
    return ::PolyBezier(m_hDC, points, count);
}

BOOL CDC::PolyBezierTo(const POINT* points, int count)
{
    return ::PolyBezierTo(m_hDC, points, count);
}

void CDC::InvertRect(LPCRECT rect)
{
    ::InvertRect(m_hDC, rect);
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

BOOL CDC::Polygon(LPPOINT points, int count)
{
    return ::Polygon(m_hDC, points, count);
}

BOOL CDC::PolyPolygon(LPPOINT points, LPINT polyCounts, int count)
{
    return ::PolyPolygon(m_hDC, points, polyCounts, count);
}

BOOL CDC::PatBlt(int x, int y, int width, int height, DWORD rop)
{
    return ::PatBlt(m_hDC, x, y, width, height, rop);
}

BOOL CDC::FloodFill(int x, int y, COLORREF colour)
{
    return ::FloodFill(m_hDC, x, y, colour);
}

BOOL CDC::ExtFloodFill(int x, int y, COLORREF colour, UINT fillType)
{
    return ::ExtFloodFill(m_hDC, x, y, colour, fillType);
}

BOOL CDC::GetTextExtentExPointI(LPWORD glyphs, int count, int maxExtent, LPINT fit, LPINT dx, LPSIZE size) const
{
    return ::GetTextExtentExPointI(m_hAttribDC, glyphs, count, maxExtent, fit, dx, size);
}

BOOL CDC::GetTextExtentPointI(LPWORD glyphs, int count, LPSIZE size) const
{
    return ::GetTextExtentPointI(m_hAttribDC, glyphs, count, size);
}

UINT CDC::GetTextAlign() const
{
    return ::GetTextAlign(m_hAttribDC);
}

UINT CDC::SetTextAlign(UINT flags)
{
    if (m_hDC && m_hDC != m_hAttribDC)
        ::SetTextAlign(m_hDC, flags);
    return ::SetTextAlign(m_hAttribDC, flags);
}

int CDC::SetTextJustification(int breakExtra, int breakCount)
{
    if (m_hDC && m_hDC != m_hAttribDC)
        ::SetTextJustification(m_hDC, breakExtra, breakCount);
    return ::SetTextJustification(m_hAttribDC, breakExtra, breakCount);
}

int CDC::GetTextCharacterExtra() const
{
    return ::GetTextCharacterExtra(m_hAttribDC);
}

int CDC::SetTextCharacterExtra(int extra)
{
    if (m_hDC && m_hDC != m_hAttribDC)
        ::SetTextCharacterExtra(m_hDC, extra);
    return ::SetTextCharacterExtra(m_hAttribDC, extra);
}

BOOL CDC::GetCharWidthI(UINT first, UINT count, LPWORD glyphs, LPINT widths) const
{
    return ::GetCharWidthI(m_hAttribDC, first, count, glyphs, widths);
}

BOOL CDC::GetCharABCWidthsI(UINT first, UINT count, LPWORD glyphs, LPABC widths) const
{
    return ::GetCharABCWidthsI(m_hAttribDC, first, count, glyphs, widths);
}

DWORD CDC::SetMapperFlags(DWORD flag)
{
    if (m_hDC && m_hDC != m_hAttribDC)
        ::SetMapperFlags(m_hDC, flag);
    return ::SetMapperFlags(m_hAttribDC, flag);
}

DWORD CDC::GetFontLanguageInfo() const
{
    return ::GetFontLanguageInfo(m_hAttribDC);
}

BOOL CDC::BeginPath()
{
    return ::BeginPath(m_hDC);
}

BOOL CDC::EndPath()
{
    return ::EndPath(m_hDC);
}

BOOL CDC::AbortPath()
{
    return ::AbortPath(m_hDC);
}

BOOL CDC::CloseFigure()
{
    return ::CloseFigure(m_hDC);
}

BOOL CDC::FillPath()
{
    return ::FillPath(m_hDC);
}

BOOL CDC::StrokePath()
{
    return ::StrokePath(m_hDC);
}

BOOL CDC::StrokeAndFillPath()
{
    return ::StrokeAndFillPath(m_hDC);
}

BOOL CDC::FlattenPath()
{
    return ::FlattenPath(m_hDC);
}

BOOL CDC::WidenPath()
{
    return ::WidenPath(m_hDC);
}

int CDC::StartPage()
{
    return ::StartPage(m_hDC);
}

int CDC::EndPage()
{
    return ::EndPage(m_hDC);
}

int CDC::EndDoc()
{
    return ::EndDoc(m_hDC);
}

int CDC::AbortDoc()
{
    return ::AbortDoc(m_hDC);
}
