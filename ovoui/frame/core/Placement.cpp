#include <ovoui/frame/core/Placement.h>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace ovoui::frame
{
namespace
{

/// One side of a box, in numbers that hold any sum of coordinates.
struct Span
{
    std::int64_t begin;
    std::int64_t end;
};

int asCoordinate(std::int64_t value)
{
    return static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

/// The order matters: the beginning is corrected last, so that it wins.
Span movedInto(const Span& span, const Span& area)
{
    const std::int64_t length = span.end - span.begin;
    Span moved = span;
    if (moved.end > area.end)
        moved = {area.end - length, area.end};
    if (moved.begin < area.begin)
        moved = {area.begin, area.begin + length};
    return moved;
}

} // namespace

Box movedBy(const Box& box, int dx, int dy)
{
    return {box.left + dx, box.top + dy, box.right + dx, box.bottom + dy};
}

Box movedInto(const Box& box, const Box& area)
{
    const Span across = movedInto(Span{box.left, box.right}, Span{area.left, area.right});
    const Span down = movedInto(Span{box.top, box.bottom}, Span{area.top, area.bottom});
    return {asCoordinate(across.begin), asCoordinate(down.begin), asCoordinate(across.end),
            asCoordinate(down.end)};
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
