/// A text that is shown with line breaks which it does not have itself. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/LineBreaker.h>

#include <cstddef>
#include <string>
#include <vector>

namespace ovoui::frame
{

/// Knows the text, what is shown of it, and which position in one belongs to which in the other. Positions
/// count from 0 and lie between characters. In a text with breaks, one behind the end counts as the end.
class WrappedText
{
public:
    /// Plain: all positions stay what they are.
    WrappedText() = default;
    WrappedText(std::wstring text, const std::vector<SoftBreak>& breaks);

    const std::wstring& text() const { return m_text; }
    const std::wstring& shown() const { return m_shown; }

    /// Whether the text is shown as it is.
    bool isPlain() const { return m_pieces.empty(); }

    /// A position within blanks that are not shown becomes that before them.
    std::size_t toShown(std::size_t position) const;
    /// A position within a line break that the text does not have becomes that before it.
    std::size_t toText(std::size_t position) const;

private:
    /// A break, and what is shown in place of it.
    struct Piece
    {
        std::size_t begin;
        std::size_t end;
        std::size_t shownBegin;
        std::size_t shownEnd;
    };

    std::wstring m_text;
    std::wstring m_shown;
    std::vector<Piece> m_pieces; ///< in order
};

/// The position in a line of which a control tells the lower 16 bits alone. `line` is where the line begins;
/// it is shorter than 65536 characters.
constexpr std::size_t positionInLine(std::size_t line, std::size_t lowerBits)
{
    return line + ((lowerBits - line) & 0xFFFF);
}

} // namespace ovoui::frame
