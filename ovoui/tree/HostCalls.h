/// Not exported: calls into the host's code, and what comes of the exceptions that it raises.
#pragma once

#include <ovoui/tree/TreeState.h>

#include <ovocor/OvoError.h>
#include <ovocor/Text.h>

#include <exception>
#include <utility>

namespace ovoui::tree
{

/// Makes a call and keeps what it raises, for the caller to raise when it has cleaned up.
template <class Call>
std::exception_ptr keeping(Call&& call)
{
    try {
        std::forward<Call>(call)();
        return nullptr;
    } catch (...) {
        return std::current_exception();
    }
}

/// The same where calls go on after an exception: the first one is kept.
template <class Call>
void keepFirst(std::exception_ptr& kept, Call&& call)
{
    const std::exception_ptr raised = keeping(std::forward<Call>(call));
    if (!kept)
        kept = raised;
}

/// Asks the host's code something only to show how things stand, maybe at every movement of the mouse. An
/// OvoError or a standard exception counts as no answer: false.
template <class Call>
bool quietly(Call&& call)
{
    try {
        std::forward<Call>(call)();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

inline void raise(const std::exception_ptr& exception)
{
    if (exception)
        std::rethrow_exception(exception);
}

} // namespace ovoui::tree

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
        std::wstring message;
        try {
            std::forward<Call>(call)();
            return true;
        } catch (const OvoError& error) {
            message = error.wwhat();
        } catch (const std::exception& error) {
            message = getWCS(error.what());
        }
        // Outside the handler: the host may show a box and run a message loop.
        if (m_state->tree && !m_state->closing)
            m_state->tree->reportError(message.c_str());
        return false;
    }

    /// As report, but keeps what would pass on. Nothing is lost of an exception kept before.
    template <class Call>
    void reportKeeping(std::exception_ptr& kept, Call&& call) const
    {
        ovoui::tree::keepFirst(kept, [&] { report(std::forward<Call>(call)); });
    }

private:
    const std::shared_ptr<State> m_state;
};
