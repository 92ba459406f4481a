#include <ovoui/images/core/StripPixels.h>

#include <algorithm>

namespace ovoui::images
{

StripPixels upperLeftOf(std::span<const std::uint32_t> picture, int width, const ImageSize& image, int images)
{
    StripPixels strip(image, images);
    auto to = strip.pixels.begin();
    for (int y = 0; y < image.height; ++y)
        to = std::copy_n(picture.begin() + static_cast<std::ptrdiff_t>(y) * width, strip.width(), to);
    return strip;
}

} // namespace ovoui::images
