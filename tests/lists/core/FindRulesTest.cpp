// Finding by typing: what keys lead to, and in which order rows are looked at.
#include <ovoui/lists/core/FindRules.h>

#include <gtest/gtest.h>

#include <vector>

using namespace ovoui::lists;

namespace
{

const FindState kNothing{};
const FindState kTyping{L"ab", false};
const FindState kOver{L"ab", true};

FindEffect typed(const FindState& state, wchar_t character)
{
    return afterFindKey(state, FindKey::Character, character);
}

/// Which rows are looked at, when the search ends at `wanted`.
std::vector<int> looked(int count, int focused, Search search, int wanted = -1)
{
    std::vector<int> rows;
    const int found = findRow(count, focused, search, [&](int row) {
        rows.push_back(row);
        return row == wanted ? Look::Yes : Look::No;
    });
    EXPECT_EQ(found, wanted);
    return rows;
}

using Rows = std::vector<int>;

} // namespace

TEST(FindRules, CharactersMakeTheText)
{
    EXPECT_EQ(typed(kNothing, L'a'), (FindEffect{true, Search::FromHere, {L"a", false}}));
    EXPECT_EQ(typed(kTyping, L'c'), (FindEffect{true, Search::FromHere, {L"abc", false}}));
    EXPECT_EQ(typed(kTyping, L' '), (FindEffect{true, Search::FromHere, {L"ab ", false}}));
}

TEST(FindRules, AnotherTextBeginsAfterAStepElsewhere)
{
    EXPECT_EQ(afterFindKey(kTyping, FindKey::Elsewhere), (FindEffect{false, Search::None, kOver}));
    EXPECT_EQ(typed(kOver, L'c'), (FindEffect{true, Search::FromHere, {L"c", false}}));
}

TEST(FindRules, ASpaceBeginsNoText)
{
    EXPECT_FALSE(typed(kNothing, L' ').taken);
    EXPECT_EQ(typed(kOver, L' '), (FindEffect{false, Search::None, kOver}));
}

TEST(FindRules, ControlCharactersGoToTheList)
{
    for (wchar_t character = 0; character < L' '; ++character)
        for (const FindState& state : {kNothing, kTyping, kOver})
            EXPECT_EQ(typed(state, character), (FindEffect{false, Search::None, state}));
    EXPECT_FALSE(typed(kTyping, 0x7F).taken); // Ctrl+Backspace
}

TEST(FindRules, BackspaceTakesTheLastCharacterBack)
{
    const auto back = [](const FindState& state) { return afterFindKey(state, FindKey::Backspace); };
    EXPECT_EQ(back(kTyping), (FindEffect{true, Search::FromHere, {L"a", false}}));
    EXPECT_EQ(back({L"a", false}), (FindEffect{true, Search::None, kNothing}));
    EXPECT_EQ(back({L"a\xD83C\xDF31", false}), (FindEffect{true, Search::FromHere, {L"a", false}}));
    for (const wchar_t high : {0xD800, 0xDBFF})
        for (const wchar_t low : {0xDC00, 0xDFFF})
            EXPECT_EQ(back({std::wstring{L'a', high, low}, false}),
                      (FindEffect{true, Search::FromHere, {L"a", false}}));
    EXPECT_EQ(back({L"a\xDF31", false}), (FindEffect{true, Search::FromHere, {L"a", false}}));
    EXPECT_EQ(back(kOver), (FindEffect{false, Search::None, kOver}));
    EXPECT_EQ(back(kNothing), (FindEffect{false, Search::None, kNothing}));
}

TEST(FindRules, EscapeEndsASearchAndOtherwiseGoesOn)
{
    for (const FindState& state : {kTyping, kOver})
        EXPECT_EQ(afterFindKey(state, FindKey::Escape), (FindEffect{true, Search::None, kNothing}));
    EXPECT_FALSE(afterFindKey(kNothing, FindKey::Escape).taken);
}

TEST(FindRules, NextAndPreviousNeedAText)
{
    for (const FindState& state : {kTyping, kOver}) {
        EXPECT_EQ(afterFindKey(state, FindKey::Next), (FindEffect{true, Search::Next, state}));
        EXPECT_EQ(afterFindKey(state, FindKey::Previous), (FindEffect{true, Search::Previous, state}));
    }
    for (const FindKey key : {FindKey::Next, FindKey::Previous})
        EXPECT_EQ(afterFindKey(kNothing, key), (FindEffect{false, Search::None, kNothing}));
}

