#include <ovoui/lists/core/FindRules.h>

#include <ovoui/frame/core/VirtualKeys.h>

namespace ovoui::lists
{

using namespace keys;

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

std::optional<FindInput> inputOfKey(unsigned key, bool shift, bool ctrl)
{
    switch (key) {
    case kVkSpace:
        return ctrl ? std::nullopt : std::optional(FindInput{FindKey::Character, L' ', true});
    case kVkEscape:
        return FindInput{FindKey::Escape};
    case kVkF3:
        return FindInput{shift ? FindKey::Previous : FindKey::Next};
    }
    const bool goesElsewhere = key >= kVkPageUp && key <= kVkDown;
    return goesElsewhere ? std::optional(FindInput{FindKey::Elsewhere}) : std::nullopt;
}

std::optional<FindInput> inputOfCharacter(unsigned character, bool ctrl)
{
    if (character == kVkBack) // its character has the number of the key
        return FindInput{FindKey::Backspace};
    if (character == L' ' && ctrl)
        return std::nullopt;
    return FindInput{FindKey::Character, static_cast<wchar_t>(character)};
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

std::optional<FindInput> findInputOf(FindMessage message, unsigned value, bool shift, bool ctrl)
{
    switch (message) {
    case FindMessage::KeyDown:
        return inputOfKey(value, shift, ctrl);
    case FindMessage::Character:
        return inputOfCharacter(value, ctrl);
    case FindMessage::Pressed:
    case FindMessage::FocusGone:
        break;
    }
    return FindInput{FindKey::Elsewhere};
}

std::optional<int> startForParent(int count, int focused, Search search)
{
    switch (search) {
    case Search::FromHere:
        return focused > 0 ? focused : 0;
    case Search::Next:
        return focused + 1 < count ? focused + 1 : 0;
    case Search::Previous:
    case Search::None:
        break;
    }
    return std::nullopt;
}

} // namespace ovoui::lists
