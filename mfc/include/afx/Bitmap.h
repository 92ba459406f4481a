// CBitmap: a picture that a memory device context draws into or from.
#pragma once

#include <afx/GdiObject.h>

class CDC;

/// A GDI bitmap. What is loaded by name or id is looked for along the resource chain.
class OVOMFC_API CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap();

    /// As CGdiObject::FromHandle.
    static CBitmap* PASCAL FromHandle(HBITMAP bitmap);

    BOOL LoadBitmap(LPCTSTR resourceName);
    BOOL LoadBitmap(UINT resourceId);
    BOOL LoadOEMBitmap(UINT id); ///< One of the system's OBM_ bitmaps.
    /// Loads a bitmap and replaces its grey shades by the present button colours, or the colours of `map`.
    BOOL LoadMappedBitmap(UINT resourceId, UINT flags = 0, LPCOLORMAP map = nullptr, int mapSize = 0);
    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitCount, const void* bits);
    BOOL CreateBitmapIndirect(LPBITMAP bitmap);
    BOOL CreateCompatibleBitmap(CDC* dc, int width, int height);
    BOOL CreateDiscardableBitmap(CDC* dc, int width, int height);

    operator HBITMAP() const;
    int GetBitmap(BITMAP* bitmap);                       ///< Bytes copied, 0 on failure.
    DWORD SetBitmapBits(DWORD count, const void* bits);  ///< Bytes used, 0 on failure.
    DWORD GetBitmapBits(DWORD count, LPVOID bits) const; ///< Bytes copied, 0 on failure.
    /// The dimension is free for the caller's use, in tenths of a millimetre by convention.
    CSize SetBitmapDimension(int width, int height); ///< Gives the dimension of before.
    CSize GetBitmapDimension() const;
};
