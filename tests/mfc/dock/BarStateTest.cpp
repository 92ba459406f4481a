// The arrangement of bars, saved in the profile and brought back.
#include "DockScene.h"

#include <support/Perishing.h>
#include <testkit/TemporaryProfile.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;
using namespace docktest;

namespace
{

class BarStates : public ::testing::Test, protected DockScene
{
protected:
    /// One hidden at the left, two and three in a row at the top behind nothing, three first.
    void arrange()
    {
        frame->DockControlBar(&one, AFX_IDW_DOCKBAR_LEFT);
        frame->DockControlBar(&three);
        frame->RecalcLayout();
        CRect rect = onScreen(three);
        rect.OffsetRect(120, 0);
        frame->DockControlBar(&two, AFX_IDW_DOCKBAR_TOP, rect);
        frame->ShowControlBar(&one, FALSE, FALSE);
    }

    void disarrange()
    {
        frame->DockControlBar(&two, AFX_IDW_DOCKBAR_BOTTOM);
        frame->DockControlBar(&three, AFX_IDW_DOCKBAR_RIGHT);
        frame->FloatControlBar(&one, CPoint(300, 300));
        frame->ShowControlBar(&one, TRUE, FALSE);
        frame->RecalcLayout();
    }

    CControlBarInfo& info(CDockState& state, UINT id) const
    {
        for (INT_PTR i = 0; i < state.m_arrBarInfo.GetSize(); ++i)
            if (auto* found = static_cast<CControlBarInfo*>(state.m_arrBarInfo[i]); found->id == id)
                return *found;
        throw std::runtime_error("no such bar");
    }

    /// Wholly.
    static bool isInsideWorkArea(const CRect& rect)
    {
        CRect area;
        ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
        CRect both;
        both.UnionRect(area, rect);
        return !rect.IsRectEmpty() && both == area;
    }

    TemporaryProfile m_profile;
};

} // namespace

TEST_F(BarStates, ComeBackFromTheProfile)
{
    arrange();
    const CRect second = place(two);
    const CRect third = place(three);
    EXPECT_EQ(second.left, 120);
    frame->SaveBarState(L"Arrangement");
    disarrange();
    frame->LoadBarState(L"Arrangement");
    EXPECT_FALSE(one.IsVisible());
    EXPECT_FALSE(one.IsFloating());
    EXPECT_EQ(one.GetParent(), side(AFX_IDW_DOCKBAR_LEFT));
    EXPECT_EQ(place(two), second);
    EXPECT_EQ(place(three), third);
}

TEST_F(BarStates, ComeBackInAnotherRunOfTheProgram)
{
    arrange();
    frame->FloatControlBar(&three, CPoint(333, 222));
    frame->RecalcLayout();
    three.CalcDynamicLayout(30, LM_HORZ | LM_COMMIT); // two rows
    frame->RecalcLayout();
    const CSize size = onScreen(*floatOf(three)).Size();
    const CRect second = place(two);
    frame->SaveBarState(L"Arrangement");

    DockScene next;
    next.frame->LoadBarState(L"Arrangement");
    ovo::testkit::present(*next.frame);
    EXPECT_FALSE(next.one.IsVisible());
    EXPECT_EQ(next.place(next.two), second);
    ASSERT_TRUE(next.three.IsFloating());
    EXPECT_EQ(onScreen(*floatOf(next.three)), CRect(CPoint(333, 222), size));
}

TEST_F(BarStates, RememberWhereAFloatingBarWasDocked)
{
    arrange();
    frame->ShowControlBar(&one, TRUE, FALSE);
    const CRect second = place(two);
    frame->FloatControlBar(&two, CPoint(333, 222));
    frame->RecalcLayout();
    frame->SaveBarState(L"Arrangement");
    DockScene next;
    next.frame->LoadBarState(L"Arrangement");
    ovo::testkit::present(*next.frame);
    next.robot.doubleClick(next.caption(next.two));
    EXPECT_FALSE(next.two.IsFloating());
    EXPECT_EQ(next.place(next.two), second);
}

TEST_F(BarStates, WithoutASavedStateNothingChanges)
{
    arrange();
    const CRect second = place(two);
    frame->LoadBarState(L"Never saved");
    EXPECT_EQ(place(two), second);
    EXPECT_FALSE(one.IsVisible());
}

