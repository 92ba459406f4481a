// CWinThread: the message loop.
#include <afxwin.h>
#include <afxpriv.h>

#include <detail/handlemap.h>
#include <detail/painted.h>
#include <detail/pending.h>

using afxdetail::callOut;
using afxdetail::loopCallOut;
using afxdetail::threadState;

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

namespace
{

constexpr UINT kSystemTimer = 0x0118; // the caret's blinking

MSG& currentMessage()
{
    thread_local MSG withoutThread{};
    CWinThread* thread = AfxGetThread();
    return thread ? thread->m_msgCur : withoutThread;
}

bool fetch(MSG& message)
{
    return loopCallOut([&] { return ::GetMessageW(&message, nullptr, 0, 0); }) != 0;
}

void dispatch(MSG& message)
{
    ::TranslateMessage(&message);
    callOut([&] { ::DispatchMessageW(&message); });
}

/// Any handler may destroy the window, and its object with it.
void updateCommands(HWND wnd)
{
    if (CWnd* object = CWnd::FromHandlePermanent(wnd))
        callOut([=] { AfxCallWndProc(object, wnd, WM_IDLEUPDATECMDUI, TRUE, 0); });
    if (CWnd* object = CWnd::FromHandlePermanent(wnd))
        object->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
}

BOOL CALLBACK collectVisible(HWND wnd, LPARAM found)
{
    if (::IsWindowVisible(wnd))
        reinterpret_cast<std::vector<HWND>*>(found)->push_back(wnd);
    return TRUE;
}

/// The main window and, beside it, every frame of the thread that can be seen, such as a floating bar's.
void updateAllCommands(CWnd* main)
{
    std::vector<HWND> visible;
    ::EnumThreadWindows(::GetCurrentThreadId(), &collectVisible, reinterpret_cast<LPARAM>(&visible));
    for (const HWND wnd : visible) {
        const CWnd* object = CWnd::FromHandlePermanent(wnd);
        if (object && (object == main || object->IsFrameWnd()))
            updateCommands(wnd);
    }
}

} // namespace

CWinThread::CWinThread()
    : m_nThreadID(::GetCurrentThreadId())
{
}

CWinThread::~CWinThread()
{
    if (m_hThread && m_hThread != ::GetCurrentThread()) // which is no handle to be closed
        ::CloseHandle(m_hThread);
    if (threadState().currentThread == this)
        threadState().currentThread = nullptr;
}

BOOL CWinThread::InitInstance()
{
    return FALSE;
}

int CWinThread::ExitInstance()
{
    return static_cast<int>(m_msgCur.wParam);
}

int CWinThread::Run()
{
    bool idle = true;
    LONG idleCount = 0;
    for (;;) {
        MSG next;
        while (idle && !loopCallOut([&] { return ::PeekMessageW(&next, nullptr, 0, 0, PM_NOREMOVE); }))
            if (!OnIdle(idleCount++))
                idle = false;
        if (!PumpMessage())
            return ExitInstance();
        if (IsIdleMessage(&m_msgCur)) {
            idle = true;
            idleCount = 0;
        }
    }
}

BOOL CWinThread::PumpMessage()
{
    if (!fetch(m_msgCur))
        return FALSE;
    // A message that is handled in here may run a loop of its own, which fetches others.
    MSG message = m_msgCur;
    if (message.message != WM_KICKIDLE && !AfxPreTranslateMessage(&message))
        dispatch(message);
    return TRUE;
}

BOOL CWinThread::PreTranslateMessage(MSG* message)
{
    if (!message->hwnd)
        return dispatchThreadMessage(*message);
    CWnd* const main = AfxGetMainWnd();
    const HWND mainWindow = main ? main->m_hWnd : nullptr;
    for (HWND wnd = message->hwnd; wnd; wnd = ::GetParent(wnd)) {
        CWnd* object = CWnd::FromHandlePermanent(wnd);
        if (object && object->PreTranslateMessage(message))
            return TRUE;
        if (wnd == mainWindow)
            return FALSE;
    }
    // The main window's accelerators hold in windows beside it too. Those asked may have deleted its object.
    CWnd* const stillMain = CWnd::FromHandlePermanent(mainWindow);
    return stillMain && stillMain->PreTranslateMessage(message);
}

