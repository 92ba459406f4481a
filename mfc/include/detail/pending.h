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

/// Raises the kept exception, if there is one and no other is unwinding the stack right now.
OVOMFC_API void rethrowPendingException();

/// Makes a call into the system, and raises what was kept meanwhile.
template <class Call>
auto callOut(Call&& call)
{
    if constexpr (std::is_void_v<std::invoke_result_t<Call>>) {
        std::forward<Call>(call)();
        rethrowPendingException();
    } else {
        auto result = std::forward<Call>(call)();
        rethrowPendingException();
        return result;
    }
}

} // namespace afxdetail
