#include <ovoui/sliders/core/SliderDrag.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <utility>

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

bool PopupPlace::contains(const Point& point) const
{
    return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
}

void PressDrag::begin(const Point& press, const PopupPlace& popup, const DragLimits& limits)
{
    m_dragging = false;
    m_tracking = true;
    m_press = press;
    m_popup = popup;
    m_limits = limits;
}

std::optional<int> PressDrag::move(const Point& pointer, const Positions& positions)
{
    m_dragging = m_tracking && (m_dragging || starts(pointer));
    if (!m_dragging)
        return std::nullopt;
    return positionUnder(pointer.x, m_popup.channel, positions);
}

bool PressDrag::starts(const Point& pointer) const
{
    const int dx = pointer.x - m_press.x;
    const int dy = pointer.y - m_press.y;
    if (std::abs(dx) <= m_limits.width && std::abs(dy) <= m_limits.height)
        return false;
    if (std::abs(m_popup.thumb) <= m_limits.width)
        return true;
    const bool reached = m_popup.thumb > 0 ? dx >= m_popup.thumb : dx <= m_popup.thumb;
    return reached || m_popup.contains(pointer);
}

bool PressDrag::end()
{
    m_tracking = false;
    return std::exchange(m_dragging, false);
}

} // namespace ovoui::sliders
