/// Finds the item that completes a text, with less to look at for each character that is typed.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ovoui::lists
{

/// Remembers what was found for the beginnings of the last text. An item that begins with a text begins with
/// each beginning of that text as well. So the search for a longer text goes on where that for a shorter one
/// ended, and is over at once where that one found nothing. What is remembered is two indices for each text
/// that was searched for and begins the last one: at most its length.
class CompletionSearch
{
public:
    /// The item that completes a text, or -1. One that begins with exactly the text is preferred to one that
    /// differs in case.
    ///
    /// `find(after)` gives the next item behind `after` that begins with the text, whatever the case, going
    /// on at the top behind the last one; -1 for none. `textOf(i)` gives an item's text.
    template <class Find, class TextOf>
    int itemFor(std::wstring_view text, int count, const Find& find, const TextOf& textOf)
    {
        const Found before = foundFor(text);
        Found found;
        found.first = before.first == kNone ? kNone : find(before.first - 1);
        found.exact = kNone;
        if (found.first != kNone && before.exact != kNone)
            found.exact =
                exactFrom(std::max(found.first, before.exact), found.first, text, count, find, textOf);
        remember(text, found);
        return found.exact == kNone ? found.first : found.exact;
    }

    /// The first item that can begin with a text, whatever the case: none before it does. -1 when none does
    /// at all.
    int firstFor(std::wstring_view text) const { return foundFor(text).first; }

    /// Takes over what another search of the whole list has found: the first item that begins with a
    /// text, whatever the case, or -1.
    void take(std::wstring_view text, int first);

    /// To be called when items have changed.
    void forget() { m_beginnings.clear(); }

private:
    static constexpr int kNone = -1;

    /// No item before these begins with the text.
    struct Found
    {
        int first = 0; ///< whatever the case
        int exact = 0; ///< with exactly the text
    };

    struct Beginning
    {
        std::size_t length; ///< of m_text
        Found found;
    };

    /// The longest known beginning of a text; null for none.
    const Beginning* longestOf(std::wstring_view text) const;
    Found foundFor(std::wstring_view text) const;
    std::size_t commonWith(std::wstring_view text) const;
    /// Forgets what is no beginning of the text.
    void remember(std::wstring_view text, const Found& found);

    /// The first item from `start` on that begins with exactly the text. `first`: the first one of all that
    /// begins with it, whatever the case.
    template <class Find, class TextOf>
    static int exactFrom(int start, int first, std::wstring_view text, int count, const Find& find,
                         const TextOf& textOf)
    {
        int last = start - 1;
        int item = start == first ? first : find(last);
        while (item > last) {
            if (std::wstring_view(textOf(item)).starts_with(text))
                return item;
            last = item;
            if (last + 1 < count) // nothing stands behind the last item
                item = find(last);
        }
        return kNone;
    }

    std::wstring m_text;
    std::vector<Beginning> m_beginnings; ///< shorter ones first
};

} // namespace ovoui::lists
