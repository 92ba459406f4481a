// The selection as the host changes and hears of it.
#include "TreeScene.h"

#include <testkit/Picture.h>

#include <gtest/gtest.h>

#include <oleacc.h>

#include <set>

using namespace ovo::testkit;

namespace
{

Names manyNames(int count)
{
    Names names;
    for (int i = 0; i < count; ++i)
        names.push_back(std::to_string(100 + i));
    return names;
}

} // namespace

// One item

TEST(TreeSelection, SelectingAnItemLeavesAllOthers)
{
    Scene scene{{"a", "b", "c"}};
    scene.add("hidden", "a");
    for (const char* name : {"a", "c", "hidden"})
        scene.tree.SetItemState(scene.item(name), TVIS_SELECTED, TVIS_SELECTED);
    EXPECT_TRUE(scene.tree.SelectItem(scene.item("b")));
    EXPECT_EQ(scene.selected(), Names{"b"});
    EXPECT_EQ(scene.caret(), "b");
}

TEST(TreeSelection, SelectingNothingClears)
{
    Scene scene{{"a", "b"}};
    scene.tree.SelectItem(scene.item("a"));
    scene.tree.SetItemState(scene.item("b"), TVIS_SELECTED, TVIS_SELECTED);
    scene.tree.SelectItem(nullptr);
    EXPECT_EQ(scene.selected(), Names{});
    EXPECT_EQ(scene.caret(), "-");
}

TEST(TreeSelection, ClearingWithoutACaretTellsTheParent)
{
    Scene scene{{"a", "b"}};
    scene.tree.SelectItem(nullptr);
    scene.tree.SetItemState(scene.item("b"), TVIS_SELECTED, TVIS_SELECTED);
    scene.forget();
    scene.tree.SelectItem(nullptr);
    EXPECT_EQ(scene.changes(), (Changes{{TVC_UNKNOWN, "-", "-"}}));
    scene.forget();
    scene.tree.SelectItem(nullptr);
    EXPECT_EQ(scene.changes(), Changes{});
}

TEST(TreeSelection, TheVirtualOperationDoesTheWork)
{
    class Watching : public TestTree
    {
    public:
        int calls = 0;
        bool doSelectItem(HTREEITEM item) override
        {
            ++calls;
            return MultiTreeCtrl::doSelectItem(item);
        }
    };
    RecordingParent parent;
    Watching tree;
    tree.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 200), &parent, 1);
    auto* node = new TestNode("a");
    const HTREEITEM item = node->insert(tree, TVI_ROOT, TVI_LAST);
    EXPECT_EQ(tree.SelectItem(item), TRUE);
    EXPECT_EQ(tree.calls, 1);
}

// Clearing

TEST(TreeSelection, ClearingCountsWhatWasSelected)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.add("bx", "b");
    scene.add("bxx", "bx");
    for (const char* name : {"a", "bxx", "d"})
        scene.tree.SetItemState(scene.item(name), TVIS_SELECTED, TVIS_SELECTED);
    scene.forget();
    EXPECT_EQ(scene.tree.clearselection(scene.item("b")), 2u); // with all that follows
    EXPECT_EQ(scene.selected(), Names{"a"});
    EXPECT_EQ(scene.tree.clearselection(scene.tree.GetRootItem()), 1u);
    EXPECT_EQ(scene.tree.clearselection(scene.tree.GetRootItem()), 0u);
    EXPECT_EQ(scene.tree.clearselection(nullptr), 0u);
    EXPECT_EQ(scene.changes(), Changes{});
}

TEST(TreeSelection, ClearingFromAChildLeavesTheRestAlone)
{
    Scene scene{{"a", "b"}};
    scene.add("x", "a");
    scene.add("y", "a");
    scene.add("z", "a");
    for (const char* name : {"a", "x", "y", "z", "b"})
        scene.tree.SetItemState(scene.item(name), TVIS_SELECTED, TVIS_SELECTED);
    EXPECT_EQ(scene.tree.clearselection(scene.item("y")), 2u);
    EXPECT_EQ(scene.selected(), (Names{"a", "x", "b"}));
}

