#include <ovoui/sliders/core/CylinderPicture.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace ovoui::sliders;

namespace
{

constexpr CylinderColours kColours{{100, 0, 50}, {220, 200, 250}, {255, 255, 255}};

/// The picture drawn step by step: strips, then lines, of which those at the first coordinate do not show.
std::vector<Shade> drawn(int from, int to, double rotation, bool quarters)
{
    const CylinderPicture picture = cylinderPicture(from, to, rotation, kColours, quarters);
    std::vector<Shade> row(static_cast<std::size_t>(to - from), Shade{-1, -1, -1});
    for (const Strip& strip : picture.strips)
        std::fill(row.begin() + strip.from - from, row.begin() + strip.to - from, strip.colour);
    for (const RibLine& line : picture.lines)
        if (line.at > from && line.at < to)
            row[static_cast<std::size_t>(line.at - from)] = line.colour;
    return row;
}

/// What is seen at each pixel.
std::vector<Shade> pixels(int from, int to, double rotation, bool quarters)
{
    std::vector<Shade> row(static_cast<std::size_t>(to - from), Shade{-1, -1, -1});
    for (const Strip& strip : seenStrips(cylinderPicture(from, to, rotation, kColours, quarters)))
        std::fill(row.begin() + strip.from - from, row.begin() + strip.to - from, strip.colour);
    return row;
}

} // namespace

TEST(CylinderPicture, WhatFacesTheViewerIsLight)
{
    EXPECT_EQ(shadeAt(0, kColours.dark, kColours.light), kColours.light);
    EXPECT_EQ(shadeAt(90, kColours.dark, kColours.light), kColours.dark);
    EXPECT_EQ(shadeAt(-90, kColours.dark, kColours.light), kColours.dark);
    EXPECT_EQ(shadeAt(60, kColours.dark, kColours.light), (Shade{160, 100, 150}));
}

TEST(CylinderPicture, StripsCoverItWithoutAGap)
{
    for (const double rotation : {0.0, 2.5, 5.0, -31.7, 90.0, 1000.1, -40000.0})
        for (const int width : {1, 2, 7, 40, 288, 300}) {
            int end = 3;
            for (const Strip& strip : cylinderPicture(3, 3 + width, rotation, kColours, true).strips) {
                EXPECT_EQ(strip.from, end);
                EXPECT_GT(strip.to, strip.from);
                end = strip.to;
            }
            EXPECT_EQ(end, 3 + width) << rotation;
        }
}

TEST(CylinderPicture, WhatIsSeenTakesAsFewStripsAsThereAreColoursInARow)
{
    for (const double rotation : {0.0, 2.5, 33.0, -31.7, 90.0, 1000.1})
        for (const int width : {1, 2, 7, 40, 288, 300})
            for (const bool quarters : {false, true}) {
                EXPECT_EQ(pixels(3, 3 + width, rotation, quarters), drawn(3, 3 + width, rotation, quarters));
                const CylinderPicture picture = cylinderPicture(3, 3 + width, rotation, kColours, quarters);
                const std::vector<Strip> seen = seenStrips(picture);
                EXPECT_EQ(seen.front().from, 3);
                EXPECT_EQ(seen.back().to, 3 + width);
                for (std::size_t i = 1; i < seen.size(); ++i) {
                    EXPECT_EQ(seen[i].from, seen[i - 1].to);
                    EXPECT_NE(seen[i].colour, seen[i - 1].colour);
                }
                EXPECT_LE(seen.size(), picture.strips.size() + picture.lines.size());
            }
    EXPECT_TRUE(seenStrips({}).empty());
}

TEST(CylinderPicture, StripsDarkenTowardsTheEdges)
{
    const std::vector<Strip> strips = cylinderPicture(0, 300, 2.5, kColours, true).strips;
    const auto darker = [](const Strip& a, const Strip& b) { return a.colour.red < b.colour.red; };
    const auto lightest =
        std::find_if(strips.begin(), strips.end(), [](const Strip& strip) { return strip.to > 150; });
    EXPECT_EQ(lightest->colour, kColours.light) << "the one in the middle";
    EXPECT_TRUE(std::is_sorted(strips.begin(), lightest, darker));
    EXPECT_TRUE(std::is_sorted(strips.rbegin(), std::make_reverse_iterator(lightest), darker));
}

TEST(CylinderPicture, AStripHasTheShadeOfItsMiddle)
{
    const auto stripAt = [](const CylinderPicture& picture, int x) {
        return std::find_if(picture.strips.begin(), picture.strips.end(),
                            [x](const Strip& strip) { return strip.to > x; });
    };
    const CylinderPicture picture = cylinderPicture(0, 300, 0, kColours, false);
    for (const double middle : {-62.5, -32.5, -2.5, 2.5, 47.5}) {
        const double sine = std::sin(middle * 3.14159265358979 / 180);
        const auto strip = stripAt(picture, static_cast<int>(150 + 150 * sine));
        EXPECT_EQ(strip->colour, shadeAt(middle, kColours.dark, kColours.light)) << middle;
    }
}

