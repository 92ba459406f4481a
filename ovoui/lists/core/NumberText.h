/// The number that a text begins with.
#pragma once

#include <optional>
#include <string_view>

namespace ovoui::lists
{

/// "1 234,5 KB" with ',' is 1234.5. Spaces, also unbroken ones, apostrophes and `group` may stand between
/// digits, and spaces before the number; what follows it is left out. None for a text that begins otherwise.
std::optional<double> numberIn(std::wstring_view text, wchar_t decimal, wchar_t group);

} // namespace ovoui::lists
