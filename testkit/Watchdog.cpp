#include "Watchdog.h"
#include "Snapshot.h"

#include <windows.h>

#include <atomic>
#include <cstdlib>
#include <string>

namespace ovo::testkit
{

namespace
{

constexpr UINT kHung = 3;
std::atomic<Watchdog*> g_watchdog{nullptr};
constexpr DWORD kSnapshotLimit = 15000; // milliseconds

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

} // namespace

Watchdog::Watchdog()
    : m_limit(limitFromEnvironment())
    , m_thread([this] { watch(); })
{
    g_watchdog = this;
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
            bite(m_limit);
        else
            m_changed.wait_until(guard, m_deadline);
    }
}

// The snapshot is taken in a further thread, since what keeps the test from going on may keep it as well.
void Watchdog::bite(std::chrono::seconds limit)
{
    static const std::string reason = "watchdog: the test has not ended within " +
                                      std::to_string(limit.count()) + " s; the program is ended";
    const HANDLE thread =
        ::CreateThread(nullptr, 0, snapshotThread, const_cast<std::string*>(&reason), 0, nullptr);
    ::WaitForSingleObject(thread, kSnapshotLimit);
    ::TerminateProcess(::GetCurrentProcess(), kHung);
    std::abort();
}

} // namespace ovo::testkit
