// Tips for cells whose text was cut.
#include "ListScene.h"

#include <support/Perishing.h>
#include <testkit/ImportPatch.h>

#include <ovoui/lists/ListCellTips.h>

#include <gtest/gtest.h>

#include <functional>
#include <utility>

using namespace ovo::testkit;

namespace
{

class ListTips : public ::testing::Test
{
protected:
    ListTips()
    {
        scene.addColumn(L"a", 60);
        scene.addColumn(L"b", 60);
        scene.list.AddItem(0, 0, L"a label with no room", 0, -1);
        scene.list.AddItem(0, 1, L"a cell with no room", 0, -1);
        scene.list.AddItem(1, 0, L"fits", 0, -1);
        scene.list.AddItem(1, 1, L"fits", 0, -1);
        scene.show();
        tips.Attach(scene.list);
    }

    bool shows() const { return tips.Window() && ::IsWindowVisible(tips.Window()); }

    std::wstring shownText() const
    {
        wchar_t text[100] = {};
        TOOLINFOW tool{};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        tool.hwnd = scene.list;
        tool.uId = 1;
        tool.lpszText = text;
        ::SendMessageW(tips.Window(), TTM_GETTEXTW, 100, reinterpret_cast<LPARAM>(&tool));
        return text;
    }

    Spot over(int row, int column) { return Spot{scene.list, scene.cell(row, column).CenterPoint()}; }

    void rest(int row, int column, bool shown)
    {
        Robot().moveTo(over(row, column)).waitFor(shown ? "a tip" : "no tip", [&] {
            return shows() == shown;
        });
    }

    /// A move of the pointer that is over at once.
    void pointAt(CPoint point) { scene.list.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y)); }
    void pointAt(int row, int column) { pointAt(scene.cell(row, column).CenterPoint()); }

    int extent(const std::wstring& text)
    {
        CClientDC dc(&scene.list);
        CFont* const old = dc.SelectObject(scene.list.GetFont());
        const int width = dc.GetTextExtent(text.c_str(), static_cast<int>(text.size())).cx;
        dc.SelectObject(old);
        return width;
    }

    /// Where on the screen the first letter in an area of a window begins.
    static CPoint firstLetter(HWND window, const CRect& area)
    {
        const Picture shown = Picture::ofClient(window);
        const COLORREF ground = shown.at(area.left, area.top);
        for (CPoint point(area.left, 0); point.x < area.right; ++point.x)
            for (point.y = area.top; point.y < area.bottom; ++point.y)
                if (shown.at(point) != ground) {
                    ::ClientToScreen(window, &point);
                    return point;
                }
        return {};
    }

    ListScene scene;
    COVOListCellTips tips;
};

} // namespace

TEST_F(ListTips, CutTextsOfEveryColumnAreShownWhole)
{
    rest(0, 0, true);
    EXPECT_EQ(shownText(), L"a label with no room");
    rest(0, 1, true);
    EXPECT_EQ(shownText(), L"a cell with no room");
    rest(1, 1, false);
    rest(1, 0, false);
}

TEST_F(ListTips, TheTipLiesOverItsCell)
{
    rest(0, 1, true);
    CRect tip;
    ::GetWindowRect(tips.Window(), &tip);
    CRect cell = scene.cell(0, 1);
    scene.list.ClientToScreen(&cell);
    EXPECT_GT(tip.right, cell.right);
    EXPECT_LT(tip.top, cell.CenterPoint().y);
    EXPECT_GT(tip.bottom, cell.CenterPoint().y);
}

TEST_F(ListTips, TheTipsLettersLieOverThoseOfTheCell)
{
    for (const int column : {0, 1}) {
        rest(1, column, false);
        rest(0, column, true);
        CRect tip;
        ::GetClientRect(tips.Window(), &tip);
        // The platform may leave the margin within the tip out of account.
        const CPoint distance =
            firstLetter(tips.Window(), tip) - firstLetter(scene.list, scene.cell(0, column));
        EXPECT_THAT(distance.x, testing::AllOf(testing::Ge(0), testing::Le(2))) << column;
        EXPECT_THAT(distance.y, testing::AllOf(testing::Ge(0), testing::Le(1))) << column;
    }
}

/// Answers as a tip that needs 10 pixels more at its left than the text.
static LRESULT CALLBACK wideTip(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR)
{
    if (message != TTM_ADJUSTRECT)
        return ::DefSubclassProc(window, message, wParam, lParam);
    reinterpret_cast<RECT*>(lParam)->left -= wParam ? 10 : -10;
    return TRUE;
}

