// The text helpers that ask the system.
#include <ovocor/Text.h>

#include <ovocor/IntCast.h>
#include <ovocor/OvoError.h>
#include <ovocor/core/Utf.h>

#include <windows.h>

#include <limits>

namespace
{

/// A length for a system call, which takes 32 bits.
template <class Text>
int lengthOf(const Text& text)
{
    if (text.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throwIntCast();
    return static_cast<int>(text.size());
}

int widened(std::string_view text, DWORD flags, std::wstring* result)
{
    return ::MultiByteToWideChar(CP_ACP, flags, text.data(), lengthOf(text),
                                 result ? result->data() : nullptr, result ? lengthOf(*result) : 0);
}

void tell(bool* answer, bool value)
{
    if (answer)
        *answer = value;
}

} // namespace

std::wstring stringPrintf(const wchar_t* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    // va_end does nothing on this platform, so an exception may pass it.
    std::wstring text = vstringPrintf(format, arguments);
    va_end(arguments);
    return text;
}

std::wstring vstringPrintf(const wchar_t* format, std::va_list arguments)
{
    // Measured first: the runtime's function neither tells the length needed nor terminates what it cuts.
    std::va_list again;
    va_copy(again, arguments);
    const int length = ::_vscwprintf(format, again);
    va_end(again);
    if (length < 0)
        throw OvoError(std::wstring(L"Invalid format string: \"") + format + L"\"");

    std::wstring text(static_cast<std::size_t>(length), L'\0');
    ::_vsnwprintf(text.data(), text.size(), format, arguments); // the string has a terminator of its own
    return text;
}

std::wstring getWCS(std::string_view text, bool* lossy)
{
    tell(lossy, false);
    if (text.empty())
        return {};
    std::wstring result;
    int length = widened(text, MB_ERR_INVALID_CHARS, nullptr);
    tell(lossy, length == 0);
    if (length == 0)
        length = widened(text, 0, nullptr);
    result.resize(static_cast<std::size_t>(length));
    widened(text, 0, &result);
    return result;
}

std::string getMBS(std::wstring_view text, bool* lossy)
{
    tell(lossy, false);
    if (text.empty())
        return {};
    if (::GetACP() == CP_UTF8) {
        // The system takes no default character here; only lone surrogates have no place in UTF-8.
        std::string result = OVO::encodeUtf8(text);
        tell(lossy, OVO::decodeUtf8(result) != text);
        return result;
    }
    BOOL defaultUsed = FALSE;
    const int length = ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.data(), lengthOf(text),
                                             nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(length), '\0');
    ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.data(), lengthOf(text), result.data(), length,
                          nullptr, &defaultUsed);
    tell(lossy, defaultUsed != FALSE);
    return result;
}

std::wstring lowercase(std::wstring_view text)
{
    std::wstring result(text);
    // Without linguistic casing the mapping is the same for every locale, and one to one.
    if (!text.empty())
        ::LCMapStringW(LOCALE_USER_DEFAULT, LCMAP_LOWERCASE, text.data(), lengthOf(text), result.data(),
                       lengthOf(result));
    return result;
}

int collateStrings(std::wstring_view a, std::wstring_view b)
{
    // The system takes no empty texts without an address.
    if (a.empty() || b.empty())
        return a.compare(b);
    const int order = ::CompareStringW(LOCALE_USER_DEFAULT, 0, a.data(), lengthOf(a), b.data(), lengthOf(b));
    return order == 0 || order == CSTR_EQUAL ? a.compare(b) : order - CSTR_EQUAL;
}