TEST(TreeSelection, WhatWasSelectedBeforeATreeViewIsTakenOverCounts)
{
    RecordingParent parent;
    const HWND plain = ::CreateWindowExW(0, WC_TREEVIEWW, L"", Scene::kStyle, 0, 0, 200, 200, parent.m_hWnd,
                                         reinterpret_cast<HMENU>(5), nullptr, nullptr);
    for (const UINT state : {0u, UINT{TVIS_SELECTED}, UINT{TVIS_SELECTED}}) {
        TVINSERTSTRUCTW insert{};
        insert.hParent = TVI_ROOT;
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT | TVIF_STATE;
        insert.item.pszText = const_cast<LPWSTR>(L"item");
        insert.item.state = state;
        insert.item.stateMask = TVIS_SELECTED;
        ::SendMessageW(plain, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert));
    }
    TestTree tree;
    ASSERT_TRUE(tree.SubclassWindow(plain));
    const HTREEITEM first = tree.GetRootItem();
    tree.SelectItem(first);
    int selected = 0;
    for (HTREEITEM item = first; item; item = tree.GetNextSiblingItem(item))
        selected += tree.GetItemState(item, TVIS_SELECTED) ? 1 : 0;
    EXPECT_EQ(selected, 1);
    EXPECT_EQ(tree.clearselection(first), 1u);
    tree.DestroyWindow();
}

// Ranges

TEST(TreeSelection, ARangeAddsTheDisplayedItemsInEitherDirection)
{
    Scene scene{{"a", "b", "c", "d", "e"}};
    scene.add("hidden", "c");
    scene.tree.SetItemState(scene.item("a"), TVIS_SELECTED, TVIS_SELECTED);
    scene.tree.selectRange(scene.item("d"), scene.item("b"));
    EXPECT_EQ(scene.selected(), (Names{"a", "b", "c", "d"}));
    scene.tree.clearselection(scene.tree.GetRootItem());
    scene.tree.selectRange(scene.item("b"), scene.item("d"));
    EXPECT_EQ(scene.selected(), (Names{"b", "c", "d"}));
    EXPECT_EQ(scene.changes(), Changes{});
}

TEST(TreeSelection, ARangeToItselfIsThatItemOnly)
{
    Scene scene{{"a", "b", "c"}};
    scene.tree.selectRange(scene.item("b"), scene.item("b"));
    EXPECT_EQ(scene.selected(), Names{"b"});
}

TEST(TreeSelection, ARangeWithoutOneEndGoesToTheLastDisplayedItem)
{
    Scene scene{{"a", "b", "c"}};
    scene.tree.selectRange(nullptr, scene.item("b"));
    EXPECT_EQ(scene.selected(), (Names{"b", "c"}));
    scene.tree.clearselection(scene.tree.GetRootItem());
    scene.tree.selectRange(scene.item("b"), nullptr);
    EXPECT_EQ(scene.selected(), (Names{"b", "c"}));
    scene.tree.clearselection(scene.tree.GetRootItem());
    scene.tree.selectRange(nullptr, nullptr);
    EXPECT_EQ(scene.selected(), Names{});
}

TEST(TreeSelection, ARangeGoesThroughOpenItems)
{
    Scene scene{{"a", "b"}};
    scene.node("a").childNames = {"x", "y"};
    scene.node("a").children = 1;
    scene.tree.updateUI(scene.item("a"));
    scene.open("a");
    scene.tree.selectRange(scene.item("x"), scene.item("b"));
    EXPECT_EQ(scene.selected(), (Names{"x", "y", "b"}));
}

TEST(TreeSelection, TheAnchorCanBeSetByTheHost)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.tree.selectItemAnchor(scene.item("d"));
    scene.user.holding(VK_SHIFT).click(scene.label("b"));
    EXPECT_EQ(scene.selected(), (Names{"b", "c", "d"}));
}

// The notification

