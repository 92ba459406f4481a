/// How far something has come that runs on one thread and is asked about on another. Plain values, no
/// windows.
#pragma once

#include <atomic>

namespace ovoui::update
{

/// The answer of work that the user can cancel. It is given once: by the work when it has ended, or by the
/// user's cancelling it, whichever comes first.
template <class State>
class JobAnswer
{
public:
    /// `running` is the state until the answer is there.
    explicit JobAnswer(State running) noexcept
        : m_state(running)
    {
    }

    /// Whether the caller is the first: then its answer is the one that counts, and it gives it.
    bool claim() noexcept { return !m_claimed.exchange(true); }

    /// Gives the `answer` of the caller that came first. To be called last: a thread that sees the answer may
    /// read all that belongs to it.
    void give(State answer) noexcept { m_state = answer; }

    /// May be asked on any thread.
    State state() const noexcept { return m_state; }

private:
    std::atomic<bool> m_claimed = false;
    std::atomic<State> m_state;
};

/// Notes of progress, of which one at a time is on its way.
class ProgressNotes
{
public:
    /// There is something new. Whether a note is to be sent.
    bool toBeSent() noexcept { return !m_onItsWay.exchange(true); }

    /// The receiver has looked.
    void seen() noexcept { m_onItsWay = false; }

private:
    std::atomic<bool> m_onItsWay = false;
};

} // namespace ovoui::update
