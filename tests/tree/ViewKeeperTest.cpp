// What the tree shows, saved as a text and restored.
#include "TreeScene.h"

#include <gtest/gtest.h>

#include <utility>

using namespace ovo::testkit;

namespace
{

/// Folders that make their children anew whenever they are opened, as many hosts' do.
void fill(Scene& scene)
{
    for (const char* const name : {"a", "b", "c"}) {
        TestNode& node = scene.add(name);
        node.children = 1;
        node.expanding = [&scene, &node](MultiTreeCtrl& tree) {
            for (const char* const child : {"one", "two", "two"}) {
                auto* const made = new TestNode(child, &scene.journal);
                made->children = 1;
                made->childNames = {"deep/er"};
                made->insert(tree, node.hTreeItem(), TVI_LAST);
            }
            return true;
        };
        scene.tree.updateUI(node);
    }
}

HTREEITEM childAt(Scene& scene, HTREEITEM parent, int index)
{
    HTREEITEM child = scene.tree.GetChildItem(parent);
    for (; child && index > 0; --index)
        child = scene.tree.GetNextSiblingItem(child);
    return child;
}

/// Opens "b" and its second "two", and selects some.
std::wstring arranged(Scene& scene)
{
    scene.tree.Expand(scene.item("b"), TVE_EXPAND);
    const HTREEITEM second = childAt(scene, scene.item("b"), 2);
    scene.tree.Expand(second, TVE_EXPAND);
    scene.tree.SelectItem(scene.item("deep/er"));
    scene.tree.SetItemState(second, TVIS_SELECTED, TVIS_SELECTED);
    scene.tree.selectItemAnchor(scene.item("a"));
    return scene.tree.saveView();
}

} // namespace

TEST(TreeView, IsSavedAsPaths)
{
    Scene scene;
    fill(scene);
    EXPECT_EQ(narrow(arranged(scene)), "open /b\n"
                                       "open /b/two\\#2\n"
                                       "selected /b/two\\#2\n"
                                       "selected /b/two\\#2/deep\\/er\n"
                                       "caret /b/two\\#2/deep\\/er\n"
                                       "anchor /a\n"
                                       "first /a\n");
}

TEST(TreeView, ComesBackInATreeThatWasFilledAnew)
{
    std::wstring saved;
    {
        Scene scene;
        fill(scene);
        saved = arranged(scene);
    }
    Scene scene;
    fill(scene);
    scene.forget();
    scene.tree.restoreView(saved);
    EXPECT_TRUE(scene.isExpanded("b"));
    EXPECT_EQ(scene.all(), (Names{"a", "b", "one", "two", "two", "deep/er", "c"}));
    EXPECT_EQ(scene.selected(), (Names{"two", "deep/er"}));
    EXPECT_EQ(scene.caret(), "deep/er");
    EXPECT_EQ(scene.changes().size(), 1u);
    EXPECT_EQ(scene.tree.saveView(), saved);
}

TEST(TreeView, ScrollsToWhereItWas)
{
    Names names;
    for (int i = 0; i < 100; ++i)
        names.push_back("item " + std::to_string(i));
    Scene scene{names};
    scene.tree.Select(scene.item("item 40"), TVGN_FIRSTVISIBLE);
    ASSERT_EQ(scene.nameOf(scene.tree.GetFirstVisibleItem()), "item 40");
    const std::wstring saved = scene.tree.saveView();
    scene.tree.EnsureVisible(scene.item("item 0"));
    scene.tree.restoreView(saved);
    EXPECT_EQ(scene.nameOf(scene.tree.GetFirstVisibleItem()), "item 40");
}

TEST(TreeView, LeavesOutWhatIsNotThereAnyMore)
{
    Scene scene;
    fill(scene);
    const std::wstring saved = arranged(scene);
    scene.tree.DeleteItem(scene.item("b"));
    scene.tree.SelectItem(scene.item("c"));
    scene.tree.restoreView(saved);
    EXPECT_EQ(scene.all(), (Names{"a", "c"}));
    EXPECT_EQ(scene.selected(), Names{});
}

TEST(TreeView, TakesAnyText)
{
    for (const wchar_t* const text :
         {L"", L"nonsense", L"open ", L"open /x/y\nselected\ncaret /", L"\\\n\\"}) {
        Scene scene{{"a"}};
        scene.tree.restoreView(text);
        EXPECT_EQ(scene.all(), Names{"a"});
    }
}

/// An entry of the profile that is missing or damaged.
TEST(TreeView, LeavesTheTreeAloneWhereNothingIsSaved)
{
    Scene scene;
    fill(scene);
    const std::wstring shown = arranged(scene);
    scene.forget();
    for (const wchar_t* const text : {L"", L"nonsense", L"open ", L"\\\n\\", L"caret"}) {
        scene.tree.restoreView(text);
        EXPECT_EQ(scene.tree.saveView(), shown) << narrow(text);
    }
    EXPECT_EQ(scene.changes(), Changes{});
}

/// Nodes are asked for their texts, and may do anything.
TEST(TreeView, OutlivesWhatANodeDoes)
{
    const std::function<void(Scene&)> misdeeds[] = {
        [](Scene& scene) { scene.tree.DeleteItem(scene.item("b")); },
        [](Scene& scene) { scene.tree.DeleteItem(scene.item("a")); },
        [](Scene& scene) { scene.tree.DeleteAllItems(); },
        [](Scene& scene) { scene.tree.Expand(scene.item("b"), TVE_COLLAPSE); },
        [](Scene& scene) { scene.tree.restoreView(L"open /c"); },
        [](Scene& scene) { scene.tree.DestroyWindow(); },
        [](Scene&) { throw std::runtime_error("no text"); },
    };
    int number = 0;
    for (const auto& misdeed : misdeeds)
        for (const bool restores : {false, true}) {
            SCOPED_TRACE(std::to_string(number++));
            Scene scene;
            fill(scene);
            const std::wstring saved = arranged(scene);
            bool committed = false;
            scene.node("b").texting = [&]() -> std::wstring {
                if (!std::exchange(committed, true))
                    misdeed(scene);
                return L"b";
            };
            try {
                if (restores)
                    scene.tree.restoreView(saved);
                else
                    scene.tree.saveView();
            } catch (const std::runtime_error& error) {
                EXPECT_STREQ(error.what(), "no text");
            }
            EXPECT_TRUE(committed);
            EXPECT_EQ(TestNode::live(), scene.tree.m_hWnd ? static_cast<int>(scene.tree.GetCount()) : 0);
        }
}
