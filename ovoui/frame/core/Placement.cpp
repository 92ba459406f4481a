#include <ovoui/frame/core/Placement.h>

#include <algorithm>

namespace ovoui::frame
{

Box movedBy(const Box& box, int dx, int dy)
{
    return {box.left + dx, box.top + dy, box.right + dx, box.bottom + dy};
}

Box movedInto(const Box& box, const Box& area)
{
    // The order matters: the left and the top edge are corrected last, so that they win.
    Box moved = box;
    if (moved.right > area.right)
        moved = movedBy(moved, area.right - moved.right, 0);
    if (moved.left < area.left)
        moved = movedBy(moved, area.left - moved.left, 0);
    if (moved.bottom > area.bottom)
        moved = movedBy(moved, 0, area.bottom - moved.bottom);
    if (moved.top < area.top)
        moved = movedBy(moved, 0, area.top - moved.top);
    return moved;
}

Box intersection(const Box& one, const Box& other)
{
    const Box common{std::max(one.left, other.left), std::max(one.top, other.top),
                     std::min(one.right, other.right), std::min(one.bottom, other.bottom)};
    return common.empty() ? Box{} : common;
}

Box tipPlace(const Box& about, int width, int height, const Box& area)
{
    constexpr int kGap = 2; // pixels
    const int below = about.bottom + kGap;
    const int top = below + height > area.bottom ? about.top - kGap - height : below;
    return {about.left, top, about.left + width, top + height};
}

bool opensUpwards(const Box& about, int height, const Box& area)
{
    const int below = area.bottom - about.bottom;
    return height > below && about.top - area.top > below;
}

Box centredIn(const Box& area, int width, int height)
{
    const int left = (area.right - width + area.left) / 2;
    const int top = (area.top + area.bottom - height) / 2;
    return {left, top, left + width, top + height};
}

} // namespace ovoui::frame
