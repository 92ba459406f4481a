// The gallery laid out from right to left: the pages, and what a user does with the mouse there. More of the
// same: the colour wheel in tests/colour/PickerMirroredTest.cpp, rows of lists in tests/lists, the shaded tab
// control in tests/colour, keys and flyouts of toolbars in tests/toolbar.
#include "Clipping.h"
#include "GalleryScene.h"

#include "Resolution.h"
#include "resource.h"

#include <testkit/AccessibleView.h>
#include <testkit/GuiThread.h>
#include <testkit/Picture.h>

#include <afxcmn.h>

#include <gtest/gtest.h>

#include <map>
#include <string>

using namespace ovo::testkit;

namespace
{

using From = GalleryScene::From;

CRect onScreen(HWND window)
{
    CRect rect;
    ::GetWindowRect(window, &rect);
    return rect;
}

/// A rectangle of the client area as it lies on the screen.
CRect onScreen(HWND window, CRect client)
{
    ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&client), 2);
    return client;
}

/// The controls of all pages, each by its turn on its page, as they lie in the frame.
std::map<std::wstring, CRect> placesOfAll(GalleryScene& scene)
{
    std::map<std::wstring, CRect> places;
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        const CPoint origin = onScreen(scene.frame()).TopLeft();
        std::size_t turn = 0;
        for (const HWND control : scene.controls())
            places[entry.name + (L" " + std::to_wstring(turn++))] = onScreen(control) - origin;
        for (const HWND control :
             {::GetDlgItem(scene.frame().bar(), IDC_FRAME_FILTER),
              ::GetDlgItem(scene.frame().bar(), IDC_FRAME_POSES), scene.frame().pageList().m_hWnd})
            places[entry.name + (L" frame " + std::to_wstring(turn++))] = onScreen(control) - origin;
    }
    return places;
}

/// What the screen shows of a window, without a margin of so many pixels.
Picture shownBy(HWND window, int margin = 0)
{
    CRect place = onScreen(window);
    place.DeflateRect(margin, margin);
    const Picture screen = Picture::ofScreen();
    Picture picture(place.Width(), place.Height());
    ::BitBlt(picture.dc(), 0, 0, picture.width(), picture.height(), screen.dc(), place.left, place.top,
             SRCCOPY);
    return picture;
}

HWND flyout()
{
    const HWND found = ::FindWindowW(L"OvoFlyoutToolbar", nullptr);
    return found && ::IsWindowVisible(found) ? found : nullptr;
}

CRect buttonOn(HWND bar, int index)
{
    CRect rect;
    ::SendMessageW(bar, TB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
    return onScreen(bar, rect);
}

/// What a user finds with the one layout and with the other.
class GalleryMirrored : public ::testing::TestWithParam<From>
{
protected:
    bool mirrored() const { return GetParam() == From::Right; }
    /// Along the lines of text, towards their ends.
    int forward(int distance) { return scaled(scene.frame(), mirrored() ? -distance : distance); }
    std::wstring valueOf(int control) { return AccessibleView(scene.control(control)).value(); }

    GalleryScene scene{GetParam()};
    Robot robot;
};

} // namespace

TEST(GalleryRightToLeft, EveryPageIsTheMirrorImageOfTheUsualOne)
{
    std::map<std::wstring, CRect> expected;
    LONG width = 0;
    {
        GalleryScene usual;
        expected = placesOfAll(usual);
        width = onScreen(usual.frame()).Width();
    }
    GalleryScene scene(From::Right);
    ASSERT_TRUE(scene.frame().GetExStyle() & WS_EX_LAYOUTRTL);
    ASSERT_EQ(onScreen(scene.frame()).Width(), width);
    for (const auto& [name, place] : placesOfAll(scene)) {
        const CRect usual = expected[name];
        EXPECT_EQ(place, CRect(width - usual.right, usual.top, width - usual.left, usual.bottom))
            << ::testing::PrintToString(name);
    }
}

TEST(GalleryRightToLeft, EveryPageIsSeenWhole)
{
    GalleryScene scene(From::Right);
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        EXPECT_EQ(linesOf(clippingProblems(scene.frame())), "")
            << ::testing::PrintToString(std::wstring(entry.name));
    }
}

