// UnitsExt.cpp : the DLL's entry point
#include "stdafx.h"
#include <afxdllx.h>

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

static AFX_EXTENSION_MODULE UnitsExtDLL = {};

extern "C" int APIENTRY DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved)
{
    UNREFERENCED_PARAMETER(lpReserved);

    if (dwReason == DLL_PROCESS_ATTACH) {
        TRACE0("UnitsExt.DLL Initializing!\n");
        if (!AfxInitExtensionModule(UnitsExtDLL, hInstance))
            return 0;
        new CDynLinkLibrary(UnitsExtDLL);
    }
    else if (dwReason == DLL_PROCESS_DETACH) {
        TRACE0("UnitsExt.DLL Terminating!\n");
        AfxTermExtensionModule(UnitsExtDLL);
    }
    return 1; // ok
}
