// The keyboard: moving, selecting, activating, and what dialogs leave to the tree.
#include "TreeScene.h"

#include <support/NextDialog.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// A tree with the focus and one item selected.
class KeyScene : public Scene
{
public:
    KeyScene(const Names& names, const std::string& start)
        : Scene(names)
    {
        user.click(label(start));
        forget();
    }
};

/// Keys that are held as this thread sees it, for messages that are sent.
class KeysHeld
{
public:
    explicit KeysHeld(std::initializer_list<int> held)
    {
        ::GetKeyboardState(m_before);
        BYTE keys[256];
        std::copy(std::begin(m_before), std::end(m_before), keys);
        for (const int key : held)
            keys[key] = 0x80;
        ::SetKeyboardState(keys);
    }
    ~KeysHeld() { ::SetKeyboardState(m_before); }
    KeysHeld(const KeysHeld&) = delete;
    KeysHeld& operator=(const KeysHeld&) = delete;

private:
    BYTE m_before[256]{};
};

} // namespace

TEST(TreeKeys, ArrowsMoveTheSelection)
{
    KeyScene scene({"a", "b", "c"}, "a");
    scene.user.key(VK_DOWN);
    EXPECT_EQ(scene.selected(), Names{"b"});
    EXPECT_EQ(scene.caret(), "b");
    scene.user.key(VK_DOWN, 5);
    EXPECT_EQ(scene.selected(), Names{"c"});
    scene.user.key(VK_UP);
    EXPECT_EQ(scene.selected(), Names{"b"});
    scene.user.key(VK_HOME);
    EXPECT_EQ(scene.selected(), Names{"a"});
    scene.user.key(VK_UP);
    EXPECT_EQ(scene.selected(), Names{"a"});
}

TEST(TreeKeys, ArrowsGoThroughOpenItemsOnly)
{
    KeyScene scene({"a", "b"}, "a");
    scene.add("hidden", "a");
    scene.user.key(VK_DOWN);
    EXPECT_EQ(scene.selected(), Names{"b"});
}

TEST(TreeKeys, ArrowsLeaveAClosedItemFromWhereItStands)
{
    for (const auto& [key, expected] : {std::pair<UINT, const char*>{VK_UP, "b"}, {VK_DOWN, "c"}}) {
        KeyScene scene({"a", "b", "c"}, "a");
        scene.add("hidden", "b"); // which refuses to open
        scene.tree.SelectItem(scene.item("hidden"));
        ASSERT_EQ(scene.caret(), "hidden");
        ASSERT_FALSE(scene.isExpanded("b"));
        scene.user.key(key);
        EXPECT_EQ(scene.caret(), expected);
        EXPECT_EQ(scene.selected(), Names{expected});
    }
}

TEST(TreeKeys, AnArrowLeavesAMultipleSelection)
{
    KeyScene scene({"a", "b", "c"}, "a");
    scene.user.holding(VK_CONTROL).click(scene.label("c"));
    scene.user.key(VK_DOWN);
    EXPECT_EQ(scene.selected(), Names{"b"});
}

TEST(TreeKeys, EndAndLettersAreTheTreeViews)
{
    KeyScene scene({"ant", "bee", "cat"}, "ant");
    scene.user.key(VK_END);
    EXPECT_EQ(scene.caret(), "cat");
    scene.user.type(L"b");
    EXPECT_EQ(scene.caret(), "bee");
    EXPECT_EQ(scene.selected(), Names{"bee"});
}

TEST(TreeKeys, ShiftArrowsSelectFromTheAnchor)
{
    KeyScene scene({"a", "b", "c", "d"}, "b");
    scene.user.holding(VK_SHIFT).key(VK_DOWN, 2);
    EXPECT_EQ(scene.selected(), (Names{"b", "c", "d"}));
    EXPECT_EQ(scene.caret(), "d");
    EXPECT_EQ(scene.changes(), (Changes{{TVC_BYKEYBOARD, "b", "c"}, {TVC_BYKEYBOARD, "c", "d"}}));
    scene.user.holding(VK_SHIFT).key(VK_UP, 3);
    EXPECT_EQ(scene.selected(), (Names{"a", "b"}));
    scene.user.holding(VK_SHIFT).key(VK_HOME);
    EXPECT_EQ(scene.selected(), (Names{"a", "b"}));
}