/// Bars and the controls in them move while the frame and its bars are laid out, and their pixels with them.
TEST(GalleryRightToLeft, BarsThatMoveArePaintedWhereTheyGo)
{
    GalleryScene scene(From::Right);
    const auto lookAgain = [&](const std::wstring& what) {
        GuiThread::settleOnScreen();
        for (const HWND window : {scene.frame().bar().m_hWnd, scene.frame().page().m_hWnd}) {
            const Picture shown = shownBy(window);
            ::RedrawWindow(window, nullptr, nullptr,
                           RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
            GuiThread::settleOnScreen();
            EXPECT_EQ(shownBy(window).differences(shown), 0) << ::testing::PrintToString(what);
        }
    };
    for (const wchar_t* const page : {L"toolbars", L"docking"}) {
        scene.open(page);
        lookAgain(page);
    }
    for (const wchar_t* const pose : {L"sides", L"cut"}) {
        scene.frame().page().pose(pose);
        lookAgain(pose);
    }
    scene.open(L"toolbars");
    scene.frame().page().pose(L"parts");
    scene.frame().SendMessage(WM_ACTIVATEAPP, FALSE, 0); // the flyout closes
    lookAgain(L"parts");
    scene.open(L"toolbars");
    scene.frame().floatBar(3);
    lookAgain(L"floating");
    scene.frame().DockControlBar(&scene.frame().bar(), AFX_IDW_DOCKBAR_TOP);
    lookAgain(L"docked again");
}

/// Pictures of something are not turned round.
TEST(GalleryRightToLeft, PicturesStayAsTheyAre)
{
    const struct
    {
        const wchar_t* page;
        int control;
    } pictures[] = {{L"sliders", IDC_SLIDERS_DIAL},
                    {L"sliders", IDC_SLIDERS_PLOT},
                    {L"sliders", IDC_SLIDERS_BOX},
                    {L"geometry", IDC_MAP}};
    const auto look = [](GalleryScene& scene, const wchar_t* page, int control) {
        scene.open(page);
        GuiThread::settle();
        const HWND window = scene.control(control);
        ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        GuiThread::settleOnScreen();
        return shownBy(window, 2);
    };
    for (const auto& [page, control] : pictures) {
        auto usual = std::make_unique<GalleryScene>();
        const Picture expected = look(*usual, page, control);
        usual.reset();
        GalleryScene scene(From::Right);
        EXPECT_EQ(look(scene, page, control).differences(expected), 0) << "control " << control;
    }
}

TEST_P(GalleryMirrored, AClickSelectsTheNodeUnderThePointer)
{
    scene.open(L"tree");
    const HWND tree = ::GetDlgItem(scene.control(IDC_TREE_PROJECT), IDC_PROJECT_TREE);
    CTreeCtrl& view = *static_cast<CTreeCtrl*>(CWnd::FromHandle(tree));
    const HTREEITEM root = view.GetRootItem();
    const HTREEITEM child = view.GetNextItem(root, TVGN_CHILD);
    ASSERT_NE(child, nullptr);
    CRect label;
    view.GetItemRect(child, &label, TRUE);
    robot.click(Spot{onScreen(tree, label).CenterPoint()});
    EXPECT_EQ(view.GetSelectedItem(), child);
    EXPECT_TRUE(view.GetItemState(child, TVIS_SELECTED) & TVIS_SELECTED);

    // The box before the root's image closes it.
    view.GetItemRect(root, &label, TRUE);
    const CRect row = onScreen(tree, label);
    const int step = scaled(tree, 4);
    CPoint point(mirrored() ? row.right : row.left, row.CenterPoint().y);
    const auto isBox = [&](CPoint screen) {
        TVHITTESTINFO hit{};
        hit.pt = screen;
        ::ScreenToClient(tree, &hit.pt);
        view.HitTest(&hit);
        return (hit.flags & TVHT_ONITEMBUTTON) != 0;
    };
    for (int i = 0; i < 20 && !isBox(point); ++i)
        point.x += mirrored() ? step : -step;
    ASSERT_TRUE(isBox(point)) << "on the side where lines of text begin";
    robot.click(Spot{point});
    EXPECT_FALSE(view.GetItemState(root, TVIS_EXPANDED) & TVIS_EXPANDED);
}

TEST_P(GalleryMirrored, ADragMovesANode)
{
    scene.open(L"tree");
    const HWND tree = ::GetDlgItem(scene.control(IDC_TREE_PROJECT), IDC_PROJECT_TREE);
    const HWND archive = ::GetDlgItem(scene.control(IDC_TREE_ARCHIVE), IDC_PROJECT_TREE);
    CTreeCtrl& from = *static_cast<CTreeCtrl*>(CWnd::FromHandle(tree));
    CTreeCtrl& to = *static_cast<CTreeCtrl*>(CWnd::FromHandle(archive));
    HTREEITEM last = from.GetRootItem();
    while (const HTREEITEM next = from.GetNextItem(last, TVGN_NEXT))
        last = next;
    const CString moved = from.GetItemText(last);
    const auto spot = [](HWND window, CTreeCtrl& view, HTREEITEM item) {
        CRect label;
        view.GetItemRect(item, &label, TRUE);
        return Spot{onScreen(window, label).CenterPoint()};
    };
    const auto holds = [&](CTreeCtrl& view) {
        for (HTREEITEM item = view.GetNextItem(view.GetRootItem(), TVGN_CHILD); item;
             item = view.GetNextItem(item, TVGN_NEXT))
            if (view.GetItemText(item) == moved)
                return true;
        return false;
    };
    ASSERT_FALSE(holds(to));
    robot.press(spot(tree, from, last)).moveTo(spot(archive, to, to.GetRootItem())).release();
    EXPECT_TRUE(holds(to)) << ::testing::PrintToString(std::wstring(moved.GetString()));
}

TEST_P(GalleryMirrored, AClickSelectsTheRowAndADragWidensTheColumn)
{
    scene.open(L"lists");
    const HWND list = scene.control(IDC_LISTS_COLOURS);
    CListCtrl& view = *static_cast<CListCtrl*>(CWnd::FromHandle(list));
    CRect row;
    view.GetSubItemRect(3, 1, LVIR_BOUNDS, row);
    robot.click(Spot{onScreen(list, row).CenterPoint()});
    EXPECT_EQ(view.GetNextItem(-1, LVNI_SELECTED), 3);

    const HWND header = view.GetHeaderCtrl()->m_hWnd;
    CRect heading;
    view.GetHeaderCtrl()->GetItemRect(0, &heading);
    heading = onScreen(header, heading);
    const int before = view.GetColumnWidth(0);
    const CPoint edge(mirrored() ? heading.left + 1 : heading.right - 1, heading.CenterPoint().y);
    robot.press(Spot{edge}).moveBy(forward(20), 0).release();
    EXPECT_NEAR(view.GetColumnWidth(0), before + scaled(list, 20), 2);
}

TEST_P(GalleryMirrored, AFlyoutOpensAtItsButtonAndGivesItsEntry)
{
    FrameBar& bar = scene.frame().bar();
    const int groups = bar.CommandToIndex(ID_GROUP_ALL);
    bool atTheButton = false;
    robot.press(Spot{[&] { return buttonOn(bar, groups).CenterPoint(); }})
        .waitFor("the flyout", [] { return flyout() != nullptr; })
        .then([&] {
            const CRect place = onScreen(flyout());
            const CRect button = buttonOn(bar, groups);
            atTheButton =
                place.left < button.right && button.left < place.right && place.top >= button.bottom - 4;
        })
        .moveTo(Spot{[] { return buttonOn(flyout(), 0).CenterPoint(); }})
        .moveTo(Spot{[] { return buttonOn(flyout(), 3).CenterPoint(); }})
        .release();
    EXPECT_TRUE(atTheButton);
    EXPECT_NE(bar.CommandToIndex(ID_GROUP_BARS), -1) << "the entry has become the button";
    EXPECT_TRUE(scene.frame().pageList().lists(*findPage(L"docking")));
    EXPECT_FALSE(scene.frame().pageList().lists(*findPage(L"tree")));
}

TEST_P(GalleryMirrored, TheCylinderFollowsThePointer)
{
    scene.open(L"sliders");
    ASSERT_EQ(valueOf(IDC_SLIDERS_HEADING), L"30");
    robot.press(Spot{scene.control(IDC_SLIDERS_HEADING)}).moveBy(forward(20), 0).release();
    const int turned = std::stoi(valueOf(IDC_SLIDERS_HEADING));
    EXPECT_GT(turned, 10) << "the mark under the pointer has moved with it";
    EXPECT_LT(turned, 30);
}

TEST_P(GalleryMirrored, TheDialTurnsClockwise)
{
    scene.open(L"sliders");
    const HWND dial = scene.control(IDC_SLIDERS_DIAL);
    const CRect place = onScreen(dial);
    const int radius = place.Width() / 4;
    const CPoint middle = place.CenterPoint();
    robot.press(Spot{middle - CSize(0, radius)})
        .moveTo(Spot{middle + CSize(radius * 7 / 10, -radius * 7 / 10)})
        .moveTo(Spot{middle + CSize(radius, 0)})
        .release();
    EXPECT_NEAR(std::stoi(valueOf(IDC_SLIDERS_DIAL)), 30 + 90, 4);
}

TEST_P(GalleryMirrored, ThePopupOfASliderButtonFollowsThePointer)
{
    scene.open(L"sliders");
    ASSERT_EQ(valueOf(IDC_SLIDERS_BUTTON), L"8");
    robot.press(Spot{scene.control(IDC_SLIDERS_BUTTON)}).moveBy(scaled(scene.frame(), 20), 0).release();
    EXPECT_GT(std::stoi(valueOf(IDC_SLIDERS_BUTTON)), 8);
}

TEST_P(GalleryMirrored, TheRectangleOnTheMapFollowsThePointer)
{
    scene.open(L"geometry");
    const auto text = [&] {
        CString shown;
        CWnd::FromHandle(scene.control(IDC_MAP_TEXT))->GetWindowText(shown);
        return std::wstring(shown.GetString());
    };
    const auto leftOf = [](const std::wstring& shown) {
        return std::stoi(shown.substr(shown.find(L'\n') + 1));
    };
    const int before = leftOf(text());
    const CRect map = onScreen(scene.control(IDC_MAP));
    // The rectangle lies left of the middle and above it.
    robot.press(Spot{map.CenterPoint() - CSize(map.Width() / 14, map.Height() / 8)})
        .moveBy(scaled(scene.frame(), 10), 0)
        .release();
    EXPECT_GT(leftOf(text()), before);
}

INSTANTIATE_TEST_SUITE_P(Layouts, GalleryMirrored, ::testing::Values(From::Left, From::Right),
                         [](const auto& layout) {
                             return layout.param == From::Left ? "FromLeft" : "FromRight";
                         });
