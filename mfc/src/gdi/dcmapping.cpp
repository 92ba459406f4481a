// CDC: from logical to device units, and clipping.
#include <afxwin.h>

#include <detail/handleof.h>

#include "bothdcs.h"

#include <cstdlib>

using afxdetail::handleOf;
using afxdetail::inBoth;

namespace
{

constexpr int kHimetricPerInch = 2540;

/// Calls a GDI function that writes what was there before, in both contexts.
template <class Value, class Set>
Value before(const CDC& dc, Set set)
{
    return inBoth(dc, [&set](HDC handle) {
        Value value;
        set(handle, &value);
        return value;
    });
}

/// Puts a context into the mapping mode of hundredths of a millimetre for the rest of the scope.
class HimetricScope
{
public:
    explicit HimetricScope(HDC dc)
        : m_dc(dc)
        , m_before(::SetMapMode(dc, MM_HIMETRIC))
    {
    }
    ~HimetricScope() { ::SetMapMode(m_dc, m_before); }
    HimetricScope(const HimetricScope&) = delete;
    HimetricScope& operator=(const HimetricScope&) = delete;

private:
    const HDC m_dc;
    const int m_before;
};

/// Whether the mapping mode fixes the physical size of a logical unit.
bool isMetric(HDC dc)
{
    switch (::GetMapMode(dc)) {
    case MM_LOMETRIC:
    case MM_HIMETRIC:
    case MM_LOENGLISH:
    case MM_HIENGLISH:
        return true;
    default:
        return false;
    }
}

} // namespace

int CDC::GetMapMode() const
{
    return ::GetMapMode(m_hAttribDC);
}

int CDC::SetMapMode(int mode)
{
    return inBoth(*this, [mode](HDC dc) { return ::SetMapMode(dc, mode); });
}

CPoint CDC::GetViewportOrg() const
{
    CPoint origin;
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    return before<CPoint>(*this, [=](HDC dc, LPPOINT old) { ::SetViewportOrgEx(dc, x, y, old); });
}

CPoint CDC::SetViewportOrg(POINT point)
{
    return SetViewportOrg(point.x, point.y);
}

CPoint CDC::OffsetViewportOrg(int width, int height)
{
    return before<CPoint>(*this, [=](HDC dc, LPPOINT old) { ::OffsetViewportOrgEx(dc, width, height, old); });
}

CSize CDC::GetViewportExt() const
{
    CSize extent;
    ::GetViewportExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    return before<CSize>(*this, [=](HDC dc, LPSIZE old) { ::SetViewportExtEx(dc, cx, cy, old); });
}

CSize CDC::SetViewportExt(SIZE size)
{
    return SetViewportExt(size.cx, size.cy);
}

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom)
{
    return before<CSize>(
        *this, [=](HDC dc, LPSIZE old) { ::ScaleViewportExtEx(dc, xNum, xDenom, yNum, yDenom, old); });
}

CPoint CDC::GetWindowOrg() const
{
    CPoint origin;
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    return before<CPoint>(*this, [=](HDC dc, LPPOINT old) { ::SetWindowOrgEx(dc, x, y, old); });
}

CPoint CDC::SetWindowOrg(POINT point)
{
    return SetWindowOrg(point.x, point.y);
}

CPoint CDC::OffsetWindowOrg(int width, int height)
{
    return before<CPoint>(*this, [=](HDC dc, LPPOINT old) { ::OffsetWindowOrgEx(dc, width, height, old); });
}

CSize CDC::GetWindowExt() const
{
    CSize extent;
    ::GetWindowExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    return before<CSize>(*this, [=](HDC dc, LPSIZE old) { ::SetWindowExtEx(dc, cx, cy, old); });
}

CSize CDC::SetWindowExt(SIZE size)
{
    return SetWindowExt(size.cx, size.cy);
}

CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom)
{
    return before<CSize>(
        *this, [=](HDC dc, LPSIZE old) { ::ScaleWindowExtEx(dc, xNum, xDenom, yNum, yDenom, old); });
}

BOOL CDC::SetWorldTransform(const XFORM& transform)
{
    return inBoth(*this, [&](HDC dc) { return ::SetWorldTransform(dc, &transform); });
}

BOOL CDC::ModifyWorldTransform(const XFORM& transform, DWORD mode)
{
    return inBoth(*this, [&](HDC dc) { return ::ModifyWorldTransform(dc, &transform, mode); });
}

