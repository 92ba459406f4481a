// The hourglass.
#include <afxwin.h>

#include <detail/threadstate.h>

namespace
{

void doWaitCursor(int code)
{
    if (CWinApp* app = AfxGetApp()) {
        app->DoWaitCursor(code);
        return;
    }
    // Without a program object nobody keeps the count.
    ::SetCursor(::LoadCursorW(nullptr, code >= 0 ? IDC_WAIT : IDC_ARROW));
}

} // namespace

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
