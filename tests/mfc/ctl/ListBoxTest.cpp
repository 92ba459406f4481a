// List boxes.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

using namespace ovo::testkit;

namespace
{

struct ListBoxTest : ::testing::Test
{
    void create(DWORD style = LBS_NOTIFY)
    {
        ASSERT_TRUE(
            list.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | style, CRect(10, 10, 160, 110), &parent, 7));
    }
    void fill(std::initializer_list<const wchar_t*> texts)
    {
        for (const wchar_t* text : texts)
            list.AddString(text);
    }
    CString textAt(int index)
    {
        CString text;
        list.GetText(index, text);
        return text;
    }

    RecordingParent parent;
    CListBox list;
};

} // namespace

TEST_F(ListBoxTest, KeepsTheOrderOrSorts)
{
    create(LBS_SORT);

    EXPECT_EQ(list.AddString(L"pear"), 0);
    EXPECT_EQ(list.AddString(L"apple"), 0);
    EXPECT_EQ(list.InsertString(-1, L"aardvark"), 2) << "inserting does not sort";
    EXPECT_EQ(list.GetCount(), 3);
    EXPECT_STREQ(textAt(0), L"apple");
    EXPECT_STREQ(textAt(2), L"aardvark");
}

TEST_F(ListBoxTest, TextsComeOutOfAnyLengthAndEmptyForAWrongIndex)
{
    create();
    const CString wide(L'x', 3000);
    list.AddString(wide);
    wchar_t buffer[4000];

    EXPECT_EQ(list.GetTextLen(0), 3000);
    EXPECT_EQ(textAt(0), wide);
    EXPECT_EQ(list.GetText(0, buffer), 3000);
    EXPECT_EQ(list.GetTextLen(5), LB_ERR);
    CString kept(L"old");
    list.GetText(5, kept);
    EXPECT_TRUE(kept.IsEmpty());
}

TEST_F(ListBoxTest, DeletesAndEmpties)
{
    create();
    fill({L"a", L"b", L"c"});

    EXPECT_EQ(list.DeleteString(1), 2);
    EXPECT_STREQ(textAt(1), L"c");
    EXPECT_EQ(list.DeleteString(9), LB_ERR);
    list.ResetContent();
    EXPECT_EQ(list.GetCount(), 0);
}

TEST_F(ListBoxTest, FindsByBeginningOrExactly)
{
    create();
    fill({L"ab", L"abc", L"Ab"});

    EXPECT_EQ(list.FindString(-1, L"AB"), 0);
    EXPECT_EQ(list.FindString(0, L"ab"), 1);
    EXPECT_EQ(list.FindStringExact(0, L"ab"), 2) << "behind the start, whatever the case";
    EXPECT_EQ(list.FindStringExact(-1, L"a"), LB_ERR);
    EXPECT_EQ(list.SelectString(0, L"ab"), 1);
    EXPECT_EQ(list.GetCurSel(), 1);
}

TEST_F(ListBoxTest, ItemsCarryData)
{
    create();
    fill({L"a"});
    int thing = 0;

    EXPECT_NE(list.SetItemData(0, 12345), LB_ERR);
    EXPECT_EQ(list.GetItemData(0), 12345u);
    list.SetItemDataPtr(0, &thing);
    EXPECT_EQ(list.GetItemDataPtr(0), &thing);
    EXPECT_EQ(list.GetItemData(3), static_cast<DWORD_PTR>(LB_ERR));
}

TEST_F(ListBoxTest, AClickSelectsAndIsTold)
{
    create();
    fill({L"a", L"b", L"c"});
    present(parent);
    CRect rect;
    list.GetItemRect(1, &rect);

    Robot().click(Spot(list, rect.CenterPoint()));

    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_EQ(parent.log().count(LBN_SELCHANGE), 1);
    EXPECT_NE(list.SetCurSel(2), LB_ERR);
    EXPECT_EQ(parent.log().count(LBN_SELCHANGE), 1) << "no notification for what code does";
    list.SetCurSel(-1);
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
}

TEST_F(ListBoxTest, ManyCanBeSelected)
{
    create(LBS_EXTENDEDSEL);
    fill({L"a", L"b", L"c", L"d"});
    int selected[4]{};

    list.SetSel(0);
    list.SelItemRange(TRUE, 2, 3);
    EXPECT_EQ(list.GetSelCount(), 3);
    EXPECT_EQ(list.GetSelItems(4, selected), 3);
    EXPECT_EQ(selected[1], 2);
    EXPECT_GT(list.GetSel(3), 0);
    EXPECT_EQ(list.GetSel(1), 0);
    list.SetSel(-1, FALSE);
    EXPECT_EQ(list.GetSelCount(), 0);
    list.SetCaretIndex(2);
    EXPECT_EQ(list.GetCaretIndex(), 2);
    list.SetAnchorIndex(1);
    EXPECT_EQ(list.GetAnchorIndex(), 1);
}

TEST_F(ListBoxTest, ScrollsAndFindsItemsByPoint)
{
    create();
    for (int i = 0; i < 50; ++i)
        list.AddString(L"item");
    BOOL outside = TRUE;

    list.SetTopIndex(20);
    EXPECT_EQ(list.GetTopIndex(), 20);
    const int height = list.GetItemHeight(0);
    EXPECT_EQ(list.ItemFromPoint(CPoint(5, height + height / 2), outside), 21u);
    EXPECT_FALSE(outside);
    list.ItemFromPoint(CPoint(5, 5000), outside);
    EXPECT_TRUE(outside);
    CRect rect;
    EXPECT_NE(list.GetItemRect(20, &rect), LB_ERR);
    EXPECT_EQ(rect.top, 0);
    EXPECT_EQ(rect.Height(), height);
}

TEST_F(ListBoxTest, TheHorizontalExtentIsKept)
{
    create(WS_HSCROLL);

    list.SetHorizontalExtent(500);
    EXPECT_EQ(list.GetHorizontalExtent(), 500);
}
