// The number that a text begins with.
#include <ovoui/lists/core/NumberText.h>

#include <gtest/gtest.h>

using namespace ovoui::lists;

namespace
{

/// By the signs of English.
std::optional<double> number(std::wstring_view text)
{
    return numberIn(text, L'.', L',');
}

} // namespace

TEST(NumberText, DigitsWithAndWithoutASign)
{
    EXPECT_EQ(number(L"0"), 0);
    EXPECT_EQ(number(L"42"), 42);
    EXPECT_EQ(number(L"-42"), -42);
    EXPECT_EQ(number(L"\u2212"
                     L"42"),
              -42)
        << "the minus sign";
    EXPECT_EQ(number(L"  7"), 7);
    EXPECT_EQ(number(L"007"), 7);
}

TEST(NumberText, WhatFollowsIsLeftOut)
{
    EXPECT_EQ(number(L"12 KB"), 12);
    EXPECT_EQ(number(L"12%"), 12);
    EXPECT_EQ(number(L"1-2"), 1);
    EXPECT_EQ(number(L"3 4x"), 34) << "a space parts digits";
    EXPECT_EQ(number(L"3. of May"), 3);
}

TEST(NumberText, Fractions)
{
    EXPECT_DOUBLE_EQ(*number(L"1.25"), 1.25);
    EXPECT_DOUBLE_EQ(*number(L"-12.5 KB"), -12.5);
    EXPECT_DOUBLE_EQ(*number(L"5."), 5);
    EXPECT_DOUBLE_EQ(*number(L".5"), 0.5);
    EXPECT_DOUBLE_EQ(*number(L"-.5"), -0.5);
    EXPECT_DOUBLE_EQ(*number(L"1.2.3"), 1.2);
    EXPECT_DOUBLE_EQ(*numberIn(L"1,25", L',', L'.'), 1.25);
}

TEST(NumberText, GroupsOfDigits)
{
    EXPECT_EQ(number(L"1,234,567"), 1234567);
    EXPECT_EQ(number(L"1\u00A0"
                     L"234"),
              1234);
    EXPECT_EQ(number(L"1\u202F"
                     L"234"),
              1234);
    EXPECT_EQ(number(L"1'234"), 1234);
    EXPECT_EQ(number(L"1\u2019"
                     L"234"),
              1234);
    EXPECT_EQ(numberIn(L"1.234", L',', L'.'), 1234);
    EXPECT_DOUBLE_EQ(*numberIn(L"1.234.567,25", L',', L'.'), 1234567.25);
    EXPECT_EQ(number(L"1,"), 1);
    EXPECT_EQ(number(L"1,,2"), 1) << "two signs part nothing";
}

TEST(NumberText, OtherTextsHaveNone)
{
    for (const wchar_t* text : {L"", L" ", L"none", L"-", L"--1", L".", L"-.", L"KB 12", L"\u0661"})
        EXPECT_FALSE(number(text)) << text;
}
