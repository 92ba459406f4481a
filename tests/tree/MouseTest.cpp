// Clicks: plain, with Ctrl, with Shift, on empty space, with the right button, double.
#include "TreeScene.h"

#include <testkit/ImportPatch.h>

#include <gtest/gtest.h>

#include <tuple>

using namespace ovo::testkit;

namespace
{

int contextMenus(Scene& scene)
{
    return scene.tree.contextMenus;
}

int dragsBegun(Scene& scene)
{
    return scene.parent().log().count(static_cast<UINT>(TVN_BEGINDRAGW));
}

UINT_PTR WINAPI noTimer(HWND, UINT_PTR, UINT, TIMERPROC)
{
    return 0;
}

int g_procedures = 0; ///< that were replaced, or were to be
int g_refused = 0;    ///< which of these is refused, counted from 1

LONG_PTR WINAPI refuseProcedure(HWND window, int index, LONG_PTR value)
{
    if (index == GWLP_WNDPROC && ++g_procedures == g_refused)
        return 0;
    return ::SetWindowLongPtrW(window, index, value);
}

HWND WINAPI noCapture(HWND)
{
    return nullptr;
}

BOOL WINAPI noMessage(LPMSG, HWND, UINT, UINT, UINT)
{
    return FALSE;
}

/// Drag rectangles that are 10 pixels wide and 80 high, 75 of these below the press.
int WINAPI highDragArea(int index)
{
    if (index == SM_CXDRAG)
        return 10;
    return index == SM_CYDRAG ? 80 : ::GetSystemMetrics(index);
}

/// In front of the tree: counts the keys that go down.
LRESULT CALLBACK countKeys(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR count)
{
    *reinterpret_cast<int*>(count) += message == WM_KEYDOWN ? 1 : 0;
    return ::DefSubclassProc(window, message, wParam, lParam);
}

constexpr UINT kAgain = WM_APP + 77;

/// In front of the tree: a message that is posted again whenever it comes, until a time of ::GetTickCount64.
LRESULT CALLBACK postAgain(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR end)
{
    if (message != kAgain)
        return ::DefSubclassProc(window, message, wParam, lParam);
    if (auto& left = *reinterpret_cast<ULONGLONG*>(end); ::GetTickCount64() < left)
        ::PostMessageW(window, kAgain, 0, 0);
    else
        left = 0;
    return 0;
}

/// Between the tree and the tree view's own procedure: notes the clicks that reach this one, and keeps them.
LRESULT CALLBACK keepClicks(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR kept)
{
    if (message < WM_LBUTTONDOWN || message > WM_RBUTTONDBLCLK)
        return ::DefSubclassProc(window, message, wParam, lParam);
    reinterpret_cast<std::vector<UINT>*>(kept)->push_back(message);
    return 0;
}

} // namespace

// Plain

TEST(TreeMouse, AClickSelectsTheItemAlone)
{
    Scene scene{{"a", "b", "c"}};
    scene.user.click(scene.label("b"));
    EXPECT_EQ(scene.selected(), Names{"b"});
    EXPECT_EQ(scene.caret(), "b");
    EXPECT_EQ(::GetFocus(), scene.tree.m_hWnd);
}

TEST(TreeMouse, AClickOnAnotherItemLeavesTheFirst)
{
    Scene scene{{"a", "b", "c"}};
    scene.user.click(scene.label("a")).click(scene.label("c"));
    EXPECT_EQ(scene.selected(), Names{"c"});
}

TEST(TreeMouse, AClickInAMultipleSelectionKeepsItUntilTheRelease)
{
    Scene scene{{"a", "b", "c"}};
    scene.user.click(scene.label("a")).holding(VK_CONTROL).click(scene.label("b")).click(scene.label("c"));
    Names pressed;
    scene.user.press(scene.label("b")).then([&] { pressed = scene.selected(); }).release();
    EXPECT_EQ(pressed, (Names{"a", "b", "c"}));
    EXPECT_EQ(scene.selected(), Names{"b"});
    EXPECT_EQ(scene.caret(), "b");
}

TEST(TreeMouse, LeavingAMultipleSelectionForItsCaretTellsTheParentOnce)
{
    Scene scene{{"a", "b", "c"}};
    scene.user.click(scene.label("a")).holding(VK_CONTROL).click(scene.label("b"));
    ASSERT_EQ(scene.caret(), "a");
    scene.forget();
    scene.user.click(scene.label("a"));
    EXPECT_EQ(scene.selected(), Names{"a"});
    // The tree view sends nothing, as its own selected item is the same.
    EXPECT_EQ(scene.changes(), (Changes{{TVC_UNKNOWN, "a", "a"}}));
}

