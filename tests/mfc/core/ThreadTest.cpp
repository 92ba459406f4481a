// Threads: workers, threads with windows, their end and what they leave.
#include <afxmt.h>
#include <afxole.h>
#include <afxpriv.h>

#include <gtest/gtest.h>
#include <testkit/GuiThread.h>
#include <testkit/ImportPatch.h>
#include <testkit/MemoryCounter.h>
#include <testkit/TestApp.h>

#include <atomic>
#include <functional>
#include <stdexcept>

using namespace ovo::testkit;

namespace
{

constexpr DWORD kLimit = 30000; // milliseconds
constexpr UINT kThreadMessage = WM_APP + 1;
constexpr UINT kThreadQuit = WM_APP + 2;
const UINT kRegistered = ::RegisterWindowMessageW(L"ovoui thread test");

using Work = std::function<UINT()>;

UINT AFX_CDECL doWork(LPVOID work)
{
    return (*static_cast<Work*>(work))();
}

/// A worker whose object is kept, so that its end can be waited for.
class Worker
{
public:
    explicit Worker(Work work, int priority = THREAD_PRIORITY_NORMAL)
        : m_work(std::move(work))
        , m_thread(AfxBeginThread(&doWork, &m_work, priority, 0, CREATE_SUSPENDED))
    {
        m_thread->m_bAutoDelete = FALSE;
    }
    ~Worker() { delete m_thread; }

    CWinThread* operator->() const { return m_thread; }
    CWinThread* get() const { return m_thread; }

    void resume() { m_thread->ResumeThread(); }

    /// Lets it go on to its end; gives the exit code.
    DWORD finish()
    {
        resume();
        EXPECT_EQ(::WaitForSingleObject(*m_thread, kLimit), WAIT_OBJECT_0);
        DWORD code = 0;
        ::GetExitCodeThread(m_thread->m_hThread, &code);
        return code;
    }

private:
    Work m_work;
    CWinThread* m_thread;
};

/// A frame in a thread of its own. What happens is counted, since the object goes with its thread.
class UiThread : public CWinThread
{
    DECLARE_DYNCREATE(UiThread)

public:
    static inline std::atomic<int> s_alive = 0;
    static inline std::atomic<int> s_messages = 0;
    static inline std::atomic<int> s_registered = 0;
    static inline std::atomic<int> s_idle = 0;
    static inline std::atomic<int> s_translated = 0;
    static inline std::atomic<int> s_exits = 0;
    static inline std::atomic<int> s_reported = 0;
    static inline std::atomic<HWND> s_wnd = nullptr;
    static inline bool s_starts = true;
    static inline bool s_hasWindow = true;
    static inline std::function<CFrameWnd*()> s_makeFrame;

    UiThread() { ++s_alive; }
    ~UiThread() override { --s_alive; }

    static void reset()
    {
        for (auto* count : {&s_messages, &s_registered, &s_idle, &s_translated, &s_exits, &s_reported})
            *count = 0;
        s_wnd = nullptr;
        s_starts = true;
        s_hasWindow = true;
        s_makeFrame = [] { return new CFrameWnd; };
    }

