#include <ovocor/core/Utf.h>

#include <gtest/gtest.h>

#include <string>

using namespace OVO;

namespace
{

std::wstring characters(std::initializer_list<char32_t> list)
{
    std::wstring text;
    for (const char32_t character : list)
        appendCharacter(text, character);
    return text;
}

} // namespace

TEST(Utf, KeepsEveryCharacterThroughUtf8)
{
    std::wstring all;
    for (char32_t character = 0; character <= 0x10FFFF; ++character)
        if (character < 0xD800 || character > 0xDFFF)
            appendCharacter(all, character);
    EXPECT_TRUE(decodeUtf8(encodeUtf8(all)) == all);
}

TEST(Utf, ReadsTheShortestAndTheLongestOfEachLength)
{
    EXPECT_EQ(decodeUtf8("\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"
                         "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"),
              characters({0x7F, 0x80, 0x7FF, 0x800, 0xD7FF, 0xE000, 0xFFFF, 0x10000, 0x10FFFF}));
}

TEST(Utf, ReplacesWhatIsNoUtf8)
{
    struct Row
    {
        const char* what;
        std::string bytes;
        std::wstring text;
    };
    const Row rows[] = {
        {"a lone tail", "a\x80z", L"a\uFFFDz"},
        {"two lone tails", "\x80\xBF", L"\uFFFD\uFFFD"},
        {"an overlong slash", "\xC0\xAF", L"\uFFFD\uFFFD"},
        {"an overlong form of three bytes", "\xE0\x80\xAF", L"\uFFFD\uFFFD\uFFFD"},
        {"an overlong form of four bytes", "\xF0\x80\x80\xAF", L"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"a lead byte beyond the last", "\xF5\x80\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"a surrogate", "\xED\xA0\x80", L"\uFFFD\uFFFD\uFFFD"},
        {"beyond the last character", "\xF4\x90\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"bytes that never occur", "\xFE\xFF", L"\uFFFD\uFFFD"},
        {"a sequence cut by a letter", "\xE2\x82z", L"\uFFFDz"},
        {"a sequence cut by another", "\xE2\x82\xC3\xA9", L"\uFFFD\u00E9"},
        {"a sequence cut by the end", "a\xF0\x9F\x8C", L"a\uFFFD"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(decodeUtf8(row.bytes), row.text) << row.what;
}

TEST(Utf, ReadsUtf16OfBothOrders)
{
    EXPECT_EQ(decodeUtf16({"a\0\x60\x22\x3C\xD8\x33\xDF", 8}, false), L"a\u2260\U0001F333");
    EXPECT_EQ(decodeUtf16({"\0a\x22\x60\xD8\x3C\xDF\x33", 8}, true), L"a\u2260\U0001F333");
}

TEST(Utf, ReplacesLoneSurrogatesAndHalfUnits)
{
    EXPECT_EQ(decodeUtf16({"\x3C\xD8"
                           "a\0",
                           4},
                          false),
              L"\uFFFD"
              L"a")
        << "no low half";
    EXPECT_EQ(decodeUtf16({"\x33\xDF\x3C\xD8", 4}, false), L"\uFFFD\uFFFD") << "the wrong way round";
    EXPECT_EQ(decodeUtf16({"a\0b", 3}, false), L"a\uFFFD");
    const wchar_t lone[] = {L'a', wchar_t(0xDF33), wchar_t(0xD83C), 0};
    EXPECT_EQ(encodeUtf8(lone), "a\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Utf, JoinsSurrogatePairsWhateverTheSizeOfAWideCharacter)
{
    const wchar_t pair[] = {wchar_t(0xD83C), wchar_t(0xDF33), 0};
    EXPECT_EQ(encodeUtf8(pair), "\xF0\x9F\x8C\xB3");
}