TEST(TreeMouse, AClickOnEmptySpaceClearsTheSelection)
{
    Scene scene{{"a", "b"}};
    scene.user.click(scene.label("a")).holding(VK_CONTROL).click(scene.label("b"));
    scene.user.click(scene.below());
    EXPECT_EQ(scene.selected(), Names{});
    EXPECT_EQ(scene.caret(), "-");
    EXPECT_EQ(::GetFocus(), scene.tree.m_hWnd);
}

TEST(TreeMouse, APressBesideALabelClearsAndItsReleaseSelectsTheItem)
{
    Scene scene{{"a", "b"}};
    scene.user.click(scene.label("a"));
    Names pressed{"?"};
    scene.user.press(scene.beside("b")).then([&] { pressed = scene.selected(); }).release();
    EXPECT_EQ(pressed, Names{});
    EXPECT_EQ(scene.selected(), Names{"b"});
}

TEST(TreeMouse, TheButtonOfAnItemLeavesTheSelectionAlone)
{
    Scene scene{{"a", "b"}};
    scene.add("x", "a");
    scene.node("a").childNames = {"x"};
    scene.node("a").children = 1;
    scene.tree.updateUI(scene.item("a"));
    scene.user.click(scene.label("b"));
    scene.user.click(scene.button("a"));
    EXPECT_EQ(scene.selected(), Names{"b"});
}

// Ctrl

TEST(TreeMouse, CtrlClickAddsToTheSelectionAndKeepsTheCaret)
{
    Scene scene{{"a", "b", "c"}};
    scene.user.click(scene.label("a"));
    scene.forget();
    Names pressed;
    scene.user.holding(VK_CONTROL)
        .press(scene.label("c"))
        .then([&] { pressed = scene.selected(); })
        .release();
    EXPECT_EQ(pressed, (Names{"a", "c"}));
    EXPECT_EQ(scene.selected(), (Names{"a", "c"}));
    EXPECT_EQ(scene.caret(), "a");
    EXPECT_EQ(scene.changes(), (Changes{{TVC_BYMOUSE, "a", "a"}}));
}

TEST(TreeMouse, TheParentHearsWhereTheClickWas)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.user.click(scene.label("a"));
    for (const auto& [key, name] : {std::pair<WORD, const char*>{VK_CONTROL, "c"}, {VK_SHIFT, "d"}}) {
        const CPoint place = scene.labelPoint(name);
        scene.user.holding(key).click(scene.label(name));
        EXPECT_EQ(CPoint(scene.parent().log().last(static_cast<UINT>(TVN_SELCHANGEDW)).point), place) << name;
    }
    scene.user.holding(VK_SHIFT).key(VK_UP);
    EXPECT_EQ(CPoint(scene.parent().log().last(static_cast<UINT>(TVN_SELCHANGEDW)).point), CPoint(0, 0))
        << "a key has no place";
}

TEST(TreeMouse, CtrlClickOnASelectedItemTakesItOutOnRelease)
{
    Scene scene{{"a", "b"}};
    scene.user.click(scene.label("a")).holding(VK_CONTROL).click(scene.label("b"));
    scene.forget();
    Names pressed;
    scene.user.holding(VK_CONTROL)
        .press(scene.label("b"))
        .then([&] { pressed = scene.selected(); })
        .release();
    EXPECT_EQ(pressed, (Names{"a", "b"}));
    EXPECT_EQ(scene.selected(), Names{"a"});
    EXPECT_EQ(scene.changes(), (Changes{{TVC_BYMOUSE, "a", "a"}}));
}

TEST(TreeMouse, CtrlClickMovesTheAnchor)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.user.click(scene.label("a")).holding(VK_CONTROL).click(scene.label("c"));
    scene.user.holding(VK_SHIFT).click(scene.label("d"));
    EXPECT_EQ(scene.selected(), (Names{"c", "d"}));
}

TEST(TreeMouse, CtrlClickOnEmptySpaceKeepsTheSelection)
{
    Scene scene{{"a", "b"}};
    scene.user.click(scene.label("a"));
    scene.forget();
    scene.user.holding(VK_CONTROL).click(scene.below());
    EXPECT_EQ(scene.selected(), Names{"a"});
    EXPECT_EQ(scene.changes(), Changes{});
}

