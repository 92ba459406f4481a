// Tree views.
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

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_BORDER | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT |
                         TVS_SHOWSELALWAYS | TVS_EDITLABELS;

/// A tree with the items a (with a1 and a2), b and c.
struct TreeCtrlTest : ::testing::Test
{
    TreeCtrlTest() { build(tree); }

    void build(CTreeCtrl& control)
    {
        control.Create(kStyle, CRect(10, 10, 210, 210), &parent, 7);
        a = control.InsertItem(L"a");
        b = control.InsertItem(L"b");
        c = control.InsertItem(L"c");
        a1 = control.InsertItem(L"a1", a);
        a2 = control.InsertItem(L"a2", a);
        parent.log().clear();
    }

    RecordingParent parent;
    CTreeCtrl tree;
    HTREEITEM a = nullptr;
    HTREEITEM b = nullptr;
    HTREEITEM c = nullptr;
    HTREEITEM a1 = nullptr;
    HTREEITEM a2 = nullptr;
};

/// Hears its own notifications before its parent does.
class ListeningTree : public CTreeCtrl
{
public:
    std::vector<HTREEITEM> expanding;
    std::vector<HTREEITEM> selected;
    bool keepsSelection = false;

protected:
    afx_msg void OnExpanding(NMHDR* header, LRESULT* result)
    {
        expanding.push_back(reinterpret_cast<NMTREEVIEW*>(header)->itemNew.hItem);
        *result = FALSE;
    }
    afx_msg BOOL OnSelected(NMHDR* header, LRESULT*)
    {
        selected.push_back(reinterpret_cast<NMTREEVIEW*>(header)->itemNew.hItem);
        return keepsSelection;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ListeningTree, CTreeCtrl)
    ON_NOTIFY_REFLECT(TVN_ITEMEXPANDINGW, &ListeningTree::OnExpanding)
    ON_NOTIFY_REFLECT_EX(TVN_SELCHANGEDW, &ListeningTree::OnSelected)
END_MESSAGE_MAP()

} // namespace

TEST_F(TreeCtrlTest, ItemsAreWalkedInAllDirections)
{
    EXPECT_EQ(tree.GetRootItem(), a);
    EXPECT_EQ(tree.GetNextSiblingItem(a), b);
    EXPECT_EQ(tree.GetPrevSiblingItem(c), b);
    EXPECT_EQ(tree.GetChildItem(a), a1);
    EXPECT_EQ(tree.GetParentItem(a2), a);
    EXPECT_EQ(tree.GetParentItem(a), nullptr);
    EXPECT_EQ(tree.GetNextSiblingItem(c), nullptr);
    EXPECT_EQ(tree.GetCount(), 5u);
    EXPECT_TRUE(tree.ItemHasChildren(a));
    EXPECT_FALSE(tree.ItemHasChildren(b));
}

TEST_F(TreeCtrlTest, VisibleItemsDependOnWhatIsOpen)
{
    EXPECT_EQ(tree.GetFirstVisibleItem(), a);
    EXPECT_EQ(tree.GetNextVisibleItem(a), b);
    EXPECT_TRUE(tree.Expand(a, TVE_EXPAND));
    EXPECT_EQ(tree.GetNextVisibleItem(a), a1);
    EXPECT_EQ(tree.GetPrevVisibleItem(b), a2);
    EXPECT_EQ(tree.GetLastVisibleItem(), c);
    EXPECT_TRUE(tree.Expand(a, TVE_COLLAPSE));
    EXPECT_EQ(tree.GetNextVisibleItem(a), b);
    EXPECT_GT(tree.GetVisibleCount(), 3u);
}

TEST_F(TreeCtrlTest, EveryWayOfInsertingPutsTheItemInItsPlace)
{
    const HTREEITEM first = tree.InsertItem(L"first", TVI_ROOT, TVI_FIRST);
    const HTREEITEM pictured = tree.InsertItem(L"pictured", 3, 4, b, TVI_LAST);
    const HTREEITEM full = tree.InsertItem(TVIF_TEXT | TVIF_PARAM | TVIF_STATE, L"full", 0, 0, TVIS_BOLD,
                                           TVIS_BOLD, 77, TVI_ROOT, a);
    TVINSERTSTRUCT insert{};
    insert.hParent = c;
    insert.hInsertAfter = TVI_SORT;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = const_cast<LPWSTR>(L"struct");
    const HTREEITEM byStruct = tree.InsertItem(&insert);
    int image = 0;
    int selectedImage = 0;

    EXPECT_EQ(tree.GetRootItem(), first);
    EXPECT_EQ(tree.GetNextSiblingItem(a), full);
    EXPECT_EQ(tree.GetItemData(full), 77u);
    EXPECT_EQ(tree.GetItemState(full, TVIS_BOLD), static_cast<UINT>(TVIS_BOLD));
    EXPECT_TRUE(tree.GetItemImage(pictured, image, selectedImage));
    EXPECT_EQ(image, 3);
    EXPECT_EQ(selectedImage, 4);
    EXPECT_EQ(tree.GetParentItem(byStruct), c);
}

