// Columns, rows and the selection, as a host uses them.
#include "ListScene.h"

#include <support/Perishing.h>
#include <testkit/GdiCounter.h>
#include <testkit/WindowCounter.h>

#include <ovoui/lists/ListColumns.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ovo::testkit;

namespace
{

constexpr DWORD kOpaque = 0xFF000000;
constexpr int kAllOfColumn = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;

/// The colour that a row's swatch shows at its left; the list has one colour column, number 1.
COLORREF shownColour(ListScene& scene, int item)
{
    scene.list.RedrawWindow();
    const CRect cell = scene.cell(item, 1);
    return Picture::ofClient(scene.list).at(cell.left + 1, cell.top + 1);
}

int CALLBACK byData(LPARAM one, LPARAM other, LPARAM sign)
{
    return static_cast<int>((one - other) * sign);
}

LVCOLUMN columnOf(List& list, int index)
{
    LVCOLUMN column{};
    column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_SUBITEM;
    EXPECT_TRUE(list.GetColumn(index, &column));
    return column;
}

} // namespace

TEST(ListCreation, MakesItselfAnOwnerDrawnReport)
{
    RecordingParent parent;
    List list;
    list.Create(WS_CHILD | LVS_SMALLICON | LVS_SINGLESEL, CRect(0, 0, 100, 100), &parent, 3);
    EXPECT_EQ(list.GetStyle() & LVS_TYPEMASK, static_cast<DWORD>(LVS_REPORT));
    EXPECT_TRUE(list.GetStyle() & LVS_OWNERDRAWFIXED);
    EXPECT_TRUE(list.GetStyle() & LVS_SINGLESEL);
}

TEST(ListCreation, CanBeCreatedByItsClass)
{
    std::unique_ptr<CObject> object(RUNTIME_CLASS(COVOListCtrlEx)->CreateObject());
    ASSERT_TRUE(object);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(COVOListCtrlEx)));
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CListCtrl)));
    EXPECT_STREQ(object->GetRuntimeClass()->m_lpszClassName, "COVOListCtrlEx");
}

TEST(ListCreation, OnADialogItemTheTemplateGivesTheStyles)
{
    ListScene scene;
    for (const DWORD style : {DWORD{LVS_REPORT | LVS_OWNERDRAWFIXED}, DWORD{LVS_REPORT}}) {
        const HWND item = ::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | style, 0, 0, 300,
                                            150, scene.parent, reinterpret_cast<HMENU>(77), nullptr, nullptr);
        List list;
        list.SubclassWindow(item);
        list.AddColumn(L"c", 0, -1, false, kAllOfColumn, LVCFMT_LEFT);
        list.AddItem(0, 0, L"text", 0, -1);
        scene.show();
        list.RedrawWindow();
        EXPECT_EQ(list.drawn.empty(), !(style & LVS_OWNERDRAWFIXED));
        list.DestroyWindow();
    }
}

TEST(ListCreation, OnADialogItemTheWidthIsKnownWithTheFirstWmSize)
{
    ListScene scene;
    const HWND item =
        ::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDRAWFIXED, 0, 0,
                          300, 150, scene.parent, reinterpret_cast<HMENU>(77), nullptr, nullptr);
    List list;
    list.SubclassWindow(item);
    list.AddColumn(L"c", 0, -1, false, kAllOfColumn, LVCFMT_LEFT);
    list.AddItem(0, 0, L"text", 0, -1);
    list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    scene.show();
    list.SetFocus();
    CRect row;
    list.GetItemRect(0, &row, LVIR_BOUNDS);
    const CPoint beside(250, row.CenterPoint().y);
    EXPECT_THAT(Picture::ofClient(list).at(beside), IsColour(::GetSysColor(COLOR_WINDOW)));
    list.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 150));
    list.RedrawWindow();
    EXPECT_THAT(Picture::ofClient(list).at(beside), IsColour(::GetSysColor(COLOR_HIGHLIGHT)));
    list.DestroyWindow();
}

