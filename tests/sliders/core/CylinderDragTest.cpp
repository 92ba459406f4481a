#include <ovoui/sliders/core/CylinderDrag.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace ovoui::sliders;

TEST(CylinderDrag, ThePointerIsAboveThePointOfACylinder)
{
    EXPECT_DOUBLE_EQ(angleUnder(100, 0, 200), 0);
    EXPECT_NEAR(angleUnder(50, 0, 200), 30, 1e-12);
    EXPECT_NEAR(angleUnder(150, 0, 200), -30, 1e-12);
    EXPECT_DOUBLE_EQ(angleUnder(100, 0, 201), 0) << "the middle is a whole pixel";
}

TEST(CylinderDrag, AtTheEndsAndBeyondItIsExactlyARightAngle)
{
    for (const int outside : {0, -1, -1000000})
        EXPECT_EQ(angleUnder(outside, 0, 200), 90);
    for (const int outside : {200, 201, 1000000})
        EXPECT_EQ(angleUnder(outside, 0, 200), -90);
    EXPECT_EQ(angleUnder(5, 5, 5), 90) << "a slider without room";
    EXPECT_EQ(angleUnder(6, 5, 5), -90);
}

TEST(CylinderDrag, TheAngleFallsFromEndToEnd)
{
    for (const int first : {-3, 0, 2})
        for (int width = 1; width < 300; width += 7)
            for (int x = first; x < first + width; ++x) {
                EXPECT_GE(angleUnder(x, first, first + width), angleUnder(x + 1, first, first + width));
                EXPECT_LE(std::abs(angleUnder(x, first, first + width)), 90);
            }
}

TEST(CylinderDrag, ADragTurnsByWhatThePointerPasses)
{
    CylinderDrag drag(Turn::Endless);
    drag.setPosition(10);
    drag.press(40);
    EXPECT_TRUE(drag.dragging());
    EXPECT_EQ(drag.shown(), 10);
    EXPECT_EQ(drag.move(40), std::nullopt) << "nothing has changed";
    ASSERT_EQ(drag.move(60), 30);
    drag.track(30);
    EXPECT_EQ(drag.shown(), 30);
    EXPECT_EQ(drag.position(), 10) << "not before the release";
    EXPECT_EQ(drag.move(60), std::nullopt);
    EXPECT_EQ(drag.release(-20), -50);
    EXPECT_EQ(drag.position(), -50);
    EXPECT_EQ(drag.shown(), -50);
}

TEST(CylinderDrag, AClickNudgesByAThird)
{
    CylinderDrag drag(Turn::Endless);
    drag.setPosition(10);
    drag.press(30);
    EXPECT_EQ(drag.release(30), 20);
    drag.press(-30);
    EXPECT_EQ(drag.release(-30), 10);
}

TEST(CylinderDrag, MovingAwayAndBackIsNoClick)
{
    CylinderDrag drag(Turn::Endless);
    drag.press(30);
    drag.track(*drag.move(50));
    drag.track(*drag.move(30));
    EXPECT_EQ(drag.release(30), 0);
}

TEST(CylinderDrag, TheWheelStaysWithinHalfATurn)
{
    CylinderDrag wheel(Turn::Half);
    wheel.setPosition(80);
    wheel.press(0);
    EXPECT_EQ(wheel.move(45), 90);
    wheel.track(90);
    EXPECT_EQ(wheel.move(70), std::nullopt) << "at the limit already";
    EXPECT_EQ(wheel.release(70), 90);
    wheel.setPosition(-85);
    wheel.press(-60);
    EXPECT_EQ(wheel.release(-60), -90) << "a click too";
    wheel.setPosition(500);
    EXPECT_EQ(wheel.position(), 500) << "the program may";
}

TEST(CylinderDrag, TheRoundSliderDoesNot)
{
    CylinderDrag round(Turn::Endless);
    round.setPosition(39950);
    round.press(-90);
    EXPECT_EQ(round.move(90), 40130);
}

TEST(CylinderDrag, CancellingShowsTheOldAngleAgain)
{
    CylinderDrag drag(Turn::Endless);
    drag.setPosition(5);
    drag.press(0);
    drag.track(*drag.move(20));
    drag.cancel();
    EXPECT_FALSE(drag.dragging());
    EXPECT_EQ(drag.shown(), 5);
    EXPECT_EQ(drag.move(40), std::nullopt) << "moves mean nothing any more";
}

TEST(CylinderDrag, ThePrintedAngleIsWrappedOnce)
{
    EXPECT_EQ(printedAngle(0), 0);
    EXPECT_EQ(printedAngle(359.4), 359);
    EXPECT_EQ(printedAngle(359.5), 0);
    EXPECT_EQ(printedAngle(360), 0);
    EXPECT_EQ(printedAngle(-1), 359);
    EXPECT_EQ(printedAngle(-0.5), 359) << "halves go away from zero";
    EXPECT_EQ(printedAngle(-0.4), 0);
    EXPECT_EQ(printedAngle(725), 365);
    EXPECT_EQ(printedAngle(-725), -365);
    EXPECT_EQ(printedAngle(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(CylinderDrag, AMessageHolds16BitsOfTheAngle)
{
    EXPECT_EQ(messageAngle(12.5), 13);
    EXPECT_EQ(static_cast<short>(messageAngle(-12.5)), -13);
    EXPECT_EQ(messageAngle(40000), 40000);
    EXPECT_EQ(messageAngle(-40000), 25536);
    EXPECT_EQ(messageAngle(65536 + 7), 7);
    EXPECT_EQ(messageAngle(1e300), 0);
    EXPECT_EQ(messageAngle(std::numeric_limits<double>::infinity()), 0);
}
