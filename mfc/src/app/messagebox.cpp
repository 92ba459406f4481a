// Message boxes.
#include <afxwin.h>

#include <detail/help.h>
#include <detail/pending.h>

namespace
{

/// A message without an icon of its own gets the exclamation mark.
UINT withIcon(UINT type)
{
    return (type & MB_ICONMASK) ? type : type | MB_ICONEXCLAMATION;
}

/// A task-modal box is gone before the system enables the thread's other windows again, so that none of them
/// could become active.
void activateAgain(HWND wnd)
{
    if (!::GetActiveWindow() && ::IsWindow(wnd) && ::IsWindowEnabled(wnd))
        ::SetActiveWindow(wnd);
}

int show(LPCTSTR text, UINT type)
{
    const HWND active = ::GetActiveWindow();
    HWND topLevel = nullptr;
    CWnd* owner = CWnd::GetSafeOwner(nullptr, &topLevel);
    const HWND ownerWnd = owner->GetSafeHwnd();
    // A task-modal box disables the thread's windows by itself; it must then have no owner.
    const HWND given = (type & MB_TASKMODAL) ? nullptr : ownerWnd;
    return afxdetail::callOut([=] {
        if (topLevel)
            ::EnableWindow(topLevel, FALSE);
        const int answer = ::MessageBoxW(given, text, AfxGetAppName(), withIcon(type));
        if (topLevel)
            ::EnableWindow(topLevel, TRUE);
        activateAgain(active);
        return answer;
    });
}

} // namespace

int CWinApp::DoMessageBox(LPCTSTR text, UINT type, UINT helpId)
{
    const afxdetail::OpenMessageBox open(helpId, (type & MB_HELP) != 0);
    return show(text, type);
}

int AFXAPI AfxMessageBox(LPCTSTR text, UINT type, UINT helpId)
{
    CWinApp* app = AfxGetApp();
    return app ? app->DoMessageBox(text, type, helpId) : show(text, type);
}

int AFXAPI AfxMessageBox(UINT textId, UINT type, UINT helpId)
{
    CString text;
    text.LoadString(textId);
    return AfxMessageBox(text, type, helpId == static_cast<UINT>(-1) ? textId : helpId);
}
