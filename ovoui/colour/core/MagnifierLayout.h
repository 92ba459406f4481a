/// What the magnifier shows where. Plain values, no windows. Lengths in pixels.
#pragma once

#include <ovoui/frame/core/Placement.h>

namespace ovoui::colour
{

/// Pixels of the screen that are shown across and down; odd, so that one is in the middle.
inline constexpr int kMagnified = 15;

/// From the point to the window: more than half of the pixels shown, and clear of the pointer.
inline constexpr int kMagnifierGap = 24;
static_assert(kMagnifierGap > kMagnified / 2);

/// The place of the first pixel that is shown when `middle` is the one in the middle, across or down.
constexpr int firstMagnified(int middle)
{
    return middle - kMagnified / 2;
}

struct MagnifierLayout
{
    frame::Box window;
    frame::Box pixels; ///< enlarged
    frame::Box mark;   ///< around the one in the middle: two frames, of one pixel each
    frame::Box swatch; ///< of the colour, below the pixels
    frame::Box code;   ///< the text beside it
};

/// The window's upper left corner is the origin.
MagnifierLayout layOutMagnifier(int dotsPerInch, int fontHeight);

} // namespace ovoui::colour
