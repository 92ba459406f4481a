// Bars that a program docks: sides, rows, who is told of their buttons.
#include "DockScene.h"

#include <support/Perishing.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;
using namespace docktest;

namespace
{

class Docking : public ::testing::Test, protected DockScene
{
};

/// Does not hand WM_DESTROY on to the class that it derives from.
class ForgetfulBar : public ButtonBar
{
protected:
    afx_msg void OnDestroy() {}
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ForgetfulBar, ButtonBar)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

/// Docks a bar at the top.
void dock(DockFrame& frame, ButtonBar& bar)
{
    ASSERT_TRUE(bar.create(frame, ID_BAR_DIALOG, L"Forgetful", 2));
    bar.EnableDocking(kAnySide);
    frame.DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    frame.RecalcLayout();
}

} // namespace

TEST_F(Docking, ADeletedBarIsForgottenWhateverItHasHeardBefore)
{
    auto* const bar = new Perishing<ForgetfulBar>;
    const void* const memory = bar;
    dock(*frame, *bar);
    EXPECT_EQ(side(AFX_IDW_DOCKBAR_TOP)->bars(), std::vector<CControlBar*>{bar});
    bar->DestroyWindow();
    delete bar;
    EXPECT_TRUE(side(AFX_IDW_DOCKBAR_TOP)->bars().empty());
    EXPECT_EQ(frame->GetControlBar(ID_BAR_DIALOG), nullptr);
    frame->RecalcLayout();
    EXPECT_TRUE(Perishing<ForgetfulBar>::isUntouched(memory));
}

TEST(DockingEnd, ABarThatHasHeardNothingMayOutliveItsFrame)
{
    DockScene scene;
    ForgetfulBar bar;
    dock(*scene.frame, bar);
    scene.frame->DestroyWindow();
    scene.frame = nullptr;
    EXPECT_EQ(bar.m_hWnd, nullptr);
    EXPECT_EQ(bar.GetDockingFrame(), nullptr);
}

TEST_F(Docking, ABarLiesAtItsSide)
{
    struct Case
    {
        UINT id;
        DWORD align;
    };
    const Case cases[] = {{AFX_IDW_DOCKBAR_TOP, CBRS_ALIGN_TOP},
                          {AFX_IDW_DOCKBAR_BOTTOM, CBRS_ALIGN_BOTTOM},
                          {AFX_IDW_DOCKBAR_LEFT, CBRS_ALIGN_LEFT},
                          {AFX_IDW_DOCKBAR_RIGHT, CBRS_ALIGN_RIGHT}};
    two.ShowWindow(SW_HIDE);
    three.ShowWindow(SW_HIDE);
    for (const Case& c : cases) {
        frame->DockControlBar(&one, c.id);
        frame->RecalcLayout();
        EXPECT_EQ(one.GetBarStyle() & CBRS_ALIGN_ANY, c.align);
        EXPECT_FALSE(one.IsFloating());
        EXPECT_EQ(one.GetParent(), side(c.id));
        EXPECT_EQ(one.GetOwner(), frame);
        EXPECT_EQ(one.GetDockingFrame(), frame);
        EXPECT_EQ(frame->GetControlBar(ID_BAR_ONE), &one);
        const CRect bar = place(one);
        CRect free(client());
        free.bottom = place(status).top;
        const bool lies = c.align == CBRS_ALIGN_TOP || c.align == CBRS_ALIGN_BOTTOM;
        EXPECT_EQ(bar.Width() > bar.Height(), lies) << "its buttons lie in one row or column";
        switch (c.align) {
        case CBRS_ALIGN_TOP:
            EXPECT_EQ(bar.TopLeft(), free.TopLeft());
            free.top = bar.bottom;
            break;
        case CBRS_ALIGN_BOTTOM:
            EXPECT_EQ(bar.bottom, free.bottom);
            free.bottom = bar.top;
            break;
        case CBRS_ALIGN_LEFT:
            EXPECT_EQ(bar.TopLeft(), free.TopLeft());
            free.left = bar.right;
            break;
        case CBRS_ALIGN_RIGHT:
            EXPECT_EQ(bar.right, free.right);
            free.right = bar.left;
            break;
        }
        EXPECT_EQ(panePlace(), free) << "the pane has the rest";
    }
}

