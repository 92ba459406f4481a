#include <detail/pending.h>

namespace afxdetail
{

namespace
{

/// Whether the caller runs because an exception destroys it: raising another would end the program.
bool isUnwinding(const ThreadState& state)
{
    return std::uncaught_exceptions() > state.unwindingBefore;
}

} // namespace

void storePendingException() noexcept
{
    ThreadState& state = threadState();
    if (!state.pendingException)
        state.pendingException = std::current_exception();
}

void rethrowPendingException()
{
    ThreadState& state = threadState();
    if (state.pendingException && !isUnwinding(state))
        std::rethrow_exception(std::exchange(state.pendingException, nullptr));
}

CallOut::CallOut() noexcept
    : m_state(threadState())
{
    // An exception with no call around it to raise it (kept by a destructor, say) is raised by the next call.
    if (m_state.callOuts++ > 0 && m_state.pendingException)
        m_outer = std::exchange(m_state.pendingException, nullptr);
}

CallOut::~CallOut()
{
    --m_state.callOuts;
    if (m_outer)
        m_state.pendingException = std::move(m_outer);
}

bool CallOut::failed() const noexcept
{
    return m_state.pendingException != nullptr;
}

void CallOut::finish()
{
    if (m_state.pendingException && !isUnwinding(m_state))
        std::rethrow_exception(std::exchange(m_state.pendingException, nullptr));
}

} // namespace afxdetail
