// What the framework knows about the program and its extension modules.
#pragma once

#include <afx.h>

class CDynLinkLibrary;
class CWinApp;

/// Shared by a program and its extension DLLs. Hosts use it through the functions below.
class AFX_MODULE_STATE;

OVOMFC_API AFX_MODULE_STATE* AFXAPI AfxGetModuleState();
OVOMFC_API AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState();
OVOMFC_API AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState();

/// Makes a module state the current one for the rest of the scope.
class OVOMFC_API AFX_MAINTAIN_STATE
{
public:
    explicit AFX_MAINTAIN_STATE(AFX_MODULE_STATE* state);
    ~AFX_MAINTAIN_STATE();
    AFX_MAINTAIN_STATE(const AFX_MAINTAIN_STATE&) = delete;
    AFX_MAINTAIN_STATE& operator=(const AFX_MAINTAIN_STATE&) = delete;

private:
    AFX_MODULE_STATE* m_previous;
};

#define AFX_MANAGE_STATE(state) const AFX_MAINTAIN_STATE maintainedState(state);

/// The program's module.
OVOMFC_API HINSTANCE AFXAPI AfxGetInstanceHandle();
/// Where resources are looked for first; the program's module until it is set.
OVOMFC_API HINSTANCE AFXAPI AfxGetResourceHandle();
OVOMFC_API void AFXAPI AfxSetResourceHandle(HINSTANCE module);

/// The module that has a resource: the current one, the extension modules from the newest on, the framework;
/// the current one when none has it. Name and type may be integers (MAKEINTRESOURCE).
OVOMFC_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR name, LPCTSTR type);

/// A string resource along the resource chain into a buffer of `maxLength` characters with the terminating
/// zero; gives its length, 0 when there is none.
OVOMFC_API int AFXAPI AfxLoadString(UINT id, LPTSTR buffer, UINT maxLength = 256);

/// The program's object, NULL before it is made and in programs without one.
OVOMFC_API CWinApp* AFXAPI AfxGetApp();
OVOMFC_API LPCTSTR AFXAPI AfxGetAppName();

/// Registers a window class whose name is made from the arguments, once for equal ones, and gives the name.
/// It stays valid until the next call. A style of 0 is CS_DBLCLKS; without a cursor or an icon the class gets
/// the arrow and the system's icon for programs; without a background it does not erase. Throws
/// CResourceException on failure.
OVOMFC_API LPCTSTR AFXAPI AfxRegisterWndClass(UINT style, HCURSOR cursor = nullptr,
                                              HBRUSH background = nullptr, HICON icon = nullptr);
/// Registers a window class of a name of its own, unless it is registered already. FALSE on failure.
OVOMFC_API BOOL AFXAPI AfxRegisterClass(WNDCLASS* wndClass);

OVOMFC_API HINSTANCE AFXAPI AfxLoadLibrary(LPCTSTR name);
OVOMFC_API BOOL AFXAPI AfxFreeLibrary(HINSTANCE module);
