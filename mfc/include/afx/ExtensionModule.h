// DLLs that extend the framework: their entry points call these.
#pragma once

#include <afx/CmdTarget.h>

struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized = FALSE;
    HMODULE hModule = nullptr;
    HMODULE hResource =
        nullptr; ///< where CDynLinkLibrary lets resources be looked for; hModule unless changed
    CRuntimeClass* pFirstSharedClass = nullptr;
    void* pFirstSharedFactory = nullptr;
};

/// Process attach: fills the record. TRUE without change when it is initialised already; FALSE on failure.
OVOMFC_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module);

/// Process detach: deletes the module's CDynLinkLibrary objects (`all`: everybody's) and its window classes.
OVOMFC_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL all = FALSE);

/// Joins an extension module to the resource search while it lives. Made with `new` at process attach; the
/// framework deletes it in AfxTermExtensionModule.
class OVOMFC_API CDynLinkLibrary : public CCmdTarget
{
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL system = FALSE);
    CDynLinkLibrary(HINSTANCE module, HINSTANCE resources);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem; ///< asked after the framework's own resources
    CDynLinkLibrary* m_pNextDLL = nullptr;
};
