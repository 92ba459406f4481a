/// Colours as texts: as web pages write them, and lists of them for a profile.
///
///     if (const auto colour = ovoui::colour::colourFromText(L"steelblue"))
///         m_penColour = colour->colorref();
#pragma once

#include <ovoui/colour/UnitExport.h>

#include <ovocor/Colour.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovoui::colour
{

/// The colour of `#RRGGBB`, `#RRGGBBAA`, either of them without the mark, or a name of CSS, in any case of
/// letters and with blanks around it. Six digits and names give a colour without alpha. Nothing for any other
/// text.
OVOUI_UNIT_API std::optional<Colour> colourFromText(std::wstring_view text);

/// `#RRGGBB`, or `#RRGGBBAA` for a colour with alpha.
OVOUI_UNIT_API std::wstring textOfColour(const Colour& colour);

/// The name that CSS has for a colour, in small letters; empty for one without a name and for one that is not
/// opaque. Of two names for one colour the first in the alphabet.
OVOUI_UNIT_API std::wstring nameOfColour(const Colour& colour);

/// The name of a colour, or its code where it has none.
OVOUI_UNIT_API std::wstring nameOrCodeOfColour(const Colour& colour);

/// The codes of colours with blanks between them.
OVOUI_UNIT_API std::wstring textOfColours(const std::vector<Colour>& colours);

/// The colours of such a text in order; nothing in place of what cannot be read, so that the others keep
/// their places.
OVOUI_UNIT_API std::vector<std::optional<Colour>> coloursFromText(std::wstring_view text);

} // namespace ovoui::colour
