// What a host has to ask for: ranges that are added, the band, finding by typing, check boxes. All of it is
// off at first.
#include "TreeScene.h"

#include <support/Perishing.h>

#include <testkit/ImportPatch.h>
#include <testkit/Picture.h>

#include <ovocor/OvoError.h>

#include <uxtheme.h>
#include <vssym32.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

using namespace ovo::testkit;

namespace
{

using Extra = MultiTreeCtrl::Extra;
using Check = MultiTreeCtrl::Checkable::Check;

/// A node with a check box.
class CheckedNode : public TestNode, public MultiTreeCtrl::Checkable
{
public:
    using TestNode::TestNode;

    Check shown = Check::Off;
    bool obeys = true;
    std::function<void()> checking; ///< at setCheck
    std::function<void()> asking;   ///< at check

    Check check() const override
    {
        if (asking)
            asking();
        return shown;
    }
    void setCheck(MultiTreeCtrl&, bool on) override
    {
        if (journal)
            journal->push_back((on ? "check " : "uncheck ") + name);
        if (obeys)
            shown = on ? Check::On : Check::Off;
        if (checking)
            checking();
    }
};

int WINAPI largeMenus(int metric)
{
    return metric == SM_CXMENUCHECK ? 60 : ::GetSystemMetrics(metric);
}

UINT_PTR WINAPI noTimer(HWND, UINT_PTR, UINT, TIMERPROC)
{
    return 0;
}

CheckedNode& addChecked(Scene& scene, const std::string& name)
{
    auto* const node = new CheckedNode(name, &scene.journal);
    node->insert(scene.tree, TVI_ROOT, TVI_LAST);
    return *node;
}

Check shownBy(Scene& scene, const std::string& name)
{
    return static_cast<Check>(scene.tree.GetItemState(scene.item(name), TVIS_STATEIMAGEMASK) >> 12);
}

/// Where the check box of an item is.
Spot boxOf(Scene& scene, const std::string& name)
{
    return Spot([&scene, name] {
        const CPoint label = scene.labelPoint(name);
        for (int x = 0; x < label.x; ++x) {
            UINT flags = 0;
            scene.tree.CTreeCtrl::HitTest(CPoint(x, label.y), &flags);
            if (flags & TVHT_ONITEMSTATEICON) {
                CPoint point(x + 3, label.y);
                scene.tree.ClientToScreen(&point);
                return point;
            }
        }
        throw std::runtime_error("no check box at " + name);
    });
}

Names numbered(int count)
{
    Names names;
    for (int i = 0; i < count; ++i)
        names.push_back(std::to_string(100 + i));
    return names;
}

/// Outside the tree, in the middle of its left half, so many pixels above or below it.
Spot outside(Scene& scene, bool below, int pixels)
{
    return Spot([&scene, below, pixels] {
        CRect rect;
        scene.tree.GetWindowRect(&rect);
        return CPoint(rect.left + rect.Width() / 3, below ? rect.bottom + pixels : rect.top - pixels);
    });
}

/// The state images that a tree view has.
HIMAGELIST stateImages(HWND treeView)
{
    return reinterpret_cast<HIMAGELIST>(::SendMessageW(treeView, TVM_GETIMAGELIST, TVSIL_STATE, 0));
}

/// The height of the check boxes.
int boxHeight(Scene& scene)
{
    int width = 0;
    int height = 0;
    ::ImageList_GetIconSize(stateImages(scene.tree), &width, &height);
    return height;
}

/// With this extended style.
class TreeBandInLayout : public ::testing::TestWithParam<DWORD>
{
};

void type(Scene& scene, const std::string& text)
{
    for (const char letter : text)
        scene.tree.SendMessage(WM_CHAR, static_cast<WPARAM>(letter), 1);
}

} // namespace

TEST(TreeExtras, AreOffAtFirst)
{
    Scene scene{{"a"}};
    EXPECT_EQ(scene.tree.extras(), 0u);
    scene.tree.setExtras(Extra::RubberBand | Extra::CheckBoxes);
    EXPECT_EQ(scene.tree.extras(), 9u);
}

// Ranges that are added

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

// The band

