#include <ovoui/lists/core/TextHistory.h>

#include <algorithm>

namespace ovoui::lists
{

void TextHistory::restore(const std::vector<std::wstring>& texts)
{
    m_texts.clear();
    for (const std::wstring& text : texts)
        if (!text.empty() && !has(text) && m_texts.size() < m_limit)
            m_texts.push_back(text);
}

std::vector<std::wstring> TextHistory::use(const std::wstring& text)
{
    if (text.empty())
        return {};
    forget(text);
    m_texts.insert(m_texts.begin(), text);
    const auto end = m_texts.begin() + static_cast<std::ptrdiff_t>(std::min(m_limit, m_texts.size()));
    const std::vector<std::wstring> gone(end, m_texts.end());
    m_texts.erase(end, m_texts.end());
    return gone;
}

bool TextHistory::forget(const std::wstring& text)
{
    return std::erase(m_texts, text) > 0;
}

bool TextHistory::has(const std::wstring& text) const
{
    return std::find(m_texts.begin(), m_texts.end(), text) != m_texts.end();
}

int indexAfterRemoval(int index, int at)
{
    return index == at ? -1 : index > at ? index - 1 : index;
}

int indexAfterInsertion(int index, int at)
{
    return index >= at ? index + 1 : index;
}

int indexAfterMove(int index, int from, int to)
{
    return index == from ? to : index < 0 ? index : indexAfterInsertion(indexAfterRemoval(index, from), to);
}

} // namespace ovoui::lists
