// A node's life and its defaults, finding it, and bringing its item up to date.
#include "TreeScene.h"

#include <testkit/Picture.h>

#include <ovoui/tree/DragCursorSet.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// A node that overrides nothing but what it must.
class PlainNode : public MultiTreeCtrl::Node
{
public:
    void activate(MultiTreeCtrl&) override {}
    std::wstring text(const MultiTreeCtrl&) const override { return L"plain"; }
    int closedImage() const override { return 0; }
    int openImage() const override { return 1; }
};

} // namespace

TEST(TreeNode, WhatIsNotOverriddenDoesWhatMostNodesWant)
{
    Scene scene;
    auto* node = new PlainNode;
    const OVO::Handle<MultiTreeCtrl::Node> kept(node);
    MultiTreeCtrl& tree = scene.tree;
    COleDataObject data;

    EXPECT_TRUE(node->canCompare());
    EXPECT_FALSE(node->canRename());
    EXPECT_FALSE(node->canErase());
    EXPECT_FALSE(node->expand(tree));
    EXPECT_EQ(node->infotip(tree), L"");
    EXPECT_TRUE(node->erase(tree));
    EXPECT_TRUE(node->refresh());
    EXPECT_EQ(node->renameText(tree), L"plain");
    EXPECT_FALSE(node->buttonDown(tree, 0, CPoint(), 0));
    EXPECT_FALSE(node->handleLButtonUp(tree, CPoint(), 0));
    EXPECT_FALSE(node->dropInto(data, DROPEFFECT_COPY, tree, -1));

    DWORD effect = 7;
    bool beside = false;
    EXPECT_EQ(node->dragInto(data, effect, beside, -1), 0u);
    EXPECT_TRUE(beside);
    EXPECT_EQ(effect, 0u);

    unsigned flags = 0x12;
    node->hitTest(tree, CPoint(), flags);
    EXPECT_EQ(flags, 0x12u);

    auto* first = reinterpret_cast<CommandSupported*>(1);
    CommandSupported* last = first;
    node->getCommands(first, last);
    EXPECT_EQ(first, nullptr);
    EXPECT_EQ(last, nullptr);
}

TEST(TreeNode, CannotBeDraggedUnlessItSaysSo)
{
    Scene scene;
    PlainNode node;
    const DragCursorSet* cursors = nullptr;
    EXPECT_EQ(node.dragStarting(scene.tree, DROPEFFECT_COPY | DROPEFFECT_MOVE, cursors), 0u);
    EXPECT_EQ(cursors, &defaultDragCursors());
    EXPECT_EQ(sizeof(DragCursorSet), 24u);
}

