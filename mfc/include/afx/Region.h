// CRgn: an area made of rectangles, ellipses and polygons.
#pragma once

#include <afx/GdiObject.h>

class CDC;

/// A GDI region. Functions of type int give NULLREGION, SIMPLEREGION, COMPLEXREGION or ERROR.
class OVOMFC_API CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn();

    /// As CGdiObject::FromHandle.
    static CRgn* PASCAL FromHandle(HRGN region);

    BOOL CreateRectRgn(int x1, int y1, int x2, int y2); ///< Right and bottom exclusive.
    BOOL CreateRectRgnIndirect(LPCRECT rect);
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2);
    BOOL CreateEllipticRgnIndirect(LPCRECT rect);
    BOOL CreatePolygonRgn(LPPOINT points, int count, int mode);
    BOOL CreatePolyPolygonRgn(LPPOINT points, LPINT polyCounts, int count, int polyFillMode);
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3);
    BOOL CreateFromPath(CDC* dc); ///< From the closed path of `dc`, in device units.
    BOOL CreateFromData(const XFORM* transform, int count, const RGNDATA* data);

    operator HRGN() const;
    void SetRectRgn(int x1, int y1, int x2, int y2);
    void SetRectRgn(LPCRECT rect);
    /// This region, which must exist, becomes the combination; both sources may be this region.
    int CombineRgn(CRgn* region1, CRgn* region2, int mode);
    int CopyRgn(CRgn* source);
    BOOL EqualRgn(CRgn* region) const;
    int OffsetRgn(int x, int y);
    int OffsetRgn(POINT point);
    int GetRgnBox(LPRECT rect) const;
    BOOL PtInRegion(int x, int y) const;
    BOOL PtInRegion(POINT point) const;
    BOOL RectInRegion(LPCRECT rect) const;
    /// Bytes needed when `data` is NULL, else bytes copied; 0 on failure.
    int GetRegionData(LPRGNDATA data, int size) const;
};