TEST_F(ListTips, TheTipSaysWhatItNeedsBesideItsText)
{
    rest(1, 1, false); // the pointer may be over the cell already, and would not move
    rest(0, 1, true);
    CRect before;
    ::GetWindowRect(tips.Window(), &before);
    ::SetWindowSubclass(tips.Window(), &wideTip, 1, 0);
    rest(1, 1, false);
    rest(0, 1, true);
    CRect tip;
    ::GetWindowRect(tips.Window(), &tip);
    EXPECT_NEAR(tip.left, before.left - 10, 3);
}

TEST_F(ListTips, NoneForATextThatHasJustRoomEnough)
{
    const int width = extent(L"fits");
    constexpr int kInsets[] = {4, 12};
    for (const int column : {0, 1}) {
        scene.list.SetColumnWidth(0, 60);
        const int room = width + kInsets[column];
        const int beside =
            column == 0 ? 60 - scene.cell(1, 0).Width() : 0; // what of the column is not the label's
        scene.list.SetColumnWidth(column, room + beside);
        rest(0, column, true);
        rest(1, column, false);
        scene.list.SetColumnWidth(column, room + beside - 1);
        rest(0, column, true);
        rest(1, column, true);
    }
}

TEST_F(ListTips, GoesByWhereTheCellsAreDrawnWhenHeadingsAreMoved)
{
    int order[] = {1, 0};
    scene.list.SetColumnOrderArray(2, order);
    rest(0, 1, true); // behind the label, which stands under the second heading
    EXPECT_EQ(shownText(), L"a cell with no room");
    rest(1, 1, false);
    scene.list.FollowColumnOrder(true);
    Robot()
        .moveTo(Spot{scene.list, CPoint(30, scene.cell(0, 0).CenterPoint().y)}) // under the first heading
        .waitFor("a tip", [&] { return shows(); });
    EXPECT_EQ(shownText(), L"a cell with no room");
    CRect tip;
    ::GetWindowRect(tips.Window(), &tip);
    CRect cell(0, 0, 60, 0);
    scene.list.ClientToScreen(&cell);
    EXPECT_NEAR(tip.left, cell.left, 8);
}

TEST_F(ListTips, ALabelThatAStateImageLeavesNoRoomForIsShown)
{
    rest(1, 0, false);
    rest(1, 1, false);
    CImageList images;
    fillImages(images, 16, {RGB(255, 0, 0)});
    scene.list.SetImageList(&images, LVSIL_STATE);
    // The label itself is wide enough; without the image's width it is not.
    scene.list.SetColumnWidth(0, 60 - scene.cell(1, 0).Width() + extent(L"fits") + 4 + 8);
    rest(1, 0, true);
    EXPECT_EQ(shownText(), L"fits");
    scene.list.SetImageList(nullptr, LVSIL_STATE);
}

TEST_F(ListTips, NoneBesideTheCellsNorBelowTheRows)
{
    for (const CPoint& outside :
         {CPoint(200, scene.cell(0, 0).CenterPoint().y), CPoint(30, 150), CPoint(30, 5)}) {
        rest(0, 0, true);
        Robot().moveTo(Spot{scene.list, outside}).waitFor("no tip", [&] { return !shows(); });
    }
}

TEST_F(ListTips, CellsEndWhereTheNextOnesBegin)
{
    scene.list.SetItemText(0, 1, L"fits");
    const CRect label = scene.cell(0, 0);
    const auto moveTo = [&](int x, int y) {
        scene.list.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(x, y));
        return shows();
    };
    const int middle = label.CenterPoint().y;
    EXPECT_TRUE(moveTo(label.right - 1, middle));
    EXPECT_FALSE(moveTo(label.right, middle));
    EXPECT_TRUE(moveTo(label.right - 1, label.bottom - 1));
    EXPECT_FALSE(moveTo(label.right - 1, label.bottom)) << "the next row";
    EXPECT_TRUE(moveTo(label.right - 1, label.top));
    EXPECT_FALSE(moveTo(label.right - 1, label.top - 1)) << "the headings";
}

TEST_F(ListTips, AKeyOrAClickTakesItAway)
{
    scene.list.SetFocus();
    rest(0, 0, true);
    Robot().key(VK_DOWN).waitFor("no tip", [&] { return !shows(); });
    rest(1, 0, false);
    rest(0, 0, true);
    Robot().click(over(0, 0)).waitFor("no tip", [&] { return !shows(); });
}

TEST_F(ListTips, ThePointerThatLeavesTakesItAway)
{
    rest(0, 1, true);
    Robot().moveTo(Spot{scene.button}).waitFor("no tip", [&] { return !shows(); });
    rest(0, 1, true); // and brings it back
}

TEST_F(ListTips, ThePointerThatComesBackToTheSameCellBringsItBack)
{
    rest(1, 1, false); // the pointer may be there already, and would not move
    rest(0, 1, true);
    scene.list.SendMessage(WM_MOUSELEAVE);
    EXPECT_FALSE(shows());
    pointAt(0, 1);
    EXPECT_TRUE(shows());
}

