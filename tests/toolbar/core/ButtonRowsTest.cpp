// Rows of buttons: breaking them and their size.
#include <ovoui/toolbar/core/ButtonRows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

using namespace ovoui::toolbar;

namespace
{

constexpr int kHeight = 22;

/// A button of 20 pixels for each 'b', a separator of 9 for each '|', a control of 60 for each 'c', hidden
/// 'h'.
std::vector<RowItem> rowOf(const std::string& what)
{
    std::vector<RowItem> items;
    for (const char kind : what) {
        RowItem item;
        item.width = kind == '|' ? 9 : kind == 'c' ? 60 : 20;
        item.separator = kind == '|' || kind == 'c';
        item.control = kind == 'c';
        item.hidden = kind == 'h';
        items.push_back(item);
    }
    return items;
}

/// The rows after breaking, as "bb|/b".
std::string broken(const std::string& what, int width)
{
    std::vector<RowItem> items = rowOf(what);
    splitRows(items, width);
    std::string rows;
    for (std::size_t i = 0; i < items.size(); ++i) {
        rows += what[i];
        if (items[i].endsRow)
            rows += '/';
    }
    return rows;
}

RowsSize sizeAt(const std::string& what, int width)
{
    std::vector<RowItem> items = rowOf(what);
    splitRows(items, width);
    return sizeOfRows(items, kHeight);
}

} // namespace

TEST(ButtonRows, WhatFitsStaysInOneRow)
{
    EXPECT_EQ(broken("bb|bb", 89), "bb|bb");
    EXPECT_EQ(broken("", 10), "");
    EXPECT_EQ(sizeAt("bb|bb", kAnyWidth), (RowsSize{89, kHeight}));
    EXPECT_EQ(sizeAt("", 10), (RowsSize{0, 0}));
}

TEST(ButtonRows, BreaksAtASeparatorWhereThereIsOne)
{
    EXPECT_EQ(broken("bb|bb", 88), "bb|/bb");
    EXPECT_EQ(broken("bb|bb", 40), "bb|/bb");
    EXPECT_EQ(sizeAt("bb|bb", 40), (RowsSize{40, 2 * kHeight + 6}));
}

TEST(ButtonRows, BreaksBehindTheLastButtonThatFits)
{
    EXPECT_EQ(broken("bbbbb", 59), "bb/bb/b");
    EXPECT_EQ(sizeAt("bbbbb", 59), (RowsSize{40, 3 * kHeight}));
}

TEST(ButtonRows, ARowHasAtLeastOneButton)
{
    EXPECT_EQ(broken("bbb", 0), "b/b/b");
    EXPECT_EQ(broken("bbb", -5), "b/b/b");
}

TEST(ButtonRows, AControlIsNoPlaceToBreakAndNoGap)
{
    EXPECT_EQ(broken("bcb", 80), "bc/b");
    EXPECT_EQ(broken("bbc", 60), "bb/c");
    EXPECT_EQ(sizeAt("bc", 60), (RowsSize{60, 2 * kHeight}));
}

TEST(ButtonRows, HiddenItemsTakeNoRoom)
{
    EXPECT_EQ(broken("bhhb", 40), "bhhb");
    EXPECT_EQ(sizeAt("bhhb", 40), (RowsSize{40, kHeight}));
}

TEST(ButtonRows, AColumnHasAButtonARow)
{
    std::vector<RowItem> items = rowOf("bb|b");
    splitIntoColumn(items);
    EXPECT_EQ(sizeOfRows(items, kHeight), (RowsSize{20, 3 * kHeight + 6}));
}

TEST(ButtonRows, AnyRowsFitTheirWidthAndLoseNothing)
{
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        std::string what;
        for (unsigned i = 0; i < random() % 20; ++i)
            what += "bbb|ch"[random() % 6];
        const int width = 60 + static_cast<int>(random() % 200); // the widest item fits
        std::vector<RowItem> items = rowOf(what);
        splitRows(items, width);
        for (const RowItem& item : items)
            EXPECT_FALSE(item.hidden && item.endsRow) << what;
        const int separators =
            static_cast<int>(std::count(what.begin(), what.end(), '|')); // these may overhang
        EXPECT_LE(sizeOfRows(items, kHeight).width, width + 9 * separators) << what;
    }
}

TEST(ButtonRows, TheWidthForAHeightIsLowEnough)
{
    for (const std::string what : {"bbbbbbbb", "bb|bb|bbb", "bcb|bb", "b"})
        for (int height = kHeight; height < 10 * kHeight; height += 5) {
            const int width = widthForHeight(rowOf(what), kHeight, height);
            EXPECT_LE(sizeAt(what, width).height, height) << what << " " << height;
        }
}

TEST(ButtonRows, TheWidthForAHeightIsTheLeastForButtonsAlone)
{
    for (int height = kHeight; height < 10 * kHeight; height += 5) {
        const int width = widthForHeight(rowOf("bbbbbbbb"), kHeight, height);
        for (int less = 0; less < width; ++less) {
            const RowsSize narrower = sizeAt("bbbbbbbb", less);
            EXPECT_TRUE(narrower.width >= width || narrower.height > height) << height << " " << less;
        }
    }
}

TEST(ButtonRows, AHeightThatIsTooLittleGivesOneRow)
{
    EXPECT_EQ(widthForHeight(rowOf("bbb"), kHeight, 3), 60);
}
