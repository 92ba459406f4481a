#include <ovoui/sliders/core/SliderMapping.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace ovoui::sliders;

namespace
{

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr Positions kHundred{0, 100};

int position(double value, Mapping mapping, RealRange range)
{
    return positionOf(value, mapping, range, kHundred);
}

double value(int position, Mapping mapping, RealRange range)
{
    return valueAt(position, mapping, range, kHundred);
}

} // namespace

TEST(SliderMapping, LinearStepsAreEqualDifferences)
{
    EXPECT_EQ(position(1, Mapping::Linear, {1, 100}), 0);
    EXPECT_EQ(position(100, Mapping::Linear, {1, 100}), 100);
    EXPECT_EQ(position(50.5, Mapping::Linear, {1, 100}), 50);
    EXPECT_EQ(position(-5, Mapping::Linear, {-10, 0}), 50);
    EXPECT_DOUBLE_EQ(value(50, Mapping::Linear, {1, 100}), 50.5);
}

TEST(SliderMapping, LogarithmicStepsAreEqualRatios)
{
    EXPECT_EQ(position(1, Mapping::Logarithmic, {0.01, 100}), 50);
    EXPECT_EQ(position(10, Mapping::Logarithmic, {0.01, 100}), 75);
    EXPECT_DOUBLE_EQ(value(50, Mapping::Logarithmic, {0.01, 100}), 1.0);
    EXPECT_NEAR(value(75, Mapping::Logarithmic, {0.01, 100}), 10.0, 1e-12);
}

TEST(SliderMapping, SquareRootsAreTakenOneWayAndTheFractionIsSquaredTheOther)
{
    EXPECT_EQ(position(25, Mapping::SquareRoot, {0, 100}), 50);
    EXPECT_DOUBLE_EQ(value(50, Mapping::SquareRoot, {0, 100}), 25);

    // Not each other's inverse where the range does not begin at zero.
    EXPECT_EQ(position(4, Mapping::SquareRoot, {1, 9}), 50);
    EXPECT_DOUBLE_EQ(value(50, Mapping::SquareRoot, {1, 9}), 3);
}

TEST(SliderMapping, HalvesAreRoundedAwayFromZero)
{
    EXPECT_EQ(positionOf(0.5, Mapping::Linear, {0, 1}, {0, 5}), 3);
    EXPECT_EQ(positionOf(0.5, Mapping::Linear, {0, 1}, {-5, 0}), -3);
}

TEST(SliderMapping, ValuesThatAreNotPositiveCountAsTheLowEnd)
{
    for (const double wrong : {0.0, -0.0, -1.0, -kInfinity}) {
        EXPECT_EQ(position(wrong, Mapping::Logarithmic, {2, 8}), 0) << wrong;
        EXPECT_EQ(position(wrong, Mapping::SquareRoot, {4, 9}), 0) << wrong;
        EXPECT_EQ(position(wrong, Mapping::Logarithmic, {8, 2}), 0)
            << wrong << ", the low end is the greater";
        EXPECT_EQ(position(wrong, Mapping::SquareRoot, {9, 4}), 0) << wrong;
    }
    EXPECT_EQ(position(0, Mapping::Linear, {-10, 10}), 50) << "an ordinary number there";
}

TEST(SliderMapping, EveryValueHasOneOfThePositions)
{
    const RealRange ranges[] = {{1, 100},
                                {100, 1},
                                {5, 5},
                                {0, 0},
                                {0, 10},
                                {-10, 10},
                                {-10, -1},
                                {kNan, 1},
                                {1, kInfinity},
                                {1e308, -1e308},
                                {-kInfinity, kInfinity}};
    const double values[] = {0, 1, -1, 5, 1e-300, 1e300, -1e300, kInfinity, -kInfinity, kNan};
    for (const Mapping mapping : {Mapping::Linear, Mapping::Logarithmic, Mapping::SquareRoot})
        for (const RealRange& range : ranges)
            for (const double number : values)
                for (const Positions& positions : {kHundred, Positions{7, 7}, Positions{kIntMin, kIntMax}}) {
                    const int found = positionOf(number, mapping, range, positions);
                    EXPECT_GE(found, positions.minimum);
                    EXPECT_LE(found, positions.maximum);
                }
}

TEST(SliderMapping, TheEndsAreThoseOfTheRangeToTheLastBit)
{
    for (const RealRange& range : {RealRange{1, 1000}, {1000, 1}, {0.1, 1000}, {8, 72}, {0.3, 3e7}})
        for (const Mapping mapping : {Mapping::Linear, Mapping::Logarithmic, Mapping::SquareRoot}) {
            EXPECT_EQ(valueAtShare(0, mapping, range), range.low);
            EXPECT_EQ(valueAtShare(1, mapping, range), range.high);
        }
}

TEST(SliderMapping, ReversedRangesRunTheOtherWay)
{
    EXPECT_EQ(position(100, Mapping::Linear, {100, 0}), 0);
    EXPECT_EQ(position(0, Mapping::Linear, {100, 0}), 100);
    EXPECT_EQ(position(10, Mapping::Logarithmic, {1000, 0.1}), 50);
    EXPECT_NEAR(value(50, Mapping::Logarithmic, {1000, 0.1}), 10, 1e-12);
    EXPECT_DOUBLE_EQ(value(100, Mapping::SquareRoot, {9, 0}), 0);
}

TEST(SliderMapping, WhatCannotBeMappedIsTheLowEnd)
{
    EXPECT_EQ(position(5, Mapping::Linear, {5, 5}), 0) << "an empty range";
    EXPECT_EQ(position(kNan, Mapping::Linear, {0, 10}), 0);
    EXPECT_DOUBLE_EQ(value(50, Mapping::Logarithmic, {0, 10}), 0);
    EXPECT_DOUBLE_EQ(value(50, Mapping::Logarithmic, {-1, 10}), -1);
    EXPECT_DOUBLE_EQ(valueAt(5, Mapping::Linear, {3, 8}, {5, 5}), 3) << "a slider with one position";
}

TEST(SliderMapping, TheValueOfAPositionHasThatPosition)
{
    for (int step = 0; step <= 100; ++step) {
        EXPECT_EQ(position(value(step, Mapping::Linear, {-3, 11}), Mapping::Linear, {-3, 11}), step);
        EXPECT_EQ(position(value(step, Mapping::Logarithmic, {0.5, 4000}), Mapping::Logarithmic, {0.5, 4000}),
                  step);
        EXPECT_EQ(position(value(step, Mapping::SquareRoot, {0, 50}), Mapping::SquareRoot, {0, 50}), step);
    }
}

TEST(SliderMapping, APageIsAWholeNumberOfPositions)
{
    EXPECT_EQ(pageSize({0, 100}, 10), 10);
    EXPECT_EQ(pageSize({0, 100}, 3), 33);
    EXPECT_EQ(pageSize({-7, 7}, 20), 0);
    EXPECT_EQ(pageSize({0, 100}, 0), 100) << "without pages: all of it";
    EXPECT_EQ(pageSize({kIntMin, kIntMax}, 1), kIntMax);
}