// Shift

TEST(TreeMouse, ShiftClickSelectsFromTheAnchorAndTellsTheParentOnce)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.user.click(scene.label("b"));
    scene.forget();
    scene.user.holding(VK_SHIFT).click(scene.label("d"));
    EXPECT_EQ(scene.selected(), (Names{"b", "c", "d"}));
    EXPECT_EQ(scene.caret(), "d");
    EXPECT_EQ(scene.changes(), (Changes{{TVC_BYMOUSE, "b", "d"}}));
}

/// The tree replaces the parent's window procedure for a moment, so that the parent hears of one change.
TEST(TreeMouse, AProcedureThatCannotBeReplacedOrPutBackDoesNoHarm)
{
    for (const int refused : {1, 2}) {
        SCOPED_TRACE(refused);
        Scene scene{{"a", "b", "c", "d"}};
        scene.user.click(scene.label("a"));
        scene.forget();
        g_procedures = 0;
        g_refused = refused;
        {
            const ImportPatch patch(L"ovoui.dll", "SetWindowLongPtrW",
                                    reinterpret_cast<void*>(&refuseProcedure));
            scene.user.holding(VK_SHIFT).click(scene.label("c"));
        }
        ASSERT_GE(g_procedures, refused) << "the tree has another way now";
        EXPECT_EQ(scene.selected(), (Names{"a", "b", "c"}));
        scene.forget();
        scene.user.holding(VK_SHIFT).click(scene.label("b"));
        EXPECT_EQ(scene.selected(), (Names{"a", "b"}));
        EXPECT_EQ(scene.changes().size(), 1u);
    }
}

TEST(TreeMouse, ShiftClickKeepsTheAnchorAndGoesUpwardsToo)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.user.click(scene.label("c")).holding(VK_SHIFT).click(scene.label("d")).click(scene.label("a"));
    EXPECT_EQ(scene.selected(), (Names{"a", "b", "c"}));
}

TEST(TreeMouse, ShiftClickWithoutAnAnchorGoesToTheLastDisplayedItem)
{
    Scene scene{{"a", "b", "c"}};
    scene.add("hidden", "c");
    scene.user.holding(VK_SHIFT).click(scene.label("b"));
    EXPECT_EQ(scene.selected(), (Names{"b", "c"}));
}

TEST(TreeMouse, ShiftClickBelowTheLastItemGoesToIt)
{
    Scene scene{{"a", "b", "c"}};
    scene.user.click(scene.label("b")).holding(VK_SHIFT).click(scene.below());
    EXPECT_EQ(scene.selected(), (Names{"b", "c"}));
    EXPECT_EQ(scene.caret(), "c");
}

/// As while something else has the mouse captured.
TEST(TreeMouse, ShiftClickAboveTheTreeGoesToTheFirstItem)
{
    Scene scene{{"a", "b", "c"}};
    scene.user.click(scene.label("b"));
    scene.forget();
    scene.tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(20, -5));
    EXPECT_EQ(scene.selected(), (Names{"a", "b"}));
    EXPECT_EQ(scene.caret(), "a");
    EXPECT_EQ(scene.changes(), (Changes{{TVC_BYMOUSE, "b", "a"}}));
}

TEST(TreeMouse, ShiftClickInAnEmptyTreeIsNothing)
{
    Scene scene;
    scene.user.holding(VK_SHIFT).click(scene.below());
    EXPECT_EQ(scene.selected(), Names{});
}

TEST(TreeMouse, TheRangeGoesThroughOpenItemsOnly)
{
    Scene scene{{"a", "b", "c"}};
    scene.add("hidden", "b");
    scene.user.click(scene.label("a")).holding(VK_SHIFT).click(scene.label("c"));
    EXPECT_EQ(scene.selected(), (Names{"a", "b", "c"}));
}

TEST(TreeMouse, AnAnchorThatWasDeletedIsNone)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.user.click(scene.label("a"));
    scene.tree.DeleteItem(scene.item("a"));
    scene.user.holding(VK_SHIFT).click(scene.label("c"));
    EXPECT_EQ(scene.selected(), (Names{"c", "d"}));
}

// Dragging

