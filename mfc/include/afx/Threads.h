// Starting and ending threads.
#pragma once

#include <afx/WinThread.h>

/// What a worker thread does; the result is the thread's exit code.
using AFX_THREADPROC = UINT(AFX_CDECL*)(LPVOID parameter);

/// Starts a worker thread that calls `procedure`. Null on failure.
///
/// The object deletes itself at the thread's end: to keep it, start the thread with CREATE_SUSPENDED, set its
/// m_bAutoDelete to FALSE, and let it run with thread->ResumeThread(). The handle goes with the
/// object.
///
/// Objects that stand for windows, device contexts, GDI objects, menus and image lists belong to the thread
/// that made them: hand handles to another thread, and post messages to its windows. An exception that leaves
/// the procedure ends the program.
OVOMFC_API CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC procedure, LPVOID parameter,
                                             int priority = THREAD_PRIORITY_NORMAL, UINT stackSize = 0,
                                             DWORD flags = 0, LPSECURITY_ATTRIBUTES security = nullptr);

/// Starts a thread with windows: an object of a class derived from CWinThread and declared with
/// DECLARE_DYNCREATE, whose InitInstance, Run and ExitInstance the thread calls. Null when the class is
/// another, and on failure.
///
/// Unless it is suspended the thread can be posted messages when this returns. It ends when the window in its
/// m_pMainWnd is destroyed, by AfxPostQuitMessage, and when InitInstance gives FALSE. A CException out of a
/// message handler is reported by the thread's own ProcessWndProcException.
OVOMFC_API CWinThread* AFXAPI AfxBeginThread(CRuntimeClass* threadClass,
                                             int priority = THREAD_PRIORITY_NORMAL, UINT stackSize = 0,
                                             DWORD flags = 0, LPSECURITY_ATTRIBUTES security = nullptr);

/// Ends the running thread, which AfxBeginThread has started, from within: nothing on its stack is destroyed.
/// The object goes if m_bAutoDelete and `deleteObject` say so.
[[noreturn]] OVOMFC_API void AFXAPI AfxEndThread(UINT exitCode, BOOL deleteObject = TRUE);
