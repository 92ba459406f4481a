// What is painted anew when the focus comes and goes, when the window changes, and what lies right of the
// columns.
#include "ListScene.h"

#include <support/PlatformSetting.h>

#include <testkit/ImportPatch.h>

#include <ovoui/lists/ListFinder.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

using namespace ovo::testkit;

namespace
{

/// The rectangles that the library invalidates, in order.
struct Invalidated
{
    HWND window;
    CRect rect;
    BOOL erase;
};

std::vector<Invalidated> g_invalidated;

BOOL WINAPI noteInvalidated(HWND window, const RECT* rect, BOOL erase)
{
    g_invalidated.push_back({window, rect ? CRect(*rect) : CRect(), erase});
    return ::InvalidateRect(window, rect, erase);
}

/// Also where the header is left out.
BOOL WINAPI noteRedrawn(HWND window, const RECT* rect, HRGN region, UINT flags)
{
    if (flags & RDW_INVALIDATE)
        g_invalidated.push_back({window, rect ? CRect(*rect) : CRect(), (flags & RDW_ERASE) != 0});
    return ::RedrawWindow(window, rect, region, flags);
}

class ListFocus : public ::testing::TestWithParam<DWORD>
{
protected:
    ListFocus()
        : patch(L"ovoui.dll", "InvalidateRect", reinterpret_cast<void*>(&noteInvalidated))
        , redraws(L"ovomfc.dll", "RedrawWindow", reinterpret_cast<void*>(&noteRedrawn))
    {
        g_invalidated.clear();
    }

    std::vector<Invalidated> ofList(ListScene& scene) const
    {
        std::vector<Invalidated> result;
        for (const Invalidated& one : g_invalidated)
            if (one.window == scene.list.m_hWnd)
                result.push_back(one);
        g_invalidated.clear();
        return result;
    }

    static CRect rowOf(ListScene& scene, int item)
    {
        CRect row = scene.itemRect(item);
        row.left = scene.rect(item, LVIR_LABEL).left;
        return row;
    }

    ImportPatch patch;
    ImportPatch redraws;
};

} // namespace

TEST_F(ListFocus, OfManySelectedRowsThoseThatAreShownAreRepainted)
{
    ListScene scene{LVS_OWNERDATA};
    scene.addColumn(L"name", 100);
    scene.list.SetItemCountEx(20000);
    scene.list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    ASSERT_EQ(scene.list.GetSelectedCount(), 20000u);
    scene.show();
    scene.list.EnsureVisible(500, FALSE);
    scene.button.SetFocus();
    const int top = scene.list.GetTopIndex();
    const int shown = scene.list.GetCountPerPage() + 1;
    ofList(scene);
    scene.list.SetFocus();
    const std::vector<Invalidated> repainted = ofList(scene);
    EXPECT_LE(repainted.size(), static_cast<std::size_t>(shown) + 2);
    for (int row = top; row < top + shown; ++row)
        EXPECT_TRUE(std::any_of(repainted.begin(), repainted.end(), [&](const Invalidated& one) {
            return one.rect == rowOf(scene, row);
        })) << row;
}

/// How often the platform's list view has asked for a part of a window to be drawn.
int g_asked = 0;

BOOL WINAPI countAsked(HWND window, const RECT* rect, BOOL erase)
{
    ++g_asked;
    return ::InvalidateRect(window, rect, erase);
}

class ListRanges : public ::testing::TestWithParam<bool>
{
};

INSTANTIATE_TEST_SUITE_P(Platforms, ListRanges, ::testing::Bool());

