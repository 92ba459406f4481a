#include <afx.h>

#include <detail/pending.h>

namespace afxdetail
{

namespace
{

/// Whether the caller runs because an exception destroys it: raising another would end the program.
bool isUnwinding(const ThreadState& state)
{
    return *state.unwinding > state.unwindingBefore;
}

/// Says what becomes of an exception, on the debugger's channel. A CException's object is deleted when it
/// goes no further.
void trace(const std::exception_ptr& exception, LPCTSTR what, bool last)
{
    try {
        std::rethrow_exception(exception);
    } catch (CException* raised) {
        TCHAR text[256]{};
        raised->GetErrorMessage(text, 256);
        AfxTrace(_T("%s: %s\n"), what, text);
        if (last)
            raised->Delete();
    } catch (const std::exception& raised) {
        AfxTrace(_T("%s: %S\n"), what, raised.what());
    } catch (...) {
        AfxTrace(_T("%s\n"), what);
    }
}

/// The first of several is kept.
void keep(std::exception_ptr& place, const std::exception_ptr& exception)
{
    if (place)
        trace(exception, _T("An exception is dropped, since another one waits to be raised"), true);
    else
        place = exception;
}

void keepForTheLoop(ThreadState& state, const std::exception_ptr& exception)
{
    if (!state.leftException)
        trace(exception, _T("An exception waits for the message loop"), false);
    keep(state.leftException, exception);
}

} // namespace

void storePendingException() noexcept
{
    ThreadState& state = threadState();
    if (state.callOuts > 0)
        keep(state.pendingException, std::current_exception());
    else
        keepForTheLoop(state, std::current_exception());
}

void raiseLeftException()
{
    ThreadState& state = threadState();
    if (state.leftException && !isUnwinding(state))
        std::rethrow_exception(std::exchange(state.leftException, nullptr));
}

CallOut::CallOut() noexcept
    : m_state(threadState())
    , m_outer(std::exchange(m_state.pendingException, nullptr))
{
    ++m_state.callOuts;
}

CallOut::~CallOut()
{
    const std::exception_ptr kept = std::exchange(m_state.pendingException, std::move(m_outer));
    if (--m_state.callOuts > 0 && kept)
        keep(m_state.pendingException, kept);
    else if (kept)
        keepForTheLoop(m_state, kept);
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
