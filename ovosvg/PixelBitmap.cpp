#include <ovosvg/PixelBitmap.h>

namespace ovosvg
{

PixelBitmap::PixelBitmap(int width, int height)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    m_bitmap.reset(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (m_bitmap)
        m_pixels = static_cast<std::uint32_t*>(bits);
}

} // namespace ovosvg
