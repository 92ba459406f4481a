// CFont: the typeface that text is drawn in.
#pragma once

#include <afx/GdiObject.h>

class CDC;

/// A GDI font.
class OVOMFC_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

public:
    CFont();

    /// As CGdiObject::FromHandle.
    static CFont* PASCAL FromHandle(HFONT font);

    BOOL CreateFontIndirect(const LOGFONT* font);
    BOOL CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic,
                    BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision,
                    BYTE quality, BYTE pitchAndFamily, LPCTSTR faceName);
    /// `pointSize` in tenths of a point, measured on `dc` or, without one, on the screen.
    BOOL CreatePointFont(int pointSize, LPCTSTR faceName, CDC* dc = nullptr);
    /// As CreatePointFont: lfHeight holds tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* font, CDC* dc = nullptr);

    operator HFONT() const;
    int GetLogFont(LOGFONT* font); ///< Bytes copied, 0 on failure.
};
