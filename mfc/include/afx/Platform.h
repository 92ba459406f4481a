// The platform's headers as MFC wants them: Unicode, without the macros that would rename members.
#pragma once

#ifndef UNICODE
#define UNICODE
#endif
#ifndef _UNICODE
#define _UNICODE
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
