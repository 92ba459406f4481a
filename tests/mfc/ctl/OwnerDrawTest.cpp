// Controls that draw themselves: the parent hands the messages back to them.
#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Desktop.h>
#include <testkit/GuiThread.h>
#include <testkit/Picture.h>
#include <testkit/RecordingParent.h>

using namespace ovo::testkit;

namespace
{

constexpr COLORREF kPaint = RGB(10, 200, 30);

/// Any control that fills what it has to draw, and takes down the items.
template <class Control>
class Painted : public Control
{
public:
    std::vector<UINT> drawn;

    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        drawn.push_back(item->itemID);
        CDC::FromHandle(item->hDC)->FillSolidRect(&item->rcItem, kPaint);
    }
};

/// A list or combo that answers all four messages.
template <class Control>
class SelfMade : public Painted<Control>
{
public:
    int measured = 0;
    int compared = 0;
    std::vector<ULONG_PTR> deleted;

    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        ++measured;
        item->itemHeight = 23;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT items) override
    {
        ++compared;
        return items->itemData1 < items->itemData2 ? -1 : items->itemData1 > items->itemData2;
    }
    void DeleteItem(LPDELETEITEMSTRUCT item) override { deleted.push_back(item->itemData); }
};

int painted(const CWnd& control)
{
    return Picture::ofClient(control.m_hWnd).count(kPaint);
}

} // namespace

TEST(OwnerDraw, AButtonDrawsItself)
{
    RecordingParent parent;
    Painted<CButton> button;
    button.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(10, 10, 60, 40), &parent, 7);
    present(parent);

    EXPECT_FALSE(button.drawn.empty());
    EXPECT_EQ(painted(button), 50 * 30);
}

TEST(OwnerDraw, AStaticDrawsItself)
{
    RecordingParent parent;
    Painted<CStatic> picture;
    picture.Create(L"", WS_CHILD | WS_VISIBLE | SS_OWNERDRAW, CRect(10, 10, 60, 40), &parent, 7);
    present(parent);

    EXPECT_EQ(painted(picture), 50 * 30);
}

TEST(OwnerDraw, AListBoxDrawsMeasuresSortsAndDeletes)
{
    RecordingParent parent;
    SelfMade<CListBox> list;
    list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWVARIABLE | LBS_SORT, CRect(10, 10, 110, 110), &parent,
                7);
    for (const UINT_PTR data : {30, 10, 20})
        list.AddString(reinterpret_cast<LPCTSTR>(data));
    present(parent);

    EXPECT_EQ(list.measured, 3);
    EXPECT_EQ(list.GetItemHeight(0), 23);
    EXPECT_GE(list.compared, 2);
    EXPECT_EQ(list.GetItemData(0), 10u);
    EXPECT_EQ(list.GetItemData(2), 30u);
    EXPECT_THAT(list.drawn, ::testing::IsSupersetOf({0u, 1u, 2u}));
    EXPECT_GE(painted(list), 90 * 3 * 23);

    list.DeleteString(1);
    EXPECT_EQ(list.deleted, (std::vector<ULONG_PTR>{20}));
    list.ResetContent();
    EXPECT_EQ(list.deleted.size(), 3u);
}

TEST(OwnerDraw, AComboBoxDrawsMeasuresSortsAndDeletes)
{
    RecordingParent parent;
    SelfMade<CComboBox> combo;
    combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_SORT,
                 CRect(10, 10, 110, 200), &parent, 7);
    for (const UINT_PTR data : {30, 10, 20})
        combo.AddString(reinterpret_cast<LPCTSTR>(data));
    combo.SetCurSel(1);
    present(parent);

    EXPECT_GE(combo.measured, 3);
    EXPECT_EQ(combo.GetItemHeight(0), 23);
    EXPECT_EQ(combo.GetItemData(0), 10u);
    EXPECT_THAT(combo.drawn, ::testing::Contains(1u)) << "the field shows the selected item";
    combo.DeleteString(0);
    EXPECT_EQ(combo.deleted, (std::vector<ULONG_PTR>{10}));
}

TEST(OwnerDraw, AnOrdinaryListBoxNeedsNoDeleteItem)
{
    RecordingParent parent;
    CListBox list;
    list.Create(WS_CHILD | LBS_OWNERDRAWFIXED, CRect(0, 0, 50, 50), &parent, 7);
    list.AddString(reinterpret_cast<LPCTSTR>(UINT_PTR{1}));

    list.ResetContent();

    EXPECT_EQ(list.GetCount(), 0);
}

