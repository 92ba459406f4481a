#include <afx.h>

#include <cstdio>
#include <cstdlib>

void AFXAPI AfxAssertFailedLine(const char* file, int line)
{
    char text[512];
    std::snprintf(text, sizeof text, "%s(%d): assertion failed\n", file, line);
    ::OutputDebugStringA(text);
    std::fputs(text, stderr);
    std::fflush(stderr);
    if (::IsDebuggerPresent())
        ::DebugBreak();
    std::abort();
}

void AFX_CDECL AfxTrace(LPCTSTR format, ...)
{
    CString text;
    va_list arguments;
    va_start(arguments, format);
    text.FormatV(format, arguments);
    va_end(arguments);
    ::OutputDebugStringW(text);
}

BOOL AFXAPI AfxIsValidAddress(const void* address, UINT_PTR bytes, BOOL readWrite)
{
    const auto* at = static_cast<const BYTE*>(address);
    const BYTE* const end = at + bytes;
    constexpr DWORD kWritable =
        PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    constexpr DWORD kReadable = kWritable | PAGE_READONLY | PAGE_EXECUTE_READ;
    while (at < end || at == address) {
        MEMORY_BASIC_INFORMATION region{};
        if (!at || !::VirtualQuery(at, &region, sizeof region) || region.State != MEM_COMMIT ||
            !(region.Protect & (readWrite ? kWritable : kReadable)) || (region.Protect & PAGE_GUARD))
            return FALSE;
        at = static_cast<const BYTE*>(region.BaseAddress) + region.RegionSize;
    }
    return TRUE;
}

BOOL AFXAPI AfxIsValidString(LPCTSTR text, int length)
{
    const UINT_PTR characters = length < 0 ? 1 : static_cast<UINT_PTR>(length);
    return AfxIsValidAddress(text, characters * sizeof(TCHAR), FALSE);
}

void AFXAPI AfxAssertValidObject(const CObject* object, const char* file, int line)
{
    if (!object || !AfxIsValidAddress(object, sizeof(CObject)))
        AfxAssertFailedLine(file, line);
    else
        object->AssertValid();
}
