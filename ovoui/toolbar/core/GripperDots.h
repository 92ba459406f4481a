/// The dots of a toolbar's gripper. Plain values, no windows. Lengths in pixels.
#pragma once

#include <ovoui/frame/core/Placement.h>

#include <vector>

namespace ovoui::toolbar
{

/// Of a dot, without its light edge at the lower right, which is one pixel more.
inline constexpr int kDotSize = 2;

/// The upper left corners of the dots in a gripper: one below the other in a horizontal bar, else side by
/// side.
std::vector<frame::Point> gripperDots(const frame::Box& gripper, bool horizontalBar);

} // namespace ovoui::toolbar