TEST(TreeMouse, ADragKeepsTheMultipleSelectionAndNamesTheCaret)
{
    Scene scene{{"a", "b", "c"}};
    scene.user.click(scene.label("a")).holding(VK_CONTROL).click(scene.label("b"));
    scene.forget();
    const CPoint start = scene.labelPoint("b");
    Names dragged;
    scene.user.press(scene.label("b")).moveBy(0, 40).then([&] { dragged = scene.selected(); }).release();
    const Notification begun = scene.parent().log().last(static_cast<UINT>(TVN_BEGINDRAGW));
    EXPECT_EQ(scene.nameOf(begun.newItem), "a");
    EXPECT_EQ(begun.point.x, start.x);
    EXPECT_EQ(begun.point.y, start.y);
    EXPECT_EQ(begun.id, 7u);
    EXPECT_EQ(begun.from, scene.tree.m_hWnd);
    EXPECT_EQ(begun.itemData, static_cast<LPARAM>(scene.tree.GetItemData(scene.item("a"))));
    EXPECT_EQ(dragged, (Names{"a", "b"}));
}

TEST(TreeMouse, APressThatStaysWithinTheDragRectangleIsAClick)
{
    Scene scene{{"a", "b"}};
    scene.user.press(scene.label("b")).moveBy(1, 0).moveBy(-1, 0).release();
    EXPECT_EQ(scene.parent().log().count(static_cast<UINT>(TVN_BEGINDRAGW)), 0);
    EXPECT_EQ(scene.selected(), Names{"b"});
}

/// By messages, which the wait finds in the queue: no time passes.
TEST(TreeMouse, TheDragRectangleIsTheSystems)
{
    const ImportPatch high(L"ovoui.dll", "GetSystemMetrics", reinterpret_cast<void*>(&highDragArea));
    for (const auto& [right, down, drags] :
         {std::tuple{0, 60, 0}, std::tuple{0, -20, 1}, std::tuple{20, 0, 1}, std::tuple{-3, -3, 0}}) {
        SCOPED_TRACE(std::to_string(right) + ", " + std::to_string(down));
        Scene scene{{"a", "b", "c"}};
        const CPoint at = scene.labelPoint("c");
        const LPARAM moved = MAKELPARAM(at.x + right, at.y + down);
        scene.tree.PostMessage(WM_MOUSEMOVE, MK_LBUTTON, moved);
        scene.tree.PostMessage(WM_LBUTTONUP, 0, moved);
        scene.tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
        EXPECT_EQ(dragsBegun(scene), drags);
        EXPECT_EQ(scene.selected(), Names{"c"});
    }
}

TEST(TreeMouse, EscapeThatEndsTheWaitIsNoKeyForTheTree)
{
    for (const auto& [key, reaches] : {std::pair<WPARAM, int>{VK_ESCAPE, 0}, {VK_F8, 1}}) {
        Scene scene{{"a", "b"}};
        int keys = 0;
        ASSERT_TRUE(
            ::SetWindowSubclass(scene.tree.m_hWnd, &countKeys, 1, reinterpret_cast<DWORD_PTR>(&keys)));
        const CPoint at = scene.labelPoint("b");
        scene.tree.PostMessage(WM_KEYDOWN, key, 1);
        scene.tree.PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
        scene.tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
        EXPECT_EQ(keys, reaches) << key;
        EXPECT_EQ(dragsBegun(scene), 0);
        ::RemoveWindowSubclass(scene.tree.m_hWnd, &countKeys, 1);
    }
}

TEST(TreeMouse, HoldingTheButtonStillStartsADrag)
{
    Scene scene{{"a", "b"}};
    scene.user.press(scene.label("b"))
        .waitFor("the drag to begin",
                 [&] { return scene.parent().log().count(static_cast<UINT>(TVN_BEGINDRAGW)) == 1; })
        .release();
    EXPECT_EQ(scene.selected(), Names{"b"});
}

TEST(TreeMouse, HoldingTheButtonStartsADragThoughMessagesNeverEnd)
{
    Scene scene{{"a", "b"}};
    ULONGLONG end = ::GetTickCount64() + 20 * ::GetDoubleClickTime();
    ASSERT_TRUE(::SetWindowSubclass(scene.tree.m_hWnd, &postAgain, 1, reinterpret_cast<DWORD_PTR>(&end)));
    const CPoint at = scene.labelPoint("b");
    scene.tree.PostMessage(kAgain);
    scene.tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    EXPECT_EQ(dragsBegun(scene), 1);
    EXPECT_NE(end, 0u) << "the messages ended first";
    ::RemoveWindowSubclass(scene.tree.m_hWnd, &postAgain, 1);
}

