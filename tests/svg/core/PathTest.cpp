// Paths: what their text means, arcs, lines near curves.
#include <ovosvg/core/PathData.h>
#include <ovosvg/core/Shapes.h>

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <random>

namespace ovosvg
{
void PrintTo(const Point& p, std::ostream* out)
{
    *out << "(" << p.x << ", " << p.y << ")";
}
} // namespace ovosvg

using namespace ovosvg;

namespace
{

std::vector<Polyline> linesOf(const Path& path, double tolerance = 0.001)
{
    Budget budget;
    return path.flattened(tolerance, budget);
}

/// The corners of a path without curves; an empty point stands between its parts.
std::vector<Point> corners(std::string_view text)
{
    const PathReading reading = readPath(text);
    EXPECT_TRUE(reading.complete) << text;
    std::vector<Point> all;
    for (const Polyline& line : linesOf(reading.path)) {
        all.insert(all.end(), line.points.begin(), line.points.end());
        if (line.closed)
            all.push_back({-1, -1});
    }
    return all;
}

/// Whether two texts give the same lines.
void expectSame(std::string_view one, std::string_view other)
{
    const auto a = linesOf(readPath(one).path);
    const auto b = linesOf(readPath(other).path);
    ASSERT_EQ(a.size(), b.size()) << one;
    for (std::size_t i = 0; i < a.size(); ++i) {
        ASSERT_EQ(a[i].points.size(), b[i].points.size()) << one;
        EXPECT_EQ(a[i].closed, b[i].closed);
        for (std::size_t k = 0; k < a[i].points.size(); ++k)
            EXPECT_LT(length(a[i].points[k] - b[i].points[k]), 1e-9) << one;
    }
}

using Points = std::vector<Point>;
constexpr Point kClosed{-1, -1};

} // namespace

TEST(PathData, LinesOfAllCommands)
{
    EXPECT_EQ(corners("M1 2L3 4H5V6Z"), (Points{{1, 2}, {3, 4}, {5, 4}, {5, 6}, kClosed}));
    EXPECT_EQ(corners("m1,2 l2,2 h2 v2 z"), (Points{{1, 2}, {3, 4}, {5, 4}, {5, 6}, kClosed}));
    EXPECT_EQ(corners("M1 2 3 4 5 6"), (Points{{1, 2}, {3, 4}, {5, 6}})) << "further points are lines";
    EXPECT_EQ(corners("m1 2 3 4 5 6"), (Points{{1, 2}, {4, 6}, {9, 12}}));
    EXPECT_EQ(corners("M1 1h2 3v4 5"), (Points{{1, 1}, {3, 1}, {6, 1}, {6, 5}, {6, 10}}));
    EXPECT_EQ(corners("M1 1h2zl1 1"), (Points{{1, 1}, {3, 1}, kClosed, {1, 1}, {2, 2}}))
        << "behind the end of a part it goes on from its beginning";
    EXPECT_EQ(corners("M1 1h2zm1 1h2"), (Points{{1, 1}, {3, 1}, kClosed, {2, 2}, {4, 2}}));
    EXPECT_EQ(corners(""), Points{});
    EXPECT_EQ(corners("M1 1h2h-2z"), (Points{{1, 1}, {3, 1}, kClosed}))
        << "the first point is not there twice";
}

TEST(PathData, NumbersNeedNotBeApart)
{
    EXPECT_EQ(corners("M.5.5-1-2"), (Points{{0.5, 0.5}, {-1, -2}}));
    EXPECT_EQ(corners("M1e1+2 \n,\t3E-1 4."), (Points{{10, 2}, {0.3, 4}}));
    expectSame("M0 0a5 5 0 0 1 3 4", "M0 0a5 5 0 013 4");
    expectSame("M0 0a5 5 0 1 0 3 4 5 5 0 0 1 1 1", "M0 0a5 5 0 103 4a5 5 0 011 1");
}

TEST(PathData, CurvesOfAllCommands)
{
    expectSame("M1 1c1 2 3 4 5 6", "M1 1C2 3 4 5 6 7");
    expectSame("M1 1C2 3 4 5 6 7S9 9 8 8", "M1 1C2 3 4 5 6 7C8 9 9 9 8 8");
    expectSame("M1 1c1 2 3 4 5 6s3 2 2 1", "M1 1C2 3 4 5 6 7C8 9 9 9 8 8");
    expectSame("M1 1S4 5 6 7", "M1 1C1 1 4 5 6 7"); // without a curve before
    expectSame("M1 1Q4 7 7 1", "M1 1C3 5 5 5 7 1");
    expectSame("M1 1q3 6 6 0", "M1 1Q4 7 7 1");
    expectSame("M1 1Q4 7 7 1T13 1", "M1 1Q4 7 7 1Q10 -5 13 1");
    expectSame("M1 1Q4 7 7 1t6 0t6 0", "M1 1Q4 7 7 1Q10 -5 13 1Q16 7 19 1");
    expectSame("M1 1T5 5", "M1 1Q1 1 5 5");
    expectSame("M1 1C2 3 4 5 6 7T9 9", "M1 1C2 3 4 5 6 7Q6 7 9 9"); // of the other kind does not count
    expectSame("M1 1A2 3 30 0 1 5 5", "M1 1a2 3 30 0 1 4 4");
}

