#include "dragrules.h"

#include <algorithm>
#include <cstdlib>

namespace afxdetail
{

namespace
{

/// A strip without depth is an edge that can be touched.
Area touchable(const Area& area)
{
    return {area.left, area.top, std::max(area.right, area.left + 1), std::max(area.bottom, area.top + 1)};
}

bool meet(const Area& one, const Area& other)
{
    return one.left < other.right && other.left < one.right && one.top < other.bottom &&
           other.top < one.bottom;
}

/// How far from its beginning a length is held that replaces another one.
int heldAt(int held, int length, int newLength)
{
    const int wanted = held <= length / 2 ? held : newLength - (length - held);
    return std::clamp(wanted, 0, std::max(0, newLength - 1));
}

int distance(int at, int from, int to)
{
    return std::max({0, from - at, at - (to - 1)});
}

int distance(Place point, const Area& area)
{
    return distance(point.x, area.left, area.right) + distance(point.y, area.top, area.bottom);
}

} // namespace

Area heldAt(const Area& from, Place grab, Extent size, Place pointer)
{
    const int left = pointer.x - heldAt(grab.x - from.left, from.width(), size.width);
    const int top = pointer.y - heldAt(grab.y - from.top, from.height(), size.height);
    return {left, top, left + size.width, top + size.height};
}

DragTarget outlineAt(const DraggedBar& bar, std::span<const DockStrip> strips, Place pointer, DragKeys keys)
{
    DragTarget best;
    int nearest = 0;
    for (std::size_t i = 0; i < strips.size() && !keys.control; ++i) {
        const Extent size = isHorizontal(strips[i].side) ? bar.horizontal : bar.vertical;
        const Area area = heldAt(bar.from, bar.grab, size, pointer);
        const Area strip = touchable(strips[i].area);
        const int away = distance(pointer, strip);
        if (!meet(area, strip) || (best.strip && away >= nearest))
            continue;
        best.area = area;
        best.strip = i;
        nearest = away;
    }
    if (best.strip)
        return best;
    best.turned = keys.shift;
    best.area = heldAt(bar.from, bar.grab, keys.shift ? bar.floatingOther : bar.floating, pointer);
    return best;
}

bool isDrag(Place grab, Place pointer, Extent least)
{
    return std::abs(pointer.x - grab.x) >= least.width || std::abs(pointer.y - grab.y) >= least.height;
}

} // namespace afxdetail
