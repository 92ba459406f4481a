// Strokes, by the areas that they cover.
#include <ovosvg/core/Coverage.h>
#include <ovosvg/core/PathData.h>
#include <ovosvg/core/Shapes.h>
#include <ovosvg/core/Stroker.h>

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <random>

using namespace ovosvg;

namespace
{

constexpr int kSize = 40;
constexpr double kNear = 1e-3;

double areaOf(const Path& path, const Pen& pen, double tolerance = 1e-4)
{
    Budget budget;
    const auto pieces = strokeOutline(path.flattened(tolerance, budget), pen, tolerance, budget);
    const std::vector<float> values = coverage(pieces, FillRule::NonZero, kSize, kSize, budget).values;
    return std::accumulate(values.begin(), values.end(), 0.0);
}

double areaOf(const char* path, const Pen& pen)
{
    return areaOf(readPath(path).path, pen);
}

/// What a wide pen covers around the middle of the picture: of a quarter, and of the rest.
struct Quarter
{
    double own = 0;
    double others = 0;
};

Quarter coveredOf(const Path& path, const Pen& pen, bool above)
{
    constexpr double kUsual = 0.01; // as coarse as pictures have it
    Budget budget;
    const auto pieces = strokeOutline(path.flattened(kUsual, budget), pen, kUsual, budget);
    const auto [part, values] = coverage(pieces, FillRule::NonZero, kSize, kSize, budget);
    Quarter sum;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const int x = part.left + static_cast<int>(i) % part.width;
        const int y = part.top + static_cast<int>(i) / part.width;
        (x >= kSize / 2 && (y < kSize / 2) == above ? sum.own : sum.others) += static_cast<double>(values[i]);
    }
    return sum;
}

Pen pen(double width, LineCap cap = LineCap::Butt, LineJoin join = LineJoin::Miter)
{
    Pen result;
    result.width = width;
    result.cap = cap;
    result.join = join;
    return result;
}

std::vector<Polyline> dashesOf(const char* path, std::vector<double> dashes, double offset = 0)
{
    Budget budget;
    Pen own;
    own.dashes = std::move(dashes);
    own.dashOffset = offset;
    return dashed(readPath(path).path.flattened(0.01, budget), own, budget);
}

/// Where dashes of a line along x begin and end.
std::vector<double> spans(const std::vector<Polyline>& dashes)
{
    std::vector<double> all;
    for (const Polyline& dash : dashes) {
        all.push_back(dash.points.front().x);
        all.push_back(dash.points.back().x);
    }
    return all;
}

using Spans = std::vector<double>;

} // namespace

TEST(Stroke, OfALineIsItsLengthByTheWidthAndTheCaps)
{
    for (const char* line : {"M10 10L22 10", "M10 10L10 22", "M22 22L10 22", "M10 10L19.6 17.2"}) {
        EXPECT_NEAR(areaOf(line, pen(3)), 12 * 3, kNear) << line;
        EXPECT_NEAR(areaOf(line, pen(3, LineCap::Square)), 15 * 3, kNear) << line;
        EXPECT_NEAR(areaOf(line, pen(3, LineCap::Round)), 12 * 3 + kPi * 1.5 * 1.5, 4 * kNear) << line;
    }
}

TEST(Stroke, OfARightAngleDependsOnTheJoin)
{
    // Two legs of 10 meet; beside their common square there is the outer corner of 2 by 2.
    for (const char* angle : {"M10 20L20 20L20 10", "M20 10L20 20L10 20", "M10 10L20 10L20 20"}) {
        const double legs = 10 * 4 * 2 - 2 * 2;
        EXPECT_NEAR(areaOf(angle, pen(4, LineCap::Butt, LineJoin::Miter)), legs + 4, kNear) << angle;
        EXPECT_NEAR(areaOf(angle, pen(4, LineCap::Butt, LineJoin::Bevel)), legs + 2, kNear) << angle;
        EXPECT_NEAR(areaOf(angle, pen(4, LineCap::Butt, LineJoin::Round)), legs + kPi, 4 * kNear) << angle;
        Pen limited = pen(4);
        limited.miterLimit = 1.41;
        EXPECT_NEAR(areaOf(angle, limited), legs + 2, kNear) << "a miter is 1.414 widths long here";
        limited.miterLimit = 1.42;
        EXPECT_NEAR(areaOf(angle, limited), legs + 4, kNear);
    }
}

TEST(Stroke, OfAClosedBoxHasFourCorners)
{
    EXPECT_NEAR(areaOf("M10 10h20v20h-20z", pen(4)), 24 * 24 - 16 * 16, kNear);
    EXPECT_NEAR(areaOf("M10 10h20v20h-20z", pen(4, LineCap::Square, LineJoin::Round)),
                24 * 24 - 16 * 16 - (16 - kPi * 4), 4 * kNear);
    EXPECT_NEAR(areaOf("M10 10h20v20h-20v-20", pen(4)), 24 * 24 - 16 * 16 - 4, kNear)
        << "not closed, it lacks the corner where it ends";
}

