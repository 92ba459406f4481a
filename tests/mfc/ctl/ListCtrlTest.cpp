// List views.
#include "resource.h"

#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

using namespace ovo::testkit;

namespace
{

/// A report with two columns and three rows.
struct ListCtrlTest : ::testing::Test
{
    ListCtrlTest()
    {
        list.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | LVS_REPORT | LVS_SHOWSELALWAYS | LVS_EDITLABELS |
                        LVS_SHAREIMAGELISTS,
                    CRect(10, 10, 310, 210), &parent, 7);
        list.InsertColumn(0, L"Name", LVCFMT_LEFT, 100);
        list.InsertColumn(1, L"Value", LVCFMT_RIGHT, 80, 1);
        int row = 0;
        for (const wchar_t* text : {L"one", L"two", L"three"})
            list.InsertItem(row++, text);
        parent.log().clear();
    }

    RecordingParent parent;
    CListCtrl list;
};

} // namespace

TEST_F(ListCtrlTest, EveryWayOfInsertingPutsTheItemInItsPlace)
{
    LVITEM item{};
    item.mask = LVIF_TEXT;
    item.iItem = 0;
    item.pszText = const_cast<LPWSTR>(L"zero");

    EXPECT_EQ(list.InsertItem(&item), 0);
    EXPECT_EQ(list.InsertItem(4, L"pictured", 2), 4);
    EXPECT_EQ(
        list.InsertItem(LVIF_TEXT | LVIF_PARAM | LVIF_STATE, 5, L"full", LVIS_SELECTED, LVIS_SELECTED, 0, 99),
        5);
    EXPECT_EQ(list.GetItemCount(), 6);
    EXPECT_STREQ(list.GetItemText(0, 0), L"zero");
    EXPECT_EQ(list.GetItemData(5), 99u);
    EXPECT_EQ(list.GetItemState(5, LVIS_SELECTED), static_cast<UINT>(LVIS_SELECTED));
    LVITEM got{};
    got.mask = LVIF_IMAGE;
    got.iItem = 4;
    EXPECT_TRUE(list.GetItem(&got));
    EXPECT_EQ(got.iImage, 2);
}

TEST_F(ListCtrlTest, TextsOfAnyLengthGoInAndOut)
{
    const CString wide(L'w', 2000);
    wchar_t buffer[10];

    EXPECT_TRUE(list.SetItemText(1, 1, wide));
    EXPECT_EQ(list.GetItemText(1, 1), wide);
    EXPECT_EQ(list.GetItemText(1, 1, buffer, 10), 9);
    EXPECT_STREQ(buffer, L"wwwwwwwww");
    EXPECT_STREQ(list.GetItemText(2, 1), L"");
    EXPECT_TRUE(list.SetItem(2, 1, LVIF_TEXT, L"cell", 0, 0, 0, 0));
    EXPECT_STREQ(list.GetItemText(2, 1), L"cell");
}

TEST_F(ListCtrlTest, DataAndStatesAreKept)
{
    EXPECT_TRUE(list.SetItemData(0, 0x123456789A));
    EXPECT_EQ(list.GetItemData(0), 0x123456789Au);
    EXPECT_TRUE(list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED));
    EXPECT_EQ(list.GetSelectedCount(), 1u);
    EXPECT_EQ(list.GetNextItem(-1, LVNI_FOCUSED), 1);
    EXPECT_GE(parent.log().count(LVN_ITEMCHANGED), 1);
    list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    EXPECT_FALSE(list.GetCheck(0));
    EXPECT_TRUE(list.SetCheck(0));
    EXPECT_TRUE(list.GetCheck(0));
}

TEST_F(ListCtrlTest, SelectedItemsAreWalkedByPosition)
{
    EXPECT_EQ(list.GetFirstSelectedItemPosition(), nullptr);
    list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    std::vector<int> selected;

    for (POSITION position = list.GetFirstSelectedItemPosition(); position;)
        selected.push_back(list.GetNextSelectedItem(position));

    EXPECT_EQ(selected, (std::vector<int>{0, 2})) << "the item 0 is no end";
}

