// Lines that are broken at a width, and the positions in a text that is shown so.
#include <ovoui/frame/core/WrappedText.h>

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>

using namespace ovoui::frame;

namespace
{

constexpr int kCharacter = 10;

/// Every character is ten pixels wide.
TextRuler ruler()
{
    return {[](std::wstring_view text) { return kCharacter * static_cast<int>(text.size()); },
            8 * kCharacter};
}

bool isBlank(wchar_t character)
{
    return character == L' ' || character == L'\t';
}

/// Lines may begin with words.
std::vector<bool> breaksOf(const std::wstring& text)
{
    std::vector<bool> allowed(text.size());
    for (std::size_t i = 1; i < text.size(); ++i)
        allowed[i] = isBlank(text[i - 1]) && !isBlank(text[i]);
    return allowed;
}

WrappedText wrapped(const std::wstring& text, int characters, LongWords longWords = LongWords::Broken)
{
    return {text, softBreaks(text, breaksOf(text), characters * kCharacter, longWords, ruler())};
}

/// What is shown, with a bar for each line end.
std::wstring lines(const std::wstring& text, int characters, LongWords longWords = LongWords::Broken)
{
    std::wstring shown = wrapped(text, characters, longWords).shown();
    for (std::size_t at = 0; (at = shown.find(L"\r\n", at)) != shown.npos;)
        shown.replace(at, 2, L"|");
    return shown;
}

} // namespace

TEST(LineBreaker, WhatFitsIsNotBroken)
{
    EXPECT_EQ(lines(L"", 5), L"");
    EXPECT_EQ(lines(L"oak elm", 7), L"oak elm");
    EXPECT_EQ(lines(L"oak\r\nelm", 3), L"oak|elm");
    EXPECT_TRUE(wrapped(L"oak\r\nelm", 3).isPlain());
}

TEST(LineBreaker, ALineEndsBehindTheLastWordThatFits)
{
    EXPECT_EQ(lines(L"oak elm ash fir", 7), L"oak elm|ash fir");
    EXPECT_EQ(lines(L"oak elm ash fir", 6), L"oak|elm|ash|fir");
    EXPECT_EQ(lines(L"oak elm ash fir", 8), L"oak elm|ash fir");
    EXPECT_EQ(lines(L"oak elm\r\nash fir yew", 7), L"oak elm|ash fir|yew");
}

TEST(LineBreaker, BlanksAtTheEndOfALineTakeNoRoom)
{
    EXPECT_EQ(lines(L"oak   elm", 4), L"oak|elm");
    EXPECT_EQ(lines(L"oak   ", 6), L"oak   ");
    EXPECT_EQ(lines(L"oak   ", 4), L"oak");
    EXPECT_EQ(lines(L"oak \r\nelm", 3), L"oak|elm");
    EXPECT_EQ(lines(L"  oak", 5), L"  oak");
    EXPECT_EQ(lines(L"    oak", 5), L"|oak");
}

TEST(LineBreaker, ALongWordGoesOnInTheNextLine)
{
    EXPECT_EQ(lines(L"rhododendron", 5), L"rhodo|dendr|on");
    EXPECT_EQ(lines(L"a rhododendron elm", 5), L"a|rhodo|dendr|on|elm");
    EXPECT_EQ(lines(L"a rhododendron elm", 6), L"a|rhodod|endron|elm");
    EXPECT_EQ(lines(L"oak", 0), L"o|a|k") << "never less than a character";
}

TEST(LineBreaker, ALongWordThatIsKeptWholeHasALineOfItsOwn)
{
    EXPECT_EQ(lines(L"rhododendron", 5, LongWords::Whole), L"rhododendron");
    EXPECT_EQ(lines(L"a rhododendron elm ash", 7, LongWords::Whole), L"a|rhododendron|elm ash");
    EXPECT_EQ(lines(L"rhododendron \r\nelm", 5, LongWords::Whole), L"rhododendron|elm");
}

TEST(LineBreaker, NoLineIsWiderThanAControlCanCount)
{
    const std::wstring word(5000, L'W'); // 50,000 pixels
    EXPECT_EQ(lines(word, 80, LongWords::Whole).size(), word.size() + 3);
    EXPECT_EQ(lines(word, 80, LongWords::Whole).find(L'|'), 1638u);
}

TEST(LineBreaker, ACharacterOfTwoUnitsStaysWhole)
{
    const std::wstring tree{wchar_t(0xD83C), wchar_t(0xDF33)};
    EXPECT_EQ(lines(tree + tree + tree, 3), tree + L"|" + tree + L"|" + tree);
    EXPECT_EQ(lines(tree + tree, 1), tree + L"|" + tree);
}

TEST(LineBreaker, TabsGoToTheNextStop)
{
    EXPECT_EQ(lines(L"oak\telm", 11), L"oak\telm");
    EXPECT_EQ(lines(L"oak\telm", 10), L"oak|elm");
    EXPECT_EQ(lines(L"oak elms\tash", 18), L"oak elms|ash");
    EXPECT_EQ(lines(L"oak elms\tash", 19), L"oak elms\tash");
}