TEST(ListColumns, AreAsWideAsTheirHeadingWithAMargin)
{
    ListScene scene;
    EXPECT_EQ(scene.list.AddColumn(L"A heading", 0, -1, false, kAllOfColumn, LVCFMT_LEFT), 0);
    EXPECT_EQ(scene.list.GetColumnWidth(0), scene.list.GetStringWidth(L"A heading") + 15);
}

TEST(ListColumns, TakeTheirFormatAndSubitem)
{
    ListScene scene;
    scene.list.AddColumn(L"a", 0, -1, false, kAllOfColumn, LVCFMT_LEFT);
    EXPECT_EQ(scene.list.AddColumn(L"b", 1, -1, false, kAllOfColumn, LVCFMT_RIGHT), 1);
    EXPECT_EQ(scene.list.AddColumn(L"c", 2, 5, false, kAllOfColumn, LVCFMT_CENTER), 2);
    EXPECT_EQ(columnOf(scene.list, 1).fmt & LVCFMT_JUSTIFYMASK, LVCFMT_RIGHT);
    EXPECT_EQ(columnOf(scene.list, 1).iSubItem, 1);
    EXPECT_EQ(columnOf(scene.list, 2).fmt & LVCFMT_JUSTIFYMASK, LVCFMT_CENTER);
    EXPECT_EQ(columnOf(scene.list, 2).iSubItem, 5);
}

namespace
{

/// What a list says of a column when it is asked for everything.
LVCOLUMN wholeColumn(CListCtrl& list, int index, wchar_t (&heading)[40])
{
    LVCOLUMN column{};
    column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_SUBITEM | LVCF_TEXT;
    column.pszText = heading;
    column.cchTextMax = static_cast<int>(std::size(heading));
    EXPECT_TRUE(list.GetColumn(index, &column));
    return column;
}

} // namespace

TEST(ListColumns, TakeWhatTheMaskSays)
{
    for (const int left : {LVCF_TEXT, LVCF_WIDTH, LVCF_FMT, LVCF_SUBITEM}) {
        const int mask = kAllOfColumn & ~left;
        ListScene scene;
        CListCtrl plain;
        plain.Create(WS_CHILD | LVS_REPORT, CRect(0, 0, 100, 100), &scene.parent, 77);
        LVCOLUMN raw{};
        raw.mask = static_cast<UINT>(mask);
        raw.fmt = LVCFMT_RIGHT;
        raw.cx = scene.list.GetStringWidth(L"Size") + 15;
        raw.pszText = const_cast<LPWSTR>(L"Size");
        raw.iSubItem = 5;
        for (const int index : {0, 1}) { // the first one is aligned to the left by some platforms
            plain.InsertColumn(index, &raw);
            scene.list.AddColumn(L"Size", index, 5, false, mask, LVCFMT_RIGHT);
        }
        wchar_t heading[40]{};
        wchar_t expectedHeading[40]{};
        const LVCOLUMN column = wholeColumn(scene.list, 1, heading);
        const LVCOLUMN expected = wholeColumn(plain, 1, expectedHeading);
        EXPECT_STREQ(heading, expectedHeading) << left;
        EXPECT_EQ(column.fmt, expected.fmt) << left;
        EXPECT_EQ(column.iSubItem, expected.iSubItem) << left;
        EXPECT_EQ(column.cx, expected.cx) << left;
    }
}

TEST(ListColumns, ThatThePlatformInsertedHaveNoColour)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    for (const int index : {0, 1})
        scene.list.InsertColumn(index, L"plain", LVCFMT_LEFT, 60);
    EXPECT_EQ(scene.list.AddColumn(L"colour", 2, -1, true, kAllOfColumn, LVCFMT_LEFT), 2);
    for (const int column : {0, 1, 2})
        scene.list.AddItem(0, column, L"x", kOpaque | RGB(200, 0, 0), -1);
    scene.show();
    const Picture shown = Picture::ofClient(scene.list);
    for (const int column : {0, 1, 2}) {
        const CRect cell = scene.cell(0, column);
        EXPECT_THAT(shown.at(cell.left + 1, cell.top + 1),
                    IsColour(column == 2 ? RGB(200, 0, 0) : ::GetSysColor(COLOR_WINDOW)));
    }
}

