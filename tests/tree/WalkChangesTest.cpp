// Walks over a tree whose rows, items or window change meanwhile.
#include "TreeScene.h"

#include <ovoui/tree/Platform.h>

#include <gtest/gtest.h>

#include <memory>

using namespace ovotest;

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
            ovoui::tree::platform().losesRows = false;
    }
    ~OrderOfTheTree() override { ovoui::tree::platform() = m_before; }

private:
    const ovoui::tree::Platform m_before = ovoui::tree::platform();
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