TEST(TreeSelection, TheNotificationDescribesBothItems)
{
    Scene scene{{"a", "b"}};
    scene.tree.SetItemState(scene.item("b"), TVIS_BOLD | TVIS_SELECTED, TVIS_BOLD | TVIS_SELECTED);
    NMTREEVIEW seen{};
    scene.parent().answer(static_cast<UINT>(TVN_SELCHANGEDW), [&](NMHDR* header) -> LRESULT {
        seen = *reinterpret_cast<NMTREEVIEW*>(header);
        return 0;
    });
    scene.tree.notifyTvnSelchanged(TVC_BYMOUSE, scene.item("a"), scene.item("b"), CPoint(3, 4));
    EXPECT_EQ(seen.hdr.hwndFrom, scene.tree.m_hWnd);
    EXPECT_EQ(seen.hdr.idFrom, 7u);
    EXPECT_EQ(static_cast<int>(seen.hdr.code), -451);
    EXPECT_EQ(seen.action, UINT{TVC_BYMOUSE});
    EXPECT_EQ(seen.itemOld.hItem, scene.item("a"));
    EXPECT_EQ(seen.itemOld.lParam, static_cast<LPARAM>(scene.tree.GetItemData(scene.item("a"))));
    EXPECT_EQ(seen.itemNew.hItem, scene.item("b"));
    EXPECT_EQ(seen.itemNew.state & (TVIS_BOLD | TVIS_SELECTED), UINT{TVIS_BOLD | TVIS_SELECTED});
    EXPECT_EQ(seen.itemNew.lParam, static_cast<LPARAM>(scene.tree.GetItemData(scene.item("b"))));
    for (const TVITEM& item : {seen.itemOld, seen.itemNew}) {
        EXPECT_EQ(item.mask, UINT{TVIF_HANDLE | TVIF_STATE | TVIF_PARAM}) << "what is told";
        EXPECT_EQ(item.stateMask, ~0u);
    }
    EXPECT_EQ(seen.ptDrag.x, 3);
    EXPECT_EQ(seen.ptDrag.y, 4);

    scene.tree.notifyTvnSelchanged(TVC_UNKNOWN, nullptr, nullptr, CPoint(0, 0));
    EXPECT_EQ(seen.itemNew.hItem, nullptr);
    EXPECT_EQ(seen.itemOld.hItem, nullptr);
}

TEST(TreeSelection, TheParentsProcedureAndUserDataComeBackAfterARange)
{
    Scene scene{{"a", "b", "c"}};
    const HWND parent = scene.parent().m_hWnd;
    ::SetWindowLongPtrW(parent, GWLP_USERDATA, 1234);
    const LONG_PTR procedure = ::GetWindowLongPtrW(parent, GWLP_WNDPROC);
    scene.user.click(scene.label("a")).holding(VK_SHIFT).click(scene.label("c"));
    EXPECT_EQ(::GetWindowLongPtrW(parent, GWLP_WNDPROC), procedure);
    EXPECT_EQ(::GetWindowLongPtrW(parent, GWLP_USERDATA), 1234);
}

TEST(TreeSelection, OtherNotificationsReachTheParentDuringARange)
{
    Scene scene{{"a", "b", "c"}};
    scene.user.click(scene.label("a"));
    scene.forget();
    scene.user.holding(VK_SHIFT).click(scene.label("c"));
    EXPECT_EQ(scene.parent().log().count(static_cast<UINT>(TVN_SELCHANGINGW)), 1);
    EXPECT_EQ(scene.parent().log().count(static_cast<UINT>(TVN_SELCHANGEDW)), 1);
}

// Painting

TEST(TreeSelection, AChangeOfOneItemRepaintsItsRowOnly)
{
    Scene scene{manyNames(10)};
    scene.user.click(scene.label("100"));
    scene.tree.UpdateWindow();
    CRect row;
    scene.tree.GetItemRect(scene.item("105"), &row, FALSE);
    scene.tree.counting = true;
    scene.user.holding(VK_CONTROL).click(scene.label("105"));
    scene.tree.UpdateWindow();
    ASSERT_GE(scene.tree.paints, 1);
    for (const CRect& painted : scene.tree.painted) {
        EXPECT_GE(painted.top, row.top);
        EXPECT_LE(painted.bottom, row.bottom);
    }
}

