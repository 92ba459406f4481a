#include <ovoui/frame/core/ProfileNumber.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <system_error>

namespace ovoui::frame
{
namespace
{

bool isAscii(wchar_t character)
{
    return character < 0x80;
}

} // namespace

std::wstring numberText(double value)
{
    char digits[32];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
    return std::wstring(digits, end);
}

std::optional<double> numberIn(std::wstring_view text)
{
    if (!std::ranges::all_of(text, isAscii))
        return std::nullopt; // as bytes, other characters could look like digits
    const std::string digits(text.begin(), text.end());
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    const bool isWhole = error == std::errc() && end == digits.data() + digits.size();
    return isWhole && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

} // namespace ovoui::frame
