#include <ovoui/toolbar/core/GripperDots.h>

#include <gtest/gtest.h>

using namespace ovoui::toolbar;
using ovoui::frame::Box;
using ovoui::frame::Point;

TEST(GripperDots, StandInARowAlongTheGripper)
{
    EXPECT_EQ(gripperDots({2, 0, 10, 22}, true), (std::vector<Point>{{5, 3}, {5, 7}, {5, 11}, {5, 15}}));
    EXPECT_EQ(gripperDots({0, 2, 22, 10}, false), (std::vector<Point>{{3, 5}, {7, 5}, {11, 5}, {15, 5}}));
}

TEST(GripperDots, AreTheSameOnesWhicheverWayTheBarLies)
{
    for (int length = 0; length < 80; ++length) {
        const std::vector<Point> column = gripperDots({1, 4, 9, 4 + length}, true);
        const std::vector<Point> row = gripperDots({4, 1, 4 + length, 9}, false);
        ASSERT_EQ(column.size(), row.size()) << length;
        for (std::size_t i = 0; i < row.size(); ++i)
            EXPECT_EQ(column[i], (Point{row[i].y, row[i].x})) << length;
    }
}

TEST(GripperDots, LeaveAMarginAtBothEndsWhichTheyFill)
{
    for (int length = 0; length < 80; ++length) {
        const std::vector<Point> dots = gripperDots({1, 4, 9, 4 + length}, true);
        int end = 4 + 3; // where the next dot would begin
        for (const Point& dot : dots) {
            EXPECT_EQ(dot, (Point{4, end})) << length;
            end += 4;
            EXPECT_LT(dot.y + kDotSize, 4 + length - 3) << length;
        }
        EXPECT_GE(end + kDotSize, 4 + length - 3) << length << ": there is room for another dot";
    }
}
