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

CompletionSearch::Found CompletionSearch::foundFor(std::wstring_view text) const
{
    const std::size_t common = commonWith(text);
    const auto known = std::find_if(m_beginnings.rbegin(), m_beginnings.rend(),
                                    [&](const Beginning& beginning) { return beginning.length <= common; });
    return known == m_beginnings.rend() ? Found{} : known->found;
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