TEST(OwnerDraw, AListViewDrawsItsRows)
{
    RecordingParent parent;
    Painted<CListCtrl> list;
    list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDRAWFIXED | LVS_NOCOLUMNHEADER,
                CRect(10, 10, 210, 110), &parent, 7);
    list.InsertColumn(0, L"Only", LVCFMT_LEFT, 150);
    list.InsertItem(0, L"first");
    list.InsertItem(1, L"second");
    present(parent);

    EXPECT_THAT(list.drawn, ::testing::IsSupersetOf({0u, 1u}));
    EXPECT_GT(painted(list), 100);
}

TEST(OwnerDraw, ATabControlDrawsItsTabs)
{
    RecordingParent parent;
    Painted<CTabCtrl> tabs;
    tabs.Create(WS_CHILD | WS_VISIBLE | TCS_OWNERDRAWFIXED, CRect(10, 10, 210, 110), &parent, 7);
    tabs.InsertItem(0, L"One");
    tabs.InsertItem(1, L"Two");
    present(parent);

    EXPECT_THAT(tabs.drawn, ::testing::IsSupersetOf({0u, 1u}));
    EXPECT_GT(painted(tabs), 100);
}

TEST(OwnerDraw, AHeaderDrawsItsItems)
{
    RecordingParent parent;
    Painted<CHeaderCtrl> header;
    header.Create(WS_CHILD | WS_VISIBLE | HDS_HORZ, CRect(10, 10, 210, 30), &parent, 7);
    HDITEM item{};
    item.mask = HDI_WIDTH | HDI_FORMAT;
    item.cxy = 60;
    item.fmt = HDF_OWNERDRAW;
    header.InsertItem(0, &item);
    present(parent);

    // Wine's header paints over it afterwards.
    EXPECT_THAT(header.drawn, ::testing::Contains(0u));
}

TEST(OwnerDraw, AStatusBarDrawsItsPanes)
{
    RecordingParent parent;
    Painted<CStatusBarCtrl> bar;
    bar.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &parent, 7);
    bar.SetText(L"x", 0, SBT_OWNERDRAW);
    present(parent);

    EXPECT_THAT(bar.drawn, ::testing::Contains(0u));
    EXPECT_GT(painted(bar), 100);
}

TEST(OwnerDraw, TheParentMayDrawInsteadOfTheControl)
{
    class Parent : public RecordingParent
    {
    public:
        int drawn = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_DRAWITEM)
                return RecordingParent::WindowProc(message, wParam, lParam);
            ++drawn;
            return TRUE;
        }
    } parent;
    Painted<CButton> button;
    button.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(10, 10, 60, 40), &parent, 7);
    present(parent);

    EXPECT_GT(parent.drawn, 0);
    EXPECT_TRUE(button.drawn.empty());
}

TEST(OwnerDraw, AListBoxMayTakeKeysItself)
{
    class Keys : public CListBox
    {
    public:
        std::vector<UINT> keys;

        int VKeyToItem(UINT key, UINT) override
        {
            keys.push_back(key);
            return -2; // nothing more to be done
        }
    } list;
    RecordingParent parent;
    list.Create(WS_CHILD | WS_VISIBLE | LBS_WANTKEYBOARDINPUT | LBS_NOTIFY, CRect(10, 10, 110, 110), &parent,
                7);
    list.AddString(L"a");
    list.AddString(L"b");
    list.SetCurSel(0);

    list.SendMessage(WM_KEYDOWN, VK_DOWN);

    EXPECT_EQ(list.keys, (std::vector<UINT>{VK_DOWN}));
    EXPECT_EQ(list.GetCurSel(), 0);
}

TEST(OwnerDraw, WithoutAnOverrideTheListBoxActsAsUsual)
{
    RecordingParent parent;
    CListBox list;
    list.Create(WS_CHILD | WS_VISIBLE | LBS_WANTKEYBOARDINPUT, CRect(10, 10, 110, 110), &parent, 7);
    list.AddString(L"a");
    list.AddString(L"b");
    list.SetCurSel(0);

    list.SendMessage(WM_KEYDOWN, VK_DOWN);

    EXPECT_EQ(list.GetCurSel(), 1);
}