TEST_F(TreeCtrlTest, DeletingAnItemTakesItsChildrenAlong)
{
    EXPECT_TRUE(tree.DeleteItem(a));
    EXPECT_EQ(tree.GetCount(), 2u);
    EXPECT_EQ(parent.log().count(TVN_DELETEITEMW), 3);
    EXPECT_TRUE(tree.DeleteAllItems());
    EXPECT_EQ(tree.GetRootItem(), nullptr);
}

TEST_F(TreeCtrlTest, PartsOfAnItemAreSetAndGot)
{
    const CString wide(L'w', 3000);

    EXPECT_TRUE(tree.SetItemText(b, wide));
    EXPECT_EQ(tree.GetItemText(b), wide) << "of any length";
    EXPECT_TRUE(tree.SetItemText(b, L""));
    EXPECT_STREQ(tree.GetItemText(b), L"");
    EXPECT_TRUE(tree.SetItemData(b, 0x123456789A));
    EXPECT_EQ(tree.GetItemData(b), 0x123456789Au);
    EXPECT_TRUE(tree.SetItemState(b, TVIS_CUT, TVIS_CUT | TVIS_BOLD));
    EXPECT_EQ(tree.GetItemState(b, TVIS_CUT | TVIS_BOLD), static_cast<UINT>(TVIS_CUT));
    EXPECT_TRUE(tree.SetItemImage(b, 1, 2));
    int image = 0;
    int selectedImage = 0;
    tree.GetItemImage(b, image, selectedImage);
    EXPECT_EQ(image, 1);
    EXPECT_EQ(selectedImage, 2);
    EXPECT_TRUE(tree.SetItem(c, TVIF_TEXT | TVIF_PARAM, L"sea", 0, 0, 0, 0, 5));
    EXPECT_STREQ(tree.GetItemText(c), L"sea");
    TVITEM item{};
    item.mask = TVIF_HANDLE | TVIF_PARAM;
    item.hItem = c;
    EXPECT_TRUE(tree.GetItem(&item));
    EXPECT_EQ(item.lParam, 5);
    item.lParam = 6;
    EXPECT_TRUE(tree.SetItem(&item));
    EXPECT_EQ(tree.GetItemData(c), 6u);
}

TEST_F(TreeCtrlTest, ATextOnDemandComesFromTheParent)
{
    parent.answer(TVN_GETDISPINFOW, [](NMHDR* header) {
        auto* display = reinterpret_cast<NMTVDISPINFO*>(header);
        if (display->item.mask & TVIF_TEXT)
            display->item.pszText = const_cast<LPWSTR>(L"on demand");
        return 0;
    });

    tree.SetItemText(b, LPSTR_TEXTCALLBACK);

    EXPECT_STREQ(tree.GetItemText(b), L"on demand");
}

TEST_F(TreeCtrlTest, SelectionAndHighlightAreSetAndTold)
{
    EXPECT_TRUE(tree.SelectItem(b));
    EXPECT_EQ(tree.GetSelectedItem(), b);
    EXPECT_EQ(parent.log().count(TVN_SELCHANGEDW), 1);
    EXPECT_EQ(parent.log().last(TVN_SELCHANGEDW).newItem, b);
    EXPECT_TRUE(tree.SelectDropTarget(c));
    EXPECT_EQ(tree.GetDropHilightItem(), c);
    tree.SelectDropTarget(nullptr);
    EXPECT_EQ(tree.GetDropHilightItem(), nullptr);
    EXPECT_TRUE(tree.Select(a, TVGN_CARET));
    EXPECT_EQ(tree.GetSelectedItem(), a);
    tree.SelectItem(nullptr);
    EXPECT_EQ(tree.GetSelectedItem(), nullptr);
}

