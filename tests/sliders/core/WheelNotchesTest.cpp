#include <ovoui/sliders/core/WheelNotches.h>

#include <gtest/gtest.h>

using namespace ovoui::sliders;

TEST(WheelNotches, WholeNotchesCountAtOnce)
{
    WheelNotches wheel;
    EXPECT_EQ(wheel.turned(120), 1);
    EXPECT_EQ(wheel.turned(-360), -3);
    EXPECT_EQ(wheel.turned(0), 0);
}

TEST(WheelNotches, PartsAddUp)
{
    WheelNotches wheel;
    EXPECT_EQ(wheel.turned(50), 0);
    EXPECT_EQ(wheel.turned(50), 0);
    EXPECT_EQ(wheel.turned(50), 1);
    EXPECT_EQ(wheel.turned(89), 0);
    EXPECT_EQ(wheel.turned(1), 1) << "the rest counts";
}

TEST(WheelNotches, TurningBackTakesOff)
{
    WheelNotches wheel;
    EXPECT_EQ(wheel.turned(100), 0);
    EXPECT_EQ(wheel.turned(-100), 0);
    EXPECT_EQ(wheel.turned(-119), 0);
    EXPECT_EQ(wheel.turned(-1), -1);
}