TEST(TreeNode, ThePreviewIsTheColourOfButtonFaces)
{
    PlainNode node;
    Picture picture(40, 30);
    CDC dc;
    dc.Attach(picture.dc());
    node.drawPreview(dc, CRect(5, 5, 20, 15), nullptr);
    dc.Detach();
    EXPECT_EQ(picture.count(::GetSysColor(COLOR_BTNFACE)), 15 * 10);
    EXPECT_EQ(picture.at(5, 5), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(picture.at(20, 15), RGB(255, 255, 255));
}

TEST(TreeNode, GoesWithItsItemWithoutAnotherHandle)
{
    Scene scene{{"a", "b"}};
    const int before = TestNode::live();
    scene.tree.DeleteItem(scene.item("a"));
    EXPECT_EQ(TestNode::live(), before - 1);
}

TEST(TreeNode, AHandleKeepsItWithoutAnItem)
{
    Scene scene{{"a"}};
    const OVO::Handle<MultiTreeCtrl::Node> kept = scene.tree.node(scene.item("a"));
    scene.tree.DeleteItem(scene.item("a"));
    EXPECT_EQ(kept->hTreeItem(), nullptr);
    EXPECT_EQ(static_cast<TestNode&>(*kept).name, "a");
    EXPECT_NE(kept->insert(scene.tree, TVI_ROOT, TVI_LAST), nullptr);
    EXPECT_EQ(scene.all(), Names{"a"});
}

TEST(TreeNode, AllGoWithTheWindow)
{
    const int before = TestNode::live();
    {
        Scene scene{{"a", "b"}};
        scene.add("c", "a");
        EXPECT_EQ(TestNode::live(), before + 3);
    }
    EXPECT_EQ(TestNode::live(), before);
}

TEST(TreeNode, AllGoWithTheControl)
{
    const int before = TestNode::live();
    RecordingParent parent;
    {
        TestTree tree;
        tree.Create(WS_CHILD, CRect(0, 0, 100, 100), &parent, 1);
        (new TestNode("a"))->insert(tree, TVI_ROOT, TVI_LAST);
        EXPECT_EQ(TestNode::live(), before + 1);
    }
    EXPECT_EQ(TestNode::live(), before);
}

TEST(TreeNode, IsFoundByItsItem)
{
    Scene scene{{"a"}};
    EXPECT_EQ(static_cast<TestNode&>(*scene.tree.node(scene.item("a"))).name, "a");
    EXPECT_FALSE(scene.tree.node(nullptr));
}

TEST(TreeNode, AnItemWithoutANodeIsNoTrouble)
{
    Scene scene{{"a"}};
    const HTREEITEM bare = scene.tree.InsertItem(L"bare");
    EXPECT_FALSE(scene.tree.node(bare));
    scene.tree.updateUI(bare);
    scene.user.click(scene.label("bare"));
    EXPECT_EQ(scene.selected(), Names{"bare"});
    scene.tree.Expand(bare, TVE_EXPAND);
    scene.tree.DeleteItem(bare);
    EXPECT_EQ(scene.all(), Names{"a"});
}

// updateUI

TEST(TreeNode, UpdatingTakesTextStateChildrenAndImagesFromTheNode)
{
    Scene scene{{"a", "b"}};
    TestNode& node = scene.node("a");
    node.name = "new";
    node.state = TVIS_BOLD | TVIS_CUT;
    node.children = 1;
    node.closed = 2;
    node.open = 5;
    scene.tree.updateUI(node);

    const HTREEITEM item = scene.item("new");
    ASSERT_EQ(item, node.hTreeItem());
    EXPECT_EQ(scene.tree.GetItemState(item, 0xFF), UINT{TVIS_BOLD | TVIS_CUT});
    EXPECT_TRUE(scene.tree.ItemHasChildren(item));
    int image = 0;
    int selectedImage = 0;
    scene.tree.GetItemImage(item, image, selectedImage);
    EXPECT_EQ(image, 2);
    EXPECT_EQ(selectedImage, 2);
}

TEST(TreeNode, ANodeWithoutChildrenShowsTheOpenImageWhenSelected)
{
    Scene scene{{"a"}};
    TestNode& node = scene.node("a");
    node.closed = 2;
    node.open = 5;
    scene.tree.updateUI(node);
    int image = 0;
    int selectedImage = 0;
    scene.tree.GetItemImage(node.hTreeItem(), image, selectedImage);
    EXPECT_EQ(image, 2);
    EXPECT_EQ(selectedImage, 5);
}

TEST(TreeNode, UpdatingLeavesTheSelectionAlone)
{
    Scene scene{{"a", "b"}};
    scene.tree.SelectItem(scene.item("b"));
    scene.node("b").state = 0;
    scene.tree.updateUI(scene.node("b"));
    EXPECT_EQ(scene.selected(), Names{"b"});
}

TEST(TreeNode, UpdatingTheCaretTellsTheParent)
{
    Scene scene{{"a", "b"}};
    scene.tree.SelectItem(scene.item("a"));
    scene.forget();
    scene.tree.updateUI(scene.item("b"));
    EXPECT_EQ(scene.changes(), Changes{});
    scene.tree.updateUI(scene.item("a"));
    EXPECT_EQ(scene.changes(), (Changes{{TVC_UNKNOWN, "a", "a"}}));
}

TEST(TreeNode, UpdatingANodeWithoutAnItemDoesNothing)
{
    Scene scene{{"a"}};
    TestNode loose("loose");
    scene.tree.updateUI(loose);
    loose.resetItemText(scene.tree);
    scene.tree.updateUI(static_cast<HTREEITEM>(nullptr));
    EXPECT_EQ(scene.all(), Names{"a"});
    EXPECT_EQ(scene.changes(), Changes{});
}

TEST(TreeNode, ResettingTheTextSetsTheLabelOnly)
{
    Scene scene{{"a"}};
    TestNode& node = scene.node("a");
    node.name = "b";
    node.state = TVIS_BOLD;
    node.resetItemText(scene.tree);
    EXPECT_EQ(scene.all(), Names{"b"});
    EXPECT_EQ(scene.tree.GetItemState(node.hTreeItem(), TVIS_BOLD), 0u);
}

// Deleting all

TEST(TreeNode, DeletingAllReleasesThemAll)
{
    const int before = TestNode::live();
    Scene scene{{"a", "b"}};
    scene.add("c", "a");
    EXPECT_TRUE(scene.tree.DeleteAllItems());
    EXPECT_EQ(scene.tree.GetCount(), 0u);
    EXPECT_EQ(TestNode::live(), before);
}

TEST(TreeNode, DeletingAllKeepsWhatIsBeingTypedIntoALabel)
{
    Scene scene{{"a"}};
    std::wstring taken;
    scene.node("a").renamable = true;
    scene.node("a").renaming = [&](MultiTreeCtrl&, const std::wstring& text) { taken = text; };
    scene.tree.SetFocus();
    CEdit* const edit = scene.tree.EditLabel(scene.item("a"));
    ASSERT_NE(edit, nullptr);
    edit->SetWindowText(L"typed");
    scene.tree.DeleteAllItems();
    EXPECT_EQ(taken, L"typed");
    EXPECT_EQ(scene.tree.GetCount(), 0u);
}
