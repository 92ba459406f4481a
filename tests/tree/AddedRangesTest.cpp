// Ranges that Ctrl+Shift adds, where the host asks for it.
#include "TreeScene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

using namespace ovo::testkit;

using Extra = MultiTreeCtrl::Extra;

TEST(TreeExtras, CtrlShiftClickReplacesTheSelectionByARangeUnlessRangesAreAdded)
{
    for (const bool adds : {false, true}) {
        Scene scene{{"a", "b", "c", "d", "e"}};
        scene.tree.setExtras(adds ? unsigned{Extra::AddRanges} : 0u);
        scene.user.click(scene.label("a"));
        scene.user.holding(VK_CONTROL).click(scene.label("c"));
        scene.forget();
        scene.user.holding(VK_CONTROL).holding(VK_SHIFT).click(scene.label("e"));
        EXPECT_EQ(scene.selected(), adds ? (Names{"a", "c", "d", "e"}) : (Names{"c", "d", "e"}));
        EXPECT_EQ(scene.caret(), "e");
        EXPECT_EQ(scene.changes(), (Changes{{TVC_BYMOUSE, "a", "e"}}));
    }
}

TEST(TreeExtras, CtrlShiftWithKeysAddsARange)
{
    Scene scene{{"a", "b", "c", "d", "e", "f"}};
    scene.tree.setExtras(Extra::AddRanges);
    scene.tree.SetFocus();
    scene.user.click(scene.label("a"));
    scene.user.holding(VK_CONTROL).click(scene.label("c"));
    scene.user.holding(VK_CONTROL).key(VK_DOWN); // the caret to b, the anchor with it
    ASSERT_EQ(scene.caret(), "b");
    scene.tree.selectItemAnchor(scene.item("d"));
    scene.forget();
    scene.user.holding(VK_CONTROL).holding(VK_SHIFT).key(VK_END);
    EXPECT_EQ(scene.selected(), (Names{"a", "c", "d", "e", "f"}));
    EXPECT_EQ(scene.changes(), (Changes{{TVC_BYKEYBOARD, "b", "f"}}));
    scene.user.holding(VK_CONTROL).holding(VK_SHIFT).key(VK_PRIOR);
    EXPECT_EQ(scene.caret(), "a");
    EXPECT_EQ(scene.selected(), (Names{"a", "b", "c", "d", "e", "f"}));
}

TEST(TreeExtras, CtrlShiftWithPageKeysGoesAPageOnAndBack)
{
    Scene scene{numbered(60)};
    scene.tree.setExtras(Extra::AddRanges);
    scene.user.click(scene.label("105"));
    scene.forget();
    scene.user.holding(VK_CONTROL).holding(VK_SHIFT).key(VK_NEXT);
    const std::string end = scene.caret();
    EXPECT_GT(end, "106");
    const Names names = numbered(60);
    const Names range(std::ranges::find(names, "105"), std::next(std::ranges::find(names, end)));
    EXPECT_EQ(scene.selected(), range);
    EXPECT_EQ(scene.changes(), (Changes{{TVC_BYKEYBOARD, "105", end}}));
    scene.user.holding(VK_CONTROL).holding(VK_SHIFT).key(VK_PRIOR);
    EXPECT_EQ(scene.caret(), "105");
    EXPECT_EQ(scene.selected(), range);
}

TEST(TreeExtras, CtrlShiftClickBelowTheLastItemAddsTheRangeToIt)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.tree.setExtras(Extra::AddRanges);
    scene.user.click(scene.label("a"));
    scene.user.holding(VK_CONTROL).click(scene.label("c"));
    scene.forget();
    scene.user.holding(VK_CONTROL).holding(VK_SHIFT).click(scene.below());
    EXPECT_EQ(scene.selected(), (Names{"a", "c", "d"}));
    EXPECT_EQ(scene.caret(), "d");
    EXPECT_EQ(scene.changes(), (Changes{{TVC_BYMOUSE, "a", "d"}}));
}