TEST(TreeBand, IsADragUnlessItIsAskedFor)
{
    Scene scene{{"a", "b", "c"}};
    bool dragged = false;
    scene.parent().answer(static_cast<UINT>(TVN_BEGINDRAGW), [&](NMHDR*) -> LRESULT {
        dragged = true;
        return 0;
    });
    scene.user.press(scene.below()).moveBy(0, -30).waitFor("the drag", [&] { return dragged; }).release();
    EXPECT_TRUE(dragged);
}

TEST(TreeBand, SelectsTheRowsThatThePointerPasses)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.tree.setExtras(Extra::RubberBand);
    scene.tree.SelectItem(scene.item("a"));
    scene.forget();
    bool dragged = false;
    scene.parent().answer(static_cast<UINT>(TVN_BEGINDRAGW), [&](NMHDR*) -> LRESULT {
        dragged = true;
        return 0;
    });
    Names meanwhile;
    scene.user.press(scene.beside("b"))
        .moveTo(scene.beside("c"))
        .waitFor("two rows", [&] { return scene.selected().size() == 2; })
        .then([&] { meanwhile = scene.selected(); })
        .moveTo(scene.beside("d"))
        .waitFor("three rows", [&] { return scene.selected().size() == 3; })
        .release();
    EXPECT_EQ(meanwhile, (Names{"b", "c"}));
    EXPECT_EQ(scene.selected(), (Names{"b", "c", "d"}));
    EXPECT_EQ(scene.caret(), "d");
    EXPECT_FALSE(dragged);
    const Changes changes = scene.changes();
    ASSERT_EQ(changes.size(), 2u); // the press has cleared, the band has selected
    EXPECT_EQ(changes.back().action, static_cast<UINT>(TVC_BYMOUSE));
    EXPECT_EQ(changes.back().newItem, "d");
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(TreeBand, FromBelowTheLastItemReachesUpwards)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.tree.setExtras(Extra::RubberBand);
    scene.user.press(scene.below())
        .moveTo(scene.beside("c"))
        .waitFor("two rows", [&] { return scene.selected().size() == 2; })
        .release();
    EXPECT_EQ(scene.selected(), (Names{"c", "d"}));
    // And back to the empty space: nothing.
    scene.user.press(scene.below())
        .moveTo(scene.beside("b"))
        .waitFor("three rows", [&] { return scene.selected().size() == 3; })
        .moveTo(scene.below())
        .waitFor("none", [&] { return scene.selected().empty(); })
        .release();
    EXPECT_EQ(scene.selected(), Names{});
}

TEST(TreeBand, GoesByTheHeightOfAPointerBesideTheTree)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.tree.setExtras(Extra::RubberBand);
    CRect client;
    scene.tree.GetClientRect(&client);
    for (const int x : {client.right + 20, client.left - 20}) {
        scene.user.press(scene.beside("b"))
            .moveTo(Spot{scene.tree, CPoint(x, scene.labelPoint("c").y)})
            .waitFor("rows", [&] { return scene.selected().size() > 1; })
            .release();
        EXPECT_EQ(scene.selected(), (Names{"b", "c"})) << x;
    }
}

TEST(TreeBand, WithCtrlChangesOverWhatItPasses)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.tree.setExtras(Extra::RubberBand);
    scene.user.click(scene.label("a"));
    scene.user.holding(VK_CONTROL).click(scene.label("c"));
    scene.user.holding(VK_CONTROL)
        .press(scene.below())
        .moveTo(scene.beside("b"))
        .waitFor("all but c",
                 [&] {
                     return scene.selected() == Names{"a", "b", "d"};
                 })
        .release();
    EXPECT_EQ(scene.selected(), (Names{"a", "b", "d"}));
}

TEST(TreeBand, EscapeBringsTheSelectionBack)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.tree.setExtras(Extra::RubberBand);
    scene.user.click(scene.label("a"));
    scene.forget();
    scene.user.holding(VK_CONTROL)
        .press(scene.below())
        .moveTo(scene.beside("b"))
        .waitFor("more", [&] { return scene.selected().size() > 2; })
        .key(VK_ESCAPE)
        .waitFor("a alone", [&] { return scene.selected() == Names{"a"}; })
        .release();
    EXPECT_EQ(scene.selected(), Names{"a"});
    EXPECT_EQ(scene.caret(), "a");
    EXPECT_EQ(scene.changes(), Changes{});
}

