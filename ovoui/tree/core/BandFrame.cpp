#include <ovoui/tree/core/BandFrame.h>

#include <algorithm>

namespace ovoui::tree
{

frame::Box bandFrame(const ContentPoint& begin, const ContentPoint& pointer, const ScrolledBy& scrolled)
{
    const auto [left, right] = std::minmax(begin.x, pointer.x);
    const auto [top, bottom] = std::minmax(begin.y, pointer.y);
    return frame::movedBy({left, top, right + 1, bottom + 1}, -scrolled.x, -scrolled.y);
}

int rowsToScroll(int y, int height, int rowHeight)
{
    const int row = std::max(rowHeight, 1);
    if (y < 0)
        return y / row - 1;
    return y >= height ? (y - height) / row + 1 : 0;
}

} // namespace ovoui::tree
