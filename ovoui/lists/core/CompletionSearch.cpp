#include <ovoui/lists/core/CompletionSearch.h>

namespace ovoui::lists
{

/// How many characters the last text and another one begin with in common.
std::size_t CompletionSearch::commonWith(std::wstring_view text) const
{
    const std::size_t shorter = std::min(text.size(), m_text.size());
    return static_cast<std::size_t>(
        std::mismatch(m_text.begin(), m_text.begin() + static_cast<std::ptrdiff_t>(shorter), text.begin())
            .first -
        m_text.begin());
}

const CompletionSearch::Beginning* CompletionSearch::longestOf(std::wstring_view text) const
{
    const std::size_t common = commonWith(text);
    const auto known = std::find_if(m_beginnings.rbegin(), m_beginnings.rend(),
                                    [&](const Beginning& beginning) { return beginning.length <= common; });
    return known == m_beginnings.rend() ? nullptr : &*known;
}

CompletionSearch::Found CompletionSearch::foundFor(std::wstring_view text) const
{
    const Beginning* const known = longestOf(text);
    return known ? known->found : Found{};
}

/// What is known of the text itself says more.
void CompletionSearch::take(std::wstring_view text, int first)
{
    const Beginning* const known = longestOf(text);
    if (known && known->length == text.size())
        return;
    const int exact = known ? known->found.exact : 0;
    const bool none = first == kNone || exact == kNone;
    remember(text, {first, none ? kNone : std::max(first, exact)});
}

/// Nothing is kept for an empty text: what is found for it says nothing about others.
void CompletionSearch::remember(std::wstring_view text, const Found& found)
{
    const std::size_t common = commonWith(text);
    while (!m_beginnings.empty() &&
           (m_beginnings.back().length > common || m_beginnings.back().length == text.size()))
        m_beginnings.pop_back();
    m_text = text;
    if (!text.empty())
        m_beginnings.push_back({text.size(), found});
}

} // namespace ovoui::lists
