// Finding by typing anywhere in a label, where the host asks for it.
#include "TreeScene.h"

#include <gtest/gtest.h>

#include <utility>

using namespace ovo::testkit;

namespace
{

using Extra = MultiTreeCtrl::Extra;

void type(Scene& scene, const std::string& text)
{
    for (const char letter : text)
        scene.tree.SendMessage(WM_CHAR, static_cast<WPARAM>(letter), 1);
}

} // namespace

TEST(TreeFind, FindsTheBeginningOfALabelAloneUnlessItIsAskedFor)
{
    Scene scene{{"carrot", "rot", "otter"}};
    scene.tree.SetFocus();
    type(scene, "ot");
    EXPECT_EQ(scene.caret(), "otter");
}

TEST(TreeFind, FindsWhatIsTypedAnywhereInALabel)
{
    Scene scene{{"carrot", "Rotunda", "otter"}};
    scene.tree.setExtras(Extra::FindAnywhere);
    scene.tree.SetFocus();
    scene.tree.SelectItem(scene.item("otter"));
    scene.forget();
    type(scene, "r"); // from the caret on
    EXPECT_EQ(scene.caret(), "otter");
    type(scene, "ot"); // round to the first
    EXPECT_EQ(scene.selected(), Names{"carrot"});
    EXPECT_EQ(scene.changes().size(), 1u);
    scene.tree.SendMessage(WM_KEYDOWN, VK_F3, 1);
    EXPECT_EQ(scene.selected(), Names{"Rotunda"});
    scene.tree.SendMessage(WM_KEYDOWN, VK_F3, 1);
    EXPECT_EQ(scene.selected(), Names{"carrot"});
    type(scene, "x"); // nowhere: it is left out
    EXPECT_EQ(scene.selected(), Names{"carrot"});
    type(scene, "u"); // "rotu"
    EXPECT_EQ(scene.selected(), Names{"Rotunda"});
    type(scene, "\b"); // "rot" again, which the caret has
    EXPECT_EQ(scene.selected(), Names{"Rotunda"});
}

TEST(TreeFind, EscapeAndAStepEndTheSearch)
{
    Scene scene{{"one", "two", "three", "four"}};
    scene.tree.setExtras(Extra::FindAnywhere);
    scene.tree.SetFocus();
    type(scene, "r");
    EXPECT_EQ(scene.caret(), "three");
    scene.tree.SendMessage(WM_KEYDOWN, VK_ESCAPE, 1);
    type(scene, "o"); // not "ro"
    EXPECT_EQ(scene.caret(), "four");
    scene.user.click(scene.label("one"));
    type(scene, "w"); // not "ow"
    EXPECT_EQ(scene.caret(), "two");
}

