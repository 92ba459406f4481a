#include <ovoui/frame/core/WrappedText.h>

#include <algorithm>
#include <iterator>

namespace ovoui::frame
{

WrappedText::WrappedText(std::wstring text, const std::vector<SoftBreak>& breaks)
    : m_text(std::move(text))
{
    std::size_t done = 0;
    for (const SoftBreak& piece : breaks) {
        m_shown.append(m_text, done, piece.begin - done);
        const std::size_t shownBegin = m_shown.size();
        if (piece.newLine)
            m_shown += L"\r\n";
        m_pieces.push_back({piece.begin, piece.end, shownBegin, m_shown.size()});
        done = piece.end;
    }
    m_shown.append(m_text, done);
}

std::size_t WrappedText::toShown(std::size_t position) const
{
    if (isPlain())
        return position;
    position = std::min(position, m_text.size());
    const auto after = std::upper_bound(m_pieces.begin(), m_pieces.end(), position,
                                        [](std::size_t at, const Piece& piece) { return at < piece.begin; });
    if (after == m_pieces.begin())
        return position;
    const Piece& piece = *std::prev(after);
    return position < piece.end ? piece.shownBegin : piece.shownEnd + (position - piece.end);
}

std::size_t WrappedText::toText(std::size_t position) const
{
    if (isPlain())
        return position;
    position = std::min(position, m_shown.size());
    const auto after =
        std::upper_bound(m_pieces.begin(), m_pieces.end(), position,
                         [](std::size_t at, const Piece& piece) { return at < piece.shownBegin; });
    if (after == m_pieces.begin())
        return position;
    const Piece& piece = *std::prev(after);
    return position < piece.shownEnd ? piece.begin : piece.end + (position - piece.shownEnd);
}

} // namespace ovoui::frame
