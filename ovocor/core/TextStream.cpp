#include <ovocor/core/TextStream.h>

#include <ovocor/core/Utf.h>

#include <algorithm>

namespace OVO
{

namespace
{

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16leMark = "\xFF\xFE";
constexpr std::string_view kUtf16beMark = "\xFE\xFF";

/// Reads units of a text: single bytes, or pairs in one of two orders.
class Units
{
public:
    Units(std::string_view bytes, TextEncoding encoding)
        : m_bytes(bytes)
        , m_size(sizeOf(encoding))
        , m_low(encoding == TextEncoding::Utf16be ? 1 : 0)
    {
    }

    static std::size_t sizeOf(TextEncoding encoding)
    {
        return encoding == TextEncoding::Utf16le || encoding == TextEncoding::Utf16be ? 2 : 1;
    }

    /// Whether the unit at a byte position is this ASCII character.
    bool is(std::size_t at, char c) const
    {
        return m_bytes[at + m_low] == c && (m_size == 1 || m_bytes[at + 1 - m_low] == 0);
    }

    /// Byte position of the first line feed or return, or the end of the whole units.
    std::size_t lineEnd() const
    {
        const std::size_t whole = m_bytes.size() - m_bytes.size() % m_size;
        std::size_t at = 0;
        while (at < whole && !is(at, '\n') && !is(at, '\r'))
            at += m_size;
        return at;
    }

private:
    std::string_view m_bytes;
    std::size_t m_size;
    std::size_t m_low;
};

} // namespace

TextStream::TextStream(ByteSource& source, AnsiDecoder ansi, std::size_t bufferSize)
    : m_source(source)
    , m_ansi(ansi)
    , m_buffer(std::max(bufferSize, kUtf8Mark.size())) // a mark is looked for in a full buffer
{
    detectEncoding();
}

void TextStream::detectEncoding()
{
    fill();
    if (unread().starts_with(kUtf8Mark))
        return skipMark(kUtf8Mark.size());
    if (unread().starts_with(kUtf16leMark) || unread().starts_with(kUtf16beMark)) {
        m_encoding = unread().starts_with(kUtf16leMark) ? TextEncoding::Utf16le : TextEncoding::Utf16be;
        return skipMark(kUtf16leMark.size());
    }

    // Without a mark only the whole text tells: one malformed sequence, and it is not UTF-8.
    Utf8Decoder decoder;
    const auto wellFormed = [&decoder](char c) {
        const Utf8Decoder::Step step = decoder.take(static_cast<unsigned char>(c));
        return step == Utf8Decoder::Step::More || step == Utf8Decoder::Step::Done;
    };
    bool valid = true;
    do {
        valid = std::ranges::all_of(unread(), wellFormed);
        m_position = m_size;
    } while (valid && fill());
    m_encoding = valid && !decoder.insideSequence() ? TextEncoding::Utf8 : TextEncoding::Ansi;
    m_source.rewind();
    m_size = 0;
    m_position = 0;
}

void TextStream::skipMark(std::size_t size)
{
    m_position += size;
}

/// Adds bytes behind the unread ones; false at the end of the source.
bool TextStream::fill()
{
    const std::string_view rest = unread();
    std::copy(rest.begin(), rest.end(), m_buffer.begin());
    m_size = rest.size();
    m_position = 0;
    bool added = false;
    while (m_size < m_buffer.size()) {
        const std::size_t got = m_source.read(m_buffer.data() + m_size, m_buffer.size() - m_size);
        if (got == 0)
            break;
        m_size += got;
        added = true;
    }
    return added;
}

std::string_view TextStream::unread() const
{
    return {m_buffer.data() + m_position, m_size - m_position};
}

bool TextStream::readLine(std::wstring& line)
{
    line.clear();
    // What an exception has left of a line is kept for the next call.
    if (!m_rawIsWhole && !takeLine())
        return false;
    m_rawIsWhole = true;
    decode(line);
    m_raw.clear();
    m_rawIsWhole = false;
    return true;
}

/// Moves the rest of the current line to `m_raw`; false at the end of the text.
bool TextStream::takeLine()
{
    while (!takeUpToLineEnd()) {
        if (fill())
            continue;
        // The last line has no end; in UTF-16 half a unit may be left over.
        m_raw += unread();
        m_position = m_size;
        return !m_raw.empty();
    }
    return true;
}

/// Moves what the buffer holds of the current line to `m_raw`, and passes the line end; false when there is
/// none.
bool TextStream::takeUpToLineEnd()
{
    const std::size_t size = Units::sizeOf(m_encoding);
    if (m_afterReturn) {
        if (unread().size() < size)
            return false;
        m_afterReturn = false;
        if (Units(unread(), m_encoding).is(0, '\n'))
            m_position += size;
    }

    const std::string_view bytes = unread();
    const Units units(bytes, m_encoding);
    const std::size_t end = units.lineEnd();
    m_raw += bytes.substr(0, end);
    m_position += end;
    if (end + size > bytes.size())
        return false;
    m_afterReturn = units.is(end, '\r');
    m_position += size;
    return true;
}

void TextStream::decode(std::wstring& line) const
{
    switch (m_encoding) {
    case TextEncoding::Utf8:
        line = decodeUtf8(m_raw);
        break;
    case TextEncoding::Utf16le:
    case TextEncoding::Utf16be:
        line = decodeUtf16(m_raw, m_encoding == TextEncoding::Utf16be);
        break;
    case TextEncoding::Ansi:
        line = m_ansi(m_raw);
        break;
    }
}

} // namespace OVO
