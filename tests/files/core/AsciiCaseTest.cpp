#include <ovoui/files/core/AsciiCase.h>

#include <gtest/gtest.h>

#include <cctype>

TEST(AsciiCase, AgreesWithTheLanguageForAllPairs)
{
    for (int a = 0; a < 0x80; ++a)
        for (int b = 0; b < 0x80; ++b)
            ASSERT_EQ(ovoui::isSameAsciiLetter(static_cast<wchar_t>(a), static_cast<wchar_t>(b)),
                      std::tolower(a) == std::tolower(b))
                << a << " and " << b;
}

TEST(AsciiCase, OtherLettersAreOnlyThemselves)
{
    EXPECT_TRUE(ovoui::isSameAsciiLetter(L'\u00fc', L'\u00fc'));
    EXPECT_FALSE(ovoui::isSameAsciiLetter(L'\u00fc', L'\u00dc'));
    EXPECT_TRUE(ovoui::isAscii(L'\x7f'));
    EXPECT_FALSE(ovoui::isAscii(L'\u0080'));
}
