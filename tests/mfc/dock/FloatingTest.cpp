// Bars that float: their windows, closing, showing again, following the frame.
#include "DockScene.h"

#include <testkit/WindowCounter.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;
using namespace docktest;

namespace
{

class Floating : public ::testing::Test, protected DockScene
{
protected:
    Floating()
    {
        dockInOneRow();
        frame->FloatControlBar(&one, CPoint(300, 250));
        frame->RecalcLayout();
    }

    CRect clientOf(const CWnd& wnd) const
    {
        CRect rect;
        wnd.GetClientRect(&rect);
        return rect;
    }
};

} // namespace

TEST_F(Floating, HasAWindowOfItsOwn)
{
    CMiniDockFrameWnd* window = floatOf(one);
    ASSERT_TRUE(window);
    EXPECT_TRUE(one.IsFloating());
    EXPECT_EQ(onScreen(*window).TopLeft(), CPoint(300, 250));
    EXPECT_TRUE(window->IsWindowVisible());
    EXPECT_TRUE(window->GetExStyle() & WS_EX_TOOLWINDOW);
    EXPECT_EQ(::GetWindow(*window, GW_OWNER), frame->m_hWnd);
    CString title;
    window->GetWindowText(title);
    EXPECT_STREQ(title, L"One");
    EXPECT_EQ(clientOf(*window).Size(), one.CalcDynamicLayout(-1, LM_HORZ | LM_MRUWIDTH));
    EXPECT_EQ(onScreen(one).Size(), clientOf(*window).Size());
}

TEST_F(Floating, StillBelongsToTheFrame)
{
    EXPECT_EQ(one.GetDockingFrame(), frame);
    EXPECT_EQ(one.GetOwner(), frame);
    EXPECT_EQ(frame->GetControlBar(ID_BAR_ONE), &one);
    EXPECT_EQ(one.GetTopLevelFrame(), frame);
    const HWND focus = ::GetFocus();
    robot.click(button(one, 2));
    EXPECT_EQ(frame->commands, std::vector<UINT>{ID_FIRST + 2});
    EXPECT_EQ(::GetForegroundWindow(), frame->m_hWnd) << "a click on a button leaves the focus where it is";
    EXPECT_EQ(::GetFocus(), focus);
}

TEST_F(Floating, ItsButtonsAreUpToDateWhenThereIsTime)
{
    one.SetButtonInfo(0, 0x9000, TBBS_BUTTON, 0); // a command without a handler
    GuiThread::settle();
    EXPECT_TRUE(one.GetButtonStyle(0) & TBBS_DISABLED);
}

TEST_F(Floating, CloseHidesItAndItComesBackWhereItWas)
{
    const HWND window = *floatOf(one);
    ::SendMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_FALSE(one.IsVisible());
    EXPECT_FALSE(::IsWindowVisible(window));
    EXPECT_TRUE(::IsWindow(one)) << "it is never destroyed";
    frame->ShowControlBar(&one, TRUE, FALSE);
    EXPECT_TRUE(one.IsVisible());
    EXPECT_TRUE(::IsWindowVisible(window));
    EXPECT_EQ(onScreen(*floatOf(one)).TopLeft(), CPoint(300, 250));
}

TEST_F(Floating, TheCloseBoxHidesIt)
{
    robot
        .click(Spot{[&] {
            const CRect rect = onScreen(*floatOf(one));
            TITLEBARINFOEX info{};
            info.cbSize = sizeof info;
            floatOf(one)->SendMessage(WM_GETTITLEBARINFOEX, 0, reinterpret_cast<LPARAM>(&info));
            const CRect close(info.rgrect[5]);
            return close.IsRectEmpty() ? CPoint(rect.right - ::GetSystemMetrics(SM_CXSIZEFRAME) -
                                                    ::GetSystemMetrics(SM_CXSMSIZE) / 2,
                                                rect.top + ::GetSystemMetrics(SM_CYSIZEFRAME) +
                                                    ::GetSystemMetrics(SM_CYSMCAPTION) / 2)
                                       : close.CenterPoint();
        }})
        .waitFor("the bar to go", [&] { return !one.IsVisible(); });
    EXPECT_TRUE(::IsWindow(one));
}

TEST_F(Floating, ABarMayRefuseToBeClosed)
{
    class Stubborn : public ButtonBar
    {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == WM_CLOSE ? 0 : ButtonBar::WindowProc(message, wParam, lParam);
        }
    } bar;
    ASSERT_TRUE(bar.create(*frame, ID_BAR_DIALOG, L"Stubborn", 2));
    bar.EnableDocking(kAnySide);
    frame->FloatControlBar(&bar, CPoint(400, 300));
    frame->RecalcLayout();
    floatOf(bar)->SendMessage(WM_CLOSE);
    EXPECT_TRUE(bar.IsVisible());
    EXPECT_TRUE(floatOf(bar)->IsWindowVisible());
    bar.DestroyWindow();
}

