// An extension module with nothing in it but resources.
#include <afxwin.h>
#include <afxdllx.h>

static AFX_EXTENSION_MODULE s_module{};

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(s_module, instance))
            return FALSE;
        new CDynLinkLibrary(s_module); // the framework's to delete
    } else if (reason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(s_module);
    }
    return TRUE;
}
