// CPalette: the colour table of a palette device.
#pragma once

#include <afx/GdiObject.h>

class CDC;

/// A GDI palette. Counts are 0 on failure.
class OVOMFC_API CPalette : public CGdiObject
{
    DECLARE_DYNAMIC(CPalette)

public:
    CPalette();

    /// As CGdiObject::FromHandle.
    static CPalette* PASCAL FromHandle(HPALETTE palette);

    BOOL CreatePalette(LPLOGPALETTE palette);
    BOOL CreateHalftonePalette(CDC* dc);

    operator HPALETTE() const;
    int GetEntryCount();
    UINT GetPaletteEntries(UINT start, UINT count, LPPALETTEENTRY colours) const;
    UINT SetPaletteEntries(UINT start, UINT count, LPPALETTEENTRY colours);
    void AnimatePalette(UINT start, UINT count, LPPALETTEENTRY colours);
    UINT GetNearestPaletteIndex(COLORREF colour) const;
    BOOL ResizePalette(UINT count);
};
