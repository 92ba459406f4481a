#include <ovoui/images/StripReader.h>

#include <ovoui/frame/MemoryBitmap.h>
#include <ovoui/frame/ScreenDc.h>
#include <ovoui/images/core/DisabledPixels.h>
#include <ovoui/images/core/PictureSize.h>

#include <algorithm>

namespace ovoui::images
{

namespace
{

using Pixels = std::vector<std::uint32_t>;

/// The bits of a DIB of 32 bits, whichever way up it is stored. Empty when they cannot be had.
Pixels bitsOf(HBITMAP bitmap, int width, int height)
{
    Pixels pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    BITMAPINFO info = frame::topDownInfo(width, height);
    const frame::ScreenDc screen;
    const int rows =
        ::GetDIBits(screen.get(), bitmap, 0, static_cast<UINT>(height), pixels.data(), &info, DIB_RGB_COLORS);
    return rows == height ? pixels : Pixels{};
}

/// The bits of a picture of GDI+. Empty when they cannot be had.
Pixels bitsOf(Gdiplus::Bitmap& bitmap, int width, int height)
{
    Pixels pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    Gdiplus::BitmapData data{};
    data.Width = static_cast<UINT>(width);
    data.Height = static_cast<UINT>(height);
    data.Stride = static_cast<INT>(data.Width * sizeof pixels[0]);
    data.PixelFormat = PixelFormat32bppARGB;
    data.Scan0 = pixels.data();
    const Gdiplus::Rect all(0, 0, width, height);
    constexpr UINT kMode = Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeUserInputBuf;
    if (bitmap.LockBits(&all, kMode, PixelFormat32bppARGB, &data) != Gdiplus::Ok)
        return {};
    bitmap.UnlockBits(&data);
    return pixels;
}

/// The upper left part of a picture that is `width` pixels wide, as the strip's pixels.
void takePart(const Pixels& picture, int width, StripPixels& strip)
{
    auto to = strip.pixels.begin();
    for (int y = 0; y < strip.image.height; ++y)
        to = std::copy_n(picture.begin() + static_cast<std::ptrdiff_t>(y) * width, strip.width(), to);
}

COLORREF exchanged(COLORREF colour)
{
    return RGB(GetBValue(colour), GetGValue(colour), GetRValue(colour));
}

bool isHighContrast()
{
    HIGHCONTRASTW scheme{};
    scheme.cbSize = sizeof scheme;
    return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof scheme, &scheme, 0) &&
           (scheme.dwFlags & HCF_HIGHCONTRASTON);
}

} // namespace

std::optional<StripPixels> pixelsOf(const Strip& strip, int size)
{
    const int count = size > 0 && strip.facts.bmHeight >= size ? strip.count(size) : 0;
    if (count == 0)
        return std::nullopt;
    StripPixels result({size, size}, count);
    int width = strip.facts.bmWidth;
    Pixels picture;
    if (strip.hasAlpha()) {
        picture = bitsOf(strip.bitmap, width, strip.facts.bmHeight);
    } else {
        const SIZE same{size, size};
        const StripPainter painter(strip, same, same, Gdiplus::InterpolationModeNearestNeighbor, true);
        width = result.width();
        if (const auto painted = painter.paint(-1, nullptr))
            picture = bitsOf(*painted, width, size);
    }
    if (picture.empty())
        return std::nullopt;
    takePart(picture, width, result);
    return result;
}

UniqueBitmap bitmapOf(const StripPixels& pixels)
{
    if (!isPictureSize(pixels.width(), pixels.image.height))
        return nullptr;
    const BITMAPINFO info = frame::topDownInfo(pixels.width(), pixels.image.height);
    void* bits = nullptr;
    UniqueBitmap bitmap(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (bitmap)
        std::copy(pixels.pixels.begin(), pixels.pixels.end(), static_cast<std::uint32_t*>(bits));
    return bitmap;
}

void disable(StripPixels& pixels)
{
    const bool contrast = isHighContrast();
    const ContrastColours colours{exchanged(::GetSysColor(COLOR_GRAYTEXT)),
                                  exchanged(::GetSysColor(COLOR_BTNFACE))};
    for (int i = 0; i < pixels.count; ++i) {
        if (contrast)
            disable(pixels.block(i), colours);
        else
            disable(pixels.block(i));
    }
}

} // namespace ovoui::images
