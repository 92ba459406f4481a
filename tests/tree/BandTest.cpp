// The band that selects rows, where the host asks for it.
#include "TreeScene.h"

#include <testkit/ImportPatch.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

using namespace ovo::testkit;

namespace
{

using Extra = MultiTreeCtrl::Extra;

UINT_PTR WINAPI noTimer(HWND, UINT_PTR, UINT, TIMERPROC)
{
    return 0;
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

/// With this extended style.
class TreeBandInLayout : public ::testing::TestWithParam<DWORD>
{
};

} // namespace

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
