/// How large a picture may be. Plain values, no windows.
#pragma once

#include <cstdint>
#include <limits>

namespace ovoui::images
{

/// Whether a picture of 32 bits a pixel can be had at this size. The platform counts the bytes of a row and
/// of a whole picture in 32 bits, so a larger one would be taken for a small one.
constexpr bool isPictureSize(std::int64_t width, std::int64_t height)
{
    constexpr std::int64_t kMostPixels = std::numeric_limits<std::int32_t>::max() / 4;
    return width > 0 && height > 0 && width <= kMostPixels / height;
}

} // namespace ovoui::images