TEST(ListColumns, ThatThePlatformInsertedHaveNoColourWithoutOthersToo)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    for (const int index : {0, 1})
        scene.list.InsertColumn(index, L"plain", LVCFMT_LEFT, 60);
    for (const int column : {0, 1})
        scene.list.AddItem(0, column, L"x", kOpaque | RGB(200, 0, 0), -1);
    scene.show();
    scene.list.RedrawWindow();
    EXPECT_EQ(Picture::ofClient(scene.list).count(RGB(200, 0, 0)), 0);
}

TEST(ListColumns, OfATableSuitTheirSamplesShowColoursAndReachAcrossTheWindow)
{
    RecordingParent parent;
    const HWND item =
        ::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDRAWFIXED, 0, 0,
                          300, 150, parent, reinterpret_cast<HMENU>(77), nullptr, nullptr);
    List list;
    list.SubclassWindow(item);
    list.UseRowColours(TRUE);
    ASSERT_TRUE(addColumns(list, {{.heading = L"Name", .sample = L"A longer name"},
                                  {.heading = L"Colour", .sample = L"1", .showsColour = true}}));
    EXPECT_EQ(list.GetColumnWidth(0), list.GetStringWidth(L"A longer name") + 15);
    EXPECT_EQ(list.GetColumnWidth(1), list.GetStringWidth(L"Colour") + 15);
    list.AddItem(0, 0, L"A longer name", kOpaque | RGB(200, 0, 0), -1);
    list.AddItem(0, 1, L".", 0, -1);
    list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    present(parent);
    list.SetFocus();
    list.RedrawWindow();
    CRect label;
    list.GetItemRect(0, &label, LVIR_LABEL);
    const Picture shown = Picture::ofClient(list);
    EXPECT_THAT(shown.at(label.right + 1, label.top + 1), IsColour(RGB(200, 0, 0)));
    EXPECT_THAT(shown.at(290, label.CenterPoint().y), IsColour(::GetSysColor(COLOR_HIGHLIGHT)));
    list.DestroyWindow();
}

TEST(ListColumns, BeyondTheLastOneIsTheLast)
{
    ListScene scene;
    EXPECT_EQ(scene.list.AddColumn(L"a", 9, -1, false, kAllOfColumn, LVCFMT_LEFT), 0);
    EXPECT_EQ(scene.list.AddColumn(L"b", 9, -1, false, kAllOfColumn, LVCFMT_LEFT), 1);
}

TEST(ListColumns, ThatCannotBeInsertedLeaveTheFlagsAlone)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.fill({60, 60}, 0);
    scene.list.AddItem(0, 0, L"x", kOpaque | RGB(200, 0, 0), -1);
    scene.list.AddItem(0, 1, L"x", 0, -1);
    scene.show();
    EXPECT_EQ(scene.list.AddColumn(L"b", -1, -1, true, kAllOfColumn, LVCFMT_LEFT), -1);
    EXPECT_THAT(shownColour(scene, 0), IsColour(::GetSysColor(COLOR_WINDOW)));
}

TEST(ListColumns, KeepTheirColourFlagByNumberWhenOneIsInsertedInFront)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"plain", 60);
    scene.addColumn(L"colour", 60, true);
    // A plain column in front: number 0 stays plain, number 1 stays the colour column.
    scene.list.AddColumn(L"new", 0, -1, false, kAllOfColumn, LVCFMT_LEFT);
    scene.list.AddItem(0, 0, L"x", kOpaque | RGB(200, 0, 0), -1);
    scene.list.AddItem(0, 1, L"x", 0, -1);
    scene.list.AddItem(0, 2, L"x", 0, -1);
    scene.show();
    EXPECT_THAT(shownColour(scene, 0), IsColour(RGB(200, 0, 0)));
    const CRect third = scene.cell(0, 2);
    EXPECT_THAT(Picture::ofClient(scene.list).at(third.left + 1, third.top + 1),
                IsColour(::GetSysColor(COLOR_WINDOW)));
}

