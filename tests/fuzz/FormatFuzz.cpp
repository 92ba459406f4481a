// Whatever the flags, widths and precisions: CString::Format and stringPrintf write the same, which is what
// the rules of printf for wide characters say.
#include "Bytes.h"
#include "Check.h"

#include <afx.h>

#include <ovocor/Text.h>

#include <algorithm>
#include <string>

namespace
{

/// One conversion of a format.
struct Conversion
{
    bool minus = false;
    bool plus = false;
    bool space = false;
    bool zero = false;
    bool alternate = false;
    int width = 0;
    int precision = -1; ///< -1: none
    const wchar_t* size = L"";
    wchar_t type = 0;

    std::wstring written() const
    {
        std::wstring text = L"%";
        text += minus ? L"-" : L"";
        text += plus ? L"+" : L"";
        text += space ? L" " : L"";
        text += zero ? L"0" : L"";
        text += alternate ? L"#" : L"";
        if (width)
            text += std::to_wstring(width);
        if (precision >= 0)
            text += L"." + std::to_wstring(precision);
        return text + size + type;
    }
};

Conversion anyConversion(Bytes& bytes, const wchar_t* size, std::wstring_view types)
{
    Conversion conversion;
    const int flags = bytes.next();
    conversion.minus = flags & 1;
    conversion.plus = flags & 2;
    conversion.space = flags & 4;
    conversion.zero = flags & 8;
    conversion.alternate = flags & 16;
    conversion.width = bytes.next() % 3 == 0 ? bytes.between(1, 20) : 0;
    // Not together with the zero flag, which a precision ends on Windows alone; and short, since Wine writes
    // long numbers beyond its memory.
    conversion.precision = bytes.next() % 3 == 0 && !conversion.zero ? bytes.between(0, 12) : -1;
    conversion.size = size;
    conversion.type = types[static_cast<std::size_t>(bytes.next()) % types.size()];
    return conversion;
}

std::wstring padded(const Conversion& conversion, std::wstring text)
{
    const auto width = static_cast<std::size_t>(conversion.width);
    if (text.size() < width)
        text.insert(conversion.minus ? text.size() : 0, width - text.size(), L' ');
    return text;
}

std::wstring digitsOf(unsigned long long value, unsigned base, bool capitals)
{
    std::wstring digits;
    for (; value; value /= base)
        digits.insert(0, 1, (capitals ? L"0123456789ABCDEF" : L"0123456789abcdef")[value % base]);
    return digits;
}

/// The rules of integer conversions: precision is the least number of digits.
std::wstring integer(const Conversion& conversion, unsigned long long magnitude, bool negative)
{
    const bool isSigned = conversion.type == L'd' || conversion.type == L'i';
    const bool isHex = conversion.type == L'x' || conversion.type == L'X';
    const unsigned base = isHex ? 16 : conversion.type == L'o' ? 8 : 10;
    std::wstring digits = digitsOf(magnitude, base, conversion.type == L'X');
    const auto least = static_cast<std::size_t>(conversion.precision < 0 ? 1 : conversion.precision);
    digits.insert(0, std::max(least, digits.size()) - digits.size(), L'0');
    if (conversion.alternate && conversion.type == L'o' && !digits.starts_with(L'0'))
        digits.insert(0, 1, L'0');

    std::wstring sign;
    if (isSigned)
        sign = negative ? L"-" : conversion.plus ? L"+" : conversion.space ? L" " : L"";
    if (isHex && conversion.alternate && magnitude != 0)
        sign = conversion.type == L'X' ? L"0X" : L"0x";
    const std::size_t length = sign.size() + digits.size();
    const auto width = static_cast<std::size_t>(conversion.width);
    if (conversion.zero && !conversion.minus && length < width)
        digits.insert(0, width - length, L'0');
    return padded(conversion, sign + digits);
}

template <class Signed, class Unsigned>
std::wstring number(const Conversion& conversion, Signed value)
{
    const bool isSigned = conversion.type == L'd' || conversion.type == L'i';
    const bool negative = isSigned && value < 0;
    const auto magnitude = static_cast<Unsigned>(value);
    return integer(conversion, negative ? static_cast<Unsigned>(0 - magnitude) : magnitude, negative);
}

std::wstring string(const Conversion& conversion, std::wstring text)
{
    if (conversion.precision >= 0)
        text.resize(std::min(text.size(), static_cast<std::size_t>(conversion.precision)));
    return padded(conversion, text);
}

std::wstring anyText(Bytes& bytes)
{
    std::wstring text;
    for (int length = bytes.between(0, 12); length > 0; --length)
        text += bytes.next() % 5 == 0 ? L'\u20AC' : static_cast<wchar_t>(bytes.between(0x20, 0x7E));
    return text;
}

/// A piece of text as a format has it, and as it comes out.
struct Literal
{
    std::wstring format;
    std::wstring text;
};

Literal anyLiteral(Bytes& bytes)
{
    Literal literal;
    literal.text = anyText(bytes);
    for (const wchar_t character : literal.text)
        literal.format += character == L'%' ? std::wstring(L"%%") : std::wstring(1, character);
    return literal;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Bytes bytes(data, size);
    const int small = bytes.value<int>() >> bytes.next() % 32;
    const long long large = bytes.value<long long>() >> bytes.next() % 64;
    const std::wstring text = anyText(bytes);
    const auto character = static_cast<wchar_t>(bytes.between(0x21, 0x7E));

    // Flags that mean nothing for a conversion are left out: what comes of them is the runtime's own affair.
    Conversion first = anyConversion(bytes, L"", L"diuxXo");
    Conversion second = anyConversion(bytes, L"I64", L"diuxXo");
    Conversion third = anyConversion(bytes, L"", L"s");
    Conversion fourth = anyConversion(bytes, L"", L"c");
    for (Conversion* conversion : {&third, &fourth})
        conversion->plus = conversion->space = conversion->zero = conversion->alternate = false;
    fourth.precision = -1;

    const Literal before = anyLiteral(bytes);
    const Literal between = anyLiteral(bytes);
    const std::wstring format = before.format + first.written() + between.format + second.written() +
                                third.written() + between.format + fourth.written() + before.format;
    const std::wstring expected = before.text + number<int, unsigned>(first, small) + between.text +
                                  number<long long, unsigned long long>(second, large) + string(third, text) +
                                  between.text + padded(fourth, std::wstring(1, character)) + before.text;

    CString formatted;
    formatted.Format(format.c_str(), small, large, text.c_str(), character);
    demand(expected == formatted.GetString(), "CString::Format follows the rules");
    demand(stringPrintf(format.c_str(), small, large, text.c_str(), character) == expected,
           "so does stringPrintf");

    formatted.AppendFormat(format.c_str(), small, large, text.c_str(), character);
    demand(expected + expected == formatted.GetString(), "AppendFormat adds the same");
    return 0;
}
