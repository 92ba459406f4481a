#include <ovocor/Angle.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

TEST(Angle, IsNoTurnAtFirst)
{
    EXPECT_EQ(Angle().degrees(), 0);
    EXPECT_EQ(Angle().radians(), 0);
}

TEST(Angle, GivesDegreesBackExactly)
{
    for (const double value : {0.1, 59.99999999, 210.0, -60.0, 400.0, 359.6, -1e-300, 1e300})
        EXPECT_EQ(Angle::degrees(value).degrees(), value);
}

TEST(Angle, ConvertsBetweenDegreesAndRadians)
{
    EXPECT_DOUBLE_EQ(Angle::radians(std::numbers::pi).degrees(), 180);
    EXPECT_DOUBLE_EQ(Angle::degrees(-90).radians(), -std::numbers::pi / 2);
    EXPECT_DOUBLE_EQ(Angle::radians(0.3).radians(), 0.3);
}

TEST(Angle, HasExactSinesAndCosinesAtQuarterTurns)
{
    const double sines[] = {0, 1, 0, -1};
    for (int quarter = -9; quarter <= 9; ++quarter) {
        const Angle angle = Angle::degrees(90.0 * quarter);
        EXPECT_EQ(angle.sin(), sines[(quarter + 12) % 4]) << angle.degrees();
        EXPECT_EQ(angle.cos(), sines[(quarter + 13) % 4]) << angle.degrees();
    }
}

TEST(Angle, AgreesWithTheStandardFunctions)
{
    for (double degrees = -725; degrees < 725; degrees += 0.37) {
        const Angle angle = Angle::degrees(degrees);
        EXPECT_NEAR(angle.sin(), std::sin(angle.radians()), 1e-13) << degrees;
        EXPECT_NEAR(angle.cos(), std::cos(angle.radians()), 1e-13) << degrees;
    }
}

TEST(Angle, KeepsItsDirectionWhenItIsHuge)
{
    const Angle angle = Angle::degrees(360e15 + 64); // the next number that a double can hold there
    EXPECT_DOUBLE_EQ(angle.sin(), Angle::degrees(64).sin());
    EXPECT_DOUBLE_EQ(angle.cos(), Angle::degrees(64).cos());
}

TEST(Angle, IsNormalisedToOneTurn)
{
    struct Row
    {
        double given;
        double expected;
    };
    for (const Row& row : {Row{0, 0}, {359.5, 359.5}, {360, 0}, {-60, 300}, {-360, 0}, {-720, 0}, {765, 45}})
        EXPECT_EQ(Angle::degrees(row.given).normalised().degrees(), row.expected) << row.given;
}

TEST(Angle, NeverReachesTheFullTurnWhenItIsNormalised)
{
    EXPECT_EQ(Angle::degrees(-1e-300).normalised().degrees(), 0);
    EXPECT_FALSE(std::signbit(Angle::degrees(-360).normalised().degrees()));
}

TEST(Angle, WithoutAFiniteValueIsNormalisedToZero)
{
    EXPECT_EQ(Angle::degrees(std::numeric_limits<double>::infinity()).normalised().degrees(), 0);
    EXPECT_EQ(Angle::degrees(std::numeric_limits<double>::quiet_NaN()).normalised().degrees(), 0);
}
