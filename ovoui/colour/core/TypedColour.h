/// What comes of colours that are typed or taken from elsewhere. Plain values, no windows.
#pragma once

#include <ovoui/colour/ColPickerMode.h>

#include <ovocor/Colour.h>

namespace ovoui::colour
{

/// Whether leaving an edit field of the picker counts at all. `onlyTyped`: not unless something was typed.
bool countsWhenLeft(bool initialised, bool onlyTyped, bool typed);

/// Whether hues count of colours that seem the same, as those of a grey: in the modes that have a hue.
bool evenHueCounts(ColPickerModeType mode);

/// Whether the numbers typed are a change by the user. Where alpha is not edited, that the colour now has one
/// is none.
bool changesColour(const Colour& before, const Colour& typed, bool alphaIsEdited, ColPickerModeType mode);

/// The colour with the alpha of another one.
Colour withAlphaOf(const Colour& colour, const Colour& other);

/// The colour as it shows over a grey ground, from black (0) to white (1).
Colour overGround(const Colour& colour, double ground);

} // namespace ovoui::colour
