/// Not exported: what a control keeps that must outlive it while the host is called.
#pragma once

namespace ovoui::frame
{

/// The base of the state of a control whose calls into the host's code need data of the control afterwards.
/// The control owns the state by a shared pointer; a function that calls the host holds another one on its
/// stack, and asks after the call:
///
///     const std::shared_ptr<State> state = m_state;
///     tellHost();
///     if (!state->usable())
///         return;
///
/// A control without such data is watched by a Lifeline.
template <class Control>
class SharedState
{
public:
    explicit SharedState(Control& control)
        : m_control(&control)
    {
    }
    SharedState(const SharedState&) = delete;
    SharedState& operator=(const SharedState&) = delete;

    /// Null once it is destroyed.
    Control* control() const { return m_control; }

    /// Whether the control and its window are still there. Not while its destructor runs: what the host has
    /// derived is gone by then.
    bool usable() const { return m_control && m_control->m_hWnd && !m_closing; }
    bool isClosing() const { return m_closing; }

    // Called by the destructor of the control, first and last.
    void controlCloses() { m_closing = true; }
    void controlGoes() { m_control = nullptr; }

protected:
    ~SharedState() = default;

private:
    Control* m_control;
    bool m_closing = false;
};

} // namespace ovoui::frame
