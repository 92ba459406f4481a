#include <ovoui/frame/core/MessageBoxLayout.h>
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

TEST(SavedPosition, FromTheEndsOfTheNumbersABoxCanBeMovedIntoView)
{
    constexpr Box kScreen{0, 0, 1920, 1040};
    const auto place = [&](const wchar_t* text) {
        return movedInto(startPlace(withinReach(parsePosition(text)), {400, 200}, kScreen), kScreen);
    };
    EXPECT_EQ(place(L"-300,900"), (Box{0, 840, 400, 1040}));
    EXPECT_EQ(place(L"2147483647,2147483647"), (Box{1520, 840, 1920, 1040}));
    EXPECT_EQ(place(L"-2147483648,-2147483648"), (Box{0, 0, 400, 200}));
}
