#include <ovoui/images/core/StripChoice.h>

namespace ovoui::images
{

std::optional<int> sizeAfterChange(int dotsPerInch, const LoadedImages& images)
{
    if (dotsPerInch == 0)
        return images.byColours ? std::optional(images.size) : std::nullopt;
    const int size = atResolution(images.usualSize, dotsPerInch);
    return size != images.size ? std::optional(size) : std::nullopt;
}

std::size_t chooseStrip(std::span<const int> sizes, int wanted)
{
    const auto isBetter = [wanted](int one, int other) {
        const bool oneSuffices = one >= wanted;
        if (oneSuffices != (other >= wanted))
            return oneSuffices;
        return oneSuffices ? one < other : one > other;
    };
    std::size_t best = 0;
    for (std::size_t i = 1; i < sizes.size(); ++i)
        if (isBetter(sizes[i], sizes[best]))
            best = i;
    return best;
}

} // namespace ovoui::images
