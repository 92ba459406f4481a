/// Numbers as the buddy of a slider shows them in machine form: a decimal point, no grouping, whatever the
/// program's locale. Plain values, no windows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ovoui::sliders
{

/// The decimal number at the start of `text`, behind any white space and one sign; what follows it is
/// ignored. "inf" and "nan" are numbers too; one that is too large is infinite, one too small is zero. None
/// when the text does not start with a number.
std::optional<double> parseReal(std::wstring_view text);

/// The same for a whole number; one that is too large or too small becomes the largest or smallest int.
std::optional<int> parseWhole(std::wstring_view text);

/// `value` with that many digits behind the point, as printf's "%.*f" has it: a negative count means six.
std::wstring formatReal(double value, int decimals);

/// `value` with the digits that count, at most 15, which are the same however a number was worked out.
std::wstring formatShort(double value);

} // namespace ovoui::sliders