TEST_F(TreeCtrlTest, AClickFindsItsItem)
{
    present(parent);
    CRect rect;
    ASSERT_TRUE(tree.GetItemRect(b, &rect, TRUE));

    Robot().click(Spot(tree, rect.CenterPoint()));

    EXPECT_EQ(tree.GetSelectedItem(), b);
    UINT flags = 0;
    EXPECT_EQ(tree.HitTest(rect.CenterPoint(), &flags), b);
    EXPECT_EQ(flags, static_cast<UINT>(TVHT_ONITEMLABEL));
    EXPECT_EQ(tree.HitTest(CPoint(50, 190), &flags), nullptr);
    EXPECT_EQ(flags, static_cast<UINT>(TVHT_NOWHERE));
    TVHITTESTINFO info{};
    info.pt = rect.CenterPoint();
    EXPECT_EQ(tree.HitTest(&info), b);
}

TEST_F(TreeCtrlTest, AnItemThatIsNotDisplayedHasNoRectangle)
{
    CRect text;
    CRect line;

    EXPECT_FALSE(tree.GetItemRect(a1, &text, TRUE));
    ASSERT_TRUE(tree.GetItemRect(a, &text, TRUE));
    ASSERT_TRUE(tree.GetItemRect(a, &line, FALSE));
    EXPECT_GT(line.Width(), text.Width());
    EXPECT_EQ(line.top, text.top);
}

TEST_F(TreeCtrlTest, ScrollsItemsIntoView)
{
    for (int i = 0; i < 100; ++i)
        tree.InsertItem(L"more");
    const HTREEITEM last = tree.InsertItem(L"last");
    CRect rect;

    EXPECT_FALSE(tree.GetItemRect(last, &rect, FALSE) && rect.top < 200 && rect.top >= 0);
    tree.EnsureVisible(last);
    EXPECT_TRUE(tree.GetItemRect(last, &rect, FALSE));
    EXPECT_LT(rect.bottom, 210);
    tree.SelectSetFirstVisible(c);
    EXPECT_EQ(tree.GetFirstVisibleItem(), c);
}

TEST_F(TreeCtrlTest, ChildrenAreSorted)
{
    tree.InsertItem(L"a0", a);
    tree.SetItemData(a1, 1);
    tree.SetItemData(a2, 2);

    EXPECT_TRUE(tree.SortChildren(a));
    EXPECT_STREQ(tree.GetItemText(tree.GetChildItem(a)), L"a0");
    TVSORTCB sort{a, [](LPARAM one, LPARAM other, LPARAM) -> int { return static_cast<int>(other - one); },
                  0};
    EXPECT_TRUE(tree.SortChildrenCB(&sort));
    EXPECT_EQ(tree.GetChildItem(a), a2);
}

TEST_F(TreeCtrlTest, ALabelIsEditedInAControlOfItsOwn)
{
    present(parent);
    tree.SetFocus();
    parent.answer(TVN_ENDLABELEDITW, TRUE);

    CEdit* edit = tree.EditLabel(b);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(tree.GetEditControl(), edit);
    edit->SetWindowText(L"bee");
    EXPECT_TRUE(tree.EndEditLabelNow(FALSE));
    EXPECT_EQ(tree.GetEditControl(), nullptr);
    EXPECT_STREQ(tree.GetItemText(b), L"bee");

    edit = tree.EditLabel(b);
    edit->SetWindowText(L"wasp");
    tree.EndEditLabelNow(TRUE);
    EXPECT_EQ(tree.GetEditControl(), nullptr);
}

TEST_F(TreeCtrlTest, LooksAreSetAndTheFormerOnesGivenBack)
{
    CImageList images;
    images.Create(4, 4, ILC_COLOR24, 1, 1);

    EXPECT_EQ(tree.SetImageList(&images, TVSIL_NORMAL), nullptr);
    EXPECT_EQ(tree.GetImageList(TVSIL_NORMAL), &images);
    EXPECT_EQ(tree.SetImageList(nullptr, TVSIL_NORMAL), &images);
    tree.SetIndent(40);
    EXPECT_EQ(tree.GetIndent(), 40u);
    tree.SetItemHeight(30);
    EXPECT_EQ(tree.GetItemHeight(), 30);
    EXPECT_EQ(tree.SetItemHeight(20), 30);
    tree.SetBkColor(RGB(1, 2, 3));
    EXPECT_EQ(tree.GetBkColor(), RGB(1, 2, 3));
    EXPECT_EQ(tree.SetBkColor(RGB(4, 5, 6)), RGB(1, 2, 3));
    tree.SetTextColor(RGB(7, 8, 9));
    EXPECT_EQ(tree.GetTextColor(), RGB(7, 8, 9));
    tree.SetLineColor(RGB(1, 1, 1));
    EXPECT_EQ(tree.GetLineColor(), RGB(1, 1, 1));
    tree.SetInsertMarkColor(RGB(2, 2, 2));
    EXPECT_EQ(tree.GetInsertMarkColor(), RGB(2, 2, 2));
    tree.SetScrollTime(50);
    EXPECT_EQ(tree.GetScrollTime(), 50u);
    EXPECT_TRUE(tree.SetInsertMark(b));
    tree.SetInsertMark(nullptr);
}