BOOL CWinThread::dispatchThreadMessage(const MSG& message)
{
    const AFX_MSGMAP_ENTRY* entry = afxdetail::findWindowMessage(GetMessageMap(), message.message);
    if (!entry)
        return FALSE;
    afxdetail::Call call;
    call.message = message.message;
    call.wParam = message.wParam;
    call.lParam = message.lParam;
    return entry->pfnThunk(this, call);
}

BOOL CWinThread::OnIdle(LONG count)
{
    if (count <= 0) {
        updateAllCommands(m_pMainWnd);
        return TRUE;
    }
    if (threadState().dispatchDepth == 0)
        afxdetail::purgeTemporaryObjects();
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG* message)
{
    if (message->message == WM_MOUSEMOVE || message->message == WM_NCMOUSEMOVE) {
        // Some systems send moves although the mouse rests.
        const CPoint point(message->pt);
        if (point == m_lastMousePoint && message->message == m_lastMouseMessage)
            return FALSE;
        m_lastMousePoint = point;
        m_lastMouseMessage = message->message;
        return TRUE;
    }
    return message->message != WM_PAINT && message->message != kSystemTimer;
}

CWnd* CWinThread::GetMainWnd()
{
    return m_pActiveWnd ? m_pActiveWnd : m_pMainWnd;
}

LRESULT CWinThread::ProcessWndProcException(CException* exception, const MSG* message)
{
    switch (message->message) {
    case WM_CREATE:
        return -1; // the window is not created
    case WM_PAINT:
        afxdetail::markPainted(message->hwnd);
        return 0;
    }
    const bool command = message->message == WM_COMMAND || message->message == WM_SYSCOMMAND;
    if (!dynamic_cast<CUserException*>(exception))
        exception->ReportError(MB_ICONEXCLAMATION | MB_SYSTEMMODAL,
                               command ? AFX_IDP_COMMAND_FAILURE : AFX_IDP_INTERNAL_FAILURE);
    return command ? 1 : 0;
}

BOOL CWinThread::ProcessMessageFilter(int, LPMSG)
{
    return FALSE;
}

DWORD CWinThread::SuspendThread()
{
    return ::SuspendThread(m_hThread);
}

DWORD CWinThread::ResumeThread()
{
    return ::ResumeThread(m_hThread);
}

int CWinThread::GetThreadPriority()
{
    return ::GetThreadPriority(m_hThread);
}

BOOL CWinThread::SetThreadPriority(int priority)
{
    return ::SetThreadPriority(m_hThread, priority);
}

BOOL CWinThread::PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostThreadMessageW(m_nThreadID, message, wParam, lParam);
}

CWinThread* AFXAPI AfxGetThread()
{
    CWinThread* thread = threadState().currentThread;
    return thread ? thread : AfxGetApp();
}

CWnd* AFXAPI AfxGetMainWnd()
{
    CWinThread* thread = AfxGetThread();
    return thread ? thread->GetMainWnd() : nullptr;
}

MSG* AFXAPI AfxGetCurrentMessage()
{
    return &currentMessage();
}

BOOL AFXAPI AfxPreTranslateMessage(MSG* message)
{
    CWinThread* thread = AfxGetThread();
    return thread && thread->PreTranslateMessage(message);
}

BOOL AFXAPI AfxPumpMessage()
{
    if (CWinThread* thread = AfxGetThread())
        return thread->PumpMessage();
    MSG& message = currentMessage();
    if (!fetch(message))
        return FALSE;
    MSG copy = message;
    dispatch(copy);
    return TRUE;
}

void AFXAPI AfxPostQuitMessage(int exitCode)
{
    ::PostQuitMessage(exitCode);
}
