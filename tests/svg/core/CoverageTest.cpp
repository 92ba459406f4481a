// How much of each pixel is covered, against areas that can be computed otherwise.
#include <ovosvg/core/Coverage.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>

using namespace ovosvg;

namespace
{

constexpr double kNear = 1e-6; // results are of single precision

/// Of all pixels of a picture.
std::vector<float> covered(const std::vector<Polygon>& polygons, FillRule rule = FillRule::NonZero,
                           int size = 8)
{
    Budget budget;
    const auto [part, values] = coverage(polygons, rule, size, size, budget);
    std::vector<float> all(static_cast<std::size_t>(size * size));
    std::size_t i = 0;
    for (int y = part.top; y < part.top + part.height; ++y)
        for (int x = part.left; x < part.left + part.width; ++x)
            all.at(static_cast<std::size_t>(y * size + x)) = values.at(i++);
    EXPECT_EQ(i, values.size());
    return all;
}

double sum(const std::vector<float>& values)
{
    return std::accumulate(values.begin(), values.end(), 0.0);
}

Polygon box(double left, double top, double right, double bottom)
{
    return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

Polygon reversed(Polygon polygon)
{
    std::reverse(polygon.begin(), polygon.end());
    return polygon;
}

double overlap(double a, double b, double from, double to)
{
    return std::max(0.0, std::min(b, to) - std::max(a, from));
}

double areaOf(const Polygon& polygon)
{
    double twice = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i)
        twice += cross(polygon[i], polygon[(i + 1) % polygon.size()]);
    return std::abs(twice) / 2;
}

/// What is left of a convex polygon on one side of a line along an axis.
Polygon cut(const Polygon& polygon, double Point::*axis, double at, bool keepAbove)
{
    Polygon kept;
    const auto isIn = [&](const Point& p) { return keepAbove ? p.*axis >= at : p.*axis <= at; };
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Point& a = polygon[i];
        const Point& b = polygon[(i + 1) % polygon.size()];
        if (isIn(a))
            kept.push_back(a);
        if (isIn(a) != isIn(b))
            kept.push_back(a + (b - a) * ((at - a.*axis) / (b.*axis - a.*axis)));
    }
    return kept;
}

Polygon randomTriangle(std::mt19937& random, double from, double to)
{
    std::uniform_real_distribution<double> at(from, to);
    return {{at(random), at(random)}, {at(random), at(random)}, {at(random), at(random)}};
}

int windingAt(const std::vector<Polygon>& polygons, Point p)
{
    int winding = 0;
    for (const Polygon& polygon : polygons)
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            const Point a = polygon[i];
            const Point b = polygon[(i + 1) % polygon.size()];
            if ((a.y <= p.y) != (b.y <= p.y) && cross(b - a, p - a) * (b.y > a.y ? 1 : -1) < 0)
                winding += b.y > a.y ? 1 : -1;
        }
    return winding;
}

} // namespace

TEST(Coverage, OfABoxIsTheProductOfItsSides)
{
    const double left = 1.25;
    const double top = 2.5;
    const double right = 5.75;
    const double bottom = 6.125;
    for (const Polygon& polygon : {box(left, top, right, bottom), reversed(box(left, top, right, bottom))}) {
        const std::vector<float> values = covered({polygon});
        for (int y = 0; y < 8; ++y)
            for (int x = 0; x < 8; ++x)
                EXPECT_NEAR(values[static_cast<std::size_t>(8 * y + x)],
                            overlap(left, right, x, x + 1) * overlap(top, bottom, y, y + 1), kNear);
    }
}

TEST(Coverage, OfATriangleIsExactInEveryPixel)
{
    std::mt19937 random(3);
    for (int round = 0; round < 300; ++round) {
        const Polygon triangle = randomTriangle(random, -4, 12);
        const std::vector<float> values = covered({triangle});
        for (int y = 0; y < 8; ++y)
            for (int x = 0; x < 8; ++x) {
                Polygon part = cut(triangle, &Point::x, x, true);
                part = cut(part, &Point::x, x + 1, false);
                part = cut(part, &Point::y, y, true);
                part = cut(part, &Point::y, y + 1, false);
                ASSERT_NEAR(values[static_cast<std::size_t>(8 * y + x)], areaOf(part), kNear)
                    << "round " << round << " at " << x << ", " << y;
            }
    }
}

