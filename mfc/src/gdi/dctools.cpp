// CDC: drawing tools and attributes.
#include <afxwin.h>

#include <detail/handleof.h>

#include "bothdcs.h"

using afxdetail::handleOf;
using afxdetail::inBoth;

namespace
{

/// Selects a tool in both contexts and gives the one of before.
template <class Tool>
Tool* select(const CDC& dc, const Tool* tool)
{
    const HGDIOBJ object = handleOf(static_cast<const CGdiObject*>(tool));
    return static_cast<Tool*>(
        CGdiObject::FromHandle(inBoth(dc, [object](HDC handle) { return ::SelectObject(handle, object); })));
}

template <class Tool>
Tool* current(const CDC& dc, UINT type)
{
    return static_cast<Tool*>(CGdiObject::FromHandle(::GetCurrentObject(dc.m_hAttribDC, type)));
}

} // namespace

CGdiObject* CDC::SelectStockObject(int index)
{
    const HGDIOBJ object = ::GetStockObject(index);
    return CGdiObject::FromHandle(inBoth(*this, [object](HDC dc) { return ::SelectObject(dc, object); }));
}

CPen* CDC::SelectObject(CPen* pen)
{
    return select(*this, pen);
}

CBrush* CDC::SelectObject(CBrush* brush)
{
    return select(*this, brush);
}

CFont* CDC::SelectObject(CFont* font)
{
    return select(*this, font);
}

CBitmap* CDC::SelectObject(CBitmap* bitmap)
{
    // A bitmap can be in one context at a time.
    return CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, handleOf(bitmap))));
}

int CDC::SelectObject(CRgn* region)
{
    return SelectClipRgn(region);
}

CGdiObject* CDC::SelectObject(CGdiObject* object)
{
    ASSERT(!object || object->GetObjectType() != OBJ_REGION); // a region has no predecessor to give
    return select(*this, object);
}

CPalette* CDC::SelectPalette(CPalette* palette, BOOL forceBackground)
{
    return CPalette::FromHandle(::SelectPalette(m_hDC, handleOf(palette), forceBackground));
}

UINT CDC::RealizePalette()
{
    return ::RealizePalette(m_hDC);
}

void CDC::UpdateColors()
{
    ::UpdateColors(m_hDC);
}

CPen* CDC::GetCurrentPen() const
{
    return current<CPen>(*this, OBJ_PEN);
}

CBrush* CDC::GetCurrentBrush() const
{
    return current<CBrush>(*this, OBJ_BRUSH);
}

CPalette* CDC::GetCurrentPalette() const
{
    return current<CPalette>(*this, OBJ_PAL);
}

CFont* CDC::GetCurrentFont() const
{
    return current<CFont>(*this, OBJ_FONT);
}

CBitmap* CDC::GetCurrentBitmap() const
{
    return current<CBitmap>(*this, OBJ_BITMAP);
}

int CDC::EnumObjects(int type, int(CALLBACK* callback)(LPVOID, LPARAM), LPARAM data)
{
    return ::EnumObjects(m_hAttribDC, type, callback, data);
}

CBrush* PASCAL CDC::GetHalftoneBrush()
{
    static const HBRUSH brush = [] {
        const WORD rows[] = {0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA};
        const HBITMAP pattern = ::CreateBitmap(8, 8, 1, 1, rows);
        const HBRUSH made = ::CreatePatternBrush(pattern);
        ::DeleteObject(pattern);
        return made;
    }();
    return CBrush::FromHandle(brush);
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
    return inBoth(*this, [colour](HDC dc) { return ::SetBkColor(dc, colour); });
}

int CDC::GetBkMode() const
{
    return ::GetBkMode(m_hAttribDC);
}

int CDC::SetBkMode(int mode)
{
    return inBoth(*this, [mode](HDC dc) { return ::SetBkMode(dc, mode); });
}

COLORREF CDC::GetTextColor() const
{
    return ::GetTextColor(m_hAttribDC);
}

COLORREF CDC::SetTextColor(COLORREF colour)
{
    return inBoth(*this, [colour](HDC dc) { return ::SetTextColor(dc, colour); });
}

COLORREF CDC::GetDCBrushColor() const
{
    return ::GetDCBrushColor(m_hAttribDC);
}

COLORREF CDC::SetDCBrushColor(COLORREF colour)
{
    return inBoth(*this, [colour](HDC dc) { return ::SetDCBrushColor(dc, colour); });
}

COLORREF CDC::GetDCPenColor() const
{
    return ::GetDCPenColor(m_hAttribDC);
}

COLORREF CDC::SetDCPenColor(COLORREF colour)
{
    return inBoth(*this, [colour](HDC dc) { return ::SetDCPenColor(dc, colour); });
}

int CDC::GetPolyFillMode() const
{
    return ::GetPolyFillMode(m_hAttribDC);
}

int CDC::SetPolyFillMode(int mode)
{
    return inBoth(*this, [mode](HDC dc) { return ::SetPolyFillMode(dc, mode); });
}

int CDC::GetROP2() const
{
    return ::GetROP2(m_hAttribDC);
}

int CDC::SetROP2(int mode)
{
    return inBoth(*this, [mode](HDC dc) { return ::SetROP2(dc, mode); });
}

int CDC::GetStretchBltMode() const
{
    return ::GetStretchBltMode(m_hAttribDC);
}

int CDC::SetStretchBltMode(int mode)
{
    return inBoth(*this, [mode](HDC dc) { return ::SetStretchBltMode(dc, mode); });
}

CPoint CDC::GetBrushOrg() const
{
    CPoint origin;
    ::GetBrushOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    CPoint before;
    ::SetBrushOrgEx(m_hDC, x, y, &before);
    return before;
}

CPoint CDC::SetBrushOrg(POINT point)
{
    return SetBrushOrg(point.x, point.y);
}

BOOL CDC::GetColorAdjustment(LPCOLORADJUSTMENT adjustment) const
{
    return ::GetColorAdjustment(m_hAttribDC, adjustment);
}

BOOL CDC::SetColorAdjustment(const COLORADJUSTMENT* adjustment)
{
    return inBoth(*this, [adjustment](HDC dc) { return ::SetColorAdjustment(dc, adjustment); });
}
