// Notification codes, the rest of the updates, what a changed button needs.
#include <ovoui/toolbar/core/BarRules.h>

#include <gtest/gtest.h>

#include <set>

using namespace ovoui::toolbar;

TEST(BarRules, TheCallbackIsToldOfTenCodesAndNoOther)
{
    const std::set<unsigned> told{0, 1, 3, 4, 5, 7, 9, 0x100, 0x200, 0x300};
    for (unsigned code = 0; code <= 0xFFFF; ++code)
        EXPECT_EQ(reachesCallback(code), told.contains(code)) << code;
}

TEST(BarRules, UpdatesRestForAQuarterOfASecond)
{
    for (const std::uint32_t restarted : {0u, 1u, 1000u, 0x7FFFFFFFu, 0xFFFFFF00u, 0xFFFFFFFFu})
        for (std::uint32_t passed = 0; passed < 600; ++passed)
            EXPECT_EQ(updatesRest(restarted + passed, restarted), passed <= 250)
                << restarted << " " << passed;
}

TEST(BarRules, ATickCountFromTheFutureIsLongAgo)
{
    EXPECT_FALSE(updatesRest(1000, 1001));
}

namespace
{

constexpr unsigned char kStates[] = {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80};
constexpr unsigned char kEnabled = 0x04;
constexpr unsigned char kHidden = 0x08;
constexpr unsigned char kWrap = 0x20;

const ButtonFields kButton{3, 100, kEnabled, 0, 7, -1};

} // namespace

TEST(BarRules, AnEqualButtonIsNoChange)
{
    EXPECT_EQ(changeOf(kButton, kButton), ButtonChange::None);
}

TEST(BarRules, EachStateBitAsItIsShown)
{
    for (const unsigned char bit : kStates) {
        ButtonFields other = kButton;
        other.state = static_cast<unsigned char>(other.state ^ bit);
        const ButtonChange expected = bit == kEnabled                    ? ButtonChange::None
                                      : (bit == kHidden || bit == kWrap) ? ButtonChange::Layout
                                                                         : ButtonChange::Look;
        EXPECT_EQ(changeOf(kButton, other), expected) << int{bit};
        EXPECT_EQ(changeOf(other, kButton), expected) << int{bit};
    }
}

TEST(BarRules, EachFieldAsItIsShown)
{
    const auto changed = [](auto field, auto value) {
        ButtonFields other = kButton;
        other.*field = value;
        return changeOf(kButton, other);
    };
    EXPECT_EQ(changed(&ButtonFields::image, 4), ButtonChange::Look);
    EXPECT_EQ(changed(&ButtonFields::command, 4), ButtonChange::Look);
    EXPECT_EQ(changed(&ButtonFields::data, 4u), ButtonChange::Look);
    EXPECT_EQ(changed(&ButtonFields::text, 4), ButtonChange::Layout);
    EXPECT_EQ(changed(&ButtonFields::style, static_cast<unsigned char>(1)), ButtonChange::Layout);
}

TEST(BarRules, AWiderSeparatorMovesItsNeighbours)
{
    ButtonFields narrow = kButton;
    narrow.style = 1;
    ButtonFields wide = narrow;
    wide.image = 90;
    EXPECT_EQ(changeOf(narrow, wide), ButtonChange::Layout);
}

TEST(BarRules, AChangeStaysOneWhenTheButtonIsAlsoDisabled)
{
    ButtonFields other = kButton;
    other.state = 0;
    other.command = 5;
    EXPECT_EQ(changeOf(kButton, other), ButtonChange::Look);
}
