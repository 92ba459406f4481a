// How bars share a frame.
#include <mfc/src/frame/core/barlayout.h>

#include <gtest/gtest.h>

using namespace afxdetail;

TEST(BarLayout, ABarTakesAStripOffItsSide)
{
    struct Case
    {
        Side side;
        Area place;
        Area rest;
    };
    const Case cases[] = {
        {Side::Top, {10, 20, 60, 50}, {10, 50, 210, 120}},
        {Side::Bottom, {10, 90, 60, 120}, {10, 20, 210, 90}},
        {Side::Left, {10, 20, 60, 50}, {60, 20, 210, 120}},
        {Side::Right, {160, 20, 210, 50}, {10, 20, 160, 120}},
    };
    for (const Case& c : cases) {
        Area free{10, 20, 210, 120};
        EXPECT_EQ(takeStrip(free, {50, 30}, c.side), c.place) << static_cast<int>(c.side);
        EXPECT_EQ(free, c.rest) << static_cast<int>(c.side);
    }
}

TEST(BarLayout, ABarTakesNoMoreThanThereIs)
{
    for (const Side side : {Side::Left, Side::Top, Side::Right, Side::Bottom}) {
        Area free{0, 0, 100, 50};
        EXPECT_EQ(takeStrip(free, {32767, 32767}, side), (Area{0, 0, 100, 50}));
        EXPECT_TRUE(free.width() == 0 || free.height() == 0);
    }
}

TEST(BarLayout, ABarGetsNothingWhereNothingIsLeft)
{
    Area free{10, 10, 5, 5}; // turned inside out by those before
    const Area before = free;
    const Area place = takeStrip(free, {20, 20}, Side::Top);
    EXPECT_EQ(place.width(), 0);
    EXPECT_EQ(place.height(), 0);
    EXPECT_EQ(free, before);
    Area room{0, 0, 9, 9};
    EXPECT_EQ(takeStrip(room, {-3, -3}, Side::Left).width(), 0) << "nor does a size that is none";
}

TEST(BarLayout, BarsAddUpAcrossAndTheLongestCountsAlong)
{
    Extent total;
    addToTotal(total, {0, 0, 100, 20}, Side::Top);
    addToTotal(total, {0, 0, 80, 30}, Side::Bottom);
    EXPECT_EQ(total.width, 100);
    EXPECT_EQ(total.height, 50);
    addToTotal(total, {0, 0, 15, 70}, Side::Left);
    EXPECT_EQ(total.width, 115);
    EXPECT_EQ(total.height, 70);
}
