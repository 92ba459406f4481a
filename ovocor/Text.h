/// Small helpers for wide and narrow text.
#pragma once

#include <ovocor/export.h>

#include <cstdarg>
#include <cstddef>
#include <string>
#include <string_view>

/// printf into a wide string. The format follows the C runtime's wide rules: %s takes a wide string, %S a
/// narrow one, %I64d and %lld a 64-bit number. Throws OvoError for a format that the runtime refuses.
OVOCOR_API std::wstring stringPrintf(const wchar_t* format, ...);
/// The same with the `arguments` of a function of the caller's.
OVOCOR_API std::wstring vstringPrintf(const wchar_t* format, std::va_list arguments);

/// From the ANSI code page to wide characters; zero characters inside the text are kept. Bytes that mean
/// nothing in the code page become the code page's replacement character, and `*lossy` (when given) tells of
/// it.
OVOCOR_API std::wstring getWCS(std::string_view text, bool* lossy = nullptr);

/// From wide characters to the ANSI code page; getWCS gives back the same text. A character that the code
/// page does not have becomes its default character (mostly '?'), never a look-alike, and `*lossy` (when
/// given) tells of it.
OVOCOR_API std::string getMBS(std::wstring_view text, bool* lossy = nullptr);

/// Copies `text` into a buffer of `size` characters, cut to fit and always terminated (a buffer of size 0 is
/// left alone). Never leaves half of a surrogate pair. Gives the number of characters before the terminator.
OVOCOR_API std::size_t packTo(wchar_t* buffer, std::size_t size, std::wstring_view text);

/// The same for an array, whose size is known.
template <std::size_t N>
std::size_t packTo(wchar_t (&buffer)[N], std::wstring_view text)
{
    return packTo(buffer, N, text);
}

/// `text` in lower case, character by character: the length stays, and the result does not depend on the
/// user's language.
OVOCOR_API std::wstring lowercase(std::wstring_view text);

/// Compares by the user's locale: negative when `a` sorts first, positive when `b` does. Texts of the same
/// rank in the locale are ordered by their characters, so that 0 means that they are the same.
OVOCOR_API int collateStrings(std::wstring_view a, std::wstring_view b);

/// The directory part of a path, without the separator at its end unless it is a root ("C:\", "\"). A path
/// without a parent (a root, a share, a bare name) is given back unchanged, so that climbing ends when
/// nothing changes. Both separators count; prefixes such as "\\?\" belong to the root.
OVOCOR_API std::wstring getDirectory(std::wstring_view path);
