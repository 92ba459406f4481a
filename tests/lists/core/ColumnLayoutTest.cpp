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
