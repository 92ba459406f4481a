// Internal: windows of floating bars. Plain values in screen pixels, no windows.
#pragma once

#include "dragrules.h"

namespace afxdetail
{

/// How much of a floating bar's title must lie in a work area so that it can be taken hold of.
inline constexpr int kReachable = 24;

/// Where a floating bar comes back: where it was, if its upper edge can be reached there, else the nearest
/// place in the nearest work area.
Place bringBack(Place topLeft, Extent size, std::span<const Area> workAreas);

/// Where a bar floats that was never floating: beside its place, towards the lower right.
Place firstFloatPlace(const Area& docked, int caption);

/// The edges of a window that its user moves.
struct MovedEdges
{
    bool left = false;
    bool top = false;
    bool right = false;
    bool bottom = false;

    bool horizontal() const { return left || right; }
};

/// A window that is being sized, with the edges that are moved at the pointer.
Area edgesAt(const Area& window, MovedEdges moved, Place pointer);

/// Gives a window that is being sized the size that its bar makes of it; the edges that are not moved stay.
Area snapped(const Area& wanted, MovedEdges moved, Extent size);

} // namespace afxdetail
