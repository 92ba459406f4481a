#include <ovoui/colour/core/ShadeTriangle.h>

#include <ovoui/colour/core/Round.h>
#include <ovoui/colour/core/WheelGeometry.h>

#include <ovocor/Colour.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace ovoui::colour;

namespace
{

constexpr double kSlack = 1e-9;

/// Black at (100, 250), white at (300, 250), the pure hue at (200, 50).
const ShadeTriangle triangle({100, 50, 300, 250});

void expectAt(double x, double y, double lightness, double saturation)
{
    const ShadeTriangle::Hit hit = triangle.test({x, y}, 0);
    EXPECT_NEAR(hit.lightness, lightness, kSlack) << x << ", " << y;
    EXPECT_NEAR(hit.saturation, saturation, kSlack) << x << ", " << y;
}

bool isIn(double x, double y, double tolerance)
{
    return triangle.test({x, y}, tolerance).inTriangle;
}

} // namespace

TEST(ShadeTriangle, TheCornersAreBlackWhiteAndThePureHue)
{
    EXPECT_NEAR(triangle.test({100, 250}, 0).lightness, 0, kSlack);
    EXPECT_NEAR(triangle.test({300, 250}, 0).lightness, 1, kSlack);
    expectAt(200, 50, 0.5, 1);
    for (const auto& corner : {Vector<2>(100, 250), Vector<2>(300, 250), Vector<2>(200, 50)})
        EXPECT_TRUE(triangle.test(corner, 0).inTriangle);
    EXPECT_EQ(triangle.test({100, 250}, 0).saturation, 0) << "black has none of its own";
    EXPECT_EQ(triangle.test({300, 250}, 0).saturation, 0);
}

TEST(ShadeTriangle, LightnessRunsAlongTheBaseAndSaturationUpwards)
{
    expectAt(150, 250, 0.25, 0);
    expectAt(150, 200, 0.25, 0.5); // a quarter of the height, of the half that is full there
    expectAt(150, 150, 0.25, 1);
    expectAt(200, 150, 0.5, 0.5);
    expectAt(250, 200, 0.75, 0.5);
}

TEST(ShadeTriangle, TheApexIsTheMiddleOfAnOddWidthToo)
{
    const ShadeTriangle odd({0, 0, 101, 80});
    EXPECT_NEAR(odd.test({50.5, 0}, 0).lightness, 0.5, kSlack);
    EXPECT_NEAR(odd.test({50.5, 0}, 0).saturation, 1, kSlack);
    EXPECT_FALSE(odd.test({50, 0}, 0).inTriangle);
}

TEST(ShadeTriangle, OutsideIsWhatTheNearestSideHas)
{
    expectAt(150, 270, 0.25, 0); // below the base
    expectAt(20, 251, 0, 0);
    expectAt(400, 260, 1, 0);
    expectAt(200, 0, 0.5, 1); // above the apex
    // 10 pixels out from the middles of the sides, which rise by 2 to 1
    expectAt(150 - 8.94427190999916, 150 - 4.47213595499958, 0.25, 1);
    expectAt(250 + 8.94427190999916, 150 - 4.47213595499958, 0.75, 1);
}

TEST(ShadeTriangle, SidesKeepToTheirHalfOfTheLightnesses)
{
    EXPECT_NEAR(triangle.test({110, 0}, 0).lightness, 0.5, kSlack) << "left of and above the apex";
    EXPECT_NEAR(triangle.test({290, 0}, 0).lightness, 0.5, kSlack);
    EXPECT_NEAR(triangle.test({0, 240}, 0).lightness, 0, kSlack);
    EXPECT_NEAR(triangle.test({400, 240}, 0).lightness, 1, kSlack);
}