    BOOL InitInstance() override
    {
        EXPECT_EQ(AfxGetThread(), this);
        if (s_hasWindow) {
            CFrameWnd* const frame = s_makeFrame();
            EXPECT_TRUE(frame->Create(nullptr, L"Of a thread"));
            m_pMainWnd = frame;
            EXPECT_EQ(AfxGetMainWnd(), frame);
            s_wnd = frame->m_hWnd;
        }
        return s_starts;
    }
    int ExitInstance() override
    {
        ++s_exits;
        return CWinThread::ExitInstance();
    }
    BOOL OnIdle(LONG count) override
    {
        ++s_idle;
        return CWinThread::OnIdle(count);
    }
    BOOL PreTranslateMessage(MSG* message) override
    {
        s_translated += message->message == kThreadMessage;
        return CWinThread::PreTranslateMessage(message);
    }
    LRESULT ProcessWndProcException(CException*, const MSG*) override
    {
        ++s_reported;
        return 7;
    }

protected:
    afx_msg void OnThreadMessage(WPARAM wParam, LPARAM lParam)
    {
        EXPECT_EQ(AfxGetThread(), this);
        s_messages += static_cast<int>(wParam + lParam);
    }
    afx_msg void OnRegistered(WPARAM, LPARAM) { ++s_registered; }
    afx_msg void OnQuit(WPARAM code, LPARAM) { AfxPostQuitMessage(static_cast<int>(code)); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(UiThread, CWinThread)

BEGIN_MESSAGE_MAP(UiThread, CWinThread)
    ON_THREAD_MESSAGE(kThreadMessage, &UiThread::OnThreadMessage)
    ON_THREAD_MESSAGE(kThreadQuit, &UiThread::OnQuit)
    ON_REGISTERED_THREAD_MESSAGE(kRegistered, &UiThread::OnRegistered)
END_MESSAGE_MAP()

class ThreadTest : public ::testing::Test
{
protected:
    ThreadTest() { UiThread::reset(); }

    /// A thread that has begun, and a handle that outlives its object.
    HANDLE begin(CRuntimeClass* threadClass = RUNTIME_CLASS(UiThread))
    {
        thread = AfxBeginThread(threadClass);
        return own(thread->m_hThread);
    }

    static HANDLE own(HANDLE given)
    {
        HANDLE handle = nullptr;
        ::DuplicateHandle(::GetCurrentProcess(), given, ::GetCurrentProcess(), &handle, 0, FALSE,
                          DUPLICATE_SAME_ACCESS);
        return handle;
    }

    static DWORD exitCodeOf(HANDLE handle)
    {
        EXPECT_EQ(::WaitForSingleObject(handle, kLimit), WAIT_OBJECT_0);
        DWORD code = 0;
        ::GetExitCodeThread(handle, &code);
        ::CloseHandle(handle);
        return code;
    }

    CWinThread* thread = nullptr;
};

} // namespace

// Workers

TEST_F(ThreadTest, AWorkerGivesTheExitCode)
{
    CWinThread* within = nullptr;
    DWORD id = 0;
    Worker worker([&] {
        within = AfxGetThread();
        id = ::GetCurrentThreadId();
        return 42u;
    });
    EXPECT_EQ(worker.finish(), 42u);
    EXPECT_EQ(within, worker.get());
    EXPECT_EQ(id, worker->m_nThreadID);
    EXPECT_EQ(AfxGetThread(), AfxGetApp()) << "here nothing has changed";
}

TEST_F(ThreadTest, AWorkerStartsSuspendedWithItsPriority)
{
    std::atomic<bool> ran = false;
    Worker worker([&] { return ran = true, 0u; }, THREAD_PRIORITY_BELOW_NORMAL);
    EXPECT_EQ(worker->GetThreadPriority(), THREAD_PRIORITY_BELOW_NORMAL);
    EXPECT_TRUE(worker->SetThreadPriority(THREAD_PRIORITY_LOWEST));
    EXPECT_EQ(::GetThreadPriority(worker->m_hThread), THREAD_PRIORITY_LOWEST);
    EXPECT_EQ(worker->SuspendThread(), 1u) << "once is enough until it is resumed as often";
    EXPECT_EQ(worker->ResumeThread(), 2u);
    EXPECT_FALSE(ran);
    worker.finish();
    EXPECT_TRUE(ran);
}

TEST_F(ThreadTest, AWorkerKnowsTheMainWindowOfTheThreadThatStartsIt)
{
    CFrameWnd frame;
    AfxGetApp()->m_pMainWnd = &frame;
    CWnd* main = nullptr;
    Worker worker([&] { return main = AfxGetMainWnd(), 0u; });
    AfxGetApp()->m_pMainWnd = nullptr;
    worker.finish();
    EXPECT_EQ(main, &frame);
}

TEST_F(ThreadTest, EndsWhereItSaysSo)
{
    Worker worker([]() -> UINT { AfxEndThread(5); });
    EXPECT_EQ(worker.finish(), 5u);
}

TEST_F(ThreadTest, AWorkerHasNoQueueUnlessItMakesOne)
{
    CEvent go(FALSE, TRUE);
    Worker worker([&] { return go.Lock(), 0u; });
    worker.resume();
    EXPECT_FALSE(worker->PostThreadMessage(WM_APP, 0, 0));
    go.SetEvent();
    worker.finish();
}

TEST_F(ThreadTest, AWorkerWritesToTheWindowsOfAnotherThreadByMessages)
{
    struct Counter : CFrameWnd
    {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_APP)
                return CFrameWnd::WindowProc(message, wParam, lParam);
            sum += static_cast<int>(wParam);
            return 0;
        }
        int sum = 0;
    };
    auto* frame = new Counter;
    ASSERT_TRUE(frame->Create(nullptr, L"Sum"));
    Worker worker([wnd = frame->m_hWnd] {
        for (WPARAM i = 1; i <= 100; ++i)
            ::PostMessageW(wnd, WM_APP, i, 0);
        return 0u;
    });
    worker.resume();
    EXPECT_TRUE(GuiThread::runUntil([=] { return frame->sum == 5050; }));
    worker.finish();
    frame->DestroyWindow();
}

// Threads with windows

