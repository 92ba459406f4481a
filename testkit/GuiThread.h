#pragma once

#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>

namespace ovo::testkit
{

/// A question that the thread with the windows did not answer in time: it is busy or stuck.
class Unanswered : public std::runtime_error
{
public:
    Unanswered()
        : std::runtime_error("the thread that owns the windows does not answer")
    {
    }
};

/// The thread that owns a test's windows. It runs the framework's message loop, and answers questions of
/// other threads between its messages, inside modal loops, menus and drags too.
class GuiThread
{
public:
    /// How long something may take.
    using Limit = std::chrono::milliseconds;

    /// Makes the calling thread the one that is asked, until this object goes.
    GuiThread();
    ~GuiThread();
    GuiThread(const GuiThread&) = delete;
    GuiThread& operator=(const GuiThread&) = delete;

    /// Runs the message loop, with idle processing, until `done` gives true. False when the limit passes
    /// first. A WM_QUIT on the way is taken out of the queue and remembered.
    static bool runUntil(const std::function<bool()>& done, Limit limit = Limit{30000});

    /// Runs the message loop until the queue is empty and idle processing has nothing left to do. Fails the
    /// test when the limit passes first.
    static void settle(Limit limit = Limit{30000});

    /// The same, and until the screen shows what came of it: the display maps windows in its own time, and
    /// tells them only then that they have the focus, or the pointer, or are to be seen. To be called before
    /// the screen is read, or keys are held in a window that has just come up.
    static void settleOnScreen();

    /// Whether WM_QUIT has come since the last call.
    static bool tookQuit();

    /// For other threads: runs `question` on the thread with the windows and waits for it. What it throws
    /// is thrown here. Throws Unanswered when the limit passes first; the question is then dropped.
    static void ask(const std::function<void()>& question, Limit limit = Limit{30000});

    /// For other threads: waits until the display has done what it was asked for so far, and the thread with
    /// the windows has taken what it was told of that. Throws as `ask` does.
    static void catchUp();
};

} // namespace ovo::testkit
