/// Arithmetic of the popup slider's place and of the one-movement drag from the button to the thumb, in
/// pixels. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/Placement.h>
#include <ovoui/sliders/core/SliderMapping.h>

#include <optional>

namespace ovoui::sliders
{

using frame::Point;

/// The run of the thumb: from its leftmost to its rightmost place.
struct Channel
{
    int left = 0;
    int right = 0;
};

/// How far to the right of the channel's left end the thumb stands at `position`.
int thumbOffset(const Channel& channel, int position, const Positions& positions);

/// The position for a pointer at `x`: a pointer beyond the channel counts as at its end.
int positionUnder(int x, const Channel& channel, const Positions& positions);

/// Where the open popup is, seen from the press on the button that opened it.
struct PopupPlace
{
    int thumb = 0;   ///< how far the thumb is to the right of the press; negative when it is to the left
    Channel channel; ///< in the button's coordinates, as the popup's client area is
    int left = 0;
    int top = 0;
    int right = 0;  ///< the first pixel outside
    int bottom = 0; ///< the same

    bool contains(const Point& point) const;
};

/// How far the pointer may stray from a press without dragging.
struct DragLimits
{
    int width = 4;  ///< to the left and to the right
    int height = 4; ///< above and below
};

/// What a press on the button, moves and the release lead to.
class PressDrag
{
public:
    /// The button is held from now on, pressed at `press`.
    void begin(const Point& press, const PopupPlace& popup, const DragLimits& limits);

    bool tracking() const { return m_tracking; }

    /// Where the thumb is to go when the pointer has come to `pointer`: none while it does not follow. It
    /// does not before the pointer has left the drag limits; then at once when the thumb is at the press,
    /// otherwise when the pointer has come as far as the thumb is, or is inside the popup.
    std::optional<int> move(const Point& pointer, const Positions& positions);

    /// The button is let go, or something else has the mouse. Whether the thumb followed the pointer.
    bool end();

private:
    bool starts(const Point& pointer) const;

    bool m_dragging = false;
    bool m_tracking = false;
    Point m_press;
    PopupPlace m_popup;
    DragLimits m_limits;
};

} // namespace ovoui::sliders
