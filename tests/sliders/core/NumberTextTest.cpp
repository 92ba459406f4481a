#include <ovoui/sliders/core/NumberText.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace ovoui::sliders;

TEST(SliderNumberText, ReadsTheNumberAtTheStart)
{
    EXPECT_EQ(parseReal(L"12.5"), 12.5);
    EXPECT_EQ(parseReal(L" \t\r\n+12.5"), 12.5);
    EXPECT_EQ(parseReal(L"-.5"), -0.5);
    EXPECT_EQ(parseReal(L"1e3 mm"), 1000);
    EXPECT_EQ(parseReal(L"7,5"), 7) << "the comma ends it";
    EXPECT_EQ(parseReal(L"1.2.3"), 1.2);
    EXPECT_EQ(parseReal(L"0x10"), 0);
}

TEST(SliderNumberText, TellsWhenThereIsNone)
{
    for (const wchar_t* text :
         {L"", L"   ", L"abc", L"+", L"-", L"+-1", L"--1", L".", L"\u0663", L"\u221E"}) {
        EXPECT_FALSE(parseReal(text)) << testing::PrintToString(text);
        EXPECT_FALSE(parseWhole(text)) << testing::PrintToString(text);
    }
}

TEST(SliderNumberText, ReadsWhatNoDoubleHolds)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(parseReal(L"1e999"), infinity);
    EXPECT_EQ(parseReal(L"-1e999"), -infinity);
    EXPECT_EQ(parseReal(L"1e-999"), 0);
    EXPECT_EQ(parseReal(std::wstring(400, L'9')), infinity);
    EXPECT_EQ(parseReal(L"0." + std::wstring(400, L'0') + L"1"), 0);
    EXPECT_EQ(parseReal(L"inf"), infinity);
    EXPECT_TRUE(std::isnan(*parseReal(L"nan")));
}

TEST(SliderNumberText, ReadsWholeNumbersUpToTheirLimits)
{
    EXPECT_EQ(parseWhole(L"42"), 42);
    EXPECT_EQ(parseWhole(L" +42"), 42);
    EXPECT_EQ(parseWhole(L"-42.9"), -42);
    EXPECT_EQ(parseWhole(L"99999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(parseWhole(L"-99999999999"), std::numeric_limits<int>::min());
}

TEST(SliderNumberText, WritesTheDigitsAskedFor)
{
    EXPECT_EQ(formatReal(12.345678, 2), L"12.35");
    EXPECT_EQ(formatReal(12.0, 0), L"12");
    EXPECT_EQ(formatReal(-0.004, 2), L"-0.00");
    EXPECT_EQ(formatReal(1.5, -1), L"1.500000") << "as printf has it";
    EXPECT_EQ(formatReal(1e308, 1).size(), 311u);
    EXPECT_EQ(formatReal(0.1, 100).size(), 102u);
}

TEST(SliderNumberText, WritesTheDigitsThatCount)
{
    EXPECT_EQ(formatShort(50), L"50");
    EXPECT_EQ(formatShort(-0.25), L"-0.25");
    EXPECT_EQ(formatShort(2147483647), L"2147483647");
    EXPECT_EQ(formatShort(999.9999999999998), L"1000") << "as a logarithm gives it";
    EXPECT_EQ(formatShort(0.1 + 0.2), L"0.3");
    EXPECT_EQ(formatShort(-std::numeric_limits<double>::max()).size(), 22u);
}
