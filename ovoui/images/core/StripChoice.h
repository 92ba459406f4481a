/// Which strip of images suits a resolution. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/Scaling.h>

#include <cstddef>
#include <optional>
#include <span>

namespace ovoui::images
{

/// A length that is given in pixels at the usual resolution, rounded half away from zero.
constexpr int atResolution(int length, int dotsPerInch)
{
    return frame::scaledTo(dotsPerInch, length);
}

/// Images that are loaded for a window.
struct LoadedImages
{
    int usualSize = 0;      ///< in pixels at the usual resolution
    int size = 0;           ///< as they are
    bool byColours = false; ///< they change with the system's colours
};

/// The size to load them in when the window's resolution, or with 0 the system's colours, have changed; none
/// when they stay.
std::optional<int> sizeAfterChange(int dotsPerInch, const LoadedImages& images);

/// The index of the size to scale to `wanted`: the least one that is no smaller, else the largest. `sizes`
/// must not be empty.
std::size_t chooseStrip(std::span<const int> sizes, int wanted);

} // namespace ovoui::images