TEST_F(ListCtrlTest, ColumnsAreInsertedAskedAndChanged)
{
    LVCOLUMN column{};
    wchar_t text[20]{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
    column.pszText = text;
    column.cchTextMax = 20;

    ASSERT_TRUE(list.GetColumn(1, &column));
    EXPECT_STREQ(column.pszText, L"Value");
    EXPECT_EQ(column.cx, 80);
    EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_RIGHT);
    EXPECT_EQ(list.GetColumnWidth(0), 100);
    EXPECT_TRUE(list.SetColumnWidth(0, 55));
    EXPECT_EQ(list.GetColumnWidth(0), 55);
    column.mask = LVCF_TEXT;
    column.pszText = const_cast<LPWSTR>(L"New");
    EXPECT_TRUE(list.SetColumn(1, &column));
    EXPECT_EQ(list.InsertColumn(2, L"Third"), 2);
    EXPECT_TRUE(list.DeleteColumn(2));
    int order[2]{};
    EXPECT_TRUE(list.GetColumnOrderArray(order));
    EXPECT_EQ(order[1], 1);
    int turned[] = {1, 0};
    EXPECT_TRUE(list.SetColumnOrderArray(2, turned));
    list.GetColumnOrderArray(order, 2);
    EXPECT_EQ(order[0], 1);
}

TEST_F(ListCtrlTest, AColumnFitsItself)
{
    list.SetItemText(0, 0, L"a text that needs room");

    EXPECT_TRUE(list.SetColumnWidth(0, LVSCW_AUTOSIZE));

    EXPECT_GE(list.GetColumnWidth(0), list.GetStringWidth(L"a text that needs room"));
}

TEST_F(ListCtrlTest, TheHeaderIsThere)
{
    CHeaderCtrl* header = list.GetHeaderCtrl();

    ASSERT_NE(header, nullptr);
    EXPECT_EQ(header->GetItemCount(), 2);
    EXPECT_EQ(header->OrderToIndex(1), 1);
}

TEST_F(ListCtrlTest, PlacesOfRowsAndCells)
{
    CRect row;
    CRect label;
    CRect cell;

    ASSERT_TRUE(list.GetItemRect(1, &row, LVIR_BOUNDS));
    ASSERT_TRUE(list.GetItemRect(1, &label, LVIR_LABEL));
    ASSERT_TRUE(list.GetSubItemRect(1, 1, LVIR_BOUNDS, cell));
    EXPECT_LT(label.Width(), row.Width());
    EXPECT_EQ(cell.left, 100);
    EXPECT_EQ(cell.Width(), 80);
    EXPECT_EQ(cell.top, row.top);
    UINT flags = 0;
    EXPECT_EQ(list.HitTest(CPoint(label.left + 3, row.CenterPoint().y), &flags), 1);
    EXPECT_TRUE(flags & LVHT_ONITEM);
    LVHITTESTINFO info{};
    info.pt = cell.CenterPoint();
    EXPECT_EQ(list.SubItemHitTest(&info), 1);
    EXPECT_EQ(info.iSubItem, 1);
    EXPECT_EQ(list.HitTest(CPoint(5, 190)), -1);
}

TEST_F(ListCtrlTest, AClickSelectsTheRow)
{
    present(parent);
    CRect label;
    list.GetItemRect(2, &label, LVIR_LABEL);

    Robot().click(Spot(list, CPoint(label.left + 4, label.CenterPoint().y)));

    EXPECT_EQ(list.GetNextItem(-1, LVNI_SELECTED), 2);
    EXPECT_EQ(list.GetSelectionMark(), 2);
}

TEST_F(ListCtrlTest, FindsAndSorts)
{
    LVFINDINFO find{};
    find.flags = LVFI_STRING;
    find.psz = L"three";
    EXPECT_EQ(list.FindItem(&find), 2);
    find.psz = L"none";
    EXPECT_EQ(list.FindItem(&find), -1);

    for (int i = 0; i < 3; ++i)
        list.SetItemData(i, static_cast<DWORD_PTR>(i));
    EXPECT_TRUE(list.SortItems(
        [](LPARAM one, LPARAM other, LPARAM sign) -> int { return static_cast<int>((one - other) * sign); },
        static_cast<DWORD_PTR>(-1)));
    EXPECT_STREQ(list.GetItemText(0, 0), L"three");
}

TEST_F(ListCtrlTest, ScrollsRowsIntoView)
{
    for (int i = 3; i < 100; ++i)
        list.InsertItem(i, L"more");

    EXPECT_EQ(list.GetTopIndex(), 0);
    EXPECT_TRUE(list.EnsureVisible(99, FALSE));
    EXPECT_EQ(list.GetTopIndex(), 100 - list.GetCountPerPage());
    EXPECT_TRUE(list.DeleteItem(99));
    EXPECT_TRUE(list.DeleteAllItems());
    EXPECT_EQ(list.GetItemCount(), 0);
}

