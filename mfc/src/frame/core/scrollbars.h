// Internal: which scroll bars a view needs.
#pragma once

namespace afxdetail
{

struct ScrollExtent
{
    int width = 0;
    int height = 0;
    bool operator==(const ScrollExtent&) const = default;
};

/// The bars that are shown, and what is left of the window for the contents.
struct ScrollBars
{
    bool horizontal = false;
    bool vertical = false;
    ScrollExtent seen;
};

/// For contents of size `whole` in a window of size `window`, all in pixels. A vertical bar is
/// `thickness.width` wide, a horizontal one `thickness.height` high: one may make the other necessary.
ScrollBars neededBars(ScrollExtent whole, ScrollExtent window, ScrollExtent thickness);

/// The nearest position at which the contents fill the window as far as they can.
int scrollPosition(int wanted, int whole, int seen);

} // namespace afxdetail
