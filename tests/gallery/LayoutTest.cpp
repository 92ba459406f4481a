// Where the controls of the pages are, in windows of every size.
#include "GalleryScene.h"

#include "Resolution.h"
#include "resource.h"
#include <testkit/GuiThread.h>

#include <gtest/gtest.h>

#include <algorithm>

using namespace ovo::testkit;

namespace
{

class GalleryLayout : public ::testing::Test
{
protected:
    static bool hasBar(HWND window, DWORD style)
    {
        return (::GetWindowLongW(window, GWL_STYLE) & style) != 0;
    }

    std::vector<CRect> places()
    {
        std::vector<CRect> found;
        for (const HWND control : scene.controls())
            found.push_back(scene.placeOnPage(control));
        return found;
    }

    int verticalOffset() { return ::GetScrollPos(scene.page(), SB_VERT); }

    GalleryScene scene;
};

/// The size of a static control's text where its lines are broken at the control's width.
CSize textSize(HWND label)
{
    CString text;
    CWnd::FromHandle(label)->GetWindowText(text);
    CRect rect;
    ::GetClientRect(label, &rect);
    CClientDC dc(CWnd::FromHandle(label));
    CFont* const old = dc.SelectObject(CWnd::FromHandle(label)->GetFont());
    dc.DrawText(text, &rect, DT_CALCRECT | DT_WORDBREAK);
    dc.SelectObject(old);
    return rect.Size();
}

bool isLabel(HWND window)
{
    wchar_t name[16] = L"";
    ::GetClassNameW(window, name, 16);
    return ::_wcsicmp(name, L"Static") == 0 && ::GetWindowTextLengthW(window) > 0;
}

} // namespace

TEST_F(GalleryLayout, EveryPageFitsIntoTheWindowThatOpens)
{
    for (const PageEntry& entry : pageTable()) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(entry.name)));
        scene.frame().openPage(entry);
        EXPECT_FALSE(hasBar(scene.page(), WS_HSCROLL | WS_VSCROLL));
        const CRect page(CPoint(0, 0), scene.pageSize());
        for (const HWND control : scene.controls()) {
            const CRect place = scene.placeOnPage(control);
            EXPECT_EQ(CRect(page & place), place) << "control " << ::GetDlgCtrlID(control);
        }
    }
}

TEST_F(GalleryLayout, LabelsHaveRoomForTheirTexts)
{
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        for (const HWND control : scene.controls()) {
            if (!isLabel(control))
                continue;
            const CSize room = scene.placeOnPage(control).Size();
            EXPECT_LE(textSize(control).cx, room.cx) << ::testing::PrintToString(std::wstring(entry.name));
            // The last line may reach below by its descent where nothing descends.
            EXPECT_LE(textSize(control).cy, room.cy + scaled(control, 3))
                << ::testing::PrintToString(std::wstring(entry.name)) << " control "
                << ::GetDlgCtrlID(control);
        }
    }
}

TEST_F(GalleryLayout, EveryPageUsesTheRoomOfALargerWindow)
{
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        const std::vector<CRect> before = places();
        scene.grow(150, 90);
        EXPECT_NE(places(), before) << ::testing::PrintToString(std::wstring(entry.name));
        scene.grow(-150, -90);
        EXPECT_EQ(places(), before) << ::testing::PrintToString(std::wstring(entry.name));
    }
}

TEST_F(GalleryLayout, ControlsMoveAndGrowByTheirShareOfTheRoom)
{
    scene.open(L"tree");
    const CRect project = scene.placeOnPage(scene.control(IDC_TREE_PROJECT));
    const CRect archive = scene.placeOnPage(scene.control(IDC_TREE_ARCHIVE));
    const CRect text = scene.placeOnPage(scene.control(IDC_TREE_TEXT));
    const CSize before = scene.pageSize();

    scene.grow(200, 100);

    const CSize gain = scene.pageSize() - before;
    EXPECT_EQ(gain, CSize(scaled(scene.page(), 200), scaled(scene.page(), 100)));
    EXPECT_NEAR(scene.placeOnPage(scene.control(IDC_TREE_PROJECT)).right, project.right + gain.cx / 2, 1);
    EXPECT_EQ(scene.placeOnPage(scene.control(IDC_TREE_PROJECT)).bottom, project.bottom + gain.cy);
    EXPECT_NEAR(scene.placeOnPage(scene.control(IDC_TREE_ARCHIVE)).left, archive.left + gain.cx / 2, 1);
    EXPECT_NEAR(scene.placeOnPage(scene.control(IDC_TREE_ARCHIVE)).right, archive.right + gain.cx, 1);
    EXPECT_EQ(scene.placeOnPage(scene.control(IDC_TREE_TEXT)).top, text.top + gain.cy);
    EXPECT_EQ(scene.placeOnPage(scene.control(IDC_TREE_TEXT)).Size(), text.Size() + CSize(gain.cx, 0));
}

TEST_F(GalleryLayout, TheTreeFillsItsPane)
{
    scene.open(L"tree");
    scene.grow(120, 60);
    CRect pane;
    ::GetWindowRect(scene.control(IDC_TREE_PROJECT), &pane);
    CRect tree;
    ::GetWindowRect(::GetDlgItem(scene.control(IDC_TREE_PROJECT), IDC_PROJECT_TREE), &tree);
    EXPECT_EQ(tree, pane);
}

