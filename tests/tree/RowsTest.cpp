// Every displayed item has a row of its own, in the order of the tree, whatever happens to hidden ones.
#include "TreeScene.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// "p", open, with "c" below it, open, with "x" and "y"; "q" and "r" stand behind "p".
class RowScene : public Scene
{
public:
    RowScene()
        : Scene({"p", "q", "r"})
    {
        growAll();
    }

    /// The same in another window.
    void makeAnew()
    {
        tree.DestroyWindow();
        tree.Create(kStyle, CRect(10, 10, 400, 360), &parent(), 7);
        for (const char* const name : {"p", "q", "r"})
            add(name);
        growAll();
    }

    /// Hides what is below an item as a host may, without a word to the tree view.
    void closeByState(const std::string& name) { tree.SetItemState(item(name), 0, TVIS_EXPANDED); }

    /// Which item a user finds in each row.
    Names rows()
    {
        Names found;
        CRect first;
        tree.GetItemRect(tree.GetFirstVisibleItem(), &first, FALSE);
        for (CPoint at(100, first.CenterPoint().y);; at.y += first.Height()) {
            const HTREEITEM hit = tree.CTreeCtrl::HitTest(at);
            if (!hit)
                return found;
            CRect rect;
            tree.GetItemRect(hit, &rect, FALSE);
            found.push_back(nameOf(hit) + (rect.PtInRect(at) ? "" : " elsewhere"));
        }
    }

private:
    void growAll()
    {
        grow("p", {"c"});
        grow("c", {"x", "y"});
    }
    void grow(const std::string& name, const Names& children)
    {
        node(name).children = 1;
        node(name).childNames = children;
        tree.updateUI(item(name));
        open(name);
    }
};

} // namespace

TEST(TreeRows, AnItemClosedByItsStateHidesItsChildren)
{
    RowScene scene;
    ASSERT_EQ(scene.rows(), (Names{"p", "c", "x", "y", "q", "r"}));
    scene.closeByState("p");
    EXPECT_EQ(scene.rows(), (Names{"p", "q", "r"}));
}

TEST(TreeRows, DeletingHiddenItemsLeavesTheOthersWhereTheyAre)
{
    RowScene scene;
    scene.closeByState("p");
    scene.tree.DeleteItem(scene.item("y"));
    EXPECT_EQ(scene.rows(), (Names{"p", "q", "r"}));
    scene.tree.DeleteItem(scene.item("c"));
    EXPECT_EQ(scene.rows(), (Names{"p", "q", "r"}));
}

TEST(TreeRows, InsertingIntoAHiddenItemLeavesTheOthersWhereTheyAre)
{
    RowScene scene;
    scene.closeByState("p");
    scene.add("z", "c");
    EXPECT_EQ(scene.rows(), (Names{"p", "q", "r"}));
}

TEST(TreeRows, ClosingAHiddenItemLeavesTheOthersWhereTheyAre)
{
    RowScene scene;
    scene.closeByState("p");
    scene.tree.Expand(scene.item("c"), TVE_COLLAPSE);
    EXPECT_EQ(scene.rows(), (Names{"p", "q", "r"}));
}

TEST(TreeRows, AnItemThatHidesItselfWhileItIsClosedLeavesTheOthersWhereTheyAre)
{
    for (const UINT key : {VK_SUBTRACT, VK_LEFT}) {
        RowScene scene;
        scene.node("c").collapsing = [&](MultiTreeCtrl&) { scene.closeByState("p"); };
        scene.tree.SelectItem(scene.item("c"));
        scene.tree.SendMessage(WM_KEYDOWN, key, 1);
        EXPECT_EQ(scene.rows(), (Names{"p", "q", "r"})) << key;
    }
}

TEST(TreeRows, AnItemThatHidesItselfWhileItIsOpenedLeavesTheOthersWhereTheyAre)
{
    RowScene scene;
    scene.tree.Expand(scene.item("c"), TVE_COLLAPSE);
    scene.node("c").expanding = [&](MultiTreeCtrl&) {
        scene.add("x", "c");
        scene.closeByState("p");
        return true;
    };
    scene.tree.SelectItem(scene.item("c"));
    scene.tree.SendMessage(WM_KEYDOWN, VK_ADD, 1);
    EXPECT_EQ(scene.rows(), (Names{"p", "q", "r"}));
}

TEST(TreeRows, WhileRedrawingIsHeldTheLayoutWaits)
{
    RowScene scene;
    scene.tree.SetRedraw(FALSE);
    scene.closeByState("p");
    scene.tree.DeleteItem(scene.item("y"));
    scene.tree.SetRedraw(TRUE);
    EXPECT_EQ(scene.rows(), (Names{"p", "q", "r"}));
}

TEST(TreeRows, AWindowMadeAnewIsNotHeldAsTheOneBefore)
{
    RowScene scene;
    scene.tree.SetRedraw(FALSE);
    scene.makeAnew();
    scene.closeByState("p");
    EXPECT_EQ(scene.rows(), (Names{"p", "q", "r"}));
}

TEST(TreeRows, BringingAnItemIntoViewThatStaysHiddenScrollsToWhatIsDisplayed)
{
    Scene scene;
    for (int i = 0; i < 60; ++i)
        scene.add("n" + std::to_string(i));
    scene.add("hidden", "n5"); // which refuses to open
    scene.tree.EnsureVisible(scene.item("n59"));
    for (const bool selects : {false, true}) {
        if (selects)
            scene.tree.SelectItem(scene.item("hidden"));
        else
            scene.tree.EnsureVisible(scene.item("hidden"));
        EXPECT_EQ(scene.nameOf(scene.tree.GetFirstVisibleItem()), "n5");
        scene.tree.EnsureVisible(scene.item("n20"));
        CRect rect;
        scene.tree.GetItemRect(scene.item("n20"), &rect, FALSE);
        EXPECT_EQ(scene.nameOf(scene.tree.CTreeCtrl::HitTest(rect.CenterPoint())), "n20");
        scene.tree.EnsureVisible(scene.item("n59"));
    }
}

// What is typed leads to "b", whose host closes the item that it is in; the tree view then brings the hidden
// "b" into view, and after its end the item behind it.
TEST(TreeRows, TypingTheNameOfAnItemThatItsHostHidesScrollsToWhatIsDisplayed)
{
    for (const bool another : {false, true}) {
        SCOPED_TRACE(another);
        Scene scene;
        for (int i = 0; i < 60; ++i)
            scene.add("n" + std::to_string(i));
        scene.node("n5").children = 1;
        scene.node("n5").childNames = {"a", "b"};
        scene.tree.updateUI(scene.item("n5"));
        scene.open("n5");
        scene.node("n5").expanding = [](MultiTreeCtrl&) { return false; };
        scene.tree.SelectItem(scene.item("n15"));
        scene.tree.Select(scene.item("n10"), TVGN_FIRSTVISIBLE);
        scene.parent().answer(static_cast<UINT>(TVN_SELCHANGEDW),
                              [&, told = false](NMHDR*) mutable -> LRESULT {
                                  if (std::exchange(told, true))
                                      return 0;
                                  scene.tree.Expand(scene.item("n5"), TVE_COLLAPSE);
                                  if (another)
                                      scene.add("hidden", "n5");
                                  return 0;
                              });
        scene.tree.SendMessage(WM_CHAR, L'b', 1);
        EXPECT_EQ(scene.nameOf(scene.tree.GetFirstVisibleItem()), "n5");
        CRect rect;
        EXPECT_TRUE(scene.tree.GetItemRect(scene.item("n5"), &rect, FALSE));
        EXPECT_EQ(rect.top, 0);
    }
}
