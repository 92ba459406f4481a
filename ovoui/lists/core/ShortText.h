/// How much of a text fits a width, and whether dots follow it.
#pragma once

#include <cstddef>
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

/// Cuts a text that does not fit. `extents[k - 1]` is the extent of its first k characters; there is at least
/// one. `dots` is the extent of the dots. The result with dots and a zero has at most kShortTextRoom
/// characters.
///
/// The dots are left out of account for the first character: it stays when it fits alone. A text of a single
/// character is never cut.
ShortText shorten(std::span<const int> extents, int dots, int width, int offset);

} // namespace ovoui::lists
