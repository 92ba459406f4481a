#include <ovoui/images/core/DisabledPixels.h>

#include <algorithm>

namespace ovoui::images
{

namespace
{

constexpr std::uint32_t kHalfAlpha = 0x80;
// How far the lightest colour goes towards the ground.
constexpr std::uint32_t kShare = 3;
constexpr std::uint32_t kOf = 5;

std::uint32_t alphaOf(std::uint32_t pixel)
{
    return pixel >> 24;
}

template <class Change>
void forEachPixel(const PixelBlock& image, const Change& change)
{
    for (int y = 0; y < image.height; ++y) {
        std::uint32_t* const row = image.pixels + y * image.stride;
        std::for_each(row, row + image.width, change);
    }
}

/// The lightness of what can be seen well.
struct LightnessRange
{
    std::uint32_t darkest = 255;
    std::uint32_t lightest = 0;

    void add(std::uint32_t pixel)
    {
        if (alphaOf(pixel) < kHalfAlpha)
            return;
        darkest = std::min(darkest, lightness(pixel));
        lightest = std::max(lightest, lightness(pixel));
    }

    std::uint32_t length() const { return lightest > darkest ? lightest - darkest : 0; }
    std::uint32_t above(std::uint32_t pixel) const
    {
        return std::clamp(lightness(pixel), darkest, darkest + length()) - darkest;
    }
};

/// A colour at `part` of `whole` on the way between two, each channel rounded half up.
std::uint32_t between(std::uint32_t from, std::uint32_t to, std::uint32_t part, std::uint32_t whole)
{
    std::uint32_t mixed = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const std::uint32_t a = (from >> shift) & 0xFF;
        const std::uint32_t b = (to >> shift) & 0xFF;
        mixed |= (a * (whole - part) + b * part + whole / 2) / whole << shift;
    }
    return mixed;
}

} // namespace

std::uint32_t lightness(std::uint32_t pixel)
{
    return (2126 * ((pixel >> 16) & 0xFF) + 7152 * ((pixel >> 8) & 0xFF) + 722 * (pixel & 0xFF) + 5000) /
           10000;
}

void disable(const PixelBlock& image)
{
    forEachPixel(image, [](std::uint32_t& pixel) {
        pixel = (alphaOf(pixel) + 1) / 2 << 24 | lightness(pixel) * 0x010101u;
    });
}

void disable(const PixelBlock& image, const ContrastColours& colours)
{
    LightnessRange range;
    forEachPixel(image, [&range](std::uint32_t pixel) { range.add(pixel); });
    const std::uint32_t length = range.length();
    forEachPixel(image, [&](std::uint32_t& pixel) {
        const std::uint32_t colour =
            length == 0 ? colours.text
                        : between(colours.text, colours.ground, kShare * range.above(pixel), kOf * length);
        pixel = alphaOf(pixel) << 24 | (colour & 0xFFFFFF);
    });
}

} // namespace ovoui::images
