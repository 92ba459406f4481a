#include <ovoui/frame/core/SavedPosition.h>

#include <gtest/gtest.h>

using namespace ovoui::frame;

TEST(SavedPosition, RoundTrips)
{
    for (const SavedPosition position : {SavedPosition{0, 0}, SavedPosition{-5, 70000}, SavedPosition{640, -300}})
        EXPECT_EQ(parsePosition(formatPosition(position)), position);
}

TEST(SavedPosition, NothingWrittenIsNotRemembered)
{
    EXPECT_FALSE(parsePosition(L"").remembered());
    EXPECT_FALSE(SavedPosition{}.remembered());
}

TEST(SavedPosition, WhatCannotBeReadStaysUnset)
{
    EXPECT_EQ(parsePosition(L"oak"), (SavedPosition{-1, -1}));
    EXPECT_EQ(parsePosition(L"17"), (SavedPosition{17, -1}));
    EXPECT_EQ(parsePosition(L"17,"), (SavedPosition{17, -1}));
    EXPECT_EQ(parsePosition(L"17;8"), (SavedPosition{17, -1}));
    EXPECT_FALSE(parsePosition(L"17,elm").remembered());
}

TEST(SavedPosition, ACoordinateOfMinusOneCountsAsUnset)
{
    EXPECT_FALSE(parsePosition(L"-1,40").remembered());
    EXPECT_FALSE(parsePosition(L"40,-1").remembered());
    EXPECT_TRUE(parsePosition(L"-2,-2").remembered());
}
