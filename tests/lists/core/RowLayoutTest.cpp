// Where the parts of a row lie.
#include <ovoui/lists/core/RowLayout.h>
#include <ovoui/lists/core/ShortText.h>

#include <gtest/gtest.h>

#include <algorithm>

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

TEST(RowLayout, EveryPlaceOfARowBelongsToIt)
{
    constexpr int kHeight = 3;
    const auto rowBelow = [](int top, int row) { return 20 + (row - top) * kHeight; };
    for (int count = 0; count <= 5; ++count)
        for (int top = 0; top < std::max(count, 1); ++top)
            for (int y = 0; y < 50; ++y) {
                int expected = -1;
                for (int row = top; row < count; ++row)
                    if (rowBelow(top, row) <= y && y < rowBelow(top, row + 1))
                        expected = row;
                EXPECT_EQ(rowAt(y, top, {0, 20, 100, 20 + kHeight}, count), expected)
                    << y << ' ' << top << ' ' << count;
            }
}

TEST(RowLayout, AListWithoutRowsHasNoneAnywhere)
{
    for (const int y : {-1, 0, 1})
        EXPECT_EQ(rowAt(y, 0, {}, 0), -1);
}

TEST(RowLayout, ACellReachesToTheNextOne)
{
    const std::vector<Box> cells{{20, 5, 30, 22}, {30, 5, 30, 22}, {30, 5, 33, 22}, {10, 5, 15, 22}};
    for (int x = 0; x < 40; ++x) {
        const int expected = 20 <= x && x < 30 ? 0 : 30 <= x && x < 33 ? 2 : 10 <= x && x < 15 ? 3 : -1;
        EXPECT_EQ(cellAt(cells, x), expected) << x;
        EXPECT_EQ(cellAt({}, x), -1);
    }
    EXPECT_EQ(cellAt({{0, 0, 9, 9}, {5, 0, 20, 9}}, 7), 0) << "the first one counts";
}

TEST(RowLayout, AColumnThatIsFittedShowsItsTextWhole)
{
    for (int extent = 0; extent < 50; ++extent) {
        EXPECT_TRUE(fits(extent, columnWidthFor(extent), kCellOffset));
        EXPECT_FALSE(fits(extent, columnWidthFor(extent) - 1, kCellOffset)) << "no wider than needed";
        for (const int beforeLabel : {0, 2, 18})
            for (const int stateImage : {0, 16}) {
                const Box label{beforeLabel, 0, labelColumnWidthFor(extent, beforeLabel, stateImage), 20};
                EXPECT_TRUE(fits(extent, labelTextBox(label, stateImage).width(), kLabelOffset))
                    << extent << ' ' << beforeLabel << ' ' << stateImage;
            }
    }
}
