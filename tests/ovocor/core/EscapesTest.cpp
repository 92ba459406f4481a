#include <ovocor/core/Escapes.h>

#include <gtest/gtest.h>

using OVO::withoutEscapes;

TEST(Escapes, StandForTheBytesOfCharacters)
{
    EXPECT_EQ(withoutEscapes(L"me%40firm.example"), L"me@firm.example");
    EXPECT_EQ(withoutEscapes(L"%3a%3A%25"), L"::%");
    EXPECT_EQ(withoutEscapes(L"%C3%A9\u00E9%F0%9F%8C%B3"), L"\u00E9\u00E9\U0001F333");
    EXPECT_EQ(withoutEscapes(L"%2541"), L"%41") << "taken once";
    EXPECT_EQ(withoutEscapes(L""), L"");
}

TEST(Escapes, AreNoneWithoutTwoDigits)
{
    for (const wchar_t* part : {L"100%", L"%4", L"%4g", L"%g4", L"% 4", L"%-1", L"%+1", L"%%", L"%\u00E9"})
        EXPECT_EQ(withoutEscapes(part), part) << testing::PrintToString(std::wstring(part));
}