TEST(TreeBand, EndsWithTheCaretAtItsEndAndTheAnchorWhereItBegan)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.tree.setExtras(Extra::RubberBand);
    scene.tree.SelectItem(scene.item("b")); // a press on a selected item leaves the anchor alone
    scene.tree.selectItemAnchor(scene.item("d"));
    scene.user.press(scene.beside("b"))
        .moveTo(scene.below())
        .waitFor("three rows", [&] { return scene.selected().size() == 3; })
        .release();
    EXPECT_EQ(scene.selected(), (Names{"b", "c", "d"}));
    EXPECT_EQ(scene.caret(), "d") << "the last one, when the band ends below it";
    scene.user.holding(VK_SHIFT).click(scene.label("c"));
    EXPECT_EQ(scene.selected(), (Names{"b", "c"}));
}

TEST(TreeBand, TellsTheParentOfTheCaretsBeforeAndAfter)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.tree.setExtras(Extra::RubberBand);
    scene.user.click(scene.label("a"));
    scene.forget();
    scene.user.holding(VK_CONTROL)
        .press(scene.below())
        .moveTo(scene.beside("c"))
        .waitFor("three rows", [&] { return scene.selected().size() == 3; })
        .release();
    EXPECT_EQ(scene.selected(), (Names{"a", "c", "d"}));
    EXPECT_EQ(scene.changes(), (Changes{{TVC_BYMOUSE, "a", "c"}}));
}

/// The frame goes along with the rows: where it began is out of sight then, and only its sides are seen.
TEST(TreeBand, ScrollsWhileThePointerIsBesideTheTree)
{
    const Names names = numbered(40);
    Scene scene{names};
    scene.tree.setExtras(Extra::RubberBand);
    const auto range = [&](const std::string& first, const std::string& last) {
        return Names(std::ranges::find(names, first), std::next(std::ranges::find(names, last)));
    };
    const auto isFrame = [&](int x, int y) {
        CClientDC dc(&scene.tree);
        return dc.GetPixel(x, y) == ::GetSysColor(COLOR_HIGHLIGHT);
    };
    CRect client;
    scene.tree.GetClientRect(&client);
    CPoint begin = scene.beside("103").find();
    scene.tree.ScreenToClient(&begin);
    const int between = (begin.x + client.Width() / 3) / 2;
    bool side = false;
    int across = 0;
    scene.user.press(scene.beside("103"))
        .moveTo(outside(scene, true, 8))
        .waitFor("all below", [&] { return scene.selected() == range("103", "139"); })
        .waitFor("the last row",
                 [&] {
                     CRect row;
                     return scene.tree.GetItemRect(scene.item("139"), &row, FALSE) &&
                            row.bottom <= client.bottom;
                 })
        .then([&] {
            side = isFrame(begin.x, client.Height() / 2);
            for (int y = 0; y < client.bottom; ++y)
                across += isFrame(between, y);
        })
        .moveTo(outside(scene, false, 4))
        .waitFor("all above", [&] { return scene.selected() == range("100", "103"); })
        .release();
    EXPECT_TRUE(side);
    EXPECT_EQ(across, 0);
    EXPECT_EQ(scene.nameOf(scene.tree.GetFirstVisibleItem()), "100");
    EXPECT_EQ(scene.caret(), "100");
}

/// Laid out from right to left, the tree counts its coordinates from its right edge.
TEST_P(TreeBandInLayout, ShowsItsFrameAndTakesItAway)
{
    const bool mirrored = GetParam() != 0;
    Scene scene{{"a", "b", "c", "d"}};
    scene.tree.ModifyStyleEx(0, GetParam(), SWP_FRAMECHANGED);
    scene.tree.RedrawWindow();
    scene.tree.setExtras(Extra::RubberBand);
    const auto highlighted = [&](const std::string& name) {
        CRect rect;
        scene.tree.GetItemRect(scene.item(name), &rect, TRUE);
        CClientDC dc(&scene.tree);
        for (int x = rect.right + 2; x < rect.right + 60; ++x)
            if (dc.GetPixel(x, rect.CenterPoint().y) == ::GetSysColor(COLOR_HIGHLIGHT))
                return true;
        return false;
    };
    bool during = false;
    scene.user.press(scene.beside("a"))
        .moveTo(scene.beside("d"))
        .moveBy(mirrored ? -30 : 30, 0)
        .waitFor("all", [&] { return scene.selected().size() == 4; })
        .waitFor("the frame", [&] { return during = highlighted("b"); })
        .release()
        .waitFor("no frame", [&] { return !highlighted("b"); });
    EXPECT_TRUE(during);
    EXPECT_EQ(scene.selected(), (Names{"a", "b", "c", "d"}));
}

