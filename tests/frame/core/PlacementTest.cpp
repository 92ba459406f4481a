#include <ovoui/frame/core/BoxParts.h>
#include <ovoui/frame/core/Placement.h>

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

namespace ovoui::frame
{
static void PrintTo(const Box& box, std::ostream* out)
{
    *out << box.left << "," << box.top << "," << box.right << "," << box.bottom;
}
} // namespace ovoui::frame

using namespace ovoui::frame;

namespace
{
constexpr Box kScreen{0, 0, 1920, 1040};
}

TEST(Placement, LeavesABoxInsideAlone)
{
    EXPECT_EQ(movedInto({10, 20, 110, 220}, kScreen), (Box{10, 20, 110, 220}));
    EXPECT_EQ(movedInto(kScreen, kScreen), kScreen);
}

TEST(Placement, PullsABoxBackFromEveryEdge)
{
    EXPECT_EQ(movedInto({1900, 50, 2000, 150}, kScreen), (Box{1820, 50, 1920, 150}));
    EXPECT_EQ(movedInto({-30, 50, 70, 150}, kScreen), (Box{0, 50, 100, 150}));
    EXPECT_EQ(movedInto({50, 1000, 150, 1100}, kScreen), (Box{50, 940, 150, 1040}));
    EXPECT_EQ(movedInto({50, -1, 150, 99}, kScreen), (Box{50, 0, 150, 100}));
}

TEST(Placement, TooWideEndsAtTheLeftEdgeAndHangsOverAtTheRight)
{
    EXPECT_EQ(movedInto({-500, 10, 2500, 20}, kScreen), (Box{0, 10, 3000, 20}));
    EXPECT_EQ(movedInto({700, 10, 3700, 20}, kScreen), (Box{0, 10, 3000, 20}));
}

TEST(Placement, TooTallEndsAtTheTopEdgeAndHangsOverAtTheBottom)
{
    EXPECT_EQ(movedInto({10, 900, 20, 2900}, kScreen), (Box{10, 0, 20, 2000}));
}

TEST(Placement, FromTheEndsOfTheNumbersABoxComesIntoView)
{
    constexpr int kLeast = std::numeric_limits<int>::min();
    constexpr int kMost = std::numeric_limits<int>::max();
    const Box right{1920, 0, 3200, 1040};
    EXPECT_EQ(movedInto({kLeast, kLeast, kLeast + 300, kLeast + 200}, right), (Box{1920, 0, 2220, 200}));
    EXPECT_EQ(movedInto({kMost - 300, kMost - 200, kMost, kMost}, right), (Box{2900, 840, 3200, 1040}));
    const Box left{-1280, -50, 0, 900};
    EXPECT_EQ(movedInto({kLeast, kLeast, kLeast + 300, kLeast + 200}, left), (Box{-1280, -50, -980, 150}));
    EXPECT_EQ(movedInto({kMost - 300, kMost - 200, kMost, kMost}, left), (Box{-300, 700, 0, 900}));
    EXPECT_EQ(movedInto({kLeast, 0, kMost, 100}, kScreen), (Box{0, 0, kMost, 100})) << "wider than a number";
}

TEST(Placement, UsesTheAreaOfAMonitorLeftOfThePrimary)
{
    const Box left{-1280, 100, 0, 900};
    EXPECT_EQ(movedInto({-1300, 850, -1200, 950}, left), (Box{-1280, 800, -1180, 900}));
}

TEST(Placement, CentresAndCutsOddRemaindersTowardsZero)
{
    EXPECT_EQ(centredIn({0, 0, 100, 100}, 50, 30), (Box{25, 35, 75, 65}));
    EXPECT_EQ(centredIn({0, 0, 101, 101}, 50, 30), (Box{25, 35, 75, 65}));
    EXPECT_EQ(centredIn({0, 0, 101, 100}, 200, 301), (Box{-49, -100, 151, 201}));
}

TEST(Placement, ATipIsBelowAndWithoutRoomThereAbove)
{
    for (int top = 0; top < 1040; ++top) {
        const Box about{300, top, 340, top + 20};
        const Box place = tipPlace(about, 80, 18, kScreen);
        EXPECT_EQ(place.left, about.left);
        EXPECT_EQ(place.width(), 80);
        EXPECT_EQ(place.height(), 18);
        const bool hasRoom = about.bottom + 2 + 18 <= kScreen.bottom;
        EXPECT_EQ(hasRoom ? place.top - about.bottom : about.top - place.bottom, 2) << top;
    }
}

TEST(Placement, WhatDropsOpensUpwardsOnlyWhereThereIsMoreRoom)
{
    for (int top = 0; top < 1040; top += 5)
        for (int height = 0; height < 1100; height += 50) {
            const Box button{300, top, 340, top + 20};
            const int above = top;
            const int below = kScreen.bottom - button.bottom;
            const bool up = opensUpwards(button, height, kScreen);
            if (height <= below)
                EXPECT_FALSE(up) << top << ", " << height << ": it fits below";
            else
                EXPECT_EQ(up, above > below) << top << ", " << height;
        }
}

TEST(Placement, AnInsetMovesAllSidesIn)
{
    EXPECT_EQ(inset({1, 2, 10, 20}, 1), (Box{2, 3, 9, 19}));
    EXPECT_EQ(inset({1, 2, 10, 20}, -1), (Box{0, 1, 11, 21}));
}

TEST(Placement, ABoxContainsItsLeftAndTopEdgeAndNotTheOthers)
{
    const Box box{2, 3, 5, 7};
    for (int x = 0; x < 8; ++x)
        for (int y = 0; y < 9; ++y)
            EXPECT_EQ(contains(box, x, y), x >= 2 && x <= 4 && y >= 3 && y <= 6) << x << ' ' << y;
}

TEST(Placement, TheIntersectionIsWhatLiesInBothBoxes)
{
    const Box area{2, 2, 6, 6};
    for (int left = 0; left < 8; ++left)
        for (int top = 0; top < 8; ++top)
            for (int right = left; right < 9; ++right)
                for (int bottom = top; bottom < 9; ++bottom) {
                    const Box box{left, top, right, bottom};
                    const Box common = intersection(box, area);
                    int pixels = 0;
                    for (int x = 0; x < 9; ++x)
                        for (int y = 0; y < 9; ++y) {
                            const bool inBoth = contains(box, x, y) && contains(area, x, y);
                            ASSERT_EQ(contains(common, x, y), inBoth);
                            pixels += inBoth;
                        }
                    ASSERT_TRUE(pixels > 0 || common == Box{});
                    ASSERT_EQ(intersection(area, box), common);
                }
}
