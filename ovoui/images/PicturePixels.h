/// Not exported: the pixels of pictures of GDI+.
#pragma once

#include <windows.h>

#include <objidl.h> // before the next one, which relies on it
#include <gdiplus.h>

namespace ovoui::images
{

/// Copies the upper left part of a picture, `width` by `height` pixels, row by row from the top, to where
/// there is room for it. A pixel has 32 bits and is not premultiplied. False when the picture does not give
/// them.
inline bool copyPixels(Gdiplus::Bitmap& picture, int width, int height, void* to)
{
    Gdiplus::BitmapData data{};
    data.Width = static_cast<UINT>(width);
    data.Height = static_cast<UINT>(height);
    data.Stride = static_cast<INT>(data.Width * sizeof(Gdiplus::ARGB));
    data.PixelFormat = PixelFormat32bppARGB;
    data.Scan0 = to;
    const Gdiplus::Rect part(0, 0, width, height);
    constexpr UINT kMode = Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeUserInputBuf;
    if (picture.LockBits(&part, kMode, PixelFormat32bppARGB, &data) != Gdiplus::Ok)
        return false;
    picture.UnlockBits(&data);
    return true;
}

} // namespace ovoui::images
