#include <detail/threadstate.h>

namespace afxdetail
{

ThreadState& threadState()
{
    thread_local ThreadState* const state = new ThreadState;
    return *state;
}

} // namespace afxdetail
