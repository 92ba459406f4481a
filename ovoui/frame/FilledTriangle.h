/// Not exported. The arrows on the library's own buttons.
#pragma once

#include <ovoui/frame/core/Placement.h>

#include <afxwin.h>

#include <algorithm>
#include <array>

namespace ovoui::frame
{

inline void fillTriangle(CDC& dc, const std::array<Point, 3>& corners, COLORREF colour)
{
    POINT places[3];
    std::ranges::transform(corners, places, [](const Point& corner) { return POINT{corner.x, corner.y}; });
    CBrush brush(colour);
    CBrush* const brushBefore = dc.SelectObject(&brush);
    CGdiObject* const penBefore = dc.SelectStockObject(NULL_PEN);
    dc.Polygon(places, 3);
    dc.SelectObject(static_cast<CPen*>(penBefore));
    dc.SelectObject(brushBefore);
}

} // namespace ovoui::frame
