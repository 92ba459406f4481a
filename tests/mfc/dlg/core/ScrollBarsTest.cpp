// Which scroll bars a view needs, and how far it goes.
#include <mfc/src/frame/core/scrollbars.h>

#include <gtest/gtest.h>

using namespace afxdetail;

namespace
{

constexpr ScrollExtent kThickness{17, 15};

ScrollBars bars(int width, int height)
{
    return neededBars({width, height}, {100, 100}, kThickness);
}

} // namespace

TEST(ScrollBars, WhatFitsNeedsNone)
{
    const ScrollBars none = bars(100, 100);
    EXPECT_FALSE(none.horizontal);
    EXPECT_FALSE(none.vertical);
    EXPECT_EQ(none.seen, (ScrollExtent{100, 100}));
}

TEST(ScrollBars, OneDirectionNeedsOne)
{
    const ScrollBars high = bars(83, 101);
    EXPECT_FALSE(high.horizontal);
    EXPECT_TRUE(high.vertical);
    EXPECT_EQ(high.seen, (ScrollExtent{83, 100}));
    const ScrollBars wide = bars(101, 85);
    EXPECT_TRUE(wide.horizontal);
    EXPECT_FALSE(wide.vertical);
    EXPECT_EQ(wide.seen, (ScrollExtent{100, 85}));
}

TEST(ScrollBars, OneMayMakeTheOtherNecessary)
{
    for (const ScrollBars both : {bars(84, 101), bars(101, 86), bars(101, 101)}) {
        EXPECT_TRUE(both.horizontal);
        EXPECT_TRUE(both.vertical);
        EXPECT_EQ(both.seen, (ScrollExtent{83, 85}));
    }
}

TEST(ScrollBars, AWindowSmallerThanItsBarsShowsNothing)
{
    EXPECT_EQ(neededBars({50, 50}, {10, 10}, kThickness).seen, (ScrollExtent{0, 0}));
}

TEST(ScrollBars, PositionsStayWhereTheContentsFillTheWindow)
{
    EXPECT_EQ(scrollPosition(-5, 300, 100), 0);
    EXPECT_EQ(scrollPosition(50, 300, 100), 50);
    EXPECT_EQ(scrollPosition(250, 300, 100), 200);
    EXPECT_EQ(scrollPosition(50, 80, 100), 0);
}
