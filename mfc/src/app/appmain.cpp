// How a program starts and ends.
#include <afxwin.h>

#include <detail/modulestate.h>
#include <detail/termwork.h>
#include <detail/threadstate.h>

#include <commctrl.h>

namespace
{

std::vector<void (*)()>& termWork()
{
    static auto* const work = new std::vector<void (*)()>;
    return *work;
}

void startClasses(DWORD classes)
{
    const INITCOMMONCONTROLSEX wanted{sizeof wanted, classes};
    ::InitCommonControlsEx(&wanted);
}

/// What version 6 alone has is asked for by itself: version 5 refuses everything along with what it does not
/// know.
void startCommonControls()
{
    startClasses(ICC_WIN95_CLASSES | ICC_USEREX_CLASSES | ICC_DATE_CLASSES | ICC_COOL_CLASSES |
                 ICC_INTERNET_CLASSES);
    startClasses(ICC_STANDARD_CLASSES);
}

} // namespace

BOOL AFXAPI AfxWinInit(HINSTANCE instance, HINSTANCE, LPTSTR commandLine, int show)
{
    AFX_MODULE_STATE* const state = AfxGetModuleState();
    if (state->resources == state->instance)
        state->resources = instance;
    state->instance = instance;
    startCommonControls();
    if (CWinApp* app = AfxGetApp()) {
        app->m_hInstance = instance;
        app->m_lpCmdLine = commandLine;
        app->m_nCmdShow = show;
        app->m_hThread = ::GetCurrentThread();
        app->m_nThreadID = ::GetCurrentThreadId();
        afxdetail::threadState().currentThread = app;
    }
    return TRUE;
}

int AFXAPI AfxWinMain(HINSTANCE instance, HINSTANCE previous, LPTSTR commandLine, int show)
{
    CWinApp* const app = AfxGetApp();
    ASSERT(app); // a windowed program has one, at global scope
    int result = -1;
    if (AfxWinInit(instance, previous, commandLine, show) && app && app->InitApplication()) {
        if (app->InitInstance()) {
            result = app->Run();
        } else {
            if (app->m_pMainWnd)
                app->m_pMainWnd->DestroyWindow();
            result = app->ExitInstance();
        }
    }
    AfxWinTerm();
    return result;
}

void afxdetail::registerTermWork(void (*work)())
{
    termWork().push_back(work);
}

void AFXAPI AfxWinTerm()
{
    std::vector<void (*)()>& work = termWork();
    while (!work.empty()) {
        void (*const last)() = work.back();
        work.pop_back();
        last();
    }
}

BOOL AFXAPI AfxEnableControlContainer()
{
    return TRUE; // there are no OLE controls to hold
}
