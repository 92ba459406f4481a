#include "ImageStrip.h"

#include "Resolution.h"

#include <utility>

namespace
{

constexpr int kSize = 16;

std::pair<UINT, int> drawnFor(const ImageStrip& strip, int size)
{
    if (size <= 16)
        return {strip.at16, 16};
    return size <= 24 ? std::pair(strip.at24, 24) : std::pair(strip.at32, 32);
}

} // namespace

void createImages(CAlphaImageList& images, const ImageStrip& strip, HWND window)
{
    const int size = scaled(window, kSize);
    const auto [id, drawn] = drawnFor(strip, size);
    images.Create(size, size, 8);
    images.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
    images.AddBitmap(id, false, -1, CSize(drawn, drawn), CSize(size, size), nullptr, nullptr);
}
