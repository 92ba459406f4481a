/// What comes of colours that are typed or taken from elsewhere. Plain values, no windows.
#pragma once

#include <ovoui/colour/ColPickerMode.h>

#include <ovocor/Colour.h>

#include <optional>

namespace ovoui::colour
{

/// Whether leaving an edit field of the picker counts at all. `onlyTyped`: not unless something was typed.
bool countsWhenLeft(bool initialised, bool onlyTyped, bool typed);

/// Whether hues count of colours that seem the same, as those of a grey: in the modes that have a hue.
bool evenHueCounts(ColPickerModeType mode);

/// Whether the numbers typed are a change by the user. Where alpha is not edited, that the colour now has one
/// is none.
bool changesColour(const Colour& before, const Colour& typed, bool alphaIsEdited, ColPickerModeType mode);

/// The colour that a typed code leads to; none when the shown one stays. A code has alpha only where it says
/// so, else that of the shown colour stays. `read`: none when the code was no colour.
std::optional<Colour> afterTypedCode(const std::optional<Colour>& read, const Colour& shown,
                                     bool alphaIsEdited);

/// The colour with the alpha of another one.
Colour withAlphaOf(const Colour& colour, const Colour& other);

/// The colour as it shows over a grey ground, from black (0) to white (1).
Colour overGround(const Colour& colour, double ground);

} // namespace ovoui::colour