TEST(Stroke, OfAClosedBoxHasItsFirstCornerWhereRelativeNumbersDoNotQuiteReturn)
{
    const double back = 10.4 + 20.2 - 20.2;
    ASSERT_NE(back, 10.4) << "by the rounding of floating point";
    EXPECT_NEAR(areaOf("m10.4 10.2h20.2v20.2h-20.2v-20.2z", pen(4)), 24.2 * 24.2 - 16.2 * 16.2, kNear);
    EXPECT_NEAR(areaOf("m10.4 10.2h20.2v20.2h-20.2v-20.2z", pen(4, LineCap::Butt, LineJoin::Bevel)),
                24.2 * 24.2 - 16.2 * 16.2 - 4 * 2, kNear);
}

TEST(Stroke, OfACircleIsARing)
{
    // The curves that stand for a circle are up to 3 parts in 10,000 larger than it.
    constexpr double kTolerance = 0.002;
    for (const double width : {0.5, 2.0, 8.0})
        for (const LineJoin join : {LineJoin::Miter, LineJoin::Round, LineJoin::Bevel}) {
            const double ring = 2 * kPi * 12 * width;
            EXPECT_NEAR(areaOf(ellipsePath({20, 20}, 12, 12), pen(width, LineCap::Butt, join), kTolerance),
                        ring, ring * 4e-4 + 0.01);
        }
    EXPECT_NEAR(areaOf(ellipsePath({20, 20}, 4, 4), pen(12), kTolerance), kPi * 10 * 10, 0.25)
        << "wider than the circle";
}

TEST(Stroke, OfAnArcEndsSquareToTheArcAndNotToTheLinesThatStandForIt)
{
    // As wide as the circle: a quarter of one of twice the radius, a piece of a cake.
    const Quarter quarter = coveredOf(readPath("M20 10A10 10 0 0 1 30 20").path, pen(20), true);
    EXPECT_NEAR(quarter.own, 100 * kPi, 0.6);
    EXPECT_LT(quarter.others, 0.1);
}

TEST(Stroke, OfAPointShowsItsCap)
{
    for (const char* point : {"M20 20z", "M20 20l0 0"}) {
        EXPECT_NEAR(areaOf(point, pen(4)), 0, kNear) << point;
        EXPECT_NEAR(areaOf(point, pen(4, LineCap::Square)), 16, kNear) << point;
        EXPECT_NEAR(areaOf(point, pen(4, LineCap::Round)), kPi * 4, 4 * kNear) << point;
    }
}

TEST(Stroke, OfAPlaceAloneIsNothing)
{
    EXPECT_EQ(areaOf("M20 20", pen(4, LineCap::Round)), 0);
    EXPECT_EQ(areaOf("M20 20M30 30", pen(4, LineCap::Square)), 0);
}

TEST(Stroke, BackOnItselfIsNotTwice)
{
    EXPECT_NEAR(areaOf("M10 20L30 20L10 20", pen(4, LineCap::Butt, LineJoin::Bevel)), 80, kNear);
    EXPECT_NEAR(areaOf("M10 20L30 20L10 20", pen(4, LineCap::Butt, LineJoin::Round)), 80 + kPi * 2,
                4 * kNear);
    EXPECT_NEAR(areaOf("M10 20L30 20z", pen(4, LineCap::Butt, LineJoin::Round)), 80 + kPi * 4, 4 * kNear);
    EXPECT_NEAR(areaOf("M10 20L30 20M20 10L20 30", pen(4)), 80 + 80 - 16, kNear) << "a cross";
}

TEST(Stroke, WithoutAWidthIsNothing)
{
    EXPECT_EQ(areaOf("M10 10L20 20", pen(0)), 0);
    EXPECT_EQ(areaOf("M10 10L20 20", pen(-1)), 0);
}

TEST(Stroke, TurnedIsAsLarge)
{
    std::mt19937 random(2);
    std::uniform_real_distribution<double> angle(0, 360);
    for (int round = 0; round < 30; ++round) {
        Path path;
        const Matrix turn = Matrix::translation(20, 20) * Matrix::rotation(angle(random));
        const Point corners[] = {{-8, 3}, {6, 3}, {6, -5}, {-2, -9}};
        path.moveTo(turn.map(corners[0]));
        for (int i = 1; i < 4; ++i)
            path.lineTo(turn.map(corners[i]));
        Path upright;
        upright.moveTo(corners[0] + Point{20, 20});
        for (int i = 1; i < 4; ++i)
            upright.lineTo(corners[i] + Point{20, 20});
        for (const LineJoin join : {LineJoin::Miter, LineJoin::Round, LineJoin::Bevel})
            ASSERT_NEAR(areaOf(path, pen(2.5, LineCap::Round, join)),
                        areaOf(upright, pen(2.5, LineCap::Round, join)), 0.005);
    }
}

// Dashes