TEST_F(GalleryLayout, AListDropsDownAsFarWhenItsComboBoxHasMoved)
{
    CRect before;
    ::SendMessageW(scene.control(IDC_BOX_ICON), CB_GETDROPPEDCONTROLRECT, 0,
                   reinterpret_cast<LPARAM>(&before));
    scene.grow(0, 80);
    CRect after;
    ::SendMessageW(scene.control(IDC_BOX_ICON), CB_GETDROPPEDCONTROLRECT, 0,
                   reinterpret_cast<LPARAM>(&after));
    EXPECT_EQ(after.Size(), before.Size());
    EXPECT_GT(after.top, before.top);
}

TEST_F(GalleryLayout, APageWithTooLittleRoomGetsScrollBars)
{
    const CRect last = scene.placeOnPage(scene.control(IDC_BOX_REMEMBERED));
    scene.grow(-300, 0);
    EXPECT_TRUE(hasBar(scene.page(), WS_HSCROLL));
    scene.grow(0, -250);
    EXPECT_TRUE(hasBar(scene.page(), WS_VSCROLL));
    EXPECT_GT(scene.placeOnPage(scene.control(IDC_BOX_REMEMBERED)).bottom, scene.pageSize().cy)
        << "out of view";

    scene.grow(300, 250);
    EXPECT_FALSE(hasBar(scene.page(), WS_HSCROLL | WS_VSCROLL));
    EXPECT_EQ(scene.placeOnPage(scene.control(IDC_BOX_REMEMBERED)), last);
}

TEST_F(GalleryLayout, ScrollingMovesAllControls)
{
    scene.grow(0, -250);
    const std::vector<CRect> before = places();
    scene.page().SendMessage(WM_VSCROLL, SB_BOTTOM);
    const int offset = verticalOffset();
    ASSERT_GT(offset, 0);
    std::vector<CRect> expected = before;
    for (CRect& place : expected)
        place.OffsetRect(0, -offset);
    EXPECT_EQ(places(), expected);

    scene.page().SendMessage(WM_VSCROLL, SB_TOP);
    EXPECT_EQ(places(), before);
}

TEST_F(GalleryLayout, TheWheelScrolls)
{
    scene.grow(0, -250);
    Robot robot;
    robot.click(Spot{scene.control(IDC_BOX_HELP)}).turnWheel(-1).waitFor("the page to scroll", [this] {
        return verticalOffset() > 0;
    });
    robot.turnWheel(1).waitFor("the page to scroll back", [this] { return verticalOffset() == 0; });
    EXPECT_EQ(verticalOffset(), 0);
}

TEST_F(GalleryLayout, ScrollingStopsAtBothEnds)
{
    scene.grow(0, -250);
    for (int i = 0; i < 100; ++i)
        scene.page().SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    const int end = verticalOffset();
    scene.page().SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(verticalOffset(), end);
    for (int i = 0; i < 100; ++i)
        scene.page().SendMessage(WM_VSCROLL, SB_PAGEUP);
    scene.page().SendMessage(WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ(verticalOffset(), 0);
}

TEST_F(GalleryLayout, TheControlThatTabGoesToIsScrolledIntoView)
{
    scene.grow(0, -250);
    ::SetFocus(scene.control(IDC_BOX_HELP_ID));
    Robot robot;
    robot.key(VK_TAB);
    const HWND button = scene.control(IDC_BOX_SHOW);
    EXPECT_EQ(::GetFocus(), button);
    EXPECT_GT(verticalOffset(), 0);
    EXPECT_LE(scene.placeOnPage(button).bottom, scene.pageSize().cy);
}

TEST_F(GalleryLayout, TheSecondTabsShowOtherControls)
{
    scene.open(L"shadedtabs");
    Robot robot;
    for (const int id : {IDC_SHADED_TABS, IDC_PLAIN_TABS}) {
        const HWND tabs = scene.control(id);
        const auto shows = [tabs](int control) {
            const HWND content = ::FindWindowExW(tabs, nullptr, L"#32770", nullptr);
            return content && ::IsWindowVisible(::GetDlgItem(content, control));
        };
        for (const int tab : {1, 0}) {
            CRect label;
            ::SendMessageW(tabs, TCM_GETITEMRECT, tab, reinterpret_cast<LPARAM>(&label));
            robot.click(Spot{*CWnd::FromHandle(tabs), label.CenterPoint()});
            EXPECT_EQ(shows(IDC_CONTENT_TOOLS), tab == 1);
            EXPECT_EQ(shows(IDC_CONTENT_TREE), tab == 0);
        }
    }
}

TEST_F(GalleryLayout, TheToolsOfTheSecondTabsStandInOneLineWithTheLink)
{
    scene.open(L"shadedtabs");
    ASSERT_TRUE(scene.page().pose(L"more-controls"));
    for (const int id : {IDC_SHADED_TABS, IDC_PLAIN_TABS}) {
        const HWND content = ::FindWindowExW(scene.control(id), nullptr, L"#32770", nullptr);
        const HWND tools = ::GetDlgItem(content, IDC_CONTENT_TOOLS);
        CRect button;
        ::SendMessageW(tools, TB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&button));
        ::MapWindowPoints(tools, nullptr, reinterpret_cast<POINT*>(&button), 2);
        CRect link;
        ::GetWindowRect(::GetDlgItem(content, IDC_CONTENT_LINK), &link);
        EXPECT_FALSE(button.IsRectEmpty());
        EXPECT_NEAR(button.CenterPoint().y, link.CenterPoint().y, 1);
    }
}
