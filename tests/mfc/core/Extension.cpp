// A small extension module, as the documentation of AFX_EXTENSION_MODULE shows it. Built twice.
#include <afxwin.h>
#include <afxdllx.h>

namespace
{

AFX_EXTENSION_MODULE extension{};

} // namespace

/// Global, since classes are known by their names alone; each build has its own name for it.
class PROBE_CLASS : public CObject
{
    DECLARE_DYNCREATE(PROBE_CLASS)
};

IMPLEMENT_DYNCREATE(PROBE_CLASS, CObject)

extern "C" {

__declspec(dllexport) AFX_EXTENSION_MODULE& extensionRecord()
{
    return extension;
}

__declspec(dllexport) CRuntimeClass* extensionClass()
{
    return RUNTIME_CLASS(PROBE_CLASS);
}

__declspec(dllexport) LPCWSTR registerExtensionWndClass()
{
    static const wchar_t name[] = L"ovoui test extension";
    WNDCLASSW wndClass{};
    wndClass.lpfnWndProc = &::DefWindowProcW;
    wndClass.hInstance = extension.hModule;
    wndClass.lpszClassName = name;
    return AfxRegisterClass(&wndClass) ? name : nullptr;
}

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(extension, instance))
            return FALSE;
        new CDynLinkLibrary(extension);
    } else if (reason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(extension);
    }
    return TRUE;
}

} // extern "C"
