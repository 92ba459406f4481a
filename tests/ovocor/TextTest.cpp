// The text helpers that ask the system.
#include <ovocor/OvoError.h>
#include <ovocor/Text.h>

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace
{

std::wstring vprintfThrough(const wchar_t* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    std::wstring text = vstringPrintf(format, arguments);
    va_end(arguments);
    return text;
}

/// Every character of the basic plane that the ANSI code page has.
std::wstring charactersOfCodePage()
{
    std::wstring found;
    for (int byte = 1; byte < 256; ++byte) {
        const char narrow = static_cast<char>(byte);
        wchar_t wide = 0;
        if (::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, &narrow, 1, &wide, 1) == 1)
            found += wide;
    }
    return found;
}

} // namespace

TEST(StringPrintf, TakesWideStringsForS)
{
    EXPECT_EQ(stringPrintf(L"%s and %s", L"oak", L"elm"), L"oak and elm");
    EXPECT_EQ(stringPrintf(L"<%s>", L"\u2260\U0001F333"), L"<\u2260\U0001F333>");
    EXPECT_EQ(stringPrintf(L"%S, %hs, %ls", "narrow", "short", L"long"), L"narrow, short, long");
    EXPECT_EQ(stringPrintf(L"%10s|%-6s|%.2s", L"oak", L"elm", L"birch"), L"       oak|elm   |bi");
}

TEST(StringPrintf, TakesNumbersOfAllSizes)
{
    EXPECT_EQ(stringPrintf(L"%d,%d", -1, 42), L"-1,42");
    EXPECT_EQ(stringPrintf(L"%I64d %lld", 9'000'000'000LL, -9'000'000'000LL), L"9000000000 -9000000000");
    EXPECT_EQ(stringPrintf(L"%llx", 0xABCDEF0123456789ull), L"abcdef0123456789");
    EXPECT_EQ(stringPrintf(L"%.*f", 3, 2.5), L"2.500");
    EXPECT_EQ(stringPrintf(L"%#x %c %%", 255u, L'\u2260'), L"0xff \u2260 %");
}

TEST(StringPrintf, MakesEmptyAndPlainTexts)
{
    EXPECT_EQ(stringPrintf(L""), L"");
    EXPECT_EQ(stringPrintf(L"oak"), L"oak");
    EXPECT_EQ(stringPrintf(L"%s", L""), L"");
}

TEST(StringPrintf, MakesTextsOfAnyLength)
{
    for (const std::size_t length : {1u, 255u, 256u, 257u, 4096u, 1'000'000u}) {
        const std::wstring text(length, L'x');
        EXPECT_EQ(stringPrintf(L"%sy", text.c_str()), text + L'y') << length;
    }
}

TEST(StringPrintf, TakesAnArgumentListTwice)
{
    EXPECT_EQ(vprintfThrough(L"%s %d %s", L"oak", 7, L"elm"), L"oak 7 elm");
}

TEST(CodePage, GivesBackEveryTextOfItsOwnCharacters)
{
    const std::wstring text = charactersOfCodePage();
    ASSERT_GE(text.size(), 127u);
    bool lossy = true;
    const std::string narrow = getMBS(text, &lossy);
    EXPECT_FALSE(lossy);
    EXPECT_EQ(getWCS(narrow, &lossy), text);
    EXPECT_FALSE(lossy);
}

TEST(CodePage, KeepsZeroCharactersAndEmptyTexts)
{
    EXPECT_EQ(getMBS({L"a\0b", 3}), std::string("a\0b", 3));
    EXPECT_EQ(getWCS({"a\0b", 3}), std::wstring(L"a\0b", 3));
    bool lossy = true;
    EXPECT_EQ(getMBS({}, &lossy), "");
    EXPECT_FALSE(lossy);
    lossy = true;
    EXPECT_EQ(getWCS({}, &lossy), L"");
    EXPECT_FALSE(lossy);
}

