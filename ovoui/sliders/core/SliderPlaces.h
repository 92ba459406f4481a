/// Where the small windows of the sliders go, and what is drawn on them. Plain values, no windows. Lengths in
/// pixels.
#pragma once

#include <ovoui/frame/core/Placement.h>

#include <array>
#include <optional>

namespace ovoui::sliders
{

/// What tick marks change in a popup's slider of this height.
struct TickRoom
{
    int added = 0; ///< to slider and popup
    int thumb = 0; ///< the length of a thumb that does not grow into it

    friend bool operator==(const TickRoom&, const TickRoom&) = default;
};

TickRoom roomForTicks(int sliderHeight);

/// The bubble: centred above the thumb, with a small gap.
frame::Box bubblePlace(const frame::Box& thumb, int width, int height);

/// The popup below its button, so that its thumb lies under the pointer. `thumb` is how far the thumb is from
/// the popup's left edge. It may lie beyond the screen.
frame::Box popupPlace(int pointer, int thumb, int buttonsBottom, int width, int height);

/// The greatest length that is useful for an angle slider along its turning direction: three inches.
constexpr int usefulLength(int dotsPerInch)
{
    return 3 * dotsPerInch;
}

/// The cylinder of an angle slider, inside its etched edge.
frame::Box cylinderPlace(const frame::Box& slider);

/// The part of a cylinder from `from` to `to` along its turning direction: x where it turns sideways, else y.
frame::Box stripPlace(const frame::Box& cylinder, bool sideways, int from, int to);

/// The number on a cylinder, in its middle.
struct NumberPlace
{
    frame::Point text;     ///< its upper left corner
    frame::Box background; ///< a pixel wider on both sides; no larger than the cylinder

    friend bool operator==(const NumberPlace&, const NumberPlace&) = default;
};

NumberPlace numberPlace(const frame::Box& cylinder, int textWidth, int textHeight);

/// The edit control in which an angle is typed: room for `characters` as wide and high as a digit, no larger
/// than the slider, in its middle.
frame::Box editPlace(const frame::Box& slider, int characters, int digitWidth, int digitHeight);

/// The largest square in the middle of a dial.
frame::Box dialPlace(const frame::Box& client);

/// The direction of a pixel from the middle of a dial, in degrees as directionOf has it. Clockwise is the
/// same way round in a window that is laid out from right to left.
double dialDirection(const frame::Box& client, int x, int y, bool mirrored);

using Corner = frame::Point;

/// The arrow on a slider button of this size, which points to the right; none where there is no room.
std::optional<std::array<Corner, 3>> arrowCorners(int width, int height);

} // namespace ovoui::sliders
