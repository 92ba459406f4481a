// Internal: numbers as the text of an edit control. Plain values, no windows.
#pragma once

#include <charconv>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

namespace afxdetail
{

enum class NumberFault
{
    None,
    NotANumber,
    OutOfRange
};

template <class Number>
struct ReadNumber
{
    Number value{};
    NumberFault fault = NumberFault::None;
};

/// The text without the blanks around it, in ASCII; other characters become '?'.
std::string asciiOf(std::wstring_view text);

/// Whether an unsigned number that its type cannot hold is too small for it, as 1e-999, and not too large.
bool isTiny(std::string_view number);

/// Reads a whole text as a decimal number, whatever the locale. Blanks around it and a sign are allowed;
/// hexadecimal digits, infinity and the like are not. A fraction that is too small for the type is read as 0.
template <class Number>
ReadNumber<Number> readNumber(std::wstring_view text)
{
    const std::string ascii = asciiOf(text);
    std::string_view magnitude = ascii;
    const bool negative = magnitude.starts_with('-');
    if (negative || magnitude.starts_with('+'))
        magnitude.remove_prefix(1);
    // What follows the sign must be a digit or the decimal point: the library would read names of numbers
    // too.
    if (magnitude.find_first_of("0123456789.") != 0)
        return {{}, NumberFault::NotANumber};

    const std::string_view read = negative && std::is_signed_v<Number> ? std::string_view(ascii) : magnitude;
    Number value{};
    const auto [end, error] = std::from_chars(read.data(), read.data() + read.size(), value);
    if (error == std::errc::invalid_argument || end != read.data() + read.size())
        return {{}, NumberFault::NotANumber};
    if constexpr (std::is_floating_point_v<Number>) {
        if (error == std::errc::result_out_of_range && isTiny(magnitude))
            return {};
    }
    // A negative number is one, though none that an unsigned type could hold.
    const bool unheld = negative && std::is_unsigned_v<Number> && value != Number{};
    if (error == std::errc::result_out_of_range || unheld)
        return {{}, NumberFault::OutOfRange};
    return {value, NumberFault::None};
}

/// The shortest form with at most `precision` significant digits (default: as many as the type holds for
/// certain), whatever the locale. Of an integer all digits are written.
template <class Number>
std::wstring writeNumber(Number value, [[maybe_unused]] int precision = std::numeric_limits<Number>::digits10)
{
    char buffer[64];
    std::to_chars_result written{};
    if constexpr (std::is_floating_point_v<Number>)
        written = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, precision);
    else
        written = std::to_chars(buffer, buffer + sizeof buffer, value);
    return {buffer, written.ptr};
}

} // namespace afxdetail
