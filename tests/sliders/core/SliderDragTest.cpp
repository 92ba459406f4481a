#include <ovoui/sliders/core/SliderDrag.h>

#include <gtest/gtest.h>

#include <limits>

using namespace ovoui::sliders;

TEST(SliderDrag, TheThumbRunsFromOneEndOfTheChannelToTheOther)
{
    EXPECT_EQ(thumbOffset({10, 111}, 0, {0, 100}), 0);
    EXPECT_EQ(thumbOffset({10, 111}, 100, {0, 100}), 100);
    EXPECT_EQ(thumbOffset({10, 111}, 33, {0, 100}), 33);
    EXPECT_EQ(thumbOffset({10, 61}, 33, {0, 100}), 16) << "the whole-number quotient";
    EXPECT_EQ(thumbOffset({10, 61}, 7, {7, 7}), 0) << "a slider with one position";
    EXPECT_EQ(thumbOffset({10, 61}, -10, {-10, 10}), 0);
}

TEST(SliderDrag, ThePositionUnderThePointerStaysInTheChannel)
{
    EXPECT_EQ(positionUnder(10, {10, 110}, {0, 100}), 0);
    EXPECT_EQ(positionUnder(-5000, {10, 110}, {0, 100}), 0);
    EXPECT_EQ(positionUnder(110, {10, 110}, {0, 100}), 100);
    EXPECT_EQ(positionUnder(5000, {10, 110}, {0, 100}), 100);
    EXPECT_EQ(positionUnder(60, {10, 110}, {0, 3}), 1) << "the whole-number quotient";
    EXPECT_EQ(positionUnder(60, {10, 110}, {-100, 100}), 0);
    EXPECT_EQ(positionUnder(60, {10, 10}, {5, 9}), 5) << "a channel without width";
    constexpr int kMin = std::numeric_limits<int>::min();
    constexpr int kMax = std::numeric_limits<int>::max();
    EXPECT_EQ(positionUnder(110, {10, 110}, {kMin, kMax}), kMax);
    EXPECT_EQ(positionUnder(10, {10, 110}, {kMin, kMax}), kMin);
}

TEST(SliderDrag, NothingStartsWithinTheDragRectangle)
{
    for (const int thumb : {-50, -4, 0, 4, 50})
        for (int dx = -4; dx <= 4; ++dx)
            for (int dy = -3; dy <= 3; ++dy)
                for (const bool inPopup : {false, true})
                    EXPECT_FALSE(dragStarts({{20, 30}, thumb, 4, 3}, {20 + dx, 30 + dy}, inPopup));
}

TEST(SliderDrag, AThumbUnderThePointerIsTakenAtOnce)
{
    for (const int thumb : {-4, 0, 4}) {
        EXPECT_TRUE(dragStarts({{20, 30}, thumb, 4, 3}, {25, 30}, false));
        EXPECT_TRUE(dragStarts({{20, 30}, thumb, 4, 3}, {15, 30}, false));
        EXPECT_TRUE(dragStarts({{20, 30}, thumb, 4, 3}, {20, 34}, false));
        EXPECT_TRUE(dragStarts({{20, 30}, thumb, 4, 3}, {20, 26}, false));
    }
}

TEST(SliderDrag, AThumbFurtherOffIsTakenWhenThePointerHasComeThatFar)
{
    const PendingDrag right{{20, 30}, 50, 4, 3};
    EXPECT_FALSE(dragStarts(right, {69, 30}, false));
    EXPECT_TRUE(dragStarts(right, {70, 30}, false));
    EXPECT_FALSE(dragStarts(right, {-80, 30}, false)) << "the other way";

    const PendingDrag left{{20, 30}, -50, 4, 3};
    EXPECT_FALSE(dragStarts(left, {-29, 30}, false));
    EXPECT_TRUE(dragStarts(left, {-30, 30}, false));
    EXPECT_FALSE(dragStarts(left, {120, 30}, false));
}

TEST(SliderDrag, InsideThePopupTheThumbIsTakenWhereverItIs)
{
    EXPECT_TRUE(dragStarts({{20, 30}, 50, 4, 3}, {22, 40}, true));
    EXPECT_TRUE(dragStarts({{20, 30}, -50, 4, 3}, {22, 40}, true));
}
