// The filter: what it takes out of the tree, and that all comes back.
#include "TreeScene.h"

#include <gtest/gtest.h>

#include <utility>

using namespace ovo::testkit;

namespace
{

using Keeps = std::function<bool(const MultiTreeCtrl::Node&)>;

/// Keeps nodes with this in their name.
Keeps with(const std::string& part)
{
    return [part](const MultiTreeCtrl::Node& node) {
        return dynamic_cast<const TestNode&>(node).name.find(part) != std::string::npos;
    };
}

/// Two open folders with leaves, one of them with a folder inside.
struct Garden : Scene
{
    Garden()
        : Scene({"beds", "sheds", "gate"})
    {
        node("beds").childNames = {"rose", "herbs", "rowan"};
        node("sheds").childNames = {"spade", "rope"};
        for (const char* const name : {"beds", "sheds"})
            openUp(name);
        node("herbs").childNames = {"rocket", "mint"};
        openUp("herbs");
        forget();
    }

    void openUp(const std::string& name)
    {
        node(name).children = 1;
        tree.updateUI(item(name));
        tree.Expand(item(name), TVE_EXPAND);
    }

    const Names everything{"beds",  "rose",  "herbs", "rocket", "mint",
                           "rowan", "sheds", "spade", "rope",   "gate"};
};

/// A tree view that closes an item with its last child.
LRESULT CALLBACK closingWithTheLastChild(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                         DWORD_PTR)
{
    const auto item = reinterpret_cast<HTREEITEM>(lParam);
    if (message != TVM_DELETEITEM || !item || item == TVI_ROOT)
        return ::DefSubclassProc(window, message, wParam, lParam);
    const auto next = [window](WPARAM relation, LPARAM from) {
        return ::DefSubclassProc(window, TVM_GETNEXTITEM, relation, from);
    };
    const LPARAM parent = next(TVGN_PARENT, lParam);
    const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
    if (parent && !next(TVGN_CHILD, parent)) {
        TVITEMW closed{};
        closed.mask = TVIF_HANDLE | TVIF_STATE;
        closed.hItem = reinterpret_cast<HTREEITEM>(parent);
        closed.stateMask = TVIS_EXPANDED;
        ::DefSubclassProc(window, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&closed));
    }
    return result;
}

} // namespace

TEST(TreeFilter, KeepsTheHitsAndWhatTheyAreIn)
{
    Garden scene;
    ASSERT_EQ(scene.all(), scene.everything);
    scene.tree.setFilter(with("ro"));
    EXPECT_EQ(scene.all(), (Names{"beds", "rose", "herbs", "rocket", "rowan", "sheds", "rope"}));
    scene.tree.setFilter(with("mint"));
    EXPECT_EQ(scene.all(), (Names{"beds", "herbs", "mint"}));
    scene.tree.setFilter(with("nowhere"));
    EXPECT_EQ(scene.all(), Names{});
    EXPECT_EQ(TestNode::live(), 10);
}

TEST(TreeFilter, WithoutOneAllComesBackWhereItWasAndOpenAsItWas)
{
    Garden scene;
    scene.journal.clear();
    for (const char* const part : {"mint", "nowhere", "gate", "ro", "s"}) {
        scene.tree.setFilter(with(part));
        scene.tree.setFilter(nullptr);
        EXPECT_EQ(scene.all(), scene.everything) << part;
        EXPECT_TRUE(scene.isExpanded("beds")) << part;
        EXPECT_TRUE(scene.isExpanded("herbs")) << part;
        EXPECT_TRUE(scene.node("herbs").expanded()) << part;
    }
    // Nobody was asked to open or close.
    for (const std::string& line : scene.journal)
        EXPECT_TRUE(line.find("expand") == std::string::npos && line.find("collapse") == std::string::npos)
            << line;
}

TEST(TreeFilter, AHiddenNodeHasNoItemAndIsNotSelected)
{
    Garden scene;
    TestNode& spade = scene.node("spade");
    scene.tree.SelectItem(scene.item("spade"));
    scene.tree.SetItemState(scene.item("rose"), TVIS_SELECTED, TVIS_SELECTED);
    scene.forget();
    scene.tree.setFilter(with("rose"));
    EXPECT_EQ(spade.hTreeItem(), nullptr);
    EXPECT_EQ(scene.changes().size(), 1u);
    scene.tree.setFilter(nullptr);
    EXPECT_NE(spade.hTreeItem(), nullptr);
    const Names selected = scene.selected();
    EXPECT_EQ(std::count(selected.begin(), selected.end(), "spade"), 0);
}

