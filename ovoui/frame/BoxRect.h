/// Not exported: between the platform's rectangles and those of the units without windows.
#pragma once

#include <ovoui/frame/core/Placement.h>

#include <windows.h>

namespace ovoui::frame
{

inline Box toBox(const RECT& rect)
{
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}

inline RECT toRect(const Box& box)
{
    return {box.left, box.top, box.right, box.bottom};
}

} // namespace ovoui::frame
