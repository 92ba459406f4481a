/// The band that the mouse draws over rows to select them. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/Placement.h>

namespace ovoui::tree
{

/// A place in the tree, in pixels. It moves along when the tree scrolls.
struct ContentPoint
{
    int x = 0;
    int y = 0;

    friend bool operator==(const ContentPoint&, const ContentPoint&) = default;
};

/// How far the tree has scrolled, in pixels.
struct ScrolledBy
{
    int x = 0;
    int y = 0;
};

/// The frame from where the band began to the pointer, in client coordinates. It has a width and a height of
/// one at least.
frame::Box bandFrame(const ContentPoint& begin, const ContentPoint& pointer, const ScrolledBy& scrolled);

/// How many rows to scroll by when the pointer is at `y` beside a client area of this height: negative for
/// up, 0 inside, more the farther away it is.
int rowsToScroll(int y, int height, int rowHeight);

/// Whether an item is selected while a band is drawn.
constexpr bool selectedByBand(bool selectedBefore, bool inBand, bool ctrl)
{
    return ctrl ? selectedBefore != inBand : inBand;
}

} // namespace ovoui::tree
