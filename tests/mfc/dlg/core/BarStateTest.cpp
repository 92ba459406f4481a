// A saved arrangement: what comes back of it when bars and sides are there, and when they are not.
#include "mfc/src/frame/core/barstate.h"

#include <gtest/gtest.h>

using namespace afxdetail;

namespace
{

constexpr unsigned kTop = 1, kLeft = 2;

SavedBar docked(unsigned id, unsigned dockBar, int row, int position)
{
    return {id, false, dockBar, row, position, 0};
}

const std::vector<unsigned> kBars{10, 11, 12, 13};
const std::vector<unsigned> kSides{kTop, kLeft};
using Steps = std::vector<DockStep>;

Steps steps(const std::vector<SavedBar>& saved)
{
    return dockSteps(saved, kBars, kSides);
}

} // namespace

TEST(BarState, RowsComeBackInTheirOrder)
{
    EXPECT_EQ(steps({docked(12, kTop, 1, 0), docked(11, kTop, 0, 1), docked(10, kTop, 0, 0),
                     docked(13, kLeft, 0, 0)}),
              (Steps{{2, true, 0}, {1, false, 0}, {0, true, 1}, {3, true, 0}}));
}

TEST(BarState, RowsCloseUpWhereBarsAreMissing)
{
    EXPECT_EQ(steps({docked(77, kTop, 0, 0), docked(10, kTop, 1, 0), docked(78, kTop, 2, 0),
                     docked(11, kTop, 3, 5)}),
              (Steps{{1, true, 0}, {3, true, 1}}));
}

TEST(BarState, BarsAndSidesThatAreNotThereAreLeftOut)
{
    EXPECT_EQ(steps({docked(10, 9, 0, 0), docked(77, kTop, 0, 0)}), Steps{});
    EXPECT_EQ(dockSteps({}, kBars, kSides), Steps{});
}

TEST(BarState, FloatingBarsAreNotDocked)
{
    SavedBar floating = docked(10, kTop, 0, 0);
    floating.floating = true;
    EXPECT_EQ(steps({floating, docked(11, kTop, 0, 1)}), (Steps{{1, true, 0}}));
}

TEST(BarState, ANumberCountsOnce)
{
    EXPECT_EQ(steps({docked(10, kTop, 3, 0), docked(10, kLeft, 0, 0)}), (Steps{{0, true, 0}}));
}
