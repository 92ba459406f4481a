// Messages that the framework's windows send each other.
#ifndef __AFXPRIV_H__
#define __AFXPRIV_H__
#pragma once

#include <afxwin.h>

#define WM_QUERYAFXWNDPROC 0x0360  // answered with 1 by windows of the framework
#define WM_SIZEPARENT 0x0361       // lParam: AFX_SIZEPARENTPARAMS*
#define WM_SETMESSAGESTRING 0x0362 // wParam: string id, or lParam: text
#define WM_IDLEUPDATECMDUI 0x0363  // wParam: disable commands without a handler
#define WM_INITIALUPDATE 0x0364
#define WM_COMMANDHELP 0x0365
#define WM_HELPHITTEST 0x0366
#define WM_EXITHELPMODE 0x0367
#define WM_RECALCPARENT 0x0368
#define WM_SIZECHILD 0x0369
#define WM_KICKIDLE 0x036A // of a modal loop: wParam MSGF_DIALOGBOX, lParam the count; 0 ends the idling
#define WM_QUERYCENTERWND 0x036B
#define WM_DISABLEMODAL 0x036C
#define WM_FLOATSTATUS 0x036D      // to a mini frame: wParam FS_ bits
#define WM_ACTIVATETOPLEVEL 0x036E
#define WM_POPMESSAGESTRING 0x0375

// Help contexts: what is added to a number, by what it is the number of
#define HID_BASE_COMMAND 0x00010000UL  // commands
#define HID_BASE_RESOURCE 0x00020000UL // frames and dialogs
#define HID_BASE_PROMPT 0x00030000UL   // message boxes
#define HID_BASE_NCAREAS 0x00040000UL  // hit tests outside the client area
#define HID_BASE_CONTROL 0x00050000UL  // controls
// Of WM_FLOATSTATUS
#define FS_SHOW 0x01
#define FS_HIDE 0x02
#define FS_ACTIVATE 0x04
#define FS_DEACTIVATE 0x08
#define FS_ENABLE 0x10
#define FS_DISABLE 0x20
#define FS_SYNCACTIVE 0x40

/// Of WM_SIZEPARENT: each control bar takes its part of `rect`.
struct AFX_SIZEPARENTPARAMS
{
    HDWP hDWP; ///< null: only ask
    RECT rect;
    SIZE sizeTotal;
    BOOL bStretch;
};

/// Moves a window, with a DeferWindowPos handle if there is one.
OVOMFC_API void AFXAPI AfxRepositionWindow(AFX_SIZEPARENTPARAMS* layout, HWND wnd, LPCRECT rect);
OVOMFC_API BOOL AFXAPI AfxIsDescendant(HWND ancestor, HWND wnd);
OVOMFC_API HWND AFXAPI AfxGetParentOwner(HWND wnd);

#endif // __AFXPRIV_H__
