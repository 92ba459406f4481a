// Assertions, traces, and whether memory can be read.
#include <afx.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace
{

constexpr DWORD kWritable = PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
constexpr DWORD kReadable = kWritable | PAGE_READONLY | PAGE_EXECUTE_READ;

/// The end of the run of pages around an address that allow this kind of access; null when its page does not.
const BYTE* accessibleEnd(const void* address, DWORD access)
{
    MEMORY_BASIC_INFORMATION region{};
    if (!address || !::VirtualQuery(address, &region, sizeof region) || region.State != MEM_COMMIT ||
        !(region.Protect & access) || (region.Protect & PAGE_GUARD))
        return nullptr;
    return static_cast<const BYTE*>(region.BaseAddress) + region.RegionSize;
}

} // namespace

void AFXAPI AfxAssertFailedLine(const char* file, int line)
{
    char text[512];
    std::snprintf(text, sizeof text, "%s(%d): assertion failed\n", file, line);
    ::OutputDebugStringA(text);
    std::fputs(text, stderr);
    std::fflush(stderr);
    if (::IsDebuggerPresent())
        ::DebugBreak();
    AfxAbort();
}

namespace afxdetail
{

void AFX_CDECL traceList(LPCWSTR format, ...)
{
    CString text;
    va_list arguments;
    va_start(arguments, format);
    text.FormatV(format, arguments);
    va_end(arguments);
    ::OutputDebugStringW(text);
}

void AFX_CDECL traceList(LPCSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    const int length = ::_vscprintf(format, arguments);
    if (length > 0) {
        std::string text(static_cast<std::size_t>(length) + 1, '\0');
        ::_vsnprintf(text.data(), text.size(), format, again);
        ::OutputDebugStringA(text.c_str());
    }
    va_end(again);
    va_end(arguments);
}

} // namespace afxdetail

BOOL AFXAPI AfxIsValidAddress(const void* address, UINT_PTR bytes, BOOL readWrite)
{
    const auto* at = static_cast<const BYTE*>(address);
    const BYTE* const end = at + bytes;
    do {
        at = accessibleEnd(at, readWrite ? kWritable : kReadable);
        if (!at)
            return FALSE;
    } while (at < end);
    return TRUE;
}

BOOL AFXAPI AfxIsValidString(LPCTSTR text, int length)
{
    if (length >= 0)
        return AfxIsValidAddress(text, static_cast<UINT_PTR>(length) * sizeof(TCHAR), FALSE);
    for (LPCTSTR at = text;;) {
        const auto* const end = reinterpret_cast<LPCTSTR>(accessibleEnd(at, kReadable));
        if (!end)
            return FALSE;
        for (; at < end; ++at)
            if (*at == 0)
                return TRUE;
    }
}

void AFXAPI AfxAbort()
{
    std::abort();
}

void AFXAPI AfxAssertValidObject(const CObject* object, const char* file, int line)
{
    if (!object || !AfxIsValidAddress(object, sizeof(CObject)))
        AfxAssertFailedLine(file, line);
    else
        object->AssertValid();
}