TEST(ListColumns, AColourColumnInFrontReplacesTheFlagOfTheFirst)
{
    for (const bool colour : {true, false}) {
        ListScene scene;
        scene.list.UseRowColours(TRUE);
        scene.addColumn(L"a", 60, !colour);
        scene.list.AddColumn(L"new", 0, -1, colour, kAllOfColumn, LVCFMT_LEFT);
        scene.list.AddItem(0, 0, L"x", kOpaque | RGB(200, 0, 0), -1);
        scene.list.AddItem(0, 1, L"x", 0, -1);
        scene.show();
        const CRect first = scene.rect(0, LVIR_LABEL);
        EXPECT_THAT(Picture::ofClient(scene.list).at(first.left + 1, first.top + 1),
                    IsColour(colour ? RGB(200, 0, 0) : ::GetSysColor(COLOR_WINDOW)));
        EXPECT_THAT(shownColour(scene, 0), IsColour(::GetSysColor(COLOR_WINDOW)));
    }
}

TEST(ListColumns, KeepTheirColourFlagWhenTheyAreDeleted)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 60);
    scene.addColumn(L"b", 60, true);
    scene.addColumn(L"c", 60);
    scene.list.DeleteColumn(1); // c is number 1 now
    scene.list.AddItem(0, 0, L"x", kOpaque | RGB(200, 0, 0), -1);
    scene.list.AddItem(0, 1, L"x", 0, -1);
    scene.show();
    EXPECT_THAT(shownColour(scene, 0), IsColour(RGB(200, 0, 0)));
}

TEST(ListRows, HaveTextsImagesAndTheIndexAskedForAsData)
{
    ListScene scene;
    scene.fill({60, 60}, 0);
    CImageList icons;
    fillImages(icons, 16, {RGB(0, 0, 0), RGB(1, 1, 1)});
    scene.list.SetImageList(&icons, LVSIL_SMALL);
    EXPECT_EQ(scene.list.AddItem(0, 0, L"one", 0, 1), 0);
    EXPECT_EQ(scene.list.AddItem(0, 1, L"two", 0, -1), 0);
    EXPECT_EQ(scene.list.GetItemText(0, 0), L"one");
    EXPECT_EQ(scene.list.GetItemText(0, 1), L"two");
    EXPECT_EQ(scene.list.GetItemData(0), 0u);
    LVITEM item{};
    item.mask = LVIF_IMAGE;
    scene.list.GetItem(&item);
    EXPECT_EQ(item.iImage, 1);
    scene.list.SetImageList(nullptr, LVSIL_SMALL);
}

TEST(ListRows, CellsHaveImagesToo)
{
    ListScene scene;
    scene.fill({60, 60}, 1);
    scene.list.SetExtendedStyle(LVS_EX_SUBITEMIMAGES);
    CImageList icons;
    fillImages(icons, 16, {RGB(0, 0, 0), RGB(1, 1, 1), RGB(2, 2, 2)});
    scene.list.SetImageList(&icons, LVSIL_SMALL);
    const auto imageOf = [&](int column) {
        LVITEM item{};
        item.mask = LVIF_IMAGE;
        item.iSubItem = column;
        scene.list.GetItem(&item);
        return item.iImage;
    };
    scene.list.AddItem(0, 1, L"two", 0, 2);
    EXPECT_EQ(imageOf(1), 2);
    scene.list.AddItem(0, 1, L"three", 0, -1);
    EXPECT_EQ(imageOf(1), 2) << "left as it was";
    scene.list.SetImageList(nullptr, LVSIL_SMALL);
}