TEST(LineBreaker, ALineMayBeBrokenBetweenCharactersWhereTheLanguageAllowsIt)
{
    const std::wstring text = L"oakelmash";
    std::vector<bool> allowed(text.size());
    allowed[3] = allowed[6] = true;
    const WrappedText result(text, softBreaks(text, allowed, 7 * kCharacter, LongWords::Whole, ruler()));
    EXPECT_EQ(result.shown(), L"oakelm\r\nash");
}

TEST(LineStarts, LinesBeginBehindBlanksAndWhereThePlatformAllowsIt)
{
    // Every text of three characters, with everything that the platform may say of the second and third.
    const wchar_t characters[] = {L'a', L' ', L'\t', L'\x4E00'};
    for (const wchar_t first : characters)
        for (const wchar_t second : characters)
            for (const wchar_t third : characters)
                for (int said = 0; said < 16; ++said) {
                    const std::wstring text{first, second, third};
                    const std::vector<CharacterBreak> known{
                        {}, {(said & 1) != 0, (said & 2) != 0}, {(said & 4) != 0, (said & 8) != 0}};
                    const std::vector<bool> starts = lineStarts(text, known);
                    ASSERT_EQ(starts.size(), 3u);
                    EXPECT_FALSE(starts[0]);
                    for (std::size_t i = 1; i < 3; ++i) {
                        const bool word = isBlank(text[i - 1]) && !isBlank(text[i]);
                        EXPECT_EQ(starts[i], word || (known[i].before && !known[i].isSpace))
                            << i << ' ' << said;
                    }
                    EXPECT_EQ(lineStarts(text, {}), breaksOf(text)) << "the platform does not tell";
                }
}

TEST(LineStarts, AnEmptyTextHasNone)
{
    EXPECT_TRUE(lineStarts(L"", {}).empty());
}

TEST(WrappedText, APositionIsFoundByTheLowerHalfOfItsNumber)
{
    for (const std::size_t line : {0u, 1u, 0x7FFFu, 0xFFF0u, 0xFFFFu, 0x10000u, 0x1FFFFu, 0x12345678u})
        for (const std::size_t offset : {0u, 1u, 15u, 16u, 1000u, 0xFFFFu})
            EXPECT_EQ(positionInLine(line, (line + offset) & 0xFFFF), line + offset) << line << ' ' << offset;
}

TEST(WrappedText, APlainTextKeepsItsPositions)
{
    const WrappedText plain;
    EXPECT_TRUE(plain.isPlain());
    EXPECT_EQ(plain.toShown(17), 17u);
    EXPECT_EQ(plain.toText(17), 17u);
}

TEST(WrappedText, PositionsAreThoseOfTheSameCharacter)
{
    const WrappedText text = wrapped(L"oak  elm ash", 4);
    ASSERT_EQ(text.shown(), L"oak\r\nelm\r\nash");
    const std::size_t shown[] = {0, 1, 2, 3, 3, 5, 6, 7, 8, 10, 11, 12, 13, 13};
    for (std::size_t i = 0; i < std::size(shown); ++i)
        EXPECT_EQ(text.toShown(i), shown[i]) << i;
    const std::size_t original[] = {0, 1, 2, 3, 3, 5, 6, 7, 8, 8, 9, 10, 11, 12, 12};
    for (std::size_t i = 0; i < std::size(original); ++i)
        EXPECT_EQ(text.toText(i), original[i]) << i;
}

TEST(WrappedText, BlanksLeftOutAtTheEndBelongToIt)
{
    const WrappedText text = wrapped(L"oak  ", 3);
    ASSERT_EQ(text.shown(), L"oak");
    EXPECT_EQ(text.toText(3), 5u) << "all that is shown is all of the text";
    EXPECT_EQ(text.toShown(5), 3u);
}

TEST(WrappedText, AnyTextKeepsItsCharactersAndItsWidth)
{
    std::mt19937 random(15);
    const wchar_t characters[] = L"abc   \t\r";
    for (int round = 0; round < 3000; ++round) {
        std::wstring text;
        for (unsigned i = random() % 60; i > 0; --i) {
            const wchar_t character = characters[random() % 8];
            text += character == L'\r' ? L"\r\n" : std::wstring(1, character);
        }
        const int width = 1 + static_cast<int>(random() % 20);
        const LongWords longWords = random() % 2 ? LongWords::Whole : LongWords::Broken;
        const WrappedText result = wrapped(text, width, longWords);
        if (result.isPlain())
            continue;
        for (std::size_t i = 0; i < text.size(); ++i) {
            const std::size_t shown = result.toShown(i);
            ASSERT_LE(shown, result.shown().size());
            if (isBlank(text[i]))
                continue;
            ASSERT_EQ(result.shown()[shown], text[i]) << round << ", " << i;
            ASSERT_EQ(result.toText(shown), i) << round;
        }
        ASSERT_EQ(result.toText(result.shown().size()), text.size());
        std::wistringstream shown(result.shown());
        for (std::wstring line; std::getline(shown, line);) {
            if (!line.empty() && line.back() == L'\r')
                line.pop_back();
            const bool mayBeWide = line.find(L'\t') != line.npos ||
                                   (longWords == LongWords::Whole && line.find(L' ') == line.npos);
            ASSERT_TRUE(mayBeWide || line.size() <= static_cast<std::size_t>(width)) << round;
        }
    }
}
