// Internal: exceptions on their way through the system.
//
// The system swallows C++ exceptions that leave a window procedure in some messages (creation, sizing,
// painting, destruction). So they are kept there, and the framework's call that led into the system raises
// the kept one when the system returns. What is kept while no such call is under way (a program has called
// the system itself, or a destructor has) waits for the next step of a message loop. No other call raises it.
#pragma once

#include <detail/threadstate.h>

#include <type_traits>
#include <utility>

namespace afxdetail
{

/// Keeps the exception that is being handled. When one is kept already, this one is traced and dropped. To be
/// called in a catch block.
OVOMFC_API void storePendingException() noexcept;

/// Raises what was kept while no call was under way: the first thing in every step of a message loop.
OVOMFC_API void raiseLeftException();

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

    /// Raises the exception that was kept since the constructor. While the stack is unwound it is handed to
    /// the call further out, or to the message loop.
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

/// The same for a message loop's call.
template <class Call>
auto loopCallOut(Call&& call)
{
    raiseLeftException();
    return callOut(std::forward<Call>(call));
}

} // namespace afxdetail
