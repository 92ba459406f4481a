#include <ovoui/tree/core/RowWalk.h>

#include <gtest/gtest.h>

#include <algorithm>

using namespace ovoui::tree;

namespace
{

constexpr int kRows = 7;

/// The rows are numbered from 1; 0 is none.
int below(int row)
{
    return row < kRows ? row + 1 : 0;
}

int above(int row)
{
    return row - 1;
}

std::vector<int> rows(int first, int last)
{
    std::vector<int> all;
    for (int row = first; row <= last; ++row)
        all.push_back(row);
    return all;
}

} // namespace

TEST(RowWalk, ARangeHasBothEndsAndAllBetweenWhicheverStandsFirst)
{
    for (int a = 1; a <= kRows; ++a)
        for (int b = 1; b <= kRows; ++b)
            EXPECT_EQ(rowRange(a, b, below), rows(std::min(a, b), std::max(a, b))) << a << ' ' << b;
}

TEST(RowWalk, WithOneEndTheRangeGoesOnToTheLastRow)
{
    for (int a = 1; a <= kRows; ++a) {
        EXPECT_EQ(rowRange(a, 0, below), rows(a, kRows)) << a;
        EXPECT_EQ(rowRange(0, a, below), rows(a, kRows)) << a;
    }
    EXPECT_TRUE(rowRange(0, 0, below).empty());
}

TEST(RowWalk, ARangeIsFoundWithoutAWalkOverTheRestOfTheTree)
{
    int asked = 0;
    const auto counted = [&asked](int row) {
        ++asked;
        return row + 1; // a tree without end
    };
    EXPECT_EQ(rowRange(1003, 1000, counted), rows(1000, 1003));
    EXPECT_LE(asked, 8);
}

TEST(RowWalk, APageIsTheRowsShownLessOneAndEndsWithTheTree)
{
    for (int from = 1; from <= kRows; ++from)
        for (int shown = -1; shown < kRows + 3; ++shown) {
            const int step = std::max(shown - 1, 1);
            EXPECT_EQ(pageOn(from, shown, below), std::min(from + step, kRows)) << from << ' ' << shown;
            EXPECT_EQ(pageOn(from, shown, above), std::max(from - step, 1)) << from << ' ' << shown;
        }
    EXPECT_EQ(pageOn(0, 5, below), 0) << "from nowhere to nowhere";
}