BOOL CDC::GetWorldTransform(XFORM& transform) const
{
    return ::GetWorldTransform(m_hAttribDC, &transform);
}

void CDC::DPtoLP(LPPOINT points, int count) const
{
    ::DPtoLP(m_hAttribDC, points, count);
}

void CDC::DPtoLP(LPRECT rect) const
{
    DPtoLP(reinterpret_cast<LPPOINT>(rect), 2);
}

void CDC::DPtoLP(LPSIZE size) const
{
    CRect rect(CPoint(0, 0), *size);
    DPtoLP(&rect);
    *size = CSize(std::abs(rect.Width()), std::abs(rect.Height()));
}

void CDC::LPtoDP(LPPOINT points, int count) const
{
    ::LPtoDP(m_hAttribDC, points, count);
}

void CDC::LPtoDP(LPRECT rect) const
{
    LPtoDP(reinterpret_cast<LPPOINT>(rect), 2);
}

void CDC::LPtoDP(LPSIZE size) const
{
    CRect rect(CPoint(0, 0), *size);
    LPtoDP(&rect);
    *size = CSize(std::abs(rect.Width()), std::abs(rect.Height()));
}

void CDC::DPtoHIMETRIC(LPSIZE size) const
{
    if (isMetric(m_hAttribDC)) {
        const HimetricScope himetric(m_hAttribDC);
        DPtoLP(size);
    } else {
        size->cx = ::MulDiv(size->cx, kHimetricPerInch, GetDeviceCaps(LOGPIXELSX));
        size->cy = ::MulDiv(size->cy, kHimetricPerInch, GetDeviceCaps(LOGPIXELSY));
    }
}

void CDC::HIMETRICtoDP(LPSIZE size) const
{
    if (isMetric(m_hAttribDC)) {
        const HimetricScope himetric(m_hAttribDC);
        LPtoDP(size);
    } else {
        size->cx = ::MulDiv(size->cx, GetDeviceCaps(LOGPIXELSX), kHimetricPerInch);
        size->cy = ::MulDiv(size->cy, GetDeviceCaps(LOGPIXELSY), kHimetricPerInch);
    }
}

void CDC::LPtoHIMETRIC(LPSIZE size) const
{
    LPtoDP(size);
    DPtoHIMETRIC(size);
}

void CDC::HIMETRICtoLP(LPSIZE size) const
{
    HIMETRICtoDP(size);
    DPtoLP(size);
}

int CDC::GetClipBox(LPRECT rect) const
{
    return ::GetClipBox(m_hAttribDC, rect);
}

int CDC::SelectClipRgn(CRgn* region)
{
    const HRGN clip = handleOf(region);
    return inBoth(*this, [clip](HDC dc) { return ::SelectClipRgn(dc, clip); });
}

int CDC::SelectClipRgn(CRgn* region, int mode)
{
    const HRGN clip = handleOf(region);
    return inBoth(*this, [=](HDC dc) { return ::ExtSelectClipRgn(dc, clip, mode); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2)
{
    return inBoth(*this, [=](HDC dc) { return ::ExcludeClipRect(dc, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(LPCRECT rect)
{
    return ExcludeClipRect(rect->left, rect->top, rect->right, rect->bottom);
}

int CDC::ExcludeUpdateRgn(CWnd* window)
{
    return ::ExcludeUpdateRgn(m_hDC, handleOf(window));
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2)
{
    return inBoth(*this, [=](HDC dc) { return ::IntersectClipRect(dc, x1, y1, x2, y2); });
}

int CDC::IntersectClipRect(LPCRECT rect)
{
    return IntersectClipRect(rect->left, rect->top, rect->right, rect->bottom);
}

int CDC::OffsetClipRgn(int x, int y)
{
    return inBoth(*this, [=](HDC dc) { return ::OffsetClipRgn(dc, x, y); });
}

int CDC::OffsetClipRgn(SIZE size)
{
    return OffsetClipRgn(size.cx, size.cy);
}

BOOL CDC::PtVisible(int x, int y) const
{
    return ::PtVisible(m_hAttribDC, x, y);
}

BOOL CDC::PtVisible(POINT point) const
{
    return PtVisible(point.x, point.y);
}

BOOL CDC::RectVisible(LPCRECT rect) const
{
    return ::RectVisible(m_hAttribDC, rect);
}

BOOL CDC::SelectClipPath(int mode)
{
    return ::SelectClipPath(m_hDC, mode);
}
