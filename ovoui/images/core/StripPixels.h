/// A strip in memory. Plain values, no windows.
#pragma once

#include <ovoui/images/core/SharpenFilter.h>
#include <ovoui/images/core/StripRules.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ovoui::images
{

/// Images of one size side by side. A pixel is 0xAARRGGBB with colours that are not premultiplied; rows run
/// from the top. Both lengths of `image` are positive.
struct StripPixels
{
    StripPixels(const ImageSize& size, int images)
        : image(size)
        , count(images)
        , pixels(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(images) *
                 static_cast<std::size_t>(size.height))
    {
    }

    int width() const { return image.width * count; }

    /// One image, to be changed in place.
    PixelBlock block(int index)
    {
        return {pixels.data() + static_cast<std::ptrdiff_t>(index) * image.width, image.width, image.height,
                width()};
    }

    ImageSize image; ///< in pixels
    int count;       ///< how many images
    std::vector<std::uint32_t> pixels;
};

/// The strip of so many images that lies in the upper left corner of a picture. The picture's rows are
/// `width` pixels long, no shorter than the strip's, and it has no fewer of them.
StripPixels upperLeftOf(std::span<const std::uint32_t> picture, int width, const ImageSize& image,
                        int images);

} // namespace ovoui::images