TEST(TreeMouse, EscapeEndsTheWaitWithoutADrag)
{
    Scene scene{{"a", "b"}};
    scene.user.press(scene.label("b")).key(VK_ESCAPE).moveBy(0, 60).release();
    EXPECT_EQ(scene.parent().log().count(static_cast<UINT>(TVN_BEGINDRAGW)), 0);
    EXPECT_NE(::GetCapture(), scene.tree.m_hWnd);
}

TEST(TreeMouse, WhatComesForTheTreeDuringTheWaitIsHandled)
{
    Scene scene{{"a", "b", "c"}};
    scene.user.press(scene.label("b"))
        .then([&] { scene.tree.PostMessage(WM_COMMAND, ID_EDIT_SELECT_ALL); })
        .waitFor("all to be selected", [&] { return scene.selected().size() == 3; })
        .release();
    EXPECT_EQ(scene.selected(), Names{"b"}) << "by the release";
}

TEST(TreeMouse, TheMouseIsLetGoAfterTheWait)
{
    Scene scene{{"a"}};
    bool captured = false;
    scene.user.press(scene.label("a"))
        .then([&] { captured = ::GetCapture() == scene.tree.m_hWnd; })
        .moveBy(0, 50)
        .release();
    EXPECT_TRUE(captured);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(TreeMouse, AnotherWindowThatTakesTheMouseEndsTheWaitAtOnceWithoutADrag)
{
    Scene scene{{"a", "b"}};
    scene.user.press(scene.label("b"))
        .then([&] { scene.parent().SetCapture(); })
        .waitFor("the wait to end", [&] { return scene.selected() == Names{"b"}; })
        .moveBy(0, 60)
        .release();
    ::ReleaseCapture();
    EXPECT_EQ(dragsBegun(scene), 0);
}

TEST(TreeMouse, AWindowThatGoesEndsTheWait)
{
    Scene scene{{"a", "b"}};
    scene.user.press(scene.label("b")).then([&] { scene.tree.DestroyWindow(); }).release();
    EXPECT_EQ(scene.tree.m_hWnd, nullptr);
}

TEST(TreeMouse, HoldingTheButtonStartsADragWithoutTimersToo)
{
    const ImportPatch noTimers(L"ovoui.dll", "SetTimer", reinterpret_cast<void*>(&noTimer));
    Scene scene{{"a", "b"}};
    scene.user.press(scene.label("b"))
        .waitFor("the drag to begin", [&] { return dragsBegun(scene) == 1; })
        .release();
    EXPECT_EQ(scene.selected(), Names{"b"});
}

TEST(TreeMouse, AMouseThatCannotBeTakenEndsTheWait)
{
    const ImportPatch none(L"ovoui.dll", "SetCapture", reinterpret_cast<void*>(&noCapture));
    Scene scene{{"a", "b"}};
    scene.user.press(scene.label("b"))
        .waitFor("the wait to end", [&] { return scene.selected() == Names{"b"}; })
        .moveBy(0, 60)
        .release();
    EXPECT_EQ(dragsBegun(scene), 0);
}

TEST(TreeMouse, AQueueThatGivesNothingEndsTheWaitAfterItsTime)
{
    const ImportPatch none(L"ovoui.dll", "PeekMessageW", reinterpret_cast<void*>(&noMessage));
    Scene scene{{"a", "b"}};
    scene.user.press(scene.label("b")).moveBy(0, 60).release();
    EXPECT_EQ(dragsBegun(scene), 1) << "as if the button had been held";
}

TEST(TreeMouse, TheEndOfTheProgramEndsTheWaitAndIsNotLost)
{
    Scene scene{{"a", "b"}};
    const CPoint at = scene.labelPoint("b");
    ::PostQuitMessage(7);
    scene.tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    EXPECT_EQ(dragsBegun(scene), 0);
    MSG message{};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7u);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(TreeMouse, WithShiftNoDragBegins)
{
    Scene scene{{"a", "b"}};
    scene.user.holding(VK_SHIFT).press(scene.label("a")).moveBy(0, 60).release();
    EXPECT_EQ(scene.parent().log().count(static_cast<UINT>(TVN_BEGINDRAGW)), 0);
}

TEST(TreeMouse, TheRightButtonDragsToo)
{
    Scene scene{{"a", "b"}};
    scene.user.press(scene.label("b"), Button::Right).moveBy(0, 40).release(Button::Right);
    EXPECT_EQ(scene.parent().log().count(static_cast<UINT>(TVN_BEGINRDRAGW)), 1);
    EXPECT_EQ(scene.parent().log().count(static_cast<UINT>(TVN_BEGINDRAGW)), 0);
    EXPECT_EQ(scene.selected(), Names{"b"});
}

// The right button

TEST(TreeMouse, ARightClickSelectsTheItemAndAsksForTheContextMenu)
{
    Scene scene{{"a", "b"}};
    scene.tree.swallowsContextMenu = true;
    scene.user.rightClick(scene.label("b"));
    EXPECT_EQ(scene.selected(), Names{"b"});
    EXPECT_EQ(contextMenus(scene), 1);
}

TEST(TreeMouse, ARightClickInAMultipleSelectionKeepsIt)
{
    Scene scene{{"a", "b", "c"}};
    scene.tree.swallowsContextMenu = true;
    scene.user.click(scene.label("a")).holding(VK_CONTROL).click(scene.label("b"));
    scene.user.rightClick(scene.label("b"));
    EXPECT_EQ(scene.selected(), (Names{"a", "b"}));
    EXPECT_EQ(contextMenus(scene), 1);
}

TEST(TreeMouse, ARightClickWithCtrlTogglesAndAsksForTheContextMenu)
{
    Scene scene{{"a", "b"}};
    scene.tree.swallowsContextMenu = true;
    scene.user.click(scene.label("a")).holding(VK_CONTROL).rightClick(scene.label("b"));
    EXPECT_EQ(scene.selected(), (Names{"a", "b"}));
    EXPECT_EQ(contextMenus(scene), 1);
    scene.user.holding(VK_CONTROL).rightClick(scene.label("b"));
    EXPECT_EQ(scene.selected(), Names{"a"});
    EXPECT_EQ(contextMenus(scene), 2);
}

TEST(TreeMouse, ARightClickWithShiftSelectsTheRangeAndAsksOnRelease)
{
    Scene scene{{"a", "b", "c"}};
    scene.tree.swallowsContextMenu = true;
    scene.user.click(scene.label("a"));
    int pressed = -1;
    scene.user.holding(VK_SHIFT)
        .press(scene.label("c"), Button::Right)
        .then([&] { pressed = contextMenus(scene); })
        .release(Button::Right);
    EXPECT_EQ(scene.selected(), (Names{"a", "b", "c"}));
    EXPECT_EQ(pressed, 0);
    EXPECT_EQ(contextMenus(scene), 1);
}

TEST(TreeMouse, TheTreeViewsOwnRightClickAsksForTheContextMenu)
{
    Scene scene{{"a"}};
    scene.tree.swallowsContextMenu = true;
    NMHDR header{scene.tree.m_hWnd, 7, static_cast<UINT>(NM_RCLICK)};
    EXPECT_EQ(scene.parent().SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&header)), TRUE);
    EXPECT_EQ(contextMenus(scene), 1);
}

