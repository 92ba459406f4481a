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

namespace
{

constexpr Point kPress{20, 30};
constexpr DragLimits kLimits{4, 3};
constexpr Positions kHundred{0, 100};

/// The popup below the press, 100 pixels of channel and the thumb so far from the press.
PopupPlace popup(int thumb)
{
    return {thumb, {-40, 60}, -50, 40, 70, 64};
}

/// A press with the pointer then at `pointer`.
std::optional<int> moved(int thumb, const Point& pointer)
{
    PressDrag drag;
    drag.begin(kPress, popup(thumb), kLimits);
    return drag.move(pointer, kHundred);
}

} // namespace

TEST(PressDrag, NothingStartsWithinTheDragRectangle)
{
    for (const int thumb : {-50, -4, 0, 4, 50})
        for (int dx = -4; dx <= 4; ++dx)
            for (int dy = -3; dy <= 3; ++dy) {
                PressDrag drag;
                PopupPlace everywhere = popup(thumb);
                everywhere.top = 0;
                drag.begin(kPress, everywhere, kLimits);
                EXPECT_FALSE(drag.move({20 + dx, 30 + dy}, kHundred)) << "though it is inside the popup";
            }
}

TEST(PressDrag, AThumbUnderThePointerIsTakenAtOnce)
{
    for (const int thumb : {-4, 0, 4}) {
        EXPECT_EQ(moved(thumb, {25, 30}), 65);
        EXPECT_EQ(moved(thumb, {15, 30}), 55);
        EXPECT_EQ(moved(thumb, {20, 34}), 60);
        EXPECT_EQ(moved(thumb, {20, 26}), 60);
    }
}

TEST(PressDrag, AThumbFurtherOffIsTakenWhenThePointerHasComeThatFar)
{
    EXPECT_FALSE(moved(5, {20, 26})) << "just outside the drag rectangle";
    EXPECT_TRUE(moved(5, {25, 26}));
    EXPECT_FALSE(moved(50, {69, 30}));
    EXPECT_EQ(moved(50, {70, 30}), 100);
    EXPECT_FALSE(moved(50, {-80, 30})) << "the other way";

    EXPECT_FALSE(moved(-50, {-29, 30}));
    EXPECT_EQ(moved(-50, {-30, 30}), 10);
    EXPECT_FALSE(moved(-50, {120, 30}));
}

TEST(PressDrag, InsideThePopupTheThumbIsTakenWhereverItIs)
{
    for (const int thumb : {-50, 50}) {
        EXPECT_EQ(moved(thumb, {22, 40}), 62);
        EXPECT_EQ(moved(thumb, {-50, 63}), 0) << "its corner";
        EXPECT_FALSE(moved(thumb, {22, 39})) << "above it";
        EXPECT_FALSE(moved(thumb, {22, 64})) << "below it";
    }
    EXPECT_FALSE(moved(-500, {70, 50})) << "the first column to its right";
    EXPECT_FALSE(moved(500, {-51, 50})) << "the last one to its left";
}

TEST(PressDrag, OnceTakenTheThumbFollowsEverywhere)
{
    PressDrag drag;
    drag.begin(kPress, popup(0), kLimits);
    EXPECT_EQ(drag.move({30, 30}, kHundred), 70);
    EXPECT_EQ(drag.move({20, 30}, kHundred), 60) << "back at the press";
    EXPECT_EQ(drag.move({500, -500}, kHundred), 100);
    EXPECT_EQ(drag.move({-500, -500}, kHundred), 0);
    EXPECT_EQ(drag.move({10, 0}, {3, 5}), 4) << "the whole-number quotient";
    EXPECT_TRUE(drag.end());
    EXPECT_FALSE(drag.tracking());
    EXPECT_FALSE(drag.move({30, 30}, kHundred)) << "let go";
    EXPECT_FALSE(drag.end());
}

TEST(PressDrag, APressThatNeverBecameADragEndsAsAClick)
{
    PressDrag drag;
    EXPECT_FALSE(drag.tracking());
    EXPECT_FALSE(drag.move({500, 500}, kHundred)) << "not pressed";
    drag.begin(kPress, popup(50), kLimits);
    EXPECT_TRUE(drag.tracking());
    EXPECT_FALSE(drag.move({30, 30}, kHundred));
    EXPECT_FALSE(drag.end());

    drag.begin(kPress, popup(0), kLimits);
    EXPECT_TRUE(drag.move({30, 30}, kHundred));
    drag.begin(kPress, popup(50), kLimits);
    EXPECT_FALSE(drag.move({30, 30}, kHundred)) << "a new press begins anew";
}
