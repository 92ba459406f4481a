/// Not exported. The arrows on the library's own buttons.
#pragma once

#include <ovoui/frame/DcScopes.h>
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
    const SelectedTool inside(dc, &brush);
    const SelectedTool edge(dc, ::GetStockObject(NULL_PEN));
    dc.Polygon(places, 3);
}

} // namespace ovoui::frame
