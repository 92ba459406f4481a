#include <testkit/Desktop.h>
#include "ProbeWindow.h"
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

#include <gmock/gmock.h>

using namespace ovo::testkit;
using ::testing::SizeIs;

namespace
{

constexpr UINT kButtonId = 7;

/// A button in a recording parent, both shown.
struct ButtonScene
{
    RecordingParent parent;
    CButton button;
    Robot robot;

    ButtonScene()
    {
        button.Create(L"Go", WS_CHILD | WS_VISIBLE | BS_NOTIFY, CRect(20, 20, 120, 50), &parent, kButtonId);
        present(parent);
        parent.log().clear();
    }
};

CPoint cursor()
{
    CPoint point;
    ::GetCursorPos(&point);
    return point;
}

} // namespace

TEST(RobotMouse, ClickReachesTheWindowUnderThePointer)
{
    ButtonScene scene;

    scene.robot.click(Spot{scene.button});

    EXPECT_EQ(scene.parent.log().count(BN_CLICKED), 1);
    EXPECT_EQ(scene.parent.log().last(BN_CLICKED).id, kButtonId);
}

TEST(RobotMouse, ClickBesideTheButtonDoesNotReachIt)
{
    ButtonScene scene;

    scene.robot.click(Spot{scene.parent, {200, 200}});

    EXPECT_EQ(scene.parent.log().count(BN_CLICKED), 0);
}

TEST(RobotMouse, TwoClicksAtOnePlaceAreNotADoubleClick)
{
    ButtonScene scene;

    scene.robot.click(Spot{scene.button}).click(Spot{scene.button});
    scene.robot.click(Spot{scene.button});

    EXPECT_EQ(scene.parent.log().count(BN_CLICKED), 3);
    EXPECT_EQ(scene.parent.log().count(BN_DOUBLECLICKED), 0);
}

TEST(RobotMouse, DoubleClickIsOneHoweverOftenTheButtonWasClickedBefore)
{
    ButtonScene scene;

    scene.robot.click(Spot{scene.button});
    scene.robot.doubleClick(Spot{scene.button});

    EXPECT_EQ(scene.parent.log().count(BN_DOUBLECLICKED), 1);
    EXPECT_EQ(scene.parent.log().count(BN_CLICKED), 2);
}

TEST(RobotMouse, PointerLandsOnThePixelThatWasMeant)
{
    Robot robot;
    for (const CPoint point :
         {CPoint{0, 0}, CPoint{1, 2}, CPoint{333, 517}, CPoint{640, 480}, CPoint{1001, 999}}) {
        robot.moveTo(Spot{point});
        EXPECT_EQ(cursor(), point);
    }
}

TEST(RobotMouse, PressLandsWhereThePointerWasMovedToThoughItWasTakenAway)
{
    ProbeWindow probe;
    CPoint spot(50, 50);
    probe.ClientToScreen(&spot);
    Input input;

    input.moveTo(spot);
    ::SetCursorPos(spot.x + 40, spot.y + 30);
    input.press(Button::Left);
    input.release(Button::Left);
    ASSERT_TRUE(GuiThread::runUntil([&] { return probe.count(WM_LBUTTONUP) == 1; }));

    EXPECT_EQ(probe.all(WM_LBUTTONDOWN)[0].point, CPoint(50, 50));
}

TEST(RobotMouse, DragPassesThroughPlacesBetweenWithTheButtonDown)
{
    ProbeWindow probe;
    Robot robot;

    robot.press(Spot{probe, {50, 50}});
    EXPECT_EQ(probe.count(WM_LBUTTONUP), 1) << "what is pressed is let go at the end of the story";
    probe.clear();
    robot.drag(Spot{probe, {50, 50}}, Spot{probe, {130, 90}});

    const auto down = probe.all(WM_LBUTTONDOWN);
    const auto up = probe.all(WM_LBUTTONUP);
    ASSERT_THAT(down, SizeIs(1));
    ASSERT_THAT(up, SizeIs(1));
    EXPECT_EQ(down[0].point, CPoint(50, 50));
    EXPECT_EQ(up[0].point, CPoint(130, 90));
    int dragged = 0;
    for (const auto& move : probe.all(WM_MOUSEMOVE))
        dragged += (move.wParam & MK_LBUTTON) && move.point.x > 50 && move.point.x < 130;
    EXPECT_GE(dragged, 3);
}

TEST(RobotMouse, MovesByADistanceFromWhereItIs)
{
    ProbeWindow probe;
    Robot robot;

    robot.press(Spot{probe, {50, 50}}).moveBy(30, -20).release();

    ASSERT_EQ(probe.count(WM_LBUTTONUP), 1);
    EXPECT_EQ(probe.all(WM_LBUTTONUP)[0].point, CPoint(80, 30));
}

TEST(RobotMouse, OtherButtonsAndTheWheel)
{
    ProbeWindow probe;
    Robot robot;

    robot.rightClick(Spot{probe}).click(Spot{probe}, Button::Middle).turnWheel(2).turnWheel(-1);

    EXPECT_EQ(probe.count(WM_RBUTTONDOWN), 1);
    EXPECT_EQ(probe.count(WM_RBUTTONUP), 1);
    EXPECT_EQ(probe.count(WM_MBUTTONDOWN), 1);
    const auto wheel = probe.all(WM_MOUSEWHEEL);
    ASSERT_THAT(wheel, SizeIs(2));
    EXPECT_EQ(GET_WHEEL_DELTA_WPARAM(wheel[0].wParam), 2 * WHEEL_DELTA);
    EXPECT_EQ(GET_WHEEL_DELTA_WPARAM(wheel[1].wParam), -WHEEL_DELTA);
}

TEST(RobotMouse, SpotsAreLookedUpWhenTheirStepComes)
{
    RecordingParent parent;
    present(parent);
    CButton late;
    Robot robot;

    robot.then([&] { late.Create(L"Late", WS_CHILD | WS_VISIBLE, CRect(30, 30, 130, 60), &parent, 8); })
        .click([&] { return late.m_hWnd; });

    EXPECT_EQ(parent.log().count(BN_CLICKED), 1);
}

TEST(RobotMouse, ModifierIsHeldThroughTheStoryAndNoLonger)
{
    ProbeWindow probe;
    Robot robot;

    robot.holding(VK_CONTROL).click(Spot{probe, {40, 40}}).letGo(VK_CONTROL).click(Spot{probe, {90, 40}});
    robot.holding(VK_SHIFT).click(Spot{probe, {40, 90}});
    robot.click(Spot{probe, {90, 90}});

    const auto down = probe.all(WM_LBUTTONDOWN);
    ASSERT_THAT(down, SizeIs(4));
    EXPECT_EQ(down[0].wParam, static_cast<WPARAM>(MK_LBUTTON | MK_CONTROL));
    EXPECT_EQ(down[1].wParam, static_cast<WPARAM>(MK_LBUTTON));
    EXPECT_EQ(down[2].wParam, static_cast<WPARAM>(MK_LBUTTON | MK_SHIFT));
    EXPECT_EQ(down[3].wParam, static_cast<WPARAM>(MK_LBUTTON));
}