TEST(TreeFilter, ASelectedItemThatIsHiddenIsToldThoughTheCaretStays)
{
    Garden scene;
    scene.tree.SelectItem(scene.item("rose"));
    scene.tree.SetItemState(scene.item("spade"), TVIS_SELECTED, TVIS_SELECTED);
    scene.forget();
    scene.tree.setFilter(with("rose"));
    EXPECT_EQ(scene.selected(), Names{"rose"});
    EXPECT_EQ(scene.changes(), (Changes{{TVC_UNKNOWN, "-", "rose"}}));
}

TEST(TreeFilter, WithoutAChangeOfTheSelectionTheParentHearsNothing)
{
    Garden scene;
    scene.tree.SelectItem(scene.item("rose"));
    scene.forget();
    scene.tree.setFilter(with("rose"));
    scene.tree.setFilter(nullptr);
    EXPECT_EQ(scene.selected(), Names{"rose"});
    EXPECT_EQ(scene.changes(), Changes{});
}

TEST(TreeFilter, FiltersWhatIsOpenedMeanwhile)
{
    Garden scene;
    scene.tree.Expand(scene.item("sheds"), TVE_COLLAPSE);
    scene.tree.setFilter([](const MultiTreeCtrl::Node& node) {
        const std::string& name = dynamic_cast<const TestNode&>(node).name;
        return name == "sheds" || name == "rope";
    });
    ASSERT_EQ(scene.all(), Names{"sheds"});
    scene.tree.Expand(scene.item("sheds"), TVE_EXPAND);
    EXPECT_EQ(scene.all(), (Names{"sheds", "rope"}));
    scene.tree.setFilter(nullptr);
    EXPECT_EQ(scene.all(), scene.everything);
}

TEST(TreeFilter, HiddenChildrenGoWhenTheirParentClosesOrGoes)
{
    Garden scene;
    scene.tree.setFilter(with("rope"));
    ASSERT_EQ(scene.all(), (Names{"sheds", "rope"}));
    scene.tree.Expand(scene.item("sheds"), TVE_COLLAPSE);
    scene.tree.Expand(scene.item("sheds"), TVE_EXPAND);
    scene.tree.setFilter(nullptr);
    EXPECT_EQ(scene.childrenOf("sheds"), (Names{"spade", "rope"})); // each once
    scene.tree.setFilter(with("rope"));
    scene.tree.DeleteItem(scene.item("sheds"));
    scene.tree.setFilter(nullptr);
    EXPECT_EQ(scene.all(), (Names{"beds", "rose", "herbs", "rocket", "mint", "rowan", "gate"}));
    EXPECT_EQ(TestNode::live(), 7);
}

TEST(TreeFilter, KeepsTheButtonOfAHitWhoseChildrenAreHidden)
{
    Garden scene;
    scene.tree.setFilter(with("sheds"));
    ASSERT_EQ(scene.all(), Names{"sheds"});
    TVITEM item{};
    item.mask = TVIF_HANDLE | TVIF_CHILDREN;
    item.hItem = scene.item("sheds");
    scene.tree.GetItem(&item);
    EXPECT_EQ(item.cChildren, 1);
}

TEST(TreeFilter, AnItemWhoseChildrenAreHiddenStaysOpenWhateverTheTreeViewDoes)
{
    RecordingParent parent;
    const HWND plain = ::CreateWindowExW(0, WC_TREEVIEWW, L"", Scene::kStyle, 0, 0, 200, 200, parent.m_hWnd,
                                         reinterpret_cast<HMENU>(1), nullptr, nullptr);
    ASSERT_TRUE(::SetWindowSubclass(plain, &closingWithTheLastChild, 1, 0));
    TestTree tree;
    ASSERT_TRUE(tree.SubclassWindow(plain));
    auto* const sheds = new TestNode("sheds");
    sheds->children = 1;
    sheds->childNames = {"spade", "rope"};
    const HTREEITEM item = sheds->insert(tree, TVI_ROOT, TVI_LAST);
    tree.Expand(item, TVE_EXPAND);
    const auto isOpen = [&] { return (tree.GetItemState(item, TVIS_EXPANDED) & TVIS_EXPANDED) != 0; };
    ASSERT_TRUE(isOpen());
    tree.setFilter(with("sheds"));
    EXPECT_EQ(tree.GetChildItem(item), nullptr);
    EXPECT_TRUE(isOpen());
    tree.setFilter(nullptr);
    EXPECT_EQ(tree.GetCount(), 3u);
    EXPECT_TRUE(isOpen());
    tree.DestroyWindow();
}

