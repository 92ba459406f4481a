/// Where the swatches of the custom colours go. Plain values, no windows.
#pragma once

#include <ovoui/colour/core/PixelRect.h>

#include <array>

namespace ovoui::colour
{

constexpr int kSwatches = 18;

struct SwatchPlaces
{
    PixelRect area;       ///< where the swatches begin, and how much room their columns have
    PixelRect secondEdit; ///< of the value edits, from whose rows the swatches take theirs
    PixelRect thirdEdit;  ///< from which they take their size and right end
    int borderWidth = 1;  ///< of a window's border, by which the swatches are smaller than the edit
    int borderHeight = 1;
};

/// Two rows of nine, from the left. What the user sees of a swatch, and hits, is one pixel inside its
/// rectangle.
std::array<PixelRect, kSwatches> swatchRects(const SwatchPlaces& places);

} // namespace ovoui::colour
