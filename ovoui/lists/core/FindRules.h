/// What keys lead to while a list is searched by typing, and in which order its rows are looked at.
#pragma once

#include <optional>
#include <string>

namespace ovoui::lists
{

/// What the user is looking for.
struct FindState
{
    std::wstring text;
    bool over = true; ///< the next character begins another text

    friend bool operator==(const FindState&, const FindState&) = default;
};

enum class FindKey
{
    Character,
    Backspace,
    Escape,
    Next,
    Previous,
    Elsewhere ///< the user went to another row, or out of the list
};

enum class Search
{
    None,
    FromHere, ///< the focused row first
    Next,
    Previous
};

struct FindEffect
{
    bool taken = false; ///< else the key goes where it was going
    Search search = Search::None;
    FindState state; ///< to be kept, unless the search finds nothing

    friend bool operator==(const FindEffect&, const FindEffect&) = default;
};

/// `character` counts for FindKey::Character only. Control characters are not taken, nor is a space that
/// would begin a text: it selects.
FindEffect afterFindKey(const FindState& state, FindKey key, wchar_t character = 0);

enum class Look
{
    No,
    Yes,
    Stop ///< the rows are gone
};

/// The first row for which `look(row)` says yes, or -1. Rows are looked at in the order of the search, all
/// of them, going on at the other end; the focused row comes last, except from here. `focused` may be -1.
template <class LookAt>
int findRow(int count, int focused, Search search, const LookAt& look)
{
    const int step = search == Search::Previous ? -1 : 1;
    int first = focused + (search == Search::FromHere ? 0 : step);
    if (focused < 0)
        first = step < 0 ? count - 1 : 0;
    for (int i = 0; i < count; ++i) {
        const int row = ((first + i * step) % count + count) % count;
        const Look found = look(row);
        if (found != Look::No)
            return found == Look::Yes ? row : -1;
    }
    return -1;
}

/// A message to a list that is searched by typing, as far as it matters.
enum class FindMessage
{
    KeyDown,
    Character,
    Pressed, ///< a button of the mouse
    FocusGone
};

struct FindInput
{
    FindKey key;
    wchar_t character = 0;  ///< for FindKey::Character
    bool onlyAsked = false; ///< the key is taken where its character would be, which arrives by itself

    friend bool operator==(const FindInput&, const FindInput&) = default;
};

/// What a message means to the search; nothing for what is none of its business. `value` is the virtual key
/// or the character. What a list does with a space it does when the key goes down.
std::optional<FindInput> findInputOf(FindMessage message, unsigned value, bool shift, bool ctrl);

/// Where a parent that is asked for a row is to begin; nothing when it cannot be asked, since it searches
/// forwards only.
std::optional<int> startForParent(int count, int focused, Search search);

} // namespace ovoui::lists
