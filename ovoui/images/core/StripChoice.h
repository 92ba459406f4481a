/// Which strip of images suits a resolution. Plain values, no windows.
#pragma once

#include <cstddef>
#include <span>

namespace ovoui::images
{

inline constexpr int kUsualResolution = 96; // dots per inch

/// A length that is given in pixels at the usual resolution, rounded half away from zero.
int atResolution(int length, int dotsPerInch);

/// The index of the size to scale to `wanted`: the least one that is no smaller, else the largest. `sizes`
/// must not be empty.
std::size_t chooseStrip(std::span<const int> sizes, int wanted);

} // namespace ovoui::images
