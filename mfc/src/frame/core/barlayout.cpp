#include "barlayout.h"

#include <algorithm>

namespace afxdetail
{

Area takeStrip(Area& free, Extent size, Side side)
{
    const int width = std::clamp(size.width, 0, std::max(0, free.width()));
    const int height = std::clamp(size.height, 0, std::max(0, free.height()));
    Area place{free.left, free.top, free.left + width, free.top + height};
    switch (side) {
    case Side::Left:
        free.left += width;
        break;
    case Side::Top:
        free.top += height;
        break;
    case Side::Right:
        place.left = free.right - width;
        place.right = free.right;
        free.right -= width;
        break;
    case Side::Bottom:
        place.top = free.bottom - height;
        place.bottom = free.bottom;
        free.bottom -= height;
        break;
    }
    return place;
}

void addToTotal(Extent& total, const Area& place, Side side)
{
    if (isHorizontal(side)) {
        total.width = std::max(total.width, place.width());
        total.height += place.height();
    } else {
        total.width += place.width();
        total.height = std::max(total.height, place.height());
    }
}

} // namespace afxdetail