TEST_F(Docking, WithoutASideTheFirstThatBothAllowIsTaken)
{
    one.EnableDocking(CBRS_ALIGN_ANY);
    two.EnableDocking(CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT);
    three.EnableDocking(CBRS_ALIGN_RIGHT | CBRS_ALIGN_BOTTOM);
    for (ButtonBar* bar : {&one, &two, &three})
        frame->DockControlBar(bar);
    EXPECT_EQ(one.GetParent(), side(AFX_IDW_DOCKBAR_TOP));
    EXPECT_EQ(two.GetParent(), side(AFX_IDW_DOCKBAR_LEFT));
    EXPECT_EQ(three.GetParent(), side(AFX_IDW_DOCKBAR_BOTTOM));
}

TEST_F(Docking, WithoutARectangleEachHasARowOfItsOwn)
{
    for (ButtonBar* bar : {&one, &two, &three})
        frame->DockControlBar(bar);
    frame->RecalcLayout();
    EXPECT_EQ(place(one).top, 0);
    EXPECT_EQ(place(two).top, place(one).bottom);
    EXPECT_EQ(place(three).top, place(two).bottom);
    EXPECT_EQ(panePlace().top, place(three).bottom);
}

TEST_F(Docking, ARectangleOnAnotherBarPutsThemSideBySide)
{
    dockInOneRow();
    EXPECT_EQ(place(one).left, 0);
    EXPECT_EQ(place(two).left, place(one).right);
    EXPECT_EQ(place(three).left, place(two).right);
    for (const ButtonBar* bar : {&one, &two, &three})
        EXPECT_EQ(place(*bar).top, 0);
    EXPECT_EQ(panePlace().top, place(one).bottom);
}

TEST_F(Docking, IsLaidOutWhenThereIsTime)
{
    ovo::testkit::present(*frame);
    GuiThread::settle();
    frame->DockControlBar(&one);
    GuiThread::settle();
    EXPECT_EQ(one.GetParent(), side(AFX_IDW_DOCKBAR_TOP));
    EXPECT_EQ(place(one).top, place(three).bottom) << "behind the bars with a fixed place";
    EXPECT_EQ(panePlace().top, place(one).bottom);
}

TEST_F(Docking, AHiddenBarKeepsItsPlaceAndTakesNoRoom)
{
    dockInOneRow();
    const CRect before = place(two);
    const CRect third = place(three);
    frame->ShowControlBar(&two, FALSE, FALSE);
    EXPECT_EQ(place(three), third) << "nothing moves where it need not";
    frame->ShowControlBar(&one, FALSE, FALSE);
    frame->ShowControlBar(&three, FALSE, FALSE);
    EXPECT_EQ(panePlace().top, 0) << "a row of hidden bars takes no room";
    for (ButtonBar* bar : {&one, &two, &three})
        frame->ShowControlBar(bar, TRUE, FALSE);
    EXPECT_EQ(place(two), before);
    EXPECT_EQ(place(three), third);
}