TEST(ListRows, TheColourBelongsToTheIndexAskedForWhereverTheRowGoes)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 60);
    scene.addColumn(L"b", 60, true);
    scene.list.AddItem(0, 0, L"x", kOpaque | RGB(200, 0, 0), -1);
    EXPECT_EQ(scene.list.AddItem(7, 0, L"y", kOpaque | RGB(0, 200, 0), -1), 1);
    for (const int row : {0, 1})
        scene.list.SetItemText(row, 1, L".");
    scene.show();
    EXPECT_THAT(shownColour(scene, 1), IsColour(RGB(200, 0, 0))) << "its data is not 7";
    scene.list.SetItemData(1, 7);
    EXPECT_THAT(shownColour(scene, 1), IsColour(RGB(0, 200, 0)));
}

TEST(ListRows, OneThatCannotBeInsertedHasNoColour)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 60);
    scene.addColumn(L"b", 60, true);
    scene.list.AddItem(0, 0, L"x", kOpaque | RGB(200, 0, 0), -1);
    scene.list.AddItem(0, 1, L".", 0, -1);
    EXPECT_EQ(scene.list.AddItem(-1, 0, L"y", kOpaque | RGB(0, 200, 0), -1), -1);
    EXPECT_EQ(scene.list.GetItemCount(), 1);
    scene.list.SetItemData(0, static_cast<DWORD_PTR>(-1));
    scene.show();
    EXPECT_THAT(shownColour(scene, 0), IsColour(0));
}

TEST(ListRows, ACellOfNoRowGivesTheIndexAskedForAndNothingElse)
{
    ListScene scene;
    scene.fill({60, 60}, 1);
    EXPECT_EQ(scene.list.AddItem(7, 1, L"nowhere", 0, -1), 7);
    EXPECT_EQ(scene.list.GetItemCount(), 1);
    EXPECT_EQ(scene.list.GetItemText(0, 1), L"0.1");
}

TEST(ListRows, TheListMayBeDeletedWhenTheParentHearsOfARow)
{
    RecordingParent parent;
    auto* const list = new Perishing<List>;
    list->Create(WS_CHILD, CRect(0, 0, 300, 150), &parent, 7);
    list->UseRowColours(TRUE);
    list->InsertColumn(0, L"c", LVCFMT_LEFT, 60);
    HWND window = nullptr;
    parent.answer(static_cast<UINT>(LVN_INSERTITEM), [&](NMHDR*) -> LRESULT {
        window = list->UnsubclassWindow(); // which the platform goes on with
        delete list;
        return 0;
    });
    EXPECT_EQ(list->AddItem(0, 0, L"x", kOpaque, -1), 0);
    ASSERT_TRUE(window);
    ::DestroyWindow(window);
}

TEST(ListRows, HaveTheirColourAndDataWhateverTheParentRaisesWhenItHearsOfThem)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 60);
    scene.addColumn(L"b", 60, true);
    scene.list.AddItem(0, 0, L"x", kOpaque | RGB(200, 0, 0), -1);
    scene.parent.answer(static_cast<UINT>(LVN_INSERTITEM),
                        [](NMHDR*) -> LRESULT { throw std::runtime_error("host"); });
    EXPECT_THROW(scene.list.AddItem(1, 0, L"y", kOpaque | RGB(0, 200, 0), -1), std::runtime_error);
    scene.parent.answer(static_cast<UINT>(LVN_INSERTITEM), 0);
    ASSERT_EQ(scene.list.GetItemCount(), 2);
    EXPECT_EQ(scene.list.GetItemData(1), 1u);
    scene.list.SetItemText(1, 1, L".");
    scene.show();
    EXPECT_THAT(shownColour(scene, 1), IsColour(RGB(0, 200, 0)));
}