INSTANTIATE_TEST_SUITE_P(Layouts, TreeBandInLayout, ::testing::Values(DWORD{0}, DWORD{WS_EX_LAYOUTRTL}),
                         [](const auto& info) { return info.param ? "RightToLeft" : "LeftToRight"; });

TEST(TreeBand, IsGivenUpAtOnceWhenAnotherWindowTakesTheMouse)
{
    const ImportPatch noTimers(L"ovoui.dll", "SetTimer", reinterpret_cast<void*>(&noTimer));
    Scene scene{{"a", "b", "c", "d"}};
    scene.tree.setExtras(Extra::RubberBand);
    scene.user.press(scene.beside("a"))
        .moveTo(scene.beside("c"))
        .waitFor("three rows", [&] { return scene.selected().size() == 3; })
        .then([&] { scene.parent().SetCapture(); })
        .waitFor("what was selected before", [&] { return scene.selected().empty(); })
        .release();
    ::ReleaseCapture();
    EXPECT_EQ(scene.selected(), Names{});
}

/// Messages run while the band is drawn: the host may do anything in them.
TEST(TreeBand, OutlivesWhatHappensMeanwhile)
{
    struct Misdeed
    {
        const char* name;
        std::function<void(Scene&)> commit;
    };
    const Misdeed misdeeds[] = {
        {"deletes where it began", [](Scene& scene) { scene.tree.DeleteItem(scene.item("a")); }},
        {"deletes all", [](Scene& scene) { scene.tree.DeleteAllItems(); }},
        {"selects another", [](Scene& scene) { scene.tree.SelectItem(scene.item("d")); }},
        {"takes the mouse", [](Scene& scene) { scene.parent().SetCapture(); }},
        {"destroys the window", [](Scene& scene) { scene.tree.DestroyWindow(); }},
    };
    for (const Misdeed& misdeed : misdeeds) {
        SCOPED_TRACE(misdeed.name);
        Scene scene{{"a", "b", "c", "d"}};
        scene.tree.setExtras(Extra::RubberBand);
        scene.user.press(scene.beside("a"))
            .moveTo(scene.beside("c"))
            .waitFor("three rows", [&] { return scene.selected().size() == 3; })
            .then([&] { misdeed.commit(scene); })
            .moveBy(0, 5)
            .release();
        ::ReleaseCapture();
        EXPECT_EQ(TestNode::live(), scene.tree.m_hWnd ? static_cast<int>(scene.tree.GetCount()) : 0);
        if (!scene.tree.m_hWnd)
            continue;
        scene.tree.SelectItem(scene.addTo(TVI_ROOT, "later").hTreeItem());
        EXPECT_EQ(scene.selected(), Names{"later"});
    }
}

// Finding by typing

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

// Check boxes

TEST(TreeCheckBoxes, AreShownOnlyWhereTheHostAsksAndTheNodeHasOne)
{
    Scene scene{{"plain"}};
    addChecked(scene, "box").shown = Check::On;
    EXPECT_EQ(shownBy(scene, "box"), Check::None);
    scene.tree.setExtras(Extra::CheckBoxes);
    EXPECT_EQ(shownBy(scene, "box"), Check::On);
    EXPECT_EQ(shownBy(scene, "plain"), Check::None);
    addChecked(scene, "later");
    EXPECT_EQ(shownBy(scene, "later"), Check::Off);
    scene.tree.setExtras(0);
    EXPECT_EQ(shownBy(scene, "box"), Check::None);
    EXPECT_EQ(scene.tree.GetImageList(TVSIL_STATE), nullptr);
}

/// The boxes are drawn with another theme than the tree.
TEST(TreeCheckBoxes, LeaveTheTreeTheThemeThatItDrawsWith)
{
    Scene scene;
    const HTHEME theme = ::GetWindowTheme(scene.tree);
    ASSERT_NE(theme, nullptr);
    scene.tree.setExtras(Extra::CheckBoxes);
    EXPECT_EQ(::GetWindowTheme(scene.tree), theme);
}

