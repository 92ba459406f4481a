/// What a knob looks like from above, pixel by pixel with smooth edges. Plain values, no windows.
#pragma once

#include <ovoui/sliders/core/CylinderPicture.h>

#include <vector>

namespace ovoui::sliders
{

struct DialColours
{
    Shade back;    ///< around the knob
    Shade light;   ///< of the knob's rim where the light comes from, the upper left
    Shade dark;    ///< of the rim on the other side
    Shade face;    ///< of the knob
    Shade pointer; ///< also of the ticks
};

/// A square of `size` by `size` pixels, row by row from the top. The pointer stands at `degrees` (0 at the
/// top, growing clockwise), and a tick outside the knob at each of `ticks`.
std::vector<Shade> dialPicture(int size, double degrees, const std::vector<double>& ticks,
                               const DialColours& colours);

} // namespace ovoui::sliders
