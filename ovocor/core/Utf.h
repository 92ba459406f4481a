/// Not exported. UTF-8 and UTF-16 to wide characters and back, for wide characters of 16 and of 32 bits.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace OVO
{

inline constexpr char32_t kReplacementCharacter = 0xFFFD;

/// Takes UTF-8 byte by byte and recognises exactly the well-formed sequences of the Unicode standard: no
/// overlong forms, no surrogates, nothing above U+10FFFF.
class Utf8Decoder
{
public:
    enum class Step
    {
        More,    ///< the byte continues a sequence
        Done,    ///< the byte completes the character `value()`
        Bad,     ///< the byte can begin nothing
        Restart, ///< the byte cuts a sequence short and must be given again
    };

    Step take(unsigned char byte);
    char32_t value() const { return m_value; }
    bool insideSequence() const { return m_missing > 0; }

private:
    Step begin(unsigned char byte);

    char32_t m_value = 0;
    int m_missing = 0;
    unsigned char m_lowest = 0x80; // range of the next byte
    unsigned char m_highest = 0xBF;
};

/// Appends one character, as a surrogate pair where wide characters have 16 bits.
void appendCharacter(std::wstring& text, char32_t character);

/// Each malformed sequence becomes U+FFFD.
std::wstring decodeUtf8(std::string_view bytes);

/// Two bytes a unit. Lone surrogates and a byte left over at the end become U+FFFD.
std::wstring decodeUtf16(std::string_view bytes, bool bigEndian);

/// Surrogate pairs become one character whatever the size of a wide character; what is no character becomes
/// U+FFFD.
std::string encodeUtf8(std::wstring_view text);

} // namespace OVO
