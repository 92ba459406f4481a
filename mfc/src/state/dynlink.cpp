// Extension modules.
#include <afx/ExtensionModule.h>

#include "../cmd/dispatchtable.h"

#include <detail/modulestate.h>

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL system)
    : CDynLinkLibrary(state.hModule, state.hResource)
{
    m_bSystem = system;
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE module, HINSTANCE resources)
    : m_hModule(module)
    , m_hResource(resources)
    , m_bSystem(FALSE)
    , m_pNextDLL(std::exchange(AfxGetModuleState()->libraries, this))
{
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    CDynLinkLibrary** link = &m_pModuleState->libraries;
    while (*link && *link != this)
        link = &(*link)->m_pNextDLL;
    if (*link)
        *link = m_pNextDLL;
}

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module)
{
    if (state.bInitialized)
        return TRUE;
    if (!module)
        return FALSE;
    state.bInitialized = TRUE;
    state.hModule = module;
    state.hResource = module;
    return TRUE;
}

namespace
{

void dropWndClasses(HMODULE module)
{
    AFX_MODULE_STATE* const state = AfxGetModuleState();
    const std::lock_guard lock(state->wndClassesLock);
    std::erase_if(state->wndClasses, [module](const auto& wndClass) {
        return wndClass.first == module && ::UnregisterClassW(wndClass.second.c_str(), module);
    });
}

} // namespace

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL all)
{
    if (!state.bInitialized)
        return;
    for (CDynLinkLibrary* library = AfxGetModuleState()->libraries; library;) {
        CDynLinkLibrary* const next = library->m_pNextDLL;
        if (all || library->m_hModule == state.hModule)
            delete library;
        library = next;
    }
    dropWndClasses(state.hModule);
    afxdetail::forgetTablesOf(state.hModule);
}