TEST(PathData, AsFarAsItCanBeRead)
{
    for (const auto& [text, same] : {std::pair("M1 1L2 2L3", "M1 1L2 2"),
                                     {"M1 1L2 2X", "M1 1L2 2"},
                                     {"M1 1L2 2 C1 1 2 2", "M1 1L2 2"},
                                     {"M1 1A1 1 0 2 0 3 3", "M1 1"},
                                     {"M1 1L1e999 2", "M1 1"},
                                     {"L1 1", ""},
                                     {"1 1", ""}}) {
        const PathReading reading = readPath(text);
        EXPECT_FALSE(reading.complete) << text;
        EXPECT_EQ(linesOf(reading.path).size(), linesOf(readPath(same).path).size()) << text;
        expectSame(text, same);
    }
}

// Arcs

TEST(Arc, HasTheCentreOfTheImplementationNotes)
{
    std::mt19937 random(9);
    std::uniform_real_distribution<double> at(-10, 10);
    std::uniform_real_distribution<double> radius(0.1, 15);
    int grown = 0;
    for (int round = 0; round < 2000; ++round) {
        const Point from{at(random), at(random)};
        const Point to{at(random), at(random)};
        const double rx = radius(random);
        const double ry = radius(random);
        const double degrees = 36 * at(random);
        const bool large = random() % 2;
        const bool sweep = random() % 2;
        const ArcCentre arc = arcCentre(from, rx, ry, degrees, large, sweep, to);
        const Matrix ellipse = Matrix::translation(arc.centre.x, arc.centre.y) * Matrix::rotation(degrees) *
                               Matrix::scaling(arc.rx, arc.ry);
        const auto on = [&](double angle) { return ellipse.map({std::cos(angle), std::sin(angle)}); };
        // From the centre the end points are found again, where the notes begin the other way round.
        ASSERT_LT(length(on(arc.start) - from), 1e-6);
        ASSERT_LT(length(on(arc.start + arc.sweep) - to), 1e-6);
        ASSERT_EQ(arc.sweep > 0, sweep);
        // The radii grow together, only where they must, and then the arc is half of the ellipse.
        ASSERT_NEAR(arc.rx / arc.ry, rx / ry, 1e-9);
        if (arc.rx > rx * (1 + 1e-12)) {
            ++grown;
            ASSERT_NEAR(std::abs(arc.sweep), kPi, 1e-6);
        } else {
            ASSERT_EQ(std::abs(arc.sweep) > kPi, large);
        }
    }
    EXPECT_GT(grown, 100);
}

TEST(Arc, OfKnownCircles)
{
    // A quarter of the circle around (0, 0): the four arcs between the same points.
    const Point east{2, 0};
    const Point south{0, 2};
    EXPECT_LT(length(arcCentre(east, 2, 2, 0, false, true, south).centre), 1e-12);
    EXPECT_LT(length(arcCentre(east, 2, 2, 0, true, true, south).centre - Point{2, 2}), 1e-12);
    EXPECT_LT(length(arcCentre(east, 2, 2, 0, false, false, south).centre - Point{2, 2}), 1e-12);
    EXPECT_LT(length(arcCentre(east, 2, 2, 0, true, false, south).centre), 1e-12);
    EXPECT_NEAR(arcCentre(east, 2, 2, 0, false, true, south).sweep, kPi / 2, 1e-12);
    EXPECT_NEAR(arcCentre(east, 2, 2, 0, true, false, south).sweep, -3 * kPi / 2, 1e-12);
    // Radii of the wrong sign, radii that are too small.
    EXPECT_LT(length(arcCentre(east, -2, -2, 0, false, true, south).centre), 1e-12);
    const ArcCentre small = arcCentre({0, 0}, 1, 1, 0, false, true, {6, 0});
    EXPECT_NEAR(small.rx, 3, 1e-12);
    EXPECT_LT(length(small.centre - Point{3, 0}), 1e-12);
}

