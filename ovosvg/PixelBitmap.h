/// Not exported: a bitmap in the making.
#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <type_traits>

namespace ovosvg
{

/// A top-down DIB section of 32 bits a pixel, which goes with the object unless it is handed over.
class PixelBitmap
{
public:
    /// `width` by `height` pixels, all 0.
    PixelBitmap(int width, int height);

    /// Rows from the top, without gaps; null when the bitmap could not be made.
    std::uint32_t* pixels() const { return m_pixels; }

    /// The caller owns the bitmap from now on. Null when it could not be made.
    HBITMAP release() { return m_bitmap.release(); }

private:
    struct Delete
    {
        void operator()(HBITMAP bitmap) const { ::DeleteObject(bitmap); }
    };

    std::unique_ptr<std::remove_pointer_t<HBITMAP>, Delete> m_bitmap;
    std::uint32_t* m_pixels = nullptr;
};

} // namespace ovosvg
