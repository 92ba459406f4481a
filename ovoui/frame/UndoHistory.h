/// What was there after each gesture of the user, to go back and forward.
///
///     UndoHistory<Palette> history(palette);
///     history.keep(changed); // at the end of a gesture, such as a drag
///     history.undo();
///     show(history.present());
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

/// Keeps whole states, so `State` is small or shares what it holds. Without a limit.
template <class State>
class UndoHistory
{
public:
    /// Begins with the state `first`, before which there is nothing.
    explicit UndoHistory(State first)
        : m_states{std::move(first)}
    {
    }

    /// The state that is to be shown; valid until the next keep.
    const State& present() const { return m_states[m_present]; }

    /// Adds `state` after the present one, and forgets what was undone.
    void keep(State state)
    {
        m_states.resize(m_present + 1, m_states.front());
        m_states.push_back(std::move(state));
        ++m_present;
    }

    bool canUndo() const { return m_present > 0; }                   ///< Whether there is an earlier state.
    bool canRedo() const { return m_present + 1 < m_states.size(); } ///< Whether one was undone.

    void undo() { m_present -= canUndo() ? 1 : 0; } ///< One state back, if there is one.
    void redo() { m_present += canRedo() ? 1 : 0; } ///< One state forward, if there is one.

private:
    std::vector<State> m_states;
    std::size_t m_present = 0;
};
