// Opening and closing items.
#include "TreeScene.h"

#include <ovocor/OvoError.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

TestNode& folder(Scene& scene, const std::string& name, const Names& children)
{
    TestNode& node = scene.node(name);
    node.childNames = children;
    node.children = 1;
    node.closed = 1;
    node.open = 2;
    scene.tree.updateUI(node);
    scene.forget();
    return node;
}

int imageOf(Scene& scene, const std::string& name)
{
    int image = 0;
    int selectedImage = 0;
    scene.tree.GetItemImage(scene.item(name), image, selectedImage);
    return image;
}

} // namespace

TEST(TreeExpansion, TheButtonOpensAndTheNodeInsertsItsChildren)
{
    Scene scene{{"a", "b"}};
    TestNode& a = folder(scene, "a", {"x", "y"});
    scene.user.click(scene.button("a"));
    EXPECT_EQ(scene.all(), (Names{"a", "x", "y", "b"}));
    EXPECT_EQ(scene.journal, (Journal{"expand a"}));
    EXPECT_TRUE(scene.isExpanded("a"));
    EXPECT_TRUE(a.expanded());
    EXPECT_EQ(imageOf(scene, "a"), 2);
}

TEST(TreeExpansion, ANodeThatDoesNotExpandStaysClosed)
{
    Scene scene{{"a"}};
    TestNode& a = folder(scene, "a", {});
    scene.user.click(scene.button("a"));
    EXPECT_EQ(scene.journal, (Journal{"expand a"}));
    EXPECT_FALSE(scene.isExpanded("a"));
    EXPECT_FALSE(a.expanded());
    EXPECT_EQ(imageOf(scene, "a"), 1);
    scene.user.click(scene.button("a"));
    EXPECT_EQ(scene.journal, (Journal{"expand a", "expand a"}));
}

TEST(TreeExpansion, ClosingDeletesTheChildrenAndOpeningMakesThemAnew)
{
    Scene scene{{"a"}};
    TestNode& a = folder(scene, "a", {"x", "y"});
    const int before = TestNode::live();
    scene.user.click(scene.button("a"));
    EXPECT_EQ(TestNode::live(), before + 2);
    scene.user.click(scene.button("a"));
    EXPECT_EQ(scene.all(), Names{"a"});
    EXPECT_EQ(TestNode::live(), before);
    EXPECT_FALSE(a.expanded());
    EXPECT_EQ(imageOf(scene, "a"), 1);
    EXPECT_TRUE(scene.tree.ItemHasChildren(scene.item("a")));
    scene.user.click(scene.button("a"));
    EXPECT_EQ(scene.all(), (Names{"a", "x", "y"}));
    EXPECT_EQ(scene.journal, (Journal{"expand a", "collapse a", "expand a"}));
}

TEST(TreeExpansion, TheKeyboardOpensAndCloses)
{
    Scene scene{{"a"}};
    folder(scene, "a", {"x"});
    scene.user.click(scene.label("a"));
    scene.user.key(VK_RIGHT);
    EXPECT_EQ(scene.all(), (Names{"a", "x"}));
    scene.user.key(VK_LEFT);
    EXPECT_EQ(scene.all(), Names{"a"});
}

TEST(TreeExpansion, ClosingAnItemAboveTheCaretTakesTheCaret)
{
    Scene scene{{"a"}};
    folder(scene, "a", {"x", "y"});
    scene.open("a");
    scene.user.click(scene.label("y"));
    scene.user.click(scene.button("a"));
    EXPECT_EQ(scene.all(), Names{"a"});
    EXPECT_EQ(scene.caret(), "a");
}

TEST(TreeExpansion, BothWaysOfClosingAskTheNode)
{
    Scene scene{{"a"}};
    folder(scene, "a", {"x"});
    scene.open("a");
    scene.tree.Expand(scene.item("a"), TVE_COLLAPSE);
    EXPECT_EQ(scene.all(), Names{"a"});
    scene.open("a");
    scene.tree.Expand(scene.item("a"), TVE_COLLAPSE | TVE_COLLAPSERESET);
    EXPECT_EQ(scene.all(), Names{"a"});
    EXPECT_EQ(scene.journal, (Journal{"expand a", "collapse a", "expand a", "collapse a"}));
}

TEST(TreeExpansion, OpeningAnOpenItemAsksNoNode)
{
    Scene scene{{"a"}};
    folder(scene, "a", {"x"});
    scene.open("a");
    scene.forget();
    scene.tree.Expand(scene.item("a"), TVE_EXPAND);
    EXPECT_EQ(scene.journal, Journal{});
    EXPECT_EQ(scene.all(), (Names{"a", "x"}));
}