TEST_F(Floating, DockedAgainTheWindowGoes)
{
    const HWND window = *floatOf(one);
    const WindowCounter windows;
    frame->DockControlBar(&one, AFX_IDW_DOCKBAR_LEFT);
    frame->RecalcLayout();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_FALSE(one.IsFloating());
    EXPECT_EQ(windows.grown(), -2) << "the window and what the bar lay in";
}

TEST_F(Floating, AHundredTimesThereAndBackLeavesNothingBehind)
{
    frame->DockControlBar(&one);
    frame->RecalcLayout();
    const WindowCounter windows;
    for (int i = 0; i < 100; ++i) {
        frame->FloatControlBar(&one, CPoint(200 + i, 250));
        frame->RecalcLayout();
        frame->DockControlBar(&one, AFX_IDW_DOCKBAR_TOP);
        frame->RecalcLayout();
    }
    EXPECT_EQ(windows.grown(), 0);
}

TEST_F(Floating, MovesWhenItIsToFloatElsewhere)
{
    const HWND window = *floatOf(one);
    frame->FloatControlBar(&one, CPoint(420, 310));
    frame->RecalcLayout();
    EXPECT_EQ(floatOf(one)->m_hWnd, window);
    EXPECT_EQ(onScreen(*floatOf(one)).TopLeft(), CPoint(420, 310));
}

TEST_F(Floating, CanLieVertically)
{
    frame->FloatControlBar(&one, CPoint(420, 310), CBRS_ALIGN_LEFT);
    frame->RecalcLayout();
    EXPECT_TRUE(one.IsFloating());
    EXPECT_GT(onScreen(one).Height(), onScreen(one).Width());
    EXPECT_EQ(one.GetBarStyle() & CBRS_ALIGN_ANY, static_cast<DWORD>(CBRS_ALIGN_LEFT));
}

TEST_F(Floating, FollowsTheFramesHiding)
{
    const HWND window = *floatOf(one);
    frame->ShowWindow(SW_HIDE);
    EXPECT_FALSE(::IsWindowVisible(window));
    frame->ShowWindow(SW_SHOW);
    GuiThread::settle();
    EXPECT_TRUE(::IsWindowVisible(window));
}

TEST_F(Floating, IsNotShownBeforeTheFrameIs)
{
    DockScene other;
    other.frame->FloatControlBar(&other.one, CPoint(300, 300));
    other.frame->RecalcLayout();
    EXPECT_FALSE(floatOf(other.one)->IsWindowVisible());
    ovo::testkit::present(*other.frame);
    GuiThread::settle();
    EXPECT_TRUE(floatOf(other.one)->IsWindowVisible());
}

TEST_F(Floating, IsDisabledWithTheFrame)
{
    frame->BeginModalState();
    EXPECT_FALSE(floatOf(one)->IsWindowEnabled());
    frame->EndModalState();
    EXPECT_TRUE(floatOf(one)->IsWindowEnabled());
}

TEST_F(Floating, ABarThatGoesTakesItsWindowAlong)
{
    const HWND window = *floatOf(one);
    one.DestroyWindow();
    frame->RecalcLayout();
    EXPECT_FALSE(::IsWindow(window));
}

TEST(FloatingEnd, TheFrameTakesItsFloatingBarsAlong)
{
    HWND window = nullptr;
    {
        DockScene scene;
        scene.present();
        scene.frame->FloatControlBar(&scene.one, CPoint(300, 300));
        scene.frame->RecalcLayout();
        window = *DockScene::floatOf(scene.one);
        scene.frame->DestroyWindow();
        EXPECT_EQ(scene.one.m_hWnd, nullptr);
        scene.frame = nullptr;
    }
    EXPECT_FALSE(::IsWindow(window));
}

TEST(FloatingMirrored, ItsWindowIsMirroredToo)
{
    DockScene scene({.exStyle = WS_EX_LAYOUTRTL});
    scene.present();
    scene.frame->FloatControlBar(&scene.one, CPoint(300, 300));
    scene.frame->RecalcLayout();
    EXPECT_TRUE(DockScene::floatOf(scene.one)->GetExStyle() & WS_EX_LAYOUTRTL);
    EXPECT_EQ(DockScene::onScreen(*DockScene::floatOf(scene.one)).TopLeft(), CPoint(300, 300));
}