TEST(TreeCheckBoxes, AreNoHigherThanTheRowsWhereTheFontOfMenusIsLarge)
{
    const ImportPatch large(L"ovoui.dll", "GetSystemMetrics", reinterpret_cast<void*>(&largeMenus));
    Scene scene{{"a"}};
    scene.tree.setExtras(Extra::CheckBoxes);
    IMAGEINFO box{};
    ASSERT_TRUE(scene.tree.GetImageList(TVSIL_STATE)->GetImageInfo(1, &box));
    EXPECT_EQ(box.rcImage.bottom - box.rcImage.top, static_cast<LONG>(scene.tree.GetItemHeight()));
}

/// Each as the system draws it, by the theme of the tree where it has one.
TEST(TreeCheckBoxes, ShowHowTheyStand)
{
    struct Look
    {
        Check check;
        int themed;
        UINT classic;
    };
    const Look looks[] = {{Check::Off, CBS_UNCHECKEDNORMAL, DFCS_BUTTONCHECK},
                          {Check::On, CBS_CHECKEDNORMAL, DFCS_BUTTONCHECK | DFCS_CHECKED},
                          {Check::Mixed, CBS_MIXEDNORMAL, DFCS_BUTTON3STATE | DFCS_CHECKED}};
    for (const bool classic : {false, true}) {
        SCOPED_TRACE(classic);
        Scene scene;
        if (classic)
            ::SetWindowTheme(scene.tree, L" ", L" "); // of no class that there is
        scene.tree.setExtras(Extra::CheckBoxes);
        CheckedNode& node = addChecked(scene, "box");
        const int size = boxHeight(scene);
        std::vector<Picture> systems;
        // The classic grey is a pattern, whose beginning depends on where it is drawn.
        const auto fromSystem = [&](const Look& look, int patternBegins) {
            Picture system(size, size, ::GetSysColor(COLOR_WINDOW));
            RECT all{0, 0, size, size};
            ::SetBrushOrgEx(system.dc(), patternBegins, 0, nullptr);
            if (::GetWindowTheme(scene.tree)) {
                const HTHEME theme = ::OpenThemeData(nullptr, L"Button");
                ::DrawThemeBackground(theme, system.dc(), BP_CHECKBOX, look.themed, &all, nullptr);
                ::CloseThemeData(theme);
            } else {
                ::DrawFrameControl(system.dc(), &all, DFC_BUTTON, look.classic | DFCS_FLAT);
            }
            return system;
        };
        for (const Look& look : looks) {
            node.shown = look.check;
            scene.tree.updateUI(node);
            Picture shown(size, size);
            ::ImageList_Draw(stateImages(scene.tree), static_cast<int>(shownBy(scene, "box")), shown.dc(), 0,
                             0, ILD_NORMAL);
            systems.push_back(fromSystem(look, 0));
            EXPECT_EQ(
                std::min(shown.differences(systems.back(), 8), shown.differences(fromSystem(look, 1), 8)), 0)
                << look.themed;
        }
        EXPECT_GT(systems[0].differences(systems[1], 8), 0);
        EXPECT_GT(systems[1].differences(systems[2], 8), 0);
    }
}

TEST(TreeCheckBoxes, AreDrawnAnewWhenTheLooksOfTheSystemChange)
{
    for (const UINT change : {WM_THEMECHANGED, WM_SYSCOLORCHANGE}) {
        SCOPED_TRACE(change);
        Scene scene{{"a"}};
        scene.tree.setExtras(Extra::CheckBoxes);
        const int rows = static_cast<int>(scene.tree.GetItemHeight());
        ASSERT_LT(boxHeight(scene), rows);
        {
            const ImportPatch large(L"ovoui.dll", "GetSystemMetrics", reinterpret_cast<void*>(&largeMenus));
            scene.tree.SendMessage(change);
        }
        EXPECT_EQ(boxHeight(scene), rows);
        scene.tree.setExtras(0);
        scene.tree.SendMessage(change);
        EXPECT_EQ(stateImages(scene.tree), nullptr) << "there are no boxes any more";
    }
}

