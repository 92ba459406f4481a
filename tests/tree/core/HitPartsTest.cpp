#include <ovoui/tree/core/HitParts.h>

#include <gtest/gtest.h>

using namespace ovoui::tree;

TEST(HitParts, PressesAreTakenEverywhereButOnTheButton)
{
    unsigned taken = 0;
    for (unsigned bit = 1; bit < 0x10000; bit <<= 1)
        taken |= takesPress(bit) ? bit : 0;
    EXPECT_EQ(taken, 0x36Fu);
    EXPECT_FALSE(takesPress(0));
    EXPECT_FALSE(takesPress(0x10000));
}

TEST(HitParts, ReleasesAreTakenOnItemsAndOutside)
{
    unsigned taken = 0;
    for (unsigned bit = 1; bit < 0x10000; bit <<= 1)
        taken |= takesRelease(bit) ? bit : 0;
    EXPECT_EQ(taken, 0x347u);
}

TEST(HitParts, TheItemIsItsIconLabelAndStateIcon)
{
    unsigned item = 0;
    for (unsigned bit = 1; bit < 0x10000; bit <<= 1)
        item |= hitsItem(bit) ? bit : 0;
    EXPECT_EQ(item, 0x46u);
}

TEST(HitParts, TheNodesOwnPartHasNoFlagOfThePlatform)
{
    EXPECT_FALSE(isNodesOwnPart(0));
    EXPECT_TRUE(isNodesOwnPart(0x10000));
    EXPECT_TRUE(isNodesOwnPart(0x80000000));
    EXPECT_FALSE(isNodesOwnPart(0x10004));
}

TEST(HitParts, APressBesideAllItemsStandsForAnEndOfTheTree)
{
    EXPECT_EQ(beyond(kHitNowhere), Beyond::LastItem);
    EXPECT_EQ(beyond(kHitBelow), Beyond::LastItem);
    EXPECT_EQ(beyond(kHitAbove), Beyond::FirstItem);
    EXPECT_EQ(beyond(kHitRight), Beyond::Nothing);
    EXPECT_EQ(beyond(kHitLabel), Beyond::Nothing);
}

TEST(HitParts, ASecondClickOnTheCaretsLabelEditsIt)
{
    for (unsigned flags = 0; flags <= 0x3FF; ++flags)
        for (const bool onCaret : {false, true})
            for (const bool canBeEdited : {false, true})
                EXPECT_EQ(editsLabel(flags, onCaret, canBeEdited),
                          (flags & kHitLabel) && onCaret && canBeEdited);
}
