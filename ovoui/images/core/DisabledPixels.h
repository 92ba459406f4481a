/// What an image looks like when what it stands for cannot be used. Plain values, no windows.
#pragma once

#include <ovoui/images/core/SharpenFilter.h>

#include <cstdint>

namespace ovoui::images
{

/// How light a colour looks, 0 to 255: 0.2126 red + 0.7152 green + 0.0722 blue, rounded half up. The weights
/// are those of Recommendation ITU-R BT.709, applied to the values as they are stored. The top byte of
/// `pixel` is left out.
std::uint32_t lightness(std::uint32_t pixel);

/// The system's colours under a scheme of high contrast, as 0xRRGGBB.
struct ContrastColours
{
    std::uint32_t text;   ///< of what is disabled
    std::uint32_t ground; ///< behind it
};

/// Makes every pixel the grey of its lightness, at half its alpha, rounded half up.
void disable(const PixelBlock& image);

/// The same for schemes of high contrast, under which a faint grey could not be seen: the alpha stays, the
/// darkest colour of the image becomes that of disabled text, and the lightest one lies three fifths of the
/// way to the ground. Others lie between, by their lightness. An image of a single colour is in that of the
/// text. Pixels with less than half the full alpha do not count for the darkest and the lightest.
void disable(const PixelBlock& image, const ContrastColours& colours);

} // namespace ovoui::images
