// CPen: the tool that draws lines.
#pragma once

#include <afx/GdiObject.h>

/// A GDI pen. The constructors with arguments throw CResourceException when the system gives no pen.
class OVOMFC_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)

public:
    CPen();
    CPen(int style, int width, COLORREF colour);
    CPen(int style, int width, const LOGBRUSH* brush, int styleCount = 0, const DWORD* styles = nullptr);

    /// As CGdiObject::FromHandle.
    static CPen* PASCAL FromHandle(HPEN pen);

    /// `width` in logical units, 0 for one pixel. FALSE on failure, like all Create functions.
    BOOL CreatePen(int style, int width, COLORREF colour);
    /// A geometric or cosmetic pen; `styles` are the lengths of dashes and gaps of a PS_USERSTYLE pen.
    BOOL CreatePen(int style, int width, const LOGBRUSH* brush, int styleCount = 0,
                   const DWORD* styles = nullptr);
    BOOL CreatePenIndirect(LPLOGPEN pen);

    operator HPEN() const;
    int GetLogPen(LOGPEN* pen);       ///< Bytes copied, 0 on failure.
    int GetExtLogPen(EXTLOGPEN* pen); ///< Bytes copied, 0 on failure; `pen` has room for the dash lengths.
};
