#include <ovoui/sliders/core/DialPicture.h>
#include <ovoui/sliders/core/DialTurn.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace ovoui::sliders;

namespace
{

constexpr DialColours kColours{.back = {200, 200, 200},
                               .light = {255, 255, 255},
                               .dark = {50, 50, 50},
                               .face = {220, 220, 240},
                               .pointer = {0, 0, 0}};
constexpr int kSize = 100;

Shade at(const std::vector<Shade>& pixels, int x, int y)
{
    return pixels[static_cast<std::size_t>(y * kSize + x)];
}

} // namespace

TEST(DialTurn, ZeroIsAtTheTopAndAnglesGrowClockwise)
{
    EXPECT_DOUBLE_EQ(directionOf(0, -10), 0);
    EXPECT_DOUBLE_EQ(directionOf(10, 0), 90);
    EXPECT_DOUBLE_EQ(std::abs(directionOf(0, 10)), 180);
    EXPECT_DOUBLE_EQ(directionOf(-10, 0), -90);
    EXPECT_DOUBLE_EQ(directionOf(5, -5), 45);
}

TEST(DialTurn, TurnsAddUp)
{
    DialTurn turn;
    turn.begin(10);
    double last = 10;
    for (int i = 1; i <= 72; ++i) {
        const double angle = turn.follow(std::remainder(10 + i * 10, 360.0));
        EXPECT_NEAR(angle - last, 10, 1e-9);
        last = angle;
    }
    EXPECT_NEAR(last, 730, 1e-9);
    turn.begin(-90);
    EXPECT_DOUBLE_EQ(turn.follow(-100), -100) << "a press begins anew";
}

TEST(DialTurn, StopsLimitInEitherOrder)
{
    EXPECT_EQ((DialRange{-135, 135, true}.accepted(200)), 135);
    EXPECT_EQ((DialRange{135, -135, true}.accepted(-200)), -135);
    EXPECT_EQ((DialRange{-135, 135, true}.accepted(20)), 20);
    EXPECT_EQ((DialRange{-135, 135, false}.accepted(2000)), 2000);
}

TEST(DialPicture, ThePointerStandsAtItsAngle)
{
    const auto up = dialPicture(kSize, 0, {}, kColours);
    EXPECT_EQ(at(up, 50, 30), kColours.pointer);
    EXPECT_EQ(at(up, 50, 70), kColours.face);
    const auto right = dialPicture(kSize, 90, {}, kColours);
    EXPECT_EQ(at(right, 70, 50), kColours.pointer);
    EXPECT_EQ(at(right, 50, 30), kColours.face);
    EXPECT_EQ(dialPicture(kSize, 360, {}, kColours).size(), up.size());
    EXPECT_EQ(at(up, 0, 0), kColours.back);
    EXPECT_EQ(at(up, 50, 48), kColours.face) << "it does not begin in the middle";
}

TEST(DialPicture, TheRimIsLightAtTheUpperLeft)
{
    const auto pixels = dialPicture(kSize, 180, {}, kColours);
    const int near = 50 - 26;
    const int far = 50 + 25;
    EXPECT_GT(at(pixels, near, near).red, 230);
    EXPECT_LT(at(pixels, far, far).red, 80);
}

TEST(DialPicture, TicksStandAroundTheKnob)
{
    const auto pixels = dialPicture(kSize, 0, {90}, kColours);
    EXPECT_LT(at(pixels, 95, 50).red, 150);
    EXPECT_EQ(at(pixels, 4, 50), kColours.back);
}

TEST(DialPicture, WithoutRoomOrAnAngleThereIsNothing)
{
    EXPECT_TRUE(dialPicture(0, 0, {}, kColours).empty());
    EXPECT_TRUE(dialPicture(-5, 0, {}, kColours).empty());
    EXPECT_TRUE(dialPicture(10, std::numeric_limits<double>::quiet_NaN(), {}, kColours).empty());
    EXPECT_EQ(dialPicture(1, 0, {0, 90}, kColours).size(), 1u);
}

TEST(DialTicks, GoFromStopToStopInEitherOrder)
{
    for (const DialRange& range : {DialRange{-45, 45, true}, DialRange{45, -45, true}})
        EXPECT_EQ(dialTicks(range, 30), (std::vector<double>{-45, -15, 15, 45}));
    EXPECT_EQ(dialTicks({10, 10, true}, 30), std::vector<double>{10});
}

TEST(DialTicks, GoRoundOnceAtMost)
{
    EXPECT_EQ(dialTicks({0, 0, false}, 90), (std::vector<double>{0, 90, 180, 270})) << "0 is 360";
    EXPECT_EQ(dialTicks({-90, 900, true}, 180), (std::vector<double>{-90, 90, 270}));
    EXPECT_EQ(dialTicks({0, 0, false}, 1).size(), 360u);
}

TEST(DialTicks, ThatCannotBeToldApartAreLeftOut)
{
    for (const double step : {-30.0, 0.0, 0.49})
        EXPECT_TRUE(dialTicks({0, 90, true}, step).empty()) << step;
    for (const double step :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()})
        EXPECT_TRUE(dialTicks({0, 90, true}, step).empty()) << step;
    EXPECT_EQ(dialTicks({0, 1, true}, 0.5).size(), 3u);
}

TEST(DialTicks, EndForStopsThatAreFarAway)
{
    constexpr double kFar = std::numeric_limits<double>::infinity();
    EXPECT_EQ(dialTicks({0, kFar, true}, 90), (std::vector<double>{0, 90, 180, 270, 360}));
    EXPECT_TRUE(dialTicks({-kFar, 90, true}, 90).empty());
    EXPECT_TRUE(dialTicks({-kFar, kFar, true}, 90).empty());
    EXPECT_LT(dialTicks({1e17, 2e17, true}, 0.5).size(), 1000u) << "where half a degree is less than nothing";
}

TEST(DialTicks, TheLastOneIsNotLostToRounding)
{
    for (const double step : {0.55, 0.9, 1.7})
        EXPECT_EQ(dialTicks({-135.1, -135.1 + 9 * step, true}, step).size(), 10u) << step;
}
