#include "floatrules.h"

#include <algorithm>
#include <limits>

namespace afxdetail
{

namespace
{

// Places come from the profile, too, which may be damaged: they can be as far away as numbers go.

/// Whether a part of the upper edge, wide enough to take hold of, lies in the area.
bool isReachable(Place at, Extent size, const Area& area)
{
    const long long left = at.x;
    const long long visible =
        std::min<long long>(left + size.width, area.right) - std::max<long long>(left, area.left);
    return visible >= std::min(size.width, kReachable) && at.y >= area.top &&
           at.y <= area.bottom - kReachable;
}

Place pulledInto(Place at, Extent size, const Area& area)
{
    return {std::max(area.left, std::min(at.x, area.right - size.width)),
            std::max(area.top, std::min(at.y, area.bottom - size.height))};
}

double squaredDistance(Place one, Place other)
{
    const double x = static_cast<double>(one.x) - other.x;
    const double y = static_cast<double>(one.y) - other.y;
    return x * x + y * y;
}

} // namespace

Place bringBack(Place topLeft, Extent size, std::span<const Area> workAreas)
{
    Place best = topLeft;
    double least = std::numeric_limits<double>::max();
    for (const Area& area : workAreas) {
        if (isReachable(topLeft, size, area))
            return topLeft;
        const Place pulled = pulledInto(topLeft, size, area);
        const double moved = squaredDistance(pulled, topLeft);
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