TEST(Coverage, WhatOverlapsCountsOnceOrNotAtAll)
{
    const std::vector<Polygon> two{box(1.5, 1.5, 4.5, 4.5), box(4.25, 4.25, 6.5, 6.5)};
    const double both = 0.25 * 0.25;
    const double all = 3 * 3 + 2.25 * 2.25;
    EXPECT_NEAR(sum(covered(two)), all - both, kNear);
    EXPECT_NEAR(sum(covered(two, FillRule::EvenOdd)), all - 2 * both, kNear);
    EXPECT_NEAR(covered(two)[8 * 4 + 4], 0.5 * 0.5 + 0.75 * 0.75 - both, kNear) << "of one pixel the union";
    EXPECT_NEAR(sum(covered({box(1, 1, 5, 5), reversed(box(2, 2, 4, 4))})), 12, kNear) << "a hole";
    EXPECT_NEAR(sum(covered({box(1, 1, 5, 5), box(2, 2, 4, 4)})), 16, kNear) << "no hole";
    EXPECT_NEAR(sum(covered({box(1, 1, 5, 5), box(2, 2, 4, 4)}, FillRule::EvenOdd)), 12, kNear);
}

TEST(Coverage, OfAStarDependsOnTheRule)
{
    Polygon star;
    for (int i = 0; i < 5; ++i)
        star.push_back({4 + 3.5 * std::sin(4 * kPi * i / 5), 4 - 3.5 * std::cos(4 * kPi * i / 5)});
    // The pentagon in the middle has the radius r cos(72) / cos(36).
    const double inner = 3.5 * std::cos(72 * kPi / 180) / std::cos(36 * kPi / 180);
    const double pentagon = 2.5 * inner * inner * std::sin(72 * kPi / 180);
    const double tips = 5 * 3.5 * inner * std::sin(36 * kPi / 180);
    EXPECT_NEAR(sum(covered({star})), tips, 1e-5);
    EXPECT_NEAR(sum(covered({star}, FillRule::EvenOdd)), tips - pentagon, 1e-5);
}

TEST(Coverage, OfPiecesTogetherIsThatOfTheWhole)
{
    std::mt19937 random(5);
    std::uniform_real_distribution<double> at(0, 8);
    for (int round = 0; round < 100; ++round) {
        const Polygon triangle = randomTriangle(random, 0, 8);
        const double x = at(random);
        const std::vector<float> whole = covered({triangle});
        const std::vector<float> parts =
            covered({cut(triangle, &Point::x, x, true), cut(triangle, &Point::x, x, false)});
        for (std::size_t i = 0; i < whole.size(); ++i)
            ASSERT_NEAR(whole[i], parts[i], kNear) << round;
    }
}

TEST(Coverage, OfAnyTangleIsWhatSamplesSay)
{
    constexpr int kSize = 4;
    constexpr int kSamples = 60;
    std::mt19937 random(11);
    std::uniform_real_distribution<double> at(-2, 6);
    for (int round = 0; round < 40; ++round) {
        std::vector<Polygon> tangle(2);
        for (Polygon& polygon : tangle)
            for (int i = 0; i < 7; ++i)
                polygon.push_back({at(random), at(random)});
        for (const FillRule rule : {FillRule::NonZero, FillRule::EvenOdd}) {
            const std::vector<float> values = covered(tangle, rule, kSize);
            for (int y = 0; y < kSize; ++y)
                for (int x = 0; x < kSize; ++x) {
                    int inside = 0;
                    for (int v = 0; v < kSamples; ++v)
                        for (int u = 0; u < kSamples; ++u) {
                            const int winding =
                                windingAt(tangle, {x + (u + 0.5) / kSamples, y + (v + 0.5) / kSamples});
                            inside += rule == FillRule::NonZero ? winding != 0 : winding % 2 != 0;
                        }
                    ASSERT_NEAR(values[static_cast<std::size_t>(kSize * y + x)],
                                1.0 * inside / kSamples / kSamples, 0.02)
                        << "round " << round << " at " << x << ", " << y;
                }
        }
    }
}

