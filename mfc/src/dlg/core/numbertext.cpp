#include "numbertext.h"

#include <algorithm>

namespace afxdetail
{

std::string asciiOf(std::wstring_view text)
{
    constexpr std::wstring_view kBlanks = L" \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::wstring_view::npos)
        return {};
    const std::size_t last = text.find_last_not_of(kBlanks);
    std::string ascii;
    for (const wchar_t character : text.substr(first, last - first + 1))
        ascii += character > 0 && character < 0x80 ? static_cast<char>(character) : '?';
    return ascii;
}

namespace
{

/// What stands behind the E; as large as any text is long, where the digits say more.
long long exponentOf(std::string_view written)
{
    constexpr long long kMost = std::numeric_limits<long long>::max() / 4;
    const bool negative = written.starts_with('-');
    if (negative || written.starts_with('+'))
        written.remove_prefix(1);
    long long exponent = 0;
    const auto [end, error] = std::from_chars(written.data(), written.data() + written.size(), exponent);
    if (error == std::errc::result_out_of_range || exponent > kMost)
        exponent = kMost;
    return negative ? -exponent : exponent;
}

} // namespace

// The place of the first digit that counts, before or behind the point, moved by the exponent.
bool isTiny(std::string_view number)
{
    const std::size_t mantissaEnd = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, mantissaEnd);
    const auto point = static_cast<long long>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<long long>(std::min(mantissa.find_first_of("123456789"), mantissa.size()));
    const long long exponent = mantissaEnd < number.size() ? exponentOf(number.substr(mantissaEnd + 1)) : 0;
    return point - first + exponent < 0;
}

} // namespace afxdetail