TEST(TreeFilter, WhatIsInsertedStaysUntilTheNextFilter)
{
    Garden scene;
    scene.tree.setFilter(with("rose"));
    scene.add("new", "beds");
    EXPECT_EQ(scene.all(), (Names{"beds", "rose", "new"}));
    scene.tree.setFilter(with("rose"));
    EXPECT_EQ(scene.all(), (Names{"beds", "rose"}));
    scene.tree.setFilter(nullptr);
    EXPECT_EQ(scene.childrenOf("beds"), (Names{"rose", "herbs", "rowan", "new"}));
}

TEST(TreeFilter, WhatTheHostHasPutElsewhereStaysThere)
{
    Garden scene;
    TestNode& rose = scene.node("rose");
    scene.tree.setFilter(with("rowan"));
    rose.insert(scene.tree, TVI_ROOT, TVI_LAST);
    scene.tree.setFilter(nullptr);
    EXPECT_EQ(scene.childrenOf(""), (Names{"beds", "sheds", "gate", "rose"}));
    EXPECT_EQ(scene.childrenOf("beds"), (Names{"herbs", "rowan"}));
}

TEST(TreeFilter, LeavesItemsWithoutANodeAlone)
{
    Garden scene;
    scene.tree.InsertItem(L"bare");
    scene.tree.setFilter(with("nowhere"));
    EXPECT_EQ(scene.all(), Names{"bare"});
    scene.tree.setFilter(nullptr);
    Names all = scene.everything;
    all.push_back("bare");
    EXPECT_EQ(scene.all(), all);
}

TEST(TreeFilter, AnOpenItemThatComesBackHasItsOpenImage)
{
    Garden scene;
    TestNode& beds = scene.node("beds");
    beds.closed = 1;
    beds.open = 2;
    scene.tree.setFilter(with("nowhere"));
    scene.tree.setFilter(nullptr);
    int image = 0;
    int selectedImage = 0;
    scene.tree.GetItemImage(beds.hTreeItem(), image, selectedImage);
    EXPECT_EQ(image, 2);
    EXPECT_EQ(selectedImage, 2);
}

TEST(TreeFilter, ANodeThatTheHostInsertsItselfIsNotInsertedTwice)
{
    Garden scene;
    TestNode& gate = scene.node("gate");
    scene.tree.setFilter(with("rose"));
    gate.insert(scene.tree, TVI_ROOT, TVI_FIRST);
    scene.tree.setFilter(nullptr);
    const Names all = scene.all();
    EXPECT_EQ(std::count(all.begin(), all.end(), "gate"), 1);
    EXPECT_EQ(TestNode::live(), 10);
}

TEST(TreeFilter, LetsGoOfHiddenNodesWithTheWindow)
{
    {
        Garden scene;
        scene.tree.setFilter(with("nowhere"));
        scene.tree.DestroyWindow();
        EXPECT_EQ(TestNode::live(), 0);
    }
    Garden scene;
    scene.tree.setFilter(with("nowhere"));
    scene.tree.DeleteAllItems();
    EXPECT_EQ(TestNode::live(), 0);
    scene.tree.setFilter(nullptr);
    EXPECT_EQ(scene.tree.GetCount(), 0u);
}

// What it asks for may raise, and may change the tree

TEST(TreeFilter, WhatTheFunctionRaisesPassesOnAndAllIsShown)
{
    Garden scene;
    scene.tree.setFilter(with("rose"));
    EXPECT_THROW(scene.tree.setFilter([](const MultiTreeCtrl::Node& node) -> bool {
        if (dynamic_cast<const TestNode&>(node).name == "rope")
            throw std::runtime_error("no answer");
        return false;
    }),
                 std::runtime_error);
    EXPECT_EQ(scene.all(), scene.everything);
    // And there is no filter for what is opened later.
    scene.tree.Expand(scene.item("sheds"), TVE_COLLAPSE);
    scene.tree.Expand(scene.item("sheds"), TVE_EXPAND);
    EXPECT_EQ(scene.all(), scene.everything);
    EXPECT_EQ(scene.tree.errors, Journal{});
}

