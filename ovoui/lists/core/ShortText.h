/// How much of a text fits a width, and whether dots follow it.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string_view>

namespace ovoui::lists
{

/// Characters of a shortened text's buffer, the terminating zero included.
constexpr std::size_t kShortTextRoom = 264;

/// What stands behind a text that was cut.
constexpr std::wstring_view kDots = L"...";

/// The dots are measured as these many characters: with the terminating zero.
constexpr int kMeasuredDots = 4;

struct ShortText
{
    std::size_t length = 0; ///< characters that stay
    bool dots = false;      ///< kDots follow

    friend bool operator==(const ShortText&, const ShortText&) = default;
};

/// Whether the text fits as it stands: its extent and `offset` into `width`, all in the same unit.
constexpr bool fits(int extent, int width, int offset)
{
    return extent + offset <= width;
}

/// Gives the extent of the first characters of a text, of this many.
using ExtentOf = std::function<int(std::size_t count)>;

/// Cuts a text of `length` characters, at least one, that does not fit. `dots` is the extent of the dots. The
/// result with dots and a zero has at most kShortTextRoom characters. It is looked for from the end on.
///
/// The dots are left out of account for the first character: it stays when it fits alone. A text of a single
/// character is never cut.
ShortText shorten(std::size_t length, const ExtentOf& extentOf, int dots, int width, int offset);

/// The same, looked for around `guess` characters: a few measurements are enough where that is nearly right.
ShortText shortenNear(std::size_t guess, std::size_t length, const ExtentOf& extentOf, int dots, int width,
                      int offset);

/// Whether characters of a text may be of another extent beside others: accents to be combined, letters that
/// join or run from the right, halves of pairs. The beginnings of such a text, measured within it, need not
/// reach as far as on their own.
bool changesShape(std::wstring_view text);

} // namespace ovoui::lists