// Double clicks

TEST(TreeMouse, ADoubleClickActivatesTheItem)
{
    Scene scene{{"a", "b"}};
    scene.user.doubleClick(scene.label("b"));
    EXPECT_EQ(scene.journal, (Journal{"gesture 1118", "activate b", "gesture 0"}));
}

/// The second release comes by itself, and must not take out what the first press has added.
TEST(TreeMouse, ACtrlDoubleClickAddsTheItemAndActivatesAllSelected)
{
    Scene scene{{"a", "b", "c"}};
    scene.user.click(scene.label("a"));
    scene.forget();
    const CPoint at = scene.labelPoint("b");
    const LPARAM where = MAKELPARAM(at.x, at.y);
    scene.tree.PostMessage(WM_LBUTTONUP, MK_CONTROL, where); // for the wait of the press
    scene.tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | MK_CONTROL, where);
    scene.tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON | MK_CONTROL, where);
    scene.tree.SendMessage(WM_LBUTTONUP, MK_CONTROL, where);
    EXPECT_EQ(scene.selected(), (Names{"a", "b"}));
    EXPECT_EQ(scene.journal, (Journal{"gesture 1118", "activate a", "activate b", "gesture 0"}));
}

TEST(TreeMouse, ADoubleClickOnEmptySpaceDoesNothing)
{
    Scene scene{{"a"}};
    scene.tree.SelectItem(scene.item("a"));
    scene.forget();
    scene.user.doubleClick(scene.below());
    EXPECT_EQ(scene.journal, Journal{});
}

