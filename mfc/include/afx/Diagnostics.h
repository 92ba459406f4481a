// Assertions and traces.
#pragma once

#include <afx/FormatArgument.h>
#include <afx/Platform.h>

/// Called for a failed ASSERT: says where on the debugger's channel and the error output, and ends the
/// program.
OVOMFC_API void AFXAPI AfxAssertFailedLine(const char* file, int line);

namespace afxdetail
{
OVOMFC_API void AFX_CDECL traceList(LPCWSTR format, ...);
OVOMFC_API void AFX_CDECL traceList(LPCSTR format, ...);
} // namespace afxdetail

/// Writes to the debugger's channel, in the manner of wprintf (%s is wide). An argument for %s may be a
/// CString.
template <afxdetail::FormatArgument... Arguments>
void AfxTrace(LPCWSTR format, Arguments... arguments)
{
    afxdetail::traceList(format, afxdetail::formatArgument(arguments)...);
}
/// With a narrow format: %s is narrow, and a CString goes with %S.
template <afxdetail::FormatArgument... Arguments>
void AfxTrace(LPCSTR format, Arguments... arguments)
{
    afxdetail::traceList(format, afxdetail::formatArgument(arguments)...);
}

/// Whether a block of memory can be read (and written, if asked).
OVOMFC_API BOOL AFXAPI AfxIsValidAddress(const void* address, UINT_PTR bytes, BOOL readWrite = TRUE);
/// Whether a text can be read: `length` characters, or with -1 up to its terminating zero.
OVOMFC_API BOOL AFXAPI AfxIsValidString(LPCTSTR text, int length = -1);

/// Ends the program at once.
[[noreturn]] OVOMFC_API void AFXAPI AfxAbort();

class CObject;
OVOMFC_API void AFXAPI AfxAssertValidObject(const CObject* object, const char* file, int line);

#if defined(OVO_ASSERTIONS) || !defined(NDEBUG)
#define ASSERT(condition) ((condition) ? (void)0 : AfxAssertFailedLine(__FILE__, __LINE__))
#define VERIFY(condition) ASSERT(condition)
#define ASSERT_VALID(object) AfxAssertValidObject(object, __FILE__, __LINE__)
#define TRACE(...) AfxTrace(__VA_ARGS__)
#define DEBUG_ONLY(expression) (expression)
#else
#define ASSERT(condition) ((void)0)
#define VERIFY(condition) ((void)(condition))
#define ASSERT_VALID(object) ((void)0)
#define TRACE(...) ((void)0)
#define DEBUG_ONLY(expression) ((void)0)
#endif
#define TRACE0(text) TRACE(_T("%s"), _T(text))
#define TRACE1(format, a) TRACE(_T(format), a)
#define TRACE2(format, a, b) TRACE(_T(format), a, b)
#define TRACE3(format, a, b, c) TRACE(_T(format), a, b, c)
#define ASSERT_KINDOF(className, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(className)))
#define ENSURE(condition)                                                                                    \
    do {                                                                                                     \
        if (!(condition))                                                                                    \
            AfxThrowInvalidArgException();                                                                   \
    } while (0)
#define DEBUG_NEW new
#define UNUSED(x)
#define UNUSED_ALWAYS(x) ((void)(x))
#ifndef THIS_FILE
#define THIS_FILE __FILE__
#endif