TEST(ShadeTriangle, ATolerantTestTakesPointsNearASide)
{
    EXPECT_FALSE(isIn(200, 250.5, 0));
    EXPECT_TRUE(isIn(200, 253, 3));
    EXPECT_FALSE(isIn(200, 253.01, 3));
    EXPECT_TRUE(isIn(200, 47, 3)) << "round the apex";
    EXPECT_FALSE(isIn(200, 46.99, 3));
    EXPECT_TRUE(isIn(98, 252, 3)) << "round a corner of the base";
    EXPECT_FALSE(isIn(97.5, 252.5, 3));
    EXPECT_TRUE(isIn(150 - 2.68, 150 - 1.34, 3));
    EXPECT_FALSE(isIn(150 - 2.69, 150 - 1.35, 3));
    EXPECT_TRUE(isIn(250 + 2.68, 150 - 1.34, 3));
    EXPECT_FALSE(isIn(250 + 2.69, 150 - 1.35, 3));
}

TEST(ShadeTriangle, MarkersAreWhereTheTestFindsThem)
{
    for (int l = 0; l <= 100; ++l)
        for (int s = 0; s <= 100; s += 4) {
            const Vector<2> marker = triangle.marker(l / 100.0, s / 100.0);
            const ShadeTriangle::Hit hit = triangle.test(marker, kSlack);
            EXPECT_TRUE(hit.inTriangle);
            EXPECT_NEAR(hit.lightness, l / 100.0, kSlack);
            if (l > 0 && l < 100) {
                EXPECT_NEAR(hit.saturation, s / 100.0, 1e-6) << l << ", " << s;
            }
        }
}

TEST(ShadeTriangle, ATriangleOfNoSizeIsNeverHit)
{
    for (const ovoui::frame::Box& rect :
         {ovoui::frame::Box{}, ovoui::frame::Box{5, 0, 3, 10}, ovoui::frame::Box{0, 10, 9, 10}}) {
        const ShadeTriangle::Hit hit = ShadeTriangle(rect).test({4, 5}, 100);
        EXPECT_FALSE(hit.inTriangle);
        EXPECT_EQ(hit.lightness, 0);
        EXPECT_EQ(hit.saturation, 0);
    }
}

// A marker on whole pixels is at most half a pixel off in each direction, and one that comes to lie outside
// is taken back to its side. No component is further off than one pixel's worth of lightness and of chroma.
TEST(ShadeTriangle, TheColourUnderAMarkersPixelIsTheMarkersColour)
{
    for (int size = 40; size <= 400; size += 45) {
        const HueRing ring = ringIn({0, 0, size, size});
        const ShadeTriangle wheel = triangleIn(ring);
        const double bound = 1.0 / wheel.rect().width() + 1.0 / wheel.rect().height();
        for (int degrees = 0; degrees < 360; ++degrees)
            for (int step = 0; step < 36; ++step) {
                const double lightness = step % 6 / 5.0;
                const double saturation = step / 6 / 5.0;
                const Vector<2> marker = wheel.marker(lightness, saturation);
                const ShadeTriangle::Hit hit = wheel.test({rounded(marker.x()), rounded(marker.y())}, 1);
                ASSERT_TRUE(hit.inTriangle);
                const Angle hue = Angle::degrees(degrees);
                const Colour meant = Colour::hls(hue, lightness, saturation);
                const Colour found = Colour::hls(hue, hit.lightness, hit.saturation);
                ASSERT_LE(std::max({std::fabs(meant.r() - found.r()), std::fabs(meant.g() - found.g()),
                                    std::fabs(meant.b() - found.b())}),
                          bound)
                    << size << ": " << degrees << ", " << lightness << ", " << saturation;
            }
    }
}

// Where ring and triangle lie

TEST(WheelGeometry, TheRingFillsTheShorterSide)
{
    const HueRing ring = ringIn({10, 20, 211, 141});
    EXPECT_EQ(ring.outer(), 60) << "half of 121, cut";
    EXPECT_EQ(ring.inner(), 48);
    EXPECT_EQ(ring.centre(), Vector<2>(110, 80)) << "halves of the sums, cut";
    EXPECT_EQ(markerRadius(ring), 6);
}

TEST(WheelGeometry, TheTriangleKeepsItsMarginInTheHexagon)
{
    const ShadeTriangle inRing = triangleIn(HueRing({200, 300}, 80, 100));
    EXPECT_EQ(inRing.rect(), (ovoui::frame::Box{136, 225, 264, 340})); // 80 cos 30 is 69.28
}