TEST_F(ListCtrlTest, ALabelIsEditedInAControlOfItsOwn)
{
    present(parent);
    list.SetFocus();
    parent.answer(LVN_ENDLABELEDITW, TRUE);

    CEdit* edit = list.EditLabel(0);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(list.GetEditControl(), edit);
    edit->SetWindowText(L"uno");
    edit->SendMessage(WM_KEYDOWN, VK_RETURN);
    EXPECT_STREQ(list.GetItemText(0, 0), L"uno");
}

TEST_F(ListCtrlTest, LooksAreKept)
{
    CImageList images;
    images.Create(IDB_SQUARES, 4, 1, CLR_NONE);

    EXPECT_EQ(list.SetImageList(&images, LVSIL_SMALL), nullptr);
    EXPECT_EQ(list.GetImageList(LVSIL_SMALL), &images);
    EXPECT_EQ(list.SetImageList(nullptr, LVSIL_SMALL), &images);
    EXPECT_TRUE(list.SetBkColor(RGB(1, 2, 3)));
    EXPECT_EQ(list.GetBkColor(), RGB(1, 2, 3));
    EXPECT_TRUE(list.SetTextColor(RGB(4, 5, 6)));
    EXPECT_EQ(list.GetTextColor(), RGB(4, 5, 6));
    EXPECT_TRUE(list.SetTextBkColor(RGB(7, 8, 9)));
    EXPECT_EQ(list.GetTextBkColor(), RGB(7, 8, 9));
    EXPECT_EQ(list.SetExtendedStyle(LVS_EX_FULLROWSELECT), 0u);
    EXPECT_EQ(list.GetExtendedStyle(), static_cast<DWORD>(LVS_EX_FULLROWSELECT));
    list.SetHoverTime(123);
    EXPECT_EQ(list.GetHoverTime(), 123u);
    EXPECT_GT(list.GetStringWidth(L"wide"), list.GetStringWidth(L"w"));
}

TEST_F(ListCtrlTest, SetImageListGoesThroughTheWindowsOwnMessage)
{
    /// A list that looks at the message itself.
    class Watching : public CListCtrl
    {
    public:
        int seen = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            seen += message == LVM_SETIMAGELIST;
            return CListCtrl::WindowProc(message, wParam, lParam);
        }
    } watching;
    watching.Create(WS_CHILD | LVS_REPORT | LVS_SHAREIMAGELISTS, CRect(0, 0, 50, 50), &parent, 8);
    CImageList images;
    images.Create(4, 4, ILC_COLOR24, 1, 1);

    watching.SetImageList(&images, LVSIL_SMALL);

    EXPECT_EQ(watching.seen, 1);
}

TEST(ListView, IconViewHasSpacingAndPositions)
{
    RecordingParent parent;
    CListCtrl list;
    ASSERT_TRUE(list.CreateEx(WS_EX_CLIENTEDGE, WS_CHILD | WS_VISIBLE | LVS_ICON, CRect(10, 10, 310, 210),
                              &parent, 7));
    list.InsertItem(0, L"icon");
    CPoint place;
    int horizontal = 0;
    int vertical = 0;

    list.SetIconSpacing(90, 80);
    EXPECT_TRUE(list.GetItemSpacing(FALSE, &horizontal, &vertical));
    EXPECT_EQ(horizontal, 90);
    EXPECT_EQ(vertical, 80);
    EXPECT_TRUE(list.SetItemPosition(0, CPoint(120, 60)));
    EXPECT_TRUE(list.GetItemPosition(0, &place));
    EXPECT_EQ(place, CPoint(120, 60));
    EXPECT_EQ(list.SetView(LV_VIEW_DETAILS), 1u);
    EXPECT_EQ(list.GetView(), static_cast<DWORD>(LV_VIEW_DETAILS));
}

TEST(ListView, AVirtualListAsksForItsTexts)
{
    RecordingParent parent;
    CListCtrl list;
    list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, CRect(10, 10, 310, 210), &parent, 7);
    list.InsertColumn(0, L"Name", LVCFMT_LEFT, 100);
    parent.answer(LVN_GETDISPINFOW, [](NMHDR* header) {
        auto& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
        if (item.mask & LVIF_TEXT)
            ::lstrcpynW(item.pszText, std::to_wstring(item.iItem).c_str(), item.cchTextMax);
        return 0;
    });

    EXPECT_TRUE(list.SetItemCountEx(100000));

    EXPECT_EQ(list.GetItemCount(), 100000);
    EXPECT_STREQ(list.GetItemText(54321, 0), L"54321");
}