TEST(TreeSelection, BulkChangesRepaintOnce)
{
    Scene scene{manyNames(300)};
    const auto paints = [&](const std::function<void()>& change) {
        scene.tree.UpdateWindow();
        scene.tree.paints = 0;
        scene.tree.counting = true;
        change();
        scene.tree.UpdateWindow();
        scene.tree.counting = false;
        return scene.tree.paints;
    };
    EXPECT_EQ(paints([&] { scene.tree.SendMessage(WM_COMMAND, ID_EDIT_SELECT_ALL); }), 1);
    EXPECT_EQ(paints([&] { scene.tree.clearselection(scene.tree.GetRootItem()); }), 1);
    EXPECT_EQ(paints([&] { scene.tree.selectRange(scene.item("100"), scene.item("399")); }), 1);
}

TEST(TreeSelection, AllSelectedRowsShowItWithAndWithoutTheFocus)
{
    Scene scene{{"a", "b", "c"}};
    CButton other;
    other.Create(L"other", WS_CHILD | WS_VISIBLE, CRect(0, 360, 60, 380), &scene.parent(), 9);
    scene.user.click(scene.label("a")).holding(VK_CONTROL).click(scene.label("c"));
    const auto coloursOf = [&](const std::string& name) {
        CRect rect;
        scene.tree.GetItemRect(scene.item(name), &rect, TRUE);
        const Picture picture = Picture::ofClient(scene.tree.m_hWnd);
        std::set<COLORREF> colours;
        for (int x = rect.left + 1; x < rect.right - 1; ++x)
            colours.insert(picture.at(x, rect.top + 2));
        return colours;
    };
    const std::set<COLORREF> plain = coloursOf("b");
    const std::set<COLORREF> focused = coloursOf("c");
    EXPECT_NE(focused, plain);
    other.SetFocus();
    scene.tree.UpdateWindow();
    const std::set<COLORREF> unfocused = coloursOf("c");
    EXPECT_NE(unfocused, plain);
    EXPECT_NE(unfocused, focused);
    EXPECT_EQ(coloursOf("a"), unfocused);
    scene.tree.SetFocus();
    EXPECT_EQ(coloursOf("c"), focused);
}

TEST(TreeSelection, ASelectedRowThatIsCutOffShowsTheFocusToo)
{
    Scene scene{manyNames(20)};
    CButton other;
    other.Create(L"other", WS_CHILD | WS_VISIBLE, CRect(0, 360, 60, 380), &scene.parent(), 9);
    scene.tree.SetItemHeight(40);
    scene.user.click(scene.label("100")).holding(VK_CONTROL).key('A');
    CRect client;
    scene.tree.GetClientRect(&client);
    CRect label;
    scene.tree.GetItemRect(scene.item("108"), &label, TRUE);
    ASSERT_LT(label.top, client.bottom);
    ASSERT_GT(label.bottom, client.bottom);
    const auto shown = [&] {
        const Picture picture = Picture::ofClient(scene.tree.m_hWnd);
        std::set<COLORREF> colours;
        for (int y = label.top + 2; y < client.bottom; ++y)
            for (int x = label.left + 1; x < label.right - 1; ++x)
                colours.insert(picture.at(x, y));
        return colours;
    };
    const std::set<COLORREF> focused = shown();
    other.SetFocus();
    EXPECT_NE(shown(), focused);
    scene.tree.SetFocus();
    EXPECT_EQ(shown(), focused);
}

// Paths

TEST(TreePath, NamesTheSelectedItemFromTheTop)
{
    Scene scene{{"a", "b"}};
    scene.node("b").childNames = {"x", "y/z"};
    scene.node("b").children = 1;
    scene.tree.updateUI(scene.item("b"));
    scene.open("b");
    EXPECT_EQ(scene.tree.selectedPath(), L"");
    scene.tree.SelectItem(scene.item("y/z"));
    EXPECT_EQ(scene.tree.selectedPath(), L"/b/y\\/z");
}

