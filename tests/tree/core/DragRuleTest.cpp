#include <ovoui/tree/core/DragRule.h>

#include <gtest/gtest.h>

using namespace ovoui::tree;

namespace
{

constexpr unsigned kMove = 0x200;
constexpr unsigned kLeftUp = 0x202;
constexpr unsigned kKeyIsDown = 0x100;
constexpr unsigned kEscape = 0x1B;
constexpr unsigned kButtons = 0x01 | 0x02 | 0x10;

bool isOfMouse(unsigned message)
{
    return message >= 0x200 && message <= 0x20E;
}

} // namespace

TEST(DragRule, TheRectangleBeginsHalfItsWidthBeforeThePressBothWays)
{
    EXPECT_EQ(dragArea(100, 200, 4, 4), (ovoui::frame::Box{98, 198, 102, 202}));
    EXPECT_EQ(dragArea(100, 200, 8, 4), (ovoui::frame::Box{96, 196, 104, 200})) << "by the width";
}

TEST(DragRule, TheWaitEndsWhenAllButtonsAreUpAndWithEscape)
{
    for (unsigned message = 0; message <= 0x300; ++message)
        for (unsigned keys = 0; keys <= 0x7F; ++keys) {
            const bool expected =
                isOfMouse(message) ? !(keys & kButtons) : message == kKeyIsDown && keys == kEscape;
            ASSERT_EQ(endsWithoutDrag({message, keys, 0, 0}), expected) << message << ' ' << keys;
        }
}

TEST(DragRule, ThePointerLeavesTheRectangleByAnyMessageOfTheMouseButTheWheels)
{
    const ovoui::frame::Box area = dragArea(100, 200, 4, 4);
    for (unsigned message = 0; message <= 0x300; ++message)
        for (int x = 96; x <= 104; ++x)
            for (int y = 196; y <= 204; ++y) {
                const bool outside = x < 98 || x > 101 || y < 198 || y > 201;
                const bool tells = isOfMouse(message) && message != 0x20A && message != 0x20E;
                ASSERT_EQ(leaves({message, 0x01, x, y}, area), tells && outside) << message;
            }
}

TEST(DragRule, AMessageIsLateFromTheEndOnAlsoWhereTheTimeBeginsAnew)
{
    constexpr std::uint32_t kWait = 500;
    for (const std::uint32_t press : {0u, 1000u, 0x7FFFFF00u, 0x80000000u, 0xFFFFFF00u, 0xFFFFFFFFu})
        for (std::uint32_t passed = 0; passed <= 3 * kWait; ++passed)
            ASSERT_EQ(isLate(press + passed, press + kWait), passed >= kWait) << press << ' ' << passed;
}

TEST(DragRule, MovesAndTheReleaseOfTheLeftButtonDrawABandAndEscapeGivesItUp)
{
    for (unsigned message = 0; message <= 0x300; ++message)
        for (unsigned keys = 0; keys <= 0x7F; ++keys) {
            BandStep expected = isOfMouse(message) ? BandStep::Ignore : BandStep::PassOn;
            if (message == kMove || message == kLeftUp)
                expected = (keys & 0x01) ? BandStep::Show : BandStep::Finish;
            if (message == kKeyIsDown && keys == kEscape)
                expected = BandStep::GiveUp;
            ASSERT_EQ(bandStep({message, keys, 0, 0}), expected) << message << ' ' << keys;
        }
}
