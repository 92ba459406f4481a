// Starting and ending threads.
#include <afxwin.h>
#include <afxole.h>

#include <detail/threadend.h>
#include <detail/threadstate.h>

#include <process.h>

using afxdetail::threadState;

namespace
{

/// What a new thread is given.
struct ThreadStart
{
    ThreadStart(CWinThread* object, AFX_THREADPROC work, LPVOID given)
        : thread(object)
        , procedure(work)
        , parameter(given)
        , ready(::CreateEventW(nullptr, TRUE, FALSE, nullptr))
    {
    }
    ~ThreadStart() { ::CloseHandle(ready); }
    ThreadStart(const ThreadStart&) = delete;
    ThreadStart& operator=(const ThreadStart&) = delete;

    CWinThread* const thread;
    const AFX_THREADPROC procedure; ///< null for a thread with windows
    const LPVOID parameter;
    const HANDLE ready; ///< set when messages can be posted
};

thread_local bool t_started = false; ///< the running thread, by AfxBeginThread

UINT runWithWindows(CWinThread& thread)
{
    if (thread.InitInstance())
        return static_cast<UINT>(thread.Run());
    if (thread.m_pMainWnd)
        thread.m_pMainWnd->DestroyWindow();
    return static_cast<UINT>(thread.ExitInstance());
}

UINT run(const ThreadStart& start)
{
    t_started = true;
    threadState().currentThread = start.thread;
    if (start.procedure)
        return start.procedure(start.parameter);
    MSG message;
    ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE); // makes the queue
    ::SetEvent(start.ready);
    return runWithWindows(*start.thread);
}

/// The new thread. What leaves its function ends the program, since this is noexcept.
unsigned __stdcall threadMain(void* given) noexcept
{
    std::unique_ptr<std::shared_ptr<ThreadStart>> start(static_cast<std::shared_ptr<ThreadStart>*>(given));
    const UINT exitCode = run(**start);
    start.reset(); // AfxEndThread destroys nothing on the stack
    AfxEndThread(exitCode);
}

/// Whether a thread runs the object already, or is about to.
bool isBusy(const CWinThread& thread)
{
    return thread.m_hThread && ::WaitForSingleObject(thread.m_hThread, 0) == WAIT_TIMEOUT;
}

bool startThread(CWinThread& thread, AFX_THREADPROC procedure, LPVOID parameter, int priority, UINT stackSize,
                 DWORD flags, LPSECURITY_ATTRIBUTES security)
{
    const auto start = std::make_shared<ThreadStart>(&thread, procedure, parameter);
    auto given = std::make_unique<std::shared_ptr<ThreadStart>>(start);
    unsigned id = 0;
    // Suspended, so that it finds the object complete.
    const auto handle = reinterpret_cast<HANDLE>(
        ::_beginthreadex(security, stackSize, &threadMain, given.get(), CREATE_SUSPENDED, &id));
    if (!handle)
        return false;
    given.release();
    if (thread.m_hThread)
        ::CloseHandle(thread.m_hThread); // of a thread that has ended
    thread.m_hThread = handle;
    thread.m_nThreadID = id;
    const CWinThread* const parent = AfxGetThread();
    if (procedure && parent) {
        thread.m_pMainWnd = parent->m_pMainWnd;
        thread.m_pActiveWnd = parent->m_pActiveWnd;
    }
    if (priority != THREAD_PRIORITY_NORMAL)
        ::SetThreadPriority(handle, priority);
    if (flags & CREATE_SUSPENDED)
        return true;
    ::ResumeThread(handle); // the object may be gone from now on
    if (!procedure)
        ::WaitForSingleObject(start->ready, INFINITE);
    return true;
}

/// The object belongs to its thread once that has been started.
CWinThread* launch(std::unique_ptr<CWinThread> thread, AFX_THREADPROC procedure, LPVOID parameter,
                   int priority, UINT stackSize, DWORD flags, LPSECURITY_ATTRIBUTES security)
{
    CWinThread* const object = thread.release();
    if (startThread(*object, procedure, parameter, priority, stackSize, flags, security))
        return object;
    delete object;
    return nullptr;
}

} // namespace

CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC procedure, LPVOID parameter, int priority, UINT stackSize,
                                  DWORD flags, LPSECURITY_ATTRIBUTES security)
{
    ASSERT(procedure);
    return launch(std::make_unique<CWinThread>(), procedure, parameter, priority, stackSize, flags, security);
}

CWinThread* AFXAPI AfxBeginThread(CRuntimeClass* threadClass, int priority, UINT stackSize, DWORD flags,
                                  LPSECURITY_ATTRIBUTES security)
{
    std::unique_ptr<CObject> object(threadClass->CreateObject());
    auto* const thread = dynamic_cast<CWinThread*>(object.get());
    if (!thread)
        return nullptr; // not declared with DECLARE_DYNCREATE, or no thread at all
    object.release();
    return launch(std::unique_ptr<CWinThread>(thread), nullptr, nullptr, priority, stackSize, flags,
                  security);
}

BOOL CWinThread::CreateThread(DWORD flags, UINT stackSize, LPSECURITY_ATTRIBUTES security)
{
    return !isBusy(*this) &&
           startThread(*this, nullptr, nullptr, THREAD_PRIORITY_NORMAL, stackSize, flags, security);
}

void AFXAPI AfxEndThread(UINT exitCode, BOOL deleteObject)
{
    CWinThread* const thread = threadState().currentThread;
    if (t_started && thread && deleteObject && thread->m_bAutoDelete)
        delete thread;
    AfxOleTerm();
    delete std::exchange(threadState().toolTip, nullptr);
    afxdetail::releaseThreadMaps();
    afxdetail::releaseThreadState();
    ::_endthreadex(exitCode);
    std::terminate(); // not reached
}
