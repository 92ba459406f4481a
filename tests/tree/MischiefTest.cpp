// Nodes and subscribers that change the tree under its feet: whatever they do in whatever operation, the tree
// goes on working, and no node is lost or destroyed twice.
#include "TreeOperations.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace ovo::testkit;

namespace
{

struct Misdeed
{
    const char* name;
    std::function<void(Scene&)> commit;
};

void PrintTo(const Misdeed& misdeed, std::ostream* out)
{
    *out << misdeed.name;
}

HTREEITEM itemOfA(Scene& scene)
{
    for (HTREEITEM at = scene.tree.GetRootItem(); at; at = scene.tree.GetNextSiblingItem(at))
        if (scene.nameOf(at) == "a")
            return at;
    return nullptr;
}

const Misdeed kMisdeeds[] = {
    {"DeletesItself",
     [](Scene& scene) {
         if (const HTREEITEM item = itemOfA(scene))
             scene.tree.DeleteItem(item);
     }},
    {"DeletesItsSiblings",
     [](Scene& scene) {
         for (HTREEITEM at = scene.tree.GetRootItem(); at;) {
             const HTREEITEM next = scene.tree.GetNextSiblingItem(at);
             if (scene.nameOf(at) != "a")
                 scene.tree.DeleteItem(at);
             at = next;
         }
     }},
    {"ClearsTheTree", [](Scene& scene) { scene.tree.DeleteAllItems(); }},
    {"InsertsItselfAnew",
     [](Scene& scene) {
         const HTREEITEM item = itemOfA(scene);
         const OVO::Handle<MultiTreeCtrl::Node> node = item ? scene.tree.node(item) : nullptr;
         if (!node)
             return;
         scene.tree.DeleteItem(item);
         if (!node->hTreeItem())
             node->insert(scene.tree, TVI_ROOT, TVI_LAST);
     }},
    {"RunsAMessageLoop",
     [](Scene& scene) {
         scene.tree.PostMessage(WM_KEYDOWN, VK_DOWN, 1);
         MSG message;
         while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
             ::DispatchMessageW(&message);
     }},
    {"SelectsAnother",
     [](Scene& scene) {
         if (scene.tree.GetCount() > 1)
             scene.tree.SelectItem(scene.tree.GetNextSiblingItem(scene.tree.GetRootItem()));
     }},
    {"DestroysTheWindow", [](Scene& scene) { scene.tree.DestroyWindow(); }},
};

int itemsIn(Scene& scene)
{
    return scene.tree.m_hWnd ? static_cast<int>(scene.tree.GetCount()) : 0;
}

class TreeMischief : public ::testing::TestWithParam<std::tuple<Operation, Misdeed>>
{
protected:
    TreeMischief() { prepareForOperations(scene); }

    void commitOnce()
    {
        if (std::exchange(m_committed, true))
            return;
        std::get<1>(GetParam()).commit(scene);
    }

    /// As many nodes as items, and a tree that can be used.
    void expectSound()
    {
        if (scene.tree.m_hWnd && scene.tree.GetEditControl())
            scene.tree.SendMessage(TVM_ENDEDITLABELNOW, TRUE);
        EXPECT_TRUE(m_committed);
        EXPECT_EQ(TestNode::live(), itemsIn(scene));
        if (!scene.tree.m_hWnd)
            return;
        TestNode& added = scene.addTo(TVI_ROOT, "later");
        scene.tree.SelectItem(added.hTreeItem());
        EXPECT_EQ(scene.selected(), Names{"later"});
        EXPECT_EQ(TestNode::live(), itemsIn(scene));
        scene.tree.DeleteAllItems();
        EXPECT_EQ(TestNode::live(), 0);
    }

    Scene scene{{"a", "b", "c"}};

private:
    bool m_committed = false;
};

} // namespace

TEST_P(TreeMischief, DoesNoHarm)
{
    const Operation& operation = std::get<0>(GetParam());
    operation.arm(scene.node("a"), [this] { commitOnce(); });
    operation.act(scene);
    expectSound();
}

INSTANTIATE_TEST_SUITE_P(Nodes, TreeMischief,
                         ::testing::Combine(::testing::ValuesIn(treeOperations()),
                                            ::testing::ValuesIn(kMisdeeds)),
                         [](const auto& info) {
                             return std::string(std::get<0>(info.param).name) + std::get<1>(info.param).name;
                         });

// Subscribers to gestures

class TreeSubscribers : public ::testing::TestWithParam<Misdeed>
{
};

TEST_P(TreeSubscribers, DoNoHarm)
{
    for (const bool atTheEnd : {false, true}) {
        Scene scene{{"a", "b", "c"}};
        prepareForOperations(scene);
        bool committed = false;
        const auto subscription = scene.tree.gestureEV().subscribe([&](const int& code) {
            if ((code == 0) == atTheEnd && !std::exchange(committed, true))
                GetParam().commit(scene);
        });
        scene.tree.SendMessage(WM_KEYDOWN, VK_RETURN, 1);
        EXPECT_TRUE(committed);
        EXPECT_EQ(TestNode::live(), itemsIn(scene));
    }
}

INSTANTIATE_TEST_SUITE_P(Gestures, TreeSubscribers, ::testing::ValuesIn(kMisdeeds),
                         [](const auto& info) { return info.param.name; });
