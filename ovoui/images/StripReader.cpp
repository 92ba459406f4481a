#include <ovoui/images/StripReader.h>

#include <ovoui/frame/MemoryBitmap.h>
#include <ovoui/frame/ScreenDc.h>
#include <ovoui/images/PicturePixels.h>
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
    if (!copyPixels(bitmap, width, height, pixels.data()))
        return {};
    return pixels;
}

/// The bits of the whole images of a strip without alpha, side by side. Empty when they cannot be had.
Pixels bitsWithAlpha(const Strip& strip, int size, int count)
{
    const SIZE same{size, size};
    const StripPainter painter(strip, same, same, Gdiplus::InterpolationModeNearestNeighbor, true);
    const std::unique_ptr<Gdiplus::Bitmap> painted = painter.paint(-1, nullptr);
    return painted ? bitsOf(*painted, size * count, size) : Pixels{};
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
    const int count = wholeImages(size, strip.facts.bmWidth, strip.facts.bmHeight);
    if (count == 0)
        return std::nullopt;
    const int width = strip.hasAlpha() ? strip.facts.bmWidth : size * count;
    const Pixels picture = strip.hasAlpha() ? bitsOf(strip.bitmap, width, strip.facts.bmHeight)
                                            : bitsWithAlpha(strip, size, count);
    if (picture.empty())
        return std::nullopt;
    return upperLeftOf(picture, width, {size, size}, count);
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
