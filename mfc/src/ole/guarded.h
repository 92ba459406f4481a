// Internal to OLE: methods that the system calls, and that no exception may leave.
#pragma once

#include <detail/pending.h>

namespace afxdetail
{

/// Gives what the call gives. An exception waits for the end of the call that led into the system, and the
/// system gets `failure`.
template <class Call>
HRESULT guarded(Call&& call, HRESULT failure = E_UNEXPECTED)
{
    try {
        return call();
    } catch (...) {
        storePendingException();
        return failure;
    }
}

} // namespace afxdetail
