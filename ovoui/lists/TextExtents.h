/// Not exported: how far a text reaches, and each of its beginnings, measured in one call.
#pragma once

#include <afxwin.h>

#include <array>
#include <climits>
#include <span>
#include <vector>

namespace ovoui::lists
{

class TextExtents
{
public:
    /// `length` is at least 1. In logical units, in the context's font. Without a valid context all extents
    /// are 0.
    TextExtents(const CDC& dc, LPCWSTR text, std::size_t length)
        : m_long(length > kUsual ? length : 0)
        , m_beginnings(m_long.empty() ? std::span(m_usual).first(length) : std::span(m_long))
    {
        SIZE size{};
        int fit = 0; // some platforms give no extents without it
        ::GetTextExtentExPointW(dc.m_hAttribDC, text, static_cast<int>(length), INT_MAX, &fit,
                                m_beginnings.data(), &size);
        m_whole = size.cx;
    }
    TextExtents(const TextExtents&) = delete;
    TextExtents& operator=(const TextExtents&) = delete;

    int whole() const { return m_whole; }

    /// At k - 1 how far the first k characters reach within the text.
    std::span<const int> beginnings() const { return m_beginnings; }

private:
    static constexpr std::size_t kUsual = 264;

    std::array<int, kUsual> m_usual{};
    std::vector<int> m_long; ///< for what the other has no room for
    std::span<int> m_beginnings;
    int m_whole = 0;
};

} // namespace ovoui::lists
