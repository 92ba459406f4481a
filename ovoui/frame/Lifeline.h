/// Tells, after a call into the host's code, whether an object still exists.
///
///     const Lifeline::Watch watch(m_lifeline);
///     tellParent();
///     if (!watch.alive())
///         return;
#pragma once

#include <memory>

/// A member of the object that may vanish. A copy of the object has a lifeline of its own.
class Lifeline
{
public:
    Lifeline()
        : m_life(std::make_shared<char>())
    {
    }
    Lifeline(const Lifeline&)
        : Lifeline()
    {
    }
    Lifeline& operator=(const Lifeline&) { return *this; }

    /// What the caller keeps on its stack. It outlives the object.
    class Watch
    {
    public:
        explicit Watch(const Lifeline& lifeline)
            : m_life(lifeline.m_life)
        {
        }
        bool alive() const { return !m_life.expired(); }

    private:
        std::weak_ptr<char> m_life;
    };

private:
    std::shared_ptr<char> m_life;
};