TEST(Coverage, BeyondThePictureNothingIsLost)
{
    EXPECT_NEAR(sum(covered({box(-1e9, -1e9, 1e9, 1e9)})), 64, kNear);
    EXPECT_NEAR(sum(covered({box(-5, 2, -1, 6)})), 0, kNear);
    EXPECT_NEAR(sum(covered({box(9, 2, 20, 6)})), 0, kNear);
    EXPECT_NEAR(sum(covered({box(2, -9, 6, -1)})), 0, kNear);
    EXPECT_NEAR(sum(covered({{{-8, -8}, {16, -8}, {-8, 16}}})), 32, kNear) << "half of the picture";
}

TEST(Coverage, OfALineToAPlaceFarAwayKeepsItsDirection)
{
    for (const double away : {1e3, 1e9, 1e10, 5e11})
        EXPECT_NEAR(sum(covered({{{0, 0}, {2 * away, away}, {0, away}}})), 64 - 16, 1e-3) << away;
    EXPECT_NEAR(sum(covered({{{-1e11, -5e10}, {1e11, 5e10}, {-1e11, 5e10}}})), 64 - 16, 1e-3);
}

TEST(Coverage, OfNothingIsNothing)
{
    EXPECT_EQ(sum(covered({})), 0);
    EXPECT_EQ(sum(covered({{}, {{1, 1}}, {{1, 1}, {5, 5}}, {{1, 1}, {5, 1}, {3, 1}}})), 0);
    const double none = std::numeric_limits<double>::quiet_NaN();
    const double endless = std::numeric_limits<double>::infinity();
    EXPECT_EQ(sum(covered({box(1, 1, none, 5), box(1, 1, endless, 5)})), 0);
    EXPECT_NEAR(sum(covered({box(1, 1, none, 5), box(1, 1, 3, 3)})), 4, kNear);
}

TEST(Coverage, LongEdgesAreMoreWorkThanShortOnes)
{
    constexpr int kWidth = 10'000;
    const auto draw = [](double right) {
        std::vector<Polygon> rows;
        for (double y = 0; y < 0.99; y += 0.005)
            rows.push_back({{0, y}, {right, y + 0.002}, {0, y + 0.004}});
        Budget budget(1'000'000);
        return sum(coverage(rows, FillRule::NonZero, kWidth, 1, budget).values);
    };
    EXPECT_NEAR(draw(10), 198 * 10 * 0.004 / 2, 0.05);
    EXPECT_THROW(draw(kWidth), SvgFailure);
}

TEST(Coverage, OfSmallAreasInALargePictureIsLittleWork)
{
    constexpr int kSize = 2000;
    std::mt19937 random(13);
    std::uniform_real_distribution<double> at(0, kSize - 4);
    for (int round = 0; round < 100; ++round) {
        const double x = at(random);
        const double y = at(random);
        Budget budget(100);
        const auto [part, values] =
            coverage({box(x, y, x + 2.5, y + 3)}, FillRule::NonZero, kSize, kSize, budget);
        ASSERT_NEAR(sum(values), 7.5, 1e-5);
        ASSERT_LE(part.left, x);
        ASSERT_GE(part.left + part.width, x + 2.5);
        ASSERT_LE(part.top, y);
        ASSERT_GE(part.top + part.height, y + 3);
        ASSERT_LE(values.size(), 7u * 5u);
    }
}

TEST(Coverage, TooMuchWorkIsAFailure)
{
    std::mt19937 random(1);
    std::vector<Polygon> many;
    for (int i = 0; i < 3000; ++i)
        many.push_back(randomTriangle(random, 0, 8));
    EXPECT_THROW(covered(many), SvgFailure);
}
