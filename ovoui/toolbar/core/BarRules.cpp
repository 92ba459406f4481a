#include <ovoui/toolbar/core/BarRules.h>

#include <algorithm>
#include <iterator>

namespace ovoui::toolbar
{

namespace
{

// BN_CLICKED, CBN_SELCHANGE, CBN_SETFOCUS, CBN_KILLFOCUS, CBN_EDITCHANGE, CBN_DROPDOWN, CBN_SELENDOK,
// EN_SETFOCUS, EN_KILLFOCUS, EN_CHANGE
constexpr unsigned kCallbackCodes[] = {0, 1, 3, 4, 5, 7, 9, 0x100, 0x200, 0x300};

constexpr std::uint32_t kRest = 251; // milliseconds

constexpr unsigned char kEnabled = 0x04; // TBSTATE_
constexpr unsigned char kHidden = 0x08;
constexpr unsigned char kWrap = 0x20;
constexpr unsigned char kSeparator = 0x01; // BTNS_

/// Whether the button's width or the row that it ends may be another one.
bool mayMoveOthers(const ButtonFields& before, const ButtonFields& after)
{
    const bool otherWidth = (after.style & kSeparator) && before.image != after.image;
    const bool otherRow = ((before.state ^ after.state) & (kHidden | kWrap)) != 0;
    return before.style != after.style || before.text != after.text || otherWidth || otherRow;
}

} // namespace

bool reachesCallback(unsigned code)
{
    return std::find(std::begin(kCallbackCodes), std::end(kCallbackCodes), code) != std::end(kCallbackCodes);
}

bool updatesRest(std::uint32_t now, std::uint32_t restarted)
{
    return now - restarted < kRest;
}

ButtonChange changeOf(const ButtonFields& before, const ButtonFields& after)
{
    if (mayMoveOthers(before, after))
        return ButtonChange::Layout;
    const bool same = before.image == after.image && before.command == after.command &&
                      ((before.state ^ after.state) & ~kEnabled) == 0 && before.data == after.data;
    return same ? ButtonChange::None : ButtonChange::Look;
}

} // namespace ovoui::toolbar
