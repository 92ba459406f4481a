/// What the picker's numbers mean in each of its modes. Plain values, no windows.
#pragma once

#include <ovoui/colour/ColPickerMode.h>

#include <ovocor/Colour.h>

#include <array>

namespace ovoui::colour
{

constexpr int kAlphaMaximum = 255;

/// The three numbers of a colour as the edits show them.
using Values = std::array<int, 3>;

/// The largest number of each edit and slider; the smallest is 0. All 0 for what is not a mode.
Values maxima(ColPickerModeType mode);

/// What the edits show, rounded. A hue just below the full turn shows as 360, which is beyond its maximum.
Values valuesOf(const Colour& colour, ColPickerModeType mode);
int alphaOf(const Colour& colour);

/// The colour of three numbers. Black for what is not a mode.
Colour colourOf(const Values& values, double alpha, ColPickerModeType mode);

/// Whether two colours differ by as much as can be seen: 1/512 in a component or in alpha. With `evenHue`, a
/// hue that differs by so many degrees counts, too, as that of a grey can.
bool differ(const Colour& one, const Colour& other, bool evenHue);

} // namespace ovoui::colour
