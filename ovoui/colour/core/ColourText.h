/// Colours as web pages write them. Plain values, no windows.
#pragma once

#include <ovocor/Colour.h>

#include <optional>
#include <string>
#include <string_view>

namespace ovoui::colour
{

/// The colour of `#RRGGBB`, `#RRGGBBAA`, either of them without the mark, or a name of CSS, in any case of
/// letters and with blanks around it. Six digits and names give a colour without alpha. Nothing for any other
/// text.
std::optional<Colour> colourFromText(std::wstring_view text);

/// `#RRGGBB`, or `#RRGGBBAA` for a colour with alpha.
std::wstring textOfColour(const Colour& colour);

/// The name that CSS has for a colour, in small letters; empty for one without a name and for one that is not
/// opaque. Of two names for one colour the first in the alphabet.
std::wstring nameOfColour(const Colour& colour);

} // namespace ovoui::colour
