#include <windows.h>

// Nothing to do: the module is loaded for its resources.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD, LPVOID)
{
    return TRUE;
}