TEST(TreeKeys, CtrlArrowsMoveTheCaretAlone)
{
    KeyScene scene({"a", "b", "c"}, "a");
    scene.add("hidden", "b");
    scene.tree.SetItemState(scene.item("hidden"), TVIS_SELECTED, TVIS_SELECTED);
    scene.user.holding(VK_CONTROL).key(VK_DOWN);
    EXPECT_EQ(scene.caret(), "b");
    EXPECT_EQ(scene.selected(), (Names{"a", "hidden"}));
    EXPECT_EQ(scene.changes(), (Changes{{TVC_BYKEYBOARD, "b", "b"}}));
    scene.user.holding(VK_CONTROL).key(VK_DOWN);
    EXPECT_EQ(scene.caret(), "c");
    EXPECT_EQ(scene.selected(), (Names{"a", "hidden"}));
}

TEST(TreeKeys, CtrlArrowsMoveTheAnchor)
{
    KeyScene scene({"a", "b", "c", "d"}, "a");
    scene.user.holding(VK_CONTROL).key(VK_DOWN, 2);
    scene.user.holding(VK_SHIFT).key(VK_DOWN);
    EXPECT_EQ(scene.selected(), (Names{"c", "d"}));
}

TEST(TreeKeys, CtrlSpaceTogglesTheCaret)
{
    KeyScene scene({"a", "b"}, "a");
    scene.user.holding(VK_CONTROL).key(VK_DOWN).key(VK_SPACE);
    EXPECT_EQ(scene.selected(), (Names{"a", "b"}));
    EXPECT_EQ(scene.changes().back(), (Change{TVC_BYKEYBOARD, "b", "b"}));
    scene.user.holding(VK_CONTROL).key(VK_SPACE);
    EXPECT_EQ(scene.selected(), Names{"a"});
    EXPECT_EQ(scene.journal, Journal{});
}

TEST(TreeKeys, MovingScrolls)
{
    Names many;
    for (int i = 0; i < 60; ++i)
        many.push_back(std::to_string(100 + i));
    KeyScene scene(many, "100");
    scene.user.key(VK_DOWN, 40);
    CRect rect;
    EXPECT_TRUE(scene.tree.GetItemRect(scene.item("140"), &rect, FALSE));
    CRect client;
    scene.tree.GetClientRect(&client);
    EXPECT_LE(rect.bottom, client.bottom);
    EXPECT_EQ(scene.selected(), Names{"140"});
}

TEST(TreeKeys, WithoutACaretAnArrowDoesNothing)
{
    Scene scene{{"a", "b"}};
    scene.user.click(scene.label("a")).click(scene.below());
    scene.forget();
    scene.user.key(VK_DOWN);
    EXPECT_EQ(scene.selected(), Names{});
    EXPECT_EQ(scene.changes(), Changes{});
}

// Select all

TEST(TreeKeys, CtrlASelectsAllDisplayedItems)
{
    KeyScene scene({"a", "b", "c"}, "b");
    scene.add("hidden", "a");
    scene.forget();
    scene.user.holding(VK_CONTROL).key('A');
    EXPECT_EQ(scene.selected(), (Names{"a", "b", "c"}));
    EXPECT_EQ(scene.changes(), (Changes{{TVC_BYKEYBOARD, "b", "b"}}));
}

TEST(TreeKeys, TheSelectAllCommandGivesNoWayOfTheChange)
{
    KeyScene scene({"a", "b"}, "b");
    scene.tree.SendMessage(WM_COMMAND, ID_EDIT_SELECT_ALL);
    EXPECT_EQ(scene.selected(), (Names{"a", "b"}));
    EXPECT_EQ(scene.changes(), (Changes{{TVC_UNKNOWN, "b", "b"}}));
}

TEST(TreeKeys, AForbiddenSelectAllDoesNothing)
{
    KeyScene scene({"a", "b"}, "b");
    scene.tree.disabled = {ID_EDIT_SELECT_ALL};
    scene.user.holding(VK_CONTROL).key('A');
    EXPECT_EQ(scene.selected(), Names{"b"});
}

/// Where AltGr with this key types a letter.
TEST(TreeKeys, ALetterTypedWithAltGrIsLookedForAsAnyOther)
{
    KeyScene scene({"ant", "bee", "cat"}, "ant");
    scene.user.holding(VK_CONTROL).click(scene.label("bee"));
    const KeysHeld altGr{VK_CONTROL, VK_MENU};
    scene.tree.SendMessage(WM_KEYDOWN, 'A', 1);
    EXPECT_EQ(scene.selected(), (Names{"ant", "bee"})) << "it does not select all";
    scene.tree.SendMessage(WM_CHAR, 'c', 1);
    EXPECT_EQ(scene.selected(), Names{"cat"});
}

// The default action

