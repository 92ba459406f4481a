#include <ovoui/lists/core/EntryColours.h>

namespace ovoui::lists
{

namespace
{

constexpr std::uint32_t kPaletteRelative = 0x02000000;
constexpr std::uint32_t kColourBits = 0x00FFFFFF;
constexpr std::uint32_t kOpaque = 255;
constexpr std::uint32_t kBrightEnough = 1189; // of the 2295 that white has

std::uint32_t red(ColourEntry entry)
{
    return entry & 0xFF;
}

std::uint32_t green(ColourEntry entry)
{
    return (entry >> 8) & 0xFF;
}

std::uint32_t blue(ColourEntry entry)
{
    return (entry >> 16) & 0xFF;
}

template <class Blend>
std::uint32_t eachChannel(ColourEntry entry, Blend blend)
{
    return kPaletteRelative | blend(red(entry)) | blend(green(entry)) << 8 | blend(blue(entry)) << 16;
}

} // namespace

EntryColours coloursOf(ColourEntry entry)
{
    const std::uint32_t alpha = entry >> 24;
    const std::uint32_t solid = (entry & kColourBits) | kPaletteRelative;
    const bool bright = blue(entry) + 5 * green(entry) + 3 * red(entry) >= kBrightEnough;
    const std::uint32_t text = kPaletteRelative | (bright ? 0 : kColourBits);
    if (alpha == kOpaque)
        return {solid, solid, solid, text};
    return {
        solid, eachChannel(entry, [alpha](std::uint32_t channel) { return channel * alpha / 255; }),
        eachChannel(entry, [alpha](std::uint32_t channel) { return 255 - (255 - channel) * alpha / 255; }),
        text};
}

} // namespace ovoui::lists
