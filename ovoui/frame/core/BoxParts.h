/// What lies in a box. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/Placement.h>

namespace ovoui::frame
{

/// All edges move in by so many pixels.
constexpr Box inset(const Box& box, int by)
{
    return {box.left + by, box.top + by, box.right - by, box.bottom - by};
}

/// Whether a pixel is inside.
constexpr bool contains(const Box& box, int x, int y)
{
    return x >= box.left && x < box.right && y >= box.top && y < box.bottom;
}

} // namespace ovoui::frame
