#include <afxwin.h>

#include <detail/handleof.h>

using afxdetail::handleOf;

IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

CRgn::CRgn() = default;

CRgn* PASCAL CRgn::FromHandle(HRGN region)
{
    return static_cast<CRgn*>(CGdiObject::FromHandle(region));
}

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2)
{
    return adopt(::CreateRectRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT rect)
{
    return adopt(::CreateRectRgnIndirect(rect));
}

BOOL CRgn::CreateEllipticRgn(int x1, int y1, int x2, int y2)
{
    return adopt(::CreateEllipticRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateEllipticRgnIndirect(LPCRECT rect)
{
    return adopt(::CreateEllipticRgnIndirect(rect));
}

BOOL CRgn::CreatePolygonRgn(LPPOINT points, int count, int mode)
{
    return adopt(::CreatePolygonRgn(points, count, mode));
}

BOOL CRgn::CreatePolyPolygonRgn(LPPOINT points, LPINT polyCounts, int count, int polyFillMode)
{
    return adopt(::CreatePolyPolygonRgn(points, polyCounts, count, polyFillMode));
}

BOOL CRgn::CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return adopt(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
}

BOOL CRgn::CreateFromPath(CDC* dc)
{
    return adopt(::PathToRegion(handleOf(dc)));
}

BOOL CRgn::CreateFromData(const XFORM* transform, int count, const RGNDATA* data)
{
    return adopt(::ExtCreateRegion(transform, static_cast<DWORD>(count), data));
}

CRgn::operator HRGN() const
{
    return static_cast<HRGN>(m_hObject);
}

void CRgn::SetRectRgn(int x1, int y1, int x2, int y2)
{
    ::SetRectRgn(*this, x1, y1, x2, y2);
}

void CRgn::SetRectRgn(LPCRECT rect)
{
    SetRectRgn(rect->left, rect->top, rect->right, rect->bottom);
}

int CRgn::CombineRgn(CRgn* region1, CRgn* region2, int mode)
{
    return ::CombineRgn(*this, handleOf(region1), handleOf(region2), mode);
}

int CRgn::CopyRgn(CRgn* source)
{
    return CombineRgn(source, nullptr, RGN_COPY);
}

BOOL CRgn::EqualRgn(CRgn* region) const
{
    return ::EqualRgn(*this, handleOf(region));
}

int CRgn::OffsetRgn(int x, int y)
{
    return ::OffsetRgn(*this, x, y);
}

int CRgn::OffsetRgn(POINT point)
{
    return OffsetRgn(point.x, point.y);
}

int CRgn::GetRgnBox(LPRECT rect) const
{
    return ::GetRgnBox(*this, rect);
}

BOOL CRgn::PtInRegion(int x, int y) const
{
    return ::PtInRegion(*this, x, y);
}

BOOL CRgn::PtInRegion(POINT point) const
{
    return PtInRegion(point.x, point.y);
}

BOOL CRgn::RectInRegion(LPCRECT rect) const
{
    return ::RectInRegion(*this, rect);
}

int CRgn::GetRegionData(LPRGNDATA data, int size) const
{
    return static_cast<int>(::GetRegionData(*this, static_cast<DWORD>(size), data));
}
