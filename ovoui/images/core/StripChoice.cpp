#include <ovoui/images/core/StripChoice.h>

namespace ovoui::images
{

int atResolution(int length, int dotsPerInch)
{
    const int half = length < 0 ? -kUsualResolution / 2 : kUsualResolution / 2;
    return (length * dotsPerInch + half) / kUsualResolution;
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