TEST(TreeMouse, ADoubleClickOnTheButtonOpensAndCloses)
{
    Scene scene{{"a"}};
    scene.node("a").childNames = {"x"};
    scene.node("a").children = 1;
    scene.tree.updateUI(scene.item("a"));
    scene.user.doubleClick(scene.button("a"));
    EXPECT_EQ(scene.journal, (Journal{"expand a", "collapse a"}));
}

TEST(TreeMouse, ARightDoubleClickActivatesNothing)
{
    Scene scene{{"a"}};
    scene.tree.swallowsContextMenu = true;
    scene.user.doubleClick(scene.label("a"), Button::Right);
    EXPECT_EQ(scene.journal, Journal{});
}

// Places of the node's own

TEST(TreeMouse, APlaceOfTheNodesOwnTakesThePress)
{
    Scene scene{{"a", "b"}};
    TestNode& b = scene.node("b");
    constexpr unsigned kCheckBox = 0x10000;
    unsigned seen = 0;
    b.hitting = [](CPoint, unsigned& flags) { flags = kCheckBox; };
    b.pressing = [&](unsigned, CPoint, unsigned flags) {
        seen = flags;
        return true;
    };
    b.releasing = [](CPoint, unsigned) { return true; };
    scene.user.click(scene.label("b"));
    EXPECT_EQ(scene.journal, (Journal{"buttonDown b", "buttonUp b"}));
    EXPECT_EQ(seen, kCheckBox);
    EXPECT_EQ(scene.selected(), Names{});
    EXPECT_EQ(scene.changes(), Changes{});
}

/// The release of the left button only is the node's.
TEST(TreeMouse, APlaceOfTheNodesOwnHearsWhichButtonAndKeysPressIt)
{
    Scene scene{{"a", "b"}};
    scene.tree.swallowsContextMenu = true;
    TestNode& b = scene.node("b");
    b.hitting = [](CPoint, unsigned& flags) { flags = 0x10000; };
    unsigned keys = 0;
    CPoint place;
    b.pressing = [&](unsigned held, CPoint point, unsigned) {
        keys = held;
        place = point;
        return true;
    };
    b.releasing = [](CPoint, unsigned) { return true; };
    scene.user.holding(VK_CONTROL).rightClick(scene.label("b"));
    EXPECT_EQ(keys, unsigned{MK_RBUTTON | MK_CONTROL});
    EXPECT_EQ(place, scene.labelPoint("b"));
    EXPECT_EQ(scene.journal, Journal{"buttonDown b"});
    EXPECT_EQ(scene.selected(), Names{});
}

TEST(TreeMouse, WhatTheNodeMakesNothingOfInItsOwnPlaceIsTheTreeViews)
{
    RecordingParent parent;
    const HWND plain = ::CreateWindowExW(0, WC_TREEVIEWW, L"", Scene::kStyle, 0, 0, 200, 200, parent.m_hWnd,
                                         reinterpret_cast<HMENU>(1), nullptr, nullptr);
    std::vector<UINT> kept;
    ASSERT_TRUE(::SetWindowSubclass(plain, &keepClicks, 1, reinterpret_cast<DWORD_PTR>(&kept)));
    TestTree tree;
    ASSERT_TRUE(tree.SubclassWindow(plain));
    Journal journal;
    auto* const node = new TestNode("a", &journal);
    const HTREEITEM item = node->insert(tree, TVI_ROOT, TVI_LAST);
    present(parent);
    node->hitting = [](CPoint, unsigned& flags) { flags = 0x10000; };
    const CPoint at(30, 5);
    ASSERT_EQ(tree.HitTest(at), item);
    const LPARAM where = MAKELPARAM(at.x, at.y);
    const auto clickInAllWays = [&] {
        tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, where);
        tree.SendMessage(WM_LBUTTONUP, 0, where);
        tree.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, where);
        tree.SendMessage(WM_RBUTTONUP, MK_SHIFT, where);
        tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, where);
    };
    clickInAllWays();
    const Journal asked{"buttonDown a", "buttonUp a", "buttonDown a"};
    EXPECT_EQ(kept, (std::vector<UINT>{WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP,
                                       WM_LBUTTONDBLCLK}));
    EXPECT_EQ(journal, asked) << "nothing is activated";
    EXPECT_EQ(tree.GetSelectedItem(), nullptr);
    EXPECT_EQ(tree.contextMenus, 0);

    kept.clear();
    journal.clear();
    node->pressing = [](unsigned, CPoint, unsigned) { return true; };
    node->releasing = [](CPoint, unsigned) { return true; };
    clickInAllWays();
    EXPECT_EQ(kept, (std::vector<UINT>{WM_RBUTTONUP, WM_LBUTTONDBLCLK})) << "of which the node is not told";
    EXPECT_EQ(journal, asked);
    tree.DestroyWindow();
}