TEST(TreePath, NamesTheFirstSelectedItemWhereTheCaretIsNotSelected)
{
    Scene scene{{"a", "b", "c"}};
    scene.user.click(scene.label("a"));
    scene.user.holding(VK_CONTROL).key(VK_DOWN);
    ASSERT_EQ(scene.caret(), "b");
    EXPECT_EQ(scene.tree.selectedPath(), L"/a");
    scene.tree.SetItemState(scene.item("b"), TVIS_SELECTED, TVIS_SELECTED);
    EXPECT_EQ(scene.tree.selectedPath(), L"/b");
}

TEST(TreePath, LeadsToTheAnchorOfTheNextRange)
{
    Scene scene{{"a", "b", "c"}};
    scene.tree.selectItemAnchor(scene.item("c"));
    scene.tree.selectPath(L"/a");
    scene.user.holding(VK_SHIFT).click(scene.label("b"));
    EXPECT_EQ(scene.selected(), (Names{"a", "b"}));
}

TEST(TreePath, OpensWhatIsOnTheWay)
{
    Scene scene{{"a", "b"}};
    scene.node("b").childNames = {"x", "y/z"};
    scene.node("b").children = 1;
    scene.tree.updateUI(scene.item("b"));
    scene.tree.selectPath(L"/b/y\\/z");
    EXPECT_EQ(scene.selected(), Names{"y/z"});
    EXPECT_EQ(scene.caret(), "y/z");
    EXPECT_EQ(scene.tree.selectedPath(), L"/b/y\\/z");
}

TEST(TreePath, TellsApartChildrenWithTheSameText)
{
    Scene scene{{"a", "a", "a"}};
    const HTREEITEM second = scene.tree.GetNextSiblingItem(scene.tree.GetRootItem());
    scene.tree.SelectItem(second);
    const std::wstring path = scene.tree.selectedPath();
    scene.tree.SelectItem(nullptr);
    scene.tree.selectPath(path);
    EXPECT_EQ(scene.tree.GetSelectedItem(), second);
}

TEST(TreePath, ThatLeadsNowhereLeavesTheSelection)
{
    Scene scene{{"a", "b"}};
    scene.tree.SelectItem(scene.item("a"));
    scene.tree.selectPath(L"/b/nothing");
    EXPECT_EQ(scene.selected(), Names{"a"});
    scene.tree.selectPath(L"");
    EXPECT_EQ(scene.selected(), Names{});
}

// Accessibility

TEST(TreeAccessibility, EverySelectedItemIsReported)
{
    Scene scene{{"a", "b", "c"}};
    scene.user.click(scene.label("a")).holding(VK_CONTROL).click(scene.label("c"));
    IAccessible* tree = nullptr;
    const HRESULT got = ::AccessibleObjectFromWindow(scene.tree.m_hWnd, static_cast<DWORD>(OBJID_CLIENT),
                                                     __uuidof(IAccessible), reinterpret_cast<void**>(&tree));
    ASSERT_EQ(got, S_OK);
    // A child's number is the one that the tree view gives its item.
    const auto stateOf = [&](const std::string& name) -> long {
        const LRESULT id =
            scene.tree.SendMessage(TVM_MAPHTREEITEMTOACCID, reinterpret_cast<WPARAM>(scene.item(name)));
        VARIANT child{};
        child.vt = VT_I4;
        child.lVal = static_cast<LONG>(id);
        VARIANT state{};
        return id && SUCCEEDED(tree->get_accState(child, &state)) && state.vt == VT_I4 ? state.lVal : -1;
    };
    // Wine's tree view has no object of its own: there the window answers, which knows no items.
    if (stateOf("a") != -1) {
        EXPECT_TRUE(stateOf("a") & STATE_SYSTEM_SELECTED);
        EXPECT_FALSE(stateOf("b") & STATE_SYSTEM_SELECTED);
        EXPECT_TRUE(stateOf("c") & STATE_SYSTEM_SELECTED);
    }
    VARIANT self{};
    self.vt = VT_I4;
    VARIANT role{};
    EXPECT_TRUE(SUCCEEDED(tree->get_accRole(self, &role)));
    EXPECT_EQ(role.vt, VT_I4);
    tree->Release();
}