TEST_F(BarStates, AFloatingBarOnAMonitorThatIsGoneComesBackIntoAWorkArea)
{
    frame->FloatControlBar(&one, CPoint(300, 300));
    frame->RecalcLayout();
    ovo::testkit::present(*frame);
    const CPoint gone[] = {CPoint(20000, 300), CPoint(-5000, -5000), CPoint(300, 9000)};
    for (const CPoint& point : gone) {
        CDockState state;
        frame->GetDockState(state);
        info(state, ID_BAR_ONE).floatPoint = point;
        frame->SetDockState(state);
        EXPECT_TRUE(isInsideWorkArea(onScreen(*floatOf(one)))) << point.x << "," << point.y;
    }
}

TEST_F(BarStates, AMonitorThatIsGoneIsNoticedWhenTheProfileIsRead)
{
    ovo::testkit::present(*frame);
    frame->FloatControlBar(&one, CPoint(300, 300));
    frame->RecalcLayout();
    frame->SaveBarState(L"Arrangement");
    for (int i = 0; i < 4; ++i)
        AfxGetApp()->WriteProfileInt((L"Arrangement-Bar" + std::to_wstring(i)).c_str(), L"XPos", 30000);
    frame->LoadBarState(L"Arrangement");
    EXPECT_TRUE(isInsideWorkArea(onScreen(*floatOf(one))));
}

TEST_F(BarStates, ADockedBarThatFloatedOnAMonitorThatIsGoneFloatsInsideAWorkArea)
{
    dockInOneRow();
    for (const CPoint point : {CPoint(20000, 300), CPoint(-5000, -5000)}) {
        CDockState state;
        frame->GetDockState(state);
        info(state, ID_BAR_TWO).floating = FALSE;
        info(state, ID_BAR_TWO).floated = TRUE;
        info(state, ID_BAR_TWO).floatPoint = point;
        frame->SetDockState(state);
        ASSERT_FALSE(two.IsFloating());
        robot.doubleClick(gripper(two));
        ASSERT_TRUE(two.IsFloating());
        EXPECT_TRUE(isInsideWorkArea(onScreen(*floatOf(two)))) << point.x << "," << point.y;
    }
}

TEST_F(BarStates, ABarMayGoWhenItIsAskedForItsSizeToFloatAgain)
{
    AskedBar bar;
    ASSERT_TRUE(bar.create(*frame, ID_BAR_DIALOG, L"Vanishing", 2));
    bar.EnableDocking(kAnySide);
    frame->DockControlBar(&bar);
    frame->FloatControlBar(&bar, CPoint(300, 300));
    frame->DockControlBar(&bar);
    frame->RecalcLayout();
    ovo::testkit::present(*frame);
    bar.whenAsked = [&] { bar.DestroyWindow(); };
    bar.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(-4, 5)); // on its gripper
    EXPECT_EQ(bar.m_hWnd, nullptr);
    EXPECT_EQ(frame->GetControlBar(ID_BAR_DIALOG), nullptr);
}

TEST_F(BarStates, ABarMayGoWhenItIsAskedForItsSizeBecauseItFloatedWhenItWasSaved)
{
    auto* const bar = new Perishing<AskedBar>;
    const void* const memory = bar;
    ASSERT_TRUE(bar->create(*frame, ID_BAR_DIALOG, L"Vanishing", 2));
    bar->EnableDocking(kAnySide);
    frame->FloatControlBar(bar, CPoint(300, 300));
    frame->RecalcLayout();
    CDockState state;
    frame->GetDockState(state);
    frame->DockControlBar(bar);
    frame->RecalcLayout();
    bar->whenAsked = [bar] { delete bar; };
    frame->SetDockState(state);
    EXPECT_EQ(frame->GetControlBar(ID_BAR_DIALOG), nullptr);
    EXPECT_TRUE(Perishing<AskedBar>::isUntouched(memory));
}