TEST(CodePage, SaysWhatItCannotHold)
{
    // A Linear B syllable is in no code page but UTF-8, and there a lone surrogate is not.
    const std::wstring outside =
        ::GetACP() == CP_UTF8 ? std::wstring(L"a\xD800z") : std::wstring(L"a\U00010000z");
    bool lossy = false;
    const std::string narrow = getMBS(outside, &lossy);
    EXPECT_TRUE(lossy);
    EXPECT_EQ(narrow.front(), 'a');
    EXPECT_EQ(narrow.back(), 'z');
    EXPECT_FALSE(getMBS(outside).empty()) << "the caller need not ask whether the text fits";
}

TEST(CodePage, TakesNoLookAlikes)
{
    if (::GetACP() != 1252)
        GTEST_SKIP() << "the code page is " << ::GetACP() << ", not 1252";
    bool lossy = false;
    EXPECT_EQ(getMBS(L"\u0100x", &lossy), "?x") << "A with macron is not A";
    EXPECT_TRUE(lossy);
    EXPECT_EQ(getMBS(L"\u20AC\u00E9", &lossy), "\x80\xE9");
    EXPECT_FALSE(lossy);
    EXPECT_EQ(getWCS("\x80\xE9"), L"\u20AC\u00E9");
}

TEST(CodePage, ConvertsLongTexts)
{
    const std::wstring text(3'000'000, L'x');
    EXPECT_EQ(getWCS(getMBS(text)), text);
}

TEST(Lowercase, MapsCharacterByCharacter)
{
    EXPECT_EQ(lowercase(L"Oak TREE \u00C9\u0416\u03A9 42_"), L"oak tree \u00E9\u0436\u03C9 42_");
    EXPECT_EQ(lowercase(L""), L"");
    EXPECT_EQ(lowercase(L"\u00DF\u0130").size(), 2u) << "the length stays";
    EXPECT_EQ(lowercase({L"A\0B", 3}), std::wstring(L"a\0b", 3));
}

TEST(Lowercase, IsTheSameInEveryLanguage)
{
    EXPECT_EQ(lowercase(L"TITLE"), L"title");
}

TEST(CollateStrings, OrdersAsALocaleDoes)
{
    EXPECT_LT(collateStrings(L"apple", L"Banana"), 0) << "letters before case";
    EXPECT_LT(collateStrings(L"\u00E9clair", L"fig"), 0) << "accented letters stand with their own";
    EXPECT_GT(collateStrings(L"fig", L"\u00E9clair"), 0);
    EXPECT_LT(collateStrings(L"oak", L"Oak"), 0) << "small letters first";
    EXPECT_LT(collateStrings(L"oak", L"oaks"), 0);
    EXPECT_LT(collateStrings(L"", L"a"), 0);
    EXPECT_GT(collateStrings(L"a", L""), 0);
}

TEST(CollateStrings, AnswersZeroForTheSameTextOnly)
{
    EXPECT_EQ(collateStrings(L"oak", L"oak"), 0);
    EXPECT_EQ(collateStrings({}, L""), 0);
    EXPECT_NE(collateStrings(L"oak", L"Oak"), 0);
    EXPECT_NE(collateStrings(L"oak", L"o\u00ADak"), 0) << "the soft hyphen has no rank of its own";
    EXPECT_NE(collateStrings(L"\u00E9", L"e\u0301"), 0);
    EXPECT_NE(collateStrings(L"a", {L"a\0", 2}), 0);
}

TEST(CollateStrings, IsAnOrder)
{
    const std::vector<std::wstring> words{L"",     L"a",      L"A",       L"\u00E4", L"b",  L"co-op",
                                          L"coop", L"CO-OP",  L"a\u00AD", L"1",      L"10", L"2",
                                          L"-1",   L"\u00E9", L"e\u0301", L"z"};
    for (const std::wstring& a : words)
        for (const std::wstring& b : words) {
            EXPECT_EQ(collateStrings(a, b) < 0, collateStrings(b, a) > 0);
            for (const std::wstring& c : words)
                if (collateStrings(a, b) < 0 && collateStrings(b, c) < 0) {
                    EXPECT_LT(collateStrings(a, c), 0)
                        << testing::PrintToString(a) << testing::PrintToString(b)
                        << testing::PrintToString(c);
                }
        }
}