TEST(Arc, StaysOnItsEllipse)
{
    std::mt19937 random(4);
    std::uniform_real_distribution<double> at(-10, 10);
    for (int round = 0; round < 200; ++round) {
        Path path;
        path.moveTo({at(random), at(random)});
        const Point from = path.current();
        const Point to{at(random), at(random)};
        const double degrees = 30 * at(random);
        path.arcTo(9, 6, degrees, random() % 2, random() % 2, to);
        const auto lines = linesOf(path, 1e-4);
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_EQ(lines[0].points.front(), from);
        EXPECT_EQ(lines[0].points.back(), to);
        EXPECT_GE(lines[0].points.size(), 4u);
    }
    for (const bool large : {false, true})
        for (const bool sweep : {false, true}) {
            Path path;
            path.moveTo({1, 2});
            path.arcTo(5, 3, 30, large, sweep, {4, 4});
            const ArcCentre arc = arcCentre({1, 2}, 5, 3, 30, large, sweep, {4, 4});
            const Matrix circle = (Matrix::translation(arc.centre.x, arc.centre.y) * Matrix::rotation(30) *
                                   Matrix::scaling(arc.rx, arc.ry))
                                      .inverse();
            const auto lines = linesOf(path, 1e-4);
            for (const Point& p : lines.at(0).points)
                EXPECT_NEAR(length(circle.map(p)), 1, 3e-4);
        }
}

TEST(Arc, WithoutARadiusIsALineAndWithoutAWayNothing)
{
    EXPECT_EQ(corners("M1 1A0 5 0 0 1 4 4"), (Points{{1, 1}, {4, 4}}));
    EXPECT_EQ(corners("M1 1A5 0 0 0 1 4 4"), (Points{{1, 1}, {4, 4}}));
    EXPECT_EQ(corners("M1 1A5 5 0 0 1 1 1"), Points{});
    EXPECT_EQ(corners("M1 1A5 5 0 0 1 1 1H2"), (Points{{1, 1}, {2, 1}}));
}

// Lines near curves

TEST(Path, LinesAreAsNearToTheCurveAsAskedFor)
{
    for (const double tolerance : {0.5, 0.1, 0.01, 0.001}) {
        const auto lines = linesOf(ellipsePath({5, 5}, 5, 5), tolerance);
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_TRUE(lines[0].closed);
        const auto& points = lines[0].points;
        for (std::size_t i = 0; i < points.size(); ++i) {
            const Point middle = (points[i] + points[(i + 1) % points.size()]) * 0.5;
            EXPECT_NEAR(length(middle - Point{5, 5}), 5, tolerance + 2e-3) << tolerance;
        }
    }
}

TEST(Path, BendsWithinACurveAreNoCorners)
{
    const auto lines = linesOf(readPath("M0 0C0 9 9 9 9 0L20 0").path, 0.1);
    const Polyline& line = lines.at(0);
    ASSERT_GT(line.points.size(), 4u);
    for (std::size_t i = 0; i < line.points.size(); ++i)
        EXPECT_EQ(line.smooth[i], i > 0 && i + 2 < line.points.size()) << i;
}

TEST(Path, PiecesOfACurveKnowWhereItGoesAtTheirEnds)
{
    const auto lines = linesOf(readPath("M0 0C0 9 9 9 9 0L20 0z").path, 0.1);
    const Polyline& line = lines.at(0);
    const std::size_t pieces = line.points.size() - 2; // of the curve
    ASSERT_EQ(line.courses.size(), line.points.size()) << "with the one that closes the line";
    EXPECT_LT(length(line.courses[0].begin - Point{0, 1}), 1e-12);
    EXPECT_LT(length(line.courses[pieces - 1].end - Point{0, -1}), 1e-12);
    for (std::size_t i = 1; i < pieces; ++i)
        EXPECT_EQ(line.courses[i].begin, line.courses[i - 1].end) << i;
    for (const Point end : {line.courses[pieces].begin, line.courses[pieces].end})
        EXPECT_EQ(end, (Point{1, 0}));
    for (const Point end : {line.courses[pieces + 1].begin, line.courses[pieces + 1].end})
        EXPECT_EQ(end, (Point{-1, 0}));
}

TEST(Shapes, HaveTheirCorners)
{
    const auto box = linesOf(rectanglePath({1, 2, 3, 4}, 0, 0));
    EXPECT_EQ(box.at(0).points, (Points{{1, 2}, {4, 2}, {4, 6}, {1, 6}}));
    EXPECT_TRUE(box[0].closed);
    EXPECT_TRUE(rectanglePath({1, 2, 0, 4}, 1, 1).empty());
    EXPECT_TRUE(ellipsePath({1, 1}, 0, 4).empty());
    EXPECT_EQ(linesOf(linesPath({1, 2, 3, 4, 5}, false)).at(0).points, (Points{{1, 2}, {3, 4}}));
    const auto pill = linesOf(rectanglePath({0, 0, 10, 4}, 50, 50));
    for (const Point& p : pill.at(0).points)
        EXPECT_NEAR(std::pow((p.x - 5) / 5, 2) + std::pow((p.y - 2) / 2, 2), 1, 1e-3)
            << "radii of half the sides";
}
