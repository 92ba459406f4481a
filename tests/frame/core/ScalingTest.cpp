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

TEST(Scaling, AtTheUsualResolutionLengthsStayWhatTheyAre)
{
    for (int length = -1000; length < 1000; ++length)
        EXPECT_EQ(scaledTo(kUsualDotsPerInch, length), length);
}
