/// Where the parts of a colour button go. Plain values, no windows. Lengths in pixels.
#pragma once

#include <ovoui/frame/core/Placement.h>

#include <array>

namespace ovoui::colour
{

struct ButtonFaceLayout
{
    frame::Box swatch;                 ///< may be too small to be shown
    frame::Box light;                  ///< the part of it that shows a translucent colour over white
    frame::Box dark;                   ///< over black
    std::array<frame::Point, 3> arrow; ///< two corners above its tip
    frame::Box focus;

    bool showsSwatch() const { return swatch.width() > 2 && swatch.height() > 2; }
};

/// The arrow stands at the right; the swatch has what is left.
ButtonFaceLayout layOutButtonFace(const frame::Box& button, int dotsPerInch);

} // namespace ovoui::colour
