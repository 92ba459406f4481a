/// Letters of ASCII in either case. Plain values, no windows.
#pragma once

namespace ovoui
{

constexpr bool isAscii(wchar_t character)
{
    return character < 0x80;
}

/// Whether two characters of ASCII are equal but for the case of a letter.
constexpr bool isSameAsciiLetter(wchar_t a, wchar_t b)
{
    const auto lower = [](wchar_t c) { return c >= L'A' && c <= L'Z' ? c - L'A' + L'a' : int{c}; };
    return lower(a) == lower(b);
}

} // namespace ovoui