TEST(TreeFilter, WhatANodeDoesWhenItsEditorClosesLosesNoNode)
{
    Garden scene;
    TestNode& rope = scene.node("rope");
    rope.renamable = true;
    rope.editEnds = [](MultiTreeCtrl& tree) { tree.setFilter(nullptr); };
    scene.tree.SetFocus();
    ASSERT_NE(scene.tree.EditLabel(scene.item("rope")), nullptr);
    scene.tree.setFilter(with("rose"));
    EXPECT_EQ(scene.tree.GetEditControl(), nullptr);
    EXPECT_EQ(scene.all(), (Names{"beds", "rose"}));
    scene.tree.setFilter(nullptr);
    EXPECT_EQ(scene.all(), scene.everything);
    EXPECT_EQ(TestNode::live(), 10);
}

TEST(TreeFilter, OutlivesWhatTheHostDoesMeanwhile)
{
    const std::function<void(Scene&)> misdeeds[] = {
        [](Scene& scene) { scene.tree.DeleteItem(scene.item("beds")); },
        [](Scene& scene) { scene.tree.DeleteItem(scene.item("rope")); },
        [](Scene& scene) { scene.tree.Expand(scene.item("sheds"), TVE_COLLAPSE); },
        [](Scene& scene) { scene.tree.DeleteAllItems(); },
        [](Scene& scene) { scene.add("new", "sheds"); },
        [](Scene& scene) { scene.tree.setFilter(nullptr); },
        [](Scene& scene) { scene.tree.setFilter(with("o")); },
        [](Scene& scene) { scene.tree.DestroyWindow(); },
    };
    int number = 0;
    for (const auto& misdeed : misdeeds)
        for (const bool whenShown : {false, true}) {
            SCOPED_TRACE(std::to_string(number++));
            Garden scene;
            bool committed = false;
            const auto commit = [&] {
                if (!std::exchange(committed, true))
                    misdeed(scene);
            };
            if (whenShown) {
                scene.tree.setFilter(with("ro"));
                scene.journal.clear();
                // A hidden node is asked for its text when it comes back.
                scene.tree.setFilter([&](const MultiTreeCtrl::Node&) {
                    commit();
                    return true;
                });
            } else {
                scene.tree.setFilter([&](const MultiTreeCtrl::Node& node) {
                    if (dynamic_cast<const TestNode&>(node).name == "mint")
                        commit();
                    return false;
                });
            }
            EXPECT_TRUE(committed);
            if (!scene.tree.m_hWnd) {
                EXPECT_EQ(TestNode::live(), 0);
                continue;
            }
            scene.tree.setFilter(nullptr);
            EXPECT_EQ(TestNode::live(), static_cast<int>(scene.tree.GetCount()));
        }
}

TEST(TreeFilter, OutlivesWhatANodeDoesWhenItComesBack)
{
    const std::function<void(Scene&)> misdeeds[] = {
        [](Scene& scene) { scene.tree.DeleteAllItems(); },
        [](Scene& scene) { scene.tree.setFilter(with("rose")); },
        [](Scene& scene) { scene.tree.DestroyWindow(); },
        [](Scene&) { throw std::runtime_error("no text"); },
    };
    int number = 0;
    for (const auto& misdeed : misdeeds) {
        SCOPED_TRACE(std::to_string(number++));
        Garden scene;
        bool committed = false;
        TestNode& rope = scene.node("rope");
        scene.tree.setFilter(with("rose"));
        rope.texting = [&]() -> std::wstring {
            if (!std::exchange(committed, true))
                misdeed(scene);
            return L"rope";
        };
        try {
            scene.tree.setFilter(nullptr);
        } catch (const std::runtime_error& error) {
            EXPECT_STREQ(error.what(), "no text");
        }
        EXPECT_TRUE(committed);
        if (scene.tree.m_hWnd) {
            scene.tree.setFilter(nullptr);
            EXPECT_EQ(TestNode::live(), static_cast<int>(scene.tree.GetCount()));
        } else {
            EXPECT_EQ(TestNode::live(), 0);
        }
    }
}
