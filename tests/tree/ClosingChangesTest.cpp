// Nodes that close or delete what is above them while they are being opened or closed.
#include "NestedScene.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

void sendKey(Scene& scene, const std::string& name, UINT key)
{
    scene.tree.SelectItem(scene.item(name));
    scene.tree.SendMessage(WM_KEYDOWN, key, 1);
}

void expectParentClosed(NestedScene& scene)
{
    EXPECT_EQ(scene.all(), (Names{"p", "q"}));
    EXPECT_FALSE(scene.isExpanded("p"));
    EXPECT_EQ(TestNode::live(), 2);
    TVITEM item{};
    item.mask = TVIF_HANDLE | TVIF_CHILDREN;
    item.hItem = scene.item("p");
    scene.tree.GetItem(&item);
    EXPECT_EQ(item.cChildren, 1); // it can be opened again
    scene.node("p").expanding = nullptr;
    scene.open("p");
    EXPECT_EQ(scene.childrenOf("p"), Names{"c"});
}

struct Way
{
    const char* name;
    std::function<void(NestedScene&)> close;
};

const Way kWaysOfClosing[] = {
    {"ByMessage", [](NestedScene& scene) { scene.tree.Expand(scene.item("c"), TVE_COLLAPSE); }},
    {"ByResetting",
     [](NestedScene& scene) { scene.tree.Expand(scene.item("c"), TVE_COLLAPSE | TVE_COLLAPSERESET); }},
    {"ByClick", [](NestedScene& scene) { scene.user.click(scene.button("c")); }},
    {"ByKey", [](NestedScene& scene) { sendKey(scene, "c", VK_SUBTRACT); }},
    {"ByLeft", [](NestedScene& scene) { sendKey(scene, "c", VK_LEFT); }},
};

class ClosingTheParent : public ::testing::TestWithParam<Way>
{
};

} // namespace

TEST_P(ClosingTheParent, InCollapseDoesNoHarm)
{
    NestedScene scene;
    scene.open("c");
    scene.node("c").collapsing = [&](MultiTreeCtrl&) { scene.closeParent(); };
    GetParam().close(scene);
    expectParentClosed(scene);
}

INSTANTIATE_TEST_SUITE_P(Ways, ClosingTheParent, ::testing::ValuesIn(kWaysOfClosing),
                         [](const auto& info) { return info.param.name; });

TEST(TreeChanges, ANodeThatClosesItsParentWhileAllIsOpenedDoesNoHarm)
{
    NestedScene scene;
    scene.node("c").expanding = [&](MultiTreeCtrl&) {
        scene.closeParent();
        return true;
    };
    sendKey(scene, "p", VK_MULTIPLY);
    expectParentClosed(scene);
}

TEST(TreeChanges, ANodeThatDeletesItsParentWhileItClosesDoesNoHarm)
{
    NestedScene scene;
    scene.open("c");
    scene.node("c").collapsing = [&](MultiTreeCtrl& tree) { tree.DeleteItem(scene.item("p")); };
    scene.user.click(scene.button("c"));
    EXPECT_EQ(scene.all(), Names{"q"});
    EXPECT_EQ(TestNode::live(), 1);
}

TEST(TreeChanges, ClosingAnItemAboveTheFirstRowDoesNoHarm)
{
    Scene scene{{"p"}};
    Names many;
    for (int i = 0; i < 60; ++i)
        many.push_back("c" + std::to_string(i));
    scene.node("p").children = 1;
    scene.node("p").childNames = many;
    scene.tree.updateUI(scene.item("p"));
    scene.open("p");
    scene.tree.SelectItem(scene.item("p"));
    scene.tree.EnsureVisible(scene.item("c59"));
    ASSERT_NE(scene.tree.GetFirstVisibleItem(), scene.item("p"));
    scene.tree.SendMessage(WM_KEYDOWN, VK_SUBTRACT, 1);
    EXPECT_EQ(scene.all(), Names{"p"});
    EXPECT_EQ(scene.tree.GetFirstVisibleItem(), scene.item("p"));
}