TEST(TreeExpansion, WhatTheTreeViewSaysOfTheChildrenIsTheNodesWord)
{
    Scene scene{{"a"}};
    TestNode& a = folder(scene, "a", {"x"});
    NMTREEVIEW told{};
    told.hdr = {scene.tree.m_hWnd, 7, static_cast<UINT>(TVN_ITEMEXPANDEDW)};
    told.action = TVE_EXPAND;
    told.itemNew.mask = TVIF_HANDLE | TVIF_STATE;
    told.itemNew.hItem = a.hTreeItem();
    const auto tell = [&] { scene.parent().SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&told)); };
    tell();
    EXPECT_EQ(a.children, 1) << "nothing was said";
    told.itemNew.mask |= TVIF_CHILDREN;
    tell();
    EXPECT_EQ(a.children, 0);
    EXPECT_FALSE(scene.tree.ItemHasChildren(a.hTreeItem()));
}

TEST(TreeExpansion, AnErrorIsReportedAndTheItemShowsTheNodesState)
{
    Scene scene{{"a"}};
    TestNode& a = folder(scene, "a", {});
    a.expanding = [](MultiTreeCtrl&) -> bool { throw OvoError(L"the disc is gone"); };
    scene.user.click(scene.button("a"));
    EXPECT_EQ(scene.tree.errors, (Journal{"the disc is gone"}));
    EXPECT_EQ(scene.isExpanded("a"), a.expanded());

    a.expanding = [](MultiTreeCtrl&) -> bool { throw std::runtime_error("what?"); };
    a.state = 0;
    scene.tree.errors.clear();
    scene.tree.SetItemState(scene.item("a"), 0, TVIS_EXPANDED);
    scene.user.click(scene.button("a"));
    EXPECT_EQ(scene.tree.errors, (Journal{"what?"}));
}

/// Only a node that says so keeps its item closed.
TEST(TreeExpansion, AnItemOpensWithTheChildrenThatWereMadeBeforeAnError)
{
    Scene scene{{"a", "b"}};
    for (const char* name : {"a", "b"}) {
        TestNode& node = folder(scene, name, {});
        node.expanding = [&node](MultiTreeCtrl& tree) -> bool {
            node.state |= TVIS_BOLD;
            node.name += "!";
            if (node.name == "a!")
                (new TestNode("x"))->insert(tree, node.hTreeItem(), TVI_LAST);
            throw OvoError(L"the rest cannot be read");
        };
        scene.tree.Expand(node.hTreeItem(), TVE_EXPAND);
        EXPECT_EQ(scene.tree.errors, (Journal{"the rest cannot be read"}));
    }
    EXPECT_EQ(scene.all(), (Names{"a!", "x", "b!"})) << "the items show what the nodes are now";
    EXPECT_TRUE(scene.isExpanded("a!"));
    EXPECT_TRUE(scene.node("a!").expanded());
    EXPECT_EQ(imageOf(scene, "a!"), 2);
    for (const char* name : {"a!", "b!"})
        EXPECT_NE(scene.tree.GetItemState(scene.item(name), TVIS_BOLD), 0u) << name;
}

TEST(TreeExpansion, AForeignExceptionPassesOnAndTheTreeGoesOnWorking)
{
    Scene scene{{"a", "b"}};
    TestNode& a = folder(scene, "a", {"x"});
    a.expanding = [](MultiTreeCtrl&) -> bool { throw 42; };
    EXPECT_THROW(scene.tree.Expand(scene.item("a"), TVE_EXPAND), int);
    EXPECT_EQ(scene.tree.errors, Journal{});
    a.expanding = nullptr;
    scene.tree.SetItemState(scene.item("a"), 0, TVIS_EXPANDED);
    scene.tree.Expand(scene.item("a"), TVE_EXPAND);
    EXPECT_EQ(scene.all(), (Names{"a", "x", "b"}));
}

TEST(TreeExpansion, DeletionsThatHaveToWaitAreCarriedOutAfterAForeignExceptionToo)
{
    Scene scene{{"a", "b", "c"}};
    TestNode& a = folder(scene, "a", {"x"});
    a.expanding = [&](MultiTreeCtrl& tree) -> bool {
        tree.DeleteItem(scene.item("b"));
        throw 42;
    };
    EXPECT_THROW(scene.tree.Expand(scene.item("a"), TVE_EXPAND), int);
    EXPECT_EQ(scene.tree.GetCount(), 2u);
    a.expanding = [&](MultiTreeCtrl& tree) {
        EXPECT_TRUE(tree.DeleteItem(scene.item("c"))) << "it goes for certain";
        return false;
    };
    scene.tree.SetItemState(scene.item("a"), 0, TVIS_EXPANDED);
    scene.tree.Expand(scene.item("a"), TVE_EXPAND);
    EXPECT_EQ(scene.tree.GetCount(), 1u);
    EXPECT_EQ(TestNode::live(), 1);
}

TEST(TreeExpansion, AnErrorWhileClosingIsReportedAndTheChildrenGo)
{
    Scene scene{{"a"}};
    TestNode& a = folder(scene, "a", {"x"});
    a.collapsing = [](MultiTreeCtrl&) { throw OvoError(L"cannot"); };
    scene.open("a");
    scene.user.click(scene.button("a"));
    EXPECT_EQ(scene.tree.errors, (Journal{"cannot"}));
    EXPECT_EQ(scene.all(), Names{"a"});
}

