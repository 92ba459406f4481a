#include <detail/pending.h>

namespace afxdetail
{

void storePendingException() noexcept
{
    ThreadState& state = threadState();
    if (!state.pendingException)
        state.pendingException = std::current_exception();
}

void rethrowPendingException()
{
    ThreadState& state = threadState();
    if (!state.pendingException || std::uncaught_exceptions() > 0)
        return;
    std::rethrow_exception(std::exchange(state.pendingException, nullptr));
}

} // namespace afxdetail
