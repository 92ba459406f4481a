#include <ovocor/Vector.h>

#include <gtest/gtest.h>

TEST(Vector, IsZeroAtFirst)
{
    EXPECT_EQ(Vector<2>(), Vector<2>(0, 0));
}

TEST(Vector, HasALength)
{
    EXPECT_EQ(Vector<2>(3, -4).length(), 5);
    EXPECT_EQ(Vector<2>().length(), 0);
    EXPECT_DOUBLE_EQ(Vector<2>(3e300, 4e300).length(), 5e300) << "no overflow on the way";
    EXPECT_DOUBLE_EQ(Vector<3>(2, 3, 6).length(), 7);
}

TEST(Vector, PointsFromTheXAxisTowardsTheYAxis)
{
    struct Row
    {
        double x, y, degrees;
    };
    for (const Row& row :
         {Row{1, 0, 0}, {0, 1, 90}, {-1, 0, 180}, {0, -1, -90}, {1, 1, 45}, {-1, -1, -135}, {0, 0, 0}})
        EXPECT_NEAR(Vector<2>(row.x, row.y).theta().degrees(), row.degrees, 1e-12) << row.x << " " << row.y;
}

TEST(Vector, PointsTheSameWayWhateverTheSignOfItsZeros)
{
    EXPECT_EQ((-Vector<2>(1, 0)).theta().degrees(), 180) << "from the right to the left";
    EXPECT_EQ((Vector<2>(0, 5) * -1).theta().degrees(), -90);
    EXPECT_EQ((-Vector<2>()).theta().degrees(), 0);
    EXPECT_EQ(Vector<2>(-0.0, 0).theta().degrees(), 0);
}

TEST(Vector, HasAUnitVector)
{
    const Vector<2> unit = Vector<2>(3, -4).unit();
    EXPECT_DOUBLE_EQ(unit.x(), 0.6);
    EXPECT_DOUBLE_EQ(unit.y(), -0.8);
}

TEST(Vector, OfNoLengthIsItsOwnUnitVector)
{
    EXPECT_EQ(Vector<2>().unit(), Vector<2>());
}

TEST(Vector, HasACrossProductWithTheSignOfTheTurn)
{
    EXPECT_EQ(Vector<2>(1, 0).cross(Vector<2>(0, 1)), 1);
    EXPECT_EQ(Vector<2>(0, 1).cross(Vector<2>(1, 0)), -1);
    EXPECT_EQ(Vector<2>(2, 3).cross(Vector<2>(5, 7)), 2 * 7 - 3 * 5);
}

TEST(Vector, CalculatesComponentByComponent)
{
    const Vector<2> a(1, 2);
    const Vector<2> b(10, 20);
    EXPECT_EQ(a + b, Vector<2>(11, 22));
    EXPECT_EQ(b - a, Vector<2>(9, 18));
    EXPECT_EQ(-a, Vector<2>(-1, -2));
    EXPECT_EQ(a * 3, Vector<2>(3, 6));
    EXPECT_EQ(3 * a, a * 3);
    EXPECT_EQ(b / 10, a);
    EXPECT_EQ(a.dot(b), 50);
    EXPECT_EQ(a[1], 2);
}