TEST(TreeCheckBoxes, GiveTheHostItsOwnStateImagesBack)
{
    CImageList own;
    own.Create(12, 12, ILC_COLOR24, 4, 0);
    Scene scene{{"plain"}};
    const HTREEITEM plain = scene.item("plain");
    scene.tree.SetImageList(&own, TVSIL_STATE);
    scene.tree.SetItemState(plain, INDEXTOSTATEIMAGEMASK(2), TVIS_STATEIMAGEMASK);
    for (int i = 0; i < 2; ++i) {
        scene.tree.setExtras(Extra::CheckBoxes);
        EXPECT_NE(stateImages(scene.tree), own.GetSafeHandle());
        scene.tree.setExtras(0);
        EXPECT_EQ(stateImages(scene.tree), own.GetSafeHandle());
        EXPECT_EQ(scene.tree.GetItemState(plain, TVIS_STATEIMAGEMASK), INDEXTOSTATEIMAGEMASK(2u));
    }
}

/// As in a dialog, whose class asks for them when it is made, and which takes its controls over later.
TEST(TreeCheckBoxes, CanBeAskedForBeforeATreeViewIsTakenOver)
{
    RecordingParent parent;
    CImageList own;
    own.Create(12, 12, ILC_COLOR24, 4, 0);
    TestTree tree;
    tree.setExtras(Extra::CheckBoxes);
    for (const bool hasImages : {true, false}) {
        SCOPED_TRACE(hasImages);
        const HWND plain = ::CreateWindowExW(0, WC_TREEVIEWW, L"", Scene::kStyle, 0, 0, 200, 200,
                                             parent.m_hWnd, reinterpret_cast<HMENU>(5), nullptr, nullptr);
        const HIMAGELIST before = hasImages ? own.GetSafeHandle() : nullptr;
        ::SendMessageW(plain, TVM_SETIMAGELIST, TVSIL_STATE, reinterpret_cast<LPARAM>(before));
        for (int i = 0; i < 2; ++i) { // let go of and taken over again, it has them still
            ASSERT_TRUE(tree.SubclassWindow(plain));
            EXPECT_NE(stateImages(plain), nullptr);
            EXPECT_NE(stateImages(plain), own.GetSafeHandle());
            if (i == 0)
                tree.UnsubclassWindow();
        }
        tree.setExtras(0);
        EXPECT_EQ(stateImages(plain), before);
        tree.setExtras(Extra::CheckBoxes);
        tree.DestroyWindow();
    }
}

TEST(TreeCheckBoxes, CanBeAskedForBeforeThereIsAWindow)
{
    RecordingParent parent;
    TestTree tree;
    tree.setExtras(Extra::CheckBoxes);
    tree.Create(Scene::kStyle, CRect(0, 0, 100, 100), &parent, 1);
    EXPECT_NE(tree.GetImageList(TVSIL_STATE), nullptr);
    auto* const node = new CheckedNode("a");
    const HTREEITEM item = node->insert(tree, TVI_ROOT, TVI_LAST);
    EXPECT_EQ(tree.GetItemState(item, TVIS_STATEIMAGEMASK), INDEXTOSTATEIMAGEMASK(1));
}

TEST(TreeCheckBoxes, AClickTogglesTheBoxAndLeavesTheSelectionAlone)
{
    Scene scene{{"plain"}};
    scene.tree.setExtras(Extra::CheckBoxes);
    addChecked(scene, "box");
    scene.user.click(scene.label("plain"));
    scene.forget();
    scene.journal.clear();
    scene.user.click(boxOf(scene, "box"));
    EXPECT_EQ(scene.journal, Journal{"check box"});
    EXPECT_EQ(shownBy(scene, "box"), Check::On);
    EXPECT_EQ(scene.selected(), Names{"plain"});
    EXPECT_EQ(scene.changes(), Changes{});
    scene.user.click(boxOf(scene, "box"));
    EXPECT_EQ(shownBy(scene, "box"), Check::Off);
}

TEST(TreeCheckBoxes, ARightClickOnTheBoxIsOneOnTheItem)
{
    Scene scene{{"plain"}};
    scene.tree.swallowsContextMenu = true;
    scene.tree.setExtras(Extra::CheckBoxes);
    addChecked(scene, "box");
    scene.journal.clear();
    scene.user.rightClick(boxOf(scene, "box"));
    EXPECT_EQ(scene.journal, Journal{}) << "not toggled";
    EXPECT_EQ(scene.selected(), Names{"box"});
    EXPECT_EQ(scene.tree.contextMenus, 1);
}

