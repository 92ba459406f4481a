#include <ovoui/colour/core/HueRing.h>

#include <ovoui/colour/core/Round.h>
#include <ovoui/colour/core/WheelGeometry.h>

#include <gtest/gtest.h>

#include <cmath>

using namespace ovoui::colour;

namespace
{

constexpr double kSlack = 1e-9;

/// A ring of radius 100 about (200, 300), so its band is 20 wide.
const HueRing ring({200, 300}, 80, 100);
const double c = std::sqrt(3) / 2;

double turned(Angle angle)
{
    return angle.normalised().degrees();
}

double hueAt(double x, double y)
{
    return turned(ring.test({x, y}, 0).hue);
}

/// The difference of two hues, whichever way round is shorter.
double apart(double one, double other)
{
    const double difference = std::fabs(std::remainder(one - other, 360));
    return difference;
}

} // namespace

TEST(HueRing, RedIsAtTheTopAndHuesGoAnticlockwise)
{
    EXPECT_NEAR(hueAt(200, 210), 0, kSlack);
    EXPECT_NEAR(hueAt(200 - 90 * c, 300 - 45), 60, kSlack);
    EXPECT_NEAR(hueAt(200 - 90 * c, 300 + 45), 120, kSlack);
    EXPECT_NEAR(hueAt(200, 390), 180, kSlack);
    EXPECT_NEAR(hueAt(200 + 90 * c, 300 + 45), 240, kSlack);
    EXPECT_NEAR(hueAt(200 + 90 * c, 300 - 45), 300, kSlack);
}

TEST(HueRing, TheMiddleOfAnEdgeIsHalfwayBetweenTwoVertices)
{
    EXPECT_NEAR(hueAt(200 + 80 * c, 300), 270, kSlack);
    EXPECT_NEAR(hueAt(200 - 80 * c, 300), 90, kSlack);
}

TEST(HueRing, HuesAreGivenAsNegativeAngles)
{
    EXPECT_NEAR(ring.test({200 + 80 * c, 300}, 0).hue.degrees(), -90, kSlack);
    EXPECT_NEAR(ring.test({199.999, 210}, 0).hue.degrees(), -360, 0.001);
}

TEST(HueRing, HuesGoOnceRound)
{
    for (int degrees = 0; degrees < 360; ++degrees) {
        const Angle direction = Angle::degrees(degrees);
        const double hue =
            ring.test({200 + 90 * direction.cos(), 300 + 90 * direction.sin()}, 0).hue.degrees();
        EXPECT_LE(hue, 0) << degrees;
        EXPECT_GE(hue, -360) << degrees;
    }
}

TEST(HueRing, TheCentreBelongsToTheFirstSector)
{
    const HueRing::Hit hit = ring.test({200, 300}, 0);
    EXPECT_FALSE(hit.onRing);
    EXPECT_NEAR(hit.hue.degrees(), -30, kSlack) << "the middle of the edge from the top to the right";
}

TEST(HueRing, TheBandLiesAlongTheOutsideOfTheHexagon)
{
    const double edge = 200 + 80 * c; // the right one, which is upright
    EXPECT_FALSE(ring.test({edge - 0.01, 300}, 0).onRing);
    EXPECT_TRUE(ring.test({edge + 0.01, 300}, 0).onRing);
    EXPECT_TRUE(ring.test({edge + 19.99, 300}, 0).onRing);
    EXPECT_FALSE(ring.test({edge + 20.01, 300}, 0).onRing);
}

TEST(HueRing, TheBandIsRoundedAroundTheVertices)
{
    EXPECT_TRUE(ring.test({200, 200}, 0).onRing) << "the outer radius above the vertex";
    EXPECT_FALSE(ring.test({200, 199.99}, 0).onRing);
    EXPECT_FALSE(ring.test({200 + 11, 203}, 0).onRing) << "more than the band from the vertex";
    EXPECT_TRUE(ring.test({200 + 9, 203}, 0).onRing);
    EXPECT_FALSE(ring.test({200, 220.01}, 0).onRing) << "inside of the vertex";
    EXPECT_TRUE(ring.test({200, 219.99}, 0).onRing);
}