TEST(Dashes, TakeTurnsWithGaps)
{
    EXPECT_EQ(spans(dashesOf("M0 0H10", {3, 2})), (Spans{0, 3, 5, 8}));
    EXPECT_EQ(spans(dashesOf("M0 0H10", {3})), (Spans{0, 3, 6, 9})) << "an odd list counts twice";
    EXPECT_EQ(spans(dashesOf("M0 0H10", {1, 2, 3})), (Spans{0, 1, 3, 6, 7, 9}));
    EXPECT_EQ(spans(dashesOf("M0 0H10", {20, 2})), (Spans{0, 10}));
    EXPECT_EQ(spans(dashesOf("M0 0H10", {})), (Spans{0, 10})) << "none";
    EXPECT_EQ(spans(dashesOf("M0 0H10", {0, 0})), (Spans{0, 10})) << "without a length they do not count";
}

TEST(Dashes, BeginAtTheirOffset)
{
    EXPECT_EQ(spans(dashesOf("M0 0H10", {3, 2}, 1)), (Spans{0, 2, 4, 7, 9, 10}));
    EXPECT_EQ(spans(dashesOf("M0 0H10", {3, 2}, 4)), (Spans{1, 4, 6, 9}));
    EXPECT_EQ(spans(dashesOf("M0 0H10", {3, 2}, -1)), (Spans{1, 4, 6, 9}));
    EXPECT_EQ(spans(dashesOf("M0 0H10", {3, 2}, 51)), (Spans{0, 2, 4, 7, 9, 10}));
}

TEST(Dashes, GoRoundCorners)
{
    const auto dashes = dashesOf("M0 0H4V10", {6, 2});
    ASSERT_EQ(dashes.size(), 2u);
    EXPECT_EQ(dashes[0].points, (std::vector<Point>{{0, 0}, {4, 0}, {4, 2}}));
    EXPECT_EQ(dashes[1].points, (std::vector<Point>{{4, 4}, {4, 10}}));
}

TEST(Dashes, OfAClosedLineMeetWhereItBegins)
{
    // 40 around: on to 3, and again from 36 on.
    const auto dashes = dashesOf("M0 0h10v10h-10z", {5, 33}, 2);
    ASSERT_EQ(dashes.size(), 1u);
    EXPECT_EQ(dashes[0].points, (std::vector<Point>{{0, 4}, {0, 0}, {3, 0}}));
    EXPECT_FALSE(dashes[0].closed);
}

TEST(Dashes, ThatGoAllAroundAClosedLineLeaveNoGapInItsFirstCorner)
{
    for (const double length : {80.0, 1000.0}) {
        Pen whole = pen(4);
        whole.dashes = {length};
        EXPECT_NEAR(areaOf("M10 10h20v20h-20z", whole), 24 * 24 - 16 * 16, kNear) << length;
        EXPECT_NEAR(areaOf("M10 10h20v20h-20v-20", whole), 24 * 24 - 16 * 16 - 4, kNear) << "not closed";
    }
}

TEST(Dashes, OfACircleEndSquareToIt)
{
    Pen cake = pen(20);
    cake.dashes = {5 * kPi, 100};
    const Quarter quarter = coveredOf(ellipsePath({20, 20}, 10, 10), cake, false);
    EXPECT_NEAR(quarter.own, 100 * kPi, 0.6);
    EXPECT_LT(quarter.others, 0.2);
}

TEST(Dashes, WithoutALengthAreDotsUnderRoundCaps)
{
    Pen dots = pen(2, LineCap::Round);
    dots.dashes = {0, 5};
    EXPECT_NEAR(areaOf("M10 20H31", dots), 5 * kPi, 0.02);
}

TEST(Dashes, WithoutALengthAreSquaresThatLieAlongTheLineUnderSquareCaps)
{
    const auto outline = [](const char* path, const Pen& own) {
        Budget budget;
        return strokeOutline(readPath(path).path.flattened(0.01, budget), own, 0.01, budget);
    };
    Pen dots = pen(2, LineCap::Square);
    dots.dashes = {0, 20};
    const auto dot = outline("M10 10L18 16", dots);
    const auto same = outline("M9.2 9.4L10.8 10.6", pen(2));
    ASSERT_EQ(dot.size(), 1u);
    ASSERT_EQ(same.size(), 1u);
    ASSERT_EQ(dot[0].size(), same[0].size());
    for (std::size_t i = 0; i < dot[0].size(); ++i)
        EXPECT_LT(length(dot[0][i] - same[0][i]), 1e-9) << i;
}

TEST(Dashes, BeyondAllBoundsDoNotCount)
{
    for (const double offset : {-1.0, 0.0, 1.0, -1e308}) {
        EXPECT_EQ(spans(dashesOf("M0 0H10", {1e308}, offset)), (Spans{0, 10}))
            << "twice its length is no number";
        EXPECT_EQ(spans(dashesOf("M0 0H10", {1e308, 1e308}, offset)), (Spans{0, 10}));
    }
    EXPECT_EQ(spans(dashesOf("M0 0H10", {4e307, 1}, -1)), (Spans{1, 10}));
}

TEST(Dashes, TooManyAreAFailure)
{
    EXPECT_THROW(dashesOf("M0 0H1e6", {1e-3, 1e-3}), SvgFailure);
    EXPECT_THROW(dashesOf("M0 0H1e300", {1, 1}), SvgFailure) << "whose steps are lost in rounding";
}
