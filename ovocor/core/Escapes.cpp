#include <ovocor/core/Escapes.h>

#include <ovocor/core/Utf.h>

#include <charconv>

namespace OVO
{

std::wstring withoutEscapes(std::wstring_view part)
{
    const std::string bytes = encodeUtf8(part);
    std::string result;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const char* const digits = bytes.data() + i + 1;
        unsigned char code = 0;
        const bool escape = bytes[i] == '%' && bytes.size() - i > 2 &&
                            std::from_chars(digits, digits + 2, code, 16).ptr == digits + 2;
        result += escape ? static_cast<char>(code) : bytes[i];
        i += escape ? 2 : 0;
    }
    return decodeUtf8(result);
}

} // namespace OVO
