// Internal: the contents of the module state.
#pragma once

#include <afx/ModuleState.h>

#include <mutex>
#include <set>
#include <string>
#include <utility>

/// There is one, made before anything needs it and never destroyed.
class AFX_MODULE_STATE
{
public:
    CWinApp* app = nullptr;
    HINSTANCE instance = ::GetModuleHandleW(nullptr);
    HINSTANCE resources = instance;
    CDynLinkLibrary* libraries = nullptr;                    ///< from the newest to the oldest
    std::set<std::pair<HINSTANCE, std::wstring>> wndClasses; ///< that were registered through the framework
    std::mutex wndClassesLock;                               ///< any thread may register one
};

namespace afxdetail
{

/// The module of ovomfc.dll itself.
HINSTANCE frameworkModule();

} // namespace afxdetail
