// The hourglass.
#include <afxwin.h>

#include <detail/waitcursor.h>

namespace
{

/// The program may have something to say; without one the thread counts by itself.
void doWaitCursor(int code)
{
    if (CWinApp* app = AfxGetApp())
        app->DoWaitCursor(code);
    else
        afxdetail::countWaitCursor(code);
}

} // namespace

void afxdetail::countWaitCursor(int code)
{
    ThreadState& state = threadState();
    const int before = state.waitCursorCount;
    state.waitCursorCount = std::max(0, before + code);
    if (state.waitCursorCount > 0) {
        const HCURSOR previous = ::SetCursor(::LoadCursorW(nullptr, IDC_WAIT));
        if (before == 0)
            state.waitCursorRestore = previous;
    } else if (before > 0) {
        ::SetCursor(state.waitCursorRestore);
    }
}

void CCmdTarget::BeginWaitCursor()
{
    doWaitCursor(1);
}

void CCmdTarget::EndWaitCursor()
{
    doWaitCursor(-1);
}

void CCmdTarget::RestoreWaitCursor()
{
    doWaitCursor(0);
}

CWaitCursor::CWaitCursor()
{
    doWaitCursor(1);
}

CWaitCursor::~CWaitCursor()
{
    doWaitCursor(-1);
}

void CWaitCursor::Restore()
{
    doWaitCursor(0);
}