TEST_P(ListRanges, OfAVirtualListAreSelectedAndDeselectedWithoutDrawingEachRow)
{
    PlatformSetting setting;
    const bool isWine = setting->asksForEachRow;
    setting->asksForEachRow = GetParam();
    constexpr UINT kRows = 20000;
    ListScene scene{LVS_OWNERDATA};
    scene.addColumn(L"name", 100);
    scene.list.SetItemCountEx(kRows);
    scene.show();
    scene.list.SetFocus();
    const ImportPatch patch(L"comctl32.dll", "InvalidateRect", reinterpret_cast<void*>(&countAsked));
    Robot robot;
    robot.key(VK_HOME);
    g_asked = 0;
    robot.holding(VK_SHIFT).key(VK_END);
    EXPECT_EQ(scene.list.GetSelectedCount(), kRows);
    robot.holding(VK_SHIFT).key(VK_UP);
    EXPECT_EQ(scene.list.GetSelectedCount(), kRows - 1);
    robot.key(VK_HOME);
    EXPECT_EQ(scene.list.GetCurSel(), 0);
    robot.holding(VK_SHIFT).key(VK_END);
    COVOListFinder finder;
    finder.Attach(scene.list);
    scene.parent.answer(static_cast<UINT>(LVN_ODFINDITEM), 1);
    EXPECT_TRUE(finder.Find(L"one"));
    EXPECT_EQ(scene.list.GetCurSel(), 1);
    if (GetParam() == isWine) {
        EXPECT_LT(g_asked, 1000);
    } else if (isWine) {
        EXPECT_GT(g_asked, static_cast<int>(kRows)) << "the switch is not needed any more";
    }
    finder.Detach(); // the row that it has found has another look
    scene.list.EnsureVisible(1, FALSE);
    scene.list.RedrawWindow();
    const CRect row = scene.itemRect(1);
    EXPECT_GT(Picture::ofClient(scene.list).count(::GetSysColor(COLOR_HIGHLIGHT), 0, row), 0)
        << "what is selected is drawn";
}

TEST_P(ListRanges, OfAVirtualListByTheMouse)
{
    PlatformSetting setting;
    const bool isWine = setting->asksForEachRow;
    setting->asksForEachRow = GetParam();
    constexpr int kRows = 5000;
    constexpr int kLast = kRows - 1;
    ListScene scene{LVS_OWNERDATA};
    scene.addColumn(L"name", 100);
    scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), [](NMHDR* header) -> LRESULT {
        LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
        if (item.mask & LVIF_TEXT)
            ::lstrcpynW(item.pszText, L"a name", item.cchTextMax);
        return 0;
    });
    scene.list.SetItemCountEx(kRows);
    scene.show();
    scene.list.SetFocus();
    const auto name = [&](int row) {
        const CRect label = scene.rect(row, LVIR_LABEL);
        return Spot{scene.list, CPoint(label.left + 6, label.CenterPoint().y)};
    };
    const auto expectFewAsked = [&](const char* what) {
        if (GetParam() == isWine) {
            EXPECT_LT(g_asked, 1000) << what;
        }
        g_asked = 0;
    };
    const ImportPatch patch(L"comctl32.dll", "InvalidateRect", reinterpret_cast<void*>(&countAsked));
    Robot robot;
    robot.click(name(0));
    scene.list.EnsureVisible(kLast, FALSE);
    scene.list.UpdateWindow();
    g_asked = 0;

    robot.holding(VK_SHIFT).click(name(kLast));
    EXPECT_EQ(scene.list.GetSelectedCount(), UINT{kRows});
    expectFewAsked("a range");

    robot.click(name(kLast - 3)); // a selected row stays the only one when the button goes up
    EXPECT_EQ(scene.list.GetCurSel(), kLast - 3);
    expectFewAsked("a click on a selected row");

    for (const bool right : {false, true}) {
        scene.list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
        scene.list.SetItemState(kLast - 1, 0, LVIS_SELECTED);
        scene.list.UpdateWindow();
        g_asked = 0;
        robot.click(name(kLast - 1), right ? Button::Right : Button::Left);
        EXPECT_EQ(scene.list.GetCurSel(), kLast - 1);
        expectFewAsked(right ? "a click with the right button" : "a click on another row");
    }
}

TEST_F(ListFocus, ComingAndGoingRepaintsTheFocusedAndTheSelectedRows)
{
    ListScene scene;
    scene.fill({100, 500}, 6);
    for (const int row : {1, 3})
        scene.list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
    scene.list.SetItemState(4, LVIS_FOCUSED, LVIS_FOCUSED);
    scene.show();
    scene.button.SetFocus();
    for (const bool coming : {true, false}) {
        ofList(scene);
        coming ? scene.list.SetFocus() : scene.button.SetFocus();
        const auto rects = ofList(scene);
        ASSERT_EQ(rects.size(), 3u) << coming;
        EXPECT_EQ(rects[0].rect, rowOf(scene, 4));
        EXPECT_EQ(rects[1].rect, rowOf(scene, 1));
        EXPECT_EQ(rects[2].rect, rowOf(scene, 3));
        for (const Invalidated& one : rects)
            EXPECT_FALSE(one.erase);
        EXPECT_FALSE(scene.list.GetUpdateRect(nullptr)) << "painted at once";
    }
}

