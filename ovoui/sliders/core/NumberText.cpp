#include <ovoui/sliders/core/NumberText.h>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <system_error>

namespace ovoui::sliders
{
namespace
{

constexpr int kUsualDecimals = 6;
constexpr int kMostDecimals = 1000;
constexpr int kSureDigits = std::numeric_limits<double>::digits10;

bool isSpace(wchar_t c)
{
    return c == L' ' || (c >= L'\t' && c <= L'\r');
}

/// The text from its sign or first digit on, in bytes; a plus sign, which the standard parser refuses, is
/// left out. Characters beyond ASCII end every number.
std::string numberPart(std::wstring_view text)
{
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    if (text.size() >= 2 && text[0] == L'+' && text[1] != L'-')
        text.remove_prefix(1);
    std::string part;
    for (const wchar_t c : text) {
        if (c <= L' ' || c > L'~')
            break;
        part.push_back(static_cast<char>(c));
    }
    return part;
}

/// Whether a number that no double can hold is too large for it, rather than too close to zero.
bool isHuge(std::string_view number)
{
    const std::size_t exponent = number.find_first_of("eE");
    if (exponent != std::string_view::npos && exponent + 1 < number.size())
        return number[exponent + 1] != '-';
    const std::string_view whole = number.substr(0, number.find('.'));
    return whole.find_first_of("123456789") != std::string_view::npos;
}

} // namespace

std::optional<double> parseReal(std::wstring_view text)
{
    const std::string part = numberPart(text);
    double value = 0;
    const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), value);
    if (error == std::errc::invalid_argument)
        return std::nullopt;
    if (error == std::errc::result_out_of_range) {
        const std::string_view number(part.data(), static_cast<std::size_t>(end - part.data()));
        value = isHuge(number) ? std::numeric_limits<double>::infinity() : 0.0;
        return number.front() == '-' ? -value : value;
    }
    return value;
}

std::optional<int> parseWhole(std::wstring_view text)
{
    const std::string part = numberPart(text);
    int value = 0;
    const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), value);
    if (error == std::errc::invalid_argument)
        return std::nullopt;
    if (error == std::errc::result_out_of_range)
        return part.front() == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    return value;
}

std::wstring formatReal(double value, int decimals)
{
    const int digits = decimals < 0 ? kUsualDecimals : std::min(decimals, kMostDecimals);
    // The largest double has 309 digits before the point.
    std::string text(static_cast<std::size_t>(digits) + std::numeric_limits<double>::max_exponent10 + 4,
                     '\0');
    const auto [end, error] =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, digits);
    return std::wstring(text.data(), end);
}

std::wstring formatShort(double value)
{
    char text[32]; // 15 digits, sign, point and exponent
    const auto [end, error] =
        std::to_chars(text, std::end(text), value, std::chars_format::general, kSureDigits);
    return std::wstring(text, end);
}

} // namespace ovoui::sliders