TEST_F(Docking, BarsThatAreTooLongForTheirRowAreCutNotLost)
{
    dockInOneRow();
    const int whole = place(three).Width();
    frame->SetWindowPos(nullptr, 0, 0, 230, 400, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_LT(place(three).Width(), whole);
    EXPECT_GE(place(three).Width(), 16) << "the gripper can still be taken hold of";
    EXPECT_EQ(place(three).right, client().right);
    frame->SetWindowPos(nullptr, 0, 0, 600, 400, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(place(three).Width(), whole);
    EXPECT_EQ(place(three).left, place(two).right);
}

TEST_F(Docking, ButtonsSendTheirCommandsToTheFrame)
{
    dockInOneRow();
    frame->DockControlBar(&two, AFX_IDW_DOCKBAR_LEFT);
    frame->RecalcLayout();
    robot.click(button(one, 1)).click(button(two, 2));
    EXPECT_EQ(frame->commands, (std::vector<UINT>{ID_FIRST + 1, ID_FIRST + 16 + 2}));
}

TEST_F(Docking, ButtonsAreDisabledWithoutAHandlerWhenThereIsTime)
{
    one.SetButtonInfo(0, 0x9000, TBBS_BUTTON, 0); // a command without a handler
    dockInOneRow();
    GuiThread::settle();
    EXPECT_TRUE(one.GetButtonStyle(0) & TBBS_DISABLED);
    EXPECT_FALSE(one.GetButtonStyle(1) & TBBS_DISABLED);
}

TEST_F(Docking, ABarThatGoesIsForgotten)
{
    dockInOneRow();
    two.DestroyWindow();
    GuiThread::settle();
    EXPECT_EQ(frame->GetControlBar(ID_BAR_TWO), nullptr);
    EXPECT_EQ(side(AFX_IDW_DOCKBAR_TOP)->bars(), (std::vector<CControlBar*>{&one, &three}));
    EXPECT_EQ(place(one).left, 0);
}

TEST_F(Docking, ABarMayEndAnotherOneWhenItIsAskedForItsSize)
{
    class Jealous : public ButtonBar
    {
    public:
        CWnd* rival = nullptr;
        CSize CalcDynamicLayout(int length, DWORD mode) override
        {
            if (rival && rival->m_hWnd)
                rival->DestroyWindow();
            return ButtonBar::CalcDynamicLayout(length, mode);
        }
    } bar;
    ASSERT_TRUE(bar.create(*frame, ID_BAR_DIALOG, L"Jealous", 2));
    bar.EnableDocking(kAnySide);
    dockInOneRow();
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP, onScreen(one));
    bar.rival = &two;
    frame->RecalcLayout();
    bar.rival = nullptr;
    EXPECT_EQ(two.m_hWnd, nullptr);
    EXPECT_EQ(place(bar).left, 0);
    EXPECT_EQ(place(one).left, place(bar).right);
    bar.DestroyWindow();
}

TEST_F(Docking, AnErrorOfABarReachesTheCallerAndTheNextLayoutIsWhole)
{
    class Failing : public ButtonBar
    {
    public:
        bool fails = false;
        CSize CalcDynamicLayout(int length, DWORD mode) override
        {
            if (std::exchange(fails, false))
                throw 42;
            return ButtonBar::CalcDynamicLayout(length, mode);
        }
    } bar;
    ASSERT_TRUE(bar.create(*frame, ID_BAR_DIALOG, L"Failing", 2));
    bar.EnableDocking(kAnySide);
    frame->DockControlBar(&bar);
    frame->DockControlBar(&one);
    bar.fails = true;
    EXPECT_THROW(frame->RecalcLayout(), int);
    frame->RecalcLayout();
    EXPECT_EQ(place(one).top, place(bar).bottom);
    bar.DestroyWindow();
}

TEST_F(Docking, BarsThatAreHiddenWhileAnObjectIsEditedInPlace)
{
    dockInOneRow();
    two.SetBarStyle(two.GetBarStyle() | CBRS_HIDE_INPLACE);
    three.SetBarStyle(three.GetBarStyle() | CBRS_HIDE_INPLACE);
    frame->ShowControlBar(&three, FALSE, FALSE);
    CWnd object;
    one.SetInPlaceOwner(&object);
    GuiThread::settle();
    EXPECT_FALSE(two.IsVisible());
    EXPECT_TRUE(one.IsVisible()) << "the object's own bar";
    one.SetInPlaceOwner(nullptr);
    GuiThread::settle();
    EXPECT_TRUE(two.IsVisible());
    EXPECT_FALSE(three.IsVisible()) << "it was hidden before";
}