TEST(CylinderPicture, TheShadingFollowsTheCosineEverywhere)
{
    // A strip is 5 degrees wide, and its ends are whole pixels: that makes a tenth of the range at most.
    const double range = kColours.light.red - kColours.dark.red;
    for (const double rotation : {0.0, 1.3, 2.5, 44.9})
        for (const int width : {150, 200, 288, 300})
            for (const Strip& strip : cylinderPicture(0, width, rotation, kColours, false).strips)
                for (int x = std::max(strip.from, 2); x < std::min(strip.to, width - 2); ++x) {
                    const double sine = (x + 0.5) * 2 / width - 1;
                    const double exact = kColours.dark.red + range * std::sqrt(1 - sine * sine);
                    EXPECT_NEAR(strip.colour.red, exact, range / 10) << width << " at " << x;
                }
}

TEST(CylinderPicture, ARibIsADarkLineAndALightOneBesideIt)
{
    // From both sides the light line is the one towards the viewer.
    const std::vector<RibLine> lines = cylinderPicture(0, 300, 2.5, kColours, false).lines;
    for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
        const RibLine& first = lines[i];
        const RibLine& second = lines[i + 1];
        EXPECT_EQ(second.at, first.at + 1);
        const bool left = second.at < 150;
        EXPECT_LE((left ? first : second).colour.red, (left ? second : first).colour.red);
    }
}

TEST(CylinderPicture, ThereIsARibEveryFiveDegrees)
{
    EXPECT_EQ(cylinderPicture(0, 300, 1, kColours, false).lines.size(), 2u * 36);
    EXPECT_EQ(cylinderPicture(0, 300, 0, kColours, false).lines.size(), 2u * 36)
        << "the one at -90 is hidden";
    const auto row = pixels(0, 300, 2.5, false);
    EXPECT_NE(row[150 + 6], row[150]) << "the rib at 2.5 degrees";
    EXPECT_NE(row[150 - 8], row[150]) << "and the one at -2.5";
}

TEST(CylinderPicture, QuartersStandOutAsBrightBands)
{
    const auto row = pixels(0, 300, 30, true); // the quarter at 0 degrees is seen at -30
    const auto plain = pixels(0, 300, 30, false);
    int brighter = 0;
    for (std::size_t x = 75 - 8; x <= 75 + 8; ++x)
        brighter += row[x].green > plain[x].green ? 1 : 0;
    EXPECT_GE(brighter, 5);
    EXPECT_EQ(row[150], plain[150]) << "elsewhere it is the same";
    EXPECT_EQ(cylinderPicture(0, 300, 30, kColours, true).lines.size(), 2u * 34 + 2u * 16)
        << "eight lines on either side of the quarters at 0 and at 90 degrees";
}

TEST(CylinderPicture, ABandDimsWhereTheCylinderTurnsAway)
{
    for (const double rotation : {0.0, 90.0, -90.0, 180.0}) { // with quarters at both edges
        const auto row = pixels(0, 300, rotation, true);
        EXPECT_LT(row.front().red, 130) << rotation;
        EXPECT_LT(row.back().red, 130) << rotation;
    }
    const auto brightest = [](double rotation) { // beside the middle
        const auto row = pixels(0, 300, rotation, true);
        return std::max_element(row.begin(), row.begin() + 140,
                                [](const Shade& a, const Shade& b) { return a.red < b.red; })
            ->red;
    };
    EXPECT_EQ(brightest(30), 255);
    EXPECT_EQ(brightest(70), 255) << "as bright as can be up to 75 degrees";
}

TEST(CylinderPicture, ABandFadesIntoTheShadeAroundIt)
{
    // A quarter at the edge and near it would be a dark block otherwise.
    const double range = kColours.light.red - kColours.dark.red;
    for (const double rotation : {0.0, 1.0, 90.0}) {
        const auto row = pixels(0, 300, rotation, true);
        for (const int x : {292, 293, 294, 295, 296}) {
            const double sine = (x + 0.5) / 150 - 1;
            const double exact = kColours.dark.red + range * std::sqrt(1 - sine * sine);
            EXPECT_NEAR(row[static_cast<std::size_t>(x)].red, exact, range / 8) << rotation << " at " << x;
        }
    }
}

TEST(CylinderPicture, AFullTurnLooksTheSame)
{
    for (const double rotation : {0.0, 12.5, -88.0, 179.0})
        for (const bool quarters : {false, true}) {
            EXPECT_EQ(pixels(0, 200, rotation, quarters), pixels(0, 200, rotation + 360, quarters));
            EXPECT_EQ(pixels(0, 200, rotation, quarters), pixels(0, 200, rotation - 720, quarters));
        }
}

TEST(CylinderPicture, WithoutRoomOrAnAngleThereIsNothing)
{
    EXPECT_TRUE(cylinderPicture(5, 5, 0, kColours, true).strips.empty());
    EXPECT_TRUE(cylinderPicture(5, 2, 0, kColours, true).strips.empty());
    EXPECT_TRUE(
        cylinderPicture(0, 9, std::numeric_limits<double>::quiet_NaN(), kColours, true).strips.empty());
    EXPECT_TRUE(cylinderPicture(0, 9, std::numeric_limits<double>::infinity(), kColours, true).lines.empty());
}
