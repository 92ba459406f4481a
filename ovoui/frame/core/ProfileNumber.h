/// The text form in which a real number is kept in the profile. Plain values, no windows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ovoui::frame
{

/// With all digits that reading needs to give the same number, and with a point whatever the language.
std::wstring numberText(double value);

/// The number that a text is, without a blank or anything else around it. None for any other text, for
/// infinity and for what a double cannot hold.
std::optional<double> numberIn(std::wstring_view text);

} // namespace ovoui::frame