TEST(TreeKeys, EnterAndSpaceActivateAllSelectedNodes)
{
    KeyScene scene({"a", "b", "c"}, "a");
    scene.user.holding(VK_CONTROL).click(scene.label("c"));
    scene.user.key(VK_RETURN);
    const Journal expected{"gesture 1118", "activate a", "activate c", "gesture 0"};
    EXPECT_EQ(scene.journal, expected);
    scene.forget();
    scene.user.key(VK_SPACE);
    EXPECT_EQ(scene.journal, expected);
}

TEST(TreeKeys, EnterIsAGestureWhereNothingIsSelected)
{
    KeyScene scene({"a"}, "a");
    scene.tree.clearselection(scene.tree.GetRootItem());
    scene.user.key(VK_RETURN);
    EXPECT_EQ(scene.journal, (Journal{"gesture 1118", "gesture 0"})) << "the caret alone is not activated";
}

TEST(TreeKeys, EnterWithAltDoesNothing)
{
    KeyScene scene({"a"}, "a");
    scene.user.holding(VK_MENU).key(VK_RETURN);
    EXPECT_EQ(scene.journal, Journal{});
}

TEST(TreeKeys, EnterWithAltAndCtrlWhichComesAsAnOrdinaryKeyDoesNothing)
{
    KeyScene scene({"a"}, "a");
    MSG enter{scene.tree.m_hWnd, WM_KEYDOWN, VK_RETURN, 1, 0, {}};
    const KeysHeld held{VK_MENU, VK_CONTROL};
    scene.tree.SendMessage(enter.message, enter.wParam, enter.lParam);
    EXPECT_TRUE(scene.tree.PreTranslateMessage(&enter)) << "nor does the dialog take it";
    EXPECT_EQ(scene.journal, Journal{});
}

TEST(TreeKeys, ReturnNotificationsAndOkActivate)
{
    KeyScene scene({"a"}, "a");
    NMHDR header{scene.tree.m_hWnd, 7, static_cast<UINT>(NM_RETURN)};
    EXPECT_EQ(scene.parent().SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&header)), 0);
    scene.tree.SendMessage(WM_COMMAND, IDOK);
    EXPECT_EQ(scene.journal, (Journal{"gesture 1118", "activate a", "gesture 0", "gesture 1118", "activate a",
                                      "gesture 0"}));
}

TEST(TreeKeys, ActivatingTakesOverTheItemsState)
{
    KeyScene scene({"a"}, "a");
    TestNode& a = scene.node("a");
    a.children = 1;
    a.childNames = {"x"};
    scene.tree.updateUI(a);
    a.activating = [&](MultiTreeCtrl& tree) { tree.Expand(a.hTreeItem(), TVE_TOGGLE); };
    scene.user.key(VK_RETURN);
    EXPECT_EQ(scene.all(), (Names{"a", "x"}));
    EXPECT_EQ(a.state & (TVIS_EXPANDED | TVIS_SELECTED), unsigned{TVIS_EXPANDED | TVIS_SELECTED});
    scene.user.key(VK_RETURN);
    EXPECT_EQ(scene.all(), Names{"a"});
    EXPECT_FALSE(a.expanded());
}

TEST(TreeKeys, WhatANodeMakesOfItselfWhenActivatedIsShown)
{
    KeyScene scene({"a"}, "a");
    TestNode& a = scene.node("a");
    UINT once = TVIS_EXPANDEDONCE;
    a.activating = [&](MultiTreeCtrl& tree) {
        once = tree.GetItemState(a.hTreeItem(), TVIS_EXPANDEDONCE);
        a.name = "done";
    };
    scene.tree.SetItemState(a.hTreeItem(), TVIS_EXPANDEDONCE, TVIS_EXPANDEDONCE);
    scene.user.key(VK_RETURN);
    EXPECT_EQ(scene.all(), Names{"done"});
    EXPECT_EQ(once, 0u) << "so that the tree view asks the node when it opens";
}

TEST(TreeKeys, AnErrorOfANodeIsReportedAndTheGestureEnds)
{
    KeyScene scene({"a"}, "a");
    scene.node("a").activating = [](MultiTreeCtrl&) { throw std::runtime_error("cannot start"); };
    scene.user.key(VK_RETURN);
    EXPECT_EQ(scene.tree.errors, (Journal{"cannot start"}));
    EXPECT_EQ(scene.journal.back(), "gesture 0");
}

