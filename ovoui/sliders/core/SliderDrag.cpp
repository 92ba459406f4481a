#include <ovoui/sliders/core/SliderDrag.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace ovoui::sliders
{
namespace
{

/// `part` of `whole`, scaled to `length`; nothing of nothing is nothing. The operands are differences of
/// ints, so their product fits where one of them is a length in pixels.
std::int64_t scaled(std::int64_t part, std::int64_t whole, std::int64_t length)
{
    return whole == 0 ? 0 : part * length / whole;
}

} // namespace

int thumbOffset(const Channel& channel, int position, const Positions& positions)
{
    const std::int64_t run = std::int64_t{channel.right} - channel.left - 1;
    const std::int64_t whole = std::int64_t{positions.maximum} - positions.minimum;
    return static_cast<int>(scaled(std::int64_t{position} - positions.minimum, whole, run));
}

int positionUnder(int x, const Channel& channel, const Positions& positions)
{
    const std::int64_t run = std::int64_t{channel.right} - channel.left;
    const std::int64_t along =
        std::clamp<std::int64_t>(std::int64_t{x} - channel.left, 0, std::max<std::int64_t>(run, 0));
    const std::int64_t whole = std::int64_t{positions.maximum} - positions.minimum;
    return static_cast<int>(scaled(along, run, whole) + positions.minimum);
}

bool dragStarts(const PendingDrag& pending, const Point& pointer, bool inPopup)
{
    const int dx = pointer.x - pending.press.x;
    const int dy = pointer.y - pending.press.y;
    if (std::abs(dx) <= pending.dragWidth && std::abs(dy) <= pending.dragHeight)
        return false;
    if (std::abs(pending.thumb) <= pending.dragWidth)
        return true;
    const bool reached = pending.thumb > 0 ? dx >= pending.thumb : dx <= pending.thumb;
    return reached || inPopup;
}

} // namespace ovoui::sliders
