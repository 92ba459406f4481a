/// Not exported: calls into the host's code, and what comes of the exceptions that it raises.
#pragma once

#include <ovoui/frame/Exceptions.h>
#include <ovoui/tree/TreeState.h>

/// Stands for the tree during calls into the host's code, which may destroy it: after such a call usable() is
/// asked before anything else.
class MultiTreeCtrl::HostCalls
{
public:
    explicit HostCalls(const MultiTreeCtrl& tree)
        : m_state(tree.m_state)
    {
    }

    /// Whether the tree and its window are still there.
    bool usable() const { return m_state->usable(); }

    /// Makes a call. An OvoError or a standard exception goes to the host's reportError; others pass on.
    /// False when there was one to report.
    template <class Call>
    bool report(Call&& call) const
    {
        const std::optional<std::wstring> error = ovoui::frame::errorOf(std::forward<Call>(call));
        if (!error)
            return true;
        // The host may show a box, and with it run a message loop.
        if (m_state->control() && !m_state->isClosing())
            m_state->control()->reportError(error->c_str());
        return false;
    }

    /// As report, but keeps what would pass on. Nothing is lost of an exception kept before.
    template <class Call>
    void reportKeeping(std::exception_ptr& kept, Call&& call) const
    {
        ovoui::frame::keepFirst(kept, [&] { report(std::forward<Call>(call)); });
    }

private:
    const std::shared_ptr<State> m_state;
};
