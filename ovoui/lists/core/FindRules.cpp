#include <ovoui/lists/core/FindRules.h>

namespace ovoui::lists
{

namespace
{

constexpr wchar_t kFirstVisible = L' ';
constexpr wchar_t kDeleteCharacter = 0x7F;

bool isHighSurrogate(wchar_t c)
{
    return c >= 0xD800 && c <= 0xDBFF;
}

bool isLowSurrogate(wchar_t c)
{
    return c >= 0xDC00 && c <= 0xDFFF;
}

std::wstring withoutLast(std::wstring text)
{
    const bool isPair =
        text.size() > 1 && isLowSurrogate(text.back()) && isHighSurrogate(text[text.size() - 2]);
    text.resize(text.size() - (isPair ? 2 : 1));
    return text;
}

FindEffect afterCharacter(const FindState& state, wchar_t character)
{
    const bool begins = state.over || state.text.empty();
    if (character < kFirstVisible || character == kDeleteCharacter || (begins && character == L' '))
        return {false, Search::None, state};
    return {true, Search::FromHere, {(begins ? std::wstring() : state.text) + character, false}};
}

FindEffect afterBackspace(const FindState& state)
{
    if (state.over || state.text.empty())
        return {false, Search::None, state};
    const std::wstring text = withoutLast(state.text);
    return {true, text.empty() ? Search::None : Search::FromHere, {text, text.empty()}};
}

} // namespace

FindEffect afterFindKey(const FindState& state, FindKey key, wchar_t character)
{
    const bool searching = !state.text.empty();
    switch (key) {
    case FindKey::Character:
        return afterCharacter(state, character);
    case FindKey::Backspace:
        return afterBackspace(state);
    case FindKey::Escape:
        return {searching, Search::None, {}};
    case FindKey::Next:
        return {searching, searching ? Search::Next : Search::None, state};
    case FindKey::Previous:
        return {searching, searching ? Search::Previous : Search::None, state};
    case FindKey::Elsewhere:
        break;
    }
    return {false, Search::None, {state.text, true}};
}

} // namespace ovoui::lists
