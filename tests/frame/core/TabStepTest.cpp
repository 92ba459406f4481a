#include <ovoui/frame/core/TabStep.h>

#include <gtest/gtest.h>

using namespace ovoui::frame;

TEST(TabStep, GoesForwardAndRoundTheEnd)
{
    EXPECT_EQ(nextTab(0, 4, TabDirection::Forward), 1);
    EXPECT_EQ(nextTab(3, 4, TabDirection::Forward), 0);
}

TEST(TabStep, GoesBackwardAndRoundTheStart)
{
    EXPECT_EQ(nextTab(2, 4, TabDirection::Backward), 1);
    EXPECT_EQ(nextTab(0, 4, TabDirection::Backward), 3);
}

TEST(TabStep, WithoutACurrentTabGoesToTheFirstForward)
{
    EXPECT_EQ(nextTab(-1, 4, TabDirection::Forward), 0);
    EXPECT_EQ(nextTab(-1, 1, TabDirection::Forward), 0);
}

TEST(TabStep, WithoutACurrentTabGoesToTheLastButOneBackward)
{
    EXPECT_EQ(nextTab(-1, 4, TabDirection::Backward), 2);
    EXPECT_EQ(nextTab(-1, 2, TabDirection::Backward), 0);
}

TEST(TabStep, KeepsTheSignOfTheDividendInARowOfOne)
{
    EXPECT_EQ(nextTab(-1, 1, TabDirection::Backward), 0);
    EXPECT_EQ(nextTab(0, 1, TabDirection::Backward), 0);
    EXPECT_EQ(nextTab(0, 1, TabDirection::Forward), 0);
}