TEST_F(ListFocus, WithTheSelectionAlwaysShownOnlyTheFocusedRowIsRepainted)
{
    ListScene scene(LVS_SHOWSELALWAYS);
    scene.fill({100, 500}, 6);
    scene.list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    scene.list.SetItemState(4, LVIS_FOCUSED, LVIS_FOCUSED);
    scene.show();
    scene.button.SetFocus();
    ofList(scene);
    scene.list.SetFocus();
    const auto rects = ofList(scene);
    ASSERT_EQ(rects.size(), 1u);
    EXPECT_EQ(rects[0].rect, rowOf(scene, 4));
}

TEST_F(ListFocus, WithNothingSelectedOrFocusedNothingIsRepainted)
{
    ListScene scene;
    scene.show();
    scene.button.SetFocus();
    ofList(scene);
    scene.list.SetFocus();
    scene.button.SetFocus();
    EXPECT_TRUE(ofList(scene).empty());
}

TEST_F(ListFocus, ALabelEditorDoesNotRepaintTheSelection)
{
    ListScene scene(LVS_EDITLABELS);
    scene.fill({100, 500}, 6);
    scene.list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    scene.show();
    scene.list.SetFocus();
    ofList(scene);
    for (const WORD key : {VK_RETURN, VK_ESCAPE}) {
        ASSERT_TRUE(scene.list.EditLabel(1));
        ASSERT_EQ(::GetParent(::GetFocus()), scene.list.m_hWnd);
        EXPECT_TRUE(ofList(scene).empty()) << "opening";
        Robot().key(key);
        ASSERT_EQ(::GetFocus(), scene.list.m_hWnd);
        EXPECT_TRUE(ofList(scene).empty()) << "closing with key " << key;
    }
}

TEST_F(ListFocus, OutsideReportViewNothingIsRepainted)
{
    ListScene scene;
    scene.fill({100, 500}, 6);
    scene.list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    scene.list.ModifyStyle(LVS_TYPEMASK, LVS_LIST);
    scene.show();
    scene.button.SetFocus();
    ofList(scene);
    scene.list.SetFocus();
    scene.button.SetFocus();
    EXPECT_TRUE(ofList(scene).empty());
    ::InvalidateRect(scene.list, nullptr, FALSE);
    scene.list.UpdateWindow();
    EXPECT_TRUE(ofList(scene).empty()) << "beside the items";
}

TEST_F(ListFocus, TheListMayBeDestroyedWhenTheFocusComesOrGoes)
{
    for (const UINT code : {static_cast<UINT>(NM_SETFOCUS), static_cast<UINT>(NM_KILLFOCUS)}) {
        RecordingParent parent;
        CButton button;
        button.Create(L"b", WS_CHILD | WS_VISIBLE, CRect(0, 120, 50, 150), &parent, 4);
        auto list = std::make_unique<List>();
        list->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), &parent, 3);
        present(parent);
        button.SetFocus();
        parent.answer(code, [&](NMHDR*) -> LRESULT {
            list.reset();
            return 0;
        });
        list->SetFocus();
        if (list)
            button.SetFocus();
        EXPECT_FALSE(list);
    }
}

/// An image with soft edges that is drawn over itself gets darker.
TEST_F(ListFocus, ImagesStayAsTheyAre)
{
    constexpr int kSide = 16;
    const std::vector<std::uint32_t> blackHalfOpaque(kSide * kSide, 0x80000000);
    CBitmap soft;
    soft.CreateBitmap(kSide, kSide, 1, 32, blackHalfOpaque.data());
    for (const bool follows : {false, true}) {
        ListScene scene;
        CImageList images;
        images.Create(kSide, kSide, ILC_COLOR32, 1, 1);
        images.Add(&soft, static_cast<CBitmap*>(nullptr));
        scene.list.SetImageList(&images, LVSIL_SMALL);
        scene.list.FollowColumnOrder(follows);
        scene.fill({100, 80}, 3);
        scene.list.SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED);
        scene.show();
        const CPoint middle = scene.rect(1, LVIR_ICON).CenterPoint();
        const COLORREF before = Picture::ofClient(scene.list).at(middle);
        EXPECT_THAT(before, IsColour(RGB(127, 127, 127), 2));
        for (int i = 0; i < 3; ++i) {
            scene.list.SetFocus();
            EXPECT_THAT(Picture::ofClient(scene.list).at(middle), IsColour(before)) << follows;
            scene.button.SetFocus();
            EXPECT_THAT(Picture::ofClient(scene.list).at(middle), IsColour(before)) << follows;
        }
    }
}