TEST_F(BarStates, BarsThatAreUnknownOrMissingDoNoHarm)
{
    arrange();
    frame->SaveBarState(L"Arrangement");
    DockScene next;
    next.two.DestroyWindow();
    ButtonBar added;
    added.create(*next.frame, ID_BAR_DIALOG, L"New", 2);
    added.EnableDocking(kAnySide);
    next.frame->DockControlBar(&added);
    next.frame->LoadBarState(L"Arrangement");
    ovo::testkit::present(*next.frame);
    EXPECT_EQ(next.place(next.three).TopLeft(), CPoint(0, 0));
    EXPECT_EQ(next.place(added).top, next.place(next.three).bottom) << "what was not saved comes last";
    added.DestroyWindow();
}

TEST_F(BarStates, NonsenseInTheProfileDoesNoHarm)
{
    arrange();
    frame->SaveBarState(L"Arrangement");
    CWinApp& app = *AfxGetApp();
    for (const wchar_t* entry :
         {L"Row", L"Position", L"Start", L"DockBar", L"MRUWidth", L"Floating", L"XPos"})
        for (int i = 0; i < 4; ++i)
            app.WriteProfileInt((L"Arrangement-Bar" + std::to_wstring(i)).c_str(), entry, -77777);
    frame->LoadBarState(L"Arrangement");
    EXPECT_TRUE(::IsWindow(two));
    app.WriteProfileInt(L"Arrangement-Summary", L"Bars", 2000000000);
    frame->LoadBarState(L"Arrangement");
    app.WriteProfileInt(L"Arrangement-Summary", L"Bars", -3);
    frame->LoadBarState(L"Arrangement");
    EXPECT_TRUE(::IsWindow(two));
}

TEST_F(BarStates, FewerBarsLeaveNothingOfTheOldOnes)
{
    arrange();
    frame->SaveBarState(L"Arrangement");
    EXPECT_EQ(AfxGetApp()->GetProfileInt(L"Arrangement-Bar3", L"Visible", -1), 1)
        << "three bars and the status bar";
    two.DestroyWindow();
    frame->SaveBarState(L"Arrangement");
    EXPECT_EQ(AfxGetApp()->GetProfileInt(L"Arrangement-Bar3", L"Visible", -1), -1U);
}

TEST_F(BarStates, AStateIsTakenAndBroughtAboutWithoutAProfile)
{
    arrange();
    CDockState state;
    frame->GetDockState(state);
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 4);
    const CRect second = place(two);
    disarrange();
    frame->SetDockState(state);
    EXPECT_EQ(place(two), second);
    state.Clear();
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 0);
    EXPECT_GT(state.GetVersion(), 0u);
}

TEST_F(BarStates, BarsWithAFixedPlaceAreShownOrHiddenOnly)
{
    frame->ShowControlBar(&status, FALSE, FALSE);
    frame->SaveBarState(L"Arrangement");
    frame->ShowControlBar(&status, TRUE, FALSE);
    frame->LoadBarState(L"Arrangement");
    EXPECT_FALSE(status.IsVisible());
    EXPECT_EQ(status.GetParent(), frame);
}

TEST(BarStatesMirrored, ComeBackInAFrameFromRightToLeft)
{
    const TemporaryProfile profile;
    CRect second;
    CPoint floating;
    {
        DockScene scene({.exStyle = WS_EX_LAYOUTRTL});
        scene.dockInOneRow();
        scene.robot.press(scene.gripper(scene.two)).moveBy(-40, 0).release();
        scene.frame->FloatControlBar(&scene.three, CPoint(333, 222));
        scene.frame->DockControlBar(&scene.one, AFX_IDW_DOCKBAR_LEFT);
        scene.frame->RecalcLayout();
        second = scene.place(scene.two);
        floating = DockScene::onScreen(*DockScene::floatOf(scene.three)).TopLeft();
        scene.frame->SaveBarState(L"Arrangement");
    }
    DockScene next({.exStyle = WS_EX_LAYOUTRTL});
    next.frame->LoadBarState(L"Arrangement");
    EXPECT_EQ(next.place(next.two), second);
    EXPECT_GT(second.left, 0);
    EXPECT_EQ(next.one.GetParent(), next.side(AFX_IDW_DOCKBAR_LEFT));
    EXPECT_EQ(DockScene::onScreen(next.one).right,
              DockScene::onScreen(*next.side(AFX_IDW_DOCKBAR_TOP)).right);
    ASSERT_TRUE(next.three.IsFloating());
    EXPECT_EQ(DockScene::onScreen(*DockScene::floatOf(next.three)).TopLeft(), floating);
}
