// What the tree does where the platform needs no help, beside what it does where it does.
#include "TreeScene.h"

#include "support/PlatformSetting.h"

#include <ovoui/tree/PlainText.h>

#include <gtest/gtest.h>

#include <algorithm>

using namespace ovo::testkit;

namespace
{

/// Counts the messages that reach the tree view.
class CountingTree : public TestTree
{
public:
    int inserted = 0;
    int deleted = 0;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == TVM_INSERTITEM)
            ++inserted;
        if (message == TVM_DELETEITEM)
            ++deleted;
        return TestTree::DefWindowProc(message, wParam, lParam);
    }
};

class TreePlatform : public ::testing::TestWithParam<bool>
{
protected:
    TreePlatform() { tree.Create(Scene::kStyle, CRect(0, 0, 200, 200), &parent, 1); }
    ~TreePlatform() override { tree.DestroyWindow(); }

    HTREEITEM append(const char* name, HTREEITEM under = TVI_ROOT)
    {
        return (new TestNode(name))->insert(tree, under, TVI_LAST);
    }
    Names names()
    {
        Names all;
        for (auto at = tree.beginAll(); at != tree.end(); ++at)
            all.push_back(static_cast<TestNode&>(*at).name);
        return all;
    }

    PlatformSetting setting;
    RecordingParent parent;
    CountingTree tree;
};

std::string sideName(const ::testing::TestParamInfo<bool>& info)
{
    return info.param ? "Helped" : "AsItIs";
}

} // namespace

// Appending

TEST_P(TreePlatform, AppendedItemsComeLastWhateverHappensBetween)
{
    setting->losesRows = GetParam();
    const HTREEITEM a = append("a");
    append("b");
    append("a1", a);
    append("a2", a);
    append("c");
    const HTREEITEM d = append("d");
    tree.DeleteItem(d); // the last one appended
    append("e");
    TestPlace top(TVI_ROOT, false);
    tree.insert(new TestNode("f"), top, -1); // appended otherwise
    append("g");
    append("a3", a);
    (new TestNode("a0"))->insert(tree, a, TVI_FIRST);
    append("a4", a);
    EXPECT_EQ(names(), (Names{"a", "a0", "a1", "a2", "a3", "a4", "b", "c", "e", "f", "g"}));
}

// The insertion mark

TEST_P(TreePlatform, TheInsertionMarkGoesWithAnItemOnlyWhereItStays)
{
    setting->keepsInsertMark = GetParam();
    const HTREEITEM a = append("a");
    TestNode& node = static_cast<TestNode&>(*tree.node(a));
    node.draggingInto = [](COleDataObject&, DWORD&, bool& flag, int) -> DWORD {
        flag = true;
        return 0;
    };
    // The mark is shown beside an item in another one.
    const HTREEITEM child = append("a1", a);
    TestNode& inside = static_cast<TestNode&>(*tree.node(child));
    inside.draggingInto = node.draggingInto;
    tree.SetItemState(a, TVIS_EXPANDED, TVIS_EXPANDED);
    CRect rect;
    ASSERT_TRUE(tree.GetItemRect(child, &rect, TRUE));
    tree.inserted = 0;
    tree.deleted = 0;
    COleDataObject data;
    tree.m_pDropTarget->OnDragOver(&tree, &data, MK_LBUTTON, rect.CenterPoint());
    EXPECT_EQ(tree.inserted, 0);
    tree.m_pDropTarget->OnDragLeave(&tree);
    EXPECT_EQ(tree.inserted, GetParam() ? 1 : 0);
    EXPECT_EQ(tree.deleted, GetParam() ? 1 : 0);
    EXPECT_EQ(tree.GetCount(), 2u);
    EXPECT_EQ(names(), (Names{"a", "a1"}));
}

// Rows

TEST_P(TreePlatform, ClosingTakesTheChildrenWithOrWithoutCareForTheFirstRow)
{
    setting->losesFirstRow = GetParam();
    const HTREEITEM a = append("a");
    append("b");
    TestNode& node = static_cast<TestNode&>(*tree.node(a));
    node.children = 1;
    node.childNames = {"a1", "a2"};
    tree.updateUI(node);
    tree.Expand(a, TVE_EXPAND);
    EXPECT_EQ(names(), (Names{"a", "a1", "a2", "b"}));
    tree.Expand(a, TVE_COLLAPSE | TVE_COLLAPSERESET);
    EXPECT_EQ(names(), (Names{"a", "b"}));
    EXPECT_EQ(TestNode::live(), 2);
}

INSTANTIATE_TEST_SUITE_P(Sides, TreePlatform, ::testing::Bool(), sideName);
