/// Room for a text of a known length. Plain values, no windows.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace ovoui::lists
{

/// Takes a text of `length` characters and the zero behind it: on the stack, unless it is long.
class TextRoom
{
public:
    explicit TextRoom(std::size_t length)
        : m_long(length < m_usual.size() ? 0 : length + 1, L'\0')
    {
    }

    wchar_t* data() { return m_long.empty() ? m_usual.data() : m_long.data(); }

private:
    std::array<wchar_t, 128> m_usual{};
    std::wstring m_long;
};

} // namespace ovoui::lists
