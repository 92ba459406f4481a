// The toolbar and the palette of the gallery's own frame, used as a person would.
#include "GalleryScene.h"

#include "Resolution.h"
#include "resource.h"
#include <testkit/GuiThread.h>
#include <testkit/Picture.h>
#include <testkit/TemporaryProfile.h>

#include <gtest/gtest.h>

#include <afxcmn.h>
#include <uxtheme.h>

using namespace ovo::testkit;

namespace
{

CRect onScreen(const CWnd& wnd)
{
    CRect rect;
    wnd.GetWindowRect(&rect);
    return rect;
}

/// The flyout that is shown; null for none.
HWND flyout()
{
    const HWND found = ::FindWindowW(L"OvoFlyoutToolbar", nullptr);
    return found && ::IsWindowVisible(found) ? found : nullptr;
}

Spot itemOf(HWND bar, int index)
{
    CRect rect;
    ::SendMessageW(bar, TB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
    ::MapWindowPoints(bar, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    return Spot{rect.CenterPoint()};
}

class GalleryBar : public ::testing::Test
{
protected:
    FrameBar& bar() { return scene.frame().bar(); }
    FramePalette& palette() { return scene.frame().palette(); }
    HWND inBar(int id) { return ::GetDlgItem(bar(), id); }
    int indexOf(UINT command) { return bar().CommandToIndex(command); }

    /// Titles that are listed, by the pages' names.
    std::vector<std::wstring> listed()
    {
        std::vector<std::wstring> names;
        for (const PageEntry& page : pageTable())
            if (scene.frame().pageList().lists(page))
                names.emplace_back(page.name);
        return names;
    }
    std::wstring openPage() { return scene.frame().openedPage()->name; }

    void choose(int button, int entry)
    {
        robot.press(itemOf(bar(), button))
            .waitFor("the flyout", [] { return flyout() != nullptr; })
            .moveTo(Spot{[=] { return itemOf(flyout(), 0).find(); }}) // down first, off the bar
            .moveTo(Spot{[=] { return itemOf(flyout(), entry).find(); }})
            .release();
    }

    TemporaryProfile profile;
    GalleryScene scene;
    Robot robot;
};

using Names = std::vector<std::wstring>;

} // namespace

TEST_F(GalleryBar, IsDockedAtTheTop)
{
    EXPECT_EQ(onScreen(bar()).top, onScreen(*scene.frame().GetControlBar(AFX_IDW_DOCKBAR_TOP)).top);
    EXPECT_FALSE(palette().IsVisible()) << "until it is asked for";
}

TEST_F(GalleryBar, TypingFiltersThePages)
{
    robot.click(Spot{inBar(IDC_FRAME_FILTER)}).type(L"TOOLB");
    EXPECT_EQ(listed(), Names{L"toolbars"});
    robot.key(VK_RETURN);
    EXPECT_EQ(openPage(), L"toolbars") << "the only page that is listed";
    EXPECT_EQ(::GetFocus(), scene.frame().pageList().m_hWnd);
    robot.click(Spot{inBar(IDC_FRAME_FILTER)}).key(VK_ESCAPE);
    EXPECT_EQ(listed().size(), pageTable().size());
    EXPECT_EQ(openPage(), L"toolbars");
}

/// The frame is activated by a press on a control of the page and gives the focus to its list, which chooses
/// an item: the control may go on with its press.
TEST_F(GalleryBar, APageStaysUntilThePressOnItIsOver)
{
    scene.open(L"geometry");
    scene.frame().floatPalette();
    scene.frame().pageList().list(PageGroup::All, L"toolb");
    robot.click(Spot{palette().GetDlgItem(IDC_FRAME_LIST_WIDTH)->m_hWnd});
    const HWND tabs = scene.control(IDC_TABS);
    ::SendMessageW(tabs, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ASSERT_TRUE(::IsWindow(tabs));
    ::SendMessageW(tabs, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    GuiThread::settle();
    EXPECT_EQ(openPage(), L"toolbars") << "the only page that is listed";
}

TEST_F(GalleryBar, AGroupOfPagesIsChosenFromItsFlyout)
{
    choose(indexOf(ID_GROUP_ALL), 3);
    EXPECT_EQ(listed(), (Names{L"toolbars", L"docking"}));
    choose(indexOf(ID_GROUP_BARS), 0);
    EXPECT_EQ(listed().size(), pageTable().size());
}

TEST_F(GalleryBar, EveryPageIsInAGroup)
{
    for (const PageEntry& page : pageTable())
        EXPECT_NE(page.group, PageGroup::All) << ::testing::PrintToString(std::wstring(page.name));
}

TEST_F(GalleryBar, TheThemeChangesWithItsFlyout)
{
    scene.open(L"toolbars"); // has check boxes, which look different
    const auto controlsAreStyled = [] { return (::GetThemeAppProperties() & STAP_ALLOW_CONTROLS) != 0; };
    const auto look = [&] {
        GuiThread::settle();
        return Picture::ofWindow(::GetDlgItem(scene.page(), IDC_BARS_MARKS));
    };
    const auto imageOf = [&](UINT command) {
        UINT id = 0;
        UINT style = 0;
        int image = -1;
        bar().GetButtonInfo(indexOf(command), id, style, image);
        return image;
    };
    ASSERT_TRUE(controlsAreStyled());
    const Picture styled = look();
    const HWND before = scene.page();
    const int place = indexOf(ID_THEME_STYLED);
    const int image = imageOf(ID_THEME_STYLED);

    choose(place, 1);
    EXPECT_EQ(bar().theme(), static_cast<UINT>(ID_THEME_CLASSIC)) << "the button shows what was chosen";
    EXPECT_EQ(indexOf(ID_THEME_CLASSIC), place);
    EXPECT_NE(imageOf(ID_THEME_CLASSIC), image);
    EXPECT_FALSE(controlsAreStyled());
    EXPECT_NE(scene.page().m_hWnd, before) << "the page is made anew";
    EXPECT_EQ(openPage(), L"toolbars");
    EXPECT_GT(look().differences(styled), 0);

    robot.click(itemOf(bar(), place)); // once more the same
    EXPECT_FALSE(controlsAreStyled());
    choose(place, 0);
    EXPECT_EQ(bar().theme(), static_cast<UINT>(ID_THEME_STYLED));
    EXPECT_EQ(imageOf(ID_THEME_STYLED), image);
    EXPECT_TRUE(controlsAreStyled());
    EXPECT_EQ(look().differences(styled), 0) << "as before";
}

TEST_F(GalleryBar, AFlyoutClosesWhenAnotherApplicationIsChosen)
{
    robot.press(itemOf(bar(), indexOf(ID_THEME_STYLED)))
        .waitFor("the flyout", [] { return flyout() != nullptr; })
        .then([&] {
            scene.frame().SendMessage(WM_ACTIVATEAPP, FALSE, 0);
            EXPECT_EQ(flyout(), nullptr);
            scene.frame().SendMessage(WM_ACTIVATEAPP, TRUE, 0);
        })
        .moveTo(Spot{scene.page()})
        .release();
    EXPECT_EQ(bar().theme(), static_cast<UINT>(ID_THEME_STYLED));
}

TEST_F(GalleryBar, TheComboBoxShowsWhatThePageCanShow)
{
    scene.open(L"toolbars");
    ::SetFocus(inBar(IDC_FRAME_POSES));
    robot.key(VK_DOWN).waitFor("the pose", [] { return flyout() != nullptr; });
    scene.open(L"geometry");
    EXPECT_FALSE(::IsWindowEnabled(inBar(IDC_FRAME_POSES))) << "this page has none";
}

TEST_F(GalleryBar, ItsCommandsReachThePage)
{
    scene.open(L"tree");
    GuiThread::settle();
    const auto copies = [&] { return !(bar().GetButtonStyle(indexOf(ID_EDIT_COPY)) & TBBS_DISABLED); };
    EXPECT_FALSE(copies()) << "the focus is not in the page";
    const HWND tree = ::GetDlgItem(scene.control(IDC_TREE_PROJECT), IDC_PROJECT_TREE);
    ::SetFocus(tree);
    robot.key(VK_DOWN).waitFor("the command", copies);
}

TEST_F(GalleryBar, CtrlF6GivesItTheKeyboard)
{
    scene.open(L"tree");
    robot.holding(VK_CONTROL).key(VK_F6).letGo(VK_CONTROL);
    ASSERT_EQ(::GetFocus(), bar().m_hWnd);
    robot.key(VK_RIGHT).key(VK_RETURN);
    EXPECT_EQ(openPage(), L"toolbars") << "the button for the next page";
}

TEST_F(GalleryBar, WhatMovesWhenItFloatsIsPaintedWhole)
{
    scene.open(L"toolbars");
    GuiThread::settle();
    scene.frame().FloatControlBar(&bar(), CPoint(500, 400));
    scene.frame().RecalcLayout();
    GuiThread::settle();
    const Picture asItIs = Picture::ofClient(scene.frame());
    scene.frame().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    EXPECT_EQ(asItIs.differences(Picture::ofClient(scene.frame())), 0);
}

/// The frame lays itself out again in the middle of opening a page, which moves what is being painted.
TEST_F(GalleryBar, WhatMovesWhenItDocksIsPaintedWhole)
{
    scene.open(L"toolbars");
    scene.frame().floatBar(3);
    GuiThread::settle();
    scene.frame().DockControlBar(&bar(), AFX_IDW_DOCKBAR_TOP);
    scene.open(L"toolbars");
    GuiThread::settle();
    scene.frame().floatPalette();
    GuiThread::settle();
    const Picture asItIs = Picture::ofClient(scene.frame());
    scene.frame().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    EXPECT_EQ(asItIs.differences(Picture::ofClient(scene.frame())), 0);
}

// The palette

TEST_F(GalleryBar, ThePaletteShowsTheSizesAsTheyAre)
{
    const FramePalette::Values usual;
    EXPECT_EQ(palette().values().hue, usual.hue);
    EXPECT_EQ(palette().values().listWidth, usual.listWidth);
    EXPECT_EQ(palette().values().logHeight, usual.logHeight);
    EXPECT_EQ(onScreen(scene.frame().pageList()).Width(), scaled(scene.frame(), usual.listWidth));
}

TEST_F(GalleryBar, ThePaletteChangesWhatIsAroundThePages)
{
    robot.click(itemOf(bar(), indexOf(ID_VIEW_PALETTE)));
    ASSERT_TRUE(palette().IsVisible());
    robot.click(Spot{*palette().GetDlgItem(IDC_FRAME_LIST_WIDTH)}).key(VK_HOME).holding(VK_SHIFT).key(VK_END);
    robot.type(L"250");
    EXPECT_EQ(onScreen(scene.frame().pageList()).Width(), scaled(scene.frame(), 250));

    const auto band = [&] {
        const CRect list = onScreen(scene.frame().pageList());
        const CPoint below(list.right + scaled(scene.frame(), 20), onScreen(scene.page()).top - 2);
        CPoint inFrame(below);
        scene.frame().ScreenToClient(&inFrame);
        scene.frame().RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        return Picture::ofClient(scene.frame()).at(inFrame);
    };
    const COLORREF before = band();
    palette().GetDlgItem(IDC_FRAME_HUE)->SetFocus();
    robot.key(VK_PRIOR).key(VK_PRIOR).key(VK_PRIOR).key(VK_PRIOR);
    EXPECT_NE(band(), before);
}

TEST_F(GalleryBar, ThePaletteHidesAndComesBackAsItWas)
{
    scene.frame().ShowControlBar(&palette(), TRUE, FALSE);
    palette().SetDlgItemInt(IDC_FRAME_LOG_HEIGHT, 77);
    palette().SendMessage(WM_CLOSE);
    EXPECT_FALSE(palette().IsVisible());
    scene.frame().SendMessage(WM_COMMAND, ID_VIEW_PALETTE);
    EXPECT_TRUE(palette().IsVisible());
    EXPECT_EQ(palette().GetDlgItemInt(IDC_FRAME_LOG_HEIGHT), 77u);
}

// From one run to the next

TEST(GalleryBarState, BarsAndChoicesAreFoundAgainAfterARestart)
{
    const TemporaryProfile profile;
    CPoint floating;
    {
        GalleryScene scene;
        FrameBar& bar = scene.frame().bar();
        FramePalette& palette = scene.frame().palette();
        CRect client;
        scene.frame().GetClientRect(&client);
        scene.frame().ClientToScreen(&client);
        const CPoint leftEdge(client.left + 1, client.CenterPoint().y);
        Robot().drag(Spot{CPoint(onScreen(bar).left + 3, onScreen(bar).CenterPoint().y)}, Spot{leftEdge});
        EXPECT_EQ(bar.GetParent(), scene.frame().GetControlBar(AFX_IDW_DOCKBAR_LEFT));
        scene.frame().FloatControlBar(&palette, CPoint(300, 250));
        scene.frame().ShowControlBar(&palette, TRUE, FALSE);
        palette.SetDlgItemInt(IDC_FRAME_LIST_WIDTH, 222);
        floating = onScreen(*palette.GetParentFrame()).TopLeft();
        Robot()
            .press(itemOf(bar, bar.CommandToIndex(ID_GROUP_ALL)))
            .waitFor("the flyout", [] { return flyout() != nullptr; })
            .moveTo(Spot{[] { return itemOf(flyout(), 0).find(); }}) // beside the bar first
            .moveTo(Spot{[] { return itemOf(flyout(), 3).find(); }})
            .release();
        scene.frame().SendMessage(WM_CLOSE);
    }
    GalleryScene scene;
    scene.frame().restoreBars();
    FrameBar& bar = scene.frame().bar();
    EXPECT_EQ(bar.GetParent(), scene.frame().GetControlBar(AFX_IDW_DOCKBAR_LEFT));
    EXPECT_EQ(bar.group(), static_cast<UINT>(ID_GROUP_BARS));
    EXPECT_FALSE(scene.frame().pageList().lists(*findPage(L"tree")));
    EXPECT_TRUE(scene.frame().palette().IsFloating());
    EXPECT_TRUE(scene.frame().palette().IsVisible());
    EXPECT_EQ(onScreen(*scene.frame().palette().GetParentFrame()).TopLeft(), floating);
    EXPECT_EQ(onScreen(scene.frame().pageList()).Width(), scaled(scene.frame(), 222));
}

/// The system may end a program as soon as its windows have been told.
TEST(GalleryBarState, IsSavedWhenTheSessionEnds)
{
    const TemporaryProfile profile;
    GalleryScene scene;
    scene.frame().ShowControlBar(&scene.frame().palette(), TRUE, FALSE);
    scene.frame().palette().SetDlgItemInt(IDC_FRAME_LIST_WIDTH, 222);
    scene.frame().SendMessage(WM_ENDSESSION, FALSE, 0); // another program refused
    EXPECT_NE(AfxGetApp()->GetProfileInt(L"Palette", L"ListWidth", 0), 222u);
    EXPECT_EQ(scene.frame().SendMessage(WM_QUERYENDSESSION), TRUE);
    scene.frame().SendMessage(WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(AfxGetApp()->GetProfileInt(L"Palette", L"ListWidth", 0), 222u);
}

// Pictures

TEST(GalleryPictures, ShowWhatIdleTimeBringsUpToDate)
{
    GalleryScene scene;
    scene.frame().shoot(*findPage(L"docking"), {}, L"no-such-folder\\picture.png");
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(::SendMessageW(scene.control(IDC_DOCK_SHOW + i), BM_GETCHECK, 0, 0), BST_CHECKED) << i;
}