TEST(FindRules, RowsInTheOrderOfTheSearch)
{
    EXPECT_EQ(looked(4, 2, Search::FromHere), (Rows{2, 3, 0, 1}));
    EXPECT_EQ(looked(4, 2, Search::Next), (Rows{3, 0, 1, 2}));
    EXPECT_EQ(looked(4, 2, Search::Previous), (Rows{1, 0, 3, 2}));
    EXPECT_EQ(looked(4, 3, Search::Next), (Rows{0, 1, 2, 3}));
    EXPECT_EQ(looked(4, 0, Search::Previous), (Rows{3, 2, 1, 0}));
    EXPECT_EQ(looked(4, 2, Search::Next, 0), (Rows{3, 0}));
}

TEST(FindRules, WithoutAFocusedRowFromTheEnds)
{
    EXPECT_EQ(looked(3, -1, Search::FromHere), (Rows{0, 1, 2}));
    EXPECT_EQ(looked(3, -1, Search::Next), (Rows{0, 1, 2}));
    EXPECT_EQ(looked(3, -1, Search::Previous), (Rows{2, 1, 0}));
    EXPECT_EQ(looked(0, -1, Search::Next), Rows{});
}

TEST(FindRules, RowsThatAreGoneStopTheSearch)
{
    int calls = 0;
    EXPECT_EQ(findRow(5, 0, Search::Next, [&](int) { return ++calls == 2 ? Look::Stop : Look::No; }), -1);
    EXPECT_EQ(calls, 2);
}

TEST(FindRules, WhatEveryKeyMeansToTheSearch)
{
    for (unsigned key = 0; key <= 0xFF; ++key)
        for (const bool shift : {false, true})
            for (const bool ctrl : {false, true}) {
                const auto input = findInputOf(FindMessage::KeyDown, key, shift, ctrl);
                if (key == 0x20) // Space
                    EXPECT_EQ(input,
                              ctrl ? std::nullopt : std::optional(FindInput{FindKey::Character, L' ', true}));
                else if (key == 0x1B) // Escape
                    EXPECT_EQ(input, FindInput{FindKey::Escape});
                else if (key == 0x72) // F3
                    EXPECT_EQ(input, FindInput{shift ? FindKey::Previous : FindKey::Next});
                else if (key >= 0x21 && key <= 0x28) // page keys, End, Home, arrows
                    EXPECT_EQ(input, FindInput{FindKey::Elsewhere});
                else
                    EXPECT_EQ(input, std::nullopt) << key;
            }
}

TEST(FindRules, WhatEveryCharacterMeansToTheSearch)
{
    for (unsigned character = 0; character <= 0xFFFF; ++character)
        for (const bool ctrl : {false, true}) {
            const auto input = findInputOf(FindMessage::Character, character, false, ctrl);
            if (character == 8)
                EXPECT_EQ(input, FindInput{FindKey::Backspace});
            else if (character == L' ' && ctrl)
                EXPECT_EQ(input, std::nullopt) << "it selects";
            else
                EXPECT_EQ(input, (FindInput{FindKey::Character, static_cast<wchar_t>(character)}));
        }
}

TEST(FindRules, ThePointerAndTheFocusGoElsewhere)
{
    for (const FindMessage message : {FindMessage::Pressed, FindMessage::FocusGone})
        for (const bool held : {false, true})
            EXPECT_EQ(findInputOf(message, 0x20, held, held), FindInput{FindKey::Elsewhere});
}

TEST(FindRules, AParentBeginsWhereTheSearchDoesOrCannotBeAsked)
{
    for (int count = 0; count < 5; ++count)
        for (int focused = -1; focused < count; ++focused) {
            EXPECT_EQ(startForParent(count, focused, Search::FromHere), focused < 0 ? 0 : focused);
            EXPECT_EQ(startForParent(count, focused, Search::Next), focused == count - 1 ? 0 : focused + 1);
            EXPECT_EQ(startForParent(count, focused, Search::Previous), std::nullopt);
            EXPECT_EQ(startForParent(count, focused, Search::None), std::nullopt);
        }
}