TEST(TreeCheckBoxes, ADoubleClickTogglesTwiceAndActivatesNothing)
{
    Scene scene;
    scene.tree.setExtras(Extra::CheckBoxes);
    addChecked(scene, "box");
    scene.journal.clear();
    scene.user.doubleClick(boxOf(scene, "box"));
    EXPECT_EQ(scene.journal, (Journal{"check box", "uncheck box"}));
}

TEST(TreeCheckBoxes, AMixedBoxBecomesCheckedAndANodeMayRefuse)
{
    Scene scene;
    scene.tree.setExtras(Extra::CheckBoxes);
    CheckedNode& node = addChecked(scene, "box");
    node.shown = Check::Mixed;
    scene.tree.updateUI(node);
    EXPECT_EQ(shownBy(scene, "box"), Check::Mixed);
    node.obeys = false;
    scene.user.click(boxOf(scene, "box"));
    EXPECT_EQ(scene.journal.back(), "check box");
    EXPECT_EQ(shownBy(scene, "box"), Check::Mixed);
}

TEST(TreeCheckBoxes, SpaceLetsAllSelectedBoxesFollowTheCarets)
{
    Scene scene{{"plain"}};
    scene.tree.setExtras(Extra::CheckBoxes);
    for (const char* const name : {"x", "y", "z"})
        addChecked(scene, name);
    scene.user.click(boxOf(scene, "y"));
    scene.user.click(scene.label("plain"));
    scene.user.holding(VK_SHIFT).click(scene.label("y")); // the caret at y, which is checked
    scene.journal.clear();
    scene.user.key(VK_SPACE);
    EXPECT_EQ(shownBy(scene, "x"), Check::Off);
    EXPECT_EQ(shownBy(scene, "y"), Check::Off);
    scene.user.key(VK_SPACE);
    EXPECT_EQ(shownBy(scene, "x"), Check::On);
    EXPECT_EQ(shownBy(scene, "y"), Check::On);
    EXPECT_EQ(shownBy(scene, "z"), Check::Off);
    EXPECT_EQ(scene.selected(), (Names{"plain", "x", "y"}));
}

TEST(TreeCheckBoxes, ANodeMayHaveNoneAtTheMoment)
{
    Scene scene;
    scene.tree.setExtras(Extra::CheckBoxes);
    CheckedNode& x = addChecked(scene, "x");
    addChecked(scene, "y");
    x.shown = Check::None;
    scene.tree.updateUI(x);
    scene.user.click(scene.label("x"));
    scene.journal.clear();
    scene.user.key(VK_SPACE);
    EXPECT_EQ(scene.journal, (Journal{"gesture 1118", "activate x", "gesture 0"}));
    scene.user.holding(VK_SHIFT).click(scene.label("y")); // the caret at y
    scene.journal.clear();
    scene.user.key(VK_SPACE);
    EXPECT_EQ(scene.journal, Journal{"check y"});
    EXPECT_EQ(shownBy(scene, "x"), Check::None);
}

TEST(TreeCheckBoxes, SpaceTogglesACaretThatIsNotSelectedAlone)
{
    Scene scene;
    scene.tree.setExtras(Extra::CheckBoxes);
    for (const char* const name : {"x", "y"})
        addChecked(scene, name);
    scene.user.click(scene.label("x"));
    scene.user.holding(VK_CONTROL).key(VK_DOWN);
    ASSERT_EQ(scene.caret(), "y");
    scene.journal.clear();
    scene.user.key(VK_SPACE);
    EXPECT_EQ(scene.journal, Journal{"check y"});
    EXPECT_EQ(scene.selected(), Names{"x"});
}

TEST(TreeCheckBoxes, WhatANodeRaisesIsReported)
{
    Scene scene;
    scene.tree.setExtras(Extra::CheckBoxes);
    CheckedNode& node = addChecked(scene, "box");
    node.checking = [] { throw OvoError(L"locked"); };
    scene.user.click(boxOf(scene, "box"));
    EXPECT_EQ(scene.tree.errors, Journal{"locked"});
    node.checking = nullptr;
    scene.journal.clear();
    for (const bool byKey : {false, true}) {
        node.asking = [] { throw std::runtime_error("unknown"); };
        scene.tree.SelectItem(scene.item("box"));
        scene.tree.errors.clear();
        if (byKey)
            scene.user.key(VK_SPACE);
        else
            scene.user.click(boxOf(scene, "box"));
        EXPECT_EQ(scene.tree.errors, Journal{"unknown"});
        EXPECT_EQ(scene.journal, Journal{}) << "what it is to become is not known";
        node.asking = nullptr;
    }
}

