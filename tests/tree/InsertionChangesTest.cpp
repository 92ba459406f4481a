// Insertions during which items, places or windows change.
#include "NestedScene.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace ovo::testkit;

TEST(TreeChanges, ATextThatDeletesTheChildComparedWithDoesNoHarm)
{
    Scene scene{{"a", "b", "c"}};
    auto* const node = new TestNode("bb");
    bool done = false;
    node->texting = [&] {
        if (!std::exchange(done, true))
            scene.tree.DeleteItem(scene.item("a"));
        return std::wstring(L"bb");
    };
    TestPlace root;
    EXPECT_NE(scene.tree.insert(node, root, 0), nullptr);
    EXPECT_EQ(scene.all(), (Names{"b", "bb", "c"}));
    EXPECT_EQ(TestNode::live(), 3);
}

TEST(TreeChanges, ATextThatDeletesWhereTheNodeGoesDoesNoHarm)
{
    Scene scene{{"a", "b", "c"}};
    auto* const behindB = new TestNode("n");
    behindB->texting = [&] {
        if (scene.tree.GetCount() == 3)
            scene.tree.DeleteItem(scene.item("b"));
        return std::wstring(L"n");
    };
    behindB->insert(scene.tree, TVI_ROOT, scene.item("b"));
    EXPECT_EQ(scene.all(), (Names{"a", "n", "c"}));

    const OVO::Handle<TestNode> underC(new TestNode("m"));
    underC->texting = [&] {
        scene.tree.DeleteAllItems();
        return std::wstring(L"m");
    };
    EXPECT_EQ(underC->insert(scene.tree, scene.item("c"), TVI_LAST), nullptr);
    EXPECT_EQ(scene.all(), Names{});
    EXPECT_EQ(TestNode::live(), 1);
}

TEST(TreeChanges, APlaceThatGoesWhileItIsAskedTakesNothing)
{
    class Place : public TestPlace
    {
    public:
        using TestPlace::TestPlace;
        std::function<void()> asked;
        bool canCompare() const override
        {
            asked();
            return true;
        }
    };
    struct Loss
    {
        const char* what;
        std::function<void(NestedScene&)> happens;
        int itemsLeft;
    };
    const Loss losses[] = {
        {"the item", [](NestedScene& scene) { scene.tree.DeleteItem(scene.item("c")); }, 2},
        {"the parent", [](NestedScene& scene) { scene.tree.DeleteItem(scene.item("p")); }, 1},
        {"all items", [](NestedScene& scene) { scene.tree.DeleteAllItems(); }, 0},
        {"the window", [](NestedScene& scene) { scene.tree.DestroyWindow(); }, 0},
    };
    for (const Loss& loss : losses) {
        NestedScene scene;
        Place place(scene.item("c"));
        place.asked = [&] { loss.happens(scene); };
        EXPECT_EQ(scene.tree.insert(new TestNode("n"), place, 0), nullptr) << loss.what;
        EXPECT_EQ(TestNode::live(), loss.itemsLeft) << loss.what;
    }
}

TEST(TreeChanges, ANodeThatDeletesItselfInItsTextDoesNoHarm)
{
    for (const bool whole : {true, false}) {
        Scene scene{{"a", "b"}};
        TestNode& node = scene.node("a");
        node.texting = [&, name = std::wstring(L"a")] {
            scene.tree.DeleteItem(scene.tree.GetRootItem());
            return name;
        };
        if (whole)
            scene.tree.updateUI(node);
        else
            node.resetItemText(scene.tree);
        EXPECT_EQ(scene.all(), Names{"b"});
        EXPECT_EQ(TestNode::live(), 1);
    }
}

// An exception that a window keeps

TEST(TreeChanges, AnExceptionOfAnotherWindowLeavesTheTreeInOrder)
{
    class Thrower : public CWnd
    {
    public:
        bool throws = false;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_SIZE && throws)
                throw std::runtime_error("not the tree's");
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Scene scene{{"a", "b"}};
    Thrower thrower;
    thrower.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
    thrower.throws = true;
    int width = 10;
    const auto meanwhile = [&](const std::function<void()>& act) {
        // Not a call of the framework's: what is thrown on the way waits for the message loop.
        ::SetWindowPos(thrower.m_hWnd, nullptr, 0, 0, ++width, 10, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_NO_THROW(act()) << "no call of the tree's raises it";
    };
    const OVO::Handle<TestNode> node(new TestNode("n"));
    meanwhile([&] { node->insert(scene.tree, TVI_ROOT, TVI_LAST); });
    EXPECT_EQ(TestNode::live(), 3);
    EXPECT_NE(static_cast<MultiTreeCtrl::Node&>(*node).hTreeItem(), nullptr);
    EXPECT_EQ(scene.all().size(), 3u);
    meanwhile([&] { scene.tree.SendMessage(WM_KEYDOWN, VK_DOWN, 1); });
    // Deletions that have to wait are still carried out.
    scene.node("a").children = 1;
    scene.node("a").expanding = [&](MultiTreeCtrl& tree) {
        tree.DeleteItem(scene.item("b"));
        return false;
    };
    scene.tree.updateUI(scene.item("a"));
    scene.tree.Expand(scene.item("a"), TVE_EXPAND);
    const Names left = scene.all();
    EXPECT_EQ(std::count(left.begin(), left.end(), "b"), 0);
    const auto nextStep = [&] {
        thrower.PostMessage(WM_NULL);
        AfxGetThread()->PumpMessage();
    };
    EXPECT_THROW(nextStep(), std::runtime_error);
    EXPECT_NO_THROW(nextStep());
    thrower.throws = false;
    thrower.DestroyWindow();
}

TEST(TreeChanges, AnExceptionDuringTheInsertionLeavesNoItemBehind)
{
    class Thrower : public TestTree
    {
    public:
        bool throws = false;

    protected:
        LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            const LRESULT result = TestTree::DefWindowProc(message, wParam, lParam);
            if (message == TVM_INSERTITEM && throws)
                throw std::runtime_error("told too late");
            return result;
        }
    };
    RecordingParent parent;
    Thrower tree;
    tree.Create(Scene::kStyle, CRect(0, 0, 100, 100), &parent, 1);
    tree.throws = true;
    {
        const OVO::Handle<TestNode> node(new TestNode("n"));
        EXPECT_THROW(node->insert(tree, TVI_ROOT, TVI_LAST), std::runtime_error);
        EXPECT_EQ(static_cast<MultiTreeCtrl::Node&>(*node).hTreeItem(), nullptr);
        EXPECT_EQ(tree.GetCount(), 0u);
    }
    EXPECT_EQ(TestNode::live(), 0);
    tree.throws = false;
    tree.DestroyWindow();
}
