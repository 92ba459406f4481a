// Rows of toolbar buttons.
#include <mfc/src/frame/core/toolbarlayout.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace afxdetail;

namespace
{

constexpr int kHeight = 20;

/// 'b' is a button of 10 pixels, '|' a separator of 6, 'h' a hidden button.
std::vector<ToolBarItem> itemsOf(const std::string& pattern)
{
    std::vector<ToolBarItem> items;
    for (const char c : pattern) {
        ToolBarItem item;
        item.separator = c == '|';
        item.hidden = c == 'h';
        item.width = item.separator ? 6 : 10;
        items.push_back(item);
    }
    return items;
}

/// The pattern with '/' behind the last item of each row.
std::string wrapped(const std::string& pattern, int width)
{
    auto items = itemsOf(pattern);
    wrapItems(items, width);
    std::string rows;
    for (std::size_t i = 0; i < items.size(); ++i) {
        rows += pattern[i];
        if (items[i].lastOfRow)
            rows += '/';
    }
    return rows;
}

Extent extentAt(const std::string& pattern, int width)
{
    auto items = itemsOf(pattern);
    wrapItems(items, width);
    return extentOf(items, kHeight);
}

} // namespace

TEST(ToolBarLayout, EverythingFitsIntoAWideRow)
{
    EXPECT_EQ(wrapped("bb|bb", 46), "bb|bb");
    EXPECT_EQ(extentAt("bb|bb", 46).width, 46);
    EXPECT_EQ(extentAt("bb|bb", 46).height, kHeight);
}

TEST(ToolBarLayout, ARowIsBrokenAtItsLastSeparator)
{
    EXPECT_EQ(wrapped("bb|bb", 45), "bb|/bb");
    EXPECT_EQ(wrapped("b|b|bb", 42), "b|b|/bb");
    EXPECT_EQ(wrapped("bb|bb", 20), "bb|/bb") << "a separator at the end needs no width";
}

TEST(ToolBarLayout, WithoutASeparatorItIsBrokenAtAButton)
{
    EXPECT_EQ(wrapped("bbbb", 25), "bb/bb");
    EXPECT_EQ(wrapped("bbbbb", 20), "bb/bb/b");
}

TEST(ToolBarLayout, ARowHasAtLeastOneButton)
{
    EXPECT_EQ(wrapped("bbb", 0), "b/b/b");
    EXPECT_EQ(wrapped("b|b", 0), "b|/b");
    EXPECT_EQ(extentAt("bbb", 0).height, 3 * kHeight);
    EXPECT_EQ(extentAt("bbb", 0).width, 10);
}

TEST(ToolBarLayout, HiddenButtonsCountForNothing)
{
    EXPECT_EQ(wrapped("bhhb", 20), "bhhb");
    EXPECT_EQ(extentAt("bhhb", 20).width, 20);
    EXPECT_EQ(extentAt("hh", 20).width, 0);
    EXPECT_EQ(extentAt("hh", 20).height, 0);
}

TEST(ToolBarLayout, ASeparatorBetweenRowsIsAGap)
{
    const Extent extent = extentAt("bb|bb", 20);
    EXPECT_EQ(extent.width, 20);
    EXPECT_EQ(extent.height, 2 * kHeight + 4);
}

TEST(ToolBarLayout, AWidthIsFoundForEveryHeight)
{
    const auto items = itemsOf("bb|bbb|b");
    const int whole = 72;
    EXPECT_EQ(widthForHeight(items, kHeight, kHeight), whole);
    EXPECT_EQ(widthForHeight(items, kHeight, 1000), 10);
    EXPECT_EQ(widthForHeight(items, kHeight, 0), whole) << "as low as it gets";
    for (int height = kHeight; height < 200; ++height) {
        auto trial = items;
        wrapItems(trial, widthForHeight(items, kHeight, height));
        EXPECT_LE(extentOf(trial, kHeight).height, height) << height;
    }
}

TEST(ToolBarLayout, ABarWithoutButtonsHasNoSize)
{
    EXPECT_EQ(extentAt("", 50).width, 0);
    EXPECT_EQ(extentAt("", 50).height, 0);
    EXPECT_EQ(widthForHeight({}, kHeight, 50), 0);
}
