// CDC: lines, shapes, regions and paths.
#include <afxwin.h>

#include <detail/handleof.h>

#include "bothdcs.h"

using afxdetail::handleOf;
using afxdetail::inBoth;

CPoint CDC::GetCurrentPosition() const
{
    CPoint position;
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y)
{
    return inBoth(*this, [=](HDC dc) {
        CPoint before;
        ::MoveToEx(dc, x, y, &before);
        return before;
    });
}

CPoint CDC::MoveTo(POINT point)
{
    return MoveTo(point.x, point.y);
}

BOOL CDC::LineTo(int x, int y)
{
    if (m_hAttribDC && m_hDC != m_hAttribDC)
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::LineTo(POINT point)
{
    return LineTo(point.x, point.y);
}

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Arc(LPCRECT rect, POINT start, POINT end)
{
    return Arc(rect->left, rect->top, rect->right, rect->bottom, start.x, start.y, end.x, end.y);
}

BOOL CDC::ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    const BOOL drawn = ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    if (m_hAttribDC && m_hDC != m_hAttribDC) {
        CPoint end;
        ::GetCurrentPositionEx(m_hDC, &end);
        ::MoveToEx(m_hAttribDC, end.x, end.y, nullptr);
    }
    return drawn;
}

BOOL CDC::ArcTo(LPCRECT rect, POINT start, POINT end)
{
    return ArcTo(rect->left, rect->top, rect->right, rect->bottom, start.x, start.y, end.x, end.y);
}

BOOL CDC::AngleArc(int x, int y, int radius, float startAngle, float sweepAngle)
{
    return ::AngleArc(m_hDC, x, y, static_cast<DWORD>(radius), startAngle, sweepAngle);
}

int CDC::GetArcDirection() const
{
    return ::GetArcDirection(m_hAttribDC);
}

int CDC::SetArcDirection(int direction)
{
    return inBoth(*this, [direction](HDC dc) { return ::SetArcDirection(dc, direction); });
}

BOOL CDC::Polyline(LPPOINT points, int count)
{
    return ::Polyline(m_hDC, points, count);
}

BOOL CDC::PolylineTo(const POINT* points, int count)
{
    return ::PolylineTo(m_hDC, points, static_cast<DWORD>(count));
}

BOOL CDC::PolyPolyline(const POINT* points, const DWORD* polyPoints, int count)
{
    return ::PolyPolyline(m_hDC, points, polyPoints, static_cast<DWORD>(count));
}

BOOL CDC::PolyDraw(const POINT* points, const BYTE* types, int count)
{
    return ::PolyDraw(m_hDC, points, types, count);
}

BOOL CDC::PolyBezier(const POINT* points, int count)
{
    return ::PolyBezier(m_hDC, points, static_cast<DWORD>(count));
}

BOOL CDC::PolyBezierTo(const POINT* points, int count)
{
    return ::PolyBezierTo(m_hDC, points, static_cast<DWORD>(count));
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2)
{
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(LPCRECT rect)
{
    return Rectangle(rect->left, rect->top, rect->right, rect->bottom);
}

BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}

BOOL CDC::RoundRect(LPCRECT rect, POINT corner)
{
    return RoundRect(rect->left, rect->top, rect->right, rect->bottom, corner.x, corner.y);
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2)
{
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Ellipse(LPCRECT rect)
{
    return Ellipse(rect->left, rect->top, rect->right, rect->bottom);
}

BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Chord(LPCRECT rect, POINT start, POINT end)
{
    return Chord(rect->left, rect->top, rect->right, rect->bottom, start.x, start.y, end.x, end.y);
}

BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Pie(LPCRECT rect, POINT start, POINT end)
{
    return Pie(rect->left, rect->top, rect->right, rect->bottom, start.x, start.y, end.x, end.y);
}

BOOL CDC::Polygon(LPPOINT points, int count)
{
    return ::Polygon(m_hDC, points, count);
}

BOOL CDC::PolyPolygon(LPPOINT points, LPINT polyCounts, int count)
{
    return ::PolyPolygon(m_hDC, points, polyCounts, count);
}

BOOL CDC::FillRgn(CRgn* region, CBrush* brush)
{
    return ::FillRgn(m_hDC, handleOf(region), handleOf(brush));
}

BOOL CDC::FrameRgn(CRgn* region, CBrush* brush, int width, int height)
{
    return ::FrameRgn(m_hDC, handleOf(region), handleOf(brush), width, height);
}

BOOL CDC::InvertRgn(CRgn* region)
{
    return ::InvertRgn(m_hDC, handleOf(region));
}

BOOL CDC::PaintRgn(CRgn* region)
{
    return ::PaintRgn(m_hDC, handleOf(region));
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

float CDC::GetMiterLimit() const
{
    float limit = 0;
    ::GetMiterLimit(m_hAttribDC, &limit);
    return limit;
}

BOOL CDC::SetMiterLimit(float limit)
{
    return ::SetMiterLimit(m_hDC, limit, nullptr);
}

int CDC::GetPath(LPPOINT points, LPBYTE types, int count) const
{
    return ::GetPath(m_hDC, points, types, count);
}