TEST_F(ListTips, OneThatWentByAKeyComesBackInAnotherCellOnly)
{
    rest(1, 1, false); // the pointer may be there already, and would not move
    rest(0, 1, true);
    scene.list.SendMessage(WM_KEYDOWN, VK_F2);
    ASSERT_FALSE(shows());
    pointAt(scene.cell(0, 1).CenterPoint() + CSize(1, 0));
    EXPECT_FALSE(shows()) << "the user has typed something there";
    pointAt(0, 0);
    EXPECT_TRUE(shows());
    pointAt(0, 1);
    EXPECT_TRUE(shows());
    EXPECT_EQ(shownText(), L"a cell with no room");
}

TEST_F(ListTips, AttachedAgainTheyKnowOfNoCellOfBefore)
{
    rest(1, 1, false); // the pointer may be there already, and would not move
    rest(0, 1, true);
    tips.Detach();
    EXPECT_FALSE(tips.Window());
    tips.Attach(scene.list);
    pointAt(0, 1);
    EXPECT_TRUE(shows());
}

TEST_F(ListTips, APointerThatMovesOnWhileTheHostIsAskedDecides)
{
    rest(1, 0, false);
    scene.list.SetItemText(0, 1, LPSTR_TEXTCALLBACK);
    scene.list.SetItemText(1, 1, L"another cell with no room");
    const CPoint first = scene.cell(0, 1).CenterPoint();
    const CPoint second = scene.cell(1, 1).CenterPoint();
    scene.list.ValidateRect(nullptr); // drawing would ask, too
    bool asked = false;
    scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), [&](NMHDR* header) -> LRESULT {
        if (!std::exchange(asked, true))
            pointAt(second);
        LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
        if (item.mask & LVIF_TEXT)
            ::lstrcpynW(item.pszText, L"a cell with no room", item.cchTextMax);
        return 0;
    });
    pointAt(first);
    EXPECT_TRUE(asked);
    EXPECT_TRUE(shows());
    EXPECT_EQ(shownText(), L"another cell with no room");
}

TEST_F(ListTips, AHostThatDetachesThemWhenItIsAskedGetsNone)
{
    rest(1, 0, false);
    scene.list.SetItemText(0, 1, LPSTR_TEXTCALLBACK);
    const CPoint cell = scene.cell(0, 1).CenterPoint();
    scene.list.ValidateRect(nullptr); // drawing would ask, too
    List other;
    other.Create(WS_CHILD | WS_VISIBLE, CRect(420, 10, 520, 110), &scene.parent, 9);
    for (const bool takesAnother : {false, true}) {
        SCOPED_TRACE(takesAnother);
        tips.Attach(scene.list);
        bool asked = false;
        scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), [&](NMHDR* header) -> LRESULT {
            if (!std::exchange(asked, true)) {
                tips.Detach();
                if (takesAnother)
                    tips.Attach(other);
            }
            LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
            if (item.mask & LVIF_TEXT)
                ::lstrcpynW(item.pszText, L"a cell with no room", item.cchTextMax);
            return 0;
        });
        pointAt(cell);
        EXPECT_TRUE(asked);
        EXPECT_FALSE(tips.Window());
    }
    other.DestroyWindow();
}

// Some platforms ask for the text of a label to tell where it is, too.
TEST_F(ListTips, TheyMayGoWheneverTheHostIsAskedForALabel)
{
    rest(1, 0, false);
    tips.Detach();
    const CPoint label = scene.cell(0, 0).CenterPoint();
    scene.list.SetItemText(0, 0, LPSTR_TEXTCALLBACK);
    scene.list.ValidateRect(nullptr); // drawing would ask, too
    int last = 0;
    for (bool gone = true; gone && last < 50;) {
        auto* const doomed = new Perishing<COVOListCellTips>;
        doomed->Attach(scene.list);
        gone = false;
        int left = ++last;
        scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), [&](NMHDR* header) -> LRESULT {
            LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
            if (item.mask & LVIF_TEXT)
                ::lstrcpynW(item.pszText, L"a label with no room", item.cchTextMax);
            if (--left == 0) {
                delete doomed;
                gone = true;
            }
            return 0;
        });
        pointAt(label);
        scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), 0);
        if (gone)
            EXPECT_TRUE(Perishing<COVOListCellTips>::isUntouched(doomed))
                << "when asked for the " << last << "th time";
        else
            delete doomed;
    }
    EXPECT_GT(last, 1) << "the host has been asked";
    EXPECT_LT(last, 50);
}

