#include <ovoui/lists/core/ShortText.h>

#include <algorithm>
#include <array>

namespace ovoui::lists
{

namespace
{

struct Characters
{
    wchar_t first;
    wchar_t last;
};

/// Those of scripts whose characters stand for themselves, in order: Latin, Greek to Armenian, the scripts of
/// East Asia, and their forms of full and half width.
constexpr std::array kUnchanging{
    Characters{0x0000, 0x02FF}, Characters{0x0370, 0x0482}, Characters{0x048A, 0x058F},
    Characters{0x1E00, 0x200A}, Characters{0x2010, 0x2027}, Characters{0x2030, 0x205F},
    Characters{0x2070, 0x20CF}, Characters{0x2100, 0x2BFF}, Characters{0x2E80, 0x3029},
    Characters{0x3030, 0x3098}, Characters{0x309B, 0xA4CF}, Characters{0xAC00, 0xD7A3},
    Characters{0xF900, 0xFAFF}, Characters{0xFF01, 0xFFEF}};

bool isUnchanging(wchar_t character)
{
    return std::ranges::any_of(kUnchanging, [character](const Characters& range) {
        return range.first <= character && character <= range.last;
    });
}

/// How many characters may stay at most, with the dots behind them.
std::size_t mostOf(std::size_t length)
{
    return std::min(length - 1, kShortTextRoom - kDots.size() - 1);
}

} // namespace

ShortText shorten(std::size_t length, const ExtentOf& extentOf, int dots, int width, int offset)
{
    return shortenNear(length, length, extentOf, dots, width, offset);
}

ShortText shortenNear(std::size_t guess, std::size_t length, const ExtentOf& extentOf, int dots, int width,
                      int offset)
{
    if (width < 1)
        return {};
    if (length == 1)
        return {1, false};
    const auto cutFits = [&](std::size_t count) { return fits(extentOf(count) + dots, width, offset); };
    const std::size_t most = mostOf(length);
    std::size_t kept = std::clamp<std::size_t>(guess, 1, most);
    if (cutFits(kept))
        while (kept < most && cutFits(kept + 1))
            ++kept;
    else
        while (kept > 1 && !cutFits(--kept))
            ;
    if (kept == 1 && !fits(extentOf(1), width, offset))
        return {};
    return {kept, true};
}

bool changesShape(std::wstring_view text)
{
    return !std::ranges::all_of(text, &isUnchanging);
}

} // namespace ovoui::lists
