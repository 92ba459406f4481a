/// Texts with a separator between them. Plain values, no windows.
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace ovoui::sysinfo
{

class WordList
{
public:
    explicit WordList(std::wstring_view separator)
        : m_separator(separator)
    {
    }

    /// An empty text is left out, with its separator.
    void add(std::wstring_view word)
    {
        if (!m_text.empty() && !word.empty())
            m_text += m_separator;
        m_text += word;
    }

    /// All of them; the list is empty afterwards.
    std::wstring take() { return std::exchange(m_text, {}); }

private:
    std::wstring m_separator;
    std::wstring m_text;
};

} // namespace ovoui::sysinfo
