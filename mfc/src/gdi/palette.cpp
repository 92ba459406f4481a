#include <afxwin.h>

#include <detail/handleof.h>

using afxdetail::handleOf;

IMPLEMENT_DYNAMIC(CPalette, CGdiObject)

CPalette::CPalette() = default;

CPalette* PASCAL CPalette::FromHandle(HPALETTE palette)
{
    return static_cast<CPalette*>(CGdiObject::FromHandle(palette));
}

BOOL CPalette::CreatePalette(LPLOGPALETTE palette)
{
    return adopt(::CreatePalette(palette));
}

BOOL CPalette::CreateHalftonePalette(CDC* dc)
{
    return adopt(::CreateHalftonePalette(handleOf(dc)));
}

CPalette::operator HPALETTE() const
{
    return static_cast<HPALETTE>(m_hObject);
}

int CPalette::GetEntryCount()
{
    WORD count = 0;
    GetObject(sizeof count, &count);
    return count;
}

UINT CPalette::GetPaletteEntries(UINT start, UINT count, LPPALETTEENTRY colours) const
{
    return ::GetPaletteEntries(*this, start, count, colours);
}

UINT CPalette::SetPaletteEntries(UINT start, UINT count, LPPALETTEENTRY colours)
{
    return ::SetPaletteEntries(*this, start, count, colours);
}

void CPalette::AnimatePalette(UINT start, UINT count, LPPALETTEENTRY colours)
{
    ::AnimatePalette(*this, start, count, colours);
}

UINT CPalette::GetNearestPaletteIndex(COLORREF colour) const
{
    return ::GetNearestPaletteIndex(*this, colour);
}

BOOL CPalette::ResizePalette(UINT count)
{
    return ::ResizePalette(*this, count);
}
