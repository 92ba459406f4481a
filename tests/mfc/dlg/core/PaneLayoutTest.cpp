// Where the panes of a status bar end.
#include <mfc/src/frame/core/panelayout.h>

#include <gtest/gtest.h>

using namespace afxdetail;

using Ends = std::vector<int>;

TEST(PaneLayout, TheStretchedPaneTakesWhatTheOthersLeave)
{
    const PaneExtent panes[] = {{0, true}, {30, false}, {40, false}};
    EXPECT_EQ(paneEnds(panes, 200, 10), (Ends{110, 150, 200}));
}

TEST(PaneLayout, WithoutAStretchedPaneTheEndIsEmpty)
{
    const PaneExtent panes[] = {{20, false}, {30, false}};
    EXPECT_EQ(paneEnds(panes, 200, 10), (Ends{30, 70}));
}

TEST(PaneLayout, OnlyTheFirstOfTwoStretchedPanesIsStretched)
{
    const PaneExtent panes[] = {{0, true}, {0, true}};
    EXPECT_EQ(paneEnds(panes, 100, 10), (Ends{90, 100}));
}

TEST(PaneLayout, AStretchedPaneKeepsItsOwnWidthWhereThereIsNoRoom)
{
    const PaneExtent panes[] = {{50, true}, {30, false}};
    EXPECT_EQ(paneEnds(panes, 20, 10), (Ends{60, 100}));
    EXPECT_EQ(paneEnds(panes, -5, 10), (Ends{60, 100}));
}

TEST(PaneLayout, NoPanesEndNowhere)
{
    EXPECT_TRUE(paneEnds({}, 100, 10).empty());
}