TEST_F(ListTips, SoDoScrollingAndALossOfTheFocus)
{
    const std::pair<UINT, WPARAM> messages[] = {{WM_MOUSEWHEEL, MAKEWPARAM(0, 120)},
                                                {WM_VSCROLL, SB_LINEDOWN},
                                                {WM_HSCROLL, SB_LINEDOWN},
                                                {WM_RBUTTONDOWN, 0},
                                                {WM_LBUTTONDOWN, 0},
                                                {WM_KILLFOCUS, 0}};
    for (const auto& [message, wParam] : messages) {
        rest(1, 0, false);
        rest(0, 1, true);
        scene.list.PostMessage(message, wParam, 0);
        if (message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN) // the list waits for the button
            scene.list.PostMessage(message + 1, 0, 0);
        EXPECT_TRUE(GuiThread::runUntil([&] { return !shows(); })) << "message " << message;
    }
}

TEST_F(ListTips, SoDoesScrollingByCode)
{
    constexpr int kRows = 60;
    for (int row = 2; row < kRows; ++row)
        scene.list.AddItem(row, 0, L"fits", 0, -1);
    scene.addColumn(L"c", 600);
    rest(1, 0, false); // the pointer stays there
    const std::pair<const char*, std::function<void()>> scrolls[] = {
        {"Scroll down", [&] { scene.list.Scroll(CSize(0, 100)); }},
        {"Scroll to the right", [&] { scene.list.Scroll(CSize(30, 0)); }},
        {"EnsureVisible", [&] { scene.list.EnsureVisible(kRows - 1, FALSE); }},
        {"WM_VSCROLL", [&] { scene.list.SendMessage(WM_VSCROLL, SB_PAGEDOWN); }}};
    for (const auto& [name, scroll] : scrolls) {
        scene.list.EnsureVisible(0, FALSE);
        scene.list.Scroll(CSize(-600, 0));
        const CPoint cell = scene.cell(0, 1).CenterPoint();
        pointAt(1, 0);
        pointAt(cell);
        ASSERT_TRUE(shows()) << name;
        scroll();
        EXPECT_FALSE(shows()) << name;
        EXPECT_NE(scene.cell(0, 1).CenterPoint(), cell) << name << ": the list was scrolled";
    }
}

TEST_F(ListTips, CodeThatScrollsNothingLeavesIt)
{
    rest(1, 0, false); // the pointer stays there
    pointAt(0, 1);
    ASSERT_TRUE(shows());
    scene.list.EnsureVisible(1, FALSE);
    EXPECT_TRUE(shows());
    scene.list.Scroll(CSize(0, 0));
    EXPECT_TRUE(shows());
}

TEST_F(ListTips, TheTipHasTheListsFont)
{
    CFont font;
    font.CreatePointFont(140, L"Courier New");
    scene.list.SetFont(&font);
    rest(1, 1, false); // the pointer may be there already, and would not move
    rest(0, 1, true);
    LOGFONT wanted{};
    LOGFONT has{};
    font.GetLogFont(&wanted);
    CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessageW(tips.Window(), WM_GETFONT, 0, 0)))
        ->GetLogFont(&has);
    EXPECT_STREQ(has.lfFaceName, wanted.lfFaceName);
    EXPECT_EQ(has.lfHeight, wanted.lfHeight);
    CClientDC dc(&scene.list);
    CFont* const old = dc.SelectObject(&font);
    const int width = dc.GetTextExtent(L"a cell with no room", 19).cx;
    dc.SelectObject(old);
    CRect tip;
    ::GetWindowRect(tips.Window(), &tip);
    EXPECT_GE(tip.Width(), width);
    scene.list.SetFont(nullptr);
}

static LRESULT WINAPI refuseTools(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == TTM_ADDTOOLW ? FALSE : ::SendMessageW(window, message, wParam, lParam);
}

TEST_F(ListTips, OneThatCouldNotBeMadeComesTheNextTime)
{
    rest(1, 1, false); // the pointer stays there
    tips.Detach();     // it may have passed a cell with a tip
    tips.Attach(scene.list);
    {
        const ImportPatch failing(L"ovoui.dll", "SendMessageW", reinterpret_cast<void*>(&refuseTools));
        pointAt(0, 1);
        EXPECT_FALSE(shows());
    }
    pointAt(1, 1);
    pointAt(0, 1);
    EXPECT_TRUE(shows());
    EXPECT_EQ(shownText(), L"a cell with no room");
}

TEST_F(ListTips, TheListMayBeDestroyedFirst)
{
    rest(0, 0, true);
    const HWND tip = tips.Window();
    scene.list.DestroyWindow();
    EXPECT_FALSE(::IsWindow(tip));
    EXPECT_FALSE(tips.Window());
}
