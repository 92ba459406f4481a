/// Where a part stands in a text, and what of it is shown when the text is cut.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace ovoui::lists
{

/// Characters of a text.
struct TextRange
{
    std::size_t begin = 0;
    std::size_t length = 0;

    friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// Every place where `part` stands in `text`, from left to right, none overlapping another. Compares
/// character by character: both are to be put into lower case before where the case does not matter. An
/// empty part stands nowhere.
std::vector<TextRange> placesOf(std::wstring_view part, std::wstring_view text);

/// What a text that was cut shows of `places`: its first `kept` characters are shown, and as many `dots`
/// behind them. A place that reaches into what was cut off includes the dots. Without dots such places end
/// with the text.
std::vector<TextRange> shownOf(const std::vector<TextRange>& places, std::size_t kept, std::size_t dots);

/// The same by what was drawn: `shown` is `text` itself, or its beginning with kDots behind it or without
/// them.
std::vector<TextRange> shownOf(const std::vector<TextRange>& places, std::wstring_view text,
                               std::wstring_view shown);

/// From the text's left edge to both edges of a part, in the unit of the extents.
struct Reach
{
    int left = 0;
    int right = 0;

    friend bool operator==(const Reach&, const Reach&) = default;
};

/// `extents[k - 1]` is the extent of the first k characters. `mirrored`: distances count from the right.
Reach reachOf(const TextRange& range, std::span<const int> extents, bool mirrored);

} // namespace ovoui::lists
