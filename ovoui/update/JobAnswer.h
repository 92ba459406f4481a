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

/// Notes of progress, of which one at a time is on its way, and the end, which is told after all of them. One
/// thread sends notes; the rest may be called on any.
class ProgressNotes
{
public:
    /// There is something new. Whether a note is to be sent; then `sent` is to be called.
    bool toBeSent() noexcept
    {
        unsigned char before = m_state;
        do {
            if (before & (kOnItsWay | kEnded))
                return false;
        } while (!m_state.compare_exchange_weak(before, before | kOnItsWay | kBeingSent));
        return true;
    }

    /// The note has been sent. False when the end has come meanwhile: then the sender tells of it.
    bool sent() noexcept { return !(m_state.fetch_and(static_cast<unsigned char>(~kBeingSent)) & kEnded); }

    /// The receiver has looked.
    void seen() noexcept { m_state.fetch_and(static_cast<unsigned char>(~kOnItsWay)); }

    /// There are no more notes. Whether the caller tells of the end; false while a note is being sent, whose
    /// sender does.
    bool end() noexcept { return !(m_state.fetch_or(kEnded) & kBeingSent); }

private:
    static constexpr unsigned char kOnItsWay = 1;
    static constexpr unsigned char kBeingSent = 2;
    static constexpr unsigned char kEnded = 4;

    std::atomic<unsigned char> m_state = 0;
};

} // namespace ovoui::update
