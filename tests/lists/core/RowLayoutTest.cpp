// Where the parts of a row lie.
#include <ovoui/lists/core/RowLayout.h>

#include <gtest/gtest.h>

using namespace ovoui::lists;

TEST(RowLayout, ARowReachesFromItsLabelToTheFurtherOfColumnsAndWindow)
{
    const Box label{20, 5, 100, 22};
    EXPECT_EQ(rowBox({0, 5, 180, 22}, label, 400), (Box{20, 5, 400, 22}));
    EXPECT_EQ(rowBox({0, 5, 480, 22}, label, 400), (Box{20, 5, 480, 22}));
    EXPECT_EQ(rowBox({0, 5, 400, 22}, label, 400), (Box{20, 5, 400, 22}));
    EXPECT_EQ(rowBox({0, 5, 180, 22}, label, 0), (Box{20, 5, 180, 22})) << "before the first WM_SIZE";
    EXPECT_EQ(rowBox({-50, 5, 410, 22}, {-30, 5, 60, 22}, 400), (Box{-30, 5, 410, 22})) << "scrolled";
}

TEST(RowLayout, AStateImageTakesItsWidthFromTheRightOfTheLabel)
{
    EXPECT_EQ(labelTextBox({20, 5, 100, 22}, 16), (Box{20, 5, 84, 22}));
    EXPECT_EQ(labelTextBox({20, 5, 100, 22}, 0), (Box{20, 5, 100, 22}));
    EXPECT_EQ(labelTextBox({20, 5, 30, 22}, 16).width(), -6) << "no room";
}

TEST(RowLayout, CellsStandSideBySide)
{
    EXPECT_EQ(cellAfter({20, 5, 100, 22}, 60), (Box{100, 5, 160, 22}));
    EXPECT_EQ(cellAfter({100, 5, 160, 22}, 0), (Box{160, 5, 160, 22}));
    EXPECT_EQ(textBox({100, 5, 160, 22}, kCellInset), (Box{106, 5, 154, 22}));
}

TEST(RowLayout, ATextMayUseWhatTheInsetsLeave)
{
    EXPECT_EQ(kLabelOffset, 2 * kLabelInset);
    EXPECT_EQ(kCellOffset, 2 * kCellInset);
    EXPECT_EQ(kLabelInset, 2);
    EXPECT_EQ(kCellInset, 6);
}

TEST(RowLayout, TheRowBehindThoseThatHaveRoomIsShownToo)
{
    for (int count = 0; count <= 8; ++count)
        for (int top = 0; top <= count; ++top)
            for (int whole = 0; whole <= 9; ++whole) {
                const RowRange shown = rowsShown(top, whole, count);
                EXPECT_EQ(shown.first, top);
                const bool reachesTheEnd = count - top <= whole;
                EXPECT_EQ(shown.end - shown.first, reachesTheEnd ? count - top : whole + 1)
                    << count << ' ' << top << ' ' << whole;
            }
}
