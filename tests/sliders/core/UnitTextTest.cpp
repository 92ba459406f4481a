#include <ovoui/sliders/core/UnitText.h>

#include <gtest/gtest.h>

using namespace ovoui::sliders;

namespace
{

const UnitStyle kEnglish{L"mm", L".", L",", false};
const UnitStyle kGerman{L"mm", L",", L".", false};
const UnitStyle kFrench{L"", L",", L"\u202F", false};
const UnitStyle kPercent{L"", L".", L",", true};

} // namespace

TEST(UnitText, TheUnitStandsBehindTheNumber)
{
    const struct
    {
        const UnitStyle& style;
        const wchar_t* machine;
        const wchar_t* shown;
    } rows[] = {{kEnglish, L"12.5", L"12.5 mm"},       {kEnglish, L"-1234567.25", L"-1,234,567.25 mm"},
                {kEnglish, L"999", L"999 mm"},         {kEnglish, L"1000", L"1,000 mm"},
                {kGerman, L"12345.5", L"12.345,5 mm"}, {kFrench, L"12345.5", L"12\u202F345,5"},
                {kPercent, L"0.125", L"12.5 %"},       {kPercent, L"-0.005", L"-0.5 %"},
                {kPercent, L"12", L"1,200 %"},         {kPercent, L"0.50", L"50 %"}};
    for (const auto& [style, machine, shown] : rows)
        EXPECT_EQ(withUnit(machine, style), shown) << testing::PrintToString(machine);
}

TEST(UnitText, WhatIsNoNumberIsLeftAsItIs)
{
    for (const wchar_t* text : {L"", L"-", L".", L"inf", L"1.2.3", L"1e5"})
        EXPECT_EQ(withUnit(text, kEnglish), text);
}

TEST(UnitText, UnitGroupsAndBlanksMayBeLeftOut)
{
    for (const wchar_t* shown :
         {L"1,234.5 mm", L"1234.5mm", L" 1234.5 ", L"1,234.5", L"1234.5 MM", L"1,234.5\u00A0mm"})
        EXPECT_EQ(withoutUnit(shown, kEnglish), L"1234.5") << testing::PrintToString(shown);
    EXPECT_EQ(withoutUnit(L"1.234,5 mm", kGerman), L"1234.5");
    EXPECT_EQ(withoutUnit(L"12\u202F345,5", kFrench), L"12345.5");
}

TEST(UnitText, OtherUnitsAreSeen)
{
    EXPECT_EQ(withoutUnit(L"12.5 cm", kEnglish), L"12.5 cm");
    EXPECT_EQ(withoutUnit(L"mm", kEnglish), L"");
    EXPECT_EQ(withoutUnit(L"12 mm mm", kEnglish), L"12 mm");
}

TEST(UnitText, GroupsStandBetweenDigitsBeforeTheDecimalSign)
{
    EXPECT_EQ(withoutUnit(L",5", kEnglish), L",5");
    EXPECT_EQ(withoutUnit(L"1.5,5", kEnglish), L"1.5,5");
    EXPECT_EQ(withoutUnit(L"5,", kEnglish), L"5,");
    EXPECT_EQ(withoutUnit(L"-,500", kEnglish), L"-,500");
    EXPECT_EQ(withoutUnit(L"1,5,2", kGerman), L"1.5,2") << "a number has one decimal sign";
}

TEST(UnitText, PercentIsAHundredth)
{
    EXPECT_EQ(withoutUnit(L"12.5 %", kPercent), L"0.125");
    EXPECT_EQ(withoutUnit(L"5", kPercent), L"0.05");
    EXPECT_EQ(withoutUnit(L"-1,200%", kPercent), L"-12.00");
    EXPECT_EQ(withoutUnit(L"half", kPercent), L"half");
}

TEST(UnitText, ThereAndBackGivesTheSameNumber)
{
    for (const UnitStyle* style : {&kEnglish, &kGerman, &kFrench})
        for (const wchar_t* number : {L"0", L"-0.50", L"123", L"1234", L"1234567.8900", L"-99999"})
            EXPECT_EQ(withoutUnit(withUnit(number, *style), *style), number);
}