TEST(TreeKeys, ANodeThatClearsTheTreeWhenActivatedDoesNoHarm)
{
    KeyScene scene({"a", "b"}, "a");
    scene.user.holding(VK_CONTROL).click(scene.label("b"));
    scene.node("a").activating = [](MultiTreeCtrl& tree) { tree.DeleteAllItems(); };
    scene.user.key(VK_RETURN);
    EXPECT_EQ(scene.tree.GetCount(), 0u);
    EXPECT_EQ(scene.journal.back(), "gesture 0");
}

TEST(TreeKeys, ANodeThatDestroysTheWindowWhenActivatedDoesNoHarm)
{
    KeyScene scene({"a", "b"}, "a");
    scene.node("a").activating = [](MultiTreeCtrl& tree) { tree.DestroyWindow(); };
    scene.user.key(VK_RETURN);
    EXPECT_EQ(scene.tree.m_hWnd, nullptr);
    EXPECT_EQ(scene.journal.back(), "gesture 0");
}

TEST(TreeKeys, AForbiddenDefaultActionActivatesNothing)
{
    KeyScene scene({"a"}, "a");
    scene.tree.disabled = {1118};
    scene.user.key(VK_RETURN);
    EXPECT_EQ(scene.journal, Journal{});
}

TEST(TreeKeys, DeleteAndRedrawThatAreForbiddenDoNothing)
{
    KeyScene scene({"a"}, "a");
    scene.node("a").erasable = true;
    scene.tree.disabled = {5146, 5234};
    const NextDialogAnswered no(IDNO); // there should be none
    scene.user.key(VK_DELETE).key(VK_F5);
    EXPECT_EQ(scene.journal, Journal{});
    scene.tree.disabled = {};
    scene.user.key(VK_F5);
    EXPECT_EQ(scene.journal, Journal{"refresh a"});
}

// Redraw

TEST(TreeKeys, F5RefreshesEveryNodeAndDeletesThoseThatAreGone)
{
    KeyScene scene({"a", "b", "c"}, "a");
    scene.add("x", "a");
    scene.add("y", "b");
    scene.node("b").refreshing = [] { return false; };
    scene.node("c").refreshing = [&] {
        scene.node("c").name = "C";
        return true;
    };
    scene.forget();
    scene.user.key(VK_F5);
    EXPECT_EQ(scene.all(), (Names{"a", "x", "C"}));
    EXPECT_EQ(scene.journal, (Journal{"refresh a", "refresh x", "refresh b", "refresh c"}));
}

TEST(TreeKeys, ANodeThatDeletesItsNeighboursWhenRefreshedDoesNoHarm)
{
    KeyScene scene({"a", "b", "c", "d"}, "a");
    scene.node("b").refreshing = [&] {
        scene.tree.DeleteItem(scene.item("c"));
        scene.tree.DeleteItem(scene.item("b"));
        return true;
    };
    scene.forget();
    scene.user.key(VK_F5);
    EXPECT_EQ(scene.all(), (Names{"a", "d"}));
    EXPECT_EQ(scene.journal, (Journal{"refresh a", "refresh b", "refresh d"}));
}

TEST(TreeKeys, ARefreshThatThrowsIsReported)
{
    KeyScene scene({"a", "b"}, "a");
    scene.node("a").refreshing = []() -> bool { throw std::runtime_error("not there"); };
    scene.tree.SendMessage(WM_COMMAND, 5234);
    EXPECT_EQ(scene.tree.errors, (Journal{"not there"}));
    EXPECT_EQ(scene.all(), (Names{"a", "b"}));
}

// Dialogs

TEST(TreeKeys, TheDialogLeavesTheArrowsAndTheLettersToTheTree)
{
    Scene scene{{"a"}};
    const LRESULT wanted = scene.tree.SendMessage(WM_GETDLGCODE);
    EXPECT_TRUE(wanted & DLGC_WANTARROWS);
    EXPECT_TRUE(wanted & DLGC_WANTCHARS) << "they would be mnemonics";
}

TEST(TreeKeys, EnterIsTheTreesBeforeADialogTakesIt)
{
    KeyScene scene({"a"}, "a");
    MSG message{scene.tree.m_hWnd, WM_KEYDOWN, VK_RETURN, 0, 0, {}};
    EXPECT_TRUE(scene.tree.PreTranslateMessage(&message));
    EXPECT_EQ(scene.journal, (Journal{"gesture 1118", "activate a", "gesture 0"}));
}

TEST(TreeKeys, OtherKeysGoOnToTheDialog)
{
    KeyScene scene({"a"}, "a");
    MSG message{scene.tree.m_hWnd, WM_KEYDOWN, VK_TAB, 0, 0, {}};
    EXPECT_FALSE(scene.tree.PreTranslateMessage(&message));
}