TEST(ListRows, InsertedInFrontShareTheColourOfTheirIndex)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 60);
    scene.addColumn(L"b", 60, true);
    for (const COLORREF colour : {RGB(200, 0, 0), RGB(0, 200, 0)}) {
        scene.list.AddItem(0, 0, L"x", kOpaque | colour, -1);
        scene.list.AddItem(0, 1, L".", 0, -1);
    }
    scene.show();
    EXPECT_THAT(shownColour(scene, 0), IsColour(RGB(0, 200, 0)));
    EXPECT_THAT(shownColour(scene, 1), IsColour(RGB(0, 200, 0)));
}

TEST(ListRows, BeyondTheEndGoToTheEndWithTheDataOfNoRow)
{
    ListScene scene;
    scene.fill({60}, 2);
    EXPECT_EQ(scene.list.AddItem(40, 0, L"last", 0, -1), 2);
    EXPECT_EQ(scene.list.GetItemText(2, 0), L"last");
    EXPECT_EQ(scene.list.GetItemData(2), 0u); // there is no row 40 to set it
}

TEST(ListRows, SettingACellSetsTheRowsData)
{
    ListScene scene;
    scene.fill({60, 60}, 2);
    scene.list.SetItemData(1, 99);
    EXPECT_EQ(scene.list.AddItem(1, 1, L"cell", 0, -1), 1);
    EXPECT_EQ(scene.list.GetItemData(1), 1u);
}

TEST(ListRows, KeepTheirColourThroughSorting)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 60);
    scene.addColumn(L"b", 60, true);
    const COLORREF colours[] = {RGB(200, 0, 0), RGB(0, 200, 0), RGB(0, 0, 200)};
    for (int row = 0; row < 3; ++row) {
        scene.list.AddItem(row, 0, L"x", kOpaque | colours[row], -1);
        scene.list.AddItem(row, 1, L"x", 0, -1);
    }
    scene.show();
    scene.list.SortItems(&byData, static_cast<DWORD_PTR>(-1));
    for (int row = 0; row < 3; ++row)
        EXPECT_THAT(shownColour(scene, row), IsColour(colours[2 - row])) << row;
}

TEST(ListRows, ColoursStayWhenRowsAreDeleted)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 60);
    scene.addColumn(L"b", 60, true);
    scene.list.AddItem(0, 0, L"x", kOpaque | RGB(200, 0, 0), -1);
    scene.list.DeleteAllItems();
    scene.list.UseRowColours(FALSE);
    scene.list.AddItem(0, 0, L"y", kOpaque | RGB(0, 200, 0), -1); // records no colour
    scene.list.AddItem(0, 1, L"y", 0, -1);
    scene.list.UseRowColours(TRUE);
    scene.show();
    EXPECT_THAT(shownColour(scene, 0), IsColour(RGB(200, 0, 0)));
}

TEST(ListRows, APlainColorrefIsTransparent)
{
    ListScene scene;
    scene.list.UseRowColours(TRUE);
    scene.addColumn(L"a", 60);
    scene.addColumn(L"b", 60, true);
    scene.list.AddItem(0, 0, L"x", RGB(200, 0, 0), -1);
    scene.list.AddItem(0, 1, L".", 0, -1);
    scene.show();
    const CRect cell = scene.cell(0, 1);
    const CRect right(cell.left + cell.Width() / 2, cell.top, cell.right, cell.bottom);
    EXPECT_EQ(Picture::ofClient(scene.list).count(RGB(200, 0, 0), 0, right), 0);
}

TEST(ListRows, UseRowColoursRepaintsNothing)
{
    ListScene scene;
    scene.fill({60, 60}, 2);
    scene.show();
    scene.list.drawn.clear();
    scene.list.UseRowColours(TRUE);
    GuiThread::settle();
    EXPECT_TRUE(scene.list.drawn.empty());
}

