#include <ovocor/core/Utf.h>

namespace OVO
{

namespace
{

bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

char32_t joined(char32_t high, char32_t low)
{
    return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
}

bool isCharacter(char32_t value)
{
    return value <= 0x10FFFF && !isHighSurrogate(value) && !isLowSurrogate(value);
}

/// Turns units, of which surrogates come in pairs, into characters.
template <class Units, class Take>
void forEachCharacter(const Units& units, std::size_t count, Take take)
{
    for (std::size_t i = 0; i < count; ++i) {
        const char32_t unit = units(i);
        if (isHighSurrogate(unit) && i + 1 < count && isLowSurrogate(units(i + 1)))
            take(joined(unit, units(++i)));
        else
            take(isCharacter(unit) ? unit : kReplacementCharacter);
    }
}

void appendUtf8(std::string& bytes, char32_t character)
{
    const auto tail = [character](int shift) {
        return static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    };
    if (character < 0x80) {
        bytes += static_cast<char>(character);
    } else if (character < 0x800) {
        bytes += static_cast<char>(0xC0 | (character >> 6));
        bytes += tail(0);
    } else if (character < 0x10000) {
        bytes += static_cast<char>(0xE0 | (character >> 12));
        bytes += tail(6);
        bytes += tail(0);
    } else {
        bytes += static_cast<char>(0xF0 | (character >> 18));
        bytes += tail(12);
        bytes += tail(6);
        bytes += tail(0);
    }
}

} // namespace

Utf8Decoder::Step Utf8Decoder::take(unsigned char byte)
{
    if (!insideSequence())
        return begin(byte);
    if (byte < m_lowest || byte > m_highest) {
        m_missing = 0;
        return Step::Restart;
    }
    m_value = (m_value << 6) | (byte & 0x3F);
    m_lowest = 0x80;
    m_highest = 0xBF;
    return --m_missing ? Step::More : Step::Done;
}

Utf8Decoder::Step Utf8Decoder::begin(unsigned char byte)
{
    m_lowest = 0x80;
    m_highest = 0xBF;
    if (byte < 0x80) {
        m_value = byte;
        return Step::Done;
    }
    if (byte >= 0xC2 && byte <= 0xDF) {
        m_value = byte & 0x1F;
        m_missing = 1;
        return Step::More;
    }
    if (byte >= 0xE0 && byte <= 0xEF) {
        m_value = byte & 0x0F;
        m_missing = 2;
        if (byte == 0xE0)
            m_lowest = 0xA0; // below: overlong
        if (byte == 0xED)
            m_highest = 0x9F; // above: surrogates
        return Step::More;
    }
    if (byte >= 0xF0 && byte <= 0xF4) {
        m_value = byte & 0x07;
        m_missing = 3;
        if (byte == 0xF0)
            m_lowest = 0x90; // below: overlong
        if (byte == 0xF4)
            m_highest = 0x8F; // above: beyond U+10FFFF
        return Step::More;
    }
    return Step::Bad;
}

void appendCharacter(std::wstring& text, char32_t character)
{
    if (sizeof(wchar_t) == 2 && character >= 0x10000) {
        text += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
        text += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    } else {
        text += static_cast<wchar_t>(character);
    }
}

std::wstring decodeUtf8(std::string_view bytes)
{
    std::wstring text;
    text.reserve(bytes.size());
    Utf8Decoder decoder;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        Utf8Decoder::Step step = decoder.take(byte);
        if (step == Utf8Decoder::Step::Restart) {
            appendCharacter(text, kReplacementCharacter);
            step = decoder.take(byte);
        }
        if (step == Utf8Decoder::Step::Done)
            appendCharacter(text, decoder.value());
        else if (step == Utf8Decoder::Step::Bad)
            appendCharacter(text, kReplacementCharacter);
    }
    if (decoder.insideSequence())
        appendCharacter(text, kReplacementCharacter);
    return text;
}

std::wstring decodeUtf16(std::string_view bytes, bool bigEndian)
{
    const auto unit = [bytes, bigEndian](std::size_t i) -> char32_t {
        const auto first = static_cast<unsigned char>(bytes[2 * i]);
        const auto second = static_cast<unsigned char>(bytes[2 * i + 1]);
        return bigEndian ? first << 8 | second : second << 8 | first;
    };
    std::wstring text;
    text.reserve(bytes.size() / 2);
    forEachCharacter(unit, bytes.size() / 2,
                     [&text](char32_t character) { appendCharacter(text, character); });
    if (bytes.size() % 2)
        appendCharacter(text, kReplacementCharacter);
    return text;
}

std::string encodeUtf8(std::wstring_view text)
{
    const auto unit = [text](std::size_t i) { return static_cast<char32_t>(text[i]); };
    std::string bytes;
    bytes.reserve(text.size());
    forEachCharacter(unit, text.size(), [&bytes](char32_t character) { appendUtf8(bytes, character); });
    return bytes;
}

} // namespace OVO
