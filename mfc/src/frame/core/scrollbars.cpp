#include "scrollbars.h"

#include <algorithm>

namespace afxdetail
{

ScrollBars neededBars(ScrollExtent whole, ScrollExtent window, ScrollExtent thickness)
{
    ScrollBars bars;
    bars.vertical = whole.height > window.height;
    bars.horizontal = whole.width > window.width - (bars.vertical ? thickness.width : 0);
    if (bars.horizontal)
        bars.vertical = whole.height > window.height - thickness.height;
    bars.seen.width = std::max(0, window.width - (bars.vertical ? thickness.width : 0));
    bars.seen.height = std::max(0, window.height - (bars.horizontal ? thickness.height : 0));
    return bars;
}

int scrollPosition(int wanted, int whole, int seen)
{
    return std::clamp(wanted, 0, std::max(0, whole - seen));
}

} // namespace afxdetail
