// Walking over the items of a tree.
#include "TreeScene.h"

#include <gtest/gtest.h>

namespace
{

Names walk(MultiTreeCtrl::iterator at, const MultiTreeCtrl& tree)
{
    Names names;
    for (; at != tree.end(); ++at)
        names.push_back(static_cast<TestNode&>(*at).name);
    return names;
}

/// a(b(c d) e) f(g), with b and f closed.
void grow(Scene& scene)
{
    scene.add("a");
    scene.add("b", "a");
    scene.add("c", "b");
    scene.add("d", "b");
    scene.add("e", "a");
    scene.add("f");
    scene.add("g", "f");
}

} // namespace

TEST(TreeIterator, GoesDepthFirstOverOpenAndClosedItems)
{
    Scene scene;
    grow(scene);
    EXPECT_EQ(walk(scene.tree.beginAll(), scene.tree), (Names{"a", "b", "c", "d", "e", "f", "g"}));
    EXPECT_EQ(walk(scene.tree.begin(false), scene.tree), (Names{"a", "b", "c", "d", "e", "f", "g"}));
}

TEST(TreeIterator, GoesOverTheSelectedItemsInTheOrderOfTheTree)
{
    Scene scene;
    grow(scene);
    for (const char* name : {"g", "d", "a"})
        scene.tree.SetItemState(scene.item(name), TVIS_SELECTED, TVIS_SELECTED);
    EXPECT_EQ(walk(scene.tree.beginSelected(), scene.tree), (Names{"a", "d", "g"}));
    EXPECT_EQ(walk(scene.tree.begin(true), scene.tree), (Names{"a", "d", "g"}));
}

TEST(TreeIterator, NothingSelectedIsTheEnd)
{
    Scene scene;
    EXPECT_TRUE(scene.tree.beginSelected() == scene.tree.end());
    EXPECT_TRUE(scene.tree.beginAll() == scene.tree.end());
    grow(scene);
    EXPECT_TRUE(scene.tree.beginSelected() == scene.tree.end());
    EXPECT_FALSE(scene.tree.beginAll() == scene.tree.end());
}

TEST(TreeIterator, StaysAtTheEnd)
{
    Scene scene{{"a"}};
    auto at = scene.tree.beginAll();
    ++at;
    EXPECT_TRUE(at == scene.tree.end());
    ++at;
    at++;
    EXPECT_TRUE(at == scene.tree.end());
}

TEST(TreeIterator, IsEqualByTreeAndItemWhateverItGoesOver)
{
    Scene scene{{"a", "b"}};
    Scene other{{"a"}};
    scene.tree.SelectItem(scene.item("a"));
    EXPECT_TRUE(scene.tree.beginAll() == scene.tree.beginSelected());
    EXPECT_FALSE(scene.tree.end() == other.tree.end());
    EXPECT_FALSE(scene.tree.beginAll() == scene.tree.end());
}

TEST(TreeIterator, CanBeToldToGoOnOverTheSelectedOnesOnly)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.tree.SetItemState(scene.item("c"), TVIS_SELECTED, TVIS_SELECTED);
    auto at = scene.tree.beginAll();
    EXPECT_FALSE(at.selectedOnly());
    EXPECT_EQ(&at.setSelect(true), &at);
    EXPECT_TRUE(at.selectedOnly());
    EXPECT_EQ(static_cast<TestNode&>(*at).name, "a");
    EXPECT_EQ(static_cast<TestNode&>(*++at).name, "c");
    ++at;
    EXPECT_TRUE(at == scene.tree.end());
}

TEST(TreeIterator, PostfixGivesTheItemBefore)
{
    Scene scene{{"a", "b"}};
    auto at = scene.tree.beginAll();
    EXPECT_EQ(static_cast<TestNode&>(*at++).name, "a");
    EXPECT_EQ(static_cast<TestNode&>(*at).name, "b");
}

TEST(TreeIterator, TheArrowGivesAHandleThatKeepsTheNode)
{
    Scene scene{{"a"}};
    auto at = scene.tree.beginAll();
    const OVO::Handle<MultiTreeCtrl::Node> kept = at;
    EXPECT_EQ(at->text(scene.tree), L"a");
    scene.tree.DeleteAllItems();
    EXPECT_EQ(static_cast<TestNode&>(*kept).name, "a");
}

TEST(TreeIterator, SeesSelectionsThatTheHostMadeByMessages)
{
    Scene scene;
    grow(scene);
    TVITEM change{};
    change.mask = TVIF_HANDLE | TVIF_STATE;
    change.stateMask = change.state = TVIS_SELECTED;
    change.hItem = scene.item("e");
    ::SendMessageW(scene.tree.m_hWnd, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&change));
    change.hItem = scene.item("c");
    ::SendMessageW(scene.tree.m_hWnd, TVM_SETITEMA, 0, reinterpret_cast<LPARAM>(&change));
    EXPECT_EQ(walk(scene.tree.beginSelected(), scene.tree), (Names{"c", "e"}));
    ::SendMessageW(scene.tree.m_hWnd, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(scene.item("f")));
    EXPECT_EQ(walk(scene.tree.beginSelected(), scene.tree), (Names{"c", "e", "f"}));
    change.state = 0;
    ::SendMessageW(scene.tree.m_hWnd, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&change));
    EXPECT_EQ(walk(scene.tree.beginSelected(), scene.tree), (Names{"e", "f"}));
}

TEST(TreeIterator, SeesItemsInsertedAsSelected)
{
    Scene scene{{"a"}};
    TestNode* const node = new TestNode("b");
    node->addRef(); // the tree drops it with the item
    TVINSERTSTRUCT insert{};
    insert.hParent = TVI_ROOT;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_STATE | TVIF_PARAM;
    insert.item.pszText = const_cast<LPWSTR>(L"b");
    insert.item.state = insert.item.stateMask = TVIS_SELECTED;
    insert.item.lParam = reinterpret_cast<LPARAM>(static_cast<MultiTreeCtrl::Node*>(node));
    scene.tree.InsertItem(&insert);
    EXPECT_EQ(walk(scene.tree.beginSelected(), scene.tree), Names{"b"});
}

TEST(TreeIterator, FewSelectedAmongManyComeInTheOrderOfTheTree)
{
    Scene scene;
    Names expected;
    for (int i = 0; i < 60; ++i)
        scene.add(std::to_string(100 + i));
    for (int i = 55; i >= 0; i -= 5) {
        expected.insert(expected.begin(), std::to_string(100 + i));
        scene.tree.SetItemState(scene.item(expected.front()), TVIS_SELECTED, TVIS_SELECTED);
    }
    Names walked;
    for (auto at = scene.tree.beginSelected(); at != scene.tree.end(); ++at)
        walked.push_back(static_cast<TestNode&>(*at).name);
    EXPECT_EQ(walked, expected);
}