TEST_F(TreeCtrlTest, TheTooltipIsGivenBack)
{
    CToolTipCtrl tip;
    tip.Create(&parent);

    CToolTipCtrl* const own = tree.SetToolTips(&tip);
    EXPECT_EQ(tree.GetToolTips(), &tip);
    EXPECT_EQ(tree.SetToolTips(own), &tip);
}

TEST_F(TreeCtrlTest, ADragImageIsTheCallers)
{
    CImageList images;
    images.Create(IDB_SQUARES, 4, 1, CLR_NONE);
    tree.SetImageList(&images, TVSIL_NORMAL);

    const std::unique_ptr<CImageList> image(tree.CreateDragImage(b));
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(CImageList::FromHandlePermanent(*image), image.get());
    tree.SetImageList(nullptr, TVSIL_NORMAL);
}

TEST_F(TreeCtrlTest, CheckBoxesAreStateImages)
{
    CTreeCtrl checked;
    checked.CreateEx(WS_EX_CLIENTEDGE, kStyle, CRect(10, 220, 210, 390), &parent, 8);
    EXPECT_TRUE(checked.GetExStyle() & WS_EX_CLIENTEDGE);
    checked.ModifyStyle(0, TVS_CHECKBOXES);
    const HTREEITEM item = checked.InsertItem(L"item");

    EXPECT_FALSE(checked.GetCheck(item));
    EXPECT_TRUE(checked.SetCheck(item));
    EXPECT_TRUE(checked.GetCheck(item));
    checked.SetCheck(item, FALSE);
    EXPECT_FALSE(checked.GetCheck(item));
}

TEST(TreeReflection, TheTreeHearsItsNotificationsBeforeTheParent)
{
    RecordingParent parent;
    ListeningTree tree;
    tree.Create(kStyle, CRect(10, 10, 210, 210), &parent, 7);
    const HTREEITEM item = tree.InsertItem(L"item");
    tree.InsertItem(L"child", item);

    tree.Expand(item, TVE_EXPAND);
    EXPECT_EQ(tree.expanding, (std::vector<HTREEITEM>{item}));
    tree.SelectItem(item);
    EXPECT_EQ(tree.selected, (std::vector<HTREEITEM>{item}));
}

TEST(TreeReflection, OnlyAnExtendedHandlersAnswerDecidesAboutTheParent)
{
    /// Counts what gets through to its own handlers.
    class Parent : public CWnd
    {
    public:
        int selections = 0;
        int expansions = 0;

        BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
        {
            selections += code == static_cast<int>(MAKELONG(TVN_SELCHANGEDW, WM_NOTIFY));
            expansions += code == static_cast<int>(MAKELONG(TVN_ITEMEXPANDINGW, WM_NOTIFY));
            return CWnd::OnCmdMsg(id, code, extra, info);
        }
    } parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 300), nullptr, 0);
    ListeningTree tree;
    tree.Create(kStyle, CRect(10, 10, 210, 210), &parent, 7);
    const HTREEITEM first = tree.InsertItem(L"first");
    const HTREEITEM second = tree.InsertItem(L"second");
    tree.InsertItem(L"child", first);
    parent.selections = 0;

    tree.SelectItem(second);
    EXPECT_EQ(parent.selections, 1) << "FALSE lets it through";
    tree.keepsSelection = true;
    tree.SelectItem(first);
    EXPECT_EQ(parent.selections, 1);
    tree.Expand(first, TVE_EXPAND);
    EXPECT_EQ(tree.expanding.size(), 1u);
    EXPECT_EQ(parent.expansions, 0) << "a plain handler keeps it";
    parent.DestroyWindow();
}
