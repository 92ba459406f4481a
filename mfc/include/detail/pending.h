// Internal: exceptions on their way through callbacks into the system.
//
// The system swallows C++ exceptions that leave a window procedure in some messages (creation, sizing, painting,
// destruction) and passes them on in others. So none leaves it: the procedure stores the exception, and the call
// that led into the system raises it again when it returns.
#pragma once

#include <detail/threadstate.h>

#include <type_traits>
#include <utility>

namespace afxdetail
{

/// Keeps the exception that is being handled, unless one is kept already. To be called in a catch block.
OVOMFC_API void storePendingException() noexcept;

/// Raises the kept exception, if there is one and the caller is not part of an unwinding.
OVOMFC_API void rethrowPendingException();

/// A call into the system, from the constructor to finish().
///
/// What was kept before the call belongs to a call further out and stays aside meanwhile, so that a handler on
/// the way is never interrupted by an exception of another call.
class OVOMFC_API CallOut
{
public:
    CallOut() noexcept;
    ~CallOut();
    CallOut(const CallOut&) = delete;
    CallOut& operator=(const CallOut&) = delete;

    /// Whether an exception was kept since the constructor.
    bool failed() const noexcept;

    /// Raises the exception that was kept since the constructor. While the stack is unwound it stays kept, for
    /// the next call that can raise it.
    void finish();

private:
    ThreadState& m_state;
    std::exception_ptr m_outer;
};

/// Makes a call into the system, and raises what was kept meanwhile.
template <class Call>
auto callOut(Call&& call)
{
    CallOut scope;
    if constexpr (std::is_void_v<std::invoke_result_t<Call>>) {
        std::forward<Call>(call)();
        scope.finish();
    } else {
        auto result = std::forward<Call>(call)();
        scope.finish();
        return result;
    }
}

} // namespace afxdetail