TEST(TreeExpansion, ANodeThatDeletesItselfWhileItOpensDoesNoHarm)
{
    Scene scene{{"a", "b"}};
    folder(scene, "a", {}).expanding = [&](MultiTreeCtrl& tree) {
        tree.DeleteItem(scene.item("a"));
        return true;
    };
    const int before = TestNode::live();
    scene.user.click(scene.button("a"));
    EXPECT_EQ(scene.all(), Names{"b"});
    EXPECT_EQ(TestNode::live(), before - 1);
}

TEST(TreeExpansion, ANodeThatClearsTheTreeWhileItOpensDoesNoHarm)
{
    Scene scene{{"a", "b"}};
    folder(scene, "a", {}).expanding = [](MultiTreeCtrl& tree) {
        tree.DeleteAllItems();
        return true;
    };
    scene.user.click(scene.button("a"));
    EXPECT_EQ(scene.tree.GetCount(), 0u);
}

TEST(TreeExpansion, ANodeThatDeletesItsSiblingsWhileItClosesDoesNoHarm)
{
    Scene scene{{"a", "b", "c"}};
    folder(scene, "b", {"x"}).collapsing = [&](MultiTreeCtrl& tree) {
        tree.DeleteItem(scene.item("a"));
        tree.DeleteItem(scene.item("c"));
    };
    scene.open("b");
    scene.user.click(scene.button("b"));
    EXPECT_EQ(scene.all(), Names{"b"});
}

TEST(TreeExpansion, ANodeThatPumpsMessagesWhileItOpensDoesNoHarm)
{
    Scene scene{{"a"}};
    TestNode& a = folder(scene, "a", {});
    a.expanding = [&](MultiTreeCtrl& tree) {
        (new TestNode("x"))->insert(tree, a.hTreeItem(), TVI_LAST);
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessageW(&message);
        tree.UpdateWindow();
        return true;
    };
    scene.user.click(scene.button("a"));
    EXPECT_EQ(scene.all(), (Names{"a", "x"}));
    EXPECT_TRUE(scene.isExpanded("a"));
}

TEST(TreeExpansion, ANodeThatInsertsItselfElsewhereWhileItOpensDoesNoHarm)
{
    Scene scene{{"a", "b"}};
    TestNode& a = folder(scene, "a", {});
    const OVO::Handle<MultiTreeCtrl::Node> kept(&a);
    a.expanding = [&](MultiTreeCtrl& tree) {
        tree.DeleteItem(a.hTreeItem());
        a.insert(tree, TVI_ROOT, TVI_LAST);
        return true;
    };
    scene.user.click(scene.button("a"));
    EXPECT_EQ(scene.all(), (Names{"b", "a"}));
    EXPECT_EQ(a.hTreeItem(), scene.item("a"));
}

TEST(TreeExpansion, TheWaitCursorIsShownMeanwhile)
{
    Scene scene{{"a"}};
    HCURSOR meanwhile = nullptr;
    folder(scene, "a", {}).expanding = [&](MultiTreeCtrl&) {
        meanwhile = ::GetCursor();
        return false;
    };
    scene.user.click(scene.button("a"));
    EXPECT_EQ(meanwhile, ::LoadCursorW(nullptr, IDC_WAIT));
    EXPECT_NE(::GetCursor(), ::LoadCursorW(nullptr, IDC_WAIT));
}

TEST(TreeExpansion, ClosingALargeFolderRepaintsOnce)
{
    Scene scene{{"a"}};
    Names many;
    for (int i = 0; i < 300; ++i)
        many.push_back(std::to_string(i));
    folder(scene, "a", many);
    scene.open("a");
    scene.tree.UpdateWindow();
    scene.tree.counting = true;
    scene.tree.Expand(scene.item("a"), TVE_COLLAPSE);
    scene.tree.UpdateWindow();
    EXPECT_EQ(scene.tree.paints, 1);
    EXPECT_EQ(scene.all(), Names{"a"});
}

TEST(TreeExpansion, AParentThatRaisesAnExceptionWhenTheCaretLeavesKeepsNoChildren)
{
    Scene scene{{"a"}};
    folder(scene, "a", {"x", "y"});
    scene.open("a");
    scene.tree.SelectItem(scene.item("x"));
    scene.parent().answer(static_cast<UINT>(TVN_SELCHANGEDW), [](NMHDR*) -> LRESULT { throw 7; });
    // By its button: then the caret is still below the item when the tree hears of it.
    CPoint at = scene.labelPoint("a");
    UINT part = 0;
    while (--at.x > 0 && !(part & TVHT_ONITEMBUTTON))
        scene.tree.CTreeCtrl::HitTest(at, &part);
    EXPECT_THROW(scene.tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y)), int);
    scene.parent().answer(static_cast<UINT>(TVN_SELCHANGEDW), 0);
    EXPECT_EQ(scene.all(), Names{"a"});
    EXPECT_EQ(TestNode::live(), 1);
}