TEST(HueRing, TheToleranceWidensTheBandOnBothSides)
{
    const double edge = 200 + 80 * c;
    EXPECT_TRUE(ring.test({edge - 2.99, 300}, 3).onRing);
    EXPECT_FALSE(ring.test({edge - 3.01, 300}, 3).onRing);
    EXPECT_TRUE(ring.test({edge + 22.99, 300}, 3).onRing);
    EXPECT_FALSE(ring.test({edge + 23.01, 300}, 3).onRing);
}

TEST(HueRing, FarAwayPointsHaveAHueToo)
{
    EXPECT_NEAR(hueAt(200, -100000), 0, kSlack);
    EXPECT_NEAR(hueAt(100000, 300), 270, kSlack);
    EXPECT_NEAR(hueAt(200, 300.001), 150, 0.01)
        << "just below the centre, which sees the edge from 180 to 120";
}

TEST(HueRing, MarkersOfTheMainHuesLieTowardsTheVertices)
{
    const auto expectMarker = [](double degrees, double x, double y) {
        const Vector<2> marker = ring.marker(Angle::degrees(degrees));
        EXPECT_NEAR(marker.x(), x, kSlack) << degrees;
        EXPECT_NEAR(marker.y(), y, kSlack) << degrees;
    };
    expectMarker(0, 200, 210);
    expectMarker(60, 200 - 90 * c, 255);
    expectMarker(120, 200 - 90 * c, 345);
    expectMarker(180, 200, 390);
    expectMarker(240, 200 + 90 * c, 345);
    expectMarker(300, 200 + 90 * c, 255);
    expectMarker(90, 200 - 80 * c - 10, 300);
    expectMarker(270, 200 + 80 * c + 10, 300);
}

TEST(HueRing, MarkersStandInTheMiddleOfTheBandAtWholeDegrees)
{
    for (int degrees = 0; degrees < 360; ++degrees) {
        const Vector<2> marker = ring.marker(Angle::degrees(degrees));
        const HueRing::Hit hit = ring.test(marker, 0);
        EXPECT_TRUE(hit.onRing);
        EXPECT_NEAR(apart(turned(hit.hue), degrees), 0, kSlack);
        if (degrees % 60 != 0) {
            EXPECT_TRUE(ring.test(marker, -9.99).onRing) << "10 pixels from either edge of the band";
        }
    }
}

TEST(HueRing, TheMarkersHueIsRoundedAndWrapped)
{
    EXPECT_EQ(ring.marker(Angle::degrees(359.6)), ring.marker(Angle::degrees(0)));
    EXPECT_EQ(ring.marker(Angle::degrees(359.4)), ring.marker(Angle::degrees(359)));
    EXPECT_EQ(ring.marker(Angle::degrees(100.5)), ring.marker(Angle::degrees(101)));
    EXPECT_EQ(ring.marker(Angle::degrees(-60)), ring.marker(Angle::degrees(300)));
    EXPECT_EQ(ring.marker(Angle::degrees(725)), ring.marker(Angle::degrees(5)));
}

// A marker on whole pixels is at most half a pixel off in each direction, which along an edge as long as the
// inner radius is worth 60 / inner degrees a pixel.
TEST(HueRing, TheHueUnderAMarkersPixelIsTheMarkersHue)
{
    for (int size = 40; size <= 400; size += 37) {
        const HueRing wheel = ringIn({3, 5, 3 + size, 5 + size});
        const double bound = std::sqrt(0.5) * 60 / wheel.inner() + kSlack;
        for (int degrees = 0; degrees < 360; ++degrees) {
            const Vector<2> marker = wheel.marker(Angle::degrees(degrees));
            const HueRing::Hit hit = wheel.test({rounded(marker.x()), rounded(marker.y())}, 0);
            EXPECT_TRUE(hit.onRing) << size << ", " << degrees;
            EXPECT_LE(apart(turned(hit.hue), degrees), bound) << size << ", " << degrees;
        }
    }
}

TEST(HueRing, ARingOfNoSizeIsAPoint)
{
    const HueRing point({5, 5}, 0, 0);
    EXPECT_TRUE(point.test({5, 5}, 0).onRing);
    EXPECT_FALSE(point.test({5, 6}, 0).onRing);
    EXPECT_EQ(point.marker(Angle::degrees(77)), Vector<2>(5, 5));
}
