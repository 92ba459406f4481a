// CString: formatting.
#include "stringdata.h"

#include <cstdio>
#include <cwchar>

void CString::FormatV(LPCWSTR format, va_list arguments)
{
    CString text; // the arguments may point into this one
    text.AppendFormatV(format, arguments);
    *this = std::move(text);
}

void CString::AppendFormatV(LPCWSTR format, va_list arguments)
{
    ASSERT(format);
    // The C runtime's own wide functions, in which %s is wide; the compiler's library has other rules.
    va_list again;
    va_copy(again, arguments);
    const int length = ::_vscwprintf(format, arguments);
    CString text;
    if (length > 0) {
        ::_vsnwprintf(text.makeRoom(length), static_cast<std::size_t>(length) + 1, format, again);
        text.setLength(length);
    }
    va_end(again);
    append(text.view());
}

void AFX_CDECL CString::formatList(LPCWSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}

void AFX_CDECL CString::appendFormatList(LPCWSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    AppendFormatV(format, arguments);
    va_end(arguments);
}

void CString::FormatMessageV(LPCWSTR format, va_list* arguments)
{
    LPWSTR text = nullptr;
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, format,
                                          0, 0, reinterpret_cast<LPWSTR>(&text), 0, arguments);
    if (length == 0 && ::GetLastError() == ERROR_NOT_ENOUGH_MEMORY)
        AfxThrowMemoryException();
    const std::unique_ptr<void, decltype(&::LocalFree)> owner(text, &::LocalFree);
    SetString(text, static_cast<int>(length));
}

void AFX_CDECL CString::formatMessageList(LPCWSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    FormatMessageV(format, &arguments);
    va_end(arguments);
}

CString CString::loaded(UINT id)
{
    CString text;
    text.LoadString(id);
    return text;
}

void AFXAPI AfxFormatStrings(CString& result, LPCTSTR format, LPCTSTR const* arguments, int count)
{
    CString text;
    for (; *format; ++format) {
        const wchar_t digit = *format == L'%' ? format[1] : 0;
        if (digit < L'1' || digit > L'9') {
            text.AppendChar(*format);
            continue;
        }
        if (const int index = digit - L'1'; index < count)
            text.Append(arguments[index]);
        ++format;
    }
    result = std::move(text);
}

void AFXAPI AfxFormatStrings(CString& result, UINT id, LPCTSTR const* arguments, int count)
{
    CString format;
    format.LoadString(id);
    AfxFormatStrings(result, static_cast<LPCTSTR>(format), arguments, count);
}

void AFXAPI AfxFormatString1(CString& result, UINT id, LPCTSTR first)
{
    AfxFormatStrings(result, id, &first, 1);
}

void AFXAPI AfxFormatString2(CString& result, UINT id, LPCTSTR first, LPCTSTR second)
{
    const LPCTSTR arguments[] = {first, second};
    AfxFormatStrings(result, id, arguments, 2);
}
