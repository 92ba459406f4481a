// The platform's headers as MFC wants them: Unicode, without the macros that would rename members.
#pragma once

// For the whole program: <windows.h> may have been included before this.
#if !defined(UNICODE) || !defined(_UNICODE)
#error "Define UNICODE and _UNICODE when compiling (-DUNICODE -D_UNICODE): there is no narrow build of this MFC"
#endif
#ifndef _AFXDLL
#define _AFXDLL
#endif
#ifndef WINVER
#define WINVER 0x0601
#endif
#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0601
#endif
#ifndef STRICT
#define STRICT
#endif

#include <windows.h>
#include <windowsx.h>
#include <tchar.h>
#include <commctrl.h>
#include <oleauto.h>
#include <shellapi.h>

// Macros that would rename members of the same names.
#undef GetFirstChild
#undef GetNextSibling
#undef SubclassWindow
#undef CopyRgn
#undef GetWindowFont
#undef SetWindowFont
#undef IsMinimized
#undef IsMaximized
#undef IsRestored
#undef SelectFont
#undef SelectBitmap
#undef SelectBrush
#undef SelectPen
#undef DeleteFont
#undef DeleteBitmap
#undef DeleteBrush
#undef DeletePen
#undef GetNextWindow
#undef GetCurrentTime

/// The next (GW_HWNDNEXT) or previous (GW_HWNDPREV) window in the order of the screen.
inline HWND WINAPI GetNextWindow(HWND wnd, UINT command)
{
    return ::GetWindow(wnd, command);
}

#include <detail/exportmacros.h>

// Controls declare a Create of their own beside CWnd's, and so do the classes of programs: MFC's interface is made
// that way.
#pragma GCC diagnostic ignored "-Woverloaded-virtual"

#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#define AFX_DATA
#define AFX_DATADEF
#define AFX_API
#define AFX_CLASS OVOMFC_API
#define afx_msg

#ifndef PASCAL
#define PASCAL __stdcall
#endif
