#include "Watchdog.h"
#include "CallStack.h"
#include "Snapshot.h"

#include <windows.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

namespace ovo::testkit
{

namespace
{

constexpr UINT kHung = 3;
std::atomic<Watchdog*> g_watchdog{nullptr};
constexpr DWORD kSnapshotLimit = 15000; // milliseconds
HANDLE g_watched = nullptr;             ///< the thread that runs the tests

std::chrono::seconds limitFromEnvironment()
{
    const char* text = std::getenv("OVO_TEST_LIMIT");
    const int seconds = text ? std::atoi(text) : 0;
    return std::chrono::seconds{seconds > 0 ? seconds : 120};
}

DWORD WINAPI snapshotThread(void* reason)
{
    takeSnapshot(*static_cast<const std::string*>(reason));
    return 0;
}

DWORD WINAPI callsThread(void*)
{
    const std::string calls = describeCalls(g_watched);
    std::fprintf(stderr, "the test is in these calls:\n%s", calls.c_str());
    std::fflush(stderr);
    return 0;
}

DWORD WINAPI storyThread(void* story)
{
    const std::string text = (*static_cast<const std::function<std::string()>*>(story))();
    std::fprintf(stderr, "%s\n", text.c_str());
    std::fflush(stderr);
    return 0;
}

/// In a thread of its own, since what keeps the test from going on may keep it as well.
void runApart(LPTHREAD_START_ROUTINE work, void* argument)
{
    const HANDLE thread = ::CreateThread(nullptr, 0, work, argument, 0, nullptr);
    ::WaitForSingleObject(thread, kSnapshotLimit);
}

/// A handle of the calling thread that other threads can use.
HANDLE ownThread()
{
    HANDLE thread = nullptr;
    const HANDLE process = ::GetCurrentProcess();
    ::DuplicateHandle(process, ::GetCurrentThread(), process, &thread, 0, FALSE, DUPLICATE_SAME_ACCESS);
    return thread;
}

} // namespace

Watchdog::Watchdog()
    : m_limit(limitFromEnvironment())
    , m_thread([this] { watch(); })
{
    g_watchdog = this;
    g_watched = ownThread();
}

Watchdog::~Watchdog()
{
    g_watchdog = nullptr;
    {
        const std::lock_guard guard{m_lock};
        m_leaving = true;
    }
    m_changed.notify_one();
    m_thread.join();
    ::CloseHandle(g_watched);
}

void Watchdog::begin()
{
    {
        const std::lock_guard guard{m_lock};
        m_deadline = Clock::now() + m_limit;
    }
    m_changed.notify_one();
}

void Watchdog::end()
{
    const std::lock_guard guard{m_lock};
    m_deadline = Clock::time_point::max();
    m_story = nullptr;
}

void Watchdog::tellWhenHung(std::function<std::string()> story)
{
    Watchdog* const watchdog = g_watchdog;
    if (!watchdog)
        return;
    const std::lock_guard guard{watchdog->m_lock};
    watchdog->m_story = std::move(story);
}

void Watchdog::progress()
{
    Watchdog* const watchdog = g_watchdog;
    if (!watchdog)
        return;
    const std::lock_guard guard{watchdog->m_lock};
    if (watchdog->m_deadline != Clock::time_point::max())
        watchdog->m_deadline = Clock::now() + watchdog->m_limit;
}

void Watchdog::watch()
{
    std::unique_lock guard{m_lock};
    while (!m_leaving) {
        if (m_deadline == Clock::time_point::max())
            m_changed.wait(guard);
        else if (Clock::now() >= m_deadline)
            bite();
        else
            m_changed.wait_until(guard, m_deadline);
    }
}

void Watchdog::bite()
{
    static const std::string reason = "watchdog: the test has not ended within " +
                                      std::to_string(m_limit.count()) + " s; the program is ended";
    runApart(snapshotThread, const_cast<std::string*>(&reason));
    runApart(callsThread, nullptr);
    if (m_story)
        runApart(storyThread, &m_story);
    ::TerminateProcess(::GetCurrentProcess(), kHung);
    std::abort();
}

} // namespace ovo::testkit