TEST_F(ThreadTest, ClosingItsMainWindowEndsIt)
{
    const HANDLE handle = begin();
    EXPECT_EQ(UiThread::s_alive, 1);
    ASSERT_TRUE(GuiThread::runUntil([] { return UiThread::s_wnd.load() != nullptr; }));
    ::PostMessageW(UiThread::s_wnd, WM_CLOSE, 0, 0);
    EXPECT_EQ(exitCodeOf(handle), 0u);
    EXPECT_EQ(UiThread::s_exits, 1);
    EXPECT_EQ(UiThread::s_alive, 0) << "the object goes with the thread";
    EXPECT_FALSE(::IsWindow(UiThread::s_wnd));
    EXPECT_FALSE(GuiThread::tookQuit()) << "the program goes on";
}

TEST_F(ThreadTest, TakesMessagesFromTheMomentItIsStarted)
{
    UiThread::s_hasWindow = false;
    for (int i = 0; i < 20; ++i) {
        const HANDLE handle = begin();
        EXPECT_TRUE(thread->PostThreadMessage(kThreadMessage, 3, 4));
        EXPECT_TRUE(thread->PostThreadMessage(kRegistered, 0, 0));
        EXPECT_TRUE(thread->PostThreadMessage(kThreadQuit, 9, 0));
        EXPECT_EQ(exitCodeOf(handle), 9u);
    }
    EXPECT_EQ(UiThread::s_messages, 20 * 7);
    EXPECT_EQ(UiThread::s_registered, 20);
    EXPECT_EQ(UiThread::s_translated, 20);
}

TEST_F(ThreadTest, HasIdleTimeOfItsOwn)
{
    UiThread::s_hasWindow = false;
    const HANDLE handle = begin();
    CWinThread* const started = thread;
    EXPECT_TRUE(GuiThread::runUntil([] { return UiThread::s_idle >= 2; }));
    started->PostThreadMessage(kThreadQuit, 0, 0);
    exitCodeOf(handle);
}

TEST_F(ThreadTest, EndsAtOnceWhenItsBeginningFails)
{
    UiThread::s_starts = false;
    thread = AfxBeginThread(RUNTIME_CLASS(UiThread), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    const HANDLE handle = own(thread->m_hThread);
    ::ResumeThread(handle);
    EXPECT_EQ(exitCodeOf(handle), 0u);
    EXPECT_EQ(UiThread::s_exits, 1);
    EXPECT_EQ(UiThread::s_alive, 0);
    EXPECT_FALSE(::IsWindow(UiThread::s_wnd)) << "its window was destroyed";
}

TEST_F(ThreadTest, ReportsExceptionsOfItsOwnHandlers)
{
    static std::atomic<bool> thrown;
    thrown = false;
    class Thrower : public CFrameWnd
    {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP) {
                thrown = true;
                AfxThrowMemoryException();
            }
            return CFrameWnd::WindowProc(message, wParam, lParam);
        }
    };
    UiThread::s_makeFrame = [] { return new Thrower; };
    const HANDLE handle = begin();
    ASSERT_TRUE(GuiThread::runUntil([] { return UiThread::s_wnd.load() != nullptr; }));
    EXPECT_EQ(::SendMessageW(UiThread::s_wnd, WM_APP, 0, 0), 7) << "what its ProcessWndProcException gives";
    EXPECT_TRUE(thrown);
    EXPECT_EQ(UiThread::s_reported, 1);
    ::PostMessageW(UiThread::s_wnd, WM_CLOSE, 0, 0);
    exitCodeOf(handle);
}

TEST_F(ThreadTest, OnlyClassesThatCanBeMadeByNameCanBeStarted)
{
    EXPECT_EQ(AfxBeginThread(RUNTIME_CLASS(CWinThread)), nullptr) << "not by name";
    EXPECT_EQ(AfxBeginThread(RUNTIME_CLASS(CFrameWnd)), nullptr) << "no thread";
}

// An object that its owner starts

TEST_F(ThreadTest, AnObjectRunsOneThreadAfterAnother)
{
    UiThread::s_hasWindow = false;
    UiThread reused;
    reused.m_bAutoDelete = FALSE;
    for (const DWORD code : {3u, 4u}) {
        ASSERT_TRUE(reused.CreateThread());
        const HANDLE handle = own(reused.m_hThread);
        EXPECT_FALSE(reused.CreateThread()) << "one at a time";
        EXPECT_TRUE(reused.PostThreadMessage(kThreadQuit, code, 0));
        EXPECT_EQ(exitCodeOf(handle), code);
    }
    EXPECT_EQ(UiThread::s_exits, 2);
    EXPECT_EQ(UiThread::s_alive, 1) << "the object stays with its owner";
}

