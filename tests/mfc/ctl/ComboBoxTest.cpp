// Combo boxes.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

using namespace ovo::testkit;

namespace
{

struct ComboBoxTest : ::testing::Test
{
    void create(DWORD style = CBS_DROPDOWN)
    {
        ASSERT_TRUE(
            combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | style, CRect(10, 10, 160, 200), &parent, 7));
        for (const wchar_t* text : {L"ab", L"abc", L"Ab"})
            combo.AddString(text);
        parent.log().clear();
    }
    CString textAt(int index)
    {
        CString text;
        combo.GetLBText(index, text);
        return text;
    }
    CString text()
    {
        CString text;
        combo.GetWindowText(text);
        return text;
    }

    RecordingParent parent;
    CComboBox combo;
};

} // namespace

TEST_F(ComboBoxTest, ItemsGoInAndComeOut)
{
    create();

    EXPECT_EQ(combo.GetCount(), 3);
    EXPECT_EQ(combo.InsertString(1, L"new"), 1);
    EXPECT_STREQ(textAt(1), L"new");
    EXPECT_EQ(combo.GetLBTextLen(1), 3);
    EXPECT_EQ(combo.DeleteString(1), 3);
    EXPECT_EQ(combo.GetLBTextLen(9), CB_ERR);
    CString kept(L"old");
    combo.GetLBText(9, kept);
    EXPECT_TRUE(kept.IsEmpty());
    combo.ResetContent();
    EXPECT_EQ(combo.GetCount(), 0);
}

TEST_F(ComboBoxTest, SearchesByBeginningOrExactly)
{
    create();

    EXPECT_EQ(combo.FindString(-1, L"abc"), 1);
    EXPECT_EQ(combo.FindString(0, L"AB"), 1);
    EXPECT_EQ(combo.FindStringExact(0, L"ab"), 2);
    EXPECT_EQ(combo.FindStringExact(-1, L"a"), CB_ERR);
    EXPECT_EQ(combo.SelectString(0, L"abc"), 1);
    EXPECT_STREQ(text(), L"abc");
}

TEST_F(ComboBoxTest, TheSelectionFillsTheField)
{
    create();

    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
    EXPECT_EQ(combo.SetCurSel(1), 1);
    EXPECT_STREQ(text(), L"abc");
    EXPECT_EQ(parent.log().count(CBN_SELCHANGE), 0) << "no notification for what code does";
    combo.SetCurSel(-1);
    EXPECT_STREQ(text(), L"");
}

TEST_F(ComboBoxTest, TheEditFieldHasASelectionAndALimit)
{
    create();
    combo.SetWindowText(L"0123456789");

    EXPECT_TRUE(combo.SetEditSel(2, 6));
    EXPECT_EQ(combo.GetEditSel(), static_cast<DWORD>(MAKELONG(2, 6)));
    combo.Clear();
    EXPECT_STREQ(text(), L"016789");
    combo.SetEditSel(0, -1);
    EXPECT_EQ(combo.GetEditSel(), static_cast<DWORD>(MAKELONG(0, 6)));
    combo.LimitText(4);
    combo.Copy();
    combo.Cut();
    EXPECT_STREQ(text(), L"");
    combo.Paste();
    EXPECT_STREQ(text(), L"0167") << "the limit holds";
}

TEST_F(ComboBoxTest, ItemsCarryData)
{
    create();
    int thing = 0;

    combo.SetItemData(0, 99);
    EXPECT_EQ(combo.GetItemData(0), 99u);
    combo.SetItemDataPtr(1, &thing);
    EXPECT_EQ(combo.GetItemDataPtr(1), &thing);
}

TEST_F(ComboBoxTest, DropsDownAndTellsOfIt)
{
    create();
    present(parent);
    CRect rect;

    combo.ShowDropDown();
    EXPECT_TRUE(combo.GetDroppedState());
    EXPECT_EQ(parent.log().count(CBN_DROPDOWN), 1);
    combo.GetDroppedControlRect(&rect);
    EXPECT_GT(rect.Height(), 0);
    combo.ShowDropDown(FALSE);
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(parent.log().count(CBN_CLOSEUP), 1);
}

TEST_F(ComboBoxTest, TheUserChoosesFromTheList)
{
    create(CBS_DROPDOWNLIST);
    present(parent);

    Robot().click(Spot(combo, CPoint(20, 8))).key(VK_DOWN, 2).key(VK_RETURN);

    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_GE(parent.log().count(CBN_SELCHANGE), 1);
    EXPECT_EQ(parent.log().count(CBN_SELENDOK), 1);
}

TEST_F(ComboBoxTest, HeightsAndWidthsAreKept)
{
    create(CBS_DROPDOWN | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS);

    EXPECT_NE(combo.SetItemHeight(0, 31), CB_ERR);
    EXPECT_EQ(combo.GetItemHeight(0), 31);
    EXPECT_NE(combo.SetItemHeight(-1, 25), CB_ERR);
    const int field = combo.GetItemHeight(-1);
    combo.SetItemHeight(-1, 35);
    EXPECT_EQ(combo.GetItemHeight(-1), field + 10);
    combo.SetDroppedWidth(300);
    EXPECT_EQ(combo.GetDroppedWidth(), 300);
    combo.SetExtendedUI();
    EXPECT_TRUE(combo.GetExtendedUI());
    EXPECT_TRUE(combo.SetMinVisibleItems(5));
    EXPECT_EQ(combo.GetMinVisible(), 5);
    combo.SetHorizontalExtent(400);
    EXPECT_EQ(combo.GetHorizontalExtent(), 400u);
}

TEST_F(ComboBoxTest, TheInfoNamesTheParts)
{
    create();
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;

    ASSERT_TRUE(combo.GetComboBoxInfo(&info));
    EXPECT_EQ(info.hwndCombo, combo.m_hWnd);
    EXPECT_EQ(::GetParent(info.hwndItem), combo.m_hWnd);
}