// Painting beside the columns

TEST_F(ListFocus, PaintingReachesFromTheLastColumnToTheEdge)
{
    ListScene scene;
    scene.fill({100, 80}, 3);
    scene.show();
    const CRect row = scene.itemRect(1);
    scene.list.ValidateRect(nullptr);
    ofList(scene);
    const CRect part(20, row.top, 40, row.bottom);
    ::InvalidateRect(scene.list, &part, FALSE);
    scene.list.UpdateWindow();
    CRect client;
    scene.list.GetClientRect(&client);
    const auto rects = ofList(scene);
    ASSERT_EQ(rects.size(), 1u);
    EXPECT_EQ(rects[0].rect, CRect(20, row.top, client.right, row.bottom));
    EXPECT_FALSE(rects[0].erase);

    // What begins beyond the columns is widened to the left, to the last pixel of the columns.
    const CRect beyond(300, row.top, 320, row.bottom);
    ::InvalidateRect(scene.list, &beyond, FALSE);
    scene.list.UpdateWindow();
    const auto widened = ofList(scene);
    ASSERT_EQ(widened.size(), 1u);
    EXPECT_EQ(widened[0].rect, CRect(179, row.top, client.right, row.bottom));
}

TEST_F(ListFocus, TheHeaderIsNotPaintedWithTheRows)
{
    ListScene scene;
    scene.fill({100, 80}, 3);
    scene.show();
    ::RedrawWindow(scene.list, nullptr, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
    scene.list.SendMessage(WM_PAINT);
    EXPECT_FALSE(::GetUpdateRect(*scene.list.GetHeaderCtrl(), nullptr, FALSE));
    EXPECT_FALSE(::GetUpdateRect(scene.list, nullptr, FALSE));
}

TEST_F(ListFocus, ColumnsThatReachTheEdgeNeedNoMore)
{
    for (const int beyond : {100, 1, 0}) {
        ListScene scene;
        scene.fill({100, 80}, 3);
        CRect client;
        scene.list.GetClientRect(&client);
        scene.list.SetColumnWidth(1, client.Width() - 100 + beyond);
        scene.show();
        ofList(scene);
        ::InvalidateRect(scene.list, nullptr, FALSE);
        scene.list.UpdateWindow();
        EXPECT_TRUE(ofList(scene).empty()) << beyond;
    }
}

TEST_F(ListFocus, AWidthOnlyDecidesWhatIsPaintedBeside)
{
    // Not the height, which is another one here than the width.
    ListScene scene;
    scene.fill({100, 150}, 3);
    scene.list.SetWindowPos(nullptr, 0, 0, 300, 220, SWP_NOMOVE | SWP_NOZORDER);
    scene.show();
    ofList(scene);
    ::InvalidateRect(scene.list, nullptr, FALSE);
    scene.list.UpdateWindow();
    const auto rects = ofList(scene);
    ASSERT_EQ(rects.size(), 1u);
    EXPECT_EQ(rects[0].rect.right, 300);
}

TEST_F(ListFocus, AWindowTooSmallForItsRowsAndColumnsScrolls)
{
    ListScene scene;
    scene.fill({100, 80}, 9);
    scene.show();
    EXPECT_FALSE(scene.list.GetStyle() & (WS_HSCROLL | WS_VSCROLL));
    scene.list.SetWindowPos(nullptr, 0, 0, 120, 80, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(scene.list.GetStyle() & WS_HSCROLL);
    EXPECT_TRUE(scene.list.GetStyle() & WS_VSCROLL);
}

TEST_F(ListFocus, AnEmptyListNeedsNoMore)
{
    ListScene scene;
    scene.fill({100}, 0);
    scene.show();
    ofList(scene);
    ::InvalidateRect(scene.list, nullptr, FALSE);
    scene.list.UpdateWindow();
    EXPECT_TRUE(ofList(scene).empty());
}

TEST_F(ListFocus, ASelectionFollowsTheWindowsWidth)
{
    ListScene scene;
    scene.fill({100, 80}, 3);
    scene.list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    scene.show();
    scene.list.SetFocus();
    scene.list.SetWindowPos(nullptr, 0, 0, 560, 190, SWP_NOMOVE | SWP_NOZORDER);
    scene.list.UpdateWindow();
    EXPECT_THAT(Picture::ofClient(scene.list).at(550, scene.itemRect(1).CenterPoint().y),
                IsColour(::GetSysColor(COLOR_HIGHLIGHT)));
}
