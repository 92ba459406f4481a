#include <ovoui/lists/core/CompletionSearch.h>

namespace ovoui::lists
{

CompletionSearch::Found CompletionSearch::foundBefore(std::wstring_view text)
{
    const std::size_t shorter = std::min(text.size(), m_text.size());
    const auto common = static_cast<std::size_t>(
        std::mismatch(m_text.begin(), m_text.begin() + static_cast<std::ptrdiff_t>(shorter), text.begin())
            .first -
        m_text.begin());
    while (!m_beginnings.empty() && m_beginnings.back().length > common)
        m_beginnings.pop_back();
    return m_beginnings.empty() ? Found{} : m_beginnings.back().found;
}

/// Nothing is kept for an empty text: what is found for it says nothing about others.
void CompletionSearch::remember(std::wstring_view text, const Found& found)
{
    m_text = text;
    if (!m_beginnings.empty() && m_beginnings.back().length == text.size())
        m_beginnings.pop_back();
    if (!text.empty())
        m_beginnings.push_back({text.size(), found});
}

} // namespace ovoui::lists
