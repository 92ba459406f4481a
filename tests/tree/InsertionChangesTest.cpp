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

// What is remembered of children that the host keeps in order

namespace
{

/// Fifty children in order. Every one that a node is compared with must be shown.
class OrderedScene : public Scene
{
public:
    OrderedScene()
    {
        tree.setSortedInsertion(MultiTreeCtrl::SortedInsertion::Halve);
        m_place.comparing = [this](MultiTreeCtrl&, const MultiTreeCtrl::Node& a,
                                   const MultiTreeCtrl::Node& b) { return compare(a, b); };
        for (int number = 1000; number < 1050; ++number)
            insert(new TestNode(std::to_string(number)));
    }

    HTREEITEM insert(TestNode* node) { return tree.insert(node, m_place, 0); }

    std::function<void()> meanwhile; ///< happens in the next comparison

private:
    int compare(const MultiTreeCtrl::Node& a, const MultiTreeCtrl::Node& b)
    {
        if (!shows(a)) {
            ADD_FAILURE() << "compared with a node that is behind no item";
            return -1;
        }
        if (const auto happens = std::exchange(meanwhile, nullptr))
            happens();
        return static_cast<const TestNode&>(a).name.compare(static_cast<const TestNode&>(b).name);
    }

    bool shows(const MultiTreeCtrl::Node& node) const
    {
        HTREEITEM item = tree.GetRootItem();
        while (item && tree.GetItemData(item) != reinterpret_cast<DWORD_PTR>(&node))
            item = tree.GetNextSiblingItem(item);
        return item != nullptr;
    }

    TestPlace m_place;
};

/// As a host does that keeps the references itself.
void putAnotherNodeBehind(OrderedScene& scene, const std::string& name)
{
    MultiTreeCtrl::Node& before = scene.node(name);
    MultiTreeCtrl::Node* const now = new TestNode(name);
    now->addRef();
    scene.tree.SetItemData(scene.item(name), reinterpret_cast<DWORD_PTR>(now));
    before.release();
}

struct ChangeOfChildren
{
    const char* what;
    std::function<void(OrderedScene&)> happens;
};

const ChangeOfChildren kChangesOfChildren[] = {
    {"another node behind an item", [](OrderedScene& scene) { putAnotherNodeBehind(scene, "1025"); }},
    {"an item deleted", [](OrderedScene& scene) { scene.tree.DeleteItem(scene.item("1025")); }},
    {"an item in place of another",
     [](OrderedScene& scene) {
         scene.tree.DeleteItem(scene.item("1025"));
         (new TestNode("1025"))->insert(scene.tree, TVI_ROOT, scene.item("1024"));
     }},
    {"an item more",
     [](OrderedScene& scene) { (new TestNode("10255"))->insert(scene.tree, TVI_ROOT, scene.item("1025")); }},
    {"an item deleted, and one more while the parent hears of it",
     [](OrderedScene& scene) {
         scene.parent().answer(TVN_DELETEITEMW, [&scene, done = false](NMHDR*) mutable {
             if (!std::exchange(done, true))
                 scene.insert(new TestNode("10255"));
             return LRESULT{0};
         });
         scene.tree.DeleteItem(scene.item("1025"));
     }},
    {"an item deleted, and one more while its node goes",
     [](OrderedScene& scene) {
         scene.node("1025").onDestroyed = [&scene] {
             scene.insert(new TestNode("10255"));
             return 0;
         };
         scene.tree.DeleteItem(scene.item("1025"));
     }},
    {"all items deleted", [](OrderedScene& scene) { scene.tree.DeleteAllItems(); }},
    {"sorted", [](OrderedScene& scene) { scene.tree.SortChildren(TVI_ROOT); }},
};

enum class When
{
    Before,
    InAComparison,
    InTheText
};

} // namespace

TEST(TreeChanges, SortedChildrenAreFoundAfterEveryChangeOfThem)
{
    for (const ChangeOfChildren& change : kChangesOfChildren)
        for (const When when : {When::Before, When::InAComparison, When::InTheText}) {
            SCOPED_TRACE(std::string(change.what) + ", when " + std::to_string(static_cast<int>(when)));
            {
                OrderedScene scene;
                const auto happens = [&] { change.happens(scene); };
                auto* const node = new TestNode("10405");
                if (when == When::Before)
                    happens();
                else if (when == When::InAComparison)
                    scene.meanwhile = happens;
                else
                    node->texting = [&, done = false]() mutable {
                        if (!std::exchange(done, true))
                            happens();
                        return std::wstring(L"10405");
                    };
                EXPECT_NE(scene.insert(node), nullptr);
                for (const char* const name : {"10245", "10005", "10495", "1024", "1026"})
                    scene.insert(new TestNode(name));
                const Names names = scene.childrenOf("");
                EXPECT_TRUE(std::is_sorted(names.begin(), names.end())) << testing::PrintToString(names);
                for (const char* const name : {"10405", "10245", "10005", "10495", "1024", "1026"})
                    EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << name;
            }
            EXPECT_EQ(TestNode::live(), 0);
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