TEST_F(ThreadTest, AnObjectGoesWithTheThreadThatItsOwnerStarted)
{
    UiThread::s_hasWindow = false;
    auto* object = new UiThread;
    ASSERT_TRUE(object->CreateThread(CREATE_SUSPENDED));
    const HANDLE handle = own(object->m_hThread);
    EXPECT_EQ(object->SuspendThread(), 1u) << "it has not begun";
    object->ResumeThread();
    EXPECT_EQ(UiThread::s_exits, 0);
    ::ResumeThread(handle);
    ASSERT_TRUE(GuiThread::runUntil([] { return UiThread::s_idle > 0; }));
    EXPECT_TRUE(object->PostThreadMessage(kThreadQuit, 0, 0));
    exitCodeOf(handle);
    EXPECT_EQ(UiThread::s_alive, 0);
}

TEST_F(ThreadTest, AThreadThatIsNotMadeLeavesTheObjectToItsOwner)
{
    UiThread object;
    using Begin =
        std::uintptr_t (*)(void*, unsigned, unsigned(__stdcall*)(void*), void*, unsigned, unsigned*);
    const Begin refuse = [](auto...) -> std::uintptr_t { return 0; };
    const ImportPatch refusing(L"ovomfc.dll", "_beginthreadex", reinterpret_cast<void*>(refuse));
    EXPECT_FALSE(object.CreateThread());
    EXPECT_EQ(object.m_hThread, nullptr);
    EXPECT_EQ(AfxBeginThread(RUNTIME_CLASS(UiThread)), nullptr);
    EXPECT_EQ(UiThread::s_alive, 1) << "what was made for the thread goes";
}

// What belongs to a thread

TEST_F(ThreadTest, EachHasObjectsOfItsOwnForAWindow)
{
    CFrameWnd frame;
    ASSERT_TRUE(frame.CreateEx(0, AfxRegisterWndClass(0), L"Here", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
    CWnd* there = nullptr;
    CWnd* permanent = &frame;
    CWnd* again = nullptr;
    Worker worker([&, wnd = frame.m_hWnd] {
        there = CWnd::FromHandle(wnd);
        permanent = CWnd::FromHandlePermanent(wnd);
        again = CWnd::FromHandle(wnd);
        return 0u;
    });
    worker.finish();
    EXPECT_NE(there, static_cast<CWnd*>(&frame));
    EXPECT_EQ(permanent, nullptr);
    EXPECT_EQ(again, there);
    EXPECT_EQ(CWnd::FromHandle(frame.m_hWnd), &frame);
    ::DestroyWindow(frame.Detach());
}

TEST_F(ThreadTest, LeavesNothingBehind)
{
    const auto once = [] {
        Worker worker([] {
            CWnd::FromHandle(::GetDesktopWindow());
            CDC::FromHandle(::GetDC(nullptr));
            CMenu menu;
            menu.CreatePopupMenu();
            CBrush brush(RGB(1, 2, 3));
            return 0u;
        });
        worker.finish();
    };
    for (int i = 0; i < 20; ++i)
        once();
    const MemoryCounter memory;
    for (int i = 0; i < 500; ++i)
        once();
    EXPECT_LT(memory.grown(), 500 * 1024) << "1 KiB for each thread; its maps alone take several";
}

TEST_F(ThreadTest, OleIsStartedForEachThreadThatAsks)
{
    ASSERT_TRUE(AfxOleInit());
    bool started = false;
    Worker worker([&] {
        started = AfxOleInit() && ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED) == S_FALSE;
        ::CoUninitialize();
        return 0u;
    });
    worker.finish();
    EXPECT_TRUE(started);
}

TEST_F(ThreadTest, TextsAreSharedBetweenThreads)
{
    const CString text(L"a text that many objects share");
    std::vector<std::unique_ptr<Worker>> workers;
    for (int i = 0; i < 4; ++i)
        workers.push_back(std::make_unique<Worker>([&] {
            for (int turn = 0; turn < 50000; ++turn) {
                CString copy(text);
                copy += L"!";
            }
            return 0u;
        }));
    for (const auto& worker : workers)
        worker->resume();
    for (const auto& worker : workers)
        worker->finish();
    EXPECT_EQ(text, L"a text that many objects share");
    const CString another(text);
    EXPECT_EQ(another.GetString(), text.GetString()) << "still shared: the count is right";
}

TEST_F(ThreadTest, WindowClassesAreRegisteredInAnyThread)
{
    std::vector<std::unique_ptr<Worker>> workers;
    std::atomic<int> found = 0;
    for (int i = 0; i < 4; ++i)
        workers.push_back(std::make_unique<Worker>([&found] {
            for (UINT style = 0; style < 16; ++style) {
                WNDCLASSW known{};
                const LPCTSTR name = AfxRegisterWndClass(style << 12 & (CS_SAVEBITS | CS_OWNDC | CS_NOCLOSE));
                found += ::GetClassInfoW(AfxGetInstanceHandle(), name, &known) != 0;
            }
            return 0u;
        }));
    for (const auto& worker : workers)
        worker->resume();
    for (const auto& worker : workers)
        worker->finish();
    EXPECT_EQ(found, 64);
}