TEST(TreeFind, EscapeIsWantedWhileSearchingOnly)
{
    Scene scene{{"one", "two", "three"}};
    scene.tree.setExtras(Extra::FindAnywhere);
    scene.tree.SetFocus();
    MSG escape{scene.tree, WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
    const auto wants = [&] {
        return (scene.tree.SendMessage(WM_GETDLGCODE, VK_ESCAPE, reinterpret_cast<LPARAM>(&escape)) &
                DLGC_WANTALLKEYS) != 0;
    };
    EXPECT_FALSE(wants());
    type(scene, "tw");
    EXPECT_TRUE(wants());
    scene.user.key(VK_DOWN);
    EXPECT_EQ(scene.caret(), "three");
    EXPECT_FALSE(wants()) << "a step elsewhere has ended the search";
    type(scene, "e");
    EXPECT_TRUE(wants());
    scene.user.key(VK_ESCAPE);
    EXPECT_FALSE(wants());
}

TEST(TreeFind, LeavesSpaceToTheTreeUntilSomethingIsLookedFor)
{
    Scene scene{{"a b", "ab"}};
    scene.tree.setExtras(Extra::FindAnywhere);
    scene.tree.SetFocus();
    scene.tree.SelectItem(scene.item("ab"));
    scene.journal.clear();
    scene.user.key(VK_SPACE);
    EXPECT_FALSE(scene.journal.empty()); // the default action
    scene.journal.clear();
    type(scene, "a");
    scene.user.key(VK_SPACE);
    EXPECT_TRUE(scene.journal.empty());
    EXPECT_EQ(scene.caret(), "a b");
}

TEST(TreeFind, ShiftF3GoesToTheOneBefore)
{
    Scene scene{{"carrot", "rose", "Rotunda", "otter"}};
    scene.tree.setExtras(Extra::FindAnywhere);
    scene.tree.SetFocus();
    scene.tree.SelectItem(scene.item("carrot"));
    type(scene, "ot");
    scene.user.key(VK_F3, 2);
    ASSERT_EQ(scene.selected(), Names{"otter"});
    scene.user.holding(VK_SHIFT).key(VK_F3);
    EXPECT_EQ(scene.selected(), Names{"Rotunda"});
    scene.user.holding(VK_SHIFT).key(VK_F3);
    EXPECT_EQ(scene.selected(), Names{"carrot"});
}

TEST(TreeFind, LosingTheFocusEndsTheSearch)
{
    Scene scene{{"one", "two", "three", "four"}};
    scene.tree.setExtras(Extra::FindAnywhere);
    scene.tree.SetFocus();
    type(scene, "r");
    ASSERT_EQ(scene.caret(), "three");
    scene.parent().SetFocus();
    scene.tree.SetFocus();
    type(scene, "o"); // not "ro"
    EXPECT_EQ(scene.caret(), "four");
}

TEST(TreeFind, CtrlSpaceTogglesInTheMiddleOfASearch)
{
    Scene scene{{"a b", "ab"}};
    scene.tree.setExtras(Extra::FindAnywhere);
    scene.tree.SetFocus();
    scene.tree.SelectItem(scene.item("ab"));
    type(scene, "a");
    ASSERT_EQ(scene.selected(), Names{"ab"});
    scene.journal.clear();
    scene.user.holding(VK_CONTROL).key(VK_SPACE);
    EXPECT_EQ(scene.selected(), Names{});
    EXPECT_EQ(scene.caret(), "ab") << "nothing with \"a \" was looked for";
    EXPECT_EQ(scene.journal, Journal{});
}

/// Though it is the caret already.
TEST(TreeFind, WhatIsFoundIsSelectedAloneSeenAndTheAnchor)
{
    Scene scene{numbered(60)};
    scene.tree.setExtras(Extra::FindAnywhere);
    scene.tree.SetFocus();
    scene.tree.SelectItem(scene.item("150"));
    scene.tree.SetItemState(scene.item("152"), TVIS_SELECTED, TVIS_SELECTED);
    scene.tree.selectItemAnchor(scene.item("155"));
    type(scene, "15");
    EXPECT_EQ(scene.selected(), Names{"150"});
    scene.tree.EnsureVisible(scene.item("100"));
    type(scene, "0");
    EXPECT_EQ(scene.caret(), "150");
    CRect row;
    scene.tree.GetItemRect(scene.item("150"), &row, FALSE);
    CRect client;
    scene.tree.GetClientRect(&client);
    EXPECT_GE(row.top, 0);
    EXPECT_LE(row.bottom, client.bottom);
    scene.user.holding(VK_SHIFT).key(VK_DOWN);
    EXPECT_EQ(scene.selected(), (Names{"150", "151"}));
}

/// The caret need not be the one item that is selected.
TEST(TreeFind, ACaretThatIsFoundIsSelectedInPlaceOfAnotherItem)
{
    Scene scene{{"carrot", "rose"}};
    scene.tree.setExtras(Extra::FindAnywhere);
    scene.tree.SetFocus();
    scene.tree.SelectItem(scene.item("carrot"));
    scene.tree.SetItemState(scene.item("carrot"), 0, TVIS_SELECTED);
    scene.tree.SetItemState(scene.item("rose"), TVIS_SELECTED, TVIS_SELECTED);
    type(scene, "ot");
    EXPECT_EQ(scene.selected(), Names{"carrot"});
}

TEST(TreeFind, LooksAtDisplayedItemsOnly)
{
    Scene scene{{"a", "b"}};
    scene.add("needle", "a");
    scene.tree.setExtras(Extra::FindAnywhere);
    scene.tree.SelectItem(scene.item("b"));
    type(scene, "needle");
    EXPECT_EQ(scene.caret(), "b");
}

/// The parent hears of the selection and may do anything.
TEST(TreeFind, OutlivesWhatTheParentDoes)
{
    const std::function<void(Scene&)> misdeeds[] = {
        [](Scene& scene) { scene.tree.DeleteItem(scene.item("two")); },
        [](Scene& scene) { scene.tree.DeleteAllItems(); },
        [](Scene& scene) { scene.tree.setExtras(0); },
        [](Scene& scene) { scene.tree.DestroyWindow(); },
    };
    for (const auto& misdeed : misdeeds) {
        Scene scene{{"one", "two"}};
        scene.tree.setExtras(Extra::FindAnywhere);
        bool committed = false;
        scene.parent().answer(static_cast<UINT>(TVN_SELCHANGEDW), [&](NMHDR*) -> LRESULT {
            if (!std::exchange(committed, true))
                misdeed(scene);
            return 0;
        });
        type(scene, "w");
        EXPECT_TRUE(committed);
        EXPECT_EQ(TestNode::live(), scene.tree.m_hWnd ? static_cast<int>(scene.tree.GetCount()) : 0);
    }
}
