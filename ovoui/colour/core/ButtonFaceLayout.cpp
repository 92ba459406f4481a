#include <ovoui/colour/core/ButtonFaceLayout.h>

#include <ovoui/frame/core/BoxParts.h>
#include <ovoui/frame/core/Scaling.h>

#include <algorithm>

namespace ovoui::colour
{

namespace
{

// Pixels at 96 dots per inch
constexpr int kMargin = 4;
constexpr int kArrow = 4; // half of its width

constexpr int kFocusGap = 2; // from the mark of the focus to the swatch

/// Pointing down, in the middle of its room.
std::array<frame::Point, 3> arrowIn(const frame::Box& room)
{
    const int half = room.width() / 2;
    const frame::Point tip{(room.left + room.right) / 2, (room.top + room.bottom) / 2 + (half + 1) / 2};
    return {{{tip.x - half, tip.y - half}, {tip.x + half, tip.y - half}, tip}};
}

} // namespace

ButtonFaceLayout layOutButtonFace(const frame::Box& button, int dotsPerInch)
{
    const int margin = frame::scaledTo(dotsPerInch, kMargin);
    const frame::Box field = frame::inset(button, margin);
    frame::Box room = field;
    room.left = std::max(field.left, field.right - 2 * frame::scaledTo(dotsPerInch, kArrow));

    ButtonFaceLayout layout;
    layout.swatch = {field.left, field.top, room.left - margin, field.bottom};
    const frame::Box& swatch = layout.swatch;
    const frame::Point middle{(swatch.left + swatch.right) / 2, (swatch.top + swatch.bottom) / 2};
    layout.light = {middle.x, swatch.top, swatch.right, middle.y};
    layout.dark = {middle.x, middle.y, swatch.right, swatch.bottom};
    layout.arrow = arrowIn(room);
    layout.focus = frame::inset(button, margin - kFocusGap);
    return layout;
}

} // namespace ovoui::colour
