// Tab controls.
#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

using namespace ovo::testkit;

namespace
{

struct TabCtrlTest : ::testing::Test
{
    TabCtrlTest()
    {
        tabs.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 310, 210), &parent, 7);
        int index = 0;
        for (const wchar_t* text : {L"One", L"Two", L"Three"})
            tabs.InsertItem(index++, text);
        parent.log().clear();
    }

    RecordingParent parent;
    CTabCtrl tabs;
};

} // namespace

TEST_F(TabCtrlTest, EveryWayOfInsertingKeepsWhatWasGiven)
{
    TCITEM item{};
    item.mask = TCIF_TEXT | TCIF_PARAM;
    item.pszText = const_cast<LPWSTR>(L"Struct");
    item.lParam = 5;

    EXPECT_EQ(tabs.InsertItem(0, &item), 0);
    EXPECT_EQ(tabs.InsertItem(4, L"Pictured", 2), 4);
    EXPECT_EQ(tabs.InsertItem(TCIF_TEXT | TCIF_PARAM, 5, L"Full", 0, 77), 5);
    EXPECT_EQ(tabs.InsertItem(TCIF_TEXT | TCIF_STATE, 6, L"State", 0, 0, TCIS_HIGHLIGHTED, TCIS_HIGHLIGHTED),
              6);
    EXPECT_EQ(tabs.GetItemCount(), 7);
    TCITEM got{};
    got.mask = TCIF_PARAM;
    EXPECT_TRUE(tabs.GetItem(5, &got));
    EXPECT_EQ(got.lParam, 77);
    got.mask = TCIF_IMAGE;
    EXPECT_TRUE(tabs.GetItem(4, &got));
    EXPECT_EQ(got.iImage, 2);
}

TEST_F(TabCtrlTest, TheFirstTabIsSelectedAndCodeChangesItSilently)
{
    EXPECT_EQ(tabs.GetCurSel(), 0);
    EXPECT_EQ(tabs.SetCurSel(2), 0);
    EXPECT_EQ(tabs.GetCurSel(), 2);
    EXPECT_EQ(parent.log().count(TCN_SELCHANGE), 0);
    EXPECT_EQ(tabs.GetCurFocus(), 2);
}

TEST_F(TabCtrlTest, FocusSelectsAndTells)
{
    tabs.SetCurFocus(1);

    EXPECT_EQ(tabs.GetCurSel(), 1);
    EXPECT_EQ(parent.log().count(TCN_SELCHANGING), 1);
    EXPECT_EQ(parent.log().count(TCN_SELCHANGE), 1);
}

TEST_F(TabCtrlTest, AClickSelects)
{
    present(parent);
    CRect rect;
    ASSERT_TRUE(tabs.GetItemRect(1, &rect));

    Robot().click(Spot(tabs, rect.CenterPoint()));

    EXPECT_EQ(tabs.GetCurSel(), 1);
    TCHITTESTINFO info{rect.CenterPoint(), 0};
    EXPECT_EQ(tabs.HitTest(&info), 1);
    info.pt = CPoint(150, 150);
    EXPECT_EQ(tabs.HitTest(&info), -1);
}

TEST_F(TabCtrlTest, AdjustRectGoesBothWays)
{
    const CRect page(20, 40, 200, 160);
    CRect rect = page;

    tabs.AdjustRect(TRUE, &rect);
    EXPECT_LT(rect.top, page.top - 10) << "the tabs need room above";
    EXPECT_LT(rect.left, page.left);
    tabs.AdjustRect(FALSE, &rect);
    EXPECT_EQ(rect, page);
}

TEST_F(TabCtrlTest, ItemsAreChangedAndDeleted)
{
    TCITEM item{};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<LPWSTR>(L"Changed");
    wchar_t text[20]{};

    EXPECT_TRUE(tabs.SetItem(1, &item));
    item.pszText = text;
    item.cchTextMax = 20;
    EXPECT_TRUE(tabs.GetItem(1, &item));
    EXPECT_STREQ(item.pszText, L"Changed");
    EXPECT_TRUE(tabs.DeleteItem(0));
    EXPECT_EQ(tabs.GetItemCount(), 2);
    EXPECT_TRUE(tabs.DeleteAllItems());
    EXPECT_EQ(tabs.GetItemCount(), 0);
    EXPECT_EQ(tabs.GetCurSel(), -1);
}

TEST_F(TabCtrlTest, LooksAreKept)
{
    CImageList images;
    images.Create(4, 4, ILC_COLOR24, 1, 1);

    EXPECT_EQ(tabs.SetImageList(&images), nullptr);
    EXPECT_EQ(tabs.GetImageList(), &images);
    EXPECT_EQ(tabs.SetImageList(nullptr), &images);
    EXPECT_EQ(tabs.GetRowCount(), 1);
    tabs.HighlightItem(1);
    EXPECT_TRUE(tabs.GetItemState(1, TCIS_HIGHLIGHTED));
    tabs.SetItemState(1, TCIS_HIGHLIGHTED, 0);
    EXPECT_FALSE(tabs.GetItemState(1, TCIS_HIGHLIGHTED));
}

TEST_F(TabCtrlTest, ItemsHaveTheSizeTheyAreGiven)
{
    CTabCtrl fixed;
    fixed.CreateEx(0, WS_CHILD | WS_VISIBLE | TCS_FIXEDWIDTH, CRect(10, 10, 310, 210), &parent, 8);
    fixed.InsertItem(0, L"One");
    CRect rect;

    fixed.SetItemSize(CSize(77, 33));
    EXPECT_EQ(fixed.SetItemSize(CSize(66, 30)), CSize(77, 33));
    fixed.GetItemRect(0, &rect);
    EXPECT_EQ(rect.Width(), 66);
}
