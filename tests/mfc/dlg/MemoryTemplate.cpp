#include "MemoryTemplate.h"

MemoryTemplate::MemoryTemplate(const std::wstring& title, DWORD style)
{
    number(style);
    number(0);
    m_words.insert(m_words.end(), {0, 10, 10, 150, 120, 0, 0}); // count, place, no menu, the dialog class
    text(title);
}

MemoryTemplate& MemoryTemplate::control(const std::wstring& windowClass, WORD id, DWORD style,
                                        const std::wstring& label)
{
    if (m_words.size() % 2)
        m_words.push_back(0);
    number(style | WS_CHILD | WS_VISIBLE);
    number(0);
    m_words.insert(m_words.end(), {5, static_cast<WORD>(5 + 16 * m_count), 60, 14, id});
    text(windowClass);
    text(label);
    m_words.push_back(0);
    m_words[4] = static_cast<WORD>(++m_count);
    return *this;
}

void MemoryTemplate::number(DWORD value)
{
    m_words.push_back(LOWORD(value));
    m_words.push_back(HIWORD(value));
}

void MemoryTemplate::text(const std::wstring& value)
{
    for (const wchar_t c : value)
        m_words.push_back(static_cast<WORD>(c));
    m_words.push_back(0);
}
