#include <detail/modulestate.h>
#include <detail/threadstate.h>

namespace afxdetail
{
namespace
{

thread_local ThreadState* t_state = nullptr;

} // namespace

ThreadState& threadState()
{
    if (!t_state)
        t_state = new ThreadState;
    return *t_state;
}

void releaseStates()
{
    delete std::exchange(t_state, nullptr);
    delete AfxGetAppModuleState();
}

} // namespace afxdetail
