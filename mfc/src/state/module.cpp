// The module state: what a program and its extension DLLs share.
#include <afxwin.h>

#include <detail/modulestate.h>
#include <detail/threadstate.h>

AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState()
{
    // Extension DLLs are attached before the program's own objects are made, and detached after them.
    static AFX_MODULE_STATE* const state = new AFX_MODULE_STATE;
    return state;
}

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState()
{
    return AfxGetAppModuleState();
}

AFX_MODULE_STATE* AFXAPI AfxGetModuleState()
{
    AFX_MODULE_STATE* const pushed = afxdetail::threadState().moduleState;
    return pushed ? pushed : AfxGetAppModuleState();
}

AFX_MAINTAIN_STATE::AFX_MAINTAIN_STATE(AFX_MODULE_STATE* state)
    : m_previous(std::exchange(afxdetail::threadState().moduleState, state))
{
}

AFX_MAINTAIN_STATE::~AFX_MAINTAIN_STATE()
{
    afxdetail::threadState().moduleState = m_previous;
}

HINSTANCE AFXAPI AfxGetInstanceHandle()
{
    return AfxGetModuleState()->instance;
}

HINSTANCE AFXAPI AfxGetResourceHandle()
{
    return AfxGetModuleState()->resources;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE module)
{
    AfxGetModuleState()->resources = module;
}

CWinApp* AFXAPI AfxGetApp()
{
    return AfxGetModuleState()->app;
}

LPCTSTR AFXAPI AfxGetAppName()
{
    const CWinApp* app = AfxGetApp();
    return app && app->m_pszAppName ? app->m_pszAppName : L"";
}

HINSTANCE AFXAPI AfxLoadLibrary(LPCTSTR name)
{
    return ::LoadLibraryW(name);
}

BOOL AFXAPI AfxFreeLibrary(HINSTANCE module)
{
    return ::FreeLibrary(module);
}

namespace afxdetail
{

HINSTANCE frameworkModule()
{
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                             GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCWSTR>(&AfxGetAppModuleState), &module);
    return module;
}

} // namespace afxdetail
