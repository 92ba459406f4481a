// Walks over a tree whose rows, items or window change meanwhile.
#include "TreeScene.h"

#include "support/PlatformSetting.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace ovo::testkit;

namespace
{

std::string nameAt(const MultiTreeCtrl::iterator& at)
{
    return static_cast<TestNode&>(*at).name;
}

Names walked(const MultiTreeCtrl& tree, bool selectedOnly)
{
    Names names;
    for (auto at = tree.begin(selectedOnly); at != tree.end(); ++at)
        names.push_back(nameAt(at));
    return names;
}

void select(Scene& scene, const Names& names)
{
    for (const std::string& name : names)
        scene.tree.SetItemState(scene.item(name), TVIS_SELECTED, TVIS_SELECTED);
}

} // namespace

// The order of the tree

/// With and without the fresh layout that puts the rows of a platform right which loses them.
class OrderOfTheTree : public ::testing::TestWithParam<bool>
{
protected:
    OrderOfTheTree()
    {
        if (!GetParam())
            setting->losesRows = false;
    }

    PlatformSetting setting;
};

TEST_P(OrderOfTheTree, IsThatOfTheSelectedItemsWhateverIsHidden)
{
    Scene scene{{"a", "b", "c", "d", "e", "f", "g", "h"}};
    scene.add("d1", "d");
    scene.add("d11", "d1");
    scene.tree.Expand(scene.item("d1"), TVE_EXPAND);
    scene.tree.Expand(scene.item("d1"), TVE_COLLAPSE);
    if (GetParam()) {
        EXPECT_EQ(scene.nameOf(scene.tree.HitTest(scene.labelPoint("e"))), "e");
    }
    select(scene, {"e", "c"});
    EXPECT_EQ(walked(scene.tree, true), (Names{"c", "e"}));
}

INSTANTIATE_TEST_SUITE_P(Rows, OrderOfTheTree, ::testing::Bool(),
                         [](const auto& info) { return info.param ? "LaidOut" : "AsTheyAre"; });

// Walks

TEST(TreeChanges, AnIteratorGoesOnBehindADeletedItem)
{
    for (const bool selectedOnly : {false, true}) {
        Scene scene{{"a", "b", "c", "d"}};
        scene.add("b1", "b");
        select(scene, {"a", "b", "b1", "c", "d"});
        Names met;
        for (auto at = scene.tree.begin(selectedOnly); at != scene.tree.end(); ++at) {
            met.push_back(nameAt(at));
            if (met.back() == "b")
                scene.tree.DeleteItem(scene.item("b"));
            if (met.back() == "c")
                scene.tree.DeleteAllItems();
        }
        EXPECT_EQ(met, (Names{"a", "b", "c"}));
    }
}

TEST(TreeChanges, ACopyOfAnIteratorGoesOnBehindTheSameDeletedItem)
{
    Scene scene{{"a", "b", "c"}};
    auto at = scene.tree.beginAll();
    scene.tree.DeleteItem(scene.item("a"));
    auto copy = at;
    EXPECT_TRUE(copy == at);
    EXPECT_EQ(nameAt(copy), "a") << "the node is there still";
    ++copy;
    EXPECT_EQ(nameAt(copy), "b");
    EXPECT_FALSE(copy == at) << "which stands in front of it";
    EXPECT_EQ(nameAt(++at), "b");
    EXPECT_TRUE(copy == at);
}

TEST(TreeChanges, AWalkInsideExpandLeavesOutWhatIsDeleted)
{
    Scene scene{{"a", "b", "c"}};
    scene.node("a").children = 1;
    scene.tree.updateUI(scene.item("a"));
    Names met;
    scene.node("a").expanding = [&](MultiTreeCtrl& tree) {
        tree.DeleteItem(scene.item("b"));
        met = walked(tree, false);
        return false;
    };
    scene.tree.Expand(scene.item("a"), TVE_EXPAND);
    EXPECT_EQ(met, (Names{"a", "c"}));
    EXPECT_EQ(scene.all(), (Names{"a", "c"}));
    EXPECT_EQ(TestNode::live(), 2);
}

TEST(TreeChanges, AnIteratorEndsWithTheTree)
{
    RecordingParent parent;
    auto tree = std::make_unique<TestTree>();
    tree->Create(Scene::kStyle, CRect(0, 0, 100, 100), &parent, 1);
    for (const char* name : {"a", "b"})
        (new TestNode(name))->insert(*tree, TVI_ROOT, TVI_LAST);
    auto at = tree->beginAll();
    const auto end = tree->end();
    tree.reset();
    EXPECT_FALSE(at == end);
    ++at;
    EXPECT_TRUE(at == end);
}

// The selection of many

namespace
{

/// A tree whose host acts when the tree view has selected an item.
class ActingTree : public TestTree
{
public:
    std::function<void(HTREEITEM)> selecting;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = TestTree::DefWindowProc(message, wParam, lParam);
        if (message != TVM_SETITEM || !selecting)
            return result;
        const auto& change = *reinterpret_cast<const TVITEM*>(lParam);
        if (change.state & change.stateMask & TVIS_SELECTED)
            selecting(change.hItem);
        return result;
    }
};

class SelectingMany : public ::testing::Test
{
protected:
    SelectingMany()
    {
        tree.Create(Scene::kStyle, CRect(0, 0, 200, 200), &parent, 1);
        for (const char* name : {"a", "b", "c", "d"})
            items.push_back(append(name));
    }
    ~SelectingMany() override { tree.DestroyWindow(); }

    HTREEITEM append(const char* name) { return (new TestNode(name))->insert(tree, TVI_ROOT, TVI_LAST); }

    RecordingParent parent;
    ActingTree tree;
    std::vector<HTREEITEM> items;
};

} // namespace

TEST_F(SelectingMany, AllGoesOnBehindAnItemThatGoes)
{
    tree.selecting = [&](HTREEITEM item) {
        if (item == items[1])
            tree.DeleteItem(item);
    };
    tree.SendMessage(WM_COMMAND, ID_EDIT_SELECT_ALL);
    EXPECT_EQ(walked(tree, true), (Names{"a", "c", "d"}));
    EXPECT_EQ(walked(tree, false), (Names{"a", "c", "d"}));
}

TEST_F(SelectingMany, ARangeLeavesOutAnItemThatHasTakenThePlaceOfAnother)
{
    tree.selecting = [&](HTREEITEM item) {
        if (item != items[0])
            return;
        tree.DeleteItem(items[2]);
        append("n"); // may get the handle of the one deleted
    };
    tree.selectRange(items[0], items[3]);
    EXPECT_EQ(walked(tree, true), (Names{"a", "b", "d"}));
}

TEST(TreeChanges, APathCountsTheItemsThatAreThere)
{
    Scene scene;
    for (int i = 0; i < 3; ++i)
        scene.add("x");
    const HTREEITEM first = scene.tree.GetRootItem();
    static_cast<TestNode&>(*scene.tree.node(first)).texting = [&] {
        scene.tree.DeleteItem(first);
        return std::wstring(L"x");
    };
    scene.tree.SelectItem(scene.tree.GetNextSiblingItem(scene.tree.GetNextSiblingItem(first)));
    EXPECT_EQ(scene.tree.selectedPath(), L"/x\\#2");
}
