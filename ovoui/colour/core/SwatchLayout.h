/// Where the swatches of the custom colours go. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/Placement.h>

#include <array>

namespace ovoui::colour
{

constexpr int kSwatches = 18;

struct SwatchPlaces
{
    frame::Box area;       ///< where the swatches begin, and how much room their columns have
    frame::Box secondEdit; ///< of the value edits, from whose rows the swatches take theirs
    frame::Box thirdEdit;  ///< from which they take their size and right end
    int borderWidth = 1;   ///< of a window's border, by which the swatches are smaller than the edit
    int borderHeight = 1;
};

/// Two rows of nine, from the left. What the user sees of a swatch, and hits, is one pixel inside its
/// rectangle.
std::array<frame::Box, kSwatches> swatchRects(const SwatchPlaces& places);

} // namespace ovoui::colour
