// CWinThread: a thread with a message loop.
#pragma once

#include <afx/CmdTarget.h>

class CWnd;

class OVOMFC_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr;   ///< closing it ends the thread's loop
    CWnd* m_pActiveWnd = nullptr; ///< of an in-place server
    BOOL m_bAutoDelete = TRUE;
    HANDLE m_hThread = nullptr;
    DWORD m_nThreadID = 0;
    MSG m_msgCur{}; ///< the message that the loop has fetched last

    virtual BOOL InitInstance(); ///< FALSE: the loop is not run.
    virtual int ExitInstance();  ///< Gives the exit code.
    virtual int Run();

    /// Handles one message; FALSE for WM_QUIT.
    virtual BOOL PumpMessage();
    /// TRUE: the message is done with and not dispatched.
    virtual BOOL PreTranslateMessage(MSG* message);
    /// Called with 0, 1, 2 ... while the queue is empty and the answer is TRUE.
    virtual BOOL OnIdle(LONG count);
    /// Whether idle work is due after this message.
    virtual BOOL IsIdleMessage(MSG* message);
    virtual CWnd* GetMainWnd();
    /// What becomes of a CException out of a window procedure: the message's result. Does not delete it.
    virtual LRESULT ProcessWndProcException(CException* exception, const MSG* message);
    /// A message of a menu or a dialog's loop: `code` is MSGF_...
    virtual BOOL ProcessMessageFilter(int code, LPMSG message);

    /// Starts a thread that runs this object, as AfxBeginThread does with one that it makes. FALSE on
    /// failure, and while a thread still runs it. With m_bAutoDelete FALSE the object can be started again
    /// when that has ended.
    BOOL CreateThread(DWORD flags = 0, UINT stackSize = 0, LPSECURITY_ATTRIBUTES security = nullptr);

    operator HANDLE() const { return m_hThread; }
    DWORD SuspendThread(); ///< The suspend count of before, 0xFFFFFFFF on failure.
    DWORD ResumeThread();  ///< Likewise. With m_bAutoDelete the object may be gone when this returns.
    int GetThreadPriority();
    BOOL SetThreadPriority(int priority); ///< THREAD_PRIORITY_...

    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam);

protected:
    BOOL dispatchThreadMessage(const MSG& message);
    DECLARE_MESSAGE_MAP()

private:
    CPoint m_lastMousePoint{-1, -1};
    UINT m_lastMouseMessage = 0;
};

OVOMFC_API CWinThread* AFXAPI AfxGetThread();
/// The main window of the running thread, or NULL.
OVOMFC_API CWnd* AFXAPI AfxGetMainWnd();
OVOMFC_API MSG* AFXAPI AfxGetCurrentMessage();
/// Waits for a message to the running thread and handles it, without idle work; FALSE for WM_QUIT.
OVOMFC_API BOOL AFXAPI AfxPumpMessage();
/// Ends the thread's loop.
OVOMFC_API void AFXAPI AfxPostQuitMessage(int exitCode);
/// Offers a message to the windows that may want it before it is dispatched, as the running thread's
/// PreTranslateMessage does; TRUE when one is done with it.
OVOMFC_API BOOL AFXAPI AfxPreTranslateMessage(MSG* message);
