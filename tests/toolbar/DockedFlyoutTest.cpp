// Flyouts of bars that are really docked and really float: where they open, for both kinds, with the mouse.
#include "ToolBarScene.h"

#include <ovoui/frame/Geometry.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

CRect onScreen(const CWnd& wnd)
{
    CRect rect;
    wnd.GetWindowRect(&rect);
    return rect;
}

/// A bar that can be docked to every side of its frame.
class DockedBar : public ::testing::Test
{
protected:
    DockedBar()
    {
        scene.frame().EnableDocking(CBRS_ALIGN_ANY);
        scene.bar().SetBarStyle(scene.bar().GetBarStyle() | CBRS_SIZE_DYNAMIC | CBRS_GRIPPER);
        scene.bar().EnableDocking(CBRS_ALIGN_ANY);
        dock(AFX_IDW_DOCKBAR_TOP);
    }

    void dock(UINT side)
    {
        scene.frame().DockControlBar(&scene.bar(), side);
        scene.frame().RecalcLayout();
        GuiThread::settle();
    }

    /// Floats with so many rows, or more where a separator ends one.
    void makeFloat(int rows, CPoint place = CPoint(230, 400))
    {
        scene.frame().FloatControlBar(&scene.bar(), place);
        scene.frame().RecalcLayout();
        for (int width = 400; scene.bar().GetToolBarCtrl().GetRows() < rows && width > 0; width -= 8) {
            scene.bar().CalcDynamicLayout(width, LM_HORZ | LM_COMMIT);
            scene.frame().RecalcLayout();
        }
        ASSERT_GE(scene.bar().GetToolBarCtrl().GetRows(), rows);
        GuiThread::settle();
    }

    CRect button(int index) const
    {
        CRect rect;
        scene.bar().GetItemRect(index, &rect);
        scene.bar().ClientToScreen(&rect);
        return rect;
    }

    /// Presses both flyout buttons in turn, and looks at what opens.
    void expectFlyouts(bool horizontal, const char* where)
    {
        for (const int index : {BarScene::Lines, BarScene::Shapes}) {
            SCOPED_TRACE(std::string(where) + ", button " + std::to_string(index));
            const CRect at = button(index);
            scene.user.press(scene.button(index))
                .waitFor("the flyout", &BarScene::flyoutShown)
                .then([&] {
                    EXPECT_EQ(BarScene::flyoutRect().TopLeft(),
                              horizontal ? CPoint(at.left, at.bottom) : CPoint(at.right, at.top));
                    EXPECT_EQ(entriesInOneRow(), horizontal);
                })
                .moveTo(scene.outside())
                .release();
            EXPECT_TRUE(scene.commands().empty());
        }
    }

    bool entriesInOneRow() const
    {
        CRect first;
        CRect second;
        BarScene::flyout()->GetItemRect(0, &first);
        BarScene::flyout()->GetItemRect(1, &second);
        return first.top == second.top;
    }

    BarScene scene;
};

} // namespace

TEST_F(DockedBar, OnAllFourSidesTheFlyoutOpensBelowOrBeside)
{
    expectFlyouts(true, "top");
    dock(AFX_IDW_DOCKBAR_BOTTOM);
    expectFlyouts(true, "bottom");
    dock(AFX_IDW_DOCKBAR_LEFT);
    expectFlyouts(false, "left");
    dock(AFX_IDW_DOCKBAR_RIGHT);
    expectFlyouts(false, "right");
}

TEST_F(DockedBar, FloatingInOneRowItOpensBelowAndInSeveralBeside)
{
    makeFloat(1);
    expectFlyouts(true, "one row");
    makeFloat(2);
    expectFlyouts(false, "several rows");
    makeFloat(4);
    expectFlyouts(false, "a column");
}

TEST_F(DockedBar, AChoiceWorksOnEverySideAndFloating)
{
    const auto choose = [&](const char* where) {
        SCOPED_TRACE(where);
        scene.frame().issued.clear();
        scene.user.press(scene.button(BarScene::Lines))
            .waitFor("the flyout", &BarScene::flyoutShown)
            .moveTo(scene.entry(0)) // off the bar first
            .moveTo(scene.entry(3))
            .release();
        EXPECT_EQ(scene.frame().issued, (std::vector<Issued>{{ID_ARC, scene.bar().m_hWnd}}));
        EXPECT_EQ(scene.command(BarScene::Lines), ID_ARC);
    };
    choose("top");
    for (const UINT side : {AFX_IDW_DOCKBAR_BOTTOM, AFX_IDW_DOCKBAR_LEFT, AFX_IDW_DOCKBAR_RIGHT}) {
        dock(side);
        choose("a side");
    }
    makeFloat(1);
    choose("one row");
    makeFloat(2);
    choose("several rows");
}

TEST_F(DockedBar, AtEveryEdgeOfTheWorkAreaTheFlyoutIsPulledInside)
{
    const CRect area(GetWorkArea(onScreen(scene.frame())));
    for (const int rows : {1, 3}) {
        makeFloat(rows);
        const CSize size = onScreen(*scene.bar().GetParentFrame()).Size();
        const CPoint middle = area.CenterPoint();
        for (const CPoint place : {CPoint(area.left, middle.y), CPoint(area.right - size.cx, middle.y),
                                   CPoint(middle.x, area.top), CPoint(middle.x, area.bottom - size.cy),
                                   CPoint(area.right - size.cx, area.bottom - size.cy)}) {
            scene.frame().FloatControlBar(&scene.bar(), place);
            scene.frame().RecalcLayout();
            GuiThread::settle();
            scene.user.press(scene.button(BarScene::Shapes))
                .waitFor("the flyout", &BarScene::flyoutShown)
                .then([&] {
                    CRect both;
                    both.UnionRect(BarScene::flyoutRect(), area);
                    EXPECT_EQ(both, area) << rows << " rows at " << place.x << " " << place.y;
                })
                .moveTo(scene.outside())
                .release();
        }
    }
}

TEST_F(DockedBar, ButtonsOfAFloatingBarWorkWhileItsEditHasTheFocus)
{
    TBBUTTON place{};
    place.idCommand = IDC_BAR_EDIT;
    place.iBitmap = 100;
    place.fsStyle = TBSTYLE_SEP;
    place.fsState = TBSTATE_ENABLED;
    scene.bar().InsertButton(BarScene::Other, &place);
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 90, 18), &scene.bar(), IDC_BAR_EDIT);
    makeFloat(1);
    const std::pair<int, UINT> buttons[] = {
        {BarScene::Plain, ID_PLAIN}, {BarScene::Lines, ID_LINE}, {BarScene::Other + 1, ID_OTHER}};
    for (const auto& [index, command] : buttons) {
        scene.user.click(Spot{edit});
        ASSERT_EQ(::GetFocus(), edit.m_hWnd);
        scene.frame().issued.clear();
        scene.user.click(scene.button(index));
        EXPECT_EQ(scene.frame().issued, (std::vector<Issued>{{command, scene.bar().m_hWnd}})) << index;
        EXPECT_EQ(::GetFocus(), edit.m_hWnd);
    }
}
