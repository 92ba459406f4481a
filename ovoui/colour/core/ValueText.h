/// What the user types into a value edit. Plain values, no windows.
#pragma once

#include <string_view>

namespace ovoui::colour
{

/// The whole number that a text begins with, after blanks, taken into 0 to `maximum`; 0 for a text that does
/// not begin with one.
int valueFromText(std::wstring_view text, int maximum);

} // namespace ovoui::colour
