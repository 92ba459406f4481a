// A layout of columns as text, and what it does to other columns.
#include <ovoui/lists/core/ColumnLayout.h>

#include <gtest/gtest.h>

using namespace ovoui::lists;

TEST(ColumnLayout, ComesBackFromItsText)
{
    const ColumnLayout layouts[] = {{},
                                    {{{L"Name", 110}, {L"Colour", 0}}, L"Name", true},
                                    {{{L"a/b=c%d", 7}, {L"", 10000}}, L"a/b=c%d", false}};
    for (const ColumnLayout& layout : layouts)
        EXPECT_EQ(parseLayout(formatLayout(layout)), layout);
    EXPECT_EQ(formatLayout(layouts[1]), L"+Name/Name=110/Colour=0");
}

TEST(ColumnLayout, WhatCannotBeReadIsLeftOut)
{
    const ColumnLayout layout =
        parseLayout(L"?x/Name=12/Bad/Worse=-3/Huge=10001/Long=99999999999/Digit=1a//Last=5");
    EXPECT_EQ(layout, (ColumnLayout{{{L"Name", 12}, {L"Last", 5}}, L"", true}));
    EXPECT_EQ(parseLayout(L""), ColumnLayout{});
}

TEST(ColumnLayout, OrdersTheColumnsThatAreThere)
{
    const ColumnLayout layout{{{L"c", 1}, {L"gone", 1}, {L"a", 1}, {L"c", 1}}, L"", true};
    EXPECT_EQ(orderOfColumns(layout, {L"a", L"b", L"c"}), (std::vector<int>{2, 0, 1}));
    EXPECT_EQ(orderOfColumns({}, {L"a", L"b"}), (std::vector<int>{0, 1}));
    EXPECT_EQ(orderOfColumns(layout, {}), std::vector<int>{});
    EXPECT_EQ(orderOfColumns(layout, {L"x", L"c", L"c"}), (std::vector<int>{1, 2, 0})) << "one heading twice";
}

TEST(ColumnLayout, WidthsGoToTheColumnsThatAreThere)
{
    using Widths = std::vector<WidthOfColumn>;
    const ColumnLayout layout{{{L"c", 1}, {L"gone", 2}, {L"a", 3}, {L"c", 4}}, L"", true};
    EXPECT_EQ(widthsOfColumns(layout, {L"a", L"b", L"c"}), (Widths{{2, 1}, {0, 3}, {2, 4}}));
    EXPECT_EQ(widthsOfColumns(layout, {L"c", L"c"}), (Widths{{0, 1}, {1, 1}, {0, 4}, {1, 4}}))
        << "one heading twice";
    EXPECT_EQ(widthsOfColumns(layout, {L"b"}), Widths{});
    EXPECT_EQ(widthsOfColumns(layout, {}), Widths{});
    EXPECT_EQ(widthsOfColumns({}, {L"a", L"b"}), Widths{});
}

TEST(ColumnLayout, TheSortedColumnIsTheFirstWithItsHeading)
{
    const std::vector<std::wstring> present[] = {{}, {L"a"}, {L"b", L"a"}, {L"", L"b"}, {L"a", L"b", L"b"}};
    for (const wchar_t* sortedBy : {L"", L"a", L"b"})
        for (const std::vector<std::wstring>& headings : present) {
            std::optional<int> expected;
            for (std::size_t column = headings.size(); column-- > 0;)
                if (*sortedBy && headings[column] == sortedBy)
                    expected = static_cast<int>(column);
            EXPECT_EQ(sortedColumn({{}, sortedBy, true}, headings), expected);
        }
}
