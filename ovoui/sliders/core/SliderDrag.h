/// Arithmetic of the popup slider's place and of the one-movement drag from the button to the thumb, in
/// pixels. Plain values, no windows.
#pragma once

#include <ovoui/sliders/core/SliderMapping.h>

namespace ovoui::sliders
{

struct Point
{
    int x = 0;
    int y = 0;
};

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

/// A press on the button, while it is not yet a drag.
struct PendingDrag
{
    Point press;
    int thumb = 0;      ///< how far the thumb is to the right of the press; negative when it is to the left
    int dragWidth = 4;  ///< the system's drag rectangle: this far to the left and right of the press
    int dragHeight = 4; ///< and this far above and below
};

/// Whether the pointer takes the thumb along from now on. It does not before it has left the drag rectangle; then
/// at once when the thumb is at the press, otherwise when the pointer has come as far as the thumb is, or is
/// inside the popup.
bool dragStarts(const PendingDrag& pending, const Point& pointer, bool inPopup);

} // namespace ovoui::sliders
