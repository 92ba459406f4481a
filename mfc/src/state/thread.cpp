// The running thread's block.
#include <detail/modulestate.h>
#include <detail/threadend.h>
#include <detail/threadstate.h>

#include <atomic>
#include <cxxabi.h>

namespace afxdetail
{
namespace
{

// A slot of the system's: every message asks for the block, and a thread_local variable costs several times
// as much with this compiler.
std::atomic<DWORD> g_slot = TLS_OUT_OF_INDEXES;

DWORD allocatedSlot()
{
    const DWORD made = ::TlsAlloc();
    DWORD expected = TLS_OUT_OF_INDEXES;
    if (g_slot.compare_exchange_strong(expected, made))
        return made;
    ::TlsFree(made); // another thread was faster
    return expected;
}

/// The beginning of what the C++ ABI keeps for each thread about exceptions.
struct ExceptionGlobals
{
    void* caught;
    int uncaught;
};

ThreadState* newState(DWORD slot)
{
    auto* state = new ThreadState;
    state->unwinding = &reinterpret_cast<const ExceptionGlobals*>(abi::__cxa_get_globals())->uncaught;
    ::TlsSetValue(slot, state);
    return state;
}

} // namespace

ThreadState& threadState()
{
    const DWORD error = ::GetLastError(); // which TlsGetValue clears
    DWORD slot = g_slot.load(std::memory_order_relaxed);
    if (slot == TLS_OUT_OF_INDEXES)
        slot = allocatedSlot();
    auto* state = static_cast<ThreadState*>(::TlsGetValue(slot));
    if (!state)
        state = newState(slot);
    ::SetLastError(error);
    return *state;
}

void releaseThreadState()
{
    const DWORD slot = g_slot;
    if (slot == TLS_OUT_OF_INDEXES)
        return;
    delete static_cast<ThreadState*>(::TlsGetValue(slot));
    ::TlsSetValue(slot, nullptr);
}

void releaseStates()
{
    const DWORD slot = g_slot.exchange(TLS_OUT_OF_INDEXES);
    if (slot != TLS_OUT_OF_INDEXES) {
        delete static_cast<ThreadState*>(::TlsGetValue(slot));
        ::TlsFree(slot);
    }
    delete AfxGetAppModuleState();
}

} // namespace afxdetail