/// Not only its window.
TEST(TreeCheckBoxes, OutliveATreeThatIsDeletedWhenANodeIsAsked)
{
    for (const bool byKey : {false, true}) {
        RecordingParent parent;
        auto tree = std::make_unique<TestTree>();
        tree->setExtras(Extra::CheckBoxes);
        tree->Create(Scene::kStyle, CRect(0, 0, 200, 200), &parent, 1);
        auto* const node = new CheckedNode("box");
        const HTREEITEM item = node->insert(*tree, TVI_ROOT, TVI_LAST);
        tree->SelectItem(item);
        CRect label;
        tree->GetItemRect(item, &label, TRUE);
        const int y = label.CenterPoint().y;
        const auto isOnBox = [&](int x) {
            UINT flags = 0;
            tree->CTreeCtrl::HitTest(CPoint(x, y), &flags);
            return (flags & TVHT_ONITEMSTATEICON) != 0;
        };
        int x = 0;
        while (x < label.left && !isOnBox(x))
            ++x;
        ASSERT_LT(x, label.left);
        node->asking = [&] { tree.reset(); };
        if (byKey)
            tree->SendMessage(WM_KEYDOWN, VK_SPACE, 1);
        else
            tree->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        EXPECT_EQ(tree, nullptr);
        EXPECT_EQ(TestNode::live(), 0);
    }
}

/// A tree whose host does a deed when the tree view gets images.
class ImagesTree : public TestTree
{
public:
    std::function<void()> deed;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != TVM_SETIMAGELIST || !deed)
            return TestTree::WindowProc(message, wParam, lParam);
        const std::function<void()> own = deed;
        own();
        return 0;
    }
};

TEST(TreeCheckBoxes, OutliveAHostThatDestroysTheTreeWhenItGetsItsImages)
{
    for (const bool wholeObject : {false, true})
        for (const bool on : {false, true}) {
            SCOPED_TRACE(std::string(wholeObject ? "object" : "window") + (on ? " on" : " off"));
            RecordingParent parent;
            std::unique_ptr<ImagesTree> tree = std::make_unique<Perishing<ImagesTree>>();
            tree->Create(Scene::kStyle, CRect(0, 0, 200, 200), &parent, 1);
            (new CheckedNode("box"))->insert(*tree, TVI_ROOT, TVI_LAST);
            if (!on)
                tree->setExtras(Extra::CheckBoxes);
            tree->deed = [&] {
                if (wholeObject)
                    tree.reset();
                else
                    tree->DestroyWindow();
            };
            tree->setExtras(on ? unsigned{Extra::CheckBoxes} : 0u);
            EXPECT_EQ(TestNode::live(), 0);
        }
}

TEST(TreeCheckBoxes, OutliveWhatANodeDoes)
{
    const std::function<void(Scene&)> misdeeds[] = {
        [](Scene& scene) { scene.tree.DeleteItem(scene.item("box")); },
        [](Scene& scene) { scene.tree.DeleteAllItems(); },
        [](Scene& scene) { scene.tree.setExtras(0); },
        [](Scene& scene) { scene.tree.SendMessage(WM_KEYDOWN, VK_SPACE, 1); },
        [](Scene& scene) { scene.tree.DestroyWindow(); },
    };
    for (const auto& misdeed : misdeeds)
        for (const bool byKey : {false, true})
            for (const bool asked : {false, true}) {
                Scene scene{{"plain"}};
                scene.tree.setExtras(Extra::CheckBoxes);
                CheckedNode& node = addChecked(scene, "box");
                addChecked(scene, "other");
                scene.tree.SelectItem(scene.item("box"));
                scene.tree.selectRange(scene.item("box"), scene.item("other"));
                bool committed = false;
                (asked ? node.asking : node.checking) = [&] {
                    if (!std::exchange(committed, true))
                        misdeed(scene);
                };
                if (byKey)
                    scene.tree.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
                else
                    scene.user.click(boxOf(scene, "box"));
                EXPECT_TRUE(committed);
                EXPECT_EQ(TestNode::live(), scene.tree.m_hWnd ? static_cast<int>(scene.tree.GetCount()) : 0);
            }
}
