#include "numbertext.h"

namespace afxdetail
{

std::string asciiOf(std::wstring_view text)
{
    constexpr std::wstring_view kBlanks = L" \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::wstring_view::npos)
        return {};
    const std::size_t last = text.find_last_not_of(kBlanks);
    std::string ascii;
    for (const wchar_t character : text.substr(first, last - first + 1))
        ascii += character > 0 && character < 0x80 ? static_cast<char>(character) : '?';
    return ascii;
}

bool isTiny(std::string_view number)
{
    const std::size_t exponent = number.find_first_of("eE");
    if (exponent != std::string_view::npos)
        return number.substr(exponent + 1).starts_with('-');
    return number.find_first_of("123456789") > number.find('.');
}

} // namespace afxdetail
