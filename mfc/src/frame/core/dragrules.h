// Internal: what a bar that is dragged looks like, and where it would go. Plain values in screen pixels, no
// windows.
#pragma once

#include "barlayout.h"

#include <optional>
#include <span>

namespace afxdetail
{

struct Place
{
    int x = 0;
    int y = 0;

    bool operator==(const Place&) const = default;
};

/// A side of the frame that the bar may be docked to. Where no bar is docked its area has no depth.
struct DockStrip
{
    Side side = Side::Top;
    Area area;
};

/// The bar that is dragged: where it was taken hold of, and its sizes in each state.
struct DraggedBar
{
    Area from;  ///< it, or the window that it floats in
    Place grab; ///< where the button was pressed
    Extent horizontal;
    Extent vertical;
    Extent floating;      ///< with its caption and borders
    Extent floatingOther; ///< floating in the other direction
};

struct DragKeys
{
    bool control = false; ///< it shall not dock
    bool shift = false;   ///< it shall float in the other direction
};

struct DragTarget
{
    Area area;
    std::optional<std::size_t> strip; ///< where it would dock; none: it would float
    bool turned = false;              ///< it would float in the other direction
};

/// A rectangle of another size under the pointer, held where `from` is held: as far from the nearer end in
/// each direction, if it is so large.
Area heldAt(const Area& from, Place grab, Extent size, Place pointer);

/// Where a bar with the pointer there would go. It docks to a side that its outline, lying as it would there,
/// reaches; of several to the one nearest to the pointer, the earlier one if they are equally near.
DragTarget outlineAt(const DraggedBar& bar, std::span<const DockStrip> strips, Place pointer, DragKeys keys);

/// Whether the pointer has moved so far that a drag is meant; `least` is the system's distance in each
/// direction.
bool isDrag(Place grab, Place pointer, Extent least);

} // namespace afxdetail
