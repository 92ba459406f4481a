#include <afxwin.h>

#include <detail/handleof.h>

using afxdetail::handleOf;

IMPLEMENT_DYNAMIC(CBrush, CGdiObject)

CBrush::CBrush() = default;

CBrush::CBrush(COLORREF colour)
{
    if (!CreateSolidBrush(colour))
        AfxThrowResourceException();
}

CBrush::CBrush(int hatch, COLORREF colour)
{
    if (!CreateHatchBrush(hatch, colour))
        AfxThrowResourceException();
}

CBrush::CBrush(CBitmap* bitmap)
{
    if (!CreatePatternBrush(bitmap))
        AfxThrowResourceException();
}

CBrush* PASCAL CBrush::FromHandle(HBRUSH brush)
{
    return static_cast<CBrush*>(CGdiObject::FromHandle(brush));
}

BOOL CBrush::CreateSolidBrush(COLORREF colour)
{
    return adopt(::CreateSolidBrush(colour));
}

BOOL CBrush::CreateHatchBrush(int hatch, COLORREF colour)
{
    return adopt(::CreateHatchBrush(hatch, colour));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* brush)
{
    return adopt(::CreateBrushIndirect(brush));
}

BOOL CBrush::CreatePatternBrush(CBitmap* bitmap)
{
    return adopt(::CreatePatternBrush(handleOf(bitmap)));
}

BOOL CBrush::CreateDIBPatternBrush(HGLOBAL packedDib, UINT usage)
{
    const void* bits = ::GlobalLock(packedDib);
    if (!bits)
        return FALSE;
    const BOOL created = CreateDIBPatternBrush(bits, usage);
    ::GlobalUnlock(packedDib);
    return created;
}

BOOL CBrush::CreateDIBPatternBrush(const void* packedDib, UINT usage)
{
    return adopt(::CreateDIBPatternBrushPt(packedDib, usage));
}

BOOL CBrush::CreateSysColorBrush(int index)
{
    return adopt(::GetSysColorBrush(index));
}

CBrush::operator HBRUSH() const
{
    return static_cast<HBRUSH>(m_hObject);
}

int CBrush::GetLogBrush(LOGBRUSH* brush)
{
    return GetObject(sizeof *brush, brush);
}
