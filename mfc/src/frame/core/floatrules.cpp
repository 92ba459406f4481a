#include "floatrules.h"

#include <algorithm>
#include <limits>

namespace afxdetail
{

namespace
{

/// Whether a part of the upper edge, wide enough to take hold of, lies in the area.
bool isReachable(Place at, Extent size, const Area& area)
{
    const int visible = std::min(at.x + size.width, area.right) - std::max(at.x, area.left);
    return visible >= std::min(size.width, kReachable) && at.y >= area.top &&
           at.y + kReachable <= area.bottom;
}

Place pulledInto(Place at, Extent size, const Area& area)
{
    return {std::max(area.left, std::min(at.x, area.right - size.width)),
            std::max(area.top, std::min(at.y, area.bottom - size.height))};
}

long long squared(int value)
{
    return static_cast<long long>(value) * value;
}

} // namespace

Place bringBack(Place topLeft, Extent size, std::span<const Area> workAreas)
{
    Place best = topLeft;
    long long least = std::numeric_limits<long long>::max();
    for (const Area& area : workAreas) {
        if (isReachable(topLeft, size, area))
            return topLeft;
        const Place pulled = pulledInto(topLeft, size, area);
        const long long moved = squared(pulled.x - topLeft.x) + squared(pulled.y - topLeft.y);
        if (moved < least) {
            least = moved;
            best = pulled;
        }
    }
    return best;
}

Place firstFloatPlace(const Area& docked, int caption)
{
    return {docked.left + 2 * caption, docked.top + 2 * caption};
}

Area edgesAt(const Area& window, MovedEdges moved, Place pointer)
{
    Area area = window;
    if (moved.left)
        area.left = pointer.x;
    if (moved.right)
        area.right = pointer.x;
    if (moved.top)
        area.top = pointer.y;
    if (moved.bottom)
        area.bottom = pointer.y;
    return area;
}

Area snapped(const Area& wanted, MovedEdges moved, Extent size)
{
    Area area = wanted;
    if (moved.left)
        area.left = area.right - size.width;
    else
        area.right = area.left + size.width;
    if (moved.top)
        area.top = area.bottom - size.height;
    else
        area.bottom = area.top + size.height;
    return area;
}

} // namespace afxdetail
