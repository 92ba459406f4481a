#include <ovoui/frame/core/LineBreaker.h>

#include <algorithm>

namespace ovoui::frame
{
namespace
{

constexpr int kWidest = 0x4000;
constexpr std::wstring_view kLineEnd = L"\r\n";

bool isBlank(wchar_t character)
{
    return character == L' ' || character == L'\t';
}

bool isHighSurrogate(wchar_t character)
{
    return (character & 0xFC00) == 0xD800;
}

class LineBreaker
{
public:
    LineBreaker(std::wstring_view text, const std::vector<bool>& mayBreakBefore, int width,
                LongWords longWords, const TextRuler& ruler)
        : m_text(text)
        , m_mayBreakBefore(mayBreakBefore)
        , m_width(width)
        , m_longest(longWords == LongWords::Whole ? std::max(width, kWidest) : width)
        , m_ruler(ruler)
    {
    }

    std::vector<SoftBreak> run()
    {
        std::size_t begin = 0;
        while (begin <= m_text.size()) {
            const std::size_t end = std::min(m_text.find(kLineEnd, begin), m_text.size());
            breakParagraph(begin, end);
            begin = end + kLineEnd.size();
        }
        return std::move(m_breaks);
    }

private:
    void breakParagraph(std::size_t begin, std::size_t end)
    {
        std::size_t line = begin;
        std::size_t word = begin;
        while (word < end) {
            const std::size_t next = nextWord(word, end);
            const std::size_t wordEnd = withoutBlanks(word, next);
            if (fits(line, wordEnd, m_width)) {
                word = next;
            } else if (word > line) {
                m_breaks.push_back({withoutBlanks(line, word), word, true});
                line = word;
            } else if (const std::size_t piece = longestPiece(line, wordEnd); piece < wordEnd) {
                m_breaks.push_back({piece, piece, true});
                line = word = piece;
            } else {
                word = next; // a line of its own: the next word does not fit beside it
            }
        }
        const std::size_t textEnd = withoutBlanks(line, end);
        if (textEnd < end && !fits(line, end, m_width))
            m_breaks.push_back({textEnd, end, false});
    }

    /// Where the word that begins at `word` ends, with the blanks behind it.
    std::size_t nextWord(std::size_t word, std::size_t end) const
    {
        std::size_t next = word + 1;
        while (next < end && !m_mayBreakBefore[next])
            ++next;
        return next;
    }

    std::size_t withoutBlanks(std::size_t begin, std::size_t end) const
    {
        while (end > begin && isBlank(m_text[end - 1]))
            --end;
        return end;
    }

    /// The end of the longest piece of a word that a line may hold; at least one character, and no half of
    /// one.
    std::size_t longestPiece(std::size_t begin, std::size_t end) const
    {
        if (fits(begin, end, m_longest))
            return end;
        std::size_t fitting = begin + 1;
        std::size_t tooLong = end;
        while (tooLong - fitting > 1) {
            // Doubled at first, then halved: the part measured stays near the piece however long the word is.
            const std::size_t middle =
                std::min(begin + 2 * (fitting - begin), fitting + (tooLong - fitting) / 2);
            (fits(begin, middle, m_longest) ? fitting : tooLong) = middle;
        }
        if (!isHighSurrogate(m_text[fitting - 1]))
            return fitting;
        return fitting - 1 > begin ? fitting - 1 : std::min(fitting + 1, end);
    }

    bool fits(std::size_t begin, std::size_t end, int width) const
    {
        constexpr std::size_t kPart = 1024; // nearly always enough to see that a long text is too wide
        if (end - begin > 2 * kPart && lineWidth(m_text.substr(begin, kPart)) > width)
            return false;
        return lineWidth(m_text.substr(begin, end - begin)) <= width;
    }

    int lineWidth(std::wstring_view line) const
    {
        int width = 0;
        for (;;) {
            const std::size_t tab = line.find(L'\t');
            width += m_ruler.extent(line.substr(0, tab));
            if (tab == line.npos)
                return width;
            width = (width / m_ruler.tabWidth + 1) * m_ruler.tabWidth;
            line.remove_prefix(tab + 1);
        }
    }

    const std::wstring_view m_text;
    const std::vector<bool>& m_mayBreakBefore;
    const int m_width;
    const int m_longest; ///< width up to which a word is not broken
    const TextRuler& m_ruler;
    std::vector<SoftBreak> m_breaks;
};

} // namespace

std::vector<bool> lineStarts(std::wstring_view text, const std::vector<CharacterBreak>& known)
{
    std::vector<bool> starts(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool behindBlanks = i > 0 && isBlank(text[i - 1]) && !isBlank(text[i]);
        starts[i] = behindBlanks || (i < known.size() && known[i].before && !known[i].isSpace);
    }
    return starts;
}

std::vector<SoftBreak> softBreaks(std::wstring_view text, const std::vector<bool>& mayBreakBefore, int width,
                                  LongWords longWords, const TextRuler& ruler)
{
    return LineBreaker(text, mayBreakBefore, width, longWords, ruler).run();
}

} // namespace ovoui::frame
