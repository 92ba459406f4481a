#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace ovo::testkit
{

/// Ends the program when a test hangs: takes a snapshot and names the calls that the thread is in which has
/// made the watchdog, then exits with failure. The limit is two minutes for a test, and again for each step
/// of its stories; the environment variable OVO_TEST_LIMIT sets another number of seconds.
class Watchdog
{
public:
    Watchdog();
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    /// Starts counting anew.
    void begin();

    /// Stops counting.
    void end();

    /// Until the test is over, `story` gives what is to be told beside the rest when it hangs, such as what
    /// it has done last. It is asked from another thread, while the test's hangs. An empty one takes it back.
    static void tellWhenHung(std::function<std::string()> story);

    /// The running test is getting on, however slowly: counts anew. Any thread.
    static void progress();

private:
    void watch();
    [[noreturn]] void bite();

    using Clock = std::chrono::steady_clock;

    const std::chrono::seconds m_limit;
    std::mutex m_lock;
    std::condition_variable m_changed;
    std::function<std::string()> m_story; ///< of the running test
    Clock::time_point m_deadline = Clock::time_point::max();
    bool m_leaving = false;
    std::thread m_thread; // last: it uses all of the above
};

} // namespace ovo::testkit
