#include <ovoui/frame/core/Scaling.h>

#include <gtest/gtest.h>

#include <cmath>

using namespace ovoui::frame;

TEST(Scaling, EveryLengthGoesToTheNearestPixel)
{
    for (int dotsPerInch = 48; dotsPerInch <= 480; ++dotsPerInch)
        for (int length = -400; length < 400; ++length)
            ASSERT_EQ(scaledTo(dotsPerInch, length), std::round(length * dotsPerInch / 96.0))
                << length << " at " << dotsPerInch;
}

TEST(Scaling, TheWayBackGoesToTheNearestLength)
{
    for (int dotsPerInch = 48; dotsPerInch <= 480; ++dotsPerInch)
        for (int pixels = -400; pixels < 400; ++pixels)
            ASSERT_EQ(scaledFrom(dotsPerInch, pixels), std::round(pixels * 96.0 / dotsPerInch))
                << pixels << " at " << dotsPerInch;
}

TEST(Scaling, WhatIsScaledUpComesBackAsItWas)
{
    for (int dotsPerInch = 96; dotsPerInch <= 480; ++dotsPerInch)
        for (int length = -400; length < 400; ++length)
            ASSERT_EQ(scaledFrom(dotsPerInch, scaledTo(dotsPerInch, length)), length) << dotsPerInch;
}

TEST(Scaling, AnUnknownResolutionLeavesPixelsAsTheyAre)
{
    for (const int pixels : {-7, 0, 120})
        EXPECT_EQ(scaledFrom(0, pixels), pixels);
}

TEST(Scaling, AtTheUsualResolutionLengthsStayWhatTheyAre)
{
    for (int length = -1000; length < 1000; ++length)
        EXPECT_EQ(scaledTo(kUsualDotsPerInch, length), length);
}
