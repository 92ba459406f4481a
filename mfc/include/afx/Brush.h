// CBrush: the tool that fills areas.
#pragma once

#include <afx/GdiObject.h>

class CBitmap;

/// A GDI brush. The constructors with arguments throw CResourceException when the system gives no brush.
class OVOMFC_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush();
    CBrush(COLORREF colour);
    CBrush(int hatch, COLORREF colour); ///< `hatch` is one of the HS_ styles.
    explicit CBrush(CBitmap* bitmap);   ///< Pattern brush; the bitmap may be deleted afterwards.

    /// As CGdiObject::FromHandle.
    static CBrush* PASCAL FromHandle(HBRUSH brush);

    BOOL CreateSolidBrush(COLORREF colour);
    BOOL CreateHatchBrush(int hatch, COLORREF colour);
    BOOL CreateBrushIndirect(const LOGBRUSH* brush);
    BOOL CreatePatternBrush(CBitmap* bitmap);
    /// Pattern from a packed DIB (header, colour table, bits in one block), which is read at once.
    /// `usage` is DIB_RGB_COLORS or DIB_PAL_COLORS.
    BOOL CreateDIBPatternBrush(HGLOBAL packedDib, UINT usage);
    BOOL CreateDIBPatternBrush(const void* packedDib, UINT usage);
    /// The system's own brush of a COLOR_ index; deleting it has no effect.
    BOOL CreateSysColorBrush(int index);

    operator HBRUSH() const;
    int GetLogBrush(LOGBRUSH* brush); ///< Bytes copied, 0 on failure.
};
