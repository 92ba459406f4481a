// Whatever stands in an edit control: the number that its digits say or the right complaint, and what was
// read can be written and read again.
#include "Check.h"

#include <mfc/src/dlg/core/numbertext.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

using namespace afxdetail;

namespace
{

bool isDigits(const std::string& text)
{
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string withoutSign(const std::string& text)
{
    return text.empty() || (text.front() != '-' && text.front() != '+') ? text : text.substr(1);
}

/// Digits, a point between or beside them, an exponent.
bool isDecimal(std::string text)
{
    const std::size_t exponent = text.find_first_of("eE");
    if (exponent != text.npos) {
        if (!isDigits(withoutSign(text.substr(exponent + 1))))
            return false;
        text.resize(exponent);
    }
    const std::size_t point = text.find('.');
    if (point != text.npos)
        text.erase(point, 1);
    return isDigits(text);
}

template <class Integer>
void readsInteger(const std::wstring& text)
{
    const std::string ascii = asciiOf(text);
    const std::string digits = withoutSign(ascii);
    const ReadNumber<Integer> read = readNumber<Integer>(text);
    if (!isDigits(digits)) {
        demand(read.fault == NumberFault::NotANumber, "an integer is digits alone");
        return;
    }
    __int128 value = 0;
    for (const char digit : digits)
        value = std::min<__int128>(value * 10 + (digit - '0'), __int128{1} << 80);
    if (ascii.front() == '-')
        value = -value;
    const bool fits =
        value >= std::numeric_limits<Integer>::min() && value <= std::numeric_limits<Integer>::max();
    demand(read.fault == (fits ? NumberFault::None : NumberFault::OutOfRange),
           "out of range exactly when it does not fit");
    if (!fits)
        return;
    demand(read.value == static_cast<Integer>(value), "the number that the digits say");
    demand(readNumber<Integer>(writeNumber(read.value)).value == read.value,
           "what was written reads the same");
}

template <class Real>
Real fromLibrary(const std::string& text)
{
    if constexpr (sizeof(Real) == sizeof(float))
        return std::strtof(text.c_str(), nullptr);
    else
        return std::strtod(text.c_str(), nullptr);
}

template <class Real>
void readsReal(const std::wstring& text)
{
    const std::string ascii = asciiOf(text);
    const ReadNumber<Real> read = readNumber<Real>(text);
    if (!isDecimal(withoutSign(ascii))) {
        demand(read.fault == NumberFault::NotANumber, "a number is digits, a point and an exponent");
        return;
    }
    const Real expected = fromLibrary<Real>(ascii);
    demand(read.fault == (std::isinf(expected) ? NumberFault::OutOfRange : NumberFault::None),
           "out of range exactly when it is too large");
    if (read.fault != NumberFault::None)
        return;
    // What is smaller than the type's normal numbers may be read as 0.
    const bool small = std::abs(expected) < std::numeric_limits<Real>::min();
    demand(read.value == expected || (small && read.value == 0), "the number that the text says");
    const std::wstring written = writeNumber(read.value, std::numeric_limits<Real>::max_digits10);
    demand(readNumber<Real>(written).value == read.value, "what was written in full reads the same");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // The last bytes of the range stand for a character beyond ASCII, and for many digits at once.
    std::wstring text;
    for (std::size_t i = 0; i < size; ++i)
        if (data[i] >= 0xF8)
            text.append(20u << (data[i] & 3), L"05"[data[i] >> 2 & 1]);
        else
            text += data[i] < 0x80 ? static_cast<wchar_t>(data[i]) : L'\u0663';
    readsInteger<std::uint8_t>(text);
    readsInteger<int>(text);
    readsInteger<unsigned>(text);
    readsInteger<long long>(text);
    readsInteger<unsigned long long>(text);
    readsReal<float>(text);
    readsReal<double>(text);
    return 0;
}