TEST(ListImages, TheListOfBeforeIsGivenBack)
{
    ListScene scene;
    CImageList one;
    CImageList two;
    fillImages(one, 16, {RGB(0, 0, 0)});
    fillImages(two, 16, {RGB(0, 0, 0)});
    for (const int type : {LVSIL_SMALL, LVSIL_STATE, LVSIL_NORMAL}) {
        EXPECT_EQ(scene.list.SetImageList(&one, type), nullptr);
        EXPECT_EQ(scene.list.SetImageList(&two, type), &one);
        EXPECT_EQ(scene.list.SetImageList(nullptr, type), &two);
        EXPECT_EQ(scene.list.GetImageList(type), nullptr);
    }
}

// Selection

namespace
{

void select(List& list, std::initializer_list<int> rows)
{
    for (const int row : rows)
        list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
}

} // namespace

TEST(ListSelection, TheSelectedRowsInOrder)
{
    ListScene scene;
    scene.fill({60}, 8);
    select(scene.list, {6, 1, 4});
    int rows[8] = {-7, -7, -7, -7, -7, -7, -7, -7};
    EXPECT_EQ(scene.list.GetSelItems(8, rows), 3);
    EXPECT_EQ(rows[0], 1);
    EXPECT_EQ(rows[1], 4);
    EXPECT_EQ(rows[2], 6);
    EXPECT_EQ(rows[3], -7);
}

TEST(ListSelection, ALimitEndsTheList)
{
    ListScene scene;
    scene.fill({60}, 8);
    select(scene.list, {6, 1, 4});
    int rows[3] = {-7, -7, -7};
    EXPECT_EQ(scene.list.GetSelItems(2, rows), 2);
    EXPECT_EQ(rows[1], 4);
    EXPECT_EQ(rows[2], -7);
}

TEST(ListSelection, ALimitOf0StillGivesOne)
{
    ListScene scene;
    scene.fill({60}, 8);
    int rows[2] = {-7, -7};
    EXPECT_EQ(scene.list.GetSelItems(0, rows), 0);
    EXPECT_EQ(rows[0], -7);
    select(scene.list, {3, 5});
    EXPECT_EQ(scene.list.GetSelItems(0, rows), 1);
    EXPECT_EQ(rows[0], 3);
    EXPECT_EQ(rows[1], -7);
}

TEST(ListSelection, ANegativeLimitIsLikeOneOf0)
{
    ListScene scene;
    scene.fill({60}, 8);
    select(scene.list, {3, 5});
    int rows[2] = {-7, -7};
    EXPECT_EQ(scene.list.GetSelItems(-4, rows), 1);
    EXPECT_EQ(rows[0], 3);
    EXPECT_EQ(rows[1], -7);
}

TEST(ListSelection, TheOneSelectedRow)
{
    ListScene scene;
    EXPECT_EQ(scene.list.GetCurSel(), -1);
    scene.fill({60}, 8);
    EXPECT_EQ(scene.list.GetCurSel(), -1);
    select(scene.list, {5});
    EXPECT_EQ(scene.list.GetCurSel(), 5);
    scene.list.SetItemState(2, LVIS_FOCUSED, LVIS_FOCUSED); // the focus elsewhere
    EXPECT_EQ(scene.list.GetCurSel(), 5);
    select(scene.list, {7});
    EXPECT_EQ(scene.list.GetCurSel(), -1);
}

TEST(ListLife, LeavesNothingBehind)
{
    RecordingParent parent;
    const auto life = [&] {
        List list;
        list.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &parent, 7);
        list.UseRowColours(TRUE);
        list.AddColumn(L"a", 0, -1, true, kAllOfColumn, LVCFMT_LEFT);
        list.AddItem(0, 0, L"one", 0x80123456, -1);
        Picture picture(200, 60);
        DRAWITEMSTRUCT draw{};
        draw.hDC = picture.dc();
        list.DrawItem(&draw);
        list.DestroyWindow();
    };
    life();
    const GdiCounter gdi;
    const WindowCounter windows;
    for (int i = 0; i < 100; ++i)
        life();
    EXPECT_EQ(gdi.grown(), 0);
    EXPECT_EQ(windows.grown(), 0);
}