TEST(TreeMouse, AFlagOfTheNodesOwnBesideTheTreeViewsChangesNothing)
{
    Scene scene{{"a", "b"}};
    scene.node("b").hitting = [](CPoint, unsigned& flags) { flags |= 0x20000; };
    scene.user.click(scene.label("b"));
    EXPECT_EQ(scene.journal, Journal{});
    EXPECT_EQ(scene.selected(), Names{"b"});
}

TEST(TreeMouse, TheHitTestTellsWhatTheNodeMadeOfIt)
{
    Scene scene{{"a"}};
    unsigned flags = 0;
    EXPECT_EQ(scene.tree.HitTest(scene.labelPoint("a"), &flags), scene.item("a"));
    EXPECT_EQ(flags, unsigned{TVHT_ONITEMLABEL});
    scene.node("a").hitting = [](CPoint, unsigned& changed) { changed = 0x40000; };
    EXPECT_EQ(scene.tree.HitTest(scene.labelPoint("a"), &flags), scene.item("a"));
    EXPECT_EQ(flags, 0x40000u);
    EXPECT_EQ(scene.tree.HitTest(scene.labelPoint("a")), scene.item("a"));
}

TEST(TreeMouse, AnItemThatGoesWhenItIsHitIsNotHit)
{
    Scene scene{{"a", "b"}};
    const CPoint place = scene.labelPoint("a");
    scene.node("a").hitting = [&](CPoint, unsigned& flags) {
        flags = TVHT_ONITEMICON;
        scene.tree.DeleteItem(scene.item("a"));
    };
    unsigned flags = 0;
    EXPECT_EQ(scene.tree.HitTest(place, &flags), nullptr);
    EXPECT_EQ(flags, unsigned{TVHT_NOWHERE});
}

// Harm

TEST(TreeMouse, AParentThatDestroysTheTreeInAPressDoesNoHarm)
{
    Scene scene{{"a", "b"}};
    scene.parent().answer(static_cast<UINT>(TVN_SELCHANGEDW), [&](NMHDR*) -> LRESULT {
        scene.tree.DestroyWindow();
        return 0;
    });
    scene.user.press(Spot(scene.tree, scene.labelPoint("b"))).release();
    EXPECT_EQ(scene.tree.m_hWnd, nullptr);
    EXPECT_EQ(TestNode::live(), 0);
}

TEST(TreeMouse, AParentThatClearsTheTreeInAPressDoesNoHarm)
{
    Scene scene{{"a", "b"}};
    scene.parent().answer(static_cast<UINT>(TVN_SELCHANGEDW), [&](NMHDR*) -> LRESULT {
        scene.tree.DeleteAllItems();
        return 0;
    });
    scene.user.press(Spot(scene.tree, scene.labelPoint("b"))).release();
    EXPECT_EQ(scene.tree.GetCount(), 0u);
}

TEST(TreeMouse, AParentThatRefusesTheChangeKeepsTheSelection)
{
    Scene scene{{"a", "b"}};
    scene.user.click(scene.label("a"));
    scene.parent().answer(static_cast<UINT>(TVN_SELCHANGINGW), TRUE);
    EXPECT_FALSE(scene.tree.SelectItem(scene.item("b")));
    EXPECT_EQ(scene.caret(), "a");
}

/// What is clicked is selected all the same.
TEST(TreeMouse, AParentThatRefusesTheCaretOfAClickKeepsTheCaretOnly)
{
    Scene scene{{"a", "b", "c"}};
    scene.user.click(scene.label("a"));
    scene.parent().answer(static_cast<UINT>(TVN_SELCHANGINGW), TRUE);
    scene.user.click(scene.label("b"));
    EXPECT_EQ(scene.selected(), Names{"b"});
    EXPECT_EQ(scene.caret(), "a");
}
