/// Where ring and triangle lie in the picker's wheel. Plain values, no windows.
#pragma once

#include <ovoui/colour/core/HueRing.h>
#include <ovoui/frame/core/Placement.h>
#include <ovoui/colour/core/ShadeTriangle.h>

namespace ovoui::colour
{

/// The ring is as large as the rectangle allows; the triangle lies within its hexagon.
HueRing ringIn(const frame::Box& wheel);

/// Lies 5 pixels below the top vertex of the hexagon and beside its sides, and touches the level of the lower
/// edges. Empty or turned over when the ring is too small for it.
ShadeTriangle triangleIn(const HueRing& ring);

/// The radius of the circle that marks the hue, and half the length of the cross in the triangle.
int markerRadius(const HueRing& ring);

} // namespace ovoui::colour
