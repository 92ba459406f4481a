// CString: formatting and string resources.
#include <afx.h>

#include <afxwin.h>

#include <cstdio>
#include <vector>

void CString::FormatV(LPCWSTR format, va_list arguments)
{
    Empty();
    AppendFormatV(format, arguments);
}

void CString::AppendFormatV(LPCWSTR format, va_list arguments)
{
    // The C runtime's own wide functions, in which %s is wide; the compiler's library has other rules.
    va_list again;
    va_copy(again, arguments);
    const int length = ::_vscwprintf(format, arguments);
    if (length > 0) {
        std::vector<wchar_t> text(static_cast<std::size_t>(length) + 1);
        ::_vsnwprintf(text.data(), text.size(), format, again);
        Append(text.data(), length);
    }
    va_end(again);
}

void AFX_CDECL CString::Format(LPCWSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}

void AFX_CDECL CString::Format(UINT formatId, ...)
{
    CString format;
    format.LoadString(formatId);
    va_list arguments;
    va_start(arguments, formatId);
    FormatV(format, arguments);
    va_end(arguments);
}

void AFX_CDECL CString::AppendFormat(LPCWSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    AppendFormatV(format, arguments);
    va_end(arguments);
}

void AFX_CDECL CString::AppendFormat(UINT formatId, ...)
{
    CString format;
    format.LoadString(formatId);
    va_list arguments;
    va_start(arguments, formatId);
    AppendFormatV(format, arguments);
    va_end(arguments);
}

void CString::FormatMessageV(LPCWSTR format, va_list* arguments)
{
    LPWSTR text = nullptr;
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, format, 0, 0,
                                          reinterpret_cast<LPWSTR>(&text), 0, arguments);
    if (length == 0)
        AfxThrowMemoryException();
    SetString(text, static_cast<int>(length));
    ::LocalFree(text);
}

void AFX_CDECL CString::FormatMessage(LPCWSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    FormatMessageV(format, &arguments);
    va_end(arguments);
}

void AFX_CDECL CString::FormatMessage(UINT formatId, ...)
{
    CString format;
    format.LoadString(formatId);
    va_list arguments;
    va_start(arguments, formatId);
    FormatMessageV(format, &arguments);
    va_end(arguments);
}

BOOL CString::LoadString(UINT id)
{
    const LPCWSTR block = MAKEINTRESOURCEW(id / 16 + 1);
    return LoadString(AfxFindResourceHandle(block, RT_STRING), id);
}

BOOL CString::LoadString(HINSTANCE module, UINT id)
{
    return LoadString(module, id, MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL));
}

BOOL CString::LoadString(HINSTANCE module, UINT id, WORD language)
{
    Empty();
    const HRSRC found = ::FindResourceExW(module, RT_STRING, MAKEINTRESOURCEW(id / 16 + 1), language);
    const HGLOBAL block = found ? ::LoadResource(module, found) : nullptr;
    const auto* entry = block ? static_cast<const WORD*>(::LockResource(block)) : nullptr;
    if (!entry)
        return FALSE;
    // A block holds sixteen counted strings in a row; one that is not there has the length 0.
    for (UINT skip = id % 16; skip > 0; --skip)
        entry += 1 + *entry;
    SetString(reinterpret_cast<LPCWSTR>(entry + 1), *entry);
    return !IsEmpty();
}

BOOL AFXAPI AfxExtractSubString(CString& part, LPCTSTR text, int index, TCHAR separator)
{
    part.Empty();
    if (!text)
        return FALSE;
    for (; index > 0; --index) {
        text = std::wcschr(text, separator);
        if (!text)
            return FALSE;
        ++text;
    }
    const LPCTSTR end = std::wcschr(text, separator);
    part.SetString(text, static_cast<int>(end ? end - text : static_cast<std::ptrdiff_t>(std::wcslen(text))));
    return TRUE;
}

void AFXAPI AfxFormatStrings(CString& result, LPCTSTR format, LPCTSTR const* arguments, int count)
{
    CString text;
    for (; *format; ++format) {
        const wchar_t digit = *format == L'%' ? format[1] : 0;
        const int index = digit >= L'1' && digit <= L'9' ? digit - L'1' : -1;
        if (index < 0) {
            text.AppendChar(*format);
            continue;
        }
        if (index < count)
            text.Append(arguments[index]);
        ++format;
    }
    result = text;
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
