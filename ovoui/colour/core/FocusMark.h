/// The outlines that show which part of the wheel has the keyboard focus. Plain values, no windows.
#pragma once

#include <ovoui/colour/core/HueRing.h>
#include <ovoui/colour/core/ShadeTriangle.h>

#include <array>

namespace ovoui::colour
{

/// A closed outline: its first point again at the end.
template <std::size_t Corners>
using Outline = std::array<Vector<2>, Corners + 1>;

/// The rectangle around the ring.
Outline<4> focusMark(const HueRing& ring);

/// A triangle around the triangle, between it and the ring.
Outline<3> focusMark(const ShadeTriangle& triangle);

} // namespace ovoui::colour
