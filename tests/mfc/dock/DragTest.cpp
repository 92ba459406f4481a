// Bars that a user drags with the mouse.
#include "DockScene.h"

#include <support/Perishing.h>
#include <testkit/Picture.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ovo::testkit;
using namespace docktest;

namespace
{

/// The frame that follows the pointer; empty when there is none.
CRect outline()
{
    CRect found;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND wnd, LPARAM lParam) -> BOOL {
            constexpr LONG_PTR kStyle = WS_EX_TOPMOST | WS_EX_TRANSPARENT | WS_EX_NOACTIVATE;
            const LONG_PTR style = ::GetWindowLongPtrW(wnd, GWL_EXSTYLE);
            if ((style & kStyle) == kStyle && ::IsWindowVisible(wnd))
                ::GetWindowRect(wnd, reinterpret_cast<RECT*>(lParam));
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

class Drag : public ::testing::Test, protected DockScene
{
protected:
    Drag() { dockInOneRow(); }

    Spot inFrame(int x, int y) const
    {
        return Spot{[=, this] {
            CPoint point(x, y);
            frame->ClientToScreen(&point);
            return point;
        }};
    }
    Spot leftEdge() const { return inFrame(1, 200); }
    Spot rightEdge() const { return inFrame(client().right - 2, 200); }
    Spot bottomEdge() const { return inFrame(250, place(status).top - 2); }
    Spot middle() const { return inFrame(250, 200); }

    bool isAt(const CControlBar& bar, UINT id) const { return bar.GetParent() == side(id); }

    /// Makes a bar of a test's own, in a row of its own at the top.
    void dock(ButtonBar& bar)
    {
        ASSERT_TRUE(bar.create(*frame, ID_BAR_DIALOG, L"Another", 2));
        bar.EnableDocking(kAnySide);
        frame->DockControlBar(&bar);
        frame->RecalcLayout();
    }

    /// A press on the gripper without a robot, whose loop would get what is raised meanwhile. The drag goes
    /// on with the messages that are posted already.
    void takeHold(CControlBar& bar) const
    {
        CPoint point = gripper(bar).find();
        bar.ScreenToClient(&point);
        bar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    }
};

/// Raises an exception when it gets WM_APP.
class RaisingWnd : public CWnd
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_APP)
            throw std::runtime_error("message");
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST_F(Drag, DocksToEverySide)
{
    robot.drag(gripper(one), leftEdge());
    EXPECT_TRUE(isAt(one, AFX_IDW_DOCKBAR_LEFT));
    EXPECT_EQ(place(one).left, 0);
    EXPECT_GT(place(one).Height(), place(one).Width());
    robot.drag(gripper(one), bottomEdge());
    EXPECT_TRUE(isAt(one, AFX_IDW_DOCKBAR_BOTTOM));
    EXPECT_EQ(place(one).bottom, place(status).top);
    robot.drag(gripper(one), rightEdge());
    EXPECT_TRUE(isAt(one, AFX_IDW_DOCKBAR_RIGHT));
    EXPECT_EQ(place(one).right, client().right);
    const int held = place(one).CenterPoint().x - place(one).left;
    robot.drag(gripper(one), inFrame(400, 5));
    EXPECT_TRUE(isAt(one, AFX_IDW_DOCKBAR_TOP));
    EXPECT_EQ(place(one).top, 0);
    EXPECT_EQ(place(one).left, 400 - held) << "where it was dropped: in the row with the others";
}

TEST_F(Drag, InTheMiddleItFloats)
{
    robot.drag(gripper(one), middle());
    EXPECT_TRUE(one.IsFloating());
    ASSERT_TRUE(floatOf(one));
    EXPECT_TRUE(floatOf(one)->IsWindowVisible());
    EXPECT_TRUE(onScreen(*floatOf(one)).PtInRect(middle().find())) << "under the pointer";
}

TEST_F(Drag, ByTheCaptionItDocksAgain)
{
    robot.drag(gripper(one), middle()).drag(caption(one), leftEdge());
    EXPECT_FALSE(one.IsFloating());
    EXPECT_TRUE(isAt(one, AFX_IDW_DOCKBAR_LEFT));
}

TEST_F(Drag, ByTheCaptionItIsMoved)
{
    robot.drag(gripper(one), middle());
    const CPoint before = onScreen(*floatOf(one)).TopLeft();
    const HWND window = *floatOf(one);
    robot.press(caption(one)).moveBy(60, 30).release();
    EXPECT_EQ(onScreen(*floatOf(one)).TopLeft(), before + CPoint(60, 30));
    EXPECT_EQ(floatOf(one)->m_hWnd, window);
}

TEST_F(Drag, OnlyToSidesThatAreAllowed)
{
    two.EnableDocking(CBRS_ALIGN_TOP | CBRS_ALIGN_LEFT);
    robot.drag(gripper(two), bottomEdge());
    EXPECT_TRUE(two.IsFloating());
    robot.drag(caption(two), leftEdge());
    EXPECT_TRUE(isAt(two, AFX_IDW_DOCKBAR_LEFT));
}

TEST_F(Drag, ControlKeepsItFloating)
{
    robot.drag(gripper(one), middle()).holding(VK_CONTROL).drag(caption(one), leftEdge());
    EXPECT_TRUE(one.IsFloating());
    EXPECT_LE(onScreen(*floatOf(one)).left, onScreen(*frame).left + 10);
}

TEST_F(Drag, ControlTakesADockedBarOffItsSide)
{
    robot.holding(VK_CONTROL).press(gripper(one)).moveBy(40, 6).release();
    EXPECT_TRUE(one.IsFloating()) << "although it lies over the side that it was at";
}

TEST_F(Drag, EscapeGivesUp)
{
    const CRect before = place(one);
    robot.press(gripper(one)).moveTo(leftEdge()).key(VK_ESCAPE).release();
    EXPECT_TRUE(isAt(one, AFX_IDW_DOCKBAR_TOP));
    EXPECT_EQ(place(one), before);
    EXPECT_TRUE(outline().IsRectEmpty());
    EXPECT_EQ(::GetCapture(), nullptr);

    robot.drag(gripper(one), middle());
    const CRect floating = onScreen(*floatOf(one));
    robot.press(caption(one)).moveTo(leftEdge()).key(VK_ESCAPE).release();
    EXPECT_TRUE(one.IsFloating());
    EXPECT_EQ(onScreen(*floatOf(one)), floating);
}

TEST_F(Drag, TheOtherButtonGivesUp)
{
    robot.press(gripper(one))
        .moveTo(leftEdge())
        .press(leftEdge(), Button::Right)
        .release(Button::Right)
        .release();
    EXPECT_TRUE(isAt(one, AFX_IDW_DOCKBAR_TOP));
}

TEST_F(Drag, AnOutlineShowsWhereItWillBe)
{
    CRect atTheSide;
    CRect inTheMiddle;
    CRect withControl;
    robot.press(gripper(one))
        .moveTo(leftEdge())
        .then([&] { atTheSide = outline(); })
        .holding(VK_CONTROL)
        .waitFor("the other outline", [&] { return outline() != atTheSide; })
        .then([&] { withControl = outline(); })
        .letGo(VK_CONTROL)
        .waitFor("the first outline", [&] { return outline() == atTheSide; })
        .moveTo(middle())
        .then([&] { inTheMiddle = outline(); })
        .key(VK_ESCAPE)
        .release();
    EXPECT_GT(atTheSide.Height(), atTheSide.Width()) << "as it would lie there";
    EXPECT_GT(withControl.Width(), withControl.Height());
    EXPECT_GT(inTheMiddle.Width(), inTheMiddle.Height());
    EXPECT_TRUE(inTheMiddle.PtInRect(middle().find()));
}

TEST_F(Drag, TheBarTakesTheOutlinesPlace)
{
    CRect last;
    robot.press(gripper(one)).moveTo(middle()).then([&] { last = outline(); }).release();
    EXPECT_EQ(onScreen(*floatOf(one)), last);
}

TEST_F(Drag, AMereClickOnTheGripperDoesNothing)
{
    const CRect before = place(one);
    robot.click(gripper(one)).press(gripper(two)).moveBy(1, 1).release();
    EXPECT_EQ(place(one), before);
    EXPECT_TRUE(isAt(two, AFX_IDW_DOCKBAR_TOP));
}

TEST_F(Drag, AButtonIsNoHandle)
{
    robot.press(button(one, 1)).moveTo(middle()).release();
    EXPECT_FALSE(one.IsFloating());
    EXPECT_TRUE(frame->commands.empty()) << "released beside it, the button is not chosen";
}

TEST_F(Drag, ASeparatorIsAHandleWhereverItIs)
{
    for (const int index : {1, 0}) {
        two.SetButtonInfo(index, ID_SEPARATOR, TBBS_SEPARATOR, 12);
        frame->DockControlBar(&two);
        frame->RecalcLayout();
        robot.press(button(two, index)).moveTo(middle()).release();
        EXPECT_TRUE(two.IsFloating()) << index;
    }
}

TEST_F(Drag, ABarThatCannotBeDockedIsNotDragged)
{
    ButtonBar fixed;
    ASSERT_TRUE(fixed.create(*frame, ID_BAR_DIALOG, L"Fixed", 2));
    frame->RecalcLayout();
    robot.drag(gripper(fixed), middle());
    EXPECT_FALSE(fixed.IsFloating());
    EXPECT_EQ(fixed.GetParent(), frame);
    fixed.DestroyWindow();
}

TEST_F(Drag, ADoubleClickOnTheGripperAndOnTheCaptionToggles)
{
    const CRect before = place(two);
    robot.doubleClick(gripper(two));
    ASSERT_TRUE(two.IsFloating());
    robot.press(caption(two)).moveBy(70, 80).release();
    const CRect floating = onScreen(*floatOf(two));
    robot.doubleClick(caption(two));
    EXPECT_FALSE(two.IsFloating());
    EXPECT_EQ(place(two), before) << "back between the others";
    robot.doubleClick(gripper(two));
    ASSERT_TRUE(two.IsFloating());
    EXPECT_EQ(onScreen(*floatOf(two)), floating) << "back where it floated";
}

TEST_F(Drag, BarsOfARowPushEachOther)
{
    const int width = place(one).Width();
    robot.press(gripper(one)).moveBy(30, 0).release();
    EXPECT_EQ(place(one).left, 30);
    EXPECT_EQ(place(two).left, 30 + width) << "pushed";
    robot.press(gripper(three)).moveBy(-1000, 0).release();
    EXPECT_TRUE(three.IsFloating()) << "beyond the frame";
    robot.drag(caption(three), inFrame(1, 5));
    EXPECT_LT(place(three).left, place(one).left) << "now the first one";
    EXPECT_EQ(place(one).top, 0);
}

TEST_F(Drag, BelowTheRowItHasARowOfItsOwn)
{
    const int height = place(one).Height();
    robot.press(gripper(two)).moveBy(0, height - 4).release();
    EXPECT_EQ(place(two).top, height);
    EXPECT_TRUE(isAt(two, AFX_IDW_DOCKBAR_TOP));
    EXPECT_EQ(panePlace().top, 2 * height);
    robot.press(gripper(two)).moveBy(0, -height).release();
    EXPECT_EQ(place(two).top, 0);
    EXPECT_EQ(panePlace().top, height);
}

TEST_F(Drag, SizingTheBorderBreaksTheRowsOfButtons)
{
    robot.drag(gripper(one), middle());
    const CRect before = onScreen(*floatOf(one));
    CRect first;
    one.GetItemRect(0, &first);
    const auto rightBorder = [&] {
        const CRect rect = onScreen(*floatOf(one));
        return CPoint(rect.right - 2, rect.bottom - 10);
    };
    robot.press(Spot{rightBorder}).moveBy(-2 * first.Width(), 0).release();
    const CRect after = onScreen(*floatOf(one));
    EXPECT_LT(after.Width(), before.Width());
    EXPECT_GE(after.Height(), before.Height() + first.Height());
    EXPECT_EQ(after.TopLeft(), before.TopLeft());
    CRect last;
    one.GetItemRect(3, &last);
    EXPECT_GT(last.top, first.top);
    CRect client;
    one.GetClientRect(&client);
    EXPECT_EQ(client.bottom, last.bottom) << "no room is left over";

    robot.drag(caption(one), inFrame(300, 5)).doubleClick(gripper(one));
    EXPECT_EQ(onScreen(*floatOf(one)).Size(), after.Size()) << "the width is remembered";
}

TEST_F(Drag, SizingTheLowerBorderTriesForThatHeight)
{
    robot.drag(gripper(one), middle());
    const CRect before = onScreen(*floatOf(one));
    CRect first;
    one.GetItemRect(0, &first);
    const auto lowerBorder = [&] {
        const CRect rect = onScreen(*floatOf(one));
        return CPoint(rect.CenterPoint().x, rect.bottom - 2);
    };
    robot.press(Spot{lowerBorder}).moveBy(0, first.Height() + 6).release();
    const CRect after = onScreen(*floatOf(one));
    EXPECT_LT(after.Width(), before.Width());
    EXPECT_GT(after.Height(), before.Height());
}

TEST_F(Drag, SizingTheLeftAndTheUpperBorderKeepsTheOtherEdges)
{
    robot.drag(gripper(one), middle());
    const CRect before = onScreen(*floatOf(one));
    CRect first;
    one.GetItemRect(0, &first);
    const auto leftBorder = [&] {
        const CRect rect = onScreen(*floatOf(one));
        return CPoint(rect.left + 1, rect.bottom - 10);
    };
    robot.press(Spot{leftBorder}).moveBy(2 * first.Width() - 4, 0).release(); // two buttons are left
    const CRect narrow = onScreen(*floatOf(one));
    EXPECT_LT(narrow.Width(), before.Width());
    EXPECT_EQ(CPoint(narrow.right, narrow.top), CPoint(before.right, before.top));

    const auto upperBorder = [&] {
        const CRect rect = onScreen(*floatOf(one));
        return CPoint(rect.CenterPoint().x, rect.top + 1);
    };
    robot.press(Spot{upperBorder}).moveBy(0, first.Height()).release(); // as low as one row
    const CRect low = onScreen(*floatOf(one));
    EXPECT_LT(low.Height(), narrow.Height());
    EXPECT_GT(low.Width(), narrow.Width());
    EXPECT_EQ(low.bottom, narrow.bottom);
    EXPECT_EQ(low.left, narrow.left);
}

TEST_F(Drag, ABarOfFixedSizeHasNoBorderToSizeIt)
{
    two.SetBarStyle(two.GetBarStyle() & ~CBRS_SIZE_DYNAMIC);
    robot.drag(gripper(two), middle());
    EXPECT_FALSE(floatOf(two)->GetStyle() & WS_THICKFRAME);
}

TEST_F(Drag, TheBarMayGoWhileItIsDragged)
{
    robot.press(gripper(two))
        .moveTo(middle())
        .then([&] { two.DestroyWindow(); })
        .moveTo(leftEdge())
        .release();
    EXPECT_EQ(two.m_hWnd, nullptr);
    EXPECT_TRUE(outline().IsRectEmpty());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(Drag, TheFrameMayGoWhileABarIsDragged)
{
    robot.press(gripper(two))
        .moveTo(middle())
        .then([&] { frame->DestroyWindow(); })
        .moveTo(CPoint(500, 300))
        .release();
    frame = nullptr;
    EXPECT_EQ(two.m_hWnd, nullptr);
    EXPECT_TRUE(outline().IsRectEmpty());
}

TEST_F(Drag, TheBarMayGoWhenItIsAskedForItsSize)
{
    auto* const bar = new Perishing<AskedBar>;
    dock(*bar);
    const HWND wnd = *bar;
    bar->whenAsked = [bar] { delete bar; };
    robot.press(gripper(*bar)).moveTo(middle()).release();
    EXPECT_FALSE(::IsWindow(wnd));
    EXPECT_TRUE(outline().IsRectEmpty());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(Drag, ABarThatRaisesAnExceptionWhenItIsAskedForItsSizeStaysAsItWas)
{
    AskedBar bar;
    dock(bar);
    const DWORD style = bar.GetBarStyle();
    robot.moveTo(middle());
    bar.PostMessage(WM_MOUSEMOVE, MK_LBUTTON);
    bar.whenAsked = [] { throw std::runtime_error("size"); };
    EXPECT_THROW(takeHold(bar), std::runtime_error);
    EXPECT_EQ(bar.GetBarStyle(), style) << "it is asked as if it floated";
    EXPECT_TRUE(isAt(bar, AFX_IDW_DOCKBAR_TOP));
    EXPECT_EQ(::GetCapture(), nullptr);
    bar.DestroyWindow();
}

TEST_F(Drag, WhatAnotherWindowRaisesMeanwhileGivesTheMouseBack)
{
    RaisingWnd other;
    ASSERT_TRUE(other.Create(AfxRegisterWndClass(0), nullptr, WS_CHILD, CRect(), frame, ID_BAR_DIALOG));
    other.PostMessage(WM_APP);
    EXPECT_THROW(takeHold(two), std::runtime_error);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_TRUE(isAt(two, AFX_IDW_DOCKBAR_TOP));
    other.DestroyWindow();
}

TEST_F(Drag, AWindowThatGoesMeanwhileDoesNotTakeTheBar)
{
    one.EnableDocking(kAnySide | CBRS_FLOAT_MULTI);
    two.EnableDocking(kAnySide | CBRS_FLOAT_MULTI);
    robot.drag(gripper(one), middle())
        .press(gripper(two))
        .moveTo(Spot{one})
        .then([&] {
            one.DestroyWindow();
            frame->RecalcLayout(); // the window without bars ends
        })
        .release();
    ASSERT_TRUE(floatOf(two));
    EXPECT_TRUE(two.IsFloating());
    EXPECT_TRUE(floatOf(two)->IsWindowVisible()) << "in a window of its own";
}

TEST_F(Drag, BarsThatMayFloatTogetherShareAWindow)
{
    one.EnableDocking(kAnySide | CBRS_FLOAT_MULTI);
    two.EnableDocking(kAnySide | CBRS_FLOAT_MULTI);
    robot.drag(gripper(one), middle()).drag(gripper(two), Spot{one});
    EXPECT_TRUE(two.IsFloating());
    EXPECT_EQ(floatOf(two), floatOf(one));
    robot.drag(gripper(three), Spot{one});
    EXPECT_NE(floatOf(three), floatOf(one)) << "this one may not";

    const HWND window = *floatOf(one);
    ::SendMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_FALSE(one.IsVisible());
    EXPECT_FALSE(two.IsVisible());
    EXPECT_FALSE(::IsWindowVisible(window));
    frame->ShowControlBar(&two, TRUE, FALSE);
    EXPECT_TRUE(::IsWindowVisible(window)) << "the window comes back with one of its bars";
    EXPECT_FALSE(one.IsVisible());
}

TEST(DragMirrored, TheLeftSideIsAtTheRight)
{
    DockScene scene({.exStyle = WS_EX_LAYOUTRTL});
    scene.dockInOneRow();
    const CRect frame = DockScene::onScreen(scene.pane);
    scene.robot.drag(scene.gripper(scene.one), Spot{CPoint(frame.right - 2, frame.CenterPoint().y)});
    EXPECT_EQ(scene.one.GetParent(), scene.side(AFX_IDW_DOCKBAR_LEFT));
    EXPECT_EQ(DockScene::onScreen(scene.one).right, frame.right);

    scene.robot.press(scene.gripper(scene.two)).moveBy(-50, 0).release();
    EXPECT_EQ(DockScene::onScreen(scene.two).right,
              DockScene::onScreen(*scene.side(AFX_IDW_DOCKBAR_TOP)).right - scene.place(scene.two).left);
    EXPECT_GT(scene.place(scene.two).left, 0);
}
